// Modes of selecting, by the calls of a host, on a grid of 20 by 10 cells of 10 units.

#include "src/viewer/select2d_modes.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/viewer/counting_window.h"
#include "zu/platform/zuk_render.h"

namespace zu::mode {
namespace {

constexpr std::uint32_t left = pointer_left, add = pointer_modifier_0, turn = pointer_modifier_1;

class select2d_modes : public testing::Test {
 protected:
  struct view final : element_view_impl {
    int redraws = 0;
    void list_changed() override { ++redraws; }
  };

  void SetUp() override {
    tests::made_grid grid("select_modes.tif", 20, 10, GDT_Byte, 1);
    grid.transform({0, 10, 0, 100, 0, -10});
    path_ = grid.close();
    zu_scn_2d_add_layer(scene_.get(), layer_.get());
    zu_lr2d_set_wsource(layer_.get(), path_.c_str());
    zu_lr2d_source_changed(layer_.get());
    zu_viewer2d_set_scn_2d(window_.get(), scene_.get());
  }
  void TearDown() override { std::filesystem::remove(path_); }

  std::uint64_t selected() const {
    return zu_table_data_get_selected_count(zu_lr_get_data_ptr(layer_.get()));
  }
  bool is_selected(std::uint64_t x, std::uint64_t y) const {
    return zu_table_data_is_selected_id(zu_lr_get_data_ptr(layer_.get()), y * 20 + x);
  }
  static void drag(viewer_extension_mode_impl& mode, point_2d from, point_2d to,
                   std::uint32_t flags = 0) {
    mode.press(left | flags, from);
    mode.drag(left | flags, to);
    mode.release(flags, to);
  }
  element_view attached() { return handle_of<element_view_impl>(view_); }

