#pragma once
// Puts what a map has drawn where it lies in the window now, which may show another box.

#include "host/desktop/map/frame_drawing.h"

class QPainter;

namespace zu::desktop {

/// Where a box lies in the window of a viewer, in pixels of the screen.
QRectF place_of(const Tzu_box_d2& box, const Tzu_viewer2d* viewer);

/// Paints a frame in pixels of the screen: pixel by pixel where its scale is that of the viewer,
/// scaled where it is not. What it leaves of the window is `background`.
void paint_frame(QPainter& painter, const map_frame& frame, const Tzu_viewer2d* viewer,
                 const QRect& window, const QColor& background);

/// A dashed box that is seen on any map.
void paint_rubber_box(QPainter& painter, const Tzu_box_i2& box, qreal pixel_ratio);

}  // namespace zu::desktop
