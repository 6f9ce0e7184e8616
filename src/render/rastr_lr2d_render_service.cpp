#include "src/render/rastr_lr2d_render_service.h"

#include <cstring>

#include "src/bundle/encoding.h"
#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/render/draw_grid.h"
#include "zu/platform/zuk_rtr_lr2d.h"

namespace zu {
namespace {

constexpr char type_name[] = "rtr_lr2d";

std::int64_t field_of(Izu_layer* layer, const Tzu_clr_channel* channel) {
  std::wstring name =
      text_of([&](Tzu_string_adp* a) { zu_clr_channel_get_prop_name_w(channel, a); });
  return zu_rtr_lr2d_search_prop(layer, name.c_str());
}

void take_draw_type(Izu_layer* layer, grid_render_params& params) {
  Tzu_rgb_channels* channels = zu_rtr_lr2d_get_rgb_channels_ptr(layer);
  switch (zu_rtr_lr2d_get_draw_type(layer)) {
    case zu_rtr_draw_rgb:
      params.draw_type = grid_draw_rgb;
      params.rgb_channels = channels;
      params.red_field = field_of(layer, zu_rgb_channels_get_red(channels));
      params.green_field = field_of(layer, zu_rgb_channels_get_green(channels));
      params.blue_field = field_of(layer, zu_rgb_channels_get_blue(channels));
      break;
    case zu_rtr_draw_gray:
      params.draw_type = grid_draw_gray;
      params.rgb_channels = channels;
      params.gray_field = field_of(layer, zu_rgb_channels_get_gray(channels));
      break;
    default:
      params.draw_type = grid_draw_image;
  }
}

}  // namespace

void rastr_lr2d_render_service::get_type(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, wide_from(type_name, 0).c_str());
}

void rastr_lr2d_render_service::render(Izu_render* render, Izu_layer* layer) {
  if (std::strcmp(zu_lr2d_get_lr_type(layer), type_name) != 0) return;
  grid_render_params params;
  take_draw_type(layer, params);
  params.alpha = static_cast<std::uint32_t>(zu_rtr_lr2d_get_opacity(layer) * 255.0);
  params.transparent_color = {zu_rtr_lr2d_get_transparent_clr(layer), 1};
  owned<zu_ov_d2_destroy> clip(zu_ov_d2_create());
  zu_rtr_lr2d_get_clip_pgn(layer, clip.get());
  params.clip_polygon = clip.get();
  draw_layer(render, layer, zu_lr2d_get_data_ptr(layer), params, false);
}

void rastr_lr2d_render_service::render_selection(Izu_render* render_, Izu_layer* layer) {
  render(render_, layer);
}

}  // namespace zu
