#include "host/desktop/map/map_view.h"

#include "tests/gui/map/map_fixture.h"
#include "zu/platform/zuk_scn_2d.h"

namespace zu::desktop {

// 400 x 300 pixels: a pixel is a unit of the scene.
constexpr Tzu_box_d2 grid_box{0, 0, 400, 300};

TEST_F(map_test, first_shows_all_layers_with_a_margin) {
  ASSERT_TRUE(show());
  expect_box(map_->box(), {-8, -6, 408, 306});
  QImage picture = seen();
  EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::white));
  EXPECT_NE(seen(picture, 50, 50), QColor(Qt::white));
  EXPECT_NE(seen(picture, 50, 50), seen(picture, 350, 250));
}

TEST_F(map_test, a_box_that_was_chosen_before_it_was_shown_stays) {
  map_->zoom_to({100, 100, 200, 175});
  expect_box(map_->box(), {100, 100, 200, 175});
  ASSERT_TRUE(show());
  expect_box(map_->box(), {100, 100, 200, 175});
}

TEST_F(map_test, a_hundred_requests_draw_once) {
  ASSERT_TRUE(show());
  QSignalSpy drawn(map_.get(), &map_view::drawn);
  for (int i = 0; i < 100; ++i) map_->redraw();
  EXPECT_EQ(drawn.count(), 0);
  ASSERT_TRUE(wait_until_drawn());
  QCoreApplication::processEvents();
  EXPECT_EQ(drawn.count(), 1);
}

TEST_F(map_test, nothing_is_drawn_without_a_size_or_out_of_sight) {
  QSignalSpy drawn(map_.get(), &map_view::drawn);
  map_->redraw();
  QCoreApplication::processEvents();
  EXPECT_EQ(drawn.count(), 0);
  map_->setMinimumSize(0, 0);
  map_->resize(0, 0);
  map_->show();
  map_->resize(0, 0);
  map_->redraw();
  QCoreApplication::processEvents();
  EXPECT_EQ(drawn.count(), 0);
  EXPECT_TRUE(map_->picture().isNull());
}

TEST_F(map_test, hidden_layers_are_not_drawn) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  EXPECT_NE(seen(map_->picture(), 150, 150), QColor(Qt::white));
  layer_->set_visible(false);
  map_->redraw();
  EXPECT_EQ(seen(map_->picture(), 150, 150), QColor(Qt::white));
}

TEST_F(map_test, is_drawn_when_its_scene_tells_of_a_change) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  Tzu_table_data* table = zu_lr_get_data_ptr(layer_->entity());
  ASSERT_NE(table, nullptr);
  QImage before = seen();
  zu_table_data_begin_update(table);
  zu_table_data_set_selected_id(table, 5, true);  // the second cell of the middle row
  EXPECT_TRUE(map_->is_up_to_date());
  zu_table_data_end_update(table);
  EXPECT_FALSE(map_->is_up_to_date());
  ASSERT_TRUE(wait_until_drawn());
  QImage after = seen();
  EXPECT_NE(seen(after, 150, 150), seen(before, 150, 150));
  EXPECT_EQ(seen(after, 250, 150), seen(before, 250, 150));

  layer_->set_visible(false);
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_EQ(seen(seen(), 250, 150), QColor(Qt::white));
  zu_lr2d_data_changed(layer_->entity());
  EXPECT_FALSE(map_->is_up_to_date());
  ASSERT_TRUE(wait_until_drawn());
  // A layer that came later is heard as well.
  host::layer& second = scene_.add(grid("second.asc").toStdString());
  EXPECT_FALSE(map_->is_up_to_date());
  ASSERT_TRUE(wait_until_drawn());
  zu_lr2d_data_changed(second.entity());
  EXPECT_FALSE(map_->is_up_to_date());
  ASSERT_TRUE(wait_until_drawn());
  scene_.remove(second);
  ASSERT_TRUE(wait_until_drawn());
  map_.reset();
  zu_lr2d_data_changed(layer_->entity());  // nobody hears it
}

