#pragma once
// Symbols, lines and polygons as nodes. A part that a new style has as well is left out, where
// there may be many: marks of lines, vertices of polygons, layers.

#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_io.h"

namespace zu::platform {

// Into an empty node, and from a node over a new style.
void save_point(Tzu_xnode* node, const Tzu_pnt_style& style);
void load_point(Tzu_xnode* node, Tzu_pnt_style& style);
void save_line(Tzu_xnode* node, const Tzu_pln_style& style);
void load_line(Tzu_xnode* node, Tzu_pln_style& style);
void save_polygon(Tzu_xnode* node, const Tzu_pgn_style& style);
void load_polygon(Tzu_xnode* node, Tzu_pgn_style& style);

}  // namespace zu::platform
