#include "src/viewer/viewer2d_mode.h"

namespace zu::mode::detail {

void drag2d_mode::press(std::uint32_t flags, point_2d point) {
  if (viewer() == nullptr || (flags & pointer_left) == 0) return;
  dragging_ = true;
  begin(point);
}

void drag2d_mode::drag(std::uint32_t flags, point_2d point) {
  if (viewer() != nullptr && dragging_ && (flags & pointer_left) != 0) go_on(point);
}

// No flag tells which button went up.
void drag2d_mode::release(std::uint32_t flags, point_2d point) {
  if (viewer() == nullptr || !dragging_) return;
  dragging_ = false;
  end(flags, point);
}

void drag2d_mode::abandon() {
  if (dragging_) zu_viewer2d_draw_xor_box(viewer(), nullptr);
  dragging_ = false;
}

void drag2d_mode::draw_rubber_box() {
  auto x = [&](const point_2d& p) {
    return static_cast<std::int32_t>(zu_viewer2d_cr2px_x(viewer(), p.x));
  };
  auto y = [&](const point_2d& p) {
    return static_cast<std::int32_t>(zu_viewer2d_cr2px_y(viewer(), p.y));
  };
  Tzu_box_i2 box;
  zu_box_i2_make_xy(&box, x(start_), y(start_), x(current_), y(current_));
  zu_viewer2d_draw_xor_box(viewer(), &box);
}

}  // namespace zu::mode::detail
