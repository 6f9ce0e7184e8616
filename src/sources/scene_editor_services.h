#pragma once
// What a scene editor learns of this bundle: the grid layer in one service, the other kinds of file
// in another.

#include "src/sources/scene_extensions.h"
#include "src/sources/source_filters.h"

namespace zu {

class grid_editor2d_extension_service : public referent<scene_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_extensions(scene_2d_editor_extension_visitor visitor) override;
  void get_filters(scene_editor_filter_visitor visitor) override;
  std::int32_t get_order() override { return 125; }

 private:
  grid_scene_editor_extension grid_;
  gdal_source_filter_adder gdal_filter_;
};

class grids_editor2d_extension_service : public referent<scene_2d_editor_extension_service_impl> {
 public:
  using referent::referent;
  void get_extensions(scene_2d_editor_extension_visitor visitor) override;
  void get_filters(scene_editor_filter_visitor visitor) override;
  std::int32_t get_order() override { return -50; }

 private:
  rastr_scene_editor_extension rastr_;
  tos4_grid_scene_editor_extension tos4_grid_;
  tos4_slice_scene_editor_extension tos4_slice_;
  tos4_coord_scene_editor_extension tos4_coord_;
  tos4_profil_scene_editor_extension tos4_profil_;
  rastr_source_filter_adder rastr_filter_;
  tos4_grid_source_filter_adder tos4_grid_filter_;
  tos4_coord_source_filter_adder tos4_coord_filter_;
  segy_source_filter_adder segy_filter_;
};

}  // namespace zu
