#include "host/core/entity_drawing.h"

#include <string>

namespace zu::host {

void draw_entity(const bundle& services, Izu_render* render, Izu_layer* entity) {
  std::string type = zu_lr2d_get_lr_type(entity);
  // The one type that the platform draws itself.
  if (type == "tos_2crd_lr2d") return zu_tos_2crd_lr2d_draw(render, entity);
  call<&layer_2d_renderer_extension_service_impl::render>(services.renderer(type), render, entity);
}

}  // namespace zu::host
