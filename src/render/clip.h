#pragma once
// The polygon to which all drawing of a layer is clipped.

#include "src/render/render_context.h"

namespace zu {

/// Clips what is drawn while it lives, if the layer has such a polygon.
class layer_clip {
 public:
  explicit layer_clip(const grid_render_context& context);
  ~layer_clip();
  layer_clip(const layer_clip&) = delete;
  layer_clip& operator=(const layer_clip&) = delete;

 private:
  Tzu_drwc* clipped_ = nullptr;  ///< null if no clip was set
};

}  // namespace zu
