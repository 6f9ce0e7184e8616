#include "host/desktop/map/frame_painting.h"

#include <QPainter>
#include <QRegion>
#include <cmath>

namespace zu::desktop {

QRectF place_of(const Tzu_box_d2& box, const Tzu_viewer2d* viewer) {
  return {QPointF(zu_viewer2d_cr2px_x(viewer, box.x0), zu_viewer2d_cr2px_y(viewer, box.y1)),
          QPointF(zu_viewer2d_cr2px_x(viewer, box.x1), zu_viewer2d_cr2px_y(viewer, box.y0))};
}

void paint_frame(QPainter& painter, const map_frame& frame, const Tzu_viewer2d* viewer,
                 const QRect& window, const QColor& background) {
  QRectF place = frame.picture.isNull() ? QRectF() : place_of(frame.box, viewer);
  bool is_somewhere = std::isfinite(place.x()) && std::isfinite(place.y()) &&
                      std::isfinite(place.width()) && std::isfinite(place.height()) &&
                      place.width() > 0 && place.height() > 0;
  QRectF seen = is_somewhere ? place.intersected(QRectF(window)) : QRectF();
  if (seen.isEmpty()) return painter.fillRect(window, background);

  QSize size = frame.picture.size();
  if (std::abs(place.width() - size.width()) < 0.5 &&
      std::abs(place.height() - size.height()) < 0.5) {
    QRect whole(QPointF(std::round(place.x()), std::round(place.y())).toPoint(), size);
    for (const QRect& gap : QRegion(window).subtracted(whole)) painter.fillRect(gap, background);
    painter.drawImage(whole.topLeft(), frame.picture);
    return;
  }
  painter.fillRect(window, background);
  // Only the part that is seen: far in, the whole would be larger than a painter counts.
  double per_x = size.width() / place.width(), per_y = size.height() / place.height();
  QRectF part((seen.x() - place.x()) * per_x, (seen.y() - place.y()) * per_y, seen.width() * per_x,
              seen.height() * per_y);
  painter.drawImage(seen, frame.picture, part);
}

void paint_rubber_box(QPainter& painter, const Tzu_box_i2& box, qreal pixel_ratio) {
  QRect lines(QPoint(box.xmin, box.ymin), QPoint(box.xmax, box.ymax));
  lines.setSize(lines.size() - QSize(1, 1));
  painter.setBrush(Qt::NoBrush);
  QPen pen(Qt::white, std::round(pixel_ratio));
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.drawRect(lines);
  pen.setColor(Qt::black);
  pen.setDashPattern({4, 4});
  painter.setPen(pen);
  painter.drawRect(lines);
}

}  // namespace zu::desktop
