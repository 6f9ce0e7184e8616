#include "platform/zuk_xml_data/parts.h"

#include <string_view>

#include "platform/zuk_styles/parameters.h"
#include "platform/zuk_xml_data/nodes.h"
#include "platform/zuk_xml_data/values.h"

namespace zu::platform {
namespace {

/// The names that a style is written under, the drawn one and that of what is selected.
using keys = const wchar_t* const[2];
constexpr keys color_keys = {L"color", L"selected"};
constexpr keys point_keys = {L"point", L"selected_point"};
constexpr keys line_keys = {L"line", L"selected_line"};
constexpr keys polygon_keys = {L"polygon", L"selected_polygon"};

}  // namespace

manager_kind kind_of(const Tzu_stl_mngr* manager) {
  std::string_view type = zu_stl_mngr_get_style_type(manager);
  if (type == "pnt_mngr_style") return manager_kind::points;
  if (type == "pln_mngr_style") return manager_kind::lines;
  return type == "pgn_mngr_style" ? manager_kind::polygons : manager_kind::colors;
}

void save_line_under(Tzu_xnode* node, const wchar_t* key, const Tzu_pln_style& style) {
  save_line(emptied(node, key).get(), style);
}

void load_line_under(Tzu_xnode* node, const wchar_t* key, Tzu_pln_style& style) {
  if (node_ptr group(zu_xnode_get_node_w(node, key)); group) load_line(group.get(), style);
}

void save_style(Tzu_xnode* node, const Tzu_stl_prm& style, manager_kind kind) {
  style_parameters copy(style);  // of which symbols may be made
  for (int i = 0; i < 2; ++i) {
    save_color(node, color_keys[i], style.colors[i]);
    if (kind == manager_kind::points)
      save_point(emptied(node, point_keys[i]).get(), *zu_stl_prm_get_pnt_style_ptr(&copy, i));
    if (kind == manager_kind::lines)
      save_line_under(node, line_keys[i], *zu_stl_prm_get_pln_style_ptr(&copy, i));
    if (kind == manager_kind::polygons)
      save_polygon(emptied(node, polygon_keys[i]).get(), *zu_stl_prm_get_pgn_style_ptr(&copy, i));
  }
}

void load_style(Tzu_xnode* node, Tzu_stl_prm& style, manager_kind kind) {
  for (int i = 0; i < 2; ++i) {
    load_color(node, color_keys[i], style.colors[i]);
    if (kind == manager_kind::lines)
      load_line_under(node, line_keys[i], *zu_stl_prm_get_pln_style_ptr(&style, i));
    if (node_ptr point(zu_xnode_get_node_w(node, point_keys[i]));
        point && kind == manager_kind::points)
      load_point(point.get(), *zu_stl_prm_get_pnt_style_ptr(&style, i));
    if (node_ptr polygon(zu_xnode_get_node_w(node, polygon_keys[i]));
        polygon && kind == manager_kind::polygons)
      load_polygon(polygon.get(), *zu_stl_prm_get_pgn_style_ptr(&style, i));
  }
}

void save_row(Tzu_xnode* node, const Tzu_scale_prm& row, manager_kind kind) {
  zu_xnode_set_attr_bool_w(node, L"visible", row.visible);
  save_style(node, row.style, kind);
}

void load_row(Tzu_xnode* node, Tzu_scale_prm& row, manager_kind kind) {
  load_flag(node, L"visible", row.visible);
  load_style(node, row.style, kind);
}

}  // namespace zu::platform
