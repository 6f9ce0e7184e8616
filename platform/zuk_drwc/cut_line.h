#pragma once
// Polylines cut to a box, for drawing libraries whose coordinates have few bits.

#include <cstddef>
#include <vector>

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

/// A part of a polyline.
struct line_piece {
  std::vector<Tzu_vtx_d2> vertices;  ///< two or more
  double start = 0;                  ///< length of the polyline before the piece
  bool closed = false;               ///< the whole of a ring; its last vertex is its first again
};

/// The parts of a polyline inside a box, in its order. A vertex that is not finite breaks the line.
/// A ring (the last vertex is the first) that is cut goes on over its first vertex, and such a
/// piece starts before the ring's end.
std::vector<line_piece> cut_line(const Tzu_vtx_d2* vertices, std::size_t count,
                                 const Tzu_box_d2& box);

}  // namespace zu::platform
