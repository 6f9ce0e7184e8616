#include "src/layer/grid_layer2d.h"

#include <cstring>

#include "src/bundle/strings.h"
#include "src/layer/layer_object.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_os.h"

namespace zu {

grid_layer2d::grid_layer2d()
    : ov_d2_(zu_ov_d2_create()),
      rgb_channels_(zu_rgb_channels_create()),
      isoline_style_(zu_isoline_style_create()),
      hillshade_style_(zu_hillshade_style_create()),
      clr_stl_mngr_(zu_clr_stl_mngr_create()) {}

void grid_layer2d::bind_entity(Izu_layer* entity) {
  layer = entity;
  if (entity == nullptr) return;
  // A table of an earlier bind is not ended: the entity of that bind may still show it.
  static_cast<void>(table_data_.release());
  table_data_.reset(zu_table_data_create());
  zu_plugin_lr2d_bind_entity(entity, zu_table_data_safe_upcast(table_data_.get()));
}

void grid_layer2d::update_validity() {
  std::wstring file = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wfilename(layer, a); });
  bool in_memory = !file.empty() && file.front() == L'*';
  zu_lr2d_set_valid(layer, !in_memory && !zu_os_file_exists(file.c_str()));
}

void grid_layer2d::copy_from(layer_2d other_handle) {
  grid_layer2d* other = layer_object_of<grid_layer2d>(other_handle);
  if (other == nullptr) return;
  zu_stl_mngr_assign(clr_stl_mngr_.get(), other->clr_stl_mngr_.get());
  zu_rgb_channels_assign(rgb_channels_.get(), other->rgb_channels_.get());
  zu_hillshade_style_assign(hillshade_style_.get(), other->hillshade_style_.get());
  zu_isoline_style_assign(isoline_style_.get(), other->isoline_style_.get());
  zu_ov_d2_assign(ov_d2_.get(), other->ov_d2_.get());
  if (other != this) proj4_ = other->proj4_;
  has_proj_ = other->has_proj_;
  draw_type_ = other->draw_type_;
  opacity_ = other->opacity_;
  transp_clr_ = other->transp_clr_;
  interpolate_ = other->interpolate_;
  origin_x_ = other->origin_x_;
  origin_y_ = other->origin_y_;
  spacing_x_ = other->spacing_x_;
  spacing_y_ = other->spacing_y_;
  slice_axis_ = other->slice_axis_;
  slice_index_ = other->slice_index_;
  zu_lr2d_data_changed(layer);
}

void grid_layer2d::get_proj4(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, proj4_.c_str());
}

Tzu_matrix3x3 grid_layer2d::affine_matrix() const {
  Tzu_affine_2d affine;
  zu_affine_2d_init_x0y0dxdy_angle(&affine, origin_x_, origin_y_, spacing_x_, spacing_y_, 0.0);
  Tzu_matrix3x3 matrix;
  zu_matrix3x3_init_affine(&matrix, &affine);
  return matrix;
}

std::wstring grid_layer2d::wsource() const {
  return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
}

std::wstring grid_layer2d::wcaption() const {
  return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wcaption(layer, a); });
}

bool grid_layer2d::has_overview() const { return zu_os_file_exists((wsource() + L".ovr").c_str()); }

grid_layer2d* grid_layer_of_entity(Izu_layer* entity) {
  const handle* plugin = zu_lr2d_get_plugin_interface(entity);
  return plugin != nullptr ? layer_object_of<grid_layer2d>(*plugin) : nullptr;
}

bool is_grid_layer(Izu_layer* entity) {
  return entity != nullptr && std::strcmp(zu_lr2d_get_lr_type(entity), c_grid_lr2d) == 0;
}

}  // namespace zu
