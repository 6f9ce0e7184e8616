#pragma once
// Where the number of a line stands on it.

#include <vector>

#include "platform/zuk_drwc/cut_line.h"
#include "zu/platform/zuk_prg.h"

namespace zu::platform {

/// Sizes in the unit of the lines' coordinates, y downwards.
struct label_request {
  double width, height;  ///< of the text
  double spacing;        ///< one text for so much of a line
  Tzu_box_d2 page;       ///< no text leaves it
};

struct line_label {
  Tzu_vtx_d2 middle;
  double angle;     ///< of the reading direction, from -pi/2 (upwards) to below pi/2
  double from, to;  ///< the part of the line under the text, as lengths from the line's beginning
};

/// Places on a line of at least three widths: the first straight place from the middle of each
/// `spacing` outwards, else the straightest. Each stays clear of the `taken` boxes, and its own is
/// added to them.
std::vector<line_label> place_labels(const std::vector<Tzu_vtx_d2>& line,
                                     const label_request& request, std::vector<Tzu_box_d2>& taken);

/// What is left of a piece without the parts under its labels.
std::vector<line_piece> without_labels(const line_piece& piece,
                                       const std::vector<line_label>& labels);

}  // namespace zu::platform
