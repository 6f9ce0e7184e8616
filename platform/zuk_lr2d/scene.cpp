#include "platform/zuk_lr2d/scene.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "platform/zuk_basic/guarded.h"

using zu::platform::guarded;

namespace {

bool is_finite(const Tzu_box_d2& b) {
  return std::isfinite(b.x0) && std::isfinite(b.y0) && std::isfinite(b.x1) && std::isfinite(b.y1);
}
Tzu_box_d2 both(const Tzu_box_d2& a, const Tzu_box_d2& b) {
  return {std::min(a.x0, b.x0), std::min(a.y0, b.y0), std::max(a.x1, b.x1), std::max(a.y1, b.y1)};
}

}  // namespace

Tzu_scn_2d* zu_scn_2d_create() { return new (std::nothrow) Tzu_scn_2d; }

void zu_scn_2d_destroy(Tzu_scn_2d* scene) {
  if (scene != nullptr)
    for (Izu_layer* layer : scene->layers) layer->scene = nullptr;
  delete scene;
}

void zu_scn_2d_add_layer(Tzu_scn_2d* scene, Izu_layer* layer) {
  if (layer == nullptr) return;
  guarded(scene, [&](Tzu_scn_2d& s) {
    zu_scn_2d_remove_layer(layer->scene, layer);
    s.layers.push_back(layer);
    layer->scene = &s;
    s.box_is_known = false;
    s.channel.post(zu_update_layers);
  });
}

void zu_scn_2d_remove_layer(Tzu_scn_2d* scene, Izu_layer* layer) {
  if (layer == nullptr) return;
  guarded(scene, [&](Tzu_scn_2d& s) {
    auto entry = std::find(s.layers.begin(), s.layers.end(), layer);
    if (entry == s.layers.end()) return;
    s.layers.erase(entry);
    layer->scene = nullptr;
    s.box_is_known = false;
    if (s.active == layer) s.active = nullptr;
    s.channel.post(zu_update_layers);
  });
}

uint64_t zu_scn_2d_get_layer_count(const Tzu_scn_2d* scene) {
  return scene != nullptr ? scene->layers.size() : 0;
}
Izu_layer* zu_scn_2d_get_layer(const Tzu_scn_2d* scene, uint64_t index) {
  return index < zu_scn_2d_get_layer_count(scene) ? scene->layers[index] : nullptr;
}
Tzu_event_channel* zu_scn_get_update_event_channel(Tzu_scn_2d* scene) {
  return scene != nullptr ? &scene->channel : nullptr;
}
Izu_layer* zu_scn_2d_get_active_layer(const Tzu_scn_2d* scene) {
  return scene != nullptr ? scene->active : nullptr;
}
void zu_scn_2d_set_active_layer(Tzu_scn_2d* scene, Izu_layer* layer) {
  if (layer != nullptr && layer->scene != scene) return;
  guarded(scene, [&](Tzu_scn_2d& s) {
    if (s.active == layer) return;
    s.active = layer;
    s.channel.post(zu_update_active_layer);
  });
}
void zu_scn_2d_calc_box(Tzu_scn_2d* scene) {
  guarded(scene, [](Tzu_scn_2d& s) {
    s.box.reset();
    for (const Izu_layer* layer : s.layers) {
      if (!layer->visible || !layer->box || !is_finite(*layer->box)) continue;
      s.box = s.box ? both(*s.box, *layer->box) : *layer->box;
    }
    s.box_is_known = true;
  });
}
bool zu_scn_2d_get_clipped_box(Tzu_scn_2d* scene, Tzu_box_d2* box) {
  if (box == nullptr) return false;
  return guarded(scene, false, [&](Tzu_scn_2d& s) {
    if (!s.box_is_known) zu_scn_2d_calc_box(&s);
    if (s.box) *box = *s.box;
    return s.box.has_value();
  });
}
void zu_scn_2d_set_pj4wstr(Tzu_scn_2d* scene, const wchar_t* projection) {
  guarded(scene, [&](Tzu_scn_2d& s) {
    s.projection = projection != nullptr ? projection : L"";
    s.channel.post(zu_update_projection);
  });
}
void zu_scn_2d_get_pj4wstr(const Tzu_scn_2d* scene, Tzu_string_adp* adapter) {
  guarded(scene, [&](const Tzu_scn_2d& s) { zu_string_adp_feed(adapter, s.projection.c_str()); });
}
Tzu_optional_color zu_scn_2d_get_selected_style_clr(const Tzu_scn_2d* scene) {
  return scene != nullptr ? scene->selected : Tzu_optional_color{};
}
void zu_scn_2d_set_selected_style_clr(Tzu_scn_2d* scene, Tzu_optional_color color) {
  guarded(scene, [&](Tzu_scn_2d& s) { s.selected = color; });
}
const Tzu_pln_style* zu_scn_2d_get_selected_style_pln(const Tzu_scn_2d* scene) {
  return scene != nullptr && scene->selected_line ? &*scene->selected_line : nullptr;
}
void zu_scn_2d_set_selected_style_pln(Tzu_scn_2d* scene, const Tzu_pln_style* style) {
  guarded(scene, [&](Tzu_scn_2d& s) {
    s.selected_line.reset();
    if (style != nullptr) s.selected_line = *style;
  });
}
