// Layers without a plug-in object: what they learn of their source.

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <array>
#include <filesystem>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_rtr_lr2d.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace {

using zu::platform::owned;
using zu::platform::text_of;

struct made_file {
  std::string path;
  std::array<double, 6> place{10, 2, 0, 20, 0, -2};
  const char* projection = nullptr;

  explicit made_file(const char* name) : path(testing::TempDir() + "/" + name) {}
  /// A band of nx by ny values.
  std::wstring write(int nx, int ny, std::vector<double> values) {
    GDALAllRegister();
    std::unique_ptr<GDALDataset> set(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
        path.c_str(), nx, ny, 1, GDT_Float64, nullptr));
    set->SetGeoTransform(place.data());
    if (projection != nullptr) {
      OGRSpatialReference system;
      system.SetFromUserInput(projection);
      set->SetSpatialRef(&system);
    }
    EXPECT_EQ(set->GetRasterBand(1)->RasterIO(GF_Write, 0, 0, nx, ny, values.data(), nx, ny,
                                              GDT_Float64, 0, 0, nullptr),
              CE_None);
    return zu::platform::from_utf8(path);
  }
};

struct layer_in_scene {
  owned<zu_lr2d_destroy> layer;
  owned<zu_scn_2d_destroy> scene{zu_scn_2d_create()};

  layer_in_scene(const char* type, const std::wstring& source, const wchar_t* projection = L"")
      : layer(zu_lr2d_create(type)) {
    zu_scn_2d_set_pj4wstr(scene.get(), projection);
    zu_scn_2d_add_layer(scene.get(), layer.get());
    zu_lr2d_set_wsource(layer.get(), source.c_str());
    zu_lr2d_source_changed(layer.get());
    zu_lr2d_update_box(layer.get());
    zu_lr2d_update_validity(layer.get());
  }
  ~layer_in_scene() { zu_scn_2d_remove_layer(scene.get(), layer.get()); }
  bool has_box() {
    Tzu_box_d2 box;
    return zu_lr2d_get_box(layer.get(), &box);
  }
  Tzu_box_d2 box() {
    Tzu_box_d2 box{};
    zu_lr2d_get_box(layer.get(), &box);
    return box;
  }
  std::wstring projection() {
    return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(layer.get(), a); });
  }
};

TEST(platform_layer, its_box_is_the_outer_edge_of_the_cells) {
  for (const char* type : {"rtr_lr2d", "tos_grid_lr2d", "tos_slice_lr2d"}) {
    layer_in_scene l(type, made_file("edge.tif").write(3, 2, std::vector<double>(6)));
    EXPECT_EQ(l.box().x0, 10) << type;
    EXPECT_EQ(l.box().y0, 16);
    EXPECT_EQ(l.box().x1, 16);
    EXPECT_EQ(l.box().y1, 20);
    EXPECT_FALSE(zu_lr2d_is_missing(l.layer.get()));
  }
}

TEST(platform_layer, its_box_is_in_scene_coordinates) {
  made_file file("scene.tif");
  file.place = {10, 0.1, 0, 0.2, 0, -0.1};
  file.projection = "EPSG:4326";
  layer_in_scene l("rtr_lr2d", file.write(1, 2, {0, 0}), L"EPSG:3857");
  // A degree at the equator is 111319.49 metres of the web's Mercator.
  EXPECT_NEAR(l.box().x0, 1113194.9, 0.1);
  EXPECT_NEAR(l.box().x1, 1124326.9, 0.1);
  EXPECT_NEAR(l.box().y0, 0, 1e-6);
}

TEST(platform_layer, has_the_projection_of_its_source_unless_another_is_set) {
  made_file file("projection.tif");
  file.projection = "EPSG:32637";
  std::wstring source = file.write(1, 1, {0});
  layer_in_scene l("rtr_lr2d", source);
  EXPECT_NE(l.projection().find(L"UTM zone 37N"), std::wstring::npos);
  zu_lr2d_set_pj4wstr(l.layer.get(), L"EPSG:4326");
  zu_lr2d_source_changed(l.layer.get());
  EXPECT_EQ(l.projection(), L"EPSG:4326");
}

