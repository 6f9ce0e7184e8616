// Every fill, in both forms, on grids small enough to check by hand.

#include <gtest/gtest.h>

#include "src/render/fill_dibs.h"
#include "tests/unit/src/made_source.h"
#include "tests/unit/src/render/picture.h"
#include "zu/platform/zuk_attr_data.h"

namespace {

using namespace zu;
using tests::clear;
using tests::fill_bench;
using tests::made_source;
using tests::opaque;
using tests::word;

const std::uint32_t red = opaque(255, 0, 0), green = opaque(0, 255, 0), blue = opaque(0, 0, 255);

/// Each test runs with the matrix and with the mesh of an identity step: the same pixels.
class fills : public testing::TestWithParam<bool> {
 protected:
  fill_bench bench{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(both_forms, fills, testing::Values(false, true),
                         [](const auto& form) { return form.param ? "mesh" : "matrix"; });

void two_classes(fill_bench& b) { b.range_scale({0, 10, 20}, {blue, red, green, opaque(1, 1, 1)}); }

TEST_P(fills, range_scale_takes_the_class_of_the_nearest_sample) {
  made_source s(3, 2);
  s.add(L"z", {0, 5, 10, 15, 20, 25});
  two_classes(bench);
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 2}, 3, 2));
  EXPECT_EQ(bench.main(),
            (std::vector<std::uint32_t>{blue, red, red, green, green, opaque(1, 1, 1)}));
}

TEST_P(fills, a_pixel_smaller_than_a_cell_shows_the_cell_it_starts_in) {
  made_source s(2, 1);
  s.add(L"z", {5, 15});
  two_classes(bench);
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 1}, 6, 2));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{red, red, red, green, green, green,  //
                                                      red, red, red, green, green, green}));
}

TEST_P(fills, a_large_picture_whose_rows_are_shared_out_has_every_pixel) {
  made_source s(3, 2);
  s.add(L"z", {5, 15, 25, 15, 25, 5});
  two_classes(bench);
  constexpr std::size_t nx = 600, ny = 402;
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 2}, nx, ny));
  const std::uint32_t expected[2][3] = {{red, green, opaque(1, 1, 1)},
                                        {green, opaque(1, 1, 1), red}};
  std::vector<std::uint32_t> all = bench.main();
  ASSERT_EQ(all.size(), nx * ny);
  std::size_t wrong = 0;
  for (std::size_t i = 0; i < all.size(); ++i)
    if (all[i] != expected[i / nx * 2 / ny][i % nx * 3 / nx]) ++wrong;
  EXPECT_EQ(wrong, 0u);
}

TEST_P(fills, decimation_takes_the_sample_in_the_middle_of_its_step) {
  made_source s(4, 4);
  s.add(L"z", {1, 1, 1, 1, 1, 5, 1, 15, 1, 1, 1, 1, 1, 25, 1, 5});
  two_classes(bench);
  // Two nodes a pixel: samples at trunc((i + 0.5) * 2) = 1 and 3.
  ASSERT_TRUE(bench.fill(s, {0, 0, 4, 4}, 2, 2));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{red, green, opaque(1, 1, 1), red}));
}

TEST_P(fills, a_hidden_class_and_other_are_transparent) {
  made_source s(3, 1);
  s.add(L"z", {5, 15, std::nan("")});
  two_classes(bench);
  zu_scale_prm_set_visible(zu_rng_scale_get_scale_prm_ptr(bench.range(), 0), false);
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{clear, green, clear}));
}

TEST_P(fills, a_colour_goes_to_the_pixel_with_its_own_alpha) {
  made_source s(1, 1);
  s.add(L"z", {5});
  bench.range_scale({0, 10}, {blue, word(1, 2, 3, 77), green});
  ASSERT_TRUE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{word(1, 2, 3, 77)});
}

TEST_P(fills, nan_without_nodata_reaches_the_scale) {
  made_source s(1, 1);
  s.add(L"z", {std::nan("")});
  two_classes(bench);
  Tzu_scale_prm* other = zu_rng_scale_get_other_prm_ptr(bench.range());
  zu_scale_prm_set_visible(other, true);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(other), {9, 9, 9, 0}, 0);
  ASSERT_TRUE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{opaque(9, 9, 9)});
}

TEST_P(fills, a_sample_within_the_tolerance_of_nodata_is_nodata) {
  made_source s(4, 1);
  auto& band = s.add(L"z", {0, 5e-7, 2e-6, -1e-6});
  band.has_nodata = true;  // 0, so that the tolerance is 1e-6
  two_classes(bench);
  ASSERT_TRUE(bench.fill(s, {0, 0, 4, 1}, 4, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{clear, clear, red, clear}));
}