  std::wstring path_;
  owned<zu_lr2d_destroy> layer_{zu_lr2d_create("rtr_lr2d")};
  owned<zu_scn_2d_destroy> scene_{zu_scn_2d_create()};
  tests::counting_window window_;
  view view_;
};

TEST_F(select2d_modes, a_box_selects_what_is_inside_and_the_modifier_what_crosses) {
  select2d_append mode(window_.viewer());
  drag(mode, {5, 5}, {45, 35});
  EXPECT_EQ(selected(), 6u);
  EXPECT_TRUE(is_selected(1, 1));
  drag(mode, {5, 5}, {45, 35}, turn);
  EXPECT_EQ(selected(), 20u);
  mode.set_cross(true);
  drag(mode, {5, 5}, {45, 35}, turn);
  EXPECT_EQ(selected(), 6u);
}
TEST_F(select2d_modes, the_first_modifier_adds) {
  select2d_append mode(window_.viewer());
  drag(mode, {9, 9}, {21, 21});
  drag(mode, {49, 49}, {61, 61}, add);
  EXPECT_EQ(selected(), 2u);
  drag(mode, {49, 49}, {61, 61});
  EXPECT_EQ(selected(), 1u);
}
TEST_F(select2d_modes, remove_ignores_the_modifier_that_adds) {
  select2d_append append(window_.viewer());
  select2d_remove remove(window_.viewer());
  drag(append, {-1, -1}, {201, 101});
  EXPECT_EQ(selected(), 200u);
  drag(remove, {9, 9}, {21, 21});
  EXPECT_EQ(selected(), 199u);
  drag(remove, {49, 49}, {61, 61}, add);
  EXPECT_EQ(selected(), 198u);
}
TEST_F(select2d_modes, a_drag_of_two_pixels_is_a_click_and_a_longer_one_along_one_axis_is_not) {
  select2d_append mode(window_.viewer());
  drag(mode, {15, 15}, {17, 17});
  EXPECT_EQ(selected(), 1u);
  EXPECT_TRUE(is_selected(1, 1));
  drag(mode, {15, 15}, {15, 17.5});
  EXPECT_EQ(selected(), 0u);  // a box within a cell
}
TEST_F(select2d_modes, a_click_with_the_modifier_takes_what_is_near) {
  select2d_append mode(window_.viewer());
  double before = zu_options_get_mm_delta();
  zu_options_set_mm_delta(0.5);  // five units
  drag(mode, {19, 15}, {19, 15}, turn);
  zu_options_set_mm_delta(before);
  EXPECT_EQ(selected(), 6u);  // the box from 14 to 24 and from 10 to 20, which touches three rows
  EXPECT_TRUE(is_selected(1, 0));
  EXPECT_TRUE(is_selected(2, 2));
}
TEST_F(select2d_modes, a_release_asks_the_view_and_takes_the_rubber_box_away) {
  select2d_append mode(window_.viewer());
  mode.attach_view(attached());
  mode.press(left, {5, 5});
  mode.drag(left, {45, 35});
  EXPECT_TRUE(window_.rubber);
  EXPECT_EQ(view_.redraws, 0);
  mode.release(0, {45, 35});
  EXPECT_FALSE(window_.rubber);
  EXPECT_EQ(view_.redraws, 1);
  EXPECT_EQ(window_.redraws, 0);
}
TEST_F(select2d_modes, without_a_viewer_nothing_is_selected) {
  select2d_append mode;
  detail::polygon_select2d_mode polygon;
  drag(mode, {5, 5}, {45, 35});
  polygon.press(left, {5, 5});
  polygon.hover(0, {5, 5});
  polygon.double_click(0, {5, 5});
  EXPECT_EQ(selected(), 0u);
}

TEST_F(select2d_modes, a_polygon_selects_what_is_inside_or_crosses) {
  for (std::uint32_t flags : {0u, turn}) {
    detail::polygon_select2d_mode mode(0, window_.viewer());
    mode.press(left, {5, 5});
    mode.hover(0, {60, 60});
    mode.press(left, {45, 5});
    mode.hover(0, {1, 2});
    mode.press(left, {45, 35});
    mode.hover(0, {5, 35});
    mode.press(left, {5, 35});
    mode.double_click(flags, {5, 35});
    EXPECT_EQ(selected(), flags == 0 ? 6u : 20u);
  }
}
TEST_F(select2d_modes, a_polygon_of_one_point_is_a_ring_without_area) {
  detail::polygon_select2d_mode mode(0, window_.viewer());
  mode.press(left, {15, 15});
  mode.double_click(0, {15, 15});
  EXPECT_EQ(selected(), 0u);
  mode.press(left, {15, 15});
  mode.double_click(turn, {15, 15});
  EXPECT_EQ(selected(), 1u);
}
TEST_F(select2d_modes, a_polygon_removes) {
  select2d_append append(window_.viewer());
  drag(append, {-1, -1}, {201, 101});
  detail::polygon_select2d_mode mode(1, window_.viewer());
  for (point_2d p : {point_2d{5, 5}, {45, 5}, {45, 35}, {5, 35}}) mode.press(left, p);
  mode.double_click(add, {5, 35});
  EXPECT_EQ(selected(), 194u);
}
TEST_F(select2d_modes, a_half_made_polygon_is_thrown_away_when_the_mode_is_left) {
  detail::polygon_select2d_mode mode(0, window_.viewer());
  mode.attach_view(attached());
  mode.press(left, {5, 5});
  mode.press(left, {45, 5});
  mode.attach_view({});
  mode.attach_view(attached());
  for (point_2d p : {point_2d{105, 5}, {145, 5}, {145, 35}, {105, 35}}) mode.press(left, p);
  mode.double_click(0, {105, 35});
  EXPECT_EQ(selected(), 6u);
  EXPECT_FALSE(is_selected(1, 1));
}
TEST_F(select2d_modes, a_line_selects_what_it_passes) {
  detail::polyline_select2d_mode mode(0, window_.viewer());
  mode.press(left, {15, 15});
  mode.hover(0, {90, 90});
  mode.press(left, {55, 15});
  mode.hover(0, {55, 44});
  mode.press(left, {55, 45});
  mode.double_click(0, {55, 45});
  EXPECT_EQ(selected(), 8u);
  EXPECT_TRUE(is_selected(5, 4));
  EXPECT_FALSE(is_selected(4, 2));
}
TEST_F(select2d_modes, a_hover_before_the_first_press_makes_nothing) {
  detail::polyline_select2d_mode line(0, window_.viewer());
  detail::polygon_select2d_mode polygon(0, window_.viewer());
  line.attach_view(attached());
  polygon.attach_view(attached());
  line.hover(0, {5, 5});
  polygon.hover(0, {5, 5});
  EXPECT_EQ(view_.redraws, 0);
  line.press(left, {5, 5});
  line.hover(0, {6, 6});
  EXPECT_EQ(view_.redraws, 1);
}

/// Opacity of a pixel of the window's picture, 200 by 100, after a mode was drawn.
int opacity(viewer_extension_mode_impl& mode, std::size_t x, std::size_t y) {
  owned<zu_drwc_destroy> page(zu_drwc_create_image(200, 100, 254, false));
  Tzu_box_d2 box{0, 0, 200, 100};
  owned<zu_render_destroy> render(zu_render_create(page.get(), &box));
  mode.draw(render.get());
  std::vector<std::uint8_t> rgba(200 * 100 * 4);
  zu_drwc_get_pixels(page.get(), rgba.data());
  return rgba[((99 - y) * 200 + x) * 4 + 3];
}

TEST_F(select2d_modes, what_is_being_drawn_shows_while_the_mode_is_in_force) {
  detail::polygon_select2d_mode polygon(0, window_.viewer());
  detail::polyline_select2d_mode line(0, window_.viewer());
  for (detail::vertex_select2d_mode* mode :
       std::initializer_list<detail::vertex_select2d_mode*>{&polygon, &line}) {
    for (point_2d p : {point_2d{20, 20}, {80, 20}, {80, 80}, {20, 80}}) mode->press(left, p);
    EXPECT_EQ(opacity(*mode, 50, 20), 0);
    mode->attach_view(attached());
    EXPECT_GT(opacity(*mode, 50, 20), 200);
  }
  EXPECT_GT(opacity(polygon, 50, 50), 20);
  EXPECT_LT(opacity(polygon, 50, 50), 100);
  EXPECT_EQ(opacity(polygon, 100, 50), 0);
  EXPECT_EQ(opacity(line, 50, 50), 0);
}

}  // namespace
}  // namespace zu::mode
