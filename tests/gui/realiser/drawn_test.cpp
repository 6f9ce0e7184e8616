#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include "host/desktop/realiser/pictures.h"
#include "tests/gui/realiser/fakes.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_stat.h"

namespace zu::desktop {

TEST(picture, has_its_bottom_row_first_and_its_colours_mixed_with_their_opacity) {
  fake_bitmap two_by_two;
  two_by_two.bytes = {255, 0, 0, 255, 0, 128, 0,   128,   // bottom: red, half green
                      0,   0, 0, 0,   0, 0,   255, 255};  // top: nothing, blue
  kept_picture kept;
  show(kept.visitor(), two_by_two);
  const QImage& image = kept.get().image;
  EXPECT_EQ(image.pixelColor(0, 1), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(1, 1), QColor(0, 255, 0, 128));
  EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(1, 0), QColor(0, 0, 255));
}

TEST(picture, of_three_channels_is_opaque) {
  fake_bitmap picture;
  picture.channels = 3;
  picture.bytes.assign(16, 0);
  kept_picture kept;
  show(kept.visitor(), picture);
  EXPECT_EQ(kept.get().image.pixelColor(0, 0), QColor(0, 0, 0));
}

TEST(picture, that_all_share_loses_its_ground) {
  fake_bitmap picture;
  picture.channels = 3;
  picture.number = -656;
  picture.bytes = {255, 255, 255, 0, 9, 9, 9, 0, 255, 255, 255, 0, 8, 8, 8, 0};
  kept_picture kept;
  show(kept.visitor(), picture);
  EXPECT_EQ(kept.get().image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(kept.get().image.pixelColor(1, 1), QColor(9, 9, 9));
}

TEST(picture, of_a_sample_lies_on_the_white_of_a_map_and_an_icon_on_nothing) {
  fake_bitmap picture;  // half of red, and nothing
  picture.bytes = {127, 0, 0, 127, 0, 0, 0, 0, 127, 0, 0, 127, 0, 0, 0, 0};
  kept_picture kept;
  picture.number = 1;
  show(kept.visitor(), picture);
  EXPECT_EQ(kept.get().image.pixelColor(1, 0).alpha(), 0);
  picture.number = 0;
  show(kept.visitor(), picture);
  EXPECT_EQ(kept.get().image.pixelColor(0, 0), QColor(255, 128, 128));
  EXPECT_EQ(kept.get().image.pixelColor(1, 0), QColor(255, 255, 255));
}

struct fake_canvas : faked<canvas_impl> {
  double width() override { return wide; }
  double height() override { return high; }
  void draw(Tzu_drwc* page) override {
    ++draws;
    zu_drwc_get_page(page, &this->page);
    dots = zu_drwc_get_dots_per_mm(page);
    zu_drwc_fill(page, Tzu_color{255, 255, 255, 0});
    Tzu_box_d2 corner{0, 0, this->page.x1 / 2, this->page.y1 / 2};
    zu_drwc_fill_box(page, &corner, Tzu_color{255, 0, 0, 0});
  }
  void press(std::uint32_t flags, point_2d at) override { presses.push_back({flags, at}); }
  void drag(std::uint32_t, point_2d at) override { last = at; }
  void release(std::uint32_t, point_2d) override { ++releases; }
  void hover(std::uint32_t, point_2d) override { ++hovers; }
  double wide = 50, high = 20;
  Tzu_box_d2 page{};
  double dots = 0;
  int draws = 0, releases = 0, hovers = 0;
  std::vector<std::pair<std::uint32_t, point_2d>> presses;
  point_2d last;
};

/// Not by the cursor of the screen, which may stand there already.
void move_pointer(QWidget* control, QPoint to, Qt::MouseButtons down) {
  QMouseEvent event(QEvent::MouseMove, QPointF(to), control->mapToGlobal(QPointF(to)), Qt::NoButton,
                    down, Qt::NoModifier);
  QApplication::sendEvent(control, &event);
}

TEST(canvas, is_drawn_in_the_pixels_of_the_screen_and_only_when_asked) {
  fake_canvas canvas;
  shown window(canvas);
  QImage picture = window.control->grab().toImage();
  double ratio = window.control->devicePixelRatioF();
  EXPECT_NEAR(canvas.dots * 25.4, window.control->logicalDpiX() * ratio, 1e-6);
  EXPECT_NEAR(canvas.page.x1 * canvas.dots, picture.width(), 1);
  EXPECT_EQ(picture.pixelColor(2, picture.height() - 3), QColor(255, 0, 0));
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(255, 255, 255));
  int draws = canvas.draws;
  window.control->grab();
  EXPECT_EQ(canvas.draws, draws);
  canvas.redraw();
  window.control->grab();
  EXPECT_EQ(canvas.draws, draws + 1);
}

