#include "src/layer/editors/layer_editors.h"

#include <cstring>

namespace zu {
namespace {

template <class panel> void visit(docker_visitor visitor, const wchar_t* id, panel& shown) {
  call<&docker_visitor_impl::visit>(visitor, id, docker(handle_of<docker_impl>(shown)));
}

/// The entity if it is of that type, else null.
Izu_layer* of_type(Izu_layer* entity, const char* type) {
  bool is_it = entity != nullptr && std::strcmp(zu_lr2d_get_lr_type(entity), type) == 0;
  return is_it ? entity : nullptr;
}

}  // namespace

void grid_layer2d_editor::get_dockers(docker_visitor visitor) {
  visit(visitor, L"zu_grid_layer2d_plugin_style_editor", style_);
  visit(visitor, L"zu_grid_layer2d_plugin_slice_editor", slice_);
}

void grid_layer2d_editor::layer_changed(Izu_layer* entity) {
  grid_layer2d* layer = grid_layer_of_entity(entity);
  style_.content().set_layer(layer);
  style_.set_enabled(layer != nullptr);
  bool sliced = layer != nullptr && layer->has_slices();
  slice_.content().set_layer(sliced ? layer : nullptr);
  slice_.set_enabled(sliced);
}

void grid_layer2d_hillshade::get_dockers(docker_visitor visitor) {
  visit(visitor, L"zu_grid_layer2d_plugin_hillshade", hillshade_);
}

void grid_layer2d_hillshade::layer_changed(Izu_layer* entity) {
  Tzu_hillshade_style* edited = entity != nullptr ? zu_lr2d_get_hillshade_style(entity) : nullptr;
  hillshade_.content().set(edited != nullptr ? entity : nullptr, edited);
  hillshade_.set_enabled(edited != nullptr);
}

void grid_layer2d_isoline::get_dockers(docker_visitor visitor) {
  visit(visitor, L"zu_grid_layer2d_plugin_isoline", isoline_);
}

void grid_layer2d_isoline::layer_changed(Izu_layer* entity) {
  Tzu_isoline_style* edited = entity != nullptr ? zu_lr2d_get_isoline_style(entity) : nullptr;
  isoline_.content().set(edited != nullptr ? entity : nullptr, edited);
  isoline_.set_enabled(edited != nullptr);
}

void tos4_coord_xy_layer2d_editor::get_dockers(docker_visitor visitor) {
  visit(visitor, L"zu_grid_layer2d_tos4_coord2d_param_editor", params_);
  visit(visitor, L"zu_grid_layer2d_tos4_coord2d_style_editor", style_);
}

void tos4_coord_xy_layer2d_editor::layer_changed(Izu_layer* entity) {
  Izu_layer* layer = of_type(entity, "tos_2crd_lr2d");
  params_.content().set_layer(layer);
  params_.set_enabled(layer != nullptr);
  style_.content().set_layer(layer);
  style_.set_enabled(layer != nullptr);
}

void tos4_grid1d_layer2d_editor::get_dockers(docker_visitor visitor) {
  visit(visitor, L"zu_grid_layer2d_tos4_grid1d_style_editor", style_);
}

void tos4_grid1d_layer2d_editor::layer_changed(Izu_layer* entity) {
  Izu_layer* layer = of_type(entity, "tos_grid_lr1d");
  style_.content().set_layer(layer);
  style_.set_enabled(layer != nullptr);
}

}  // namespace zu