TEST(platform_layer, a_source_that_is_not_there_leaves_it_without_a_box) {
  layer_in_scene l("tos_grid_lr2d", L"/no/such.pgrid");
  EXPECT_FALSE(l.has_box());
  EXPECT_TRUE(zu_lr2d_is_missing(l.layer.get()));
  layer_in_scene memory("tos_grid_lr2d", L"*memory");
  EXPECT_FALSE(zu_lr2d_is_missing(memory.layer.get()));
}

TEST(platform_layer, has_a_table_of_its_own_on_its_source) {
  std::wstring source = made_file("table.tif").write(1, 1, {0});
  layer_in_scene l("tos_grid_lr2d", source);
  Tzu_table_data* table = zu_lr2d_get_data_ptr(l.layer.get());
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_table_data_get_wsource(table, a); }), source);
  owned<zu_table_data_destroy> other(zu_table_data_create());
  zu_plugin_lr2d_bind_entity(l.layer.get(), zu_table_data_safe_upcast(other.get()));
  EXPECT_EQ(zu_lr_get_data_ptr(l.layer.get()), other.get());
}

TEST(platform_layer, a_type_of_plug_in_objects_has_nothing_of_its_own) {
  owned<zu_lr2d_destroy> layer(zu_lr2d_create("grid_lr2d"));
  EXPECT_EQ(zu_lr2d_get_data_ptr(layer.get()), nullptr);
  EXPECT_EQ(zu_lr_get_style_mngr_ptr(layer.get()), nullptr);
}

TEST(raster_layer, finds_a_field_of_its_source_by_the_exact_name) {
  layer_in_scene l("rtr_lr2d", made_file("field.tif").write(1, 1, {0}));
  EXPECT_EQ(zu_rtr_lr2d_search_prop(l.layer.get(), L"Band 1"), 0);
  EXPECT_EQ(zu_rtr_lr2d_search_prop(l.layer.get(), L"Band 2"), -1);
  EXPECT_EQ(zu_rtr_lr2d_search_prop(l.layer.get(), nullptr), -1);
}

TEST(profile_layer, its_box_is_that_of_its_curves) {
  layer_in_scene l("tos_grid_lr1d", made_file("curve.tif").write(3, 1, {-5, 40, 7}));
  EXPECT_EQ(l.box().x0, 10);
  EXPECT_EQ(l.box().x1, 16);
  EXPECT_EQ(l.box().y0, -5);
  EXPECT_EQ(l.box().y1, 40);
}

TEST(profile_layer, a_level_curve_has_a_box_with_a_height) {
  layer_in_scene l("tos_grid_lr1d", made_file("level.tif").write(3, 1, {8, 8, 8}));
  EXPECT_EQ(l.box().y0, 7.5);
  EXPECT_EQ(l.box().y1, 8.5);
}

TEST(profile_layer, its_box_follows_the_affine_transform_and_no_projection) {
  made_file file("placed_curve.tif");
  file.projection = "EPSG:4326";
  layer_in_scene l("tos_grid_lr1d", file.write(3, 1, {1, 3, 2}), L"EPSG:3857");
  Tzu_affine_2d affine{100, 200, 2, 10, 0};
  zu_tos_grid_lr1d_set_affine_trnsf(l.layer.get(), &affine);
  zu_lr2d_update_box(l.layer.get());
  EXPECT_EQ(l.box().x0, 120);
  EXPECT_EQ(l.box().x1, 132);
  EXPECT_EQ(l.box().y0, 210);
  EXPECT_EQ(l.box().y1, 230);
}

TEST(scene_selection, keeps_the_line_of_the_selection) {
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  EXPECT_EQ(zu_scn_2d_get_selected_style_pln(scene.get()), nullptr);
  Tzu_pln_style line;
  line.line.width = 3;
  zu_scn_2d_set_selected_style_pln(scene.get(), &line);
  ASSERT_NE(zu_scn_2d_get_selected_style_pln(scene.get()), nullptr);
  EXPECT_EQ(zu_scn_2d_get_selected_style_pln(scene.get())->line.width, 3);
  zu_scn_2d_set_selected_style_pln(scene.get(), nullptr);
  EXPECT_EQ(zu_scn_2d_get_selected_style_pln(scene.get()), nullptr);
}

}  // namespace
