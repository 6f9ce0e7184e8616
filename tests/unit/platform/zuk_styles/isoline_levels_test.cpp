#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "zu/platform/zuk_styles.h"

namespace {

struct levels_of_style {
  bool any;
  std::vector<double> levels;
  std::vector<bool> bold;

  levels_of_style(double thin, double bold_step, double minimum, double maximum) {
    Tzu_isoline_style* style = zu_isoline_style_create();
    zu_isoline_style_set_thin_step(style, thin);
    zu_isoline_style_set_bold_step(style, bold_step);
    Tzu_dbls* list = zu_dbls_create();
    Tzu_bits* bits = zu_bits_create();
    zu_dbls_add(list, 12345);  // forgotten
    any = zu_isoline_style_get_levels(style, minimum, maximum, list, bits);
    EXPECT_EQ(zu_dbls_get_size(list), zu_bits_get_size(bits));
    for (uint64_t i = 0; i < zu_dbls_get_size(list); ++i) {
      levels.push_back(zu_dbls_get(list, i));
      bold.push_back(zu_bits_get_bit(bits, i));
    }
    zu_bits_destroy(bits);
    zu_dbls_destroy(list);
    zu_isoline_style_destroy(style);
  }
};

TEST(isoline_levels, are_the_multiples_of_the_thin_step_strictly_inside) {
  struct {
    double thin, minimum, maximum;
    std::vector<double> expected;
  } const cases[] = {
      {10, 5, 35, {10, 20, 30}},
      {10, 10, 30, {20}},  // not the ends
      {10, -25, 5, {-20, -10, 0}},
      {10, 11, 19, {}},
      {10, 20, 20, {}},  // a constant field
      {10, 15, 15, {}},
      {10, 30, 10, {}},
      {0.25, 0.1, 0.8, {0.25, 0.5, 0.75}},
      {10, -INFINITY, 5, {}},
      {10, NAN, 5, {}},
  };
  for (const auto& c : cases) {
    levels_of_style l(c.thin, 50, c.minimum, c.maximum);
    EXPECT_EQ(l.levels, c.expected) << c.minimum << " " << c.maximum;
    EXPECT_EQ(l.any, !c.expected.empty());
  }
}

TEST(isoline_levels, are_bold_where_the_bold_step_has_them_too) {
  levels_of_style l(10, 50, -60, 110);
  ASSERT_EQ(l.levels.size(), 16u);
  for (std::size_t i = 0; i < l.levels.size(); ++i)
    EXPECT_EQ(l.bold[i], std::fmod(l.levels[i], 50) == 0) << l.levels[i];
}

TEST(isoline_levels, steps_that_binary_numbers_only_come_near_are_still_multiples) {
  levels_of_style l(0.1, 0.3, 0, 1000);  // 3 * 0.1 is not 0.3
  ASSERT_EQ(l.levels.size(), 9999u);
  for (std::size_t i = 0; i < l.levels.size(); ++i) EXPECT_EQ(l.bold[i], (i + 1) % 3 == 0) << i;
}

TEST(isoline_levels, far_from_zero_neighbours_of_a_bold_level_stay_thin) {
  levels_of_style l(1, 5, 1e9 - 0.5, 1e9 + 5.5);
  EXPECT_EQ(l.bold, (std::vector<bool>{true, false, false, false, false, true}));
}

TEST(isoline_levels, a_bold_step_that_the_thin_one_does_not_divide_adds_no_levels) {
  levels_of_style l(20, 50, 0, 130);
  EXPECT_EQ(l.levels, (std::vector<double>{20, 40, 60, 80, 100, 120}));
  EXPECT_EQ(l.bold, (std::vector<bool>{false, false, false, false, true, false}));
}

TEST(isoline_levels, a_step_that_is_none_gives_none) {
  for (double step : {0.0, -10.0, static_cast<double>(NAN), static_cast<double>(INFINITY)}) {
    EXPECT_FALSE(levels_of_style(step, 50, 0, 1000).any) << step;
    levels_of_style l(10, step, 0, 40);
    EXPECT_EQ(l.levels.size(), 3u) << step;
    EXPECT_EQ(l.bold, std::vector<bool>(3, false)) << step;
  }
}

TEST(isoline_levels, up_to_ten_thousand_are_drawn_and_beyond_none) {
  EXPECT_EQ(levels_of_style(1, 5, 0, 10001).levels.size(), 10000u);
  EXPECT_FALSE(levels_of_style(1, 5, 0, 10001.5).any);
  EXPECT_FALSE(levels_of_style(1e-300, 5, 0, 1).any);
  EXPECT_FALSE(levels_of_style(1e-3, 5, 1e15, 1e15 + 1).any);  // steps cannot be told apart
}

TEST(hillshade_style, hands_its_light_to_the_platform) {
  // Heights that rise to the east, lit from the west at the style's own settings.
  Tzu_hillshade_style* style = zu_hillshade_style_create();
  zu_hillshade_style_set_z_coeff(style, 2);
  zu_hillshade_style_set_sun_slope_degree(style, 30);
  zu_hillshade_style_set_sun_aspect_degree(style, 270);
  Tzu_hillshade_params* params = zu_hillshade_params_create();
  Tzu_mgrid2d *grid = zu_dbl_mgrid2d_create(), *shade = zu_dbl_mgrid2d_create();
  Tzu_mgrid2d_topology unit{0, 0, 1, 1, 0};
  ASSERT_TRUE(zu_mgrid2d_init(grid, 3, 3, &unit));
  for (uint64_t i = 0; i < 9; ++i)
    zu_mgrid2d_set_dbl(grid, i % 3, i / 3, static_cast<double>(i % 3));
  zu_hillshade_style_get_params(style, params);
  ASSERT_TRUE(zu_mgrid2d_hillshade(grid, params, shade));
  double one = 1 + 254 * (0.5 + std::sqrt(0.75) * 2) / std::sqrt(5.0);
  EXPECT_NEAR(zu_mgrid2d_get_dbl(shade, 1, 1), one, 1e-9);
  zu_hillshade_style_set_multidir(style, true);
  zu_hillshade_style_get_params(style, params);
  ASSERT_TRUE(zu_mgrid2d_hillshade(grid, params, shade));
  EXPECT_GT(std::abs(zu_mgrid2d_get_dbl(shade, 1, 1) - one), 1);
  for (Tzu_mgrid2d* g : {grid, shade}) zu_mgrid2d_destroy(g);
  zu_hillshade_params_destroy(params);
  zu_hillshade_style_destroy(style);
}

}  // namespace
