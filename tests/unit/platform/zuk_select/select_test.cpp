// Selection in a viewer: which layer, which ids, what becomes of those that were selected.

#include "zu/platform/zuk_select.h"

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <memory>
#include <set>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_select/cell_scan.h"
#include "zu/platform/zuk_proj4_d2.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace {

using zu::platform::owned;
using ids = std::set<uint64_t>;

/// A viewer of 100 by 100 pixels over a scene of layers of small grids.
class selecting : public testing::Test {
 protected:
  void SetUp() override {
    zu_viewer2d_set_size(viewer_.get(), 100, 100, 96);
    zu_viewer2d_set_scn_2d(viewer_.get(), scene_.get());
  }
  void TearDown() override {
    for (const std::string& path : files_) std::filesystem::remove(path);
  }

  /// Adds a grid with rows from the north; without a projection unless one is given.
  Izu_layer* add(int nx, int ny, std::array<double, 6> place, const char* projection = nullptr) {
    GDALAllRegister();
    files_.push_back(testing::TempDir() + "/select_" +
                     testing::UnitTest::GetInstance()->current_test_info()->name() +
                     std::to_string(files_.size()) + ".tif");
    std::unique_ptr<GDALDataset> set(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
        files_.back().c_str(), nx, ny, 1, GDT_Byte, nullptr));
    set->SetGeoTransform(place.data());
    if (projection != nullptr) {
      OGRSpatialReference system;
      system.SetFromUserInput(projection);
      set->SetSpatialRef(&system);
    }
    set.reset();
    Izu_layer* layer = layers_.emplace_back(zu_lr2d_create("rtr_lr2d")).get();
    zu_scn_2d_add_layer(scene_.get(), layer);
    zu_lr2d_set_wsource(layer, zu::platform::from_utf8(files_.back()).c_str());
    zu_lr2d_source_changed(layer);
    zu_lr2d_update_box(layer);
    return layer;
  }
  static ids selected(Izu_layer* layer) {
    ids all;
    const Tzu_table_data* table = zu_lr_get_data_ptr(layer);
    for (uint64_t i = 0, first = 0, last = 0;
         zu_table_data_get_selected_run(table, i, &first, &last); ++i)
      for (uint64_t id = first; id <= last; ++id) all.insert(id);
    return all;
  }
  void box(Tzu_box_d2 b, int operation = zu_select_replace) {
    zu_execute_viewer2d_select_box_set_scale(viewer_.get(), &b, operation, 1, 1);
  }
  void cross(Tzu_box_d2 b, int operation = zu_select_replace) {
    zu_execute_viewer2d_select_box_cross_set_scale(viewer_.get(), &b, operation, 1, 1);
  }
  void point(double x, double y, int operation = zu_select_replace, int all = 0) {
    Tzu_box_d2 near{x - 1, y - 1, x + 1, y + 1};
    Tzu_vtx_d2 at{x, y};
    zu_execute_viewer2d_select_vtx_set_scale_ex(viewer_.get(), &near, operation, &at, all, 1, 1);
  }

  owned<zu_scn_2d_destroy> scene_{zu_scn_2d_create()};
  owned<zu_viewer2d_destroy> viewer_{zu_viewer2d_create(nullptr)};
  std::vector<owned<zu_lr2d_destroy>> layers_;
  std::vector<std::string> files_;
};

/// Cells of 10 from (100, 200) to (140, 230), ids from the south-west.
constexpr std::array<double, 6> plain{100, 10, 0, 230, 0, -10};

