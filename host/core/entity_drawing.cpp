#include "host/core/entity_drawing.h"

#include <string>

namespace zu::host {

void draw_entity(const bundle& services, Izu_render* render, Izu_layer* entity) {
  std::string type = zu_lr2d_get_lr_type(entity);
  // Types that the platform draws itself.
  if (type == "tos_2crd_lr2d") return zu_tos_2crd_lr2d_draw(render, entity);
  if (zu_plot_lr2d_draw(render, entity)) return;
  call<&layer_2d_renderer_extension_service_impl::render>(services.renderer(type), render, entity);
}

}  // namespace zu::host
