#pragma once
// The parts that groups of styles share: colours, lines, parameters and rows.
//
// A colour is four numbers, "red green blue transparency", each 0 to 255.

#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_styles.h"

namespace zu::platform {

/// Writes a line style under `key`. What is read over `line` is checked: a width or dash that is no
/// length, and a cap or join that is none, leaves the line's own.
void save_line(Tzu_xnode* node, const wchar_t* key, const Tzu_pln_style& line);
void load_line(Tzu_xnode* node, const wchar_t* key, Tzu_pln_style& line);

/// Both colours, and with `lines` both line styles.
void save_style(Tzu_xnode* node, const Tzu_stl_prm& style, bool lines);
void load_style(Tzu_xnode* node, Tzu_stl_prm& style, bool lines);

/// A row: its style and whether it is visible.
void save_row(Tzu_xnode* node, const Tzu_scale_prm& row, bool lines);
void load_row(Tzu_xnode* node, Tzu_scale_prm& row, bool lines);

}  // namespace zu::platform
