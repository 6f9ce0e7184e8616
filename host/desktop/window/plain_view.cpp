#include "host/desktop/window/plain_view.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>

#include "host/core/failure.h"

namespace zu::desktop {

plain_view::plain_view(host::scene& shown, QWidget* parent) : QWidget(parent), shown_(shown) {
  setObjectName(QStringLiteral("map_view"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void plain_view::redraw() {
  is_old_ = true;
  update();
}

void plain_view::zoom_to_all() {
  try {
    zoom_to(shown_.box());
  } catch (const host::failure&) {  // nothing to show: the map stays where it is
  }
}

void plain_view::zoom_to(const Tzu_box_d2& box) {
  boxes_.resize(boxes_.empty() ? 0 : place_ + 1);
  boxes_.push_back(box);
  place_ = boxes_.size() - 1;
  redraw();
  Q_EMIT view_changed();
}

void plain_view::zoom_by(double factor) {
  std::optional<Tzu_box_d2> now = box();
  if (!now) return;
  double cx = (now->x0 + now->x1) / 2, cy = (now->y0 + now->y1) / 2;
  double hx = (now->x1 - now->x0) / 2 * factor, hy = (now->y1 - now->y0) / 2 * factor;
  zoom_to({cx - hx, cy - hy, cx + hx, cy + hy});
}

void plain_view::go_back() {
  if (!can_go_back()) return;
  --place_;
  redraw();
  Q_EMIT view_changed();
}

void plain_view::go_forward() {
  if (!can_go_forward()) return;
  ++place_;
  redraw();
  Q_EMIT view_changed();
}

std::optional<Tzu_box_d2> plain_view::box() const {
  if (boxes_.empty() || width() < 1 || height() < 1) return {};
  return host::widened(boxes_[place_], std::uint64_t(width()), std::uint64_t(height()));
}

double plain_view::map_scale() const {
  std::optional<Tzu_box_d2> now = box();
  return now ? (now->x1 - now->x0) / (width() / 96.0 * 0.0254) : 0;
}

void plain_view::set_map_scale(double scale) {
  if (map_scale() > 0) zoom_by(scale / map_scale());
}

QImage plain_view::picture() {
  if (!is_old_) return picture_;
  is_old_ = false;
  picture_ = QImage();
  if (!box() && !shown_.layers().empty()) zoom_to_all();
  is_old_ = false;
  if (!box()) return picture_;
  QElapsedTimer timer;
  timer.start();
  host::picture_request request;
  request.nx = std::uint64_t(width());
  request.ny = std::uint64_t(height());
  request.extent = box();
  host::drawn_picture drawn_page;
  try {
    drawn_page = host::draw(shown_, request);
  } catch (const host::failure&) {  // the layer list says why
    return picture_;
  }
  picture_ = QImage(width(), height(), QImage::Format_RGBA8888);
  zu_drwc_get_pixels(drawn_page.page.get(), picture_.bits());
  Q_EMIT drawn(static_cast<double>(timer.elapsed()));
  return picture_;
}

QPointF plain_view::scene_point(QPointF at) const {
  Tzu_box_d2 now = *box();
  return {now.x0 + at.x() / width() * (now.x1 - now.x0),
          now.y1 - at.y() / height() * (now.y1 - now.y0)};
}

void plain_view::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.drawImage(rect(), picture());
}

void plain_view::resizeEvent(QResizeEvent*) {
  is_old_ = true;
  Q_EMIT view_changed();
}

void plain_view::mouseMoveEvent(QMouseEvent* event) {
  if (!box()) return;
  QPointF at = scene_point(event->position());
  Q_EMIT cursor_moved(at.x(), at.y(), true);
}

void plain_view::mousePressEvent(QMouseEvent* event) {
  if (!box() || event->button() != Qt::LeftButton) return;
  QPointF at = scene_point(event->position());
  Q_EMIT clicked(at.x(), at.y());
}

void plain_view::leaveEvent(QEvent*) { Q_EMIT cursor_moved(0, 0, false); }

}  // namespace zu::desktop
