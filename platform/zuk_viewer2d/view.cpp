#include "platform/zuk_viewer2d/view.h"

#include <algorithm>
#include <cmath>

namespace zu::platform {

// A box that went to pixels and back is the same box.
bool view::equals(const view& other) const {
  constexpr double part = 1e-9;
  double x = part * std::max(ux, other.ux), y = part * std::max(uy, other.uy);
  return std::fabs(ux - other.ux) <= x && std::fabs(uy - other.uy) <= y &&
         std::fabs(cx - other.cx) <= x && std::fabs(cy - other.cy) <= y;
}

view fitted(const Tzu_box_d2& box, const window_size& window, bool anisotropic) {
  view v;
  v.cx = box.x0 + (box.x1 - box.x0) * 0.5;
  v.cy = box.y0 + (box.y1 - box.y0) * 0.5;
  v.ux = (box.x1 - box.x0) / window.width();
  v.uy = (box.y1 - box.y0) / window.height();
  if (!anisotropic) v.ux = v.uy = std::max(v.ux, v.uy);
  return v;
}

Tzu_box_d2 box_of(const view& v, const window_size& window) {
  double x = v.ux * window.width() * 0.5, y = v.uy * window.height() * 0.5;
  return {v.cx - x, v.cy - y, v.cx + x, v.cy + y};
}

}  // namespace zu::platform
