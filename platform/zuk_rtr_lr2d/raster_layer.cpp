#include <algorithm>
#include <cmath>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/open_source.h"
#include "platform/zuk_lr2d/own_state.h"
#include "zu/platform/zuk_rtr_lr2d.h"

using namespace zu::platform;

namespace {

class raster_state final : public own_state {
 public:
  void save(Tzu_xnode* node, void* context) const override;
  void load(Tzu_xnode* node, void* context) override;

  int32_t draw_type = zu_rtr_draw_image;
  double opacity = 1.0;
  Tzu_color transparent{0, 0, 0, 255};
  owned<zu_rgb_channels_destroy> channels{zu_rgb_channels_create()};
  owned<zu_ov_d2_destroy> clip{zu_ov_d2_create()};
};

const layer_kind kind("rtr_lr2d", []() -> std::unique_ptr<own_state> {
  return std::make_unique<raster_state>();
});

void raster_state::save(Tzu_xnode*, void*) const {}
void raster_state::load(Tzu_xnode*, void*) {}

raster_state* raster(const Izu_layer* layer) { return state_as<raster_state>(layer); }

}  // namespace

int32_t zu_rtr_lr2d_get_draw_type(const Izu_layer* layer) {
  const raster_state* state = raster(layer);
  return state != nullptr ? state->draw_type : zu_rtr_draw_image;
}
void zu_rtr_lr2d_set_draw_type(Izu_layer* layer, int32_t type) {
  guarded(raster(layer), [&](raster_state& s) { s.draw_type = type; });
}
Tzu_rgb_channels* zu_rtr_lr2d_get_rgb_channels_ptr(const Izu_layer* layer) {
  const raster_state* state = raster(layer);
  return state != nullptr ? state->channels.get() : nullptr;
}
double zu_rtr_lr2d_get_opacity(const Izu_layer* layer) {
  const raster_state* state = raster(layer);
  return state != nullptr ? state->opacity : 1.0;
}
void zu_rtr_lr2d_set_opacity(Izu_layer* layer, double opacity) {
  if (std::isnan(opacity)) return;
  guarded(raster(layer), [&](raster_state& s) { s.opacity = std::clamp(opacity, 0.0, 1.0); });
}
Tzu_color zu_rtr_lr2d_get_transparent_clr(const Izu_layer* layer) {
  const raster_state* state = raster(layer);
  return state != nullptr ? state->transparent : raster_state().transparent;
}
void zu_rtr_lr2d_set_transparent_clr(Izu_layer* layer, Tzu_color color) {
  guarded(raster(layer), [&](raster_state& s) { s.transparent = color; });
}
void zu_rtr_lr2d_get_clip_pgn(const Izu_layer* layer, Tzu_ov_d2* polygon) {
  guarded(raster(layer), [&](const raster_state& s) { zu_ov_d2_assign(polygon, s.clip.get()); });
}
void zu_rtr_lr2d_set_clip_pgn(Izu_layer* layer, const Tzu_ov_d2* polygon) {
  guarded(raster(layer), [&](const raster_state& s) {
    if (polygon != nullptr)
      zu_ov_d2_assign(s.clip.get(), polygon);
    else
      zu_ov_d2_clear(s.clip.get());
  });
}
int64_t zu_rtr_lr2d_search_prop(const Izu_layer* layer, const wchar_t* name) {
  if (name == nullptr || raster(layer) == nullptr) return -1;
  return guarded(layer, int64_t{-1}, [&](const Izu_layer& l) {
    open_source source(text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(&l, a); }));
    int64_t index = -1;
    bool found = zu::call<&zu::data_source_impl::find_field>(source.get(), name, &index);
    return found ? index : -1;
  });
}
