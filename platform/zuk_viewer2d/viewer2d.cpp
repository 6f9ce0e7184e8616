#include "platform/zuk_viewer2d/viewer2d.h"

#include <algorithm>
#include <cmath>

using zu::platform::box_of;
using zu::platform::fitted;
using zu::platform::view;

namespace {

constexpr Tzu_box_d2 unit_square{0, 0, 1, 1};

bool is_step(double units) { return std::isfinite(units) && units > 0; }

/// Whether numbers can tell the pixels of a view from each other.
bool can_be_shown(const view& v) {
  constexpr double smallest = 1e-13;
  return is_step(v.ux) && is_step(v.uy) && v.ux > std::fabs(v.cx) * smallest &&
         v.uy > std::fabs(v.cy) * smallest;
}

}  // namespace

void Tzu_viewer2d::set_size(int32_t nx, int32_t ny, double dots_per_inch) {
  window_.nx = std::max(nx, 0);
  window_.ny = std::max(ny, 0);
  if (is_step(dots_per_inch)) window_.dots = dots_per_inch / 25.4;
  if (!has_size()) return;
  if (!is_step(view_.ux)) view_ = fitted(unit_square, window_, anisotropic_);
  if (wanted_) {
    view_ = fitted(*wanted_, window_, anisotropic_);
    wanted_.reset();
    history_.record(view_);
  }
  if (hooks_.box_changed != nullptr) hooks_.box_changed(hooks_.user);
}

void Tzu_viewer2d::set_box(const Tzu_box_d2& box) {
  if (!is_step(box.x1 - box.x0) || !is_step(box.y1 - box.y0)) return;
  if (!has_size()) {
    wanted_ = box;
    return;
  }
  view v = fitted(box, window_, anisotropic_);
  if (!can_be_shown(v)) return;
  wheel_turns_ = false;
  history_.record(v);
  show(v);
}

Tzu_box_d2 Tzu_viewer2d::box() const { return has_size() ? box_of(view_, window_) : unit_square; }

void Tzu_viewer2d::set_anisotropic(bool anisotropic) {
  anisotropic_ = anisotropic;
  if (!has_size() || anisotropic || view_.ux == view_.uy) return;
  view v = fitted(box(), window_, false);
  history_.replace(v);
  show(v);
}

void Tzu_viewer2d::set_scale(double sx, double sy) {
  view v = view_;
  v.ux = sx / 1000, v.uy = (anisotropic_ ? sy : sx) / 1000;
  if (!has_size() || !can_be_shown(v)) return;
  wheel_turns_ = false;
  history_.record(v);
  show(v);
}

void Tzu_viewer2d::wheel(double notches, double x, double y) {
  if (!has_size() || wheel_mode == zu_wheel_none) return;
  double factor = std::pow(2.0, -0.5 * notches);
  double fx = anisotropic_ && wheel_mode == zu_wheel_zoom_y ? 1.0 : factor;
  double fy = anisotropic_ && wheel_mode == zu_wheel_zoom_x ? 1.0 : factor;
  view v{x + (view_.cx - x) * fx, y + (view_.cy - y) * fy, view_.ux * fx, view_.uy * fy};
  if (!std::isfinite(v.cx) || !std::isfinite(v.cy) || !can_be_shown(v)) return;
  if (wheel_turns_)
    history_.replace(v);
  else
    history_.record(v);
  wheel_turns_ = true;
  show(v);
  redraw();
}

void Tzu_viewer2d::show_step(const view& v) {
  wheel_turns_ = false;
  show(v);
}

void Tzu_viewer2d::show(const view& v) {
  bool is_other = !view_.equals(v);
  view_ = v;
  // A step from before the axes were tied together.
  if (!anisotropic_) view_.ux = view_.uy = std::max(v.ux, v.uy);
  if (is_other && hooks_.box_changed != nullptr) hooks_.box_changed(hooks_.user);
}

void Tzu_viewer2d::redraw() {
  draw_box(nullptr);
  if (hooks_.redraw != nullptr) hooks_.redraw(hooks_.user);
}
void Tzu_viewer2d::move_picture(int32_t dx, int32_t dy) {
  if (hooks_.move_picture != nullptr) hooks_.move_picture(dx, dy, hooks_.user);
}
void Tzu_viewer2d::draw_box(const Tzu_box_i2* box) {
  if (hooks_.draw_box != nullptr) hooks_.draw_box(box, hooks_.user);
}
