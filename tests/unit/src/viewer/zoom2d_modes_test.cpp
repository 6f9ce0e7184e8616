// Modes of zooming, by the calls of a host.

#include "src/viewer/zoom2d_modes.h"

#include <gtest/gtest.h>

#include "tests/unit/src/viewer/counting_window.h"

namespace zu::mode {
namespace {

constexpr std::uint32_t left = pointer_left, right = 16;

class zoom2d_modes : public testing::Test {
 protected:
  static void drag(viewer_extension_mode_impl& mode, point_2d from, point_2d to) {
    mode.press(left, from);
    mode.drag(left, {(from.x + to.x) / 2, (from.y + to.y) / 2});
    mode.drag(left, to);
    mode.release(0, to);
  }
  tests::counting_window window_, sections_{true};
};

TEST_F(zoom2d_modes, a_drawn_box_is_zoomed_to) {
  zoom2d_inside mode(window_.viewer());
  drag(mode, {100, 60}, {140, 40});
  EXPECT_BOX(window_.box(), 100, 40, 140, 60);
  EXPECT_EQ(window_.redraws, 1);
  EXPECT_FALSE(window_.rubber);
}
TEST_F(zoom2d_modes, a_drag_draws_a_rubber_box_and_no_scene) {
  zoom2d_inside mode(window_.viewer());
  mode.press(left, {140.9, 40});
  mode.drag(left, {100.2, 60});
  ASSERT_TRUE(window_.rubber);
  EXPECT_EQ(window_.rubber->xmin, 100);  // cut to whole pixels
  EXPECT_EQ(window_.rubber->xmax, 140);
  EXPECT_EQ(window_.rubber->ymin, 40);
  EXPECT_EQ(window_.rubber->ymax, 60);
  EXPECT_EQ(window_.redraws, 0);
  mode.attach_view({});
  EXPECT_FALSE(window_.rubber);
}
TEST_F(zoom2d_modes, a_click_halves_the_box_about_the_point) {
  zoom2d_inside mode(window_.viewer());
  drag(mode, {50, 30}, {50, 30});
  EXPECT_BOX(window_.box(), 0, 5, 100, 55);
}
TEST_F(zoom2d_modes, a_box_under_four_pixels_along_an_axis_is_a_click) {
  zoom2d_inside mode(window_.viewer());
  drag(mode, {50, 30}, {90, 33.9});
  EXPECT_BOX(window_.box(), 20, 6.95, 120, 56.95);
  window_.zoom({0, 0, 200, 100});
  drag(mode, {50, 30}, {58, 34});
  EXPECT_BOX(window_.box(), 50, 30, 58, 34);
}
TEST_F(zoom2d_modes, out_doubles_the_box_about_the_middle_of_whatever_was_drawn) {
  zoom2d_outside mode(window_.viewer());
  drag(mode, {90, 40}, {110, 60});
  EXPECT_BOX(window_.box(), -100, -50, 300, 150);
  window_.zoom({0, 0, 200, 100});
  drag(mode, {10, 10}, {10, 10});
  EXPECT_BOX(window_.box(), -190, -90, 210, 110);
}
TEST_F(zoom2d_modes, a_band_zooms_one_axis) {
  zoom2d_inside_v vertical(sections_.viewer());
  drag(vertical, {30, 20}, {70, 60});
  EXPECT_BOX(sections_.box(), 0, 20, 200, 60);
  sections_.zoom({0, 0, 200, 100});
  zoom2d_inside_h horizontal(sections_.viewer());
  drag(horizontal, {30, 20}, {70, 60});
  EXPECT_BOX(sections_.box(), 30, 0, 70, 100);
}
TEST_F(zoom2d_modes, a_band_reaches_from_edge_to_edge) {
  zoom2d_inside_v vertical(sections_.viewer());
  vertical.press(left, {30, 20});
  vertical.drag(left, {70, 60});
  ASSERT_TRUE(sections_.rubber);
  EXPECT_EQ(sections_.rubber->xmin, 0);
  EXPECT_EQ(sections_.rubber->xmax, 200);
  EXPECT_EQ(sections_.rubber->ymin, 40);
  EXPECT_EQ(sections_.rubber->ymax, 80);
}
TEST_F(zoom2d_modes, a_click_with_a_band_halves_its_axis) {
  zoom2d_inside_v vertical(sections_.viewer());
  drag(vertical, {30, 40}, {30, 40});
  EXPECT_BOX(sections_.box(), 0, 15, 200, 65);
}
TEST_F(zoom2d_modes, out_along_an_axis_keeps_the_other) {
  zoom2d_outside_v vertical(sections_.viewer());
  drag(vertical, {30, 40}, {30, 60});
  EXPECT_BOX(sections_.box(), 0, -50, 200, 150);
  sections_.zoom({0, 0, 200, 100});
  zoom2d_outside_h horizontal(sections_.viewer());
  drag(horizontal, {90, 40}, {110, 60});
  EXPECT_BOX(sections_.box(), -100, 0, 300, 100);
}
TEST_F(zoom2d_modes, panning_moves_the_picture_and_then_the_box) {
  zoom2d_pan mode(window_.viewer());
  mode.press(left, {50, 50});
  mode.drag(left, {60, 45});
  mode.drag(left, {80.4, 40.6});
  EXPECT_EQ(window_.moves, 2);
  EXPECT_EQ(window_.dx, 30);  // from where it was pressed
  EXPECT_EQ(window_.dy, 9);
  EXPECT_EQ(window_.redraws, 0);
  EXPECT_BOX(window_.box(), 0, 0, 200, 100);
  mode.release(0, {80, 40});
  EXPECT_BOX(window_.box(), -30, 10, 170, 110);
  EXPECT_EQ(window_.redraws, 1);
  EXPECT_EQ(window_.rubbers, 0);
}
TEST_F(zoom2d_modes, panning_along_an_axis_keeps_the_other) {
  zoom2d_pan_v vertical(window_.viewer());
  vertical.press(left, {50, 50});
  vertical.drag(left, {80, 40});
  EXPECT_EQ(window_.dx, 0);
  EXPECT_EQ(window_.dy, 10);
  vertical.release(0, {80, 40});
  EXPECT_BOX(window_.box(), 0, 10, 200, 110);
  zoom2d_pan_h horizontal(window_.viewer());
  drag(horizontal, {50, 50}, {80, 40});
  EXPECT_BOX(window_.box(), -30, 10, 170, 110);
  EXPECT_EQ(window_.dx, 30);
  EXPECT_EQ(window_.dy, 0);
}
TEST_F(zoom2d_modes, other_buttons_do_nothing) {
  zoom2d_inside mode(window_.viewer());
  mode.press(right, {100, 60});
  mode.drag(right, {140, 40});
  mode.release(0, {140, 40});
  EXPECT_EQ(window_.redraws + window_.rubbers, 0);
  mode.press(left, {100, 60});
  mode.drag(right, {140, 40});
  EXPECT_EQ(window_.rubbers, 0);
}
TEST_F(zoom2d_modes, a_mode_without_a_viewer_does_nothing) {
  zoom2d_pan pan;
  zoom2d_inside inside;
  drag(pan, {0, 0}, {5, 5});
  drag(inside, {0, 0}, {5, 5});
  inside.set_viewer(window_.viewer());
  drag(inside, {100, 40}, {140, 60});
  EXPECT_EQ(window_.redraws, 1);
}

struct taken_cursor final : bitmap_visitor_impl {
  void visit(zu::bitmap picture) override {
    struct sink final : bytes_visitor_impl {
      bool called = false;
      void visit(std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                 std::uint64_t, const std::uint8_t*) override {
        called = true;
      }
    } pixels;
    id = call<&bitmap_impl::id>(picture);
    call<&bitmap_impl::pixels>(picture, bytes_visitor(handle_of<bytes_visitor_impl>(pixels)));
    has_pixels = pixels.called;
  }
  std::int32_t id = 0;
  bool has_pixels = false;
};

template <class mode> std::int32_t cursor_of() {
  mode m;
  taken_cursor taken;
  m.cursor(bitmap_visitor(handle_of<bitmap_visitor_impl>(taken)));
  EXPECT_TRUE(taken.has_pixels);
  return taken.id;
}

TEST(zoom2d_cursors, have_the_numbers_of_their_modes) {
  EXPECT_EQ(cursor_of<zoom2d_inside>(), 101);
  EXPECT_EQ(cursor_of<zoom2d_outside>(), 102);
  EXPECT_EQ(cursor_of<zoom2d_pan>(), 103);
  EXPECT_EQ(cursor_of<zoom2d_inside_v>(), 104);
  EXPECT_EQ(cursor_of<zoom2d_inside_h>(), 105);
  EXPECT_EQ(cursor_of<zoom2d_outside_v>(), 106);
  EXPECT_EQ(cursor_of<zoom2d_outside_h>(), 107);
  EXPECT_EQ(cursor_of<zoom2d_pan_v>(), 108);
  EXPECT_EQ(cursor_of<zoom2d_pan_h>(), 109);
}

}  // namespace
}  // namespace zu::mode
