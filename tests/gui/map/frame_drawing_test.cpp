#include "host/desktop/map/frame_drawing.h"

#include "tests/gui/map/map_fixture.h"

namespace zu::desktop {

/// Layers that fill the page, each in its own colour, and take their time.
struct coloured_layers final : map_layers {
  std::vector<Tzu_color> colours;
  int milliseconds = 0;
  mutable std::vector<std::size_t> drawn;
  std::function<void(std::size_t)> meanwhile = [](std::size_t) {};

  std::size_t count() const override { return colours.size(); }
  void draw(std::size_t index, Izu_render* render) const override {
    QElapsedTimer timer;
    timer.start();
    Tzu_box_d2 page;
    zu_drwc_get_page(zu_render_get_drwc(render), &page);
    page.x1 /= static_cast<double>(index + 1);
    zu_drwc_fill_box(zu_render_get_drwc(render), &page, colours[index]);
    drawn.push_back(index);
    meanwhile(index);
    while (timer.elapsed() < milliseconds) continue;
  }
};

constexpr Tzu_color red{255, 0, 0, 0}, green{0, 255, 0, 0}, blue{0, 0, 255, 0};

TEST(frame_drawing, draws_the_lowest_layer_first_and_shows_how_far_it_is) {
  coloured_layers layers;
  layers.colours = {red, green};
  QImage picture;
  {
    frame_drawing drawing(layers, nullptr, {QSize(8, 4), {0, 0, 8, 4}, 96, Qt::white});
    EXPECT_EQ(drawing.frame().picture.pixelColor(0, 0), QColor(Qt::white));
    ASSERT_TRUE(drawing.is_going_on());
    drawing.draw_next();
    EXPECT_EQ(drawing.frame().picture.pixelColor(0, 0), QColor(Qt::red));
    ASSERT_TRUE(drawing.is_going_on());
    drawing.draw_next();
    EXPECT_FALSE(drawing.is_going_on());
    picture = drawing.frame().picture;
    EXPECT_EQ(drawing.frame().box.x1, 8);
  }
  // The picture outlives the drawing.
  EXPECT_EQ(picture.size(), QSize(8, 4));
  EXPECT_EQ(picture.pixelColor(0, 0), QColor(0, 255, 0));
  EXPECT_EQ(picture.pixelColor(7, 3), QColor(Qt::red));
}

TEST(frame_drawing, ends_where_layers_went_away) {
  coloured_layers layers;
  layers.colours = {red, green};
  frame_drawing drawing(layers, nullptr, {QSize(8, 4), {0, 0, 8, 4}, 96, Qt::white});
  drawing.draw_next();
  layers.colours.pop_back();
  EXPECT_FALSE(drawing.is_going_on());
}

TEST(frame_drawing, of_a_size_that_no_memory_holds_is_over_at_once) {
  coloured_layers layers;
  layers.colours = {red};
  frame_drawing drawing(layers, nullptr, {QSize(40000, 4), {0, 0, 8, 4}, 96, Qt::white});
  EXPECT_FALSE(drawing.is_going_on());
  EXPECT_TRUE(drawing.frame().picture.isNull());
}

/// A map of layers of which each takes longer than a turn.
class slow_map final : public map_view {
 public:
  slow_map() : map_view(static_cast<QWidget*>(nullptr)) {
    auto made = std::make_unique<coloured_layers>();
    layers = made.get();
    layers->colours.assign(12, red);
    layers->colours.back() = blue;
    layers->milliseconds = 35;
    set_layers(std::move(made));
    zu_viewer2d_set_scn_2d(viewer(), scene.get());
    resize(100, 50);
    zoom_to({0, 0, 100, 50});
  }
  ~slow_map() override { zu_viewer2d_set_scn_2d(viewer(), nullptr); }
  bool has_begun() const { return !layers->drawn.empty(); }

  std::unique_ptr<Tzu_scn_2d, void (*)(Tzu_scn_2d*)> scene{zu_scn_2d_create(), &zu_scn_2d_destroy};
  coloured_layers* layers = nullptr;
};

TEST(slow_map, shows_layers_one_after_another) {
  slow_map map;
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return !map.is_up_to_date() && map.grab().toImage().pixelColor(90, 10) == QColor(Qt::red);
  }));
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(map.layers->drawn.size(), 12u);
  EXPECT_EQ(map.grab().toImage().pixelColor(2, 10), QColor(Qt::blue));
}

TEST(slow_map, gives_up_a_picture_for_a_newer_one) {
  slow_map map;
  QSignalSpy drawn(&map, &map_view::drawn);
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.has_begun(); }));
  ASSERT_FALSE(map.is_up_to_date());
  std::size_t before = map.layers->drawn.size();
  map.layers->colours = {green};
  map.redraw();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(map.layers->drawn.size(), before + 1);
  EXPECT_EQ(map.layers->drawn.back(), 0u);
  EXPECT_EQ(drawn.count(), 1);
}

TEST(slow_map, is_stopped_by_escape_says_so_and_goes_on_by_f5) {
  slow_map map;
  QSignalSpy drawn(&map, &map_view::drawn);
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.has_begun(); }));
  QTest::keyClick(&map, Qt::Key_Escape);
  std::size_t before = map.layers->drawn.size();
  ASSERT_LT(before, 12u);
  QCoreApplication::processEvents();
  EXPECT_EQ(map.layers->drawn.size(), before);
  EXPECT_FALSE(map.is_up_to_date());
  EXPECT_EQ(drawn.count(), 0);
  QTest::keyClick(&map, Qt::Key_F5);
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(map.layers->drawn.size(), before + 12);
}

TEST(slow_map, waits_for_the_wheel_to_rest_and_shows_the_old_picture_scaled) {
  slow_map map;
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  std::size_t before = map.layers->drawn.size();
  QSignalSpy drawn(&map, &map_view::drawn);
  for (int i = 0; i < 4; ++i) {
    QWheelEvent event(QPointF(0, 0), QPointF(0, 0), {}, QPoint(0, 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&map, &event);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(map.layers->drawn.size(), before) << "nothing is drawn while it turns";
  // The blue of the first 100 / 12 pixels is four times as wide now.
  EXPECT_EQ(map.grab().toImage().pixelColor(30, 10), QColor(Qt::blue));
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(drawn.count(), 1);
}

TEST(slow_map, waits_for_its_size_to_rest) {
  slow_map map;
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  QSignalSpy drawn(&map, &map_view::drawn);
  std::size_t before = map.layers->drawn.size();
  for (int width = 110; width <= 150; width += 10) {
    map.resize(width, 50);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(map.layers->drawn.size(), before);
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(drawn.count(), 1);
}

TEST(slow_map, survives_a_request_from_inside_a_layer) {
  slow_map map;
  map.layers->milliseconds = 0;
  bool asked = false;
  map.layers->meanwhile = [&](std::size_t index) {
    if (index != 5 || std::exchange(asked, true)) return;
    map.redraw();
    QCoreApplication::processEvents();  // as a progress window does
  };
  map.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return map.is_up_to_date(); }));
  EXPECT_EQ(map.layers->drawn.size(), 6u + 12u);
}

}  // namespace zu::desktop
