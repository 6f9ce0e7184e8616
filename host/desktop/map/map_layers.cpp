#include "host/desktop/map/map_layers.h"

#include "host/core/entity_drawing.h"
#include "host/core/texts.h"

namespace zu::desktop {

void host_layers::draw(std::size_t index, Izu_render* render) const {
  const host::layer& drawn = *shown_.layers()[index];
  if (!drawn.is_visible() || drawn.is_missing()) return;
  // What is said of the source afterwards is of this picture.
  zu_problems_clear(host::wide(drawn.source_name()).c_str());
  drawn.draw(render);
}

std::size_t viewer_layers::count() const {
  return zu_scn_2d_get_layer_count(zu_viewer2d_get_scn_2d(viewer_));
}

void viewer_layers::draw(std::size_t index, Izu_render* render) const {
  Izu_layer* entity = zu_scn_2d_get_layer(zu_viewer2d_get_scn_2d(viewer_), index);
  if (services_ != nullptr && zu_lr2d_is_visible(entity))
    host::draw_entity(*services_, render, entity);
}

}  // namespace zu::desktop
