// Uniform grids and slices of volumes.

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_lr2d/own_state.h"
#include "zu/platform/zuk_tos_lr2d.h"

using namespace zu::platform;

namespace {

class grid_state : public own_state {
 public:
  Tzu_stl_mngr* style_manager() override { return manager.get(); }
  Tzu_hillshade_style* hillshade_style() override { return hillshade.get(); }
  Tzu_isoline_style* isoline_style() override { return isolines.get(); }
  void save(Tzu_xnode* node, void* context) const override;
  void load(Tzu_xnode* node, void* context) override;

  int32_t draw_type = zu_tos_draw_scale;
  double opacity = 1.0;
  bool interpolate = false;
  owned<zu_stl_mngr_destroy> manager{zu_clr_stl_mngr_create()};
  owned<zu_rgb_channels_destroy> channels{zu_rgb_channels_create()};
  owned<zu_hillshade_style_destroy> hillshade{zu_hillshade_style_create()};
  owned<zu_isoline_style_destroy> isolines{zu_isoline_style_create()};
};

class slice_state final : public grid_state {
 public:
  void save(Tzu_xnode* node, void* context) const override;
  void load(Tzu_xnode* node, void* context) override;
  int64_t slice = 0;
};

template <class state> std::unique_ptr<own_state> made() { return std::make_unique<state>(); }
const layer_kind grid_kind("tos_grid_lr2d", &made<grid_state>);
const layer_kind slice_kind("tos_slice_lr2d", &made<slice_state>);

namespace key {
constexpr wchar_t params[] = L"grid_params";
constexpr wchar_t draw_type[] = L"draw_type";
constexpr wchar_t opacity[] = L"opacity";
constexpr wchar_t interpolate[] = L"interpolate";
constexpr wchar_t slice[] = L"slice_index";
constexpr wchar_t styles[] = L"styles";
constexpr wchar_t channels[] = L"channels";
constexpr wchar_t hillshade[] = L"hillshade";
constexpr wchar_t isoline[] = L"isoline";
}  // namespace key

void grid_state::save(Tzu_xnode* node, void* context) const {
  node_ptr params(zu_xnode_set_node_w(node, key::params));
  save_projection(params.get(), *this);
  zu_xnode_set_attr_int_w(params.get(), key::draw_type, draw_type);
  zu_xnode_set_attr_dbl_w(params.get(), key::opacity, opacity);
  zu_xnode_set_attr_bool_w(params.get(), key::interpolate, interpolate);
  zu_xml_save_style_save_mngr_style(context, node, key::styles,
                                    zu_stl_mngr_get_style_type(manager.get()), manager.get());
  zu_xml_save_style_save_rgb_channels(context, node, key::channels, channels.get());
  zu_xml_save_style_save_hillshade_style(context, node, key::hillshade, hillshade.get());
  zu_xml_save_style_save_isoline_style(context, node, key::isoline, isolines.get());
}

void grid_state::load(Tzu_xnode* node, void* context) {
  node_ptr params(zu_xnode_get_node_w(node, key::params));
  load_projection(params.get(), *this);
  draw_type =
      static_cast<int32_t>(zu_xnode_get_attr_int_w(params.get(), key::draw_type, draw_type));
  set_opacity(opacity, zu_xnode_get_attr_dbl_w(params.get(), key::opacity, opacity));
  interpolate = zu_xnode_get_attr_bool_w(params.get(), key::interpolate, interpolate);
  zu_xml_save_style_load_mngr_style(context, node, key::styles,
                                    zu_stl_mngr_get_style_type(manager.get()), manager.get());
  zu_xml_save_style_load_rgb_channels(context, node, key::channels, channels.get());
  zu_xml_save_style_load_hillshade_style(context, node, key::hillshade, hillshade.get());
  zu_xml_save_style_load_isoline_style(context, node, key::isoline, isolines.get());
}

void slice_state::save(Tzu_xnode* node, void* context) const {
  grid_state::save(node, context);
  node_ptr params(zu_xnode_set_node_w(node, key::params));
  zu_xnode_set_attr_int_w(params.get(), key::slice, slice);
}

void slice_state::load(Tzu_xnode* node, void* context) {
  grid_state::load(node, context);
  node_ptr params(zu_xnode_get_node_w(node, key::params));
  slice = zu_xnode_get_attr_int_w(params.get(), key::slice, slice);
}

grid_state* grid(const Izu_layer* layer) { return state_as<grid_state>(layer); }
slice_state* slices(const Izu_layer* layer) { return state_as<slice_state>(layer); }

}  // namespace

Tzu_stl_mngr* zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->manager.get() : nullptr;
}
Tzu_rgb_channels* zu_tos_grid_lr2d_get_rgb_channels_ptr(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->channels.get() : nullptr;
}
Tzu_hillshade_style* zu_tos_grid_lr2d_get_hillshade_style(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->hillshade.get() : nullptr;
}
Tzu_isoline_style* zu_tos_grid_lr2d_get_isoline_style(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->isolines.get() : nullptr;
}
bool zu_tos_grid_lr2d_get_interpolate(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr && state->interpolate;
}
void zu_tos_grid_lr2d_set_interpolate(Izu_layer* layer, bool interpolate) {
  guarded(grid(layer), [&](grid_state& s) { s.interpolate = interpolate; });
}
int32_t zu_tos_grid_lr2d_get_draw_type(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->draw_type : zu_tos_draw_scale;
}
void zu_tos_grid_lr2d_set_draw_type(Izu_layer* layer, int32_t type) {
  guarded(grid(layer), [&](grid_state& s) { s.draw_type = type; });
}
double zu_tos_grid_lr2d_get_opacity(const Izu_layer* layer) {
  const grid_state* state = grid(layer);
  return state != nullptr ? state->opacity : 1.0;
}
void zu_tos_grid_lr2d_set_opacity(Izu_layer* layer, double opacity) {
  guarded(grid(layer), [&](grid_state& s) { set_opacity(s.opacity, opacity); });
}
int64_t zu_tos_slice_lr2d_get_zslice(const Izu_layer* layer) {
  const slice_state* state = slices(layer);
  return state != nullptr ? state->slice : 0;
}
void zu_tos_slice_lr2d_set_zslice(Izu_layer* layer, int64_t slice) {
  guarded(slices(layer), [&](slice_state& s) { s.slice = slice; });
}
