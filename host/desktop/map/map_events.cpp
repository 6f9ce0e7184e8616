// What the map does with the events of its window.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <utility>

#include "host/desktop/map/cursors.h"
#include "host/desktop/map/frame_painting.h"
#include "host/desktop/map/map_view.h"
#include "host/desktop/words.h"

namespace zu::desktop {

void map_view::paintEvent(QPaintEvent*) {
  if (pixels() != followed_) follow_window();  // another screen may count more pixels
  if (std::exchange(is_mode_picture_old_, false)) mode_picture_ = mode_picture();
  QPainter painter(this);
  // All below is in pixels of the screen: a picture is never sampled anew for the window's scale.
  painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
  QRect window(QPoint(0, 0), pixels());
  painter.translate(shift_);
  paint_frame(painter, frame_, viewer(), window.translated(-shift_), Qt::white);
  if (!mode_picture_.isNull()) painter.drawImage(0, 0, mode_picture_);
  painter.translate(-shift_);
  if (rubber_box_) paint_rubber_box(painter, *rubber_box_, devicePixelRatioF());
  if (!is_cut_short_) return;
  painter.resetTransform();
  QString said = words("Not everything is drawn. F5 draws it.", "Нарисовано не всё. F5 нарисует.");
  QRect place = fontMetrics().boundingRect(said).adjusted(-6, -3, 6, 3);
  place.moveBottomLeft(rect().bottomLeft() + QPoint(8, -8));
  painter.fillRect(place, palette().toolTipBase());
  painter.setPen(palette().toolTipText().color());
  painter.drawText(place, Qt::AlignCenter, said);
}

void map_view::resizeEvent(QResizeEvent*) { follow_window(); }

void map_view::showEvent(QShowEvent*) {
  follow_window();
  if (!is_up_to_date()) redraw();
}

void map_view::hideEvent(QHideEvent*) { timer_.stop(); }

void map_view::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) setAccessibleName(words("Map", "Карта"));
  QWidget::changeEvent(event);
}

// --- The mouse

void map_view::mousePressEvent(QMouseEvent* event) {
  pointer_->press(event->button(), event->modifiers(), pixel_at(event->position()));
  show_cursor();
}

void map_view::mouseMoveEvent(QMouseEvent* event) {
  QPointF at = pixel_at(event->position());
  pointer_->move(event->modifiers(), at);
  if (!box()) return;
  point_2d point = pointer_->scene_point(at);
  Q_EMIT cursor_moved(point.x, point.y, rect().contains(event->position().toPoint()));
}

void map_view::mouseReleaseEvent(QMouseEvent* event) {
  bool was_mode = pointer_->held() == map_pointer::grip::mode;
  pointer_->release(event->button(), event->modifiers(), pixel_at(event->position()));
  show_cursor();
  if (was_mode && !pointer_->is_dragging()) Q_EMIT mode_acted();
}

void map_view::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) return zoom_to_all();
  bool is_ours = modes_.mode() && event->button() == Qt::LeftButton;
  pointer_->double_click(event->button(), event->modifiers(), pixel_at(event->position()));
  if (is_ours) Q_EMIT mode_acted();
}

void map_view::leaveEvent(QEvent*) { Q_EMIT cursor_moved(0, 0, false); }

void map_view::wheelEvent(QWheelEvent* event) {
  std::int32_t own = zu_viewer2d_get_wheel_mode(viewer());
  // Alt makes the wheel a horizontal one in many systems.
  int angle = event->angleDelta().y() != 0 ? event->angleDelta().y() : event->angleDelta().x();
  if (own == zu_wheel_none || angle == 0) return event->ignore();
  // A drag counts from a point of the box in which it began.
  if (pointer_->is_dragging()) return event->accept();
  std::int32_t turned = own;
  if (own == zu_wheel_zoom && zu_viewer2d_is_anisotropic(viewer())) {
    if (event->modifiers() & Qt::ControlModifier) turned = zu_wheel_zoom_x;
    if (event->modifiers() & Qt::ShiftModifier) turned = zu_wheel_zoom_y;
  }
  point_2d at = pointer_->scene_point(pixel_at(event->position()));
  if (turned != own) zu_viewer2d_set_wheel_mode(viewer(), turned);
  is_wheeling_ = true;
  zu_viewer2d_wheel(viewer(), angle / 120.0, at.x, at.y);
  is_wheeling_ = false;
  if (turned != own) zu_viewer2d_set_wheel_mode(viewer(), own);
  event->accept();
}

void map_view::show_cursor() {
  bool by_hand = pointer_ && (pointer_->is_hand_wanted() ||
                              pointer_->held() == map_pointer::grip::hand || modes_.is_hand());
  if (!by_hand)
    setCursor(modes_.cursor());
  else
    setCursor(pointer_->is_dragging() ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

// --- Keys

void map_view::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    if (!event->isAutoRepeat()) pointer_->set_hand_wanted(true), show_cursor();
  } else if (!handle_key(event->key(), event->modifiers())) {
    QWidget::keyPressEvent(event);
  }
}

bool map_view::handle_key(int key, Qt::KeyboardModifiers keys) {
  bool alt = keys & Qt::AltModifier;
  switch (key) {
    case Qt::Key_Left:
      alt ? go_back() : move_by(-0.25, 0);
      return true;
    case Qt::Key_Right:
      alt ? go_forward() : move_by(0.25, 0);
      return true;
    case Qt::Key_Up:
      move_by(0, 0.25);
      return true;
    case Qt::Key_Down:
      move_by(0, -0.25);
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      zoom_in();
      return true;
    case Qt::Key_Minus:
      zoom_out();
      return true;
    case Qt::Key_Home:
      zoom_to_all();
      return true;
    case Qt::Key_F5:
      redraw();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // The middle of the map stands for the pointer.
      if (std::optional<Tzu_box_d2> shown = box())
        Q_EMIT clicked(zu_halfway(shown->x0, shown->x1), zu_halfway(shown->y0, shown->y1));
      return true;
    case Qt::Key_Escape:
      if (pointer_->is_dragging())
        pointer_->cancel(), show_cursor();
      else if (drawing_)
        stop_drawing();
      else
        return false;
      return true;
    default:
      return false;
  }
}

void map_view::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QWidget::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) pointer_->set_hand_wanted(false), show_cursor();
}

void map_view::focusInEvent(QFocusEvent*) {
  call<&viewer_extension_impl::activated>(modes_.extension());
}

void map_view::focusOutEvent(QFocusEvent*) {
  pointer_->set_hand_wanted(false);
  show_cursor();
  call<&viewer_extension_impl::deactivated>(modes_.extension());
}

}  // namespace zu::desktop
