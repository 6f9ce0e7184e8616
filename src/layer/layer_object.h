#pragma once
// From a handle to the object of a layer class of this module.

#include "zu/layer2d.h"

namespace zu {

/// The `T` behind a layer handle; null if the handle is another module's or of another class.
template <class T> T* layer_object_of(handle layer) {
  if (!layer || layer.table != detail::table_of<layer_2d_impl>(layer_2d_impl::operations()))
    return nullptr;
  return dynamic_cast<T*>(static_cast<layer_2d_impl*>(layer.instance));
}

}  // namespace zu
