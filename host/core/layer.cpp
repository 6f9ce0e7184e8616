#include "host/core/layer.h"

#include <cmath>
#include <new>
#include <string_view>
#include <utility>

#include "host/core/entity_drawing.h"
#include "host/core/failure.h"
#include "host/core/source_paths.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_rtr_lr2d.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::host {
namespace {

/// The platform draws these itself.
constexpr char coordinates_type[] = "tos_2crd_lr2d";

// Numbers of draw types where the platform keeps the layer.
constexpr std::pair<draw_type, int> raster_types[] = {{draw_type::image, zu_rtr_draw_image},
                                                      {draw_type::rgb, zu_rtr_draw_rgb},
                                                      {draw_type::gray, zu_rtr_draw_gray}};
constexpr std::pair<draw_type, int> tos_types[] = {{draw_type::scale, zu_tos_draw_scale},
                                                   {draw_type::scale, zu_tos_draw_scale2},
                                                   {draw_type::rgb, zu_tos_draw_rgb},
                                                   {draw_type::gray, zu_tos_draw_gray},
                                                   {draw_type::image, zu_tos_draw_image}};

template <std::size_t count>
draw_type draw_of(const std::pair<draw_type, int> (&types)[count], int number) {
  for (const auto& [draw, own] : types)
    if (own == number) return draw;
  return types[0].first;
}
template <std::size_t count>
int number_of(const std::pair<draw_type, int> (&types)[count], draw_type wanted) {
  for (const auto& [draw, own] : types)
    if (draw == wanted) return own;
  return types[0].second;
}

bool is_raster(const Izu_layer* entity) {
  return zu_lr2d_get_lr_type(entity) == std::string_view("rtr_lr2d");
}
bool is_tos_grid(const Izu_layer* entity) {
  std::string_view type = zu_lr2d_get_lr_type(entity);
  return type == "tos_grid_lr2d" || type == "tos_slice_lr2d";
}

double opacity_of(int transparency) { return 1.0 - transparency / 100.0; }
int transparency_of(double opacity) { return static_cast<int>(std::lround((1.0 - opacity) * 100)); }

void read_platform(const Izu_layer* entity, draw_settings& found) {
  if (is_raster(entity)) {
    found.draw = draw_of(raster_types, zu_rtr_lr2d_get_draw_type(entity));
    found.transparency = transparency_of(zu_rtr_lr2d_get_opacity(entity));
    zu_rgb_channels_assign(found.channels.get(), zu_rtr_lr2d_get_rgb_channels_ptr(entity));
  } else if (is_tos_grid(entity)) {
    found.draw = draw_of(tos_types, zu_tos_grid_lr2d_get_draw_type(entity));
    found.transparency = transparency_of(zu_tos_grid_lr2d_get_opacity(entity));
    found.interpolate = zu_tos_grid_lr2d_get_interpolate(entity);
    zu_rgb_channels_assign(found.channels.get(), zu_tos_grid_lr2d_get_rgb_channels_ptr(entity));
  }
}

void write_platform(const draw_settings& settings, Izu_layer* entity) {
  if (is_raster(entity)) {
    zu_rtr_lr2d_set_draw_type(entity, number_of(raster_types, settings.draw));
    zu_rtr_lr2d_set_opacity(entity, opacity_of(settings.transparency));
    zu_rgb_channels_assign(zu_rtr_lr2d_get_rgb_channels_ptr(entity), settings.channels.get());
  } else if (is_tos_grid(entity)) {
    zu_tos_grid_lr2d_set_draw_type(entity, number_of(tos_types, settings.draw));
    zu_tos_grid_lr2d_set_opacity(entity, opacity_of(settings.transparency));
    zu_tos_grid_lr2d_set_interpolate(entity, settings.interpolate);
    zu_rgb_channels_assign(zu_tos_grid_lr2d_get_rgb_channels_ptr(entity), settings.channels.get());
  }
}

}  // namespace

bool layer::has_type(const bundle& services, const std::string& type) {
  return services.layers(type) || services.renderer(type) || type == coordinates_type;
}

layer::layer(const bundle& services, const std::string& type, const std::string& source)
    : services_(services) {
  // Nothing is made before all that may be refused has been.
  std::wstring name = wide_name(source);
  if (!has_type(services, type)) throw failure(source, "there are no layers of type " + type);
  entity_ = zu_lr2d_create(type.c_str());
  if (entity_ == nullptr) throw std::bad_alloc();
  call<&layer_2d_service_impl::create_layer>(
      services.layers(type), layer_2d_visitor(handle_of<layer_2d_visitor_impl>(*this)));
  zu_lr2d_set_wsource(entity_, name.c_str());
  set_caption(file_name_of(source));
  if (object_) {
    zu_lr2d_set_plugin_interface(entity_, object_);
    call<&layer_2d_impl::bind_entity>(object_, entity_);
  }
  zu_lr2d_source_changed(entity_);
  zu_lr2d_update_validity(entity_);
}

