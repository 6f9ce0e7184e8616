#include "host/core/layer.h"

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_io.h"

namespace zu::host {
namespace {

std::string file_name_of(const std::string& path) {
  std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

struct closed {
  void operator()(Tzu_xnode* node) const { zu_xnode_close(node); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, closed>;

}  // namespace

layer::layer(const bundle& services, const std::string& type, const std::string& source)
    : services_(services), entity_(zu_lr2d_create(type.c_str())) {
  call<&layer_2d_service_impl::create_layer>(
      services.layers(type), layer_2d_visitor(handle_of<layer_2d_visitor_impl>(*this)));
  if (!object_ || entity_ == nullptr) {
    zu_lr2d_destroy(entity_);
    throw failure(source, "there are no layers of type " + type);
  }
  zu_lr2d_set_wsource(entity_, wide_name(source).c_str());
  set_caption(file_name_of(source));
  zu_lr2d_set_plugin_interface(entity_, object_);
  call<&layer_2d_impl::bind_entity>(object_, entity_);
  call<&layer_2d_impl::source_changed>(object_);
  call<&layer_2d_impl::update_validity>(object_);
}

layer::~layer() {
  call<&layer_2d_impl::bind_entity>(object_, static_cast<Izu_layer*>(nullptr));
  zu_lr2d_destroy(entity_);
}

std::string layer::type() const { return zu_lr2d_get_lr_type(entity_); }

std::string layer::source_name() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr2d_get_wsource(entity_, adapter); }));
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

std::optional<Tzu_box_d2> layer::box() const {
  Tzu_box_d2 found;
  if (!zu_lr2d_get_box(entity_, &found)) return {};
  return found;
}

Tzu_stl_mngr* layer::style_manager() const {
  return call<&layer_2d_impl::get_style_manager>(object_);
}
Tzu_hillshade_style* layer::hillshade_style() const {
  return call<&layer_2d_impl::get_hillshade_style>(object_);
}
Tzu_isoline_style* layer::isoline_style() const {
  return call<&layer_2d_impl::get_isoline_style>(object_);
}

// A grid layer gives and takes them in its tree.
draw_settings layer::settings() const {
  node_ptr root(zu_xnode_create_root_w(L"layer"));
  save(root.get());
  node_ptr params(zu_xnode_set_node_w(root.get(), L"grid_params"));
  draw_settings found;
  found.draw = static_cast<draw_type>(zu_xnode_get_attr_int_w(params.get(), L"draw_type", 0));
  found.transparency = static_cast<int>(zu_xnode_get_attr_int_w(params.get(), L"opacity", 0));
  found.interpolate = zu_xnode_get_attr_bool_w(params.get(), L"interpolate", false);
  found.channels.reset(zu_rgb_channels_create());
  zu_xml_save_style_load_rgb_channels(nullptr, root.get(), L"channels", found.channels.get());
  return found;
}

void layer::set_settings(const draw_settings& settings) {
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
  call<&layer_2d_externalization_service_impl::save>(services_.externalization(type()), object_,
                                                     node, static_cast<void*>(nullptr));
}

void layer::load(Tzu_xnode* node) {
  call<&layer_2d_externalization_service_impl::load>(services_.externalization(type()), object_,
                                                     node, static_cast<void*>(nullptr));
}

void layer::update() { call<&layer_2d_impl::update_box>(object_); }

void layer::draw(Izu_render* render) const {
  call<&layer_2d_renderer_extension_service_impl::render>(services_.renderer(type()), render,
                                                          entity_);
}

}  // namespace zu::host
