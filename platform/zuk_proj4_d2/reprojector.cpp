#include "platform/zuk_proj4_d2/reprojector.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zu::platform {

namespace {

constexpr int points_of_an_edge = 21;

bool is_finite(const Tzu_vtx_d2& v) { return std::isfinite(v.x) && std::isfinite(v.y); }
bool is_finite(const Tzu_box_d2& b) {
  return std::isfinite(b.x0) && std::isfinite(b.y0) && std::isfinite(b.x1) && std::isfinite(b.y1);
}

std::array<Tzu_vtx_d2, 4 * points_of_an_edge> frame_of(const Tzu_box_d2& b) {
  std::array<Tzu_vtx_d2, 4 * points_of_an_edge> out;
  for (int i = 0; i < points_of_an_edge; ++i) {
    double share = static_cast<double>(i) / points_of_an_edge;
    double x = (b.x1 - b.x0) * share, y = (b.y1 - b.y0) * share;
    auto at = static_cast<std::size_t>(4 * i);
    out[at] = {b.x0 + x, b.y0}, out[at + 1] = {b.x1, b.y0 + y};
    out[at + 2] = {b.x1 - x, b.y1}, out[at + 3] = {b.x0, b.y1 - y};
  }
  return out;
}

PJ_DIRECTION direction(bool forward) { return forward ? PJ_FWD : PJ_INV; }

// A box over the date line comes back with its sides exchanged; as a box it is the whole round.
Tzu_box_d2 ordered(Tzu_box_d2 box) {
  if (box.x0 > box.x1) box.x0 = -180, box.x1 = 180;
  return box;
}

}  // namespace

bool reprojector::init(const std::string& source, const std::string& target) {
  way_ = source.empty() || target.empty() ? nullptr : operation_between(source, target);
  return way_ != nullptr;
}

void reprojector::set_affine(const Tzu_matrix3x3& matrix) {
  affine_ = back_ = matrix;
  affine_has_inverse_ = zu_matrix3x3_invert_inplace(&back_);
}

void reprojector::project(Tzu_vtx_d2* vertices, std::size_t count, bool forward) const {
  if (!is_needed() || count == 0) return;
  proj_trans_generic(way_->pj.get(), direction(forward), &vertices->x, sizeof(Tzu_vtx_d2), count,
                     &vertices->y, sizeof(Tzu_vtx_d2), count, nullptr, 0, 0, nullptr, 0, 0);
  proj_errno_reset(way_->pj.get());
}

bool reprojector::apply(Tzu_vtx_d2* vertices, std::size_t count, bool forward) const {
  if (!can_go(forward)) {
    std::fill_n(vertices, count, Tzu_vtx_d2{HUGE_VAL, HUGE_VAL});
    return count == 0;
  }
  auto affine = [&](const Tzu_matrix3x3& matrix) {
    for (std::size_t i = 0; affine_on_ && i < count; ++i)
      if (is_finite(vertices[i])) zu_vtx_d2_apply_matrix3x3(&vertices[i], &matrix);
  };
  if (!forward) affine(back_);
  project(vertices, count, forward);
  if (forward) affine(affine_);
  bool any = count == 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (is_finite(vertices[i]))
      any = true;
    else
      vertices[i] = {HUGE_VAL, HUGE_VAL};
  }
  return any;
}

bool reprojector::project(Tzu_box_d2& box, bool forward) const {
  if (!is_needed()) return true;
  auto frame = frame_of(box);
  project(frame.data(), frame.size(), forward);
  Tzu_box_d2 out{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  bool all = true;
  for (const Tzu_vtx_d2& v : frame) {
    if (!is_finite(v)) {
      all = false;
      continue;
    }
    out = {std::min(out.x0, v.x), std::min(out.y0, v.y), std::max(out.x1, v.x),
           std::max(out.y1, v.y)};
  }
  Tzu_box_d2 told{};
  if (all &&
      proj_trans_bounds(way_->thread->context(), way_->pj.get(), direction(forward), box.x0, box.y0,
                        box.x1, box.y1, &told.x0, &told.y0, &told.x1, &told.y1,
                        points_of_an_edge) &&
      is_finite(told))
    out = ordered(told);
  proj_errno_reset(way_->pj.get());
  if (!is_finite(out)) return false;
  box = out;
  return true;
}

bool reprojector::apply(Tzu_box_d2& box, bool forward) const {
  if (!can_go(forward) || !is_finite(box)) return false;
  Tzu_box_d2 image = box;
  if (!forward && affine_on_) zu_box_d2_apply_matrix3x3(&image, &back_);
  if (!project(image, forward)) return false;
  if (forward && affine_on_) zu_box_d2_apply_matrix3x3(&image, &affine_);
  box = image;
  return true;
}

}  // namespace zu::platform
