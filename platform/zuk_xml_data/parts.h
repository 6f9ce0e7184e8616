#pragma once
// The parts that groups of styles share: parameters and rows.

#include "platform/zuk_xml_data/symbols.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_styles.h"

namespace zu::platform {

/// What a manager styles, by its type.
enum class manager_kind { colors, points, lines, polygons };
manager_kind kind_of(const Tzu_stl_mngr* manager);

/// A line as a child of its own, with what it had before taken away; and from there over `style`.
void save_line_under(Tzu_xnode* node, const wchar_t* key, const Tzu_pln_style& style);
void load_line_under(Tzu_xnode* node, const wchar_t* key, Tzu_pln_style& style);

/// Both colours, and both styles of the manager's kind.
void save_style(Tzu_xnode* node, const Tzu_stl_prm& style, manager_kind kind);
void load_style(Tzu_xnode* node, Tzu_stl_prm& style, manager_kind kind);

/// A row: its style and whether it is visible.
void save_row(Tzu_xnode* node, const Tzu_scale_prm& row, manager_kind kind);
void load_row(Tzu_xnode* node, Tzu_scale_prm& row, manager_kind kind);

}  // namespace zu::platform
