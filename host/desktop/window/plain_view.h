#pragma once
// A map that shows the whole scene or a box of it.

#include <QImage>
#include <QWidget>
#include <optional>
#include <vector>

#include "host/core/picture.h"

namespace zu::desktop {

class plain_view final : public QWidget {
  Q_OBJECT

 public:
  explicit plain_view(host::scene& shown, QWidget* parent = nullptr);

  void redraw();
  void zoom_to_all();
  void zoom_to(const Tzu_box_d2& box);
  void zoom_in() { zoom_by(0.5); }
  void zoom_out() { zoom_by(2); }
  bool can_go_back() const { return place_ > 0; }
  bool can_go_forward() const { return place_ + 1 < boxes_.size(); }
  void go_back();
  void go_forward();
  std::optional<Tzu_box_d2> box() const;
  double map_scale() const;
  void set_map_scale(double scale);
  QImage picture();
  bool is_drawn() const { return !is_old_; }

 Q_SIGNALS:
  void view_changed();
  void cursor_moved(double x, double y, bool inside);
  void clicked(double x, double y);
  void drawn(double milliseconds);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void zoom_by(double factor);
  QPointF scene_point(QPointF at) const;

  host::scene& shown_;
  std::vector<Tzu_box_d2> boxes_;
  std::size_t place_ = 0;
  QImage picture_;
  bool is_old_ = true;
};

}  // namespace zu::desktop
