#include "platform/zuk_drwc/line_labels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "platform/zuk_styles/symbols.h"
#include "tests/unit/platform/zuk_drwc/saved_document.h"

namespace zu::platform {
namespace {

constexpr double pi = std::numbers::pi;
const label_request request{30, 10, 1000, {0, 0, 500, 500}};
using points = std::vector<Tzu_vtx_d2>;
using boxes = std::vector<Tzu_box_d2>;

std::vector<line_label> places(const points& line, boxes taken = {}) {
  return place_labels(line, request, taken);
}

points circle(double radius, double turn = 2 * pi) {
  points line;
  for (int i = 0; i <= 100; ++i)
    line.push_back(
        {250 + radius * std::cos(turn * i / 100), 250 + radius * std::sin(turn * i / 100)});
  return line;
}

TEST(line_labels, stand_in_the_middle_of_a_straight_line_of_three_widths) {
  std::vector<line_label> found = places({{100, 50}, {190, 50}});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].middle.x, 145);
  EXPECT_EQ(found[0].middle.y, 50);
  EXPECT_EQ(found[0].angle, 0);
  EXPECT_EQ(found[0].from, 25);  // half of 30 and half a height of 10 to each side of 45
  EXPECT_EQ(found[0].to, 65);
  EXPECT_TRUE(places({{100, 50}, {189, 50}}).empty());
}

TEST(line_labels, read_upright_whichever_way_the_line_runs) {
  struct {
    Tzu_vtx_d2 to;  // from (250, 250), y downwards
    double degrees;
  } rows[] = {{{400, 250}, 0}, {{350, 350}, 45}, {{250, 400}, -90}, {{150, 350}, -45},
              {{100, 250}, 0}, {{150, 150}, 45}, {{250, 100}, -90}, {{350, 150}, -45}};
  for (const auto& row : rows) {
    std::vector<line_label> found = places({{250, 250}, row.to});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_NEAR(found[0].angle * 180 / pi, row.degrees, 1e-6) << row.to.x << " " << row.to.y;
  }
}

TEST(line_labels, come_once_in_each_spacing) {
  label_request often = request;
  often.spacing = 100;
  boxes taken;
  std::vector<line_label> found = place_labels({{10, 50}, {490, 50}}, often, taken);
  ASSERT_EQ(found.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(found[i].middle.x, 70 + 120.0 * double(i));
  EXPECT_EQ(taken.size(), 4u);
}

TEST(line_labels, move_to_where_the_line_is_straight) {
  points line;
  for (int i = 0; i <= 20; ++i) line.push_back({100 + i * 10.0, i % 2 == 0 ? 100.0 : 120.0});
  line.push_back({440, 100});
  std::vector<line_label> found = places(line);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_NEAR(found[0].angle, 0, 0.1);
  EXPECT_GE(found[0].middle.x, 310);
}

TEST(line_labels, a_small_ring_is_too_bent_and_a_large_one_is_not) {
  EXPECT_TRUE(places(circle(16)).empty());
  EXPECT_EQ(places(circle(60)).size(), 1u);
}

TEST(line_labels, never_leave_the_page) {
  EXPECT_TRUE(places({{50, 2}, {400, 2}}).empty());
  EXPECT_TRUE(places({{-300, 250}, {20, 250}}).empty());
  for (const line_label& label : places({{-300, 250}, {200, 250}})) EXPECT_GE(label.middle.x, 15);
}

TEST(line_labels, make_way_for_those_already_there) {
  std::vector<line_label> found = places({{100, 50}, {400, 50}}, {{200, 45, 300, 55}});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_TRUE(found[0].middle.x <= 185 || found[0].middle.x >= 315) << found[0].middle.x;
  EXPECT_TRUE(places({{100, 50}, {400, 50}}, {{0, 0, 500, 500}}).empty());
}

TEST(line_labels, a_line_is_left_out_under_them) {
  line_piece piece{{{100, 50}, {200, 50}, {300, 50}}, 7, false};
  line_label label{{150, 50}, 0, 30, 120};
  std::vector<line_piece> left = without_labels(piece, {label});
  ASSERT_EQ(left.size(), 2u);
  EXPECT_EQ(left[0].vertices.back().x, 130);
  EXPECT_EQ(left[0].start, 7);
  EXPECT_EQ(left[1].vertices.front().x, 220);
  EXPECT_EQ(left[1].start, 127);
  EXPECT_EQ(without_labels(piece, {}).size(), 1u);
}

TEST(line_labels, a_ring_with_a_gap_is_one_line) {
  line_piece ring{circle(60), 0, true};
  std::vector<line_piece> left = without_labels(ring, {{{}, 0, 100, 140}});
  ASSERT_EQ(left.size(), 1u);
  EXPECT_FALSE(left[0].closed);
  EXPECT_EQ(left[0].start, 140);
}

}  // namespace
}  // namespace zu::platform

