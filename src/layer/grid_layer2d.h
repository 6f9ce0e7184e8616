#pragma once
// The layer of type "grid_lr2d": what a person sets on a grid. It holds no data of the grid; the
// operations that need some open the source by the entity's name for it, and close it again.

#include <cstdint>
#include <string>

#include "src/bundle/owned.h"
#include "src/data/grid_datasource.h"
#include "src/render/grid_render_params.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_attr_data.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

namespace zu {

inline constexpr char c_grid_lr2d[] = "grid_lr2d";

namespace toolkit {

struct with_layer2d {
  Izu_layer* layer = nullptr;  ///< the host's entity
};

}  // namespace toolkit

class grid_layer2d : public layer_2d_impl, public toolkit::with_layer2d {
 public:
  grid_layer2d();
  virtual ~grid_layer2d() = default;

  void bind_entity(Izu_layer* entity) override;
  void source_changed() override;
  void update_box() override;
  void update_validity() override;
  void copy_from(layer_2d other) override;
  bool has_projection() override { return has_proj_; }
  void get_proj4(string_visitor visitor) override;
  void set_proj4(const wchar_t* text) override;
  Tzu_table_data* get_table_data() override { return table_data_.get(); }
  Tzu_stl_mngr* get_style_manager() override { return clr_stl_mngr_.get(); }
  Tzu_hillshade_style* get_hillshade_style() override { return hillshade_style_.get(); }
  Tzu_isoline_style* get_isoline_style() override { return isoline_style_.get(); }
  void write_info(Tzu_json_obj* info) override;

  // Settings
  std::uint32_t draw_type() const { return draw_type_; }
  void set_draw_type(std::uint32_t type) { draw_type_ = type; }
  Tzu_color transp_clr() const { return transp_clr_; }
  void set_transp_clr(Tzu_color color) { transp_clr_ = color; }
  /// A transparency in percent: 0 is opaque, 100 invisible.
  std::uint32_t opacity() const { return opacity_; }
  void set_opacity(std::uint32_t percent) { opacity_ = percent > 100 ? 100 : percent; }
  bool interpolate() const { return interpolate_; }
  void set_interpolate(bool on) { interpolate_ = on; }
  void clear_has_proj() { has_proj_ = false; }
  double origin_x() const { return origin_x_; }
  void set_origin_x(double x) { origin_x_ = x; }
  double origin_y() const { return origin_y_; }
  void set_origin_y(double y) { origin_y_ = y; }
  double spacing_x() const { return spacing_x_; }
  void set_spacing_x(double step) { spacing_x_ = step > 0.0 ? step : 1.0; }
  double spacing_y() const { return spacing_y_; }
  void set_spacing_y(double step) { spacing_y_ = step > 0.0 ? step : 1.0; }
  std::int64_t slice_index() const { return slice_index_; }
  void set_slice_index(std::int64_t index) { slice_index_ = index; }
  std::int64_t slice_axis() const { return slice_axis_; }
  void set_slice_axis(std::int64_t axis) { slice_axis_ = axis; }
  Tzu_rgb_channels* rgb_channels() { return rgb_channels_.get(); }
  /// The placement as a matrix from the local system.
  Tzu_matrix3x3 affine_matrix() const;

  // What the entity knows; empty without one.
  std::wstring wsource() const;
  std::wstring wcaption() const;
  /// Whether overviews stand in a file of their own beside the source.
  bool has_overview() const;

  // What the source knows; it is opened for the call. The value in brackets without a source.
  bool is_image_source() const;                       ///< [false]
  bool has_slices() const;                            ///< [false]
  std::int64_t slice_count() const;                   ///< along `slice_axis` [1]
  std::int64_t field_count() const;                   ///< [0]
  std::wstring field_name(std::int64_t index) const;  ///< [empty]

  /// One repaint of a grid layer. With `selection` set it draws nothing: the overlay of the
  /// selection comes with the ordinary draw.
  static void render(Izu_render* render, Izu_layer* entity, bool selection);

  // The project tree.
  void save(Tzu_xnode* node, void* context) const;
  void load(Tzu_xnode* node, void* context);

 private:
  bool open_source(data::grid_datasource& source) const;
  void load_old(Tzu_xnode* node);

  // Destroyed from the last to the first.
  std::wstring proj4_;
  owned<zu_ov_d2_destroy> ov_d2_;
  owned<zu_table_data_destroy> table_data_;
  owned<zu_rgb_channels_destroy> rgb_channels_;
  owned<zu_isoline_style_destroy> isoline_style_;
  owned<zu_hillshade_style_destroy> hillshade_style_;
  owned<zu_stl_mngr_destroy> clr_stl_mngr_;

  std::uint32_t draw_type_ = 0;
  Tzu_color transp_clr_{255, 255, 255, 0};
  std::uint32_t opacity_ = 0;
  bool interpolate_ = false;
  bool has_proj_ = true;
  double origin_x_ = 0.0, origin_y_ = 0.0;
  double spacing_x_ = 1.0, spacing_y_ = 1.0;
  std::int64_t slice_index_ = 0;
  std::int64_t slice_axis_ = 2;
};

/// The layer object behind an entity; null if that is of another kind.
grid_layer2d* grid_layer_of_entity(Izu_layer* entity);
/// Whether an entity is of type "grid_lr2d"; false for null.
bool is_grid_layer(Izu_layer* entity);

}  // namespace zu
