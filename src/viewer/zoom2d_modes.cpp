#include "src/viewer/zoom2d_modes.h"

#include <cmath>

namespace zu::mode::detail {
namespace {

std::int32_t rounded(double pixel) { return static_cast<std::int32_t>(std::round(pixel)); }

}  // namespace

zoom2d_extent zoom_extent(Tzu_viewer2d* viewer, point_2d start, point_2d current,
                          const Tzu_box_d2& visible) {
  constexpr double click_pixels = 2.0;
  zoom2d_extent e{(start.x + current.x) * 0.5, (start.y + current.y) * 0.5,
                  std::fabs(current.x - start.x) * 0.5, std::fabs(current.y - start.y) * 0.5};
  double t = zu_viewer2d_size_px2cr(viewer, click_pixels);
  if (t > e.dx || t > e.dy) {
    e.dx = (visible.x1 - visible.x0) * 0.25;
    e.dy = (visible.y1 - visible.y0) * 0.25;
  }
  return e;
}

void zoom2d_mode::cursor(bitmap_visitor visitor) { visit_cursor(kind_.cursor, visitor); }

Tzu_box_d2 zoom2d_mode::visible() const {
  Tzu_box_d2 box{};
  zu_viewer2d_get_box_cr_sml(viewer(), &box);
  return box;
}

// A band reaches over all of the axis that keeps its box.
void zoom2d_mode::begin(point_2d point) {
  start_ = current_ = point;
  if (kind_.action == zoom2d_action::pan) return;
  Tzu_box_d2 box = visible();
  if (!moves_x()) start_.x = box.x0, current_.x = box.x1;
  if (!moves_y()) start_.y = box.y0, current_.y = box.y1;
}

void zoom2d_mode::follow(point_2d point) {
  if (moves_x()) current_.x = point.x;
  if (moves_y()) current_.y = point.y;
}

void zoom2d_mode::go_on(point_2d point) {
  follow(point);
  if (kind_.action == zoom2d_action::pan)
    move_picture();
  else
    draw_rubber_box();
}

void zoom2d_mode::end(std::uint32_t /*flags*/, point_2d point) {
  follow(point);
  Tzu_box_d2 now = visible();
  Tzu_box_d2 box = kind_.action == zoom2d_action::inside    ? inside(now)
                   : kind_.action == zoom2d_action::outside ? outside(now)
                                                            : panned(now);
  zu_viewer2d_set_zoom_box(viewer(), &box);
  zu_viewer2d_redraw_slow(viewer());
}

Tzu_box_d2 zoom2d_mode::inside(const Tzu_box_d2& visible) const {
  zoom2d_extent e = zoom_extent(viewer(), start_, current_, visible);
  Tzu_box_d2 box;
  zu_box_d2_make_xy(&box, e.cx - e.dx, e.cy - e.dy, e.cx + e.dx, e.cy + e.dy);
  if (!moves_x()) box.x0 = start_.x, box.x1 = current_.x;
  if (!moves_y()) box.y0 = start_.y, box.y1 = current_.y;
  return box;
}

Tzu_box_d2 zoom2d_mode::outside(const Tzu_box_d2& visible) const {
  double cx = (start_.x + current_.x) * 0.5, cy = (start_.y + current_.y) * 0.5;
  double w = visible.x1 - visible.x0, h = visible.y1 - visible.y0;
  Tzu_box_d2 box{cx - w, cy - h, cx + w, cy + h};
  if (!moves_x()) box.x0 = start_.x, box.x1 = current_.x;
  if (!moves_y()) box.y0 = start_.y, box.y1 = current_.y;
  return box;
}

Tzu_box_d2 zoom2d_mode::panned(const Tzu_box_d2& visible) const {
  double dx = current_.x - start_.x, dy = current_.y - start_.y;
  Tzu_box_d2 box;
  zu_box_d2_init_xy(&box, visible.x0 - dx, visible.y0 - dy, visible.x1 - dx, visible.y1 - dy);
  return box;
}

// From where it was pressed: a window counts from where its picture was drawn.
void zoom2d_mode::move_picture() const {
  auto x = [&](const point_2d& p) { return rounded(zu_viewer2d_cr2px_x(viewer(), p.x)); };
  auto y = [&](const point_2d& p) { return rounded(zu_viewer2d_cr2px_y(viewer(), p.y)); };
  zu_viewer2d_move_pxl_map(viewer(), x(current_) - x(start_), y(current_) - y(start_));
}

}  // namespace zu::mode::detail