TEST_P(fills, bilinear_interpolates_the_value_and_leaves_the_outermost_half_cell) {
  made_source s(2, 2);
  s.add(L"z", {0, 8, 8, 16});
  bench.range_scale({-1, 4, 8, 12}, {blue, red, green, blue, opaque(1, 1, 1)});
  bench.params.interpolate = true;
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 2}, 4, 4));
  // Between the middles at 0.5 and 1.5 the values are 0, 4 / 4, 8: low corners at 0.5 and 1.
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{clear, clear, clear, clear,  //
                                                      clear, red, red, clear,      //
                                                      clear, red, green, clear,    //
                                                      clear, clear, clear, clear}));
}

TEST_P(fills, nearest_draws_the_half_cell_that_bilinear_leaves) {
  made_source s(2, 2);
  s.add(L"z", {5, 5, 5, 5});
  two_classes(bench);
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 2}, 4, 4));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>(16, red));
}

std::ptrdiff_t clear_pixels(fill_bench& b) {
  std::vector<std::uint32_t> pixels = b.main();
  return std::count(pixels.begin(), pixels.end(), clear);
}

TEST_P(fills, one_nodata_sample_blanks_a_cell_with_nearest_and_its_neighbours_with_bilinear) {
  made_source s(5, 5);
  std::vector<double> values(25, 5.0);
  values[12] = -9999;
  auto& band = s.add(L"z", values);
  band.has_nodata = true;
  band.nodata = -9999;
  two_classes(bench);
  ASSERT_TRUE(bench.fill(s, {0, 0, 5, 5}, 10, 10));
  EXPECT_EQ(clear_pixels(bench), 2 * 2);
  bench.params.interpolate = true;
  ASSERT_TRUE(bench.fill(s, {1, 1, 4, 4}, 6, 6));
  // Low corners from 1.5 up to but without 3.5 lie between it and a neighbour.
  EXPECT_EQ(clear_pixels(bench), 4 * 4);
}

TEST_P(fills, value_scale_matches_samples_and_is_never_interpolated) {
  made_source s(3, 1);
  s.add(L"z", {1, 2, 3});
  bench.value_scale({{L"1", red}, {L"3", blue}});
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  std::vector<std::uint32_t> plain{red, clear, blue};
  EXPECT_EQ(bench.main(), plain);
  bench.params.interpolate = true;
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(), plain);
}

TEST_P(fills, simple_draws_the_whole_rectangle_nodata_or_not_and_reads_nothing) {
  made_source s(2, 2);
  auto& band = s.add(L"z", {0, 0, 0, 0});
  band.has_nodata = true;
  bench.simple({1, 2, 3, 4});
  ASSERT_TRUE(bench.fill(s, {-1, 0, 2, 2}, 3, 2));
  std::uint32_t colour = word(1, 2, 3, 4);
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{clear, colour, colour,  //
                                                      clear, colour, colour}));
  EXPECT_EQ(s.block_requests, 0);
}

TEST_P(fills, gray_goes_through_the_gray_channel) {
  made_source s(3, 1);
  auto& band = s.add(L"z", {0, 50, -1});
  band.has_nodata = true;
  band.nodata = -1;
  bench.params.draw_type = grid_draw_gray;
  bench.channel(zu_rgb_channels_get_gray(bench.params.rgb_channels), L"z", 0, 100);
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(),
            (std::vector<std::uint32_t>{opaque(0, 0, 0), opaque(128, 128, 128), clear}));
}

TEST_P(fills, three_channels_need_a_value_in_each) {
  made_source s(3, 1);
  s.add(L"a", {0, 1, 2});
  auto& b = s.add(L"b", {10, 20, 30});
  b.has_nodata = true;
  b.nodata = 20;
  s.add(L"c", {5, 5, 5});
  bench.params.draw_type = grid_draw_rgb;
  bench.channel(zu_rgb_channels_get_red(bench.params.rgb_channels), L"a", 0, 2);
  bench.channel(zu_rgb_channels_get_green(bench.params.rgb_channels), L"b", 0, 30);
  bench.channel(zu_rgb_channels_get_blue(bench.params.rgb_channels), L"c", 0, 255);
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(),
            (std::vector<std::uint32_t>{opaque(0, 85, 5), clear, opaque(255, 255, 5)}));
}

void byte_band(made_source& s, std::int32_t role, std::vector<double> values) {
  auto& band = s.add(L"band", std::move(values));
  band.type = element_uint8;
  band.role = role;
}

