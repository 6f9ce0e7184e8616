#pragma once
// The record of a double grid.

#include <cstdlib>
#include <memory>

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

struct freed_nodes {
  void operator()(double* nodes) const { std::free(nodes); }
};

/// The public head, and what only this library looks at.
struct double_grid : Tzu_mgrid2d {
  Tzu_mgrid2d_topology topology{};
  std::unique_ptr<double[], freed_nodes> memory;
};

inline const double_grid& whole(const Tzu_mgrid2d& head) {
  return static_cast<const double_grid&>(head);
}
inline double_grid& whole(Tzu_mgrid2d& head) { return static_cast<double_grid&>(head); }

/// Nodes must not be looked for in a grid without any.
inline bool has_nodes(const Tzu_mgrid2d* grid) { return grid != nullptr && grid->nodes != nullptr; }

}  // namespace zu::platform
