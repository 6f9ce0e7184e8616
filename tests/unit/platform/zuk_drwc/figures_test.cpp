#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/unit/platform/zuk_drwc/made_styles.h"

namespace zu::test {
namespace {

using std::numbers::pi;
constexpr std::uint64_t side = 240;
constexpr rgba red{200, 0, 0, 255}, nothing{0, 0, 0, 0};

/// What is known of a figure whose square has a side of 1: its area, and whether its middle is
/// filled.
struct known_figure {
  int32_t number;
  double area;
  bool has_middle;
};

const double fifth = std::sin(2 * pi / 5), tenth = std::sin(pi / 5);
const double waist = (3 - std::sqrt(5)) / 2;
// A triangle of base 1 and height 1 has an inner circle of radius 1 / (1 + sqrt(5)).
const double rest_of_triangle = 1 - 0.125 * (1 + std::sqrt(5));

const known_figure known[] = {
    {zu_figure_circle, pi / 4, true},
    {zu_figure_square, 1, true},
    {zu_figure_diamond, 0.5, true},
    {zu_figure_triangle_up, 0.5, true},
    {zu_figure_triangle_down, 0.5, true},
    {zu_figure_pentagon, 5 * 0.5 * 0.25 * fifth, true},
    {zu_figure_hexagon, 3 * std::sqrt(3) / 8, true},
    {zu_figure_star, 5 * 0.25 * waist* tenth, true},
    {zu_figure_plus, 2 * 0.25 - 0.0625, true},
    {zu_figure_cross, 2 * (std::sqrt(2) - 0.25) * 0.25 - 0.0625, true},
    {zu_figure_ring, pi / 4 * (1 - 0.75 * 0.75), false},
    {zu_figure_square_frame, 1 - 0.75 * 0.75, false},
    {zu_figure_diamond_frame, 0.5 - 2 * std::pow(0.5 - 0.125 * std::sqrt(2), 2), false},
    {zu_figure_triangle_frame, 0.5 * (1 - rest_of_triangle * rest_of_triangle), false},
    {zu_figure_arrow, 0.5 - 0.125, true},
    {zu_figure_half_circle, pi / 8, true},
};

TEST(figures, each_has_its_area_its_middle_and_a_clear_corner) {
  ASSERT_EQ(std::size(known), std::size_t{zu_figure_count});
  for (const known_figure& k : known) {
    drwc_ptr drwc = made_picture(side, side);
    draw_point(drwc, 120, 120, figure(k.number, 200));
    double area = ink(drwc, side, side) / (200.0 * 200.0);
    EXPECT_NEAR(area, k.area, 0.01 * k.area) << k.number;
    EXPECT_EQ(pixel(drwc, side, side, 120, 120), k.has_middle ? red : nothing) << k.number;
    EXPECT_EQ(pixel(drwc, side, side, 18, 18), nothing) << k.number;
    EXPECT_EQ(pixel(drwc, side, side, 221, 221), nothing) << k.number;
  }
}

TEST(figures, triangles_and_the_half_circle_stand_upright_and_the_arrow_points_to_the_right) {
  struct {
    int32_t number;
    std::uint64_t inked_x, inked_y, clear_x, clear_y;
  } const cases[] = {
      {zu_figure_triangle_up, 30, 25, 30, 215},   {zu_figure_triangle_down, 30, 215, 30, 25},
      {zu_figure_half_circle, 120, 165, 120, 65}, {zu_figure_arrow, 210, 120, 30, 120},
      {zu_figure_pentagon, 120, 215, 120, 22},
  };
  for (const auto& c : cases) {
    drwc_ptr drwc = made_picture(side, side);
    draw_point(drwc, 120, 120, figure(c.number, 200));
    EXPECT_EQ(pixel(drwc, side, side, c.inked_x, c.inked_y), red) << c.number;
    EXPECT_EQ(pixel(drwc, side, side, c.clear_x, c.clear_y), nothing) << c.number;
  }
}

TEST(figures, an_unknown_number_draws_nothing) {
  for (int32_t number : {-1, int32_t{zu_figure_count}, 1000}) {
    drwc_ptr drwc = made_picture(side, side);
    draw_point(drwc, 120, 120, figure(number, 200));
    EXPECT_FALSE(zu_drwc_has_ink(drwc.get())) << number;
  }
}

/// Pixels that are neither clear nor full.
int soft_pixels(const drwc_ptr& drwc, std::uint64_t nx) {
  std::vector<std::uint8_t> bytes(nx * nx * 4);
  zu_drwc_get_pixels(drwc.get(), bytes.data());
  int count = 0;
  for (std::size_t i = 3; i < bytes.size(); i += 4) count += bytes[i] != 0 && bytes[i] != 255;
  return count;
}

TEST(figures, sides_along_the_axes_have_no_soft_pixels_wherever_they_stand) {
  for (int32_t number : {zu_figure_square, zu_figure_plus, zu_figure_square_frame})
    for (double size : {1.0, 2.0, 3.0, 4.0, 7.56, 8.0, 11.34, 16.0, 250.0})
      for (double at : {150.0, 150.3, 150.5, 150.97}) {
        drwc_ptr drwc = made_picture(300, 300);
        draw_point(drwc, at, at, figure(number, size));
        EXPECT_EQ(soft_pixels(drwc, 300), 0) << number << ' ' << size << ' ' << at;
        EXPECT_TRUE(zu_drwc_has_ink(drwc.get())) << number << ' ' << size;
      }
}

TEST(figures, a_square_of_whole_pixels_covers_them) {
  drwc_ptr drwc = made_picture(40, 40);
  draw_point(drwc, 20, 20, figure(zu_figure_square, 8));
  EXPECT_EQ(ink(drwc, 40, 40), 64);
  EXPECT_EQ(pixel(drwc, 40, 40, 16, 16), red);
  EXPECT_EQ(pixel(drwc, 40, 40, 23, 23), red);
  EXPECT_EQ(pixel(drwc, 40, 40, 15, 16), nothing);
  EXPECT_EQ(pixel(drwc, 40, 40, 24, 23), nothing);
}

TEST(figures, a_quarter_turn_of_a_square_is_crisp_and_an_eighth_is_a_diamond) {
  Tzu_pnt_style style = figure(zu_figure_square, 8);
  style.point.angle = -90;
  drwc_ptr quarter = made_picture(40, 40);
  draw_point(quarter, 20, 20, style);
  EXPECT_EQ(ink(quarter, 40, 40), 64);
  style.point.angle = 45;
  drwc_ptr eighth = made_picture(40, 40);
  draw_point(eighth, 20, 20, style);
  EXPECT_NEAR(ink(eighth, 40, 40), 64, 0.7);
  EXPECT_EQ(pixel(eighth, 40, 40, 16, 16), nothing);
}

}  // namespace
}  // namespace zu::test
