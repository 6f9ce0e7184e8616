#include "platform/zuk_drwc/cut_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zu::platform {
namespace {

/// A share of a segment, from its first vertex.
struct span {
  double from = 0, to = 1;
};

/// Shortens the span to the side where `step * share <= room`; false if nothing is left.
bool shorten(span& inside, double step, double room) {
  if (step == 0) return room >= 0;
  double share = room / step;
  if (step < 0)
    inside.from = std::max(inside.from, share);
  else
    inside.to = std::min(inside.to, share);
  return inside.from <= inside.to;
}

// Liang and Barsky 1984, ACM Trans. Graph. 3(1), p. 1.
bool cut_segment(const Tzu_vtx_d2& a, const Tzu_vtx_d2& b, const Tzu_box_d2& box, span& inside) {
  double dx = b.x - a.x, dy = b.y - a.y;
  return std::isfinite(dx) && std::isfinite(dy) && shorten(inside, -dx, a.x - box.x0) &&
         shorten(inside, dx, box.x1 - a.x) && shorten(inside, -dy, a.y - box.y0) &&
         shorten(inside, dy, box.y1 - a.y);
}

Tzu_vtx_d2 at(const Tzu_vtx_d2& a, const Tzu_vtx_d2& b, double share, const Tzu_box_d2& box) {
  if (share <= 0) return a;
  if (share >= 1) return b;
  return {std::clamp(a.x + share * (b.x - a.x), box.x0, box.x1),
          std::clamp(a.y + share * (b.y - a.y), box.y0, box.y1)};
}

bool same(const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) { return a.x == b.x && a.y == b.y; }

}  // namespace

std::vector<line_piece> cut_line(const Tzu_vtx_d2* vertices, std::size_t count,
                                 const Tzu_box_d2& box) {
  std::vector<line_piece> pieces;
  double travelled = 0;
  bool running = false, from_first = false, to_last = false;
  for (std::size_t i = 1; i < count; ++i) {
    const Tzu_vtx_d2 &a = vertices[i - 1], &b = vertices[i];
    double dx = b.x - a.x, dy = b.y - a.y, length = std::sqrt(dx * dx + dy * dy);
    span inside;
    bool shows = cut_segment(a, b, box, inside);
    if (shows) {
      if (!running || inside.from > 0) {
        pieces.push_back({{at(a, b, inside.from, box)}, travelled + inside.from * length, false});
        from_first = from_first || (i == 1 && inside.from <= 0);
      }
      pieces.back().vertices.push_back(at(a, b, inside.to, box));
    }
    running = shows && inside.to >= 1;
    to_last = running && i + 1 == count;
    if (std::isfinite(length)) travelled += length;
  }
  if (!from_first || !to_last || count < 4 || !same(vertices[0], vertices[count - 1]))
    return pieces;
  if (pieces.size() == 1) {
    pieces.front().closed = true;
  } else {
    std::vector<Tzu_vtx_d2>& first = pieces.front().vertices;
    std::vector<Tzu_vtx_d2>& last = pieces.back().vertices;
    last.insert(last.end(), first.begin() + 1, first.end());
    pieces.erase(pieces.begin());
  }
  return pieces;
}

}  // namespace zu::platform