TEST_F(map_test, a_drag_moves_the_picture_at_once_and_draws_once_on_release) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  QImage before = seen();
  QSignalSpy drawn(map_.get(), &map_view::drawn);
  drag(Qt::LeftButton, {200, 150}, {230, 140});
  QCoreApplication::processEvents();
  QImage during = seen();
  EXPECT_EQ(drawn.count(), 0);
  expect_box(map_->box(), grid_box);
  int n = static_cast<int>(map_->devicePixelRatioF());
  QRect from(0, 10 * n, 370 * n, 290 * n), to(30 * n, 0, 370 * n, 290 * n);
  EXPECT_EQ(during.copy(to), before.copy(from));
  EXPECT_EQ(during.pixelColor(10 * n, 100 * n), QColor(Qt::white));

  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {230, 140});
  expect_box(map_->box(), {-30, -10, 370, 290});
  EXPECT_EQ(seen(), during) << "until the new picture is there the old one stands where it lies";
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_EQ(drawn.count(), 1);
  EXPECT_EQ(seen().copy(to), before.copy(from));
}

TEST_F(map_test, the_middle_button_and_space_move_the_map_in_any_mode) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  noting_mode mode;
  auto* extension = new noting_extension;
  strong_ref<viewer_extension_impl> held(extension->get());
  extension->mode = &mode;
  map_->set_extension(extension->get());
  drag(Qt::MiddleButton, {200, 150}, {190, 150});
  QTest::mouseRelease(map_.get(), Qt::MiddleButton, {}, {190, 150});
  expect_box(map_->box(), {10, 0, 410, 300});
  QTest::keyPress(map_.get(), Qt::Key_Space);
  EXPECT_EQ(map_->cursor().shape(), Qt::OpenHandCursor);
  drag(Qt::LeftButton, {200, 150}, {200, 160});
  EXPECT_EQ(map_->cursor().shape(), Qt::ClosedHandCursor);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {200, 160});
  QTest::keyRelease(map_.get(), Qt::Key_Space);
  expect_box(map_->box(), {10, 10, 410, 310});
  EXPECT_EQ(mode.told().find("press"), std::string::npos) << mode.told();
  map_->set_extension({});
}

TEST_F(map_test, a_double_click_of_the_middle_button_shows_all) {
  map_->zoom_to({10, 10, 20, 20});
  ASSERT_TRUE(show());
  QTest::mouseDClick(map_.get(), Qt::MiddleButton, {}, {100, 100});
  expect_box(map_->box(), {-8, -6, 408, 306});
}

TEST_F(map_test, a_click_tells_its_point_and_a_drag_none) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  QSignalSpy clicked(map_.get(), &map_view::clicked);
  QTest::mouseClick(map_.get(), Qt::LeftButton, {}, {120, 80});
  ASSERT_EQ(clicked.count(), 1);
  EXPECT_NEAR(clicked[0][0].toDouble(), 120, 1e-6);
  EXPECT_NEAR(clicked[0][1].toDouble(), 220, 1e-6);
  EXPECT_FALSE(map_->can_go_back()) << "a click moves nothing";
  drag(Qt::LeftButton, {120, 80}, {160, 80});
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {160, 80});
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(map_test, escape_ends_a_drag_without_a_move) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  QImage before = seen();
  drag(Qt::LeftButton, {200, 150}, {250, 150});
  EXPECT_NE(seen(), before);
  QTest::keyClick(map_.get(), Qt::Key_Escape);
  EXPECT_EQ(seen(), before);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {250, 150});
  expect_box(map_->box(), grid_box);
}

