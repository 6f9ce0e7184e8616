// Boxes, scales, history and conversions of a viewer whose window only counts.

#include "zu/platform/zuk_viewer2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "platform/zuk_basic/owned.h"

namespace {

using zu::platform::owned;

struct window {
  int redraws = 0, changes = 0;
  int32_t dx = 0, dy = 0;
  std::optional<Tzu_box_i2> rubber;

  Tzu_viewer2d_hooks hooks() {
    Tzu_viewer2d_hooks h{};
    h.redraw = [](void* w) { ++static_cast<window*>(w)->redraws; };
    h.move_picture = [](int32_t x, int32_t y, void* w) {
      static_cast<window*>(w)->dx = x;
      static_cast<window*>(w)->dy = y;
    };
    h.draw_box = [](const Tzu_box_i2* box, void* w) {
      auto& rubber = static_cast<window*>(w)->rubber;
      rubber.reset();
      if (box != nullptr) rubber = *box;
    };
    h.box_changed = [](void* w) { ++static_cast<window*>(w)->changes; };
    h.user = this;
    return h;
  }
};

class viewer2d : public testing::Test {
 protected:
  void SetUp() override {
    Tzu_viewer2d_hooks hooks = window_.hooks();
    viewer_.reset(zu_viewer2d_create(&hooks));
  }
  Tzu_viewer2d* get() { return viewer_.get(); }
  /// A window of 200 by 100 pixels, 10 pixels a millimetre.
  void show() { zu_viewer2d_set_size(get(), 200, 100, 254); }
  void zoom(Tzu_box_d2 box) { zu_viewer2d_set_zoom_box(get(), &box); }
  Tzu_box_d2 box() {
    Tzu_box_d2 b{};
    zu_viewer2d_get_box_cr_sml(get(), &b);
    return b;
  }
  void expect_box(double x0, double y0, double x1, double y1) {
    Tzu_box_d2 b = box();
    EXPECT_NEAR(b.x0, x0, 1e-9);
    EXPECT_NEAR(b.y0, y0, 1e-9);
    EXPECT_NEAR(b.x1, x1, 1e-9);
    EXPECT_NEAR(b.y1, y1, 1e-9);
  }

