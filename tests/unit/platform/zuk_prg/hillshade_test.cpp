// The shade of a relief, held against gdaldem and against slopes that a person can compute.

#include <cpl_conv.h>
#include <gdal_priv.h>
#include <gdal_utils.h>

#include <cmath>
#include <string>
#include <vector>

#include "tests/unit/platform/zuk_prg/made_double_grid.h"

namespace {

using tests::grid_ptr;
using tests::hills;
using tests::made_double_grid;

struct light {
  double z = 1, altitude = 45, azimuth = 315;
  bool multidirectional = false;
};

bool shade(const grid_ptr& grid, const light& l, const grid_ptr& out) {
  Tzu_hillshade_params* params = zu_hillshade_params_create();
  zu_hillshade_params_set_z_factor(params, l.z);
  zu_hillshade_params_set_sun(params, l.altitude, l.azimuth);
  zu_hillshade_params_set_multidirectional(params, l.multidirectional);
  bool shaded = zu_mgrid2d_hillshade(grid.get(), params, out.get());
  zu_hillshade_params_destroy(params);
  return shaded;
}
grid_ptr shaded(const grid_ptr& grid, const light& l) {
  grid_ptr out(zu_dbl_mgrid2d_create());
  EXPECT_TRUE(shade(grid, l, out));
  return out;
}

constexpr int nx = 83, ny = 61;
constexpr double cell = 10;
const Tzu_mgrid2d_topology from_south{500, 600, cell, cell, 0};

/// What gdaldem makes of the hills, whose row 0 here is the southernmost.
std::vector<double> by_gdaldem(const std::vector<std::string>& options) {
  GDALAllRegister();
  auto* memory = GetGDALDriverManager()->GetDriverByName("MEM");
  std::unique_ptr<GDALDataset> heights(memory->Create("", nx, ny, 1, GDT_Float64, nullptr));
  double transform[6] = {500, cell, 0, 600 + ny * cell, 0, -cell};
  heights->SetGeoTransform(transform);
  std::vector<double> row(nx), all;
  for (int y = 0; y < ny; ++y) {
    for (int x = 0; x < nx; ++x) row[static_cast<std::size_t>(x)] = hills(x, y);
    EXPECT_EQ(heights->GetRasterBand(1)->RasterIO(GF_Write, 0, ny - 1 - y, nx, 1, row.data(), nx, 1,
                                                  GDT_Float64, 0, 0, nullptr),
              CE_None);
  }
  CPLStringList list;
  list.AddString("-of").AddString("MEM");
  for (const std::string& option : options) list.AddString(option.c_str());
  GDALDEMProcessingOptions* parsed = GDALDEMProcessingOptionsNew(list.List(), nullptr);
  std::unique_ptr<GDALDataset> made(GDALDataset::FromHandle(GDALDEMProcessing(
      "", GDALDataset::ToHandle(heights.get()), "hillshade", nullptr, parsed, nullptr)));
  GDALDEMProcessingOptionsFree(parsed);
  for (int y = 0; y < ny; ++y) {
    EXPECT_EQ(made->GetRasterBand(1)->RasterIO(GF_Read, 0, ny - 1 - y, nx, 1, row.data(), nx, 1,
                                               GDT_Float64, 0, 0, nullptr),
              CE_None);
    all.insert(all.end(), row.begin(), row.end());
  }
  return all;
}

TEST(hillshade, is_what_gdaldem_computes) {
  struct {
    light l;
    std::vector<std::string> options;
  } const cases[] = {
      {{}, {}},
      {{3, 45, 315}, {"-z", "3"}},
      {{1, 20, 100}, {"-alt", "20", "-az", "100"}},
      {{0.5, 70, 0}, {"-z", "0.5", "-alt", "70", "-az", "0"}},
      {{1, 45, 315, true}, {"-multidirectional"}},
      {{2, 30, 77, true}, {"-multidirectional", "-z", "2", "-alt", "30"}},
  };
  grid_ptr heights = made_double_grid(nx, ny, from_south, hills);
  for (const auto& c : cases) {
    std::vector<double> expected = by_gdaldem(c.options);
    grid_ptr ours = shaded(heights, c.l);
    double low = 255, high = 0;
    for (std::uint64_t y = 1; y + 1 < ny; ++y)
      for (std::uint64_t x = 1; x + 1 < nx; ++x) {
        double wanted = expected[y * nx + x];  // a whole number
        ASSERT_NEAR(zu_mgrid2d_get_dbl(ours.get(), x, y), wanted, 0.75)
            << "case " << &c - cases << " at " << x << " " << y;
        low = std::min(low, wanted), high = std::max(high, wanted);
      }
    EXPECT_LT(low + 40, high) << "the hills are no test";
  }
}

TEST(hillshade, the_sun_stands_on_the_map_whichever_way_rows_and_columns_run) {
  struct {
    Tzu_mgrid2d_topology topology;
    bool turned_x, turned_y;
  } const cases[] = {{{500, 600 + (ny - 1) * cell, cell, -cell, 0}, false, true},
                     {{500 + (nx - 1) * cell, 600, -cell, cell, 0}, true, false}};
  for (bool multidirectional : {false, true}) {
    light l{1, 45, 280, multidirectional};
    grid_ptr expected = shaded(made_double_grid(nx, ny, from_south, hills), l);
    for (const auto& c : cases) {
      grid_ptr ours = shaded(made_double_grid(nx, ny, c.topology,
                                              [&](double x, double y) {
                                                return hills(c.turned_x ? nx - 1 - x : x,
                                                             c.turned_y ? ny - 1 - y : y);
                                              }),
                             l);
      for (std::uint64_t y = 0; y < ny; ++y)
        for (std::uint64_t x = 0; x < nx; ++x)
          ASSERT_NEAR(zu_mgrid2d_get_dbl(ours.get(), c.turned_x ? nx - 1 - x : x,
                                         c.turned_y ? ny - 1 - y : y),
                      zu_mgrid2d_get_dbl(expected.get(), x, y), 1e-9);
    }
  }
}

TEST(hillshade, a_grid_turned_about_its_origin_is_lit_from_the_same_side_of_the_map) {
  // Turned by a quarter counter-clockwise, columns run north and rows run west.
  for (bool multidirectional : {false, true}) {
    light l{1, 45, 280, multidirectional};
    grid_ptr straight = shaded(made_double_grid(nx, ny, from_south, hills), l);
    grid_ptr turned =
        shaded(made_double_grid(ny, nx, {0, 0, cell, cell, 90},
                                [&](double x, double y) { return hills(nx - 1 - y, x); }),
               l);
    for (std::uint64_t y = 0; y < ny; ++y)
      for (std::uint64_t x = 0; x < nx; ++x)
        ASSERT_NEAR(zu_mgrid2d_get_dbl(turned.get(), y, nx - 1 - x),
                    zu_mgrid2d_get_dbl(straight.get(), x, y), 1e-6);
  }
}

TEST(hillshade, a_plane_has_one_shade_to_its_very_frame) {
  // Rises a unit a unit to the north and is lit from there at 30 degrees: it lies in the dark. Lit
  // from the south at 45 degrees it faces the sun.
  struct {
    light l;
    double expected;
  } const cases[] = {{{1, 30, 0}, 1}, {{1, 45, 180}, 255}, {{0, 90, 0}, 255}, {{0, 30, 0}, 128}};
  grid_ptr plane = made_double_grid(5, 4, {0, 0, 2, 2, 0}, [](double, double y) { return 2 * y; });
  for (const auto& c : cases) {
    grid_ptr ours = shaded(plane, c.l);
    for (std::uint64_t y = 0; y < 4; ++y)
      for (std::uint64_t x = 0; x < 5; ++x)
        EXPECT_NEAR(zu_mgrid2d_get_dbl(ours.get(), x, y), c.expected, 1e-9) << x << " " << y;
  }
}

TEST(hillshade, the_gradient_at_the_frame_is_one_sided) {
  // 0 and 2, twice the rise of the middle, on the west side; a fold, whose middle has half of it.
  double heights[3] = {0, 2, 2};
  grid_ptr grid = made_double_grid(3, 2, {0, 0, 1, 1, 0},
                                   [&](double x, double) { return heights[static_cast<int>(x)]; });
  grid_ptr ours =
      shaded(grid, {1, 0, 270});  // on the horizon in the west: sin of the slope's angle
  for (std::uint64_t y : {0, 1}) {
    EXPECT_NEAR(zu_mgrid2d_get_dbl(ours.get(), 0, y), 1 + 254 * 2 / std::sqrt(5.0), 1e-9);
    EXPECT_NEAR(zu_mgrid2d_get_dbl(ours.get(), 1, y), 1 + 254 / std::sqrt(2.0), 1e-9);
    EXPECT_NEAR(zu_mgrid2d_get_dbl(ours.get(), 2, y), 1, 1e-9);
  }
}

TEST(hillshade, a_node_without_a_value_takes_the_shade_of_its_neighbours_and_no_more) {
  for (double gap : {static_cast<double>(NAN), static_cast<double>(INFINITY)})
    for (bool multidirectional : {false, true}) {
      grid_ptr grid = made_double_grid(9, 8, from_south, [&](double x, double y) {
        return x == 4 && y == 3 ? gap : hills(x, y);
      });
      grid_ptr ours = shaded(grid, {1, 45, 315, multidirectional});
      for (std::uint64_t y = 0; y < 8; ++y)
        for (std::uint64_t x = 0; x < 9; ++x)
          EXPECT_EQ(std::isfinite(zu_mgrid2d_get_dbl(ours.get(), x, y)),
                    x < 3 || x > 5 || y < 2 || y > 4)
              << x << " " << y;
    }
}

TEST(hillshade, a_grid_of_one_row_has_no_shade) {
  grid_ptr ours = shaded(made_double_grid(3, 1, from_south, hills), {});
  EXPECT_EQ(zu_mgrid2d_get_nx(ours.get()), 3u);
  for (std::uint64_t x : {0, 1, 2}) EXPECT_TRUE(std::isnan(zu_mgrid2d_get_dbl(ours.get(), x, 0)));
}

TEST(hillshade, what_cannot_be_lit_fails) {
  grid_ptr grid = made_double_grid(3, 3, from_south, hills), empty(zu_dbl_mgrid2d_create());
  EXPECT_FALSE(shade(grid, {NAN}, empty));
  EXPECT_FALSE(shade(grid, {1, INFINITY}, empty));
  EXPECT_FALSE(shade(empty, {}, grid));
  EXPECT_FALSE(shade(grid, {}, grid));
  EXPECT_FALSE(shade(grid, {}, nullptr));
  EXPECT_EQ(zu_mgrid2d_get_dbl(grid.get(), 1, 2), hills(1, 2));
}

TEST(hillshade, rows_shared_between_cores_are_as_those_of_one) {
  // Enough nodes for several parts, compared with strips too small to be shared.
  constexpr std::uint64_t wide = 500, high = 600;
  grid_ptr whole = shaded(made_double_grid(wide, high, from_south, hills), {});
  for (std::uint64_t y = 1; y + 1 < high; ++y) {
    grid_ptr strip = shaded(made_double_grid(wide, 3, from_south,
                                             [&](double x, double dy) {
                                               return hills(x, static_cast<double>(y) - 1 + dy);
                                             }),
                            {});
    for (std::uint64_t x = 0; x < wide; ++x)
      ASSERT_EQ(zu_mgrid2d_get_dbl(whole.get(), x, y), zu_mgrid2d_get_dbl(strip.get(), x, 1));
  }
}

}  // namespace