layer::~layer() {
  call<&layer_2d_impl::bind_entity>(object_, static_cast<Izu_layer*>(nullptr));
  zu_lr2d_destroy(entity_);
}

std::string layer::type() const { return zu_lr2d_get_lr_type(entity_); }

std::string layer::source_name() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr2d_get_wsource(entity_, adapter); }));
}

void layer::set_source(const std::string& source) {
  std::wstring name = wide_name(source);
  data_.reset();
  zu_lr2d_set_wsource(entity_, name.c_str());
  zu_lr2d_source_changed(entity_);
  zu_lr2d_update_validity(entity_);
}

std::string layer::subtype() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr_get_lr_subtype(entity_, adapter); }));
}

void layer::set_subtype(const std::string& subtype) {
  zu_lr_set_lr_subtype(entity_, wide(subtype).c_str());
}

std::string layer::caption() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr2d_get_wcaption(entity_, adapter); }));
}

void layer::set_caption(const std::string& caption) {
  zu_lr_set_wcaption(entity_, wide(caption).c_str());
}

const source& layer::data() const {
  if (!data_) data_ = std::make_unique<source>(source_name());
  return *data_;
}

std::string layer::projection() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr2d_get_pj4wstr(entity_, adapter); }));
}

void layer::set_projection(const std::string& text) {
  zu_lr2d_set_pj4wstr(entity_, wide(text).c_str());
}

std::optional<Tzu_box_d2> layer::box() const {
  Tzu_box_d2 found;
  if (!zu_lr2d_get_box(entity_, &found)) return {};
  return found;
}

draw_settings layer::settings() const {
  draw_settings found;
  found.channels.reset(zu_rgb_channels_create());
  if (object_)
    read_tree(found);
  else
    read_platform(entity_, found);
  return found;
}

void layer::set_settings(const draw_settings& settings) {
  if (object_)
    write_tree(settings);
  else
    write_platform(settings, entity_);
}

// A grid layer gives and takes them in its tree.
void layer::read_tree(draw_settings& found) const {
  node_ptr root(zu_xnode_create_root_w(L"layer"));
  save(root.get());
  node_ptr params(zu_xnode_set_node_w(root.get(), L"grid_params"));
  found.draw = static_cast<draw_type>(zu_xnode_get_attr_int_w(params.get(), L"draw_type", 0));
  found.transparency = static_cast<int>(zu_xnode_get_attr_int_w(params.get(), L"opacity", 0));
  found.interpolate = zu_xnode_get_attr_bool_w(params.get(), L"interpolate", false);
  zu_xml_save_style_load_rgb_channels(nullptr, root.get(), L"channels", found.channels.get());
}

void layer::write_tree(const draw_settings& settings) {
  node_ptr root(zu_xnode_create_root_w(L"layer"));
  save(root.get());
  node_ptr params(zu_xnode_set_node_w(root.get(), L"grid_params"));
  zu_xml_save_style_save_rgb_channels(nullptr, root.get(), L"channels", settings.channels.get());
  zu_xnode_set_attr_int_w(params.get(), L"draw_type", static_cast<std::int64_t>(settings.draw));
  zu_xnode_set_attr_int_w(params.get(), L"opacity", settings.transparency);
  zu_xnode_set_attr_bool_w(params.get(), L"interpolate", settings.interpolate);
  load(root.get());
}

void layer::save(Tzu_xnode* node) const {
  if (!object_) return zu_lr2d_save_state(entity_, node, nullptr);
  call<&layer_2d_externalization_service_impl::save>(services_.externalization(type()), object_,
                                                     node, static_cast<void*>(nullptr));
}

void layer::load(Tzu_xnode* node) {
  if (!object_) return zu_lr2d_load_state(entity_, node, nullptr);
  call<&layer_2d_externalization_service_impl::load>(services_.externalization(type()), object_,
                                                     node, static_cast<void*>(nullptr));
}

std::string layer::state() const {
  node_ptr root(zu_xnode_create_root_w(L"layer"));
  save(root.get());
  return narrow_text_of([&](Tzu_string_adp* a) { zu_xnode_get_text(root.get(), a); });
}

void layer::load_state(const std::string& state) {
  node_ptr root(zu_xnode_read(state.data(), state.size(), nullptr));
  if (root) load(root.get());
}

void layer::draw(Izu_render* render) const { draw_entity(services_, render, entity_); }

}  // namespace zu::host