  window window_;
  owned<zu_viewer2d_destroy> viewer_;
};

TEST_F(viewer2d, without_a_window_it_shows_the_unit_square) {
  Tzu_box_d2 b{5, 5, 5, 5};
  EXPECT_FALSE(zu_viewer2d_get_box_cr_sml(get(), &b));
  EXPECT_EQ(b.x0, 0);
  EXPECT_EQ(b.y1, 1);
  EXPECT_EQ(zu_viewer2d_cr2px_x(get(), 3), 0);
}
TEST_F(viewer2d, a_box_is_widened_about_its_middle_to_the_shape_of_the_window) {
  show();
  zoom({0, 0, 10, 10});
  expect_box(-5, 0, 15, 10);
}
TEST_F(viewer2d, anisotropic_axes_take_the_box_as_it_is) {
  show();
  zu_viewer2d_set_anisotropic(get(), true);
  zoom({0, 0, 10, 10});
  expect_box(0, 0, 10, 10);
  zu_viewer2d_set_anisotropic(get(), false);
  expect_box(-5, 0, 15, 10);
}
TEST_F(viewer2d, a_box_set_before_the_window_has_a_size_is_shown_when_it_gets_one) {
  zoom({0, 0, 20, 10});
  EXPECT_EQ(window_.changes, 0);
  show();
  expect_box(0, 0, 20, 10);
  EXPECT_EQ(window_.changes, 1);
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_prev(get()));
}
TEST_F(viewer2d, a_box_without_area_or_end_is_ignored) {
  show();
  zoom({0, 0, 20, 10});
  zoom({1, 1, 1, 2});
  zoom({1, 1, 0, 2});
  zoom({0, 0, NAN, 1});
  zoom({0, 0, INFINITY, 1});
  zoom({1e20, 1e20, 1e20 + 20000, 1e20 + 20000});  // finer than the numbers there
  expect_box(0, 0, 20, 10);
}
TEST_F(viewer2d, another_window_keeps_the_middle_and_the_scale) {
  show();
  zoom({0, 0, 20, 10});
  zu_viewer2d_set_size(get(), 400, 100, 254);
  expect_box(-10, 0, 30, 10);
  zu_viewer2d_set_size(get(), 400, 200, 508);
  expect_box(0, 0, 20, 10);
}
TEST_F(viewer2d, the_scale_is_metres_of_the_scene_a_metre_of_the_window) {
  show();
  zoom({0, 0, 20, 10});  // 20 mm by 10 mm
  double sx = 0, sy = 0;
  zu_viewer2d_get_scale(get(), &sx, &sy);
  EXPECT_NEAR(sx, 1000, 1e-9);
  EXPECT_NEAR(sy, 1000, 1e-9);
  zu_viewer2d_set_scale(get(), 500, 7);
  expect_box(5, 2.5, 15, 7.5);
}
TEST_F(viewer2d, pixels_run_down_from_the_upper_left_corner) {
  show();
  zoom({100, 200, 120, 210});
  EXPECT_NEAR(zu_viewer2d_cr2px_x(get(), 101), 10, 1e-9);
  EXPECT_NEAR(zu_viewer2d_cr2px_y(get(), 210), 0, 1e-9);
  EXPECT_NEAR(zu_viewer2d_cr2px_y(get(), 209), 10, 1e-9);
  EXPECT_NEAR(zu_viewer2d_px2cr_x(get(), 10), 101, 1e-9);
  EXPECT_NEAR(zu_viewer2d_px2cr_y(get(), 10), 209, 1e-9);
  EXPECT_NEAR(zu_viewer2d_size_px2cr(get(), 10), 1, 1e-9);
}
TEST_F(viewer2d, millimetres_convert_as_lengths_do) {
  show();
  zoom({100, 200, 140, 220});
  EXPECT_NEAR(zu_viewer2d_cr2mm_x(get(), 100), 50, 1e-9);
  EXPECT_NEAR(zu_viewer2d_mm2cr_x(get(), 50), 100, 1e-9);
  EXPECT_NEAR(zu_viewer2d_mm2cr_y(get(), 3), 6, 1e-9);
  EXPECT_NEAR(zu_viewer2d_size_mm2cr_x(get(), 3), 6, 1e-9);
}

TEST_F(viewer2d, the_history_goes_back_and_forth) {
  show();
  zoom({0, 0, 20, 10});
  zoom({0, 0, 2, 1});
  EXPECT_TRUE(zu_viewer2d_zoomhist_has_prev(get()));
  zu_viewer2d_zoomhist_do_prev(get());
  expect_box(0, 0, 20, 10);
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_prev(get()));
  zu_viewer2d_zoomhist_do_prev(get());
  expect_box(0, 0, 20, 10);
  zu_viewer2d_zoomhist_do_next(get());
  expect_box(0, 0, 2, 1);
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_next(get()));
}
TEST_F(viewer2d, a_new_box_cuts_what_lay_ahead) {
  show();
  zoom({0, 0, 20, 10});
  zoom({0, 0, 2, 1});
  zu_viewer2d_zoomhist_do_prev(get());
  zoom({0, 0, 4, 2});
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_next(get()));
  zu_viewer2d_zoomhist_do_prev(get());
  expect_box(0, 0, 20, 10);
}
TEST_F(viewer2d, the_box_in_force_is_no_step) {
  show();
  zoom({0, 0, 20, 10});
  zoom({0, 0, 20, 10});
  zoom(box());
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_prev(get()));
}
TEST_F(viewer2d, the_history_keeps_a_hundred_boxes) {
  show();
  for (int i = 1; i <= 150; ++i) zoom({0, 0, 2.0 * i, 1.0 * i});
  int steps = 0;
  for (; zu_viewer2d_zoomhist_has_prev(get()); ++steps) zu_viewer2d_zoomhist_do_prev(get());
  EXPECT_EQ(steps, 99);
  expect_box(0, 0, 102, 51);
}

