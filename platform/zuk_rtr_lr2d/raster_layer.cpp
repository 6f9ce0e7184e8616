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

namespace key {
constexpr wchar_t params[] = L"raster_params";
constexpr wchar_t draw_type[] = L"draw_type";
constexpr wchar_t opacity[] = L"opacity";
constexpr wchar_t transp_clr[] = L"transp_clr";
constexpr wchar_t channels[] = L"channels";
constexpr wchar_t clip[] = L"clip";
constexpr wchar_t ring[] = L"ring";
constexpr wchar_t vertex[] = L"vertex";
constexpr wchar_t x[] = L"x";
constexpr wchar_t y[] = L"y";
}  // namespace key

void save_clip(Tzu_xnode* node, Tzu_ov_d2* polygon) {
  node_ptr clip(zu_xnode_set_node_w(node, key::clip));
  zu_xnode_clear(clip.get());
  for (uint64_t i = 0; i < zu_ov_d2_get_size(polygon); ++i) {
    node_ptr ring(zu_xnode_add_node_w(clip.get(), key::ring));
    Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(polygon, i);
    for (uint64_t v = 0; v < zu_pv_d2_get_size(list); ++v) {
      node_ptr vertex(zu_xnode_add_node_w(ring.get(), key::vertex));
      zu_xnode_set_attr_dbl_w(vertex.get(), key::x, zu_pv_d2_get_arr(list)[v].x);
      zu_xnode_set_attr_dbl_w(vertex.get(), key::y, zu_pv_d2_get_arr(list)[v].y);
    }
  }
}

void load_clip(Tzu_xnode* node, Tzu_ov_d2* polygon) {
  node_ptr clip(zu_xnode_get_node_w(node, key::clip));
  if (clip == nullptr) return;
  zu_ov_d2_clear(polygon);
  node_ptr ring(zu_xnode_get_node_w(clip.get(), key::ring));
  for (; ring != nullptr; ring.reset(zu_xnode_next_node_w(ring.get()))) {
    Tzu_pv_d2* list = zu_ov_d2_add(polygon);
    node_ptr vertex(zu_xnode_get_node_w(ring.get(), key::vertex));
    for (; vertex != nullptr; vertex.reset(zu_xnode_next_node_w(vertex.get()))) {
      Tzu_vtx_d2 at{zu_xnode_get_attr_dbl_w(vertex.get(), key::x, NAN),
                    zu_xnode_get_attr_dbl_w(vertex.get(), key::y, NAN)};
      if (std::isfinite(at.x) && std::isfinite(at.y)) zu_pv_d2_add_vtx(list, &at);
    }
  }
}

void raster_state::save(Tzu_xnode* node, void* context) const {
  node_ptr params(zu_xnode_set_node_w(node, key::params));
  save_projection(params.get(), *this);
  zu_xnode_set_attr_int_w(params.get(), key::draw_type, draw_type);
  zu_xnode_set_attr_dbl_w(params.get(), key::opacity, opacity);
  zu_xml_data_save_color(context, node, key::transp_clr, transparent);
  zu_xml_save_style_save_rgb_channels(context, node, key::channels, channels.get());
  save_clip(node, clip.get());
}

void raster_state::load(Tzu_xnode* node, void* context) {
  node_ptr params(zu_xnode_get_node_w(node, key::params));
  load_projection(params.get(), *this);
  draw_type =
      static_cast<int32_t>(zu_xnode_get_attr_int_w(params.get(), key::draw_type, draw_type));
  set_opacity(opacity, zu_xnode_get_attr_dbl_w(params.get(), key::opacity, opacity));
  zu_xml_data_load_color(context, node, key::transp_clr, &transparent);
  zu_xml_save_style_load_rgb_channels(context, node, key::channels, channels.get());
  load_clip(node, clip.get());
}

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
  guarded(raster(layer), [&](raster_state& s) { set_opacity(s.opacity, opacity); });
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
