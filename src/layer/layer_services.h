#pragma once
// The three services of a layer type. `T` is the layer class, `type` its name.

#include <cstdint>

#include "src/bundle/encoding.h"
#include "src/layer/layer_object.h"
#include "src/toolkit/reattachable.h"
#include "zu/layer2d.h"

namespace zu {

bool is_shp_layer(const char* type);
/// The subtype must end where the name ends.
bool is_shp_z_subtype(const wchar_t* subtype);
bool is_vector_layer(const char* type);

namespace toolkit {

inline void give_type(const char* type, string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, wide_from(type, 0).c_str());
}

template <class T, const char* type>
class layer2d_service : public referent<layer_2d_service_impl> {
 public:
  using referent::referent;
  void get_type(string_visitor visitor) override { give_type(type, visitor); }
  void create_layer(layer_2d_visitor visitor) override {
    auto* layer = new reattachable<T, Izu_layer*>;
    call<&layer_2d_visitor_impl::visit>(visitor, handle_of<layer_2d_impl>(*layer));
  }
};

template <class T, const char* type, const char* type2>
class layer2d_externalization_service : public referent<layer_2d_externalization_service_impl> {
 public:
  using referent::referent;
  void get_type(string_visitor visitor) override { give_type(type, visitor); }
  void get_type2(string_visitor visitor) override { give_type(type2, visitor); }
  void save(layer_2d layer, Tzu_xnode* node, void* context) override {
    if (T* object = layer_object_of<T>(layer)) object->save(node, context);
  }
  void load(layer_2d layer, Tzu_xnode* node, void* context) override {
    if (T* object = layer_object_of<T>(layer)) object->load(node, context);
  }
};

template <class T, const char* type>
class layer2d_render_service : public referent<layer_2d_renderer_extension_service_impl> {
 public:
  using referent::referent;
  void get_type(string_visitor visitor) override { give_type(type, visitor); }
  void render(Izu_render* render, Izu_layer* layer) override { T::render(render, layer, false); }
  void render_selection(Izu_render* render, Izu_layer* layer) override {
    T::render(render, layer, true);
  }
};

}  // namespace toolkit
}  // namespace zu
