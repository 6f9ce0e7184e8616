#include "host/desktop/map/cursors.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zu::desktop {
namespace {

/// The strokes of a magnifier of 24 by 24 with the lens about (10, 10), a sign inside it, and an
/// arrow beside it along the axis that it is tied to.
QPainterPath magnifier(bool in, bool vertical, bool horizontal) {
  QPainterPath path;
  path.addEllipse(QPointF(10, 10), 6.5, 6.5);
  path.moveTo(15, 15);
  path.lineTo(21, 21);
  path.moveTo(7, 10);
  path.lineTo(13, 10);
  if (in) path.moveTo(10, 7), path.lineTo(10, 13);
  if (vertical) {
    path.moveTo(21, 3), path.lineTo(21, 13);
    path.moveTo(19, 5), path.lineTo(21, 3), path.lineTo(23, 5);
    path.moveTo(19, 11), path.lineTo(21, 13), path.lineTo(23, 11);
  }
  if (horizontal) {
    path.moveTo(3, 21), path.lineTo(13, 21);
    path.moveTo(5, 19), path.lineTo(3, 21), path.lineTo(5, 23);
    path.moveTo(11, 19), path.lineTo(13, 21), path.lineTo(11, 23);
  }
  return path;
}

QCursor drawn(const QPainterPath& path) {
  qreal ratio = qGuiApp->devicePixelRatio();
  QPixmap picture(QSize(25, 25) * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  // Dark on a light rim: it is seen on any map.
  for (auto [colour, width] : {std::pair(Qt::white, 4.0), std::pair(Qt::black, 1.8)})
    painter.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.end();
  return QCursor(picture, 10, 10);
}

}  // namespace

QCursor map_cursor(std::int32_t number) {
  switch (number) {
    case cursor_zoom_in:
      return drawn(magnifier(true, false, false));
    case cursor_zoom_in_v:
      return drawn(magnifier(true, true, false));
    case cursor_zoom_in_h:
      return drawn(magnifier(true, false, true));
    case cursor_zoom_out:
      return drawn(magnifier(false, false, false));
    case cursor_zoom_out_v:
      return drawn(magnifier(false, true, false));
    case cursor_zoom_out_h:
      return drawn(magnifier(false, false, true));
    case cursor_hand:
      return Qt::OpenHandCursor;
    case cursor_hand_v:
      return Qt::SizeVerCursor;
    case cursor_hand_h:
      return Qt::SizeHorCursor;
    default:
      return Qt::CrossCursor;
  }
}

}  // namespace zu::desktop
