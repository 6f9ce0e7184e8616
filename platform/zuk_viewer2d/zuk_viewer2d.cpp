#include "zu/platform/zuk_viewer2d.h"

#include <algorithm>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_viewer2d/viewer2d.h"
#include "zu/platform/zuk_scn_2d.h"

using zu::platform::guarded;

namespace {

constexpr double mm_a_metre = 1000;

/// A number of a viewer that has a size.
template <class number> double number_of(const Tzu_viewer2d* viewer, number give) {
  return guarded(viewer, 0.0,
                 [&](const Tzu_viewer2d& v) { return v.has_size() ? double(give(v)) : 0.0; });
}

/// Around a box of the scene: the margins that the scene asks for, or a fiftieth of it.
void leave_room(const Tzu_viewer2d& viewer, Tzu_box_d2& box) {
  constexpr double part = 0.02;
  const Tzu_margins* margins = zu_scn_2d_get_margins_ptr(viewer.scene);
  if (!zu_margins_get_visible(margins)) return zu_box_d2_inflate_cf(&box, part);
  // The box shall fill what the margins leave of the window.
  auto grow = [](double& low, double& high, double length, double before, double after) {
    double left = length - before - after;
    if (!(left > 0)) return;
    double per_mm = (high - low) / left;
    low -= per_mm * before;
    high += per_mm * after;
  };
  grow(box.x0, box.x1, viewer.window().width(), zu_margins_get_lft(margins),
       zu_margins_get_rgt(margins));
  grow(box.y0, box.y1, viewer.window().height(), zu_margins_get_btm(margins),
       zu_margins_get_top(margins));
}

}  // namespace

void zu_box_i2_make_xy(Tzu_box_i2* out, int32_t x0, int32_t y0, int32_t x1, int32_t y1) {
  if (out != nullptr)
    *out = {std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1)};
}

Tzu_viewer2d* zu_viewer2d_create(const Tzu_viewer2d_hooks* hooks) {
  return new (std::nothrow) Tzu_viewer2d(hooks != nullptr ? *hooks : Tzu_viewer2d_hooks{});
}
void zu_viewer2d_destroy(Tzu_viewer2d* viewer) { delete viewer; }
Tzu_viewer* zu_viewer2d_safe_upcast(Tzu_viewer2d* viewer) { return viewer; }
Tzu_viewer2d* zu_viewer2d_safe_downcast(Tzu_viewer* viewer) {
  return viewer != nullptr ? viewer->as_2d() : nullptr;
}

void zu_viewer2d_set_scn_2d(Tzu_viewer2d* viewer, Tzu_scn_2d* scene) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.scene = scene; });
}
Tzu_scn_2d* zu_viewer2d_get_scn_2d(const Tzu_viewer2d* viewer) {
  return viewer != nullptr ? viewer->scene : nullptr;
}
Tzu_scn_2d* zu_viewer_get_scn(Tzu_viewer* viewer) {
  return zu_viewer2d_get_scn_2d(zu_viewer2d_safe_downcast(viewer));
}
void zu_viewer2d_set_size(Tzu_viewer2d* viewer, int32_t nx, int32_t ny, double dots_per_inch) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.set_size(nx, ny, dots_per_inch); });
}

