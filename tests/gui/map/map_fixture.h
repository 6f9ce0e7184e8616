#pragma once
// A map over one small grid, and modes that write down what they are told.

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "host/core/layer_look.h"
#include "host/core/scene.h"
#include "host/desktop/map/map_view.h"

namespace zu::desktop {

/// A mode that notes each call with its point.
struct noting_mode final : viewer_extension_mode_impl {
  struct note {
    std::string what;
    std::uint32_t flags;
    point_2d at;
  };
  std::vector<note> notes;
  element_view view;
  std::int32_t cursor_number = 101;
  bool draws = false;
  int drawn = 0;

  struct numbered_bitmap final : bitmap_impl {
    std::int32_t number = 0;
    std::int32_t id() override { return number; }
  };
  void cursor(bitmap_visitor visitor) override {
    numbered_bitmap picture;
    picture.number = cursor_number;
    call<&bitmap_visitor_impl::visit>(visitor, bitmap(handle_of<bitmap_impl>(picture)));
  }
  void draw(Izu_render* render) override {
    ++drawn;
    Tzu_box_d2 page;
    zu_drwc_get_page(zu_render_get_drwc(render), &page);
    if (draws) zu_drwc_fill_box(zu_render_get_drwc(render), &page, {255, 0, 255, 0});
  }
  void hover(std::uint32_t f, point_2d p) override { notes.push_back({"hover", f, p}); }
  void press(std::uint32_t f, point_2d p) override { notes.push_back({"press", f, p}); }
  void double_click(std::uint32_t f, point_2d p) override { notes.push_back({"double", f, p}); }
  void drag(std::uint32_t f, point_2d p) override { notes.push_back({"drag", f, p}); }
  void release(std::uint32_t f, point_2d p) override { notes.push_back({"release", f, p}); }
  void attach_view(element_view attached) override { view = attached; }

  viewer_extension_mode get() { return handle_of<viewer_extension_mode_impl>(*this); }
  std::string told() const {
    std::string all;
    for (const note& each : notes) all += (all.empty() ? "" : " ") + each.what;
    return all;
  }
};

struct noting_extension final : referent<viewer_extension_impl> {
  noting_mode* mode = nullptr;
  element_view view;
  int activations = 0, deactivations = 0;
  void activated() override { ++activations; }
  void deactivated() override { ++deactivations; }
  viewer_extension_mode current_mode() override {
    return mode != nullptr ? mode->get() : viewer_extension_mode();
  }
  void attach_view(element_view attached) override { view = attached; }
  void choose(noting_mode* chosen) {
    mode = chosen;
    call<&element_view_impl::value_changed>(view);
  }
  viewer_extension get() { return handle_of<viewer_extension_impl>(*this); }
};

class map_test : public testing::Test {
 protected:
  explicit map_test(const std::vector<std::string>& further_bundles = {})
      : services_(further_bundles) {}
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    layer_ = &scene_.add(grid("grid.asc").toStdString());
    host::apply_look({}, *layer_);
    map_ = std::make_unique<map_view>(scene_);
    map_->resize(400, 300);
  }

  /// 4 by 3 cells of 100 units from (0, 0), a value each.
  QString grid(const char* name) {
    QFile file(folder_.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "ncols 4\nnrows 3\nxllcorner 0\nyllcorner 0\ncellsize 100\nNODATA_value -9999\n"
        "1 2 3 4\n5 6 7 8\n9 10 11 12\n");
    return file.fileName();
  }

  bool wait_until_drawn() {
    return QTest::qWaitFor([this] { return map_->is_up_to_date(); }, 20000);
  }
  bool show() {
    map_->show();
    return wait_until_drawn();
  }

  /// Where a point of the scene lies in the widget.
  QPoint place(double x, double y) const {
    return {static_cast<int>(zu_viewer2d_cr2px_x(map_->viewer(), x)),
            static_cast<int>(zu_viewer2d_cr2px_y(map_->viewer(), y))};
  }
  QColor seen(const QImage& picture, double x, double y) const {
    return picture.pixelColor(place(x, y));
  }
  QImage seen() { return map_->grab().toImage(); }

  /// A drag with the steps that a hand makes.
  void drag(Qt::MouseButton button, QPoint from, QPoint to, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(map_.get(), button, keys, from);
    drag_on(button, (from + to) / 2, keys);
    drag_on(button, to, keys);
  }
  void drag_on(Qt::MouseButton button, QPoint to, Qt::KeyboardModifiers keys = {}) {
    QMouseEvent event(QEvent::MouseMove, QPointF(to), map_->mapToGlobal(QPointF(to)), Qt::NoButton,
                      button, keys);
    QCoreApplication::sendEvent(map_.get(), &event);
  }
  void wheel(int notches, QPoint at, Qt::KeyboardModifiers keys = {}) {
    QWheelEvent event(QPointF(at), map_->mapToGlobal(QPointF(at)), QPoint(),
                      QPoint(0, notches * 120), Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(map_.get(), &event);
  }

  QTemporaryDir folder_;
  host::bundle services_;
  host::scene scene_{services_};
  host::layer* layer_ = nullptr;
  std::unique_ptr<map_view> map_;
};

inline void expect_box(const std::optional<Tzu_box_d2>& box, const Tzu_box_d2& expected,
                       double tolerance = 1e-6) {
  ASSERT_TRUE(box.has_value());
  EXPECT_NEAR(box->x0, expected.x0, tolerance);
  EXPECT_NEAR(box->y0, expected.y0, tolerance);
  EXPECT_NEAR(box->x1, expected.x1, tolerance);
  EXPECT_NEAR(box->y1, expected.y1, tolerance);
}

}  // namespace zu::desktop
