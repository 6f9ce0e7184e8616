#include "host/desktop/map/map_layers.h"

#include <algorithm>

#include "host/core/entity_drawing.h"
#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::desktop {

void host_layers::draw(std::size_t index, Izu_render* render) const {
  const host::layer& drawn = *shown_.layers()[index];
  if (!drawn.is_visible() || drawn.is_missing()) return;
  // What is said of the source afterwards is of this picture.
  zu_problems_clear(host::wide(drawn.source_name()).c_str());
  drawn.draw(render);
}

std::optional<Tzu_box_d2> host_layers::box() const {
  try {
    return shown_.box();
  } catch (const host::failure&) {  // an empty scene has none, and the layer list says the rest
    return {};
  }
}

std::size_t viewer_layers::count() const {
  return zu_scn_2d_get_layer_count(zu_viewer2d_get_scn_2d(viewer_));
}

void viewer_layers::draw(std::size_t index, Izu_render* render) const {
  Izu_layer* entity = zu_scn_2d_get_layer(zu_viewer2d_get_scn_2d(viewer_), index);
  if (services_ != nullptr) host::draw_entity(*services_, render, entity);
}

std::optional<Tzu_box_d2> viewer_layers::box() const {
  std::optional<Tzu_box_d2> all;
  for (std::size_t i = 0; i < count(); ++i) {
    Tzu_box_d2 own;
    if (!zu_lr2d_get_box(zu_scn_2d_get_layer(zu_viewer2d_get_scn_2d(viewer_), i), &own)) continue;
    if (!all) all = own;
    all = Tzu_box_d2{std::min(all->x0, own.x0), std::min(all->y0, own.y0),
                     std::max(all->x1, own.x1), std::max(all->y1, own.y1)};
  }
  return all;
}

}  // namespace zu::desktop