TEST_F(map_test, the_wheel_keeps_the_point_under_the_pointer) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  double px = 90 * map_->devicePixelRatioF(), py = 40 * map_->devicePixelRatioF();
  for (int notches : {1, 2, -4}) {
    point_2d before{zu_viewer2d_px2cr_x(map_->viewer(), px),
                    zu_viewer2d_px2cr_y(map_->viewer(), py)};
    double width = map_->box()->x1 - map_->box()->x0;
    wheel(notches, {90, 40});
    EXPECT_NEAR(zu_viewer2d_px2cr_x(map_->viewer(), px), before.x, 1e-6);
    EXPECT_NEAR(zu_viewer2d_px2cr_y(map_->viewer(), py), before.y, 1e-6);
    EXPECT_NEAR(map_->box()->x1 - map_->box()->x0, width * std::pow(2, -0.5 * notches), 1e-6);
  }
}

TEST_F(map_test, the_wheel_rests_while_the_map_is_dragged) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  drag(Qt::LeftButton, {200, 150}, {210, 150});
  wheel(2, {200, 150});
  expect_box(map_->box(), grid_box);
  QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, {210, 150});
  wheel(2, {0, 299});
  EXPECT_NEAR(map_->box()->x1 - map_->box()->x0, 200, 1e-6);
}

TEST_F(map_test, a_picture_stands_where_its_own_box_lies_until_the_next_one_is_there) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  QImage whole = seen();
  struct {
    Tzu_box_d2 box;
    std::vector<point_2d> inside, outside;
  } cases[] = {
      {{100, 75, 300, 225}, {{120, 80}, {280, 220}, {120, 220}, {280, 80}}, {}},
      {{-400, -300, 800, 600},
       {{50, 50}, {350, 50}, {50, 250}, {350, 250}},
       {{-50, 50}, {50, 350}}},
      {{1000, 1000, 1004, 1003}, {}, {{1001, 1001}, {1003, 1002}}},
  };
  for (const auto& each : cases) {
    map_->zoom_to(grid_box);
    ASSERT_TRUE(wait_until_drawn());
    std::vector<QColor> expected;
    for (const point_2d& at : each.inside) expected.push_back(seen(whole, at.x, at.y));
    map_->zoom_to(each.box);
    for (bool is_new : {false, true}) {
      ASSERT_TRUE(!is_new || wait_until_drawn());
      QImage now = seen();
      for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(seen(now, each.inside[i].x, each.inside[i].y), expected[i]) << i << is_new;
      for (const point_2d& at : each.outside)
        EXPECT_EQ(seen(now, at.x, at.y), QColor(Qt::white)) << at.x << ' ' << is_new;
    }
  }
}

TEST_F(map_test, steps_are_taken_back_and_forth) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  EXPECT_FALSE(map_->can_go_back());
  QTest::keyClick(map_.get(), Qt::Key_Plus);
  expect_box(map_->box(), {100, 75, 300, 225});
  QTest::keyClick(map_.get(), Qt::Key_Right);
  expect_box(map_->box(), {150, 75, 350, 225});
  QTest::keyClick(map_.get(), Qt::Key_Up);
  expect_box(map_->box(), {150, 112.5, 350, 262.5});
  QTest::keyClick(map_.get(), Qt::Key_Left, Qt::AltModifier);
  QTest::keyClick(map_.get(), Qt::Key_Left, Qt::AltModifier);
  expect_box(map_->box(), {100, 75, 300, 225});
  map_->go_forward();
  expect_box(map_->box(), {150, 75, 350, 225});
  map_->go_back();
  map_->go_back();
  expect_box(map_->box(), grid_box);
  EXPECT_FALSE(map_->can_go_back());
  EXPECT_TRUE(map_->can_go_forward());
  QTest::keyClick(map_.get(), Qt::Key_Home);
  EXPECT_FALSE(map_->can_go_forward());
}

