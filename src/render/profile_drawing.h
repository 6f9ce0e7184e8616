#pragma once
// A profile: each band of a one-dimensional grid is a curve along x, the value its height. Curves
// are drawn in the layer's own coordinates, placed by its affine transform, without reprojection.

#include <optional>
#include <string>
#include <vector>

#include "src/data/grid_datasource.h"
#include "src/render/profile_curve.h"
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
  /// What is drawn in one walk over the bands: all, or what has a render level.
  struct pass {
    std::optional<std::int32_t> level;
    bool unselected = true, selected = true;
  };
  /// By levels, what is selected lies over all that is not.
  std::vector<pass> passes() const;
  bool on_screen() const;
  void draw_chosen(data::grid_datasource& source);
  void draw_by_values(data::grid_datasource& source);
  void draw_band(data::grid_datasource& source, std::int64_t band, Tzu_stl_prm* style);
  void trace(data::grid_datasource& source, const data::owned_block& block, std::uint64_t count,
             profile_curve& curve) const;
  /// From the profile's own plane to render coordinates; the azimuth in degrees.
  void place(profile_curve& curve, const double* origin, double azimuth) const;
  /// Draws lines as this pass shows a style of the manager.
  void show_level(const std::wstring& name, const Tzu_ov_d2* lines, Tzu_pln_style* style) const;
  /// As an object of the page that has the band's name.
  void show(const std::wstring& name, const Tzu_ov_d2* lines, const Tzu_pln_style* style) const;

  Izu_render* render_;
  Tzu_drwc* drwc_;
  Izu_layer* layer_;
  const Tzu_table_data* selection_;
  Tzu_stl_mngr* manager_;
  const Tzu_affine_2d* affine_;
  std::wstring height_;
  bool own_selected_style_;
  const Tzu_pln_style* scene_selected_ = nullptr;
  pass pass_;
};

}  // namespace zu
