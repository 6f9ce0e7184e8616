#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>
#include <vector>

#include "platform/zuk_styles/symbols.h"
#include "tests/unit/platform/zuk_drwc/made_picture.h"

namespace zu::test {
namespace {

constexpr std::uint64_t side = 40;
constexpr double infinity = std::numeric_limits<double>::infinity();
using vertices = std::vector<Tzu_vtx_d2>;

Tzu_pln_style black(double width) {
  Tzu_pln_style style;
  style.line.width = width;
  style.line.cap = zu_cap_butt;
  style.line.join = zu_join_miter;
  return style;
}

void draw_line(const drwc_ptr& drwc, const vertices& line, const Tzu_pln_style& style) {
  ov_ptr set(zu_ov_d2_create());
  Tzu_pv_d2* list = zu_ov_d2_add(set.get());
  for (const Tzu_vtx_d2& v : line) zu_pv_d2_add_vtx(list, &v);
  zu_drwc_draw_pln(drwc.get(), set.get(), &style);
}

/// Opacity of the pixels of row `y`, counted from the lowest, in columns x0 to x1.
std::vector<int> row(const drwc_ptr& drwc, std::uint64_t y, std::uint64_t x0, std::uint64_t x1) {
  std::vector<int> found;
  for (std::uint64_t x = x0; x <= x1; ++x) found.push_back(pixel(drwc, side, side, x, y).opacity);
  return found;
}

std::vector<int> column(const drwc_ptr& drwc, std::uint64_t x, std::uint64_t y0, std::uint64_t y1) {
  std::vector<int> found;
  for (std::uint64_t y = y0; y <= y1; ++y) found.push_back(pixel(drwc, side, side, x, y).opacity);
  return found;
}

using opacities = std::vector<int>;

TEST(lines, a_line_lies_in_millimetres_from_the_lower_left_and_is_as_wide_as_its_style_says) {
  drwc_ptr drwc = made_picture(side, side);
  draw_line(drwc, {{5, 10}, {15, 10}}, black(2));
  EXPECT_EQ(column(drwc, 10, 8, 11), (opacities{0, 255, 255, 0}));
  EXPECT_EQ(row(drwc, 10, 4, 6), (opacities{0, 255, 255}));
  EXPECT_EQ(row(drwc, 10, 14, 15), (opacities{255, 0}));
}

TEST(lines, the_width_is_in_millimetres_whatever_the_resolution) {
  drwc_ptr drwc(zu_drwc_create_image(side, side, 254, false));  // ten pixels a millimetre
  draw_line(drwc, {{0, 2}, {4, 2}}, black(0.4));
  EXPECT_EQ(column(drwc, 20, 17, 22), (opacities{0, 255, 255, 255, 255, 0}));
}

/// Opacities of a picture with a line that goes up and down over its middle, in many vertices.
opacities zigzag(bool accurate) {
  constexpr std::uint64_t size = 201;  // an odd number of rows has no middle between two
  drwc_ptr drwc(zu_drwc_create_image(size, size, 25.4, accurate));
  vertices line;
  for (int i = 0; i < 3000; ++i)
    line.push_back({5 + i * 0.0633, 100 + 90 * std::sin(i * 0.0421) + i % 7 * 0.3});
  draw_line(drwc, line, black(1.3));
  std::vector<std::uint8_t> bytes(size * size * 4);
  zu_drwc_get_pixels(drwc.get(), bytes.data());
  opacities found;
  for (std::size_t i = 3; i < bytes.size(); i += 4) found.push_back(bytes[i]);
  return found;
}

TEST(lines, many_vertices_on_a_screen_give_the_ink_of_one_stroke) {
  opacities screen = zigzag(false), print = zigzag(true);
  ASSERT_EQ(screen.size(), print.size());
  int different = 0, inked = 0;
  for (std::size_t i = 0; i < screen.size(); ++i) {
    inked += print[i] > 0 ? 1 : 0;
    // Strokes that overlap in a pixel add their edges; of one stroke there is one edge.
    different += std::abs(screen[i] - print[i]) > 24 ? 1 : 0;
  }
  EXPECT_GT(inked, 10000);
  EXPECT_LT(different, inked / 100);
}

TEST(lines, half_a_pixel_of_line_is_half_as_strong) {
  drwc_ptr drwc = made_picture(side, side);
  draw_line(drwc, {{0, 10.5}, {40, 10.5}}, black(0.5));
  EXPECT_NEAR(pixel(drwc, side, side, 20, 10).opacity, 128, 2);
}

TEST(lines, caps_end_at_the_vertex_or_half_a_width_beyond) {
  for (auto [cap, beyond] : {std::pair{zu_cap_butt, 0}, {zu_cap_square, 255}}) {
    drwc_ptr drwc = made_picture(side, side);
    Tzu_pln_style style = black(4);
    style.line.cap = cap;
    draw_line(drwc, {{10, 10}, {20, 10}}, style);
    EXPECT_EQ(row(drwc, 11, 19, 22), (opacities{255, beyond, beyond, 0})) << cap;
  }
  drwc_ptr drwc = made_picture(side, side);
  Tzu_pln_style style = black(8);
  style.line.cap = zu_cap_round;
  draw_line(drwc, {{10, 10}, {20, 10}}, style);
  EXPECT_EQ(pixel(drwc, side, side, 23, 10).opacity > 200, true);
  EXPECT_EQ(pixel(drwc, side, side, 23, 13).opacity, 0);
}

TEST(lines, joins_fill_the_corner_or_cut_it) {
  struct {
    int join;
    bool corner, beside;
  } rows[] = {
      {zu_join_miter, true, true}, {zu_join_round, false, true}, {zu_join_bevel, false, false}};
  for (const auto& r : rows) {
    drwc_ptr drwc = made_picture(side, side);
    Tzu_pln_style style = black(16);
    style.line.join = r.join;
    draw_line(drwc, {{4, 20}, {20, 20}, {20, 4}}, style);
    EXPECT_EQ(pixel(drwc, side, side, 27, 27).opacity > 128, r.corner) << r.join;
    EXPECT_EQ(pixel(drwc, side, side, 24, 24).opacity > 128, r.beside) << r.join;
  }
}

TEST(lines, the_first_corner_of_a_ring_is_joined_like_the_others) {
  drwc_ptr drwc = made_picture(side, side);
  draw_line(drwc, {{10, 10}, {30, 10}, {30, 30}, {10, 30}, {10, 10}}, black(4));
  EXPECT_EQ(pixel(drwc, side, side, 8, 8).opacity, 255);
  EXPECT_EQ(pixel(drwc, side, side, 31, 31).opacity, 255);
}

TEST(lines, dashes_are_on_and_off_in_millimetres) {
  drwc_ptr drwc = made_picture(side, side);
  Tzu_pln_style style = black(2);
  style.line.dashes = {3, 2};
  draw_line(drwc, {{5, 10}, {35, 10}}, style);
  EXPECT_EQ(row(drwc, 10, 4, 14), (opacities{0, 255, 255, 255, 0, 0, 255, 255, 255, 0, 0}));
}

TEST(lines, dashes_keep_their_places_where_a_line_enters_the_page) {
  drwc_ptr whole = made_picture(side, side), entering = made_picture(side, side);
  Tzu_pln_style style = black(2);
  style.line.dashes = {3, 4};
  draw_line(whole, {{0, 10}, {40, 10}}, style);
  draw_line(entering, {{-70000, 10}, {40, 10}}, style);
  EXPECT_EQ(row(whole, 10, 0, 39), row(entering, 10, 0, 39));
}

TEST(lines, dashes_that_make_no_pattern_are_a_solid_line) {
  for (double bad : {-1.0, 0.0, std::nan(""), infinity, 1e-9}) {
    drwc_ptr drwc = made_picture(side, side);
    Tzu_pln_style style = black(2);
    style.line.dashes = {bad, bad};
    draw_line(drwc, {{5, 10}, {9, 10}}, style);
    EXPECT_EQ(row(drwc, 10, 5, 8), (opacities{255, 255, 255, 255})) << bad;
  }
}

TEST(lines, a_colours_transparency_shows_what_is_below_and_crossings_are_not_darker) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_fill(drwc.get(), {255, 255, 255, 0});
  Tzu_pln_style style = black(4);
  style.line.color = {255, 0, 0, 128};
  ov_ptr set(zu_ov_d2_create());
  for (vertices line : {vertices{{20, 0}, {20, 40}}, {{0, 20}, {40, 20}}}) {
    Tzu_pv_d2* list = zu_ov_d2_add(set.get());
    for (const Tzu_vtx_d2& v : line) zu_pv_d2_add_vtx(list, &v);
  }
  zu_drwc_draw_pln(drwc.get(), set.get(), &style);
  for (std::uint64_t x : {5, 20}) {
    rgba drawn = pixel(drwc, side, side, x, 20);
    EXPECT_EQ(drawn.r, 255);
    EXPECT_NEAR(drawn.g, 128, 1);
    EXPECT_NEAR(drawn.b, 128, 1);
  }
}

TEST(lines, what_has_nothing_to_show_draws_nothing) {
  Tzu_pln_style invisible = black(2), clear = black(2);
  invisible.line_visible = false;
  clear.line.color.a = 255;
  for (const Tzu_pln_style& style : {invisible, clear, black(0), black(-1), black(std::nan(""))}) {
    drwc_ptr drwc = made_picture(side, side);
    draw_line(drwc, {{5, 10}, {35, 10}}, style);
    EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
  }
  drwc_ptr drwc = made_picture(side, side);
  Tzu_pln_style style = black(2);
  for (const vertices& line : {vertices{}, {{5, 5}}, {{50, 50}, {90, 50}}, {{-9, 50}, {-9, -50}}})
    draw_line(drwc, line, style);
  zu_drwc_draw_pln(drwc.get(), nullptr, &style);
  EXPECT_FALSE(zu_drwc_has_ink(drwc.get()));
}

TEST(lines, far_coordinates_cross_the_page_where_they_should) {
  for (double far : {1e3, 1e6, 1e9, 1e15}) {
    drwc_ptr drwc = made_picture(side, side);
    draw_line(drwc, {{-far, 10}, {far, 10}}, black(2));
    draw_line(drwc, {{30, -far}, {30, far}}, black(2));
    EXPECT_EQ(column(drwc, 0, 8, 11), (opacities{0, 255, 255, 0})) << far;
    EXPECT_EQ(column(drwc, 39, 8, 11), (opacities{0, 255, 255, 0})) << far;
    EXPECT_EQ(row(drwc, 39, 28, 31), (opacities{0, 255, 255, 0})) << far;
  }
}

TEST(lines, a_vertex_that_is_not_finite_breaks_the_line) {
  for (double bad : {std::nan(""), infinity, -infinity}) {
    drwc_ptr drwc = made_picture(side, side);
    draw_line(drwc, {{0, 10}, {10, 10}, {bad, 10}, {20, 10}, {30, 10}}, black(2));
    EXPECT_EQ(row(drwc, 10, 8, 11), (opacities{255, 255, 0, 0})) << bad;
    EXPECT_EQ(row(drwc, 10, 19, 20), (opacities{0, 255})) << bad;
  }
}

TEST(lines, a_line_wider_than_the_page_covers_it) {
  for (double wide : {200.0, 1e6, 1e300, infinity}) {
    drwc_ptr drwc = made_picture(side, side);
    draw_line(drwc, {{-10, 20}, {50, 20}}, black(wide));
    EXPECT_EQ(pixel(drwc, side, side, 0, 0).opacity, 255) << wide;
    EXPECT_EQ(pixel(drwc, side, side, 39, 39).opacity, 255) << wide;
  }
}

TEST(lines, a_line_of_100_000_vertices_nearer_than_a_pixel_keeps_its_ends) {
  drwc_ptr drwc = made_picture(side, side);
  vertices line;
  for (int i = 0; i <= 100000; ++i) line.push_back({5 + i * 0.0003, 10});
  draw_line(drwc, line, black(2));
  EXPECT_EQ(row(drwc, 10, 4, 5), (opacities{0, 255}));
  EXPECT_EQ(row(drwc, 10, 34, 35), (opacities{255, 0}));
}

TEST(lines, stay_inside_the_clip_and_the_region) {
  drwc_ptr drwc = made_picture(side, side);
  ov_ptr polygon(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(polygon.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{10, 0}, {20, 0}, {20, 40}, {10, 40}}) zu_pv_d2_add_vtx(ring, &v);
  const Tzu_box_d2 region{15, 0, 30, 40};
  zu_drwc_set_region(drwc.get(), &region);
  zu_drwc_set_clip_pgn(drwc.get(), 0, polygon.get());
  draw_line(drwc, {{0, 10}, {40, 10}}, black(2));
  EXPECT_EQ(row(drwc, 10, 13, 21), (opacities{0, 0, 255, 255, 255, 255, 255, 0, 0}));
  zu_drwc_set_clip_none(drwc.get());
  draw_line(drwc, {{0, 20}, {40, 20}}, black(2));
  EXPECT_EQ(row(drwc, 20, 14, 15), (opacities{0, 255}));
  EXPECT_EQ(row(drwc, 20, 29, 30), (opacities{255, 0}));
  zu_drwc_set_region(drwc.get(), nullptr);
  draw_line(drwc, {{0, 30}, {40, 30}}, black(2));
  EXPECT_EQ(row(drwc, 30, 0, 1), (opacities{255, 255}));
  EXPECT_EQ(row(drwc, 30, 38, 39), (opacities{255, 255}));
}

TEST(region, a_dib_is_cut_to_it) {
  drwc_ptr drwc = made_picture(side, side);
  const Tzu_box_d2 region{5.4, 10, 20.6, 12};
  zu_drwc_set_region(drwc.get(), &region);
  draw(drwc, {0, 0, 40, 40}, made_dib(40, 40, [](auto, auto) { return Tzu_color{9, 9, 9, 0}; }));
  EXPECT_EQ(row(drwc, 10, 4, 5), (opacities{0, 255}));
  EXPECT_EQ(row(drwc, 11, 20, 21), (opacities{255, 0}));
  EXPECT_EQ(column(drwc, 10, 9, 12), (opacities{0, 255, 255, 0}));
}

TEST(boxes, are_filled_over_what_is_there) {
  drwc_ptr drwc = made_picture(side, side);
  const Tzu_box_d2 box{5, 6, 9, 8.5}, far{-1e300, 20, 1e300, 22};
  zu_drwc_fill_box(drwc.get(), &box, {200, 0, 0, 0});
  zu_drwc_fill_box(drwc.get(), &far, {0, 200, 0, 0});
  EXPECT_EQ(pixel(drwc, side, side, 5, 6), (rgba{200, 0, 0, 255}));
  EXPECT_EQ(row(drwc, 6, 4, 9), (opacities{0, 255, 255, 255, 255, 0}));
  EXPECT_NEAR(pixel(drwc, side, side, 6, 8).opacity, 128, 2);
  EXPECT_EQ(pixel(drwc, side, side, 0, 20), (rgba{0, 200, 0, 255}));
  EXPECT_EQ(pixel(drwc, side, side, 39, 21), (rgba{0, 200, 0, 255}));
}

}  // namespace
}  // namespace zu::test
