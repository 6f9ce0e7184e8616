#pragma once
// What a row of a scale is drawn with. The three kinds have the same static members, so that a
// model never asks which one it has.

#include <cstdint>

#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

/// Of the two styles of a row: what draws, and what draws selected objects.
inline constexpr std::int32_t primary = 0, selection = 1;

/// Cells of grids.
struct color_style_traits {
  using style = Tzu_color;
  static constexpr char manager_key[] = "clr_mngr_style";
  static constexpr bool offers_rules = false;  ///< as a mode that a person can choose
  /// Style `kind` of a parameter, owned by it; null for null.
  static style* get(Tzu_stl_prm* prm, std::int32_t kind);
  /// Has the person edit a style in place. False, and the style as it was, if they did not accept.
  static bool edit(Tzu_stl_prm* prm, std::int32_t kind);
  /// A sample in pixels as a view takes them, see `zu_preview_color`. False: nothing to show.
  static bool draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width, std::uint64_t height,
                   double dots_per_mm, Tzu_dib* out);
  /// The primary style becomes that of a number in a library, if it has one of this kind.
  static void take_from_library(Tzu_stl_prm* prm, Tzu_style_lib* library, std::int32_t number);
};

/// Symbols of coordinate layers.
struct point_style_traits {
  using style = Tzu_pnt_style;
  static constexpr char manager_key[] = "pnt_mngr_style";
  static constexpr bool offers_rules = true;
  static style* get(Tzu_stl_prm* prm, std::int32_t kind);
  static bool edit(Tzu_stl_prm* prm, std::int32_t kind);
  static bool draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width, std::uint64_t height,
                   double dots_per_mm, Tzu_dib* out);
  static void take_from_library(Tzu_stl_prm* prm, Tzu_style_lib* library, std::int32_t number);
};

/// Lines of profiles.
struct line_style_traits {
  using style = Tzu_pln_style;
  static constexpr char manager_key[] = "pln_mngr_style";
  static constexpr bool offers_rules = true;
  static style* get(Tzu_stl_prm* prm, std::int32_t kind);
  static bool edit(Tzu_stl_prm* prm, std::int32_t kind);
  static bool draw(Tzu_stl_prm* prm, std::int32_t kind, std::uint64_t width, std::uint64_t height,
                   double dots_per_mm, Tzu_dib* out);
  static void take_from_library(Tzu_stl_prm* prm, Tzu_style_lib* library, std::int32_t number);
};

}  // namespace zu::style
