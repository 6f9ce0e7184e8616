#pragma once
// Rings cut to a box, for drawing libraries whose coordinates have few bits.

#include <vector>

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

/// The part of a ring inside a box (Sutherland and Hodgman 1974). Where the ring leaves the box the
/// result runs along its sides, so that an even-odd fill shows the same inside. Vertices that are
/// not finite are left out.
std::vector<Tzu_vtx_d2> cut_ring(const std::vector<Tzu_vtx_d2>& ring, const Tzu_box_d2& box);

}  // namespace zu::platform
