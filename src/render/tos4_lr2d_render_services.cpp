#include "src/render/tos4_lr2d_render_services.h"

#include <cstring>

#include "src/bundle/encoding.h"
#include "src/render/draw_grid.h"
#include "src/render/profile_drawing.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu {
namespace {

grid_draw_type draw_type_of(Izu_layer* layer) {
  switch (zu_tos_grid_lr2d_get_draw_type(layer)) {
    case zu_tos_draw_rgb:
      return grid_draw_rgb;
    case zu_tos_draw_gray:
      return grid_draw_gray;
    case zu_tos_draw_image:
      return grid_draw_image;
    default:
      return grid_draw_scale;
  }
}

grid_render_params params_of(Izu_layer* layer) {
  grid_render_params params;
  params.stl_mngr = zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(layer);
  params.rgb_channels = zu_tos_grid_lr2d_get_rgb_channels_ptr(layer);
  params.interpolate = zu_tos_grid_lr2d_get_interpolate(layer);
  params.hillshade_style = zu_tos_grid_lr2d_get_hillshade_style(layer);
  params.isoline_style = zu_tos_grid_lr2d_get_isoline_style(layer);
  params.draw_type = draw_type_of(layer);
  params.alpha = static_cast<std::uint32_t>(zu_tos_grid_lr2d_get_opacity(layer) * 255.0);
  params.own_selected_style = zu_lr_get_own_selected_style_flag(layer);
  if (const Tzu_scn_2d* scene = zu_lr2d_get_scn_2d(layer))
    params.selected_color = {zu_scn_2d_get_selected_style_clr(scene).color, 1};
  return params;
}

}  // namespace

tos4_grid_lr2d_render_service::tos4_grid_lr2d_render_service(const char* type, handle owner)
    : referent(owner), type_(type) {}

void tos4_grid_lr2d_render_service::get_type(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, wide_from(type_, 0).c_str());
}

void tos4_grid_lr2d_render_service::render(Izu_render* render, Izu_layer* layer) {
  if (std::strcmp(zu_lr2d_get_lr_type(layer), type_) == 0) draw(render, layer, false);
}

void tos4_grid_lr2d_render_service::render_selection(Izu_render* render, Izu_layer* layer) {
  if (std::strcmp(zu_lr2d_get_lr_type(layer), type_) == 0) draw(render, layer, true);
}

tos4_grid2d_lr2d_render_service::tos4_grid2d_lr2d_render_service(handle owner)
    : tos4_grid_lr2d_render_service("tos_grid_lr2d", owner) {}

void tos4_grid2d_lr2d_render_service::draw(Izu_render* render, Izu_layer* layer,
                                           bool selection_only) {
  draw_layer(render, layer, zu_lr2d_get_data_ptr(layer), params_of(layer), selection_only);
}

tos4_grid3d_lr2d_render_service::tos4_grid3d_lr2d_render_service(handle owner)
    : tos4_grid_lr2d_render_service("tos_slice_lr2d", owner) {}

void tos4_grid3d_lr2d_render_service::draw(Izu_render* render, Izu_layer* layer,
                                           bool selection_only) {
  grid_render_params params = params_of(layer);
  params.slice_index = static_cast<std::int32_t>(zu_tos_slice_lr2d_get_zslice(layer));
  draw_layer(render, layer, zu_lr2d_get_data_ptr(layer), params, selection_only);
}

tos4_grid1d_lr2d_render_service::tos4_grid1d_lr2d_render_service(handle owner)
    : tos4_grid_lr2d_render_service("tos_grid_lr1d", owner) {}

void tos4_grid1d_lr2d_render_service::draw(Izu_render* render, Izu_layer* layer,
                                           bool /*selection_only*/) {
  profile_drawing(render, layer).draw();
}

}  // namespace zu