TEST_F(selecting, a_point_selects_the_cell_under_it) {
  Izu_layer* layer = add(4, 3, plain);
  point(125, 205);
  EXPECT_EQ(selected(layer), (ids{2}));
  point(105, 225, zu_select_add);
  EXPECT_EQ(selected(layer), (ids{2, 8}));
  point(125, 205, zu_select_remove);
  EXPECT_EQ(selected(layer), (ids{8}));
  point(99, 205);
  EXPECT_TRUE(selected(layer).empty());
}
TEST_F(selecting, a_point_may_take_all_that_is_near) {
  Izu_layer* layer = add(4, 3, plain);
  point(109.5, 205, zu_select_replace, 1);
  EXPECT_EQ(selected(layer), (ids{0, 1}));
}
TEST_F(selecting, a_box_selects_what_lies_in_it_or_touches_it) {
  Izu_layer* layer = add(4, 3, plain);
  box({105, 195, 135, 225});
  EXPECT_EQ(selected(layer), (ids{1, 2, 5, 6}));
  cross({111, 211, 112, 212});
  EXPECT_EQ(selected(layer), (ids{5}));
  cross({111, 201, 122, 202}, zu_select_add);
  EXPECT_EQ(selected(layer), (ids{1, 2, 5}));
}
TEST_F(selecting, shapes_select_by_their_number) {
  Izu_layer* layer = add(4, 3, plain);
  owned<zu_ov_d2_destroy> objects(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(objects.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{95, 195}, {131, 195}, {131, 221}, {95, 221}})
    zu_pv_d2_add_vtx(ring, &v);
  auto select = [&](int shape) {
    zu_execute_viewer2d_select_geom_set_scale(viewer_.get(), objects.get(), 0, shape, 1, 1);
    return selected(layer);
  };
  EXPECT_EQ(select(zu_select_inside), (ids{0, 1, 2, 4, 5, 6}));
  EXPECT_EQ(select(zu_select_crossing).size(), 12u);
  EXPECT_EQ(select(zu_select_line), (ids{3, 7, 8, 9, 10, 11}));
  EXPECT_EQ(select(3), (ids{3, 7, 8, 9, 10, 11}));  // no such shape: nothing happens
}
TEST_F(selecting, the_active_layer_is_the_one_else_the_topmost_that_shows) {
  Izu_layer* low = add(4, 3, plain);
  Izu_layer* high = add(4, 3, plain);
  point(125, 205);
  EXPECT_TRUE(selected(low).empty());
  EXPECT_EQ(selected(high), (ids{2}));
  zu_lr2d_set_visible(high, false);
  point(105, 205);
  EXPECT_EQ(selected(low), (ids{0}));
  EXPECT_EQ(selected(high), (ids{2}));
  zu_scn_2d_set_active_layer(scene_.get(), high);
  point(115, 205);
  EXPECT_EQ(selected(low), (ids{0}));
  EXPECT_EQ(selected(high), (ids{1}));
}
TEST_F(selecting, nothing_happens_without_viewer_scene_or_source) {
  Tzu_box_d2 b{0, 0, 1, 1};
  zu_execute_viewer2d_select_box_set_scale(nullptr, &b, 0, 1, 1);
  box(b);  // a scene without layers
  Izu_layer* layer = add(4, 3, plain);
  zu_lr2d_set_wsource(layer, L"/nowhere/at/all.tif");
  box({0, 0, 1000, 1000});
  EXPECT_TRUE(selected(layer).empty());
}
TEST_F(selecting, a_turned_grid_is_selected_as_it_lies) {
  // Turned by 45 degrees about (0, 0); cell (0, 0) runs from there to the north.
  double s = std::sqrt(0.5);
  Izu_layer* layer = add(3, 3, {0, s, -s, 0, s, s});
  point(0, 0.7);
  EXPECT_EQ(selected(layer), (ids{0}));
  point(0, 4 * s - 0.3);
  EXPECT_EQ(selected(layer), (ids{4}));
  box({-2.2 * s, -0.1, 2.2 * s, 9 * s});
  EXPECT_EQ(selected(layer), (ids{0, 1, 3, 4, 5, 7, 8}));
}

/// What a person sees of a cell: its corners in the scene.
class reprojected : public selecting {
 protected:
  // Cells of a kilometre in zone 37 in a scene of degrees.
  static constexpr int nx = 30, ny = 20;
  static constexpr double x0 = 400000, y0 = 6150000, step = 1000;

  void SetUp() override {
    selecting::SetUp();
    zu_scn_2d_set_pj4wstr(scene_.get(), L"EPSG:4326");
    layer_ = add(nx, ny, {x0, step, 0, y0 + ny * step, 0, -step}, "EPSG:32637");
    zu_rpj_fb_d2_init_w(rpj_.get(), L"EPSG:32637", L"EPSG:4326");
  }
  Tzu_vtx_d2 in_scene(double column, double row) {
    Tzu_vtx_d2 v{x0 + column * step, y0 + row * step};
    zu_rpj_fb_d2_apply_xy(rpj_.get(), &v.x, &v.y, 1);
    return v;
  }

