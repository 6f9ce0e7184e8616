// How a grid layer asks to be drawn.

#include "src/layer/grid_layer2d.h"
#include "src/render/draw_grid.h"
#include "zu/platform/zuk_lr2d.h"

namespace zu {

void grid_layer2d::render(Izu_render* render, Izu_layer* entity, bool selection) {
  if (!is_grid_layer(entity)) return;
  grid_layer2d* object = grid_layer_of_entity(entity);
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
  params.own_selected_style = zu_lr_get_own_selected_style_flag(entity);
  params.layer_word = static_cast<std::uint64_t>(object->slice_axis());
  if (Tzu_scn_2d* scene = zu_lr_get_scene(entity)) {
    params.selected_color = zu_scn_2d_get_selected_style_clr(scene);
    params.selected_color.is_set = 1;
  }
  // The layer's clip polygon, transparent colour and slice are settings that the drawing of a grid
  // layer does not take: they are kept, copied and saved only.
  draw_layer(render, entity, object->get_table_data(), params, false);
}

}  // namespace zu
