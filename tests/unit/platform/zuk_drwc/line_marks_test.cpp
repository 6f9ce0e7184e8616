#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/unit/platform/zuk_drwc/made_styles.h"

namespace zu::test {
namespace {

constexpr std::uint64_t side = 80;
constexpr rgba red{200, 0, 0, 255}, black{0, 0, 0, 255}, nothing{0, 0, 0, 0};
using vertices = std::vector<Tzu_vtx_d2>;

ov_ptr line_of(const vertices& line) {
  ov_ptr set(zu_ov_d2_create());
  Tzu_pv_d2* list = zu_ov_d2_add(set.get());
  for (const Tzu_vtx_d2& v : line) zu_pv_d2_add_vtx(list, &v);
  return set;
}

/// A line of 2 mm whose marks are red and not yet shown.
Tzu_pln_style marked(int32_t number) {
  Tzu_pln_style style;
  style.line.width = 2;
  style.line.cap = zu_cap_butt;
  for (Tzu_bpnt_style* mark : {&style.vertex, &style.begin, &style.end}) {
    mark->figure = number;
    mark->size = 12;
    mark->color = {200, 0, 0, 0};
  }
  return style;
}

drwc_ptr drawn(const vertices& line, const Tzu_pln_style& style) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_draw_pln(drwc.get(), line_of(line).get(), &style);
  return drwc;
}

rgba at(const drwc_ptr& drwc, std::uint64_t x, std::uint64_t y) {
  return pixel(drwc, side, side, x, y);
}

const vertices angle = {{20, 20}, {60, 20}, {60, 60}};

TEST(line_marks, each_part_shows_by_its_own_flag) {
  for (int flags = 0; flags < 16; ++flags) {
    Tzu_pln_style style = marked(zu_figure_square);
    style.line_visible = flags & 1;
    style.vertex_visible = flags & 2;
    style.begin_visible = flags & 4;
    style.end_visible = flags & 8;
    drwc_ptr drwc = drawn(angle, style);
    EXPECT_EQ(at(drwc, 40, 20), flags & 1 ? black : nothing) << flags;
    EXPECT_EQ(at(drwc, 56, 24), flags & 2 ? red : nothing) << flags;
    EXPECT_EQ(at(drwc, 16, 24), flags & (2 | 4) ? red : nothing) << flags;
    EXPECT_EQ(at(drwc, 56, 64), flags & (2 | 8) ? red : nothing) << flags;
  }
}

TEST(line_marks, a_mark_turns_with_the_line_if_it_is_asked_to) {
  // Arrows to the right: beside the line's end their base is wide, before it their tip is narrow.
  for (bool turn : {false, true}) {
    Tzu_pln_style style = marked(zu_figure_arrow);
    style.line_visible = false;
    style.begin_visible = style.end_visible = true;
    style.begin_turns = style.end_turns = turn;
    drwc_ptr drwc = drawn({{20, 60}, {20, 20}}, style);  // downwards
    for (std::uint64_t y : {60u, 20u}) {
      EXPECT_EQ(at(drwc, 24, y + 4).opacity == 255, turn) << y;   // the base above
      EXPECT_EQ(at(drwc, 15, y - 5).opacity == 255, !turn) << y;  // the base to the left
    }
  }
}

TEST(line_marks, the_angle_and_the_offset_of_a_turned_mark_are_counted_from_the_line) {
  Tzu_pln_style style = marked(zu_figure_triangle_up);
  style.line_visible = false;
  style.end_visible = true;
  style.end.dx = 10;     // along the line, which goes up
  style.end.angle = 90;  // the tip to the left of where it goes
  drwc_ptr drwc = drawn({{40, 20}, {40, 40}}, style);
  // The tip of the triangle, up along the line's left side, is turned by 90 degrees and 90 again.
  EXPECT_EQ(at(drwc, 40, 50), red);
  EXPECT_EQ(at(drwc, 35, 55), red);
  EXPECT_EQ(at(drwc, 44, 55), red);
  EXPECT_EQ(at(drwc, 35, 45), nothing);
  EXPECT_EQ(at(drwc, 40, 38), nothing);
}

TEST(line_marks, the_direction_is_that_to_the_next_other_place) {
  Tzu_pln_style style = marked(zu_figure_arrow);
  style.line_visible = false;
  style.begin_visible = true;
  drwc_ptr drwc = drawn({{40, 40}, {40, 40}, {40, 40}, {40, 70}}, style);  // upwards
  EXPECT_EQ(at(drwc, 35, 35).opacity, 255);
  EXPECT_EQ(at(drwc, 35, 44).opacity, 0);
}

TEST(line_marks, a_closed_line_has_vertices_and_no_ends) {
  Tzu_pln_style style = marked(zu_figure_square);
  style.line_visible = false;
  style.vertex_visible = style.begin_visible = style.end_visible = true;
  style.vertex.size = 4;
  style.vertex.color = {0, 0, 200, 128};
  drwc_ptr drwc = drawn({{20, 20}, {60, 20}, {40, 60}, {20, 20}}, style);
  EXPECT_NEAR(ink(drwc, side, side), 3 * 16 * 127 / 255.0, 1e-9);  // each once
}

TEST(line_marks, vertices_without_a_place_bear_none) {
  Tzu_pln_style style = marked(zu_figure_square);
  style.vertex_visible = style.begin_visible = style.end_visible = true;
  drwc_ptr drwc = drawn({{NAN, 5}, {20, 20}, {NAN, NAN}, {60, 20}, {60, HUGE_VAL}}, style);
  EXPECT_EQ(ink(drwc, side, side), 2 * 144);
  drawn({{NAN, NAN}}, style);
  drawn({}, style);
}

TEST(line_marks, marks_do_not_need_a_line_that_shows) {
  Tzu_pln_style style = marked(zu_figure_square);
  style.line.width = 0;
  style.end_visible = true;
  drwc_ptr drwc = drawn(angle, style);
  EXPECT_EQ(at(drwc, 60, 60), red);
  EXPECT_EQ(at(drwc, 40, 20), nothing);
}

TEST(line_marks, a_complex_line_draws_its_layers_in_order) {
  Tzu_pln_style style;
  style.line.use_complex = true;
  for (auto [width, color] :
       {std::pair{10.0, Tzu_color{200, 0, 0, 0}}, {4.0, Tzu_color{0, 0, 0, 0}}}) {
    auto& layer =
        std::get<Tzu_bpln_style>(style.line.complex.made()->add_layer("pln_line_slr")->style);
    layer.width = width;
    layer.color = color;
  }
  drwc_ptr drwc = drawn({{10, 40}, {70, 40}}, style);
  EXPECT_EQ(at(drwc, 40, 40), black);
  EXPECT_EQ(at(drwc, 40, 43), red);
  EXPECT_EQ(at(drwc, 40, 46), nothing);
}

TEST(line_marks, a_dash_without_length_and_round_ends_is_a_dot) {
  Tzu_pln_style style;
  style.line.width = 4;
  style.line.cap = zu_cap_round;
  style.line.dashes = {0, 10};
  drwc_ptr drwc = drawn({{15, 40}, {65, 40}}, style);
  for (std::uint64_t x : {15u, 25u, 55u}) EXPECT_EQ(at(drwc, x, 40), black) << x;
  for (std::uint64_t x : {20u, 30u, 60u}) EXPECT_EQ(at(drwc, x, 40), nothing) << x;
}

TEST(line_marks, numbers_have_their_own_colour_and_size) {
  Tzu_pln_style style;
  style.line.width = 1;
  style.number_visible = true;
  style.number.color = {0, 0, 200, 0};
  ov_ptr set = line_of({{5, 40}, {75, 40}});
  zu_ov_d2_set_level(set.get(), 5);
  auto tall = [&](double size) {
    style.number.size = size;
    drwc_ptr drwc = made_picture(side, side);
    zu_drwc_draw_pln(drwc.get(), set.get(), &style);
    int rows = 0;
    for (std::uint64_t y = 0; y < side; ++y) {
      bool blue = false;
      for (std::uint64_t x = 0; x < side; ++x) blue = blue || at(drwc, x, y).b > 150;
      rows += blue;
    }
    return rows;
  };
  EXPECT_GT(tall(10), 4);
  EXPECT_GT(tall(20), tall(10) + 4);
  EXPECT_EQ(tall(0), 0);
  style.number_visible = false;
  EXPECT_EQ(tall(20), 0);
}

TEST(polygons, fill_contour_and_vertices_show_by_their_own_flags) {
  const vertices box = {{20, 20}, {60, 20}, {60, 60}, {20, 60}};
  for (int flags = 0; flags < 8; ++flags) {
    Tzu_pgn_style style;
    style.fill_visible = flags & 1;
    style.contour_visible = flags & 2;
    style.vertex_visible = flags & 4;
    style.fill.color = {0, 0, 200, 0};
    style.contour.width = 4;
    style.vertex.figure = zu_figure_square;
    style.vertex.size = 10;
    style.vertex.color = {200, 0, 0, 0};
    drwc_ptr drwc = made_picture(side, side);
    zu_drwc_draw_pgn(drwc.get(), line_of(box).get(), &style);
    EXPECT_EQ(at(drwc, 40, 40), flags & 1 ? (rgba{0, 0, 200, 255}) : nothing) << flags;
    EXPECT_EQ(at(drwc, 19, 40), flags & 2 ? black : nothing) << flags;  // the side that closes it
    EXPECT_EQ(at(drwc, 17, 63), flags & 4 ? red : nothing) << flags;
  }
}

TEST(polygons, a_clip_in_force_holds_and_stays) {
  drwc_ptr drwc = made_picture(side, side);
  zu_drwc_set_clip_pgn(drwc.get(), 0, line_of({{0, 0}, {40, 0}, {40, 80}, {0, 80}}).get());
  Tzu_pgn_style style;
  style.fill.color = {200, 0, 0, 0};
  style.contour_visible = false;
  for (double y : {10.0, 50.0})
    zu_drwc_draw_pgn(drwc.get(), line_of({{20, y}, {60, y}, {60, y + 20}, {20, y + 20}}).get(),
                     &style);
  for (std::uint64_t y : {20u, 60u}) {
    EXPECT_EQ(at(drwc, 39, y), red);
    EXPECT_EQ(at(drwc, 40, y), nothing);
  }
}

}  // namespace
}  // namespace zu::test
