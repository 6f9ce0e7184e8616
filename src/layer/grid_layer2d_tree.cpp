// The state of a grid layer in the project tree.

#include "src/bundle/strings.h"
#include "src/layer/grid_layer2d.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu {
namespace {

namespace key {
constexpr wchar_t grid_params[] = L"grid_params";
constexpr wchar_t proj4[] = L"proj4";
constexpr wchar_t has_proj[] = L"has_proj";
constexpr wchar_t draw_type[] = L"draw_type";
constexpr wchar_t opacity[] = L"opacity";
constexpr wchar_t interpolate[] = L"interpolate";
constexpr wchar_t slice_index[] = L"slice_index";
constexpr wchar_t slice_axis[] = L"slice_axis";
constexpr wchar_t transp_clr[] = L"transp_clr";
constexpr wchar_t styles[] = L"styles";
constexpr wchar_t channels[] = L"channels";
constexpr wchar_t hillshade[] = L"hillshade";
constexpr wchar_t isoline[] = L"isoline";
}  // namespace key

constexpr char manager_type[] = "clr_mngr_style";

}  // namespace

void grid_layer2d::save(Tzu_xnode* node, void* context) const {
  Tzu_xnode* params = zu_xnode_set_node_w(node, key::grid_params);
  if (params != nullptr) {
    zu_xnode_set_attr_wstr(params, key::proj4, proj4_.c_str());
    zu_xnode_set_attr_bool_w(params, key::has_proj, has_proj_);
    zu_xnode_set_attr_int_w(params, key::draw_type, draw_type_);
    zu_xnode_set_attr_int_w(params, key::opacity, opacity_);
    zu_xnode_set_attr_bool_w(params, key::interpolate, interpolate_);
    zu_xnode_set_attr_int_w(params, key::slice_index, slice_index_);
  }
  zu_xml_data_save_color(context, node, key::transp_clr, transp_clr_);
  zu_xml_save_style_save_mngr_style(context, node, key::styles, manager_type, clr_stl_mngr_.get());
  zu_xml_save_style_save_rgb_channels(context, node, key::channels, rgb_channels_.get());
  zu_xml_save_style_save_hillshade_style(context, node, key::hillshade, hillshade_style_.get());
  zu_xml_save_style_save_isoline_style(context, node, key::isoline, isoline_style_.get());
  if (params != nullptr) zu_xnode_close(params);
}

void grid_layer2d::load(Tzu_xnode* node, void* context) {
  Tzu_xnode* params = zu_xnode_get_node_w(node, key::grid_params);
  if (params != nullptr) {
    if (proj4_.empty())
      proj4_ = text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(params, key::proj4, a); });
    has_proj_ = zu_xnode_get_attr_bool_w(params, key::has_proj, true);
    draw_type_ = static_cast<std::uint32_t>(zu_xnode_get_attr_int_w(params, key::draw_type, 0));
    // As it stands: a value above 100 is cut by the next writer, not here.
    opacity_ = static_cast<std::uint32_t>(zu_xnode_get_attr_int_w(params, key::opacity, 0));
    interpolate_ = zu_xnode_get_attr_bool_w(params, key::interpolate, false);
    slice_index_ = zu_xnode_get_attr_int_w(params, key::slice_index, 0);
  } else {
    load_old(node);
  }
  zu_xml_data_load_color(context, node, key::transp_clr, &transp_clr_);
  zu_xml_save_style_load_mngr_style(context, node, key::styles, manager_type, clr_stl_mngr_.get());
  zu_xml_save_style_load_rgb_channels(context, node, key::channels, rgb_channels_.get());
  zu_xml_save_style_load_hillshade_style(context, node, key::hillshade, hillshade_style_.get());
  zu_xml_save_style_load_isoline_style(context, node, key::isoline, isoline_style_.get());
  if (params != nullptr) zu_xnode_close(params);
}

/// The layout of old trees: values are children of the layer's own node.
void grid_layer2d::load_old(Tzu_xnode* node) {
  if (proj4_.empty())
    proj4_ = text_of([&](Tzu_string_adp* a) { zu_xnode_get_node_wstr(node, key::proj4, a); });
  draw_type_ = static_cast<std::uint32_t>(zu_xnode_get_node_int(node, key::draw_type, 0));
  opacity_ = static_cast<std::uint32_t>(zu_xnode_get_node_int(node, key::opacity, 0));
  interpolate_ = zu_xnode_get_node_int(node, key::interpolate, 0) != 0;
  // Old trees name the index so.
  slice_index_ = zu_xnode_get_node_int(node, key::slice_axis, 0);
}

}  // namespace zu
