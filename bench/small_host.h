#pragma once
// The least host that can draw a grid: loads the bundle, makes one layer, repaints it.

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "zu/layer2d.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_styles.h"
#include "zu/services.h"

namespace bench {

/// The one service of an interface that the bundle offers.
template <class service_impl, class visitor_impl> struct service_of : visitor_impl {
  zu::strong_ref<service_impl> held;
  void visit(zu::of<service_impl> service) override {
    if (!held) held.reset(service);
  }
};

class small_host : zu::service_factory_receiver_impl {
 public:
  explicit small_host(const char* bundle_path) {
    void* library = dlopen(bundle_path, RTLD_NOW);
    using entry = Tzu_handle (*)(void*);
    auto open =
        library != nullptr
            ? reinterpret_cast<entry>(dlsym(library, "zu_bundle_interface_to_custom_pointer"))
            : nullptr;
    if (open == nullptr) {
      std::fprintf(stderr, "%s\n", dlerror());
      std::exit(1);
    }
    zu::call<&zu::bundle_impl::enumerate_factories>(
        open(this),
        zu::service_factory_receiver(zu::handle_of<zu::service_factory_receiver_impl>(*this)));
  }

  service_of<zu::layer_2d_service_impl, zu::layer_2d_service_visitor_impl> layers;
  service_of<zu::layer_2d_externalization_service_impl,
             zu::layer_2d_externalization_service_visitor_impl>
      tree;
  service_of<zu::layer_2d_renderer_extension_service_impl,
             zu::layer_2d_renderer_extension_service_visitor_impl>
      renderer;

 private:
  void visit(const wchar_t*, zu::service_factory factory) override {
    for (zu::handle visitor :
         {zu::handle(zu::handle_of<zu::layer_2d_service_visitor_impl>(layers)),
          zu::handle(zu::handle_of<zu::layer_2d_externalization_service_visitor_impl>(tree)),
          zu::handle(
              zu::handle_of<zu::layer_2d_renderer_extension_service_visitor_impl>(renderer))})
      zu::call<&zu::service_factory_impl::create>(factory, zu::handle(), visitor);
  }
};

class layer : zu::layer_2d_visitor_impl {
 public:
  layer(small_host& host, const std::wstring& source) : host_(host) {
    zu::call<&zu::layer_2d_service_impl::create_layer>(
        host.layers.held.get(),
        zu::layer_2d_visitor(zu::handle_of<zu::layer_2d_visitor_impl>(*this)));
    zu_lr2d_set_wsource(entity_, source.c_str());
    zu_lr2d_set_plugin_interface(entity_, object_);
    zu::call<&zu::layer_2d_impl::bind_entity>(object_, entity_);
    zu::call<&zu::layer_2d_impl::source_changed>(object_);
  }
  ~layer() {
    zu::call<&zu::layer_2d_impl::bind_entity>(object_, static_cast<Izu_layer*>(nullptr));
    zu_lr2d_destroy(entity_);
  }
  layer(const layer&) = delete;
  layer& operator=(const layer&) = delete;

  Tzu_stl_mngr* styles() { return zu::call<&zu::layer_2d_impl::get_style_manager>(object_); }
  Tzu_hillshade_style* hillshade() {
    return zu::call<&zu::layer_2d_impl::get_hillshade_style>(object_);
  }
  Tzu_isoline_style* isolines() { return zu::call<&zu::layer_2d_impl::get_isoline_style>(object_); }
  Izu_layer* entity() { return entity_; }
  void draw(Izu_render* render) {
    zu::call<&zu::layer_2d_renderer_extension_service_impl::render>(host_.renderer.held.get(),
                                                                    render, entity_);
  }
  /// Sets the draw type through the layer's saved form.
  void set_draw_type(std::int64_t type) {
    Tzu_xnode* root = zu_xnode_create_root_w(L"layer");
    Tzu_xnode* params = zu_xnode_set_node_w(root, L"grid_params");
    zu_xnode_set_attr_int_w(params, L"draw_type", type);
    zu_xnode_close(params);
    zu::call<&zu::layer_2d_externalization_service_impl::load>(host_.tree.held.get(), object_, root,
                                                               nullptr);
    zu_xnode_close(root);
  }

 private:
  void visit(zu::layer_2d made) override { object_ = made; }
  small_host& host_;
  Izu_layer* entity_ = zu_lr2d_create("grid_lr2d");
  zu::layer_2d object_;
};

}  // namespace bench