TEST_F(viewer2d, two_notches_of_the_wheel_double_about_the_pointer) {
  show();
  zoom({0, 0, 20, 10});
  zu_viewer2d_wheel(get(), 2, 20, 10);
  expect_box(10, 5, 20, 10);
  EXPECT_EQ(window_.redraws, 1);
}
TEST_F(viewer2d, a_run_of_the_wheel_is_one_step) {
  show();
  zoom({0, 0, 20, 10});
  for (int i = 0; i < 5; ++i) zu_viewer2d_wheel(get(), 1, 3, 4);
  zu_viewer2d_zoomhist_do_prev(get());
  expect_box(0, 0, 20, 10);
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_prev(get()));
}
TEST_F(viewer2d, the_wheel_after_something_else_is_another_step) {
  show();
  zoom({0, 0, 20, 10});
  zu_viewer2d_wheel(get(), 1, 3, 4);
  zoom({0, 0, 200, 100});
  zu_viewer2d_wheel(get(), 1, 3, 4);
  zu_viewer2d_zoomhist_do_prev(get());
  expect_box(0, 0, 200, 100);
}
TEST_F(viewer2d, wheel_mode_3_zooms_the_horizontal_axis_alone) {
  show();
  zu_viewer2d_set_anisotropic(get(), true);
  zoom({0, 0, 20, 10});
  zu_viewer2d_set_wheel_mode(get(), zu_wheel_zoom_x);
  zu_viewer2d_wheel(get(), 2, 0, 0);
  expect_box(0, 0, 10, 10);
  zu_viewer2d_set_wheel_mode(get(), zu_wheel_zoom_y);
  zu_viewer2d_wheel(get(), 2, 0, 0);
  expect_box(0, 0, 10, 5);
  zu_viewer2d_set_wheel_mode(get(), zu_wheel_none);
  zu_viewer2d_wheel(get(), 2, 0, 0);
  expect_box(0, 0, 10, 5);
}

TEST_F(viewer2d, the_scene_shows_with_a_margin_and_without_hidden_layers) {
  show();
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  owned<zu_lr2d_destroy> low(zu_lr2d_create("a")), high(zu_lr2d_create("b"));
  zu_scn_2d_add_layer(scene.get(), low.get());
  zu_scn_2d_add_layer(scene.get(), high.get());
  zu_viewer2d_set_scn_2d(get(), scene.get());
  zoom({0, 0, 2, 1});
  zu_viewer2d_zoom_to_scn(get());
  expect_box(0, 0, 2, 1);  // no layer has a box
  Tzu_box_d2 small{0, 0, 200, 100}, large{0, 0, 2000, 1000};
  zu_lr2d_set_box(low.get(), true, &small);
  zu_lr2d_set_box(high.get(), true, &large);
  zu_lr2d_set_visible(high.get(), false);
  zu_viewer2d_zoom_to_scn(get());
  expect_box(-4, -2, 204, 102);
  zu_lr2d_set_visible(high.get(), true);
  zu_viewer2d_zoom_to_scn(get());
  expect_box(-40, -20, 2040, 1020);
}
TEST_F(viewer2d, a_rubber_box_is_replaced_and_goes_with_a_redraw) {
  Tzu_box_i2 rubber{};
  zu_box_i2_make_xy(&rubber, 9, 2, 1, 4);
  zu_viewer2d_draw_xor_box(get(), &rubber);
  ASSERT_TRUE(window_.rubber);
  EXPECT_EQ(window_.rubber->xmin, 1);
  EXPECT_EQ(window_.rubber->xmax, 9);
  EXPECT_EQ(window_.rubber->ymin, 2);
  zu_viewer2d_redraw_slow(get());
  EXPECT_FALSE(window_.rubber);
  EXPECT_EQ(window_.redraws, 1);
}
TEST_F(viewer2d, casts_keep_the_object) {
  EXPECT_EQ(zu_viewer2d_safe_downcast(zu_viewer2d_safe_upcast(get())), get());
  EXPECT_EQ(zu_viewer2d_safe_downcast(nullptr), nullptr);
}
TEST(viewer2d_of_nobody, answers_nothing) {
  Tzu_box_d2 b{1, 2, 3, 4};
  zu_viewer2d_set_zoom_box(nullptr, &b);
  zu_viewer2d_redraw_slow(nullptr);
  zu_viewer2d_zoom_to_scn(nullptr);
  EXPECT_FALSE(zu_viewer2d_get_box_cr_sml(nullptr, &b));
  EXPECT_EQ(zu_viewer2d_cr2px_y(nullptr, 1), 0);
  EXPECT_FALSE(zu_viewer2d_zoomhist_has_prev(nullptr));
}

}  // namespace
