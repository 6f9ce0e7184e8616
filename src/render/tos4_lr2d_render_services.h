#pragma once
// Draw the layers of TOS4 files: uniform grids, slices of volumes, profiles.

#include "src/render/grid_render_params.h"
#include "zu/layer2d.h"

namespace zu {

/// What they share: a layer of another type than `type` is left alone.
class tos4_grid_lr2d_render_service : public referent<layer_2d_renderer_extension_service_impl> {
 public:
  tos4_grid_lr2d_render_service(const char* type, handle owner);
  void get_type(string_visitor visitor) override;
  void render(Izu_render* render, Izu_layer* layer) override;
  void render_selection(Izu_render* render, Izu_layer* layer) override;

 protected:
  virtual void draw(Izu_render* render, Izu_layer* layer, bool selection_only) = 0;

 private:
  const char* type_;
};

/// "tos_grid_lr2d"
class tos4_grid2d_lr2d_render_service : public tos4_grid_lr2d_render_service {
 public:
  explicit tos4_grid2d_lr2d_render_service(handle owner = {});

 protected:
  void draw(Izu_render* render, Izu_layer* layer, bool selection_only) override;
};

/// "tos_slice_lr2d": the slice across z that the layer says.
class tos4_grid3d_lr2d_render_service : public tos4_grid_lr2d_render_service {
 public:
  explicit tos4_grid3d_lr2d_render_service(handle owner = {});

 protected:
  void draw(Izu_render* render, Izu_layer* layer, bool selection_only) override;
};

/// "tos_grid_lr1d": curves, not a raster.
class tos4_grid1d_lr2d_render_service : public tos4_grid_lr2d_render_service {
 public:
  explicit tos4_grid1d_lr2d_render_service(handle owner = {});

 protected:
  void draw(Izu_render* render, Izu_layer* layer, bool selection_only) override;
};

}  // namespace zu
