#pragma once
// The legend of a scene: what the colours of its layers mean, drawn on a page.

#include <string>
#include <vector>

#include "host/core/picture.h"

namespace zu::host {

/// One colour and what it stands for. A row of a bar has its text at its upper edge.
struct legend_row {
  Tzu_color color;
  std::wstring text;
};

/// The legend of one layer: rows from the top, or a bar whose colours run into each other.
struct legend_part {
  std::wstring title;
  std::vector<legend_row> rows;
  bool bar = false;
};

/// What there is to explain of one layer; without rows if nothing.
legend_part legend_of(const layer& shown);
/// Parts of all layers that have something to explain, the uppermost layer first.
std::vector<legend_part> legend_of(const scene& shown);

enum class corner { top_left, top_right, bottom_left, bottom_right };

struct legend_size {
  double width, height;  ///< millimetres
};
legend_size size_of(const std::vector<legend_part>& parts, Tzu_drwc* page);

/// Draws the legend on a ground of its own, in a corner of the page. One that is larger than the
/// page is cut.
void draw_legend(const std::vector<legend_part>& parts, Tzu_drwc* page, corner where);

/// A page with nothing but the legend, of the size asked for or else of the legend's own. Throws
/// `failure` if there is nothing to explain.
drawn_picture draw_legend_alone(const scene& shown, const picture_request& request);

}  // namespace zu::host
