#pragma once
// A profile: each band of a one-dimensional grid is a curve along x, the value its height. Curves
// are drawn in the layer's own coordinates, placed by its affine transform, without reprojection.

#include <string>

#include "src/bundle/owned.h"
#include "src/data/grid_datasource.h"
#include "src/data/nodata_test.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_styles.h"

namespace zu {

/// One draw of a profile layer.
class profile_drawing {
 public:
  profile_drawing(Izu_render* render, Izu_layer* layer);
  /// Draws the bands that the layer's settings choose. What fails is not drawn.
  void draw();

 private:
  bool on_screen() const;
  void draw_chosen(data::grid_datasource& source);
  void draw_by_values(data::grid_datasource& source);
  void draw_band(data::grid_datasource& source, std::int64_t band, Tzu_stl_prm* style);
  bool reset(data::grid_datasource& source, std::int64_t band, data::owned_block& block);
  void trace(data::grid_datasource& source, const data::owned_block& block);
  void add_sample(double v);
  void add_selected(double v, double x, bool valid);
  void place();
  void show(const Tzu_ov_d2* lines, const Tzu_pln_style* style);

  Izu_render* render_;
  Tzu_drwc* drwc_;
  Izu_layer* layer_;
  const Tzu_table_data* selection_;
  Tzu_stl_mngr* manager_;
  const Tzu_affine_2d* affine_;
  std::wstring height_;
  bool own_selected_style_;
  const Tzu_pln_style* scene_selected_ = nullptr;
  owned<zu_ov_d2_destroy> unselected_, selected_;

  // Of the band that is being drawn.
  Tzu_pv_d2 *open_unselected_ = nullptr, *open_selected_ = nullptr;  // null between runs
  std::uint64_t count_ = 0, index_ = 0;
  double previous_ = 0.0;  // sample
  double origin_[3] = {0, 0, 0}, step_ = 1.0;
  double azimuth_ = 0.0;  // degrees
  data::nodata_test nodata_;
};

}  // namespace zu
