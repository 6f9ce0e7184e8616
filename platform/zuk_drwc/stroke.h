#pragma once
// Polylines as strokes of Cairo.

#include <vector>

#include "platform/zuk_drwc/cairo_owned.h"
#include "platform/zuk_drwc/cut_line.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::platform {

/// Lines and the pen that draws them, in pixels of a page, y downwards.
struct strokes {
  std::vector<line_piece> parts;
  double width;
  std::vector<double> dashes;  ///< none: solid lines
  int cap, join;
  Tzu_color color;
  bool thinned;  ///< vertices a fraction of a pixel apart are not wanted

  /// The pen of a style's plain fields, without lines; not wider than `most`.
  strokes(const Tzu_bpln_style& style, double per_mm, double most, bool thinned);
  /// Whether the pen leaves no trace.
  bool are_invisible() const { return !(width > 0) || color.a == 255; }
  /// How far outside of what shows a line may be cut, so that neither caps nor corners of what was
  /// cut off are missed.
  double margin() const;
};

/// Strokes the lines. Solid lines of a transparent colour are one stroke, so that it shows once
/// where they cross.
void stroke(cairo_t* cairo, const strokes& lines);
/// The same with other lines than its own.
void stroke(cairo_t* cairo, const strokes& pen, const std::vector<line_piece>& parts);

}  // namespace zu::platform
