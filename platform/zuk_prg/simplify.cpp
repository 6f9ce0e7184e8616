// Fewer vertices on the same line.

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_prg/vertices.h"

using zu::platform::guarded;

namespace {

// From the vertex to the chord between two others, ends included.
double distance(const Tzu_vtx_d2& v, const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) {
  double dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
  double t = square > 0 ? ((v.x - a.x) * dx + (v.y - a.y) * dy) / square : 0;
  t = t > 1 ? 1 : t > 0 ? t : 0;
  return std::hypot(v.x - (a.x + t * dx), v.y - (a.y + t * dy));
}

std::vector<Tzu_vtx_d2> simplified(const std::vector<Tzu_vtx_d2>& all, double tolerance) {
  if (all.size() < 3) return all;
  std::vector<bool> kept(all.size());
  kept.front() = kept.back() = true;
  std::vector<std::pair<std::size_t, std::size_t>> chords = {{0, all.size() - 1}};
  while (!chords.empty()) {
    auto [first, last] = chords.back();
    chords.pop_back();
    std::size_t furthest = first;
    double most = tolerance;
    for (std::size_t i = first + 1; i < last; ++i)
      if (double d = distance(all[i], all[first], all[last]); d > most) furthest = i, most = d;
    if (furthest == first) continue;
    kept[furthest] = true;
    chords.emplace_back(first, furthest);
    chords.emplace_back(furthest, last);
  }
  std::vector<Tzu_vtx_d2> out;
  for (std::size_t i = 0; i < all.size(); ++i)
    if (kept[i]) out.push_back(all[i]);
  return out;
}

}  // namespace

void zu_pv_d2_clear(Tzu_pv_d2* list) {
  if (list != nullptr) list->vertices.clear();
}

Tzu_pv_d2* zu_pv_d2_chord_simplify(const Tzu_pv_d2* list, double tolerance) {
  return guarded(list, static_cast<Tzu_pv_d2*>(nullptr), [&](const Tzu_pv_d2& l) {
    auto made = std::make_unique<Tzu_pv_d2>();
    made->vertices = simplified(l.vertices, tolerance);
    return made.release();
  });
}
