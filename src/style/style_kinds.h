#pragma once
// The kinds of styles that a person edits by themselves, as static operations, so that controls and
// dialogs are written once.

#include <cstdint>

#include "src/bundle/owned.h"
#include "src/style/edit_style.h"
#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::style::detail {

struct color_kind {
  using style = Tzu_color;
  using argument = Tzu_color;  ///< how a style is given and taken
  /// Holds a colour as the others hold their style.
  struct holder {
    Tzu_color* get() { return &color; }
    Tzu_color color{0, 0, 0, 0};
  };
  static holder create() { return {}; }
  static void assign(Tzu_color* to, Tzu_color from) { *to = from; }
  static Tzu_color given(Tzu_color* held) { return *held; }
  static bool edit(Tzu_color* color) { return edit_color(color); }
  static bool preview(Tzu_color color, std::uint64_t width, std::uint64_t height,
                      double dots_per_mm, Tzu_dib* out);
};

struct point_kind {
  using style = Tzu_pnt_style;
  using argument = const Tzu_pnt_style*;
  using holder = owned<zu_pnt_style_destroy>;
  static holder create() { return holder(zu_pnt_style_create()); }
  static void assign(style* to, argument from) { zu_pnt_style_assign(to, from); }
  static argument given(style* held) { return held; }
  static bool edit(style* edited) { return edit_point_style(edited); }
  static bool preview(argument shown, std::uint64_t width, std::uint64_t height, double dots_per_mm,
                      Tzu_dib* out);
};

struct line_kind {
  using style = Tzu_pln_style;
  using argument = const Tzu_pln_style*;
  using holder = owned<zu_pln_style_destroy>;
  static holder create() { return holder(zu_pln_style_create()); }
  static void assign(style* to, argument from) { zu_pln_style_assign(to, from); }
  static argument given(style* held) { return held; }
  static bool edit(style* edited) { return edit_line_style(edited); }
  static bool preview(argument shown, std::uint64_t width, std::uint64_t height, double dots_per_mm,
                      Tzu_dib* out);
};

struct polygon_kind {
  using style = Tzu_pgn_style;
  using argument = const Tzu_pgn_style*;
  using holder = owned<zu_pgn_style_destroy>;
  static holder create() { return holder(zu_pgn_style_create()); }
  static void assign(style* to, argument from) { zu_pgn_style_assign(to, from); }
  static argument given(style* held) { return held; }
  static bool edit(style* edited) { return edit_polygon_style(edited); }
  static bool preview(argument shown, std::uint64_t width, std::uint64_t height, double dots_per_mm,
                      Tzu_dib* out);
};

}  // namespace zu::style::detail
