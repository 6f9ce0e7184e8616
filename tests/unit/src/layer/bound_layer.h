#pragma once

#include <string>

#include "src/bundle/owned.h"
#include "src/layer/grid_layer2d.h"
#include "src/toolkit/reattachable.h"
#include "zu/platform/zuk_lr2d.h"

namespace tests {

/// A layer object bound to an entity, ended as a host ends it.
struct bound_layer {
  zu::owned<zu_lr2d_destroy> host{zu_lr2d_create("grid_lr2d")};
  zu::toolkit::reattachable<zu::grid_layer2d, Izu_layer*>* layer =
      new zu::toolkit::reattachable<zu::grid_layer2d, Izu_layer*>;
  zu::layer_2d handle = zu::handle_of<zu::layer_2d_impl>(*layer);

  explicit bound_layer(const std::wstring& source = {}) {
    zu_lr2d_set_wsource(host.get(), source.c_str());
    zu_lr2d_set_plugin_interface(host.get(), handle);
    zu::call<&zu::layer_2d_impl::bind_entity>(handle, host.get());
  }
  ~bound_layer() {
    zu::call<&zu::layer_2d_impl::bind_entity>(handle, static_cast<Izu_layer*>(nullptr));
  }
};

}  // namespace tests
