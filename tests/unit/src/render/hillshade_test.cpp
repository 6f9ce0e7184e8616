// The shade mixed into filled pictures.

#include "src/render/hillshade.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/unit/src/render/picture.h"

namespace {

using namespace zu;
using tests::clear;
using tests::fill_bench;
using tests::made_source;
using tests::opaque;
using tests::word;

using words = std::vector<std::uint32_t>;

// --- Mixing alone

/// A DIB of 3 by 3 pixels of one colour, after shades of one value were mixed in.
words mixed(const std::vector<double>& shades, double part, std::uint32_t colour) {
  owned<zu_dib_destroy> dib(zu_dib_create());
  zu_dib_set_nxy(dib.get(), 3, 3);
  std::uint32_t* pixels = zu_dib_get_arr(dib.get());
  std::fill(pixels, pixels + 9, colour);
  owned<zu_mgrid2d_destroy> shade(zu_dbl_mgrid2d_create());
  Tzu_mgrid2d_topology unit{0, 0, 1, 1, 0};
  EXPECT_TRUE(zu_mgrid2d_init(shade.get(), 3, 3, &unit));
  for (std::uint64_t i = 0; i < 9; ++i)
    zu_mgrid2d_set_dbl(shade.get(), i % 3, i / 3, shades.size() == 1 ? shades[0] : shades[i]);
  mix_shade(dib.get(), shade.get(), part);
  return {pixels, pixels + 9};
}
const std::size_t inside[] = {4, 5, 7, 8};
const std::size_t frame[] = {0, 1, 2, 3, 6};

TEST(mix_shade, clears_the_first_row_and_column_and_mixes_the_rest) {
  words all = mixed({101}, 0.25, word(10, 20, 200, 60));
  for (std::size_t i : frame) EXPECT_EQ(all[i], clear);
  // 101 / 4 + 3 / 4 of the colour, truncated; the transparency stays.
  for (std::size_t i : inside) EXPECT_EQ(all[i], word(32, 40, 175, 60));
}

TEST(mix_shade, the_shade_is_cut_to_its_low_byte) {
  struct {
    double shade;
    std::uint32_t gray;
  } const cases[] = {{300, 44}, {255.9, 255}, {256, 0},     {0.9, 0},
                     {-1, 255}, {-0.5, 0},    {1023.5, 255}};
  for (const auto& c : cases)
    EXPECT_EQ(mixed({c.shade}, 1, opaque(1, 2, 3))[4], opaque(c.gray, c.gray, c.gray)) << c.shade;
}

TEST(mix_shade, a_pixel_takes_the_mean_of_the_four_nodes_at_and_below_it) {
  words all = mixed({0, 10, 20, 40, 50, 60, 80, 90, 200}, 1, opaque(0, 0, 0));
  EXPECT_EQ(all[4], opaque(25, 25, 25));
  EXPECT_EQ(all[5], opaque(35, 35, 35));
  EXPECT_EQ(all[7], opaque(65, 65, 65));
  EXPECT_EQ(all[8], opaque(100, 100, 100));
}

TEST(mix_shade, a_pixel_at_a_node_without_a_shade_becomes_transparent) {
  for (double none : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    words all = mixed({9, 9, none, 9, 9, 9, 9, 9, 9}, 0, opaque(7, 7, 7));
    EXPECT_EQ(all[4], opaque(7, 7, 7));
    EXPECT_EQ(all[5], clear);
    EXPECT_EQ(all[8], opaque(7, 7, 7));
  }
}

TEST(mix_shade, what_the_fill_left_transparent_stays_so) {
  EXPECT_EQ(mixed({200}, 0.5, clear)[4], word(100, 100, 100, 255));
}

// --- Under a layer's settings

class shaded_fill : public testing::TestWithParam<bool> {
 protected:
  fill_bench bench{GetParam()};
  owned<zu_hillshade_style_destroy> style{zu_hillshade_style_create()};
  made_source source{8, 8};