namespace zu::test {
namespace {

/// A line of 80 mm at 10 mm above the page's lower side.
void draw_level(const drwc_ptr& drwc, std::optional<double> level, bool label) {
  ov_ptr set(zu_ov_d2_create());
  Tzu_pv_d2* list = zu_ov_d2_add(set.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{10, 10}, {90, 10}}) zu_pv_d2_add_vtx(list, &v);
  if (level) zu_ov_d2_set_level(set.get(), *level);
  Tzu_pln_style style;
  style.line.width = 0.2, style.number_visible = label;
  zu_drwc_draw_pln(drwc.get(), set.get(), &style);
}

/// Glyphs of an SVG page with that level.
int glyphs_of(std::optional<double> level, bool label) {
  drwc_ptr drwc(zu_drwc_create_svg(100, 20, 300));
  draw_level(drwc, level, label);
  std::string path =
      (std::filesystem::temp_directory_path() / ("zu_level_" + std::to_string(getpid()) + ".svg"));
  std::wstring wide(path.begin(), path.end());
  EXPECT_TRUE(zu_drwc_save_w(drwc.get(), wide.c_str(), nullptr, nullptr, nullptr));
  std::ifstream file(path);
  std::string svg{std::istreambuf_iterator<char>(file), {}};
  std::filesystem::remove(path);
  return count_of(svg, "<use ");
}

TEST(levels, are_drawn_as_short_numbers_where_the_style_asks_and_there_is_one) {
  struct {
    std::optional<double> level;
    bool label;
    int glyphs;
  } rows[] = {{100.0, true, 3},        {-12.5, true, 5},       {0.1 + 0.2, true, 3},
              {1e20, true, 5},         {-0.0, true, 1},        {100.0, false, 0},
              {std::nullopt, true, 0}, {std::nan(""), true, 0}};
  for (const auto& row : rows)
    EXPECT_EQ(glyphs_of(row.level, row.label), row.glyphs) << row.level.value_or(-1) << row.label;
}

TEST(levels, a_number_that_is_too_large_to_draw_leaves_the_region_as_it_was) {
  drwc_ptr drwc(zu_drwc_create_image(20, 20, 1e7, false));
  Tzu_box_d2 page;
  zu_drwc_get_page(drwc.get(), &page);
  const Tzu_box_d2 half{0, 0, page.x1 / 2, page.y1};
  zu_drwc_set_region(drwc.get(), &half);
  draw_level(drwc, 1.0, true);
  zu_drwc_set_region(drwc.get(), nullptr);
  zu_drwc_fill_box(drwc.get(), &page, {0, 0, 0, 0});
  EXPECT_EQ(pixel(drwc, 20, 20, 19, 10).opacity, 255);
}

TEST(levels, the_line_is_broken_under_its_number) {
  drwc_ptr drwc(zu_drwc_create_image(400, 80, 101.6, false));  // four pixels a millimetre
  draw_level(drwc, 11111.0, true);
  // The number, 8 mm wide, stands about (50, 10). Its figures are higher than the line is wide.
  bool figure = false, gap = false;
  for (std::uint64_t x = 180; x < 220; ++x) {
    figure = figure || pixel(drwc, 400, 80, x, 42).opacity > 100;
    gap = gap || pixel(drwc, 400, 80, x, 40).opacity + pixel(drwc, 400, 80, x, 39).opacity == 0;
  }
  EXPECT_TRUE(figure);
  EXPECT_TRUE(gap);
  EXPECT_GT(pixel(drwc, 400, 80, 100, 40).opacity, 50);
}

}  // namespace
}  // namespace zu::test
