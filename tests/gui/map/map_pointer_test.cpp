#include "host/desktop/map/map_pointer.h"

#include "host/desktop/map/cursors.h"
#include "tests/gui/map/map_fixture.h"

namespace zu::desktop {

class modes_test : public map_test {
 protected:
  void SetUp() override {
    map_test::SetUp();
    map_->zoom_to({0, 0, 400, 300});
    ASSERT_TRUE(show());
    extension_ = new noting_extension;
    held_.reset(extension_->get());
    extension_->mode = &mode_;
    map_->set_extension(extension_->get());
  }
  void TearDown() override { map_->set_extension({}); }

  noting_mode mode_;
  noting_extension* extension_ = nullptr;
  strong_ref<viewer_extension_impl> held_;
};

TEST_F(modes_test, get_points_of_the_scene_and_what_is_down) {
  QTest::mouseMove(map_.get(), {10, 20});
  drag(Qt::LeftButton, {100, 50}, {140, 90}, Qt::ShiftModifier);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, Qt::ControlModifier, {150, 100});
  mode_.notes.erase(std::remove_if(mode_.notes.begin(), mode_.notes.end(),
                                   [](const auto& each) { return each.what == "hover"; }),
                    mode_.notes.end());
  ASSERT_EQ(mode_.told(), "press drag drag release");
  struct {
    double x, y;
    std::uint32_t flags;
  } expected[] = {{100, 250, 9}, {120, 230, 9}, {140, 210, 9}, {150, 200, 2}};
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(mode_.notes[i].at.x, expected[i].x, 1e-6) << i;
    EXPECT_NEAR(mode_.notes[i].at.y, expected[i].y, 1e-6) << i;
    EXPECT_EQ(mode_.notes[i].flags, expected[i].flags) << i;
  }
}

TEST_F(modes_test, get_a_double_click_once) {
  QSignalSpy acted(map_.get(), &map_view::mode_acted);
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {100, 50});
  QTest::mouseDClick(map_.get(), Qt::LeftButton, {}, {100, 50});
  EXPECT_EQ(mode_.told(), "press release double");
  EXPECT_EQ(acted.count(), 2);
}

TEST_F(modes_test, are_left_alone_by_other_buttons) {
  QTest::mouseClick(map_.get(), Qt::RightButton, {}, {100, 50});
  EXPECT_EQ(mode_.told().find("press"), std::string::npos);
}

TEST_F(modes_test, a_tremble_of_the_hand_is_no_drag) {
  drag(Qt::LeftButton, {100, 50}, {101, 51});
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {101, 51});
  EXPECT_EQ(mode_.told(), "press release");
  EXPECT_NEAR(mode_.notes.back().at.x, 100, 1e-6);
}

TEST_F(modes_test, escape_takes_the_rest_of_a_drag_away) {
  drag(Qt::LeftButton, {100, 50}, {140, 90});
  QTest::keyClick(map_.get(), Qt::Key_Escape);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {140, 90});
  EXPECT_EQ(mode_.told(), "press drag drag");
}

TEST_F(modes_test, have_their_cursors) {
  EXPECT_EQ(map_->cursor().shape(), Qt::BitmapCursor);
  noting_mode hand;
  hand.cursor_number = cursor_hand;
  extension_->choose(&hand);
  EXPECT_EQ(map_->cursor().shape(), Qt::OpenHandCursor);
  EXPECT_FALSE(mode_.view) << "a mode that is left has no view";
  EXPECT_TRUE(hand.view);
  noting_mode select;
  select.cursor_number = 0;
  extension_->choose(&select);
  EXPECT_EQ(map_->cursor().shape(), Qt::CrossCursor);
  extension_->choose(nullptr);
  EXPECT_EQ(map_->cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(modes_test, draw_over_the_picture_when_they_ask_for_it) {
  QImage before = seen();
  EXPECT_EQ(mode_.drawn, 0);
  mode_.draws = true;
  call<&element_view_impl::list_changed>(mode_.view);
  EXPECT_EQ(seen().pixelColor(200, 150), QColor(255, 0, 255));
  EXPECT_EQ(mode_.drawn, 1);
  mode_.draws = false;
  call<&element_view_impl::list_changed>(mode_.view);
  EXPECT_EQ(seen(), before);
}

TEST_F(modes_test, that_only_follow_the_pointer_draw_no_layers) {
  call<&element_view_impl::list_changed>(mode_.view);
  EXPECT_TRUE(map_->is_up_to_date());
}

TEST_F(modes_test, hear_which_viewer_a_person_works_in) {
  QWidget other;
  QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
  QCoreApplication::sendEvent(map_.get(), &in);
  EXPECT_EQ(extension_->activations, 1);
  QCoreApplication::sendEvent(map_.get(), &out);
  EXPECT_EQ(extension_->deactivations, 1);
}

TEST(map_pointer, counts_in_pixels_of_the_screen) {
  // The same drag on a screen of twice as many pixels: other pixels, the same points.
  for (int ratio : {1, 2}) {
    Tzu_viewer2d* viewer = zu_viewer2d_create(nullptr);
    zu_viewer2d_set_size(viewer, 400 * ratio, 300 * ratio, 96.0 * ratio);
    Tzu_box_d2 box{0, 0, 400, 300};
    zu_viewer2d_set_zoom_box(viewer, &box);
    {
      noting_mode mode;
      mode_host modes([] {}, [] {});
      auto* extension = new noting_extension;
      extension->mode = &mode;
      modes.set_extension(extension->get());
      map_pointer pointer(viewer, modes, [](double, double) {});
      pointer.press(Qt::LeftButton, {}, QPointF(100, 50) * ratio);
      pointer.move({}, QPointF(150, 60) * ratio);
      pointer.release(Qt::LeftButton, {}, QPointF(150, 60) * ratio);
      ASSERT_EQ(mode.told(), "press drag release");
      EXPECT_NEAR(mode.notes[0].at.x, 100, 1e-6);
      EXPECT_NEAR(mode.notes[0].at.y, 250, 1e-6);
      EXPECT_NEAR(mode.notes[2].at.x, 150, 1e-6);
      EXPECT_NEAR(mode.notes[2].at.y, 240, 1e-6);
    }
    zu_viewer2d_destroy(viewer);
  }
}

}  // namespace zu::desktop