TEST_P(fills, a_gray_image_shows_its_bytes_and_nodata_as_nothing) {
  made_source s(3, 1);
  auto& band = s.add(L"g", {0, 7, 255});
  band.type = element_uint8;
  band.role = role_gray;
  band.has_nodata = true;
  band.nodata = 7;
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(),
            (std::vector<std::uint32_t>{opaque(0, 0, 0), clear, opaque(255, 255, 255)}));
}

TEST_P(fills, a_palette_gives_four_bytes_and_knows_no_nodata) {
  made_source s(3, 1);
  auto& band = s.add(L"p", {0, 1, 2});
  band.type = element_uint8;
  band.role = role_palette;
  band.has_nodata = true;
  band.nodata = 1;
  band.palette = {{1, 2, 3, 0}, {4, 5, 6, 200}};
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{opaque(1, 2, 3), word(4, 5, 6, 200), clear}));
  EXPECT_EQ(s.palettes_alive, 0);
}

TEST_P(fills, a_gray_band_with_a_palette_is_shown_by_it) {
  made_source s(1, 1);
  byte_band(s, role_gray, {0});
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{opaque(0, 0, 0)});
  made_source with(1, 1);
  auto& band = with.add(L"g", {0});
  band.type = element_uint8;
  band.role = role_gray;
  band.palette = {{9, 8, 7, 0}};
  ASSERT_TRUE(bench.fill(with, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{opaque(9, 8, 7)});
}

TEST_P(fills, rgb_bytes_need_all_three) {
  made_source s(2, 1);
  byte_band(s, role_red, {1, 4});
  byte_band(s, role_green, {2, 5});
  auto& band = s.add(L"b", {3, 6});
  band.type = element_uint8;
  band.role = role_blue;
  band.has_nodata = true;
  band.nodata = 6;
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 1}, 2, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{opaque(1, 2, 3), clear}));
}

TEST_P(fills, an_alpha_band_is_an_opacity) {
  made_source s(2, 1);
  byte_band(s, role_red, {1, 4});
  byte_band(s, role_green, {2, 5});
  byte_band(s, role_blue, {3, 6});
  byte_band(s, role_alpha, {255, 55});
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 1}, 2, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{opaque(1, 2, 3), word(4, 5, 6, 200)}));
}

TEST_P(fills, the_last_band_of_a_role_counts) {
  made_source s(1, 1);
  byte_band(s, role_red, {1});
  byte_band(s, role_green, {2});
  byte_band(s, role_blue, {3});
  byte_band(s, role_red, {9});
  byte_band(s, 7, {9});
  bench.params.draw_type = grid_draw_image;
  ASSERT_TRUE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{opaque(9, 2, 3)});
}

TEST(fill_dibs, refuses_an_image_whose_bands_make_none) {
  struct {
    std::vector<std::int32_t> roles;
  } const cases[] = {{{role_red, role_green, role_alpha}},
                     {{role_red}},
                     {{role_alpha}},
                     {{role_none}},
                     {{}},
                     {{role_palette}}};
  for (const auto& c : cases) {
    made_source s(1, 1);
    for (std::int32_t role : c.roles) byte_band(s, role, {1});
    fill_bench bench(false);
    bench.params.draw_type = grid_draw_image;
    EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1)) << c.roles.size();
  }
}

TEST(fill_dibs, refuses_what_names_no_field) {
  made_source s(1, 1);
  s.add(L"z", {5});
  fill_bench bench(false);
  bench.range_scale({0, 10}, {red, red, red}, L"");
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  bench.range_scale({0, 10}, {red, red, red}, L"y");
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  bench.params.draw_type = grid_draw_gray;
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  bench.params.draw_type = grid_draw_rgb;
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  bench.params.draw_type = 4;
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  bench.params.draw_type = grid_draw_scale;
  bench.params.stl_mngr = nullptr;
  EXPECT_FALSE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
}

TEST(fill_dibs, finds_a_field_by_its_exact_name_first_and_then_ignoring_case) {
  made_source s(1, 1);
  s.add(L"Z", {5});
  s.add(L"z", {15});
  fill_bench bench(false);
  bench.range_scale({0, 10, 20}, {blue, red, green, blue}, L"z");
  ASSERT_TRUE(bench.fill(s, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{green});
  made_source other(1, 1);
  other.add(L"zZ", {5});
  other.add(L"ZZ", {15});
  bench.range_scale({0, 10, 20}, {blue, red, green, blue}, L"zz");
  ASSERT_TRUE(bench.fill(other, {0, 0, 1, 1}, 1, 1));
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>{red});
}