  Izu_layer* layer_ = nullptr;
  owned<zu_rpj_fb_d2_destroy> rpj_{zu_rpj_fb_d2_create()};
};

TEST_F(reprojected, a_point_selects_the_cell_that_is_seen_there) {
  for (int y = 0; y < ny; y += 3)
    for (int x = 0; x < nx; x += 7) {
      Tzu_vtx_d2 middle = in_scene(x + 0.5, y + 0.5);
      point(middle.x, middle.y);
      ASSERT_EQ(selected(layer_), (ids{static_cast<uint64_t>(y * nx + x)}));
    }
}
TEST_F(reprojected, boxes_select_by_the_corners_that_are_seen) {
  Tzu_vtx_d2 low = in_scene(6, 5), high = in_scene(23, 15);
  Tzu_box_d2 b{low.x, low.y, high.x, high.y};
  // Degrees of a fiftieth of a cell, within which either answer is right.
  double mx = (high.x - low.x) / 17 / 50, my = (high.y - low.y) / 10 / 50;
  auto holds = [&](const Tzu_vtx_d2& v, double m) {
    return v.x > b.x0 - m * mx && v.x < b.x1 + m * mx && v.y > b.y0 - m * my && v.y < b.y1 + m * my;
  };
  box(b);
  ids inside = selected(layer_);
  cross(b);
  ids crossing = selected(layer_);
  int sure = 0;
  for (int y = 0; y < ny; ++y)
    for (int x = 0; x < nx; ++x) {
      int well_in = 0, well_out = 0;
      for (int corner = 0; corner < 4; ++corner) {
        Tzu_vtx_d2 v = in_scene(x + corner % 2, y + corner / 2);
        well_in += holds(v, -1) ? 1 : 0;
        well_out += holds(v, 1) ? 0 : 1;
      }
      auto id = static_cast<uint64_t>(y * nx + x);
      sure += well_in == 4 || (well_in > 0 && well_out > 0) ? 1 : 0;
      if (well_in == 4) {
        EXPECT_EQ(inside.count(id), 1u) << x << ' ' << y;
      }
      if (well_out > 0) {
        EXPECT_EQ(inside.count(id), 0u) << x << ' ' << y;
      }
      if (well_in > 0) {
        EXPECT_EQ(crossing.count(id), 1u) << x << ' ' << y;
      }
      Tzu_vtx_d2 middle = in_scene(x + 0.5, y + 0.5);
      if (!holds(middle, 100)) {
        EXPECT_EQ(crossing.count(id), 0u) << x << ' ' << y;
      }
    }
  EXPECT_GT(sure, 100);
}
TEST_F(reprojected, a_box_around_the_whole_world_selects_all) {
  box({-180, -90, 180, 90});
  EXPECT_EQ(selected(layer_).size(), static_cast<std::size_t>(nx * ny));
}
TEST_F(reprojected, a_parallel_is_a_curve_across_the_cells) {
  owned<zu_ov_d2_destroy> objects(zu_ov_d2_create());
  Tzu_pv_d2* line = zu_ov_d2_add(objects.get());
  Tzu_vtx_d2 west = in_scene(0, 10.5), east{in_scene(nx, 10.5).x, west.y};
  zu_pv_d2_add_vtx(line, &west);
  zu_pv_d2_add_vtx(line, &east);
  zu_execute_viewer2d_select_geom_set_scale(viewer_.get(), objects.get(), 0, zu_select_line, 1, 1);
  ids seen;
  for (int i = 0; i <= 3000; ++i) {
    Tzu_vtx_d2 v{west.x + (east.x - west.x) * i / 3000, west.y};
    zu_rpj_fb_d2_apply_xy(rpj_.get(), &v.x, &v.y, 0);
    double x = std::floor((v.x - x0) / step), y = std::floor((v.y - y0) / step);
    if (x >= 0 && x < nx && y >= 0 && y < ny)
      seen.insert(static_cast<uint64_t>(y) * nx + static_cast<uint64_t>(x));
  }
  EXPECT_GT(seen.size(), static_cast<std::size_t>(nx) - 1);
  EXPECT_EQ(selected(layer_), seen);
}

}  // namespace