TEST(canvas, the_pointer_is_told_in_millimetres_from_the_low_left_corner) {
  fake_canvas canvas;
  shown window(canvas);
  double dot = 25.4 / window.control->logicalDpiX();
  QPoint at(10, window.control->height() - 20);
  move_pointer(window.control, at, Qt::NoButton);
  EXPECT_EQ(canvas.hovers, 1);
  QTest::mousePress(window.control, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, at);
  ASSERT_EQ(canvas.presses.size(), 1u);
  EXPECT_EQ(canvas.presses[0].first, 11u);
  EXPECT_NEAR(canvas.presses[0].second.x, 10 * dot, 1e-9);
  EXPECT_NEAR(canvas.presses[0].second.y, 20 * dot, 1e-9);
  move_pointer(window.control, at + QPoint(5, 0), Qt::LeftButton);
  EXPECT_NEAR(canvas.last.x, 15 * dot, 1e-9);
  EXPECT_EQ(canvas.hovers, 1);
  QTest::mouseRelease(window.control, Qt::LeftButton, Qt::NoModifier, at);
  EXPECT_EQ(canvas.releases, 1);
}

struct fake_histogram : faked<histogram_impl> {
  fake_histogram() : data(zu_histogramm_create()) {
    zu_histogramm_set_params(data, 4);
    for (std::uint64_t i = 0; i < 4; ++i) zu_histogramm_set(data, i, double(i + 1));
  }
  ~fake_histogram() { zu_histogramm_destroy(data); }
  void visit_histogram(histogram_data_visitor visitor) override {
    if (!is_empty) call<&histogram_data_visitor_impl::visit>(visitor, data);
  }
  double minimum() override { return low; }
  double maximum() override { return high; }
  void set_range(double a, double b) override { low = a, high = b, ++sets; }
  Tzu_histogramm_data* data;
  double low = 0, high = 1;
  int sets = 0;
  bool is_empty = false;
};

TEST(histogram, keys_move_the_chosen_limit_and_not_past_the_other) {
  fake_histogram shares;
  shown window(shares);
  window.control->setFocus();
  QTest::keyClick(window.control, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(shares.low, 0.01);
  QTest::keyClick(window.control, Qt::Key_Space);
  QTest::keyClick(window.control, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(shares.high, 0.9);
  QTest::keyClick(window.control, Qt::Key_Home);
  EXPECT_DOUBLE_EQ(shares.high, 0.01);
  EXPECT_EQ(shares.sets, 3);
}

TEST(histogram, the_pointer_drags_the_nearer_limit) {
  fake_histogram shares;
  shown window(shares);
  window.control->resize(208, 60);  // 200 pixels of bars between margins of 4
  QTest::mousePress(window.control, Qt::LeftButton, Qt::NoModifier, QPoint(54, 30));
  EXPECT_NEAR(shares.low, 0.25, 1e-6);
  EXPECT_EQ(shares.high, 1);
  move_pointer(window.control, QPoint(64, 30), Qt::LeftButton);
  EXPECT_NEAR(shares.low, 0.3, 1e-6);
  QTest::mouseRelease(window.control, Qt::LeftButton, Qt::NoModifier, QPoint(64, 30));
  move_pointer(window.control, QPoint(100, 30), Qt::NoButton);
  EXPECT_NEAR(shares.low, 0.3, 1e-6);
}

TEST(histogram, without_bars_nothing_can_be_moved) {
  fake_histogram shares;
  shares.is_empty = true;
  shown window(shares);
  window.control->setFocus();
  QTest::keyClick(window.control, Qt::Key_Right);
  EXPECT_EQ(shares.sets, 0);
}

}  // namespace zu::desktop
