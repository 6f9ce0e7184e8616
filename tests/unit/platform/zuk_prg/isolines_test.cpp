// Lines of equal value, held against GDAL's own and against fields that a person can draw.

#include <gdal_alg.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "tests/unit/platform/zuk_prg/made_double_grid.h"

namespace {

using tests::grid_ptr;
using tests::hills;
using tests::made_double_grid;

using polyline = std::vector<std::pair<double, double>>;

class traced_lines {
 public:
  traced_lines(const grid_ptr& grid, const std::vector<double>& levels) {
    Tzu_dbls* list = zu_dbls_create();
    for (double level : levels) zu_dbls_add(list, level);
    done = zu_mgrid2d_isolines(grid.get(), list, lines_);
    zu_dbls_destroy(list);
  }
  ~traced_lines() { zu_cv_d2_destroy(lines_); }
  traced_lines(const traced_lines&) = delete;
  traced_lines& operator=(const traced_lines&) = delete;

  bool done = false;
  std::uint64_t size() const { return zu_cv_d2_get_size(lines_); }
  double level(std::uint64_t i) const {
    double value = NAN;
    zu_ov_d2_get_level(zu_cv_d2_get_ov_ptr(lines_, i), &value);
    return value;
  }
  std::vector<polyline> of(std::uint64_t i) const {
    std::vector<polyline> all;
    Tzu_ov_d2* set = zu_cv_d2_get_ov_ptr(lines_, i);
    for (std::uint64_t k = 0; k < zu_ov_d2_get_size(set); ++k) {
      Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(set, k);
      polyline line;
      for (std::uint64_t v = 0; v < zu_pv_d2_get_size(list); ++v)
        line.emplace_back(zu_pv_d2_get_arr(list)[v].x, zu_pv_d2_get_arr(list)[v].y);
      all.push_back(line);
    }
    return all;
  }

 private:
  Tzu_cv_d2* lines_ = zu_cv_d2_create();
};

/// GDAL's lines of one level of the hills, whose nodes are the middles of the cells.
std::vector<polyline> by_gdal(int nx, int ny, std::array<double, 6> transform, double level) {
  GDALAllRegister();
  std::unique_ptr<GDALDataset> grid(
      GetGDALDriverManager()->GetDriverByName("MEM")->Create("", nx, ny, 1, GDT_Float64, nullptr));
  grid->SetGeoTransform(transform.data());
  for (int y = 0; y < ny; ++y)
    for (int x = 0; x < nx; ++x) {
      double value = hills(x, y);
      EXPECT_EQ(grid->GetRasterBand(1)->RasterIO(GF_Write, x, y, 1, 1, &value, 1, 1, GDT_Float64, 0,
                                                 0, nullptr),
                CE_None);
    }
  std::unique_ptr<GDALDataset> out(
      GetGDALDriverManager()->GetDriverByName("Memory")->Create("", 0, 0, 0, GDT_Unknown, nullptr));
  OGRLayer* layer = out->CreateLayer("lines", nullptr, wkbLineString);
  EXPECT_EQ(GDALContourGenerate(grid->GetRasterBand(1), 0, 0, 1, &level, false, 0,
                                OGRLayer::ToHandle(layer), -1, -1, nullptr, nullptr),
            CE_None);
  std::vector<polyline> all;
  for (auto& feature : layer) {
    polyline line;
    for (const OGRPoint& point : feature->GetGeometryRef()->toLineString())
      line.emplace_back(point.getX(), point.getY());
    all.push_back(line);
  }
  return all;
}

TEST(isolines, are_gdals_with_the_nodes_at_the_low_corners) {
  // The middle of GDAL's first cell, (1000 - 5 + 5, 2000 - 10 + 10), is the origin here.
  const Tzu_mgrid2d_topology topology{1000, 2000, 10, 20, 0};
  grid_ptr grid = made_double_grid(60, 40, topology, hills);
  const std::vector<double> levels = {-55, 0, 0.1, 123.456};
  traced_lines ours(grid, levels);
  ASSERT_TRUE(ours.done);
  ASSERT_EQ(ours.size(), levels.size());
  for (std::size_t i = 0; i < levels.size(); ++i) {
    EXPECT_EQ(ours.level(i), levels[i]);
    std::vector<polyline> expected = by_gdal(60, 40, {995, 10, 0, 1990, 0, 20}, levels[i]);
    std::vector<polyline> found = ours.of(i);
    ASSERT_GT(expected.size(), 1u);
    ASSERT_EQ(found.size(), expected.size());
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    for (std::size_t k = 0; k < found.size(); ++k) {
      ASSERT_EQ(found[k].size(), expected[k].size());
      for (std::size_t v = 0; v < found[k].size(); ++v) {
        EXPECT_NEAR(found[k][v].first, expected[k][v].first, 1e-9);
        EXPECT_NEAR(found[k][v].second, expected[k][v].second, 1e-9);
      }
    }
  }
}

TEST(isolines, cross_the_nodes_sides_where_the_level_lies_between_them) {
  grid_ptr ramp =
      made_double_grid(4, 3, {100, 200, 10, 10, 0}, [](double x, double) { return 10 * x; });
  traced_lines lines(ramp, {15, 22});
  ASSERT_EQ(lines.size(), 2u);
  for (auto [i, x] : {std::pair(0, 115.0), std::pair(1, 122.0)}) {
    std::vector<polyline> all = lines.of(static_cast<std::uint64_t>(i));
    ASSERT_EQ(all.size(), 1u);
    double low = 1e9, high = -1e9;
    for (auto [px, py] : all[0]) {
      EXPECT_NEAR(px, x, 1e-5);
      low = std::min(low, py), high = std::max(high, py);
    }
    // Half a spacing beyond the outermost nodes, so that adjoining grids meet.
    EXPECT_NEAR(low, 195, 1e-9);
    EXPECT_NEAR(high, 225, 1e-9);
  }
}

TEST(isolines, follow_the_spacings_sign_and_the_turn_of_the_grid) {
  auto ramp = [](double x, double) { return 10 * x; };
  traced_lines reversed(made_double_grid(4, 3, {100, 200, -10, 10, 0}, ramp), {15});
  polyline line = reversed.of(0).at(0);
  for (auto [x, y] : line) EXPECT_NEAR(x, 85, 1e-5);
  traced_lines turned(made_double_grid(4, 3, {100, 200, 10, 10, 90}, ramp), {15});
  line = turned.of(0).at(0);
  for (auto [x, y] : line) EXPECT_NEAR(y, 215, 1e-5);
}

TEST(isolines, a_hill_has_a_closed_line) {
  grid_ptr hill = made_double_grid(
      9, 9, {0, 0, 1, 1, 0}, [](double x, double y) { return 10 - std::hypot(x - 4, y - 4); });
  std::vector<polyline> all = traced_lines(hill, {7.5}).of(0);
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].front(), all[0].back());
  for (auto [x, y] : all[0]) EXPECT_NEAR(std::hypot(x - 4, y - 4), 2.5, 0.2);
}

