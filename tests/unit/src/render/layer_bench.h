#pragma once
// A platform layer in a scene, and the service that draws it.

#include "src/bundle/owned.h"
#include "tests/unit/src/render/page.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_attr_data.h"
#include "zu/platform/zuk_lr2d.h"

namespace tests {

/// A layer of a type and the service that draws it.
template <class service> struct layer_bench {
  zu::owned<zu_lr2d_destroy> layer;
  zu::owned<zu_scn_2d_destroy> scene{zu_scn_2d_create()};
  zu::strong_ref<zu::layer_2d_renderer_extension_service_impl> drawn_by{
      zu::handle_of<zu::layer_2d_renderer_extension_service_impl>(*new service)};

  layer_bench(const char* type, const std::wstring& source) : layer(zu_lr2d_create(type)) {
    zu_lr2d_set_wsource(layer.get(), source.c_str());
    zu_scn_2d_add_layer(scene.get(), layer.get());
    zu_lr2d_source_changed(layer.get());
    zu_lr2d_update_box(layer.get());
  }
  ~layer_bench() { zu_scn_2d_remove_layer(scene.get(), layer.get()); }
  void draw(page& shown) {
    zu::call<&zu::layer_2d_renderer_extension_service_impl::render>(drawn_by.get(), shown.render(),
                                                                    layer.get());
  }
  void draw_selection(page& shown) {
    zu::call<&zu::layer_2d_renderer_extension_service_impl::render_selection>(
        drawn_by.get(), shown.render(), layer.get());
  }
  void select(std::initializer_list<std::uint64_t> ids) {
    Tzu_table_data* table = zu_lr2d_get_data_ptr(layer.get());
    zu_table_data_begin_update(table);
    for (std::uint64_t id : ids) zu_table_data_set_selected_id(table, id, true);
    zu_table_data_end_update(table);
  }
};

}  // namespace tests