  shaded_fill() {
    bench.simple({10, 20, 200, 30});
    bench.params.hillshade_style = style.get();
    zu_hillshade_style_set_use(style.get(), true);
    zu_hillshade_style_set_propname(style.get(), L"z");
    std::vector<double> plane;
    for (int i = 0; i < 64; ++i) plane.push_back(i / 8);  // rises a unit a unit to the north
    source.add(L"z", plane);
    source.add(L"flat", std::vector<double>(64, 3.0));
  }
  std::uint32_t at(int x, int y) { return bench.main()[static_cast<std::size_t>(y * 8 + x)]; }
  bool fill() { return bench.fill(source, {0, 0, 8, 8}, 8, 8); }
  /// The shade at a pixel inside, as a gray.
  std::uint32_t gray() {
    zu_hillshade_style_set_part(style.get(), 1);
    EXPECT_TRUE(fill());
    return at(4, 4) & 255;
  }
};
INSTANTIATE_TEST_SUITE_P(both_forms, shaded_fill, testing::Values(false, true),
                         [](const auto& form) { return form.param ? "mesh" : "matrix"; });

TEST_P(shaded_fill, a_style_that_is_missing_or_off_leaves_the_picture) {
  zu_hillshade_style_set_use(style.get(), false);
  ASSERT_TRUE(fill());
  EXPECT_EQ(bench.main(), words(64, word(10, 20, 200, 30)));
  bench.params.hillshade_style = nullptr;
  ASSERT_TRUE(fill());
  EXPECT_EQ(bench.main(), words(64, word(10, 20, 200, 30)));
}

TEST_P(shaded_fill, with_part_0_the_colours_stay_and_what_has_no_shade_is_transparent) {
  zu_hillshade_style_set_part(style.get(), 0);
  ASSERT_TRUE(fill());
  // Pixel 0 has no shade by the law of the mixing. The nodes of row and column 0 have no value,
  // since they lie beyond the middles of the outer cells; so those of 1 have no shade, and with
  // them the pixels of 2, which lies between nodes 1 and 2, have none.
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      EXPECT_EQ(at(x, y), x < 3 || y < 3 ? clear : word(10, 20, 200, 30)) << x << " " << y;
}

TEST_P(shaded_fill, inside_a_grid_only_the_first_row_and_column_are_cleared) {
  zu_hillshade_style_set_part(style.get(), 0);
  ASSERT_TRUE(bench.fill(source, {2, 2, 6, 6}, 4, 4));
  words all = bench.main();
  for (std::size_t i = 0; i < 16; ++i)
    EXPECT_EQ(all[i], i < 4 || i % 4 == 0 ? clear : word(10, 20, 200, 30)) << i;
}

TEST_P(shaded_fill, is_lit_as_the_style_says) {
  zu_hillshade_style_set_sun_aspect_degree(style.get(), 180);
  EXPECT_NEAR(gray(), 255, 1);  // the slope of 45 degrees faces the sun
  zu_hillshade_style_set_sun_aspect_degree(style.get(), 0);
  EXPECT_NEAR(gray(), 1, 1);
  zu_hillshade_style_set_z_coeff(style.get(), 0);
  EXPECT_EQ(gray(), 180u);  // 1 + 254 sin 45
  zu_hillshade_style_set_sun_slope_degree(style.get(), 40);
  EXPECT_EQ(gray(), 164u);
}

TEST_P(shaded_fill, shades_its_own_field_or_the_colouring_one) {
  zu_hillshade_style_set_sun_aspect_degree(style.get(), 0);
  zu_hillshade_style_set_propname(style.get(), L"flat");
  EXPECT_EQ(gray(), 180u);
  zu_hillshade_style_set_propname(style.get(), L"");
  bench.range_scale({-100, 100}, {clear, word(10, 20, 200, 30), clear}, L"z");
  EXPECT_NEAR(gray(), 1, 1);
}

TEST_P(shaded_fill, without_a_field_of_its_own_or_of_the_styles_there_is_no_shade) {
  zu_hillshade_style_set_propname(style.get(), L"");
  bench.params.draw_type = grid_draw_gray;
  bench.channel(zu_rgb_channels_get_gray(const_cast<Tzu_rgb_channels*>(bench.params.rgb_channels)),
                L"flat", 0, 255);
  ASSERT_TRUE(fill());
  EXPECT_EQ(bench.main(), words(64, opaque(3, 3, 3)));
}

TEST_P(shaded_fill, nodes_near_nodata_have_no_shade) {
  auto& holed = source.add(L"holed", std::vector<double>(64, 3.0));
  holed.values[4 * 8 + 4] = -1, holed.has_nodata = true, holed.nodata = -1;
  zu_hillshade_style_set_propname(style.get(), L"holed");
  zu_hillshade_style_set_part(style.get(), 0);
  ASSERT_TRUE(fill());
  // The hole is the cell (4, 4). Nodes 4 and 5 touch it, nodes 3 to 6 have such a neighbour, and
  // pixels 3 to 7 lie between those.
  for (int y = 3; y < 8; ++y)
    for (int x = 3; x < 8; ++x) EXPECT_EQ(at(x, y), clear) << x << " " << y;
}

TEST_P(shaded_fill, the_transparent_colour_is_punched_out_of_the_shaded_picture) {
  zu_hillshade_style_set_propname(style.get(), L"flat");
  zu_hillshade_style_set_part(style.get(), 1);
  bench.params.transparent_color = {{180, 180, 180, 30}, 1};
  ASSERT_TRUE(fill());
  EXPECT_EQ(at(4, 4), clear);
}

TEST_P(shaded_fill, the_selection_is_not_shaded) {
  zu_hillshade_style_set_part(style.get(), 1);
  bench.select({0, 36}, {255, 0, 255, 0});
  ASSERT_TRUE(bench.fill(source, {0, 0, 8, 8}, 8, 8, fill_bench::main_and_selection));
  EXPECT_EQ(bench.selection()[0], opaque(255, 0, 255));
  EXPECT_EQ(bench.selection()[36], opaque(255, 0, 255));
}

TEST_P(shaded_fill, a_read_that_fails_leaves_the_picture_as_it_was_filled) {
  source.reads_before_failure = 0;  // the simple fill reads nothing
  ASSERT_TRUE(fill());
  EXPECT_EQ(bench.main(), words(64, word(10, 20, 200, 30)));
}

}  // namespace