TEST(isolines, a_level_that_no_line_has_keeps_its_place) {
  grid_ptr ramp = made_double_grid(4, 3, {0, 0, 1, 1, 0}, [](double x, double) { return x; });
  traced_lines lines(ramp, {-5, 1.5, 77});
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines.of(0).size(), 0u);
  EXPECT_EQ(lines.of(1).size(), 1u);
  EXPECT_EQ(lines.of(2).size(), 0u);
  EXPECT_EQ(lines.level(2), 77);
}

TEST(isolines, stay_off_nodes_without_a_value) {
  for (double gap : {static_cast<double>(NAN), static_cast<double>(INFINITY)}) {
    grid_ptr ramp = made_double_grid(
        7, 7, {0, 0, 1, 1, 0}, [&](double x, double y) { return x == 3 && y == 3 ? gap : y; });
    std::vector<polyline> all = traced_lines(ramp, {2.5, 3.25}).of(0);
    ASSERT_FALSE(all.empty());
    for (const polyline& line : all)
      for (auto [x, y] : line) EXPECT_GE(std::max(std::abs(x - 3), std::abs(y - 3)), 0.5 - 1e-9);
  }
  grid_ptr none = made_double_grid(4, 4, {0, 0, 1, 1, 0}, [](double, double) { return NAN; });
  traced_lines nothing(none, {1});
  EXPECT_TRUE(nothing.done);
  EXPECT_EQ(nothing.of(0).size(), 0u);
}

TEST(isolines, a_constant_field_has_no_lines_at_other_levels) {
  grid_ptr flat = made_double_grid(4, 4, {0, 0, 1, 1, 0}, [](double, double) { return 5.0; });
  traced_lines lines(flat, {4, 6});
  EXPECT_TRUE(lines.done);
  EXPECT_EQ(lines.of(0).size() + lines.of(1).size(), 0u);
}

TEST(isolines, levels_that_do_not_rise_fail) {
  grid_ptr grid = made_double_grid(9, 9, {0, 0, 1, 1, 0}, hills);
  for (const std::vector<double>& levels :
       {std::vector<double>{1, 1}, {2, 1}, {1, NAN}, {INFINITY}}) {
    traced_lines lines(grid, levels);
    EXPECT_FALSE(lines.done);
    EXPECT_EQ(lines.size(), 0u);
  }
  EXPECT_TRUE(traced_lines(grid, {}).done);
}

TEST(isolines, of_nothing_fail) {
  Tzu_dbls* levels = zu_dbls_create();
  Tzu_cv_d2* lines = zu_cv_d2_create();
  grid_ptr empty(zu_dbl_mgrid2d_create());
  EXPECT_FALSE(zu_mgrid2d_isolines(nullptr, levels, lines));
  EXPECT_FALSE(zu_mgrid2d_isolines(empty.get(), levels, lines));
  grid_ptr grid = made_double_grid(3, 3, {0, 0, 1, 1, 0}, hills);
  EXPECT_FALSE(zu_mgrid2d_isolines(grid.get(), nullptr, lines));
  EXPECT_FALSE(zu_mgrid2d_isolines(grid.get(), levels, nullptr));
  EXPECT_EQ(zu_cv_d2_get_ov_ptr(lines, 0), nullptr);
  zu_cv_d2_destroy(lines);
  zu_dbls_destroy(levels);
}

}  // namespace