TEST(fill_dibs, punches_out_the_colour_whose_four_bytes_agree) {
  made_source s(3, 1);
  s.add(L"z", {5, 15, 5});
  fill_bench bench(false);
  bench.range_scale({0, 10, 20}, {blue, red, word(255, 0, 0, 255), blue});
  bench.params.transparent_color = {{255, 0, 0, 255}, 1};
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{red, clear, red}));
  bench.params.transparent_color = {{255, 0, 0, 0}, 1};
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 1}, 3, 1));
  EXPECT_EQ(bench.main(), (std::vector<std::uint32_t>{clear, word(255, 0, 0, 255), clear}));
}

TEST_P(fills, a_pixel_on_the_edge_of_a_cell_is_not_rounded_below_it) {
  struct {
    double x0, y0, cell;
  } places[] = {{399960, 6000000, 30},  // not one of these has an exact inverse
                {37.1 / 3, 55.7, 1.0 / 1200},
                {-171.3, -12.9, 1.0 / 3600},
                {500000.1, 4999999.7, 0.1},
                {17.9, 3.3, 0.7}};
  for (auto [x0, y0, cell] : places)
    for (std::int32_t n = 7; n < 40; n += 3) {
      made_source s(n, n);
      s.x0 = x0, s.y0 = y0, s.cell = cell;
      std::vector<double> values;
      for (std::int32_t i = 0; i < n * n; ++i) values.push_back((i % n + i / n) % 2 == 0 ? 5 : 15);
      s.add(L"z", values);
      two_classes(bench);
      auto side = static_cast<std::uint64_t>(n);
      Tzu_box_d2 box;
      s.extent(&box.x0, true);
      ASSERT_TRUE(bench.fill(s, box, side, side));
      std::vector<std::uint32_t> expected;
      for (double v : values) expected.push_back(v == 5 ? red : green);
      EXPECT_EQ(bench.main(), expected) << n << " cells of " << cell << " at " << x0;
    }
}

TEST(fill_dibs, a_grid_without_matrix_or_outside_the_box_is_not_drawn) {
  made_source s(2, 2);
  s.add(L"z", {5, 5, 5, 5});
  fill_bench bench(false);
  bench.simple({1, 2, 3, 0});
  EXPECT_FALSE(bench.fill(s, {10, 10, 12, 12}, 2, 2));
  s.refuse_matrix = true;
  EXPECT_FALSE(bench.fill(s, {0, 0, 2, 2}, 2, 2));
}

// Selection

TEST_P(fills, the_selection_shows_the_cells_whose_ids_are_selected) {
  made_source s(3, 2);
  s.add(L"z", {5, 5, 5, 5, 5, 5});
  two_classes(bench);
  bench.select({1, 5}, {7, 8, 9, 100});
  ASSERT_TRUE(bench.fill(s, {0, 0, 3, 2}, 3, 2, fill_bench::main_and_selection));
  std::uint32_t colour = word(7, 8, 9, 100);
  EXPECT_EQ(bench.main(), std::vector<std::uint32_t>(6, red));
  EXPECT_EQ(bench.selection(),
            (std::vector<std::uint32_t>{clear, colour, clear, clear, clear, colour}));
  EXPECT_EQ(s.blocks_alive, 0);
}

TEST_P(fills, the_selection_alone_reads_only_ids) {
  made_source s(2, 1);
  s.add(L"z", {5, 5});
  two_classes(bench);
  bench.select({0}, {7, 8, 9, 0});
  ASSERT_TRUE(bench.fill(s, {0, 0, 2, 1}, 2, 1, fill_bench::selection_alone));
  EXPECT_EQ(bench.selection(), (std::vector<std::uint32_t>{opaque(7, 8, 9), clear}));
  EXPECT_EQ(s.block_requests, 0);
}

// What can be counted

TEST(fill_dibs, reads_each_tile_once_and_gives_the_read_mode_to_each_block) {
  made_source s(16, 8);
  s.add(L"z", std::vector<double>(128, 5.0));
  fill_bench bench(false);
  two_classes(bench);
  bench.params.read_mode = 3;
  ASSERT_TRUE(bench.fill(s, {0, 0, 16, 8}, 8, 4));
  EXPECT_EQ(s.tile_reads.size(), 4u * 4u);
  for (const auto& [tile, count] : s.tile_reads) EXPECT_EQ(count, 1);
  EXPECT_EQ(s.read_modes, std::vector<std::uint32_t>{3});
  EXPECT_EQ(s.blocks_alive, 0);
}

}  // namespace
