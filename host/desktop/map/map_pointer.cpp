#include "host/desktop/map/map_pointer.h"

#include <cmath>

namespace zu::desktop {
namespace {

std::uint32_t flags_of(Qt::KeyboardModifiers keys, bool left) {
  std::uint32_t flags = left ? pointer_left : 0u;
  if (keys & Qt::ShiftModifier) flags |= pointer_modifier_0;
  if (keys & Qt::ControlModifier) flags |= pointer_modifier_1;
  return flags;
}

}  // namespace

map_pointer::map_pointer(Tzu_viewer2d* viewer, mode_host& modes,
                         std::function<void(double, double)> clicked)
    : viewer_(viewer), modes_(modes), clicked_(std::move(clicked)) {}

point_2d map_pointer::scene_point(QPointF at) const {
  return {zu_viewer2d_px2cr_x(viewer_, at.x()), zu_viewer2d_px2cr_y(viewer_, at.y())};
}

void map_pointer::press(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at) {
  if (is_dragging() || (button != Qt::LeftButton && button != Qt::MiddleButton)) return;
  bool by_hand = button == Qt::MiddleButton || hand_wanted_ || !modes_.mode();
  grip_ = by_hand ? grip::hand : grip::mode;
  button_ = button;
  start_ = at;
  has_moved_ = false;
  if (!by_hand)
    call<&viewer_extension_mode_impl::press>(modes_.mode(), flags_of(keys, true), scene_point(at));
}

void map_pointer::move(Qt::KeyboardModifiers keys, QPointF at) {
  if (!is_dragging()) {
    call<&viewer_extension_mode_impl::hover>(modes_.mode(), flags_of(keys, false), scene_point(at));
    return;
  }
  QPointF by = at - start_;
  if (!has_moved_ && std::hypot(by.x(), by.y()) < dead_zone_) return;
  has_moved_ = true;
  if (grip_ == grip::hand)
    zu_viewer2d_move_pxl_map(viewer_, static_cast<std::int32_t>(std::lround(by.x())),
                             static_cast<std::int32_t>(std::lround(by.y())));
  else
    call<&viewer_extension_mode_impl::drag>(modes_.mode(), flags_of(keys, true), scene_point(at));
}

void map_pointer::release(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at) {
  if (!is_dragging() || button != button_) return;
  grip was = std::exchange(grip_, grip::none);
  bool is_click = !has_moved_ && button == Qt::LeftButton && modes_.is_hand();
  if (!has_moved_) at = start_;
  if (was == grip::mode)
    call<&viewer_extension_mode_impl::release>(modes_.mode(), flags_of(keys, false),
                                               scene_point(at));
  else if (has_moved_)
    move_map({std::round(at.x() - start_.x()), std::round(at.y() - start_.y())});
  if (is_click) {
    point_2d point = scene_point(at);
    clicked_(point.x, point.y);
  }
}

void map_pointer::double_click(Qt::MouseButton button, Qt::KeyboardModifiers keys, QPointF at) {
  if (is_dragging() || button != Qt::LeftButton || hand_wanted_) return;
  call<&viewer_extension_mode_impl::double_click>(modes_.mode(), flags_of(keys, true),
                                                  scene_point(at));
}

void map_pointer::cancel() {
  if (!is_dragging()) return;
  grip_ = grip::none;
  zu_viewer2d_move_pxl_map(viewer_, 0, 0);
  zu_viewer2d_draw_xor_box(viewer_, nullptr);
}

void map_pointer::move_map(QPointF by) {
  point_2d zero = scene_point({0, 0}), moved = scene_point(by);
  double dx = moved.x - zero.x, dy = moved.y - zero.y;
  Tzu_box_d2 box;
  if (!zu_viewer2d_get_box_cr_sml(viewer_, &box)) return;
  box = {box.x0 - dx, box.y0 - dy, box.x1 - dx, box.y1 - dy};
  zu_viewer2d_set_zoom_box(viewer_, &box);
  zu_viewer2d_redraw_slow(viewer_);
}

}  // namespace zu::desktop
