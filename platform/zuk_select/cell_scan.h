#pragma once
// Cells of a lattice under a shape. Cell (x, y) is the square from (x, y) to (x + 1, y + 1).

#include <cstdint>
#include <vector>

#include "platform/zuk_attr_data/id_runs.h"
#include "zu/platform/zuk_prg.h"

namespace zu::platform {

using vertices = std::vector<Tzu_vtx_d2>;

struct lattice_size {
  std::int64_t nx = 0, ny = 0;
};

enum class cell_rule {
  passed,    ///< what lines touch, cells being closed
  inside,    ///< all of the cell lies in the polygon
  crossing,  ///< the cell and the polygon, both closed, have a point in common
};

/// Ids y * nx + x, beginning at `base`. Lists are lines, or the rings of an even-odd polygon, which
/// are closed here. Vertices are finite.
id_runs cells_under(const std::vector<vertices>& shape, cell_rule rule, lattice_size size,
                    std::uint64_t base);

}  // namespace zu::platform
