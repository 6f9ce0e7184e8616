#include "platform/zuk_drwc/cut_ring.h"

#include <cmath>

namespace zu::platform {
namespace {

using coordinate = double Tzu_vtx_d2::*;

/// The side of a ring where `sign * (v.*along - limit)` is not negative.
std::vector<Tzu_vtx_d2> cut_at(const std::vector<Tzu_vtx_d2>& ring, coordinate along, double limit,
                               double sign) {
  coordinate across = along == &Tzu_vtx_d2::x ? &Tzu_vtx_d2::y : &Tzu_vtx_d2::x;
  auto inside = [&](const Tzu_vtx_d2& v) { return sign * (v.*along - limit) >= 0.0; };
  std::vector<Tzu_vtx_d2> kept;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Tzu_vtx_d2 &from = ring[i], &to = ring[i + 1 < ring.size() ? i + 1 : 0];
    if (inside(from)) kept.push_back(from);
    if (inside(from) == inside(to)) continue;
    Tzu_vtx_d2 crossing;
    double share = (limit - from.*along) / (to.*along - from.*along);
    crossing.*along = limit;
    crossing.*across = from.*across + share * (to.*across - from.*across);
    kept.push_back(crossing);
  }
  return kept;
}

}  // namespace

std::vector<Tzu_vtx_d2> cut_ring(const std::vector<Tzu_vtx_d2>& ring, const Tzu_box_d2& box) {
  std::vector<Tzu_vtx_d2> kept;
  for (const Tzu_vtx_d2& v : ring)
    if (std::isfinite(v.x) && std::isfinite(v.y)) kept.push_back(v);
  kept = cut_at(kept, &Tzu_vtx_d2::x, box.x0, 1.0);
  kept = cut_at(kept, &Tzu_vtx_d2::x, box.x1, -1.0);
  kept = cut_at(kept, &Tzu_vtx_d2::y, box.y0, 1.0);
  return cut_at(kept, &Tzu_vtx_d2::y, box.y1, -1.0);
}

}  // namespace zu::platform