void zu_viewer2d_set_zoom_box(Tzu_viewer2d* viewer, const Tzu_box_d2* box) {
  if (box != nullptr) guarded(viewer, [&](Tzu_viewer2d& v) { v.set_box(*box); });
}
bool zu_viewer2d_get_box_cr_sml(const Tzu_viewer2d* viewer, Tzu_box_d2* box) {
  if (box == nullptr) return false;
  *box = {0, 0, 1, 1};
  return guarded(viewer, false, [&](const Tzu_viewer2d& v) {
    *box = v.box();
    return v.has_size();
  });
}
void zu_viewer2d_zoom_to_scn(Tzu_viewer2d* viewer) {
  Tzu_box_d2 box{};
  if (!zu_scn_2d_get_clipped_box(zu_viewer2d_get_scn_2d(viewer), &box)) return;
  double x = zu_viewer2d_size_mm2cr_x(viewer, 10.0), y = zu_viewer2d_size_mm2cr_y(viewer, 10.0);
  if (!(box.x1 > box.x0)) box.x0 -= x, box.x1 += x;
  if (!(box.y1 > box.y0)) box.y0 -= y, box.y1 += y;
  leave_room(*viewer, box);
  zu_viewer2d_set_zoom_box(viewer, &box);
}
void zu_viewer2d_set_anisotropic(Tzu_viewer2d* viewer, bool anisotropic) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.set_anisotropic(anisotropic); });
}
bool zu_viewer2d_is_anisotropic(const Tzu_viewer2d* viewer) {
  return viewer != nullptr && viewer->is_anisotropic();
}
void zu_viewer2d_get_scale(const Tzu_viewer2d* viewer, double* sx, double* sy) {
  if (sx != nullptr)
    *sx = number_of(viewer, [](auto& v) { return v.units_per_mm_x() * mm_a_metre; });
  if (sy != nullptr)
    *sy = number_of(viewer, [](auto& v) { return v.units_per_mm_y() * mm_a_metre; });
}
void zu_viewer2d_set_scale(Tzu_viewer2d* viewer, double sx, double sy) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.set_scale(sx, sy); });
}
void zu_viewer2d_zoomhist_do_prev(Tzu_viewer2d* viewer) {
  guarded(viewer, [](Tzu_viewer2d& v) {
    if (v.history().has_prev()) v.show_step(v.history().prev());
  });
}
void zu_viewer2d_zoomhist_do_next(Tzu_viewer2d* viewer) {
  guarded(viewer, [](Tzu_viewer2d& v) {
    if (v.history().has_next()) v.show_step(v.history().next());
  });
}
bool zu_viewer2d_zoomhist_has_prev(const Tzu_viewer2d* viewer) {
  return viewer != nullptr && viewer->history().has_prev();
}
bool zu_viewer2d_zoomhist_has_next(const Tzu_viewer2d* viewer) {
  return viewer != nullptr && viewer->history().has_next();
}
void zu_viewer2d_set_wheel_mode(Tzu_viewer2d* viewer, int32_t mode) {
  if (mode < zu_wheel_zoom || mode > zu_wheel_zoom_x) return;
  guarded(viewer, [&](Tzu_viewer2d& v) { v.wheel_mode = mode; });
}
int32_t zu_viewer2d_get_wheel_mode(const Tzu_viewer2d* viewer) {
  return viewer != nullptr ? viewer->wheel_mode : 0;
}
void zu_viewer2d_wheel(Tzu_viewer2d* viewer, double notches, double x, double y) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.wheel(notches, x, y); });
}

double zu_viewer2d_cr2px_x(const Tzu_viewer2d* viewer, double x) {
  return number_of(viewer, [&](auto& v) { return (x - v.box().x0) / v.units_per_pixel_x(); });
}
double zu_viewer2d_cr2px_y(const Tzu_viewer2d* viewer, double y) {
  return number_of(viewer, [&](auto& v) { return (v.box().y1 - y) / v.units_per_pixel_y(); });
}
double zu_viewer2d_px2cr_x(const Tzu_viewer2d* viewer, double x) {
  return number_of(viewer, [&](auto& v) { return v.box().x0 + x * v.units_per_pixel_x(); });
}
double zu_viewer2d_px2cr_y(const Tzu_viewer2d* viewer, double y) {
  return number_of(viewer, [&](auto& v) { return v.box().y1 - y * v.units_per_pixel_y(); });
}
double zu_viewer2d_size_px2cr(const Tzu_viewer2d* viewer, double pixels) {
  return number_of(viewer, [&](auto& v) { return pixels * v.units_per_pixel_x(); });
}
double zu_viewer2d_cr2mm_x(const Tzu_viewer2d* viewer, double x) {
  return number_of(viewer, [&](auto& v) { return x / v.units_per_mm_x(); });
}
double zu_viewer2d_cr2mm_y(const Tzu_viewer2d* viewer, double y) {
  return number_of(viewer, [&](auto& v) { return y / v.units_per_mm_y(); });
}
double zu_viewer2d_mm2cr_x(const Tzu_viewer2d* viewer, double x) {
  return number_of(viewer, [&](auto& v) { return x * v.units_per_mm_x(); });
}
double zu_viewer2d_mm2cr_y(const Tzu_viewer2d* viewer, double y) {
  return number_of(viewer, [&](auto& v) { return y * v.units_per_mm_y(); });
}
double zu_viewer2d_size_mm2cr_x(const Tzu_viewer2d* viewer, double millimetres) {
  return zu_viewer2d_mm2cr_x(viewer, millimetres);
}
double zu_viewer2d_size_mm2cr_y(const Tzu_viewer2d* viewer, double millimetres) {
  return zu_viewer2d_mm2cr_y(viewer, millimetres);
}

void zu_viewer2d_move_pxl_map(Tzu_viewer2d* viewer, int32_t dx, int32_t dy) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.move_picture(dx, dy); });
}
void zu_viewer2d_draw_xor_box(Tzu_viewer2d* viewer, const Tzu_box_i2* box) {
  guarded(viewer, [&](Tzu_viewer2d& v) { v.draw_box(box); });
}
void zu_viewer2d_redraw_slow(Tzu_viewer2d* viewer) {
  guarded(viewer, [](Tzu_viewer2d& v) { v.redraw(); });
}
