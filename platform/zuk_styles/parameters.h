#pragma once
// Style parameters and rows as objects: copies are deep.

#include <memory>

#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_styles.h"

/// The styles of other kinds than colours. Each is made when it is asked for, in the colour that
/// the parameters have then.
struct Tzu_stl_prm_more {
  Tzu_stl_prm_more() = default;
  Tzu_stl_prm_more(const Tzu_stl_prm_more& from);
  std::unique_ptr<Tzu_pnt_style> points[2];
  std::unique_ptr<Tzu_pln_style> lines[2];
  std::unique_ptr<Tzu_pgn_style> polygons[2];
};

namespace zu::platform {

/// A middle gray, selected in yellow.
struct style_parameters : Tzu_stl_prm {
  style_parameters();
  explicit style_parameters(const Tzu_stl_prm& from);
  style_parameters(const style_parameters& from)
      : style_parameters(static_cast<const Tzu_stl_prm&>(from)) {}
  style_parameters& operator=(const style_parameters& from);
  ~style_parameters() { delete more; }
};

/// A visible row with new styles.
struct scale_row : Tzu_scale_prm {
  scale_row();
  scale_row(const scale_row& from);
  scale_row& operator=(const scale_row& from);
  ~scale_row() { delete style.more; }
};

/// Everything of one becomes a copy of the other.
void assign(Tzu_stl_prm& style, const Tzu_stl_prm& from);
/// The same with style `index` (0 or 1) alone.
void assign_one(Tzu_stl_prm& style, const Tzu_stl_prm& from, int index);

// What gradients change. A style that is not made yet is as the parameters' colours say.

/// That of style `index`: symbol, line, polygon or cell, the first that was made.
Tzu_color color_of(const Tzu_stl_prm& style, int index);
void set_color(Tzu_stl_prm& style, int index, Tzu_color color);
/// What has a size in style `index`: the symbol, the line or the contour of a polygon.
enum class sized { symbol, line, contour };
constexpr sized all_sized[] = {sized::symbol, sized::line, sized::contour};
bool is_made(const Tzu_stl_prm& style, int index, sized kind);
// Millimetres; what is not made yet is made.
double size_of(Tzu_stl_prm& style, int index, sized kind);
void set_size(Tzu_stl_prm& style, int index, sized kind, double millimetres);

}  // namespace zu::platform
