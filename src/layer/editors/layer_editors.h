#pragma once
// The services of the panels of layers. A service is told which layer is selected, binds its
// panels, and says of each whether it applies.

#include "src/layer/editors/coord_params.h"
#include "src/layer/editors/grid2d_slice.h"
#include "src/layer/editors/grid2d_style.h"
#include "src/layer/editors/hillshade_manager.h"
#include "src/layer/editors/isoline_manager.h"
#include "src/layer/editors/layer_style.h"
#include "src/toolkit/dockers.h"

namespace zu {

/// "grid_lr2d": how it is coloured, and which slice of a volume is meant.
class grid_layer2d_editor : public referent<layer_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_dockers(docker_visitor visitor) override;
  void layer_changed(Izu_layer* entity) override;

 private:
  toolkit::panel_docker<element::grid2d_style> style_{10065, 20, 20};
  toolkit::panel_docker<element::grid2d_slice> slice_{14802, 50, 50};
};

/// Any layer that has a style of hillshade.
class grid_layer2d_hillshade : public referent<layer_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_dockers(docker_visitor visitor) override;
  void layer_changed(Izu_layer* entity) override;

 private:
  toolkit::panel_docker<style::hillshade_manager> hillshade_{14803, 80, 80};
};

/// Any layer that has a style of isolines.
class grid_layer2d_isoline : public referent<layer_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_dockers(docker_visitor visitor) override;
  void layer_changed(Izu_layer* entity) override;

 private:
  toolkit::panel_docker<style::isoline_manager> isoline_{14804, 80, 80};
};

/// "tos_2crd_lr2d": nodes with coordinates.
class tos4_coord_xy_layer2d_editor : public referent<layer_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_dockers(docker_visitor visitor) override;
  void layer_changed(Izu_layer* entity) override;
  std::int32_t get_order() override { return -50; }

 private:
  toolkit::panel_docker<element::coord_params> params_{14808, 45, 45};
  toolkit::panel_docker<element::point_layer_style> style_{10065, 20, 20};
};

/// "tos_grid_lr1d": profiles.
class tos4_grid1d_layer2d_editor : public referent<layer_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_dockers(docker_visitor visitor) override;
  void layer_changed(Izu_layer* entity) override;
  std::int32_t get_order() override { return -50; }

 private:
  toolkit::panel_docker<element::line_layer_style> style_{10065, 20, 20};
};

}  // namespace zu
