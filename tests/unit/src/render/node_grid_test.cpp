#include "src/render/node_grid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/unit/src/made_source.h"

namespace {

using namespace zu;
using tests::made_source;

/// A field resampled with the settings that a test chooses, by matrix or by the mesh of an identity
/// step.
class resampling : public testing::TestWithParam<bool> {
 protected:
  grid_render_context context;
  Tzu_box_d2 box{0, 0, 4, 3};

  resampling() {
    Tzu_matrix3x3 identity;
    zu_matrix3x3_init_single(&identity);
    zu_rpj_fb_d2_set_use_affine_after(rpj_.get(), GetParam());
    zu_rpj_fb_d2_set_affine_after(rpj_.get(), &identity);
    context.reprojection = {rpj_.get(), GetParam()};
    context.params.stl_mngr = manager_.get();
  }
  void coloured_by(const wchar_t* field) {
    zu_stl_mngr_set_mode(manager_.get(), zu_style_range);
    zu_stl_mngr_set_rng_prop_name_w(manager_.get(), field);
  }
  bool run(made_source& source, std::uint64_t nx, std::uint64_t ny, const wchar_t* field) {
    data::grid_datasource data;
    if (!data.attach(source.handle()) || !data.bind(L"made", 0)) return false;
    grid_ = make_node_grid(box, nx, ny);
    return resample(context, data, box, field, grid_.get());
  }
  double node(std::uint64_t x, std::uint64_t y) { return zu_mgrid2d_get_dbl(grid_.get(), x, y); }

 private:
  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  owned<zu_rpj_fb_d2_destroy> rpj_{zu_rpj_fb_d2_create()};
  owned_grid grid_;
};
INSTANTIATE_TEST_SUITE_P(both_forms, resampling, testing::Values(false, true),
                         [](const auto& form) { return form.param ? "mesh" : "matrix"; });

const std::vector<double> ramp = {0, 10, 20, 30, 100, 110, 120, 130, 200, 210, 220, 230};

TEST_P(resampling, a_node_is_the_field_at_its_pixels_low_corner_whatever_the_layer_interpolates) {
  made_source s(4, 3);
  s.add(L"z", ramp);
  for (bool interpolate : {false, true}) {
    context.params.interpolate = interpolate;
    ASSERT_TRUE(run(s, 4, 3, L"z"));
    for (std::uint64_t y : {1, 2})
      for (std::uint64_t x : {1, 2, 3})
        EXPECT_NEAR(node(x, y),
                    10 * (static_cast<double>(x) - 0.5) + 100 * (static_cast<double>(y) - 0.5),
                    1e-9);
  }
}

TEST_P(resampling, a_node_beyond_the_middles_of_the_outer_cells_has_no_value) {
  made_source s(4, 3);
  s.add(L"z", ramp);
  ASSERT_TRUE(run(s, 4, 3, L"z"));
  for (std::uint64_t x = 0; x < 4; ++x) EXPECT_TRUE(std::isnan(node(x, 0)));
  for (std::uint64_t y = 0; y < 3; ++y) EXPECT_TRUE(std::isnan(node(0, y)));
}

TEST_P(resampling, a_sample_without_a_value_takes_the_nodes_around_it) {
  made_source s(4, 3);
  auto& band = s.add(L"z", ramp);
  band.has_nodata = true, band.nodata = 110;
  ASSERT_TRUE(run(s, 4, 3, L"z"));
  for (std::uint64_t y : {1, 2})
    for (std::uint64_t x : {1, 2}) EXPECT_TRUE(std::isnan(node(x, y)));
  EXPECT_NEAR(node(3, 1), 75, 1e-9);
}

TEST_P(resampling, without_a_name_it_follows_the_colouring_field) {
  made_source s(4, 3);
  s.add(L"other", std::vector<double>(12, 5.0));
  s.add(L"z", ramp);
  EXPECT_FALSE(run(s, 4, 3, L""));  // a simple style has no field
  coloured_by(L"Z");
  ASSERT_TRUE(run(s, 4, 3, L""));
  EXPECT_NEAR(node(1, 1), 55, 1e-9);
  ASSERT_TRUE(run(s, 4, 3, L"other"));
  EXPECT_EQ(node(1, 1), 5);
  context.params.stl_mngr = nullptr;
  EXPECT_FALSE(run(s, 4, 3, L""));
}

TEST_P(resampling, fails_without_the_field_the_matrix_a_tile_or_a_grid_under_the_box) {
  made_source s(4, 3);
  s.add(L"z", ramp);
  EXPECT_FALSE(run(s, 4, 3, L"missing"));
  s.refuse_matrix = true;
  EXPECT_FALSE(run(s, 4, 3, L"z"));
  s.refuse_matrix = false;
  s.reads_before_failure = 0;
  EXPECT_FALSE(run(s, 4, 3, L"z"));
  s.reads_before_failure = -1;
  box = {100, 100, 104, 103};
  EXPECT_FALSE(run(s, 4, 3, L"z"));
  EXPECT_EQ(s.blocks_alive, 0);
}

TEST_P(resampling, reads_each_tile_once_and_gives_the_read_mode_on) {
  made_source s(9, 7);
  s.add(L"z", std::vector<double>(63, 1.0));
  box = {0, 0, 9, 7};
  context.params.read_mode = 3;
  ASSERT_TRUE(run(s, 18, 14, L"z"));
  EXPECT_FALSE(s.tile_reads.empty());
  for (const auto& [tile, reads] : s.tile_reads) EXPECT_EQ(reads, 1);
  EXPECT_EQ(s.read_modes, std::vector<std::uint32_t>{3});
}

TEST(node_grid, a_box_without_area_has_none) {
  EXPECT_FALSE(make_node_grid({0, 0, 0, 3}, 4, 3));
  EXPECT_FALSE(make_node_grid({0, 0, 4, 3}, 0, 3));
  EXPECT_TRUE(make_node_grid({0, 0, 4, 3}, 4, 3));
}

}  // namespace
