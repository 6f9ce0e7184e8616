#include "src/layer/editors/layer_style.h"

namespace zu::element {

void point_layer_style::set_layer(Izu_layer* layer) {
  if (layer == layer_) return;
  layer_ = layer;
  styles_.set(source_of(layer), zu_tos_2crd_lr2d_get_clr_stl_mngr_ptr(layer));
}

void line_layer_style::set_layer(Izu_layer* layer) {
  if (layer == layer_) return;
  layer_ = layer;
  data::open_reference bands = source_of(layer);
  if (layer != nullptr) {
    bands.argument = &bands_.emplace(bands.name);
    bands.opener = &line_layer_style::open;
  }
  styles_.set(bands, zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(layer));
}

// What is opened is a member: its release ends nothing.
void line_layer_style::open(const wchar_t*, std::int32_t, void* bands, handle* out) {
  *out = handle_of<data_source_impl>(*static_cast<tos4_grid1d_style_ds*>(bands));
}

}  // namespace zu::element
