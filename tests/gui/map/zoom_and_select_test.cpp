// The map in the modes that the second plug-in gives to it, chosen by their tools.

#include <QAction>

#include "host/desktop/realiser/tool_actions.h"
#include "tests/gui/map/map_fixture.h"

namespace zu::desktop {

class zoom_and_select : public map_test {
 protected:
  zoom_and_select() : map_test({"zuk_common.so"}) {}
  void SetUp() override {
    map_test::SetUp();
    map_->zoom_to({0, 0, 400, 300});
    ASSERT_TRUE(show());
    ASSERT_EQ(services_.viewer_extensions().size(), 1u);
    tools_.add_sets_of_toolbar(
        map_->use_extension(services_.viewer_extensions().front().service.get()));
  }

  void choose(const char* tool) {
    QString id = QStringLiteral("zu_common_plugin_viewer2d_panel_tool_") + QLatin1String(tool);
    ASSERT_NE(tools_.action(id), nullptr) << tool;
    tools_.action(id)->trigger();
  }
  void drag_and_release(QPoint from, QPoint to, Qt::KeyboardModifiers keys = {}) {
    drag(Qt::LeftButton, from, to, keys);
    QTest::mouseRelease(map_.get(), Qt::LeftButton, keys, to);
  }
  std::vector<std::uint64_t> selected() const {
    std::vector<std::uint64_t> ids;
    for (std::uint64_t id = 0; id < 12; ++id)
      if (zu_table_data_is_selected_id(zu_lr_get_data_ptr(layer_->entity()), id)) ids.push_back(id);
    return ids;
  }

  tool_actions tools_;
};

using ids = std::vector<std::uint64_t>;

TEST_F(zoom_and_select, a_box_is_zoomed_to_and_shown_while_it_is_drawn) {
  choose("zoom_in");
  EXPECT_EQ(map_->cursor().shape(), Qt::BitmapCursor);
  QImage before = seen();
  drag(Qt::LeftButton, {100, 75}, {300, 225});
  EXPECT_NE(seen(), before);
  expect_box(map_->box(), {0, 0, 400, 300});
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {300, 225});
  expect_box(map_->box(), {100, 75, 300, 225});
  choose("zoom_all");
  expect_box(map_->box(), {-8, -6, 408, 306});
}

TEST_F(zoom_and_select, a_click_halves_or_doubles_what_is_seen) {
  choose("zoom_in");
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {100, 75});
  expect_box(map_->box(), {0, 150, 200, 300});
  choose("zoom_out");
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {200, 150});
  expect_box(map_->box(), {-100, 75, 300, 375});
  map_->go_back();
  expect_box(map_->box(), {0, 150, 200, 300});
}

TEST_F(zoom_and_select, the_hand_moves_the_picture_and_draws_once) {
  choose("zoom_pan");
  EXPECT_EQ(map_->cursor().shape(), Qt::OpenHandCursor);
  QSignalSpy drawn(map_.get(), &map_view::drawn), clicked(map_.get(), &map_view::clicked);
  drag(Qt::LeftButton, {200, 150}, {230, 140});
  QCoreApplication::processEvents();
  EXPECT_EQ(map_->cursor().shape(), Qt::ClosedHandCursor);
  EXPECT_EQ(drawn.count(), 0);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {230, 140});
  expect_box(map_->box(), {-30, -10, 370, 290});
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_EQ(drawn.count(), 1);
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(clicked.count(), 1);
  expect_box(map_->box(), {-30, -10, 370, 290});
  map_->go_back();
  expect_box(map_->box(), {0, 0, 400, 300});
  choose("zoom_pan_h");
  EXPECT_EQ(map_->cursor().shape(), Qt::SizeHorCursor);
  drag_and_release({200, 150}, {230, 140});
  expect_box(map_->box(), {-30, 0, 370, 300});
}

TEST_F(zoom_and_select, cells_are_added_and_taken_away_and_seen) {
  choose("select_append");
  QImage before = seen();
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {50, 250});
  EXPECT_EQ(selected(), ids{0});
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_NE(seen(seen(), 50, 50), seen(before, 50, 50));
  // Round the two cells in the middle.
  drag_and_release({90, 90}, {310, 210}, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (ids{0, 5, 6}));
  drag_and_release({90, 90}, {310, 210});
  EXPECT_EQ(selected(), (ids{5, 6}));
  choose("select_remove");
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {250, 150});
  EXPECT_EQ(selected(), ids{5});
}

TEST_F(zoom_and_select, escape_takes_a_half_drawn_box_away) {
  choose("select_append");
  QImage before = seen();
  drag(Qt::LeftButton, {50, 50}, {350, 250});
  QTest::keyClick(map_.get(), Qt::Key_Escape);
  EXPECT_EQ(seen(), before);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {350, 250});
  EXPECT_EQ(selected(), ids{});
}

}  // namespace zu::desktop
