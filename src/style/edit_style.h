#pragma once
// Has a person edit a style in place, in the dialog of its kind. False, and the style as it was, if
// they did not accept, if there is no host to ask, and for null.

#include "zu/platform/zuk_symbols.h"

namespace zu::style {

bool edit_color(Tzu_color* color);
bool edit_point_style(Tzu_pnt_style* style);
bool edit_line_style(Tzu_pln_style* style);
bool edit_polygon_style(Tzu_pgn_style* style);

}  // namespace zu::style
