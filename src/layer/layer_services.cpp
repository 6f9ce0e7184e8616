#include "src/layer/layer_services.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

#include "src/layer/grid_layer2d.h"
#include "src/render/draw_grid.h"
#include "zu/platform/zuk_lr2d.h"

namespace zu {
namespace {

template <std::size_t count> bool is_one_of(const char* type, const char* const (&names)[count]) {
  return std::any_of(std::begin(names), std::end(names),
                     [&](const char* name) { return std::strcmp(type, name) == 0; });
}

}  // namespace

bool is_shp_layer(const char* type) {
  return is_one_of(type, {"shp_pnt_lr2d", "shp_pln_lr2d", "shp_pgn_lr2d"});
}

bool is_shp_z_subtype(const wchar_t* subtype) {
  static constexpr const wchar_t* names[] = {L"shp_pntz_sub_lr2d", L"shp_plnz_sub_lr2d",
                                             L"shp_pgnz_sub_lr2d"};
  return std::any_of(std::begin(names), std::end(names),
                     [&](const wchar_t* name) { return std::wcscmp(subtype, name) == 0; });
}

bool is_vector_layer(const char* type) {
  return is_one_of(type, {"vector_point_lr2d", "vector_multipoint_lr2d", "vector_polyline_lr2d",
                          "vector_polygon_lr2d", "vector_lr2d"});
}

void render_grid_layer(Izu_render* render, Izu_layer* layer, bool selection) {
  if (!is_grid_layer(layer)) return;
  grid_layer2d* object = grid_layer_of_entity(layer);
  if (object == nullptr || object->layer == nullptr || selection) return;

  grid_render_params params;
  params.stl_mngr = object->get_style_manager();
  params.rgb_channels = object->rgb_channels();
  params.hillshade_style = object->get_hillshade_style();
  params.isoline_style = object->get_isoline_style();
  params.draw_type = object->draw_type();
  params.interpolate = object->interpolate();
  // Kept in the unsigned arithmetic of the setting: 0 gives 255, 1 gives 252, 100 gives 0.
  params.alpha = (25500u - object->opacity() * 255u) / 100u;
  params.own_selected_style = zu_lr_get_own_selected_style_flag(layer);
  params.layer_word = static_cast<std::uint64_t>(object->slice_axis());
  if (Tzu_scn_2d* scene = zu_lr_get_scene(layer)) {
    params.selected_color = zu_scn_2d_get_selected_style_clr(scene);
    params.selected_color.is_set = 1;
  }
  // The layer's clip polygon, transparent colour and slice are settings that the drawing of a grid
  // layer does not take: they are kept, copied and saved only.
  draw_layer(render, layer, object->get_table_data(), params, false);
}

}  // namespace zu