TEST_F(map_test, the_scale_stays_when_the_window_grows) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  double scale = map_->map_scale();
  EXPECT_NEAR(scale, 1000 / 25.4 * 96, 1e-6);
  map_->resize(600, 500);
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_NEAR(map_->map_scale(), scale, 1e-9);
  expect_box(map_->box(), {-100, -100, 500, 400});
  map_->set_map_scale(scale / 2);
  EXPECT_NEAR(map_->map_scale(), scale / 2, 1e-9);
  expect_box(map_->box(), {50, 25, 350, 275});
  for (double refused : {0.0, -5.0, std::nan(""), HUGE_VAL}) map_->set_map_scale(refused);
  EXPECT_NEAR(map_->map_scale(), scale / 2, 1e-9);
}

TEST_F(map_test, the_scale_of_degrees_is_that_of_the_parallel_in_the_middle) {
  scene_.set_projection("EPSG:4326");
  map_->zoom_to({20, 59, 24, 61});
  ASSERT_TRUE(show());
  // 4 degrees of 55,800 m, the width of the map, on 400 pixels of 1/96 inch.
  EXPECT_NEAR(map_->map_scale(), 4 * 55800 / (400 * 0.0254 / 96), 100);
  EXPECT_NEAR(map_->units_a_pixel(), 0.01, 1e-9);
  map_->set_map_scale(1e6);
  EXPECT_NEAR(map_->map_scale(), 1e6, 1e-3);
  Tzu_box_d2 shown = map_->box().value();
  EXPECT_NEAR((shown.y0 + shown.y1) / 2, 60, 1e-9);
}

TEST_F(map_test, a_box_without_area_gets_some) {
  ASSERT_TRUE(show());
  map_->zoom_to({200, 100, 200, 100});
  ASSERT_TRUE(map_->box().has_value());
  EXPECT_NEAR((map_->box()->x0 + map_->box()->x1) / 2, 200, 1e-6);
  EXPECT_GT(map_->box()->x1, map_->box()->x0);
}

TEST_F(map_test, a_rubber_box_is_drawn_and_taken_away) {
  map_->zoom_to(grid_box);
  ASSERT_TRUE(show());
  QImage before = seen();
  Tzu_box_i2 box{50, 60, 150, 160};
  zu_viewer2d_draw_xor_box(map_->viewer(), &box);
  QImage with = seen();
  for (QPoint corner : {QPoint(50, 60), QPoint(150, 160), QPoint(150, 60), QPoint(50, 160)})
    EXPECT_TRUE(with.pixelColor(corner) == QColor(Qt::black) ||
                with.pixelColor(corner) == QColor(Qt::white));
  EXPECT_EQ(with.copy(52, 62, 96, 96), before.copy(52, 62, 96, 96));
  zu_viewer2d_draw_xor_box(map_->viewer(), nullptr);
  EXPECT_EQ(seen(), before);
}

TEST_F(map_test, the_axes_of_a_section_have_scales_of_their_own) {
  Tzu_prf_data* profile = zu_scn_2d_get_prf_data_ptr(scene_.get());
  zu_prf_data_set_is_profil(profile, true);
  zu_prf_data_set_axes_scale(profile, 0);
  ASSERT_TRUE(show());
  map_->zoom_to({0, 100, 400, 200});
  expect_box(map_->box(), {0, 100, 400, 200});
  wheel(2, {0, 299}, Qt::ControlModifier);
  EXPECT_NEAR(map_->box()->x1 - map_->box()->x0, 200, 1e-6);
  EXPECT_NEAR(map_->box()->y1 - map_->box()->y0, 100, 1e-6);
  // Ten times as high as it is.
  zu_prf_data_set_axes_scale(profile, 10);
  map_->zoom_to({0, 0, 400, 10});
  expect_box(map_->box(), {0, -10, 400, 20});
  zu_prf_data_set_axes_scale(profile, 1);
  map_->zoom_to({0, 0, 400, 10});
  expect_box(map_->box(), {0, -145, 400, 155});
}

}  // namespace zu::desktop
