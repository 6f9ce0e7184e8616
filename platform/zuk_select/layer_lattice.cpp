#include "platform/zuk_select/layer_lattice.h"

#include <cmath>
#include <cstring>

#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/open_source.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::platform {
namespace {

/// Layers of other kinds show curves or points.
bool shows_cells(const char* type) {
  return std::strcmp(type, "tos_grid_lr1d") != 0 && std::strcmp(type, "tos_2crd_lr2d") != 0;
}

Tzu_vtx_d2 halfway(const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) {
  return {zu_halfway(a.x, b.x), zu_halfway(a.y, b.y)};
}

/// The side of a half plane on which a ring is kept; `along` 0 is x, 1 is y.
struct half_plane {
  int along;
  double limit;
  bool above;

  double height(const Tzu_vtx_d2& v) const {
    double h = (along == 0 ? v.x : v.y) - limit;
    return above ? h : -h;
  }
};

// Sutherland and Hodgman 1974, Communications of the ACM 17(1), p. 32.
vertices cut(const vertices& ring, const half_plane& side) {
  vertices kept;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Tzu_vtx_d2& a = ring[i];
    const Tzu_vtx_d2& b = ring[(i + 1) % ring.size()];
    double ha = side.height(a), hb = side.height(b);
    if (ha >= 0) kept.push_back(a);
    if ((ha >= 0) == (hb >= 0)) continue;
    double t = ha / (ha - hb);
    kept.push_back({a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t});
  }
  return kept;
}

}  // namespace

std::optional<layer_lattice> layer_lattice::of(const Izu_layer* layer) {
  if (!shows_cells(zu_lr_get_lr_type(layer))) return {};
  open_source source(text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); }));
  auto grid = cast<grid_source_impl>(source.get());
  std::int32_t sizes[3];
  Tzu_matrix3x3 matrix;
  if (!call<&grid_source_impl::sizes>(grid, sizes) ||
      !call<&grid_source_impl::matrix3x3>(grid, &matrix.m[0][0]) ||
      !zu_matrix3x3_invert_inplace(&matrix))
    return {};
  layer_lattice made;
  made.size_ = {sizes[0], sizes[1]};
  std::int64_t slice = zu_tos_slice_lr2d_get_zslice(layer);
  if (slice > 0) made.first_id_ = static_cast<std::uint64_t>(slice * made.size_.nx * made.size_.ny);
  // Index (0, 0) is the middle of the first cell, whose low corner is cell coordinate (0, 0).
  Tzu_matrix3x3 half = {{{1, 0, 0.5}, {0, 1, 0.5}, {0, 0, 1}}};
  zu_matrix3x3_mult(&made.to_cells_, &half, &matrix);

  std::wstring own = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(layer, a); });
  std::wstring scene = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(layer, a); });
  made.reprojection_.reset(zu_rpj_fb_d2_create());
  bool way = zu_rpj_fb_d2_init_w(made.reprojection_.get(), own.c_str(), scene.c_str()) &&
             zu_rpj_fb_d2_rpj_is_needed(made.reprojection_.get());
  if (!way) {
    made.reprojection_.reset();
    return made;
  }
  constexpr double margin = 0.05;
  Tzu_box_d2 box{};
  if (zu_lr2d_get_box(layer, &box)) {
    zu_box_d2_inflate_cf(&box, margin);
    made.around_ = box;
  }
  return made;
}

std::optional<Tzu_vtx_d2> layer_lattice::place(Tzu_vtx_d2 point) const {
  constexpr int backwards = 0;
  if (reprojection_ != nullptr)
    zu_rpj_fb_d2_apply_xy(reprojection_.get(), &point.x, &point.y, backwards);
  zu_vtx_d2_apply_matrix3x3(&point, &to_cells_);
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return {};
  return point;
}

/// Places what lies between two points, and the second.
void layer_lattice::place_between(const Tzu_vtx_d2& from, const Tzu_vtx_d2& to, int depth,
                                  vertices& out) const {
  constexpr int first_splits = 4, most_splits = 14;
  constexpr double tolerance = 0.01;  // of a cell
  Tzu_vtx_d2 middle = halfway(from, to);
  auto a = place(from), m = place(middle), b = place(to);
  bool split = depth < first_splits;
  if (a && m && b) {
    Tzu_vtx_d2 chord = halfway(*a, *b);
    split |= std::hypot(m->x - chord.x, m->y - chord.y) > tolerance;
  }
  if (split && depth < most_splits) {
    place_between(from, middle, depth + 1, out);
    place_between(middle, to, depth + 1, out);
  } else if (b) {
    out.push_back(*b);
  }
}

vertices layer_lattice::place_line(const vertices& line) const {
  vertices placed;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (i > 0 && reprojection_ != nullptr)
      place_between(line[i - 1], line[i], 0, placed);
    else if (auto at = place(line[i]))
      placed.push_back(*at);
  }
  return placed;
}

vertices layer_lattice::place_ring(const vertices& ring) const {
  vertices kept = ring;
  if (around_) {
    for (half_plane side : {half_plane{0, around_->x0, true}, half_plane{0, around_->x1, false},
                            half_plane{1, around_->y0, true}, half_plane{1, around_->y1, false}})
      kept = cut(kept, side);
  }
  if (!kept.empty()) kept.push_back(kept.front());
  return place_line(kept);
}

}  // namespace zu::platform
