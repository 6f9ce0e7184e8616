#include "platform/zuk_prg/double_grid.h"

#include <cmath>
#include <new>

using zu::platform::double_grid;
using zu::platform::has_nodes;

namespace {

bool usable(const Tzu_mgrid2d_topology& t) {
  for (double number : {t.x0, t.y0, t.dx, t.dy, t.azimuth})
    if (!std::isfinite(number)) return false;
  return t.dx != 0.0 && t.dy != 0.0;
}

}  // namespace

Tzu_mgrid2d* zu_dbl_mgrid2d_create() { return new (std::nothrow) double_grid{}; }
void zu_mgrid2d_destroy(Tzu_mgrid2d* grid) { delete static_cast<double_grid*>(grid); }

bool zu_mgrid2d_init(Tzu_mgrid2d* grid, uint64_t nx, uint64_t ny,
                     const Tzu_mgrid2d_topology* topology) {
  if (grid == nullptr) return false;
  double_grid& whole = zu::platform::whole(*grid);
  whole.memory.reset();
  whole.nodes = nullptr, whole.nx = 0, whole.ny = 0;
  uint64_t bytes;
  if (topology == nullptr || !usable(*topology) || nx == 0 || ny == 0 ||
      __builtin_mul_overflow(nx, ny, &bytes) ||
      __builtin_mul_overflow(bytes, sizeof(double), &bytes))
    return false;
  // Not set to anything: whoever takes a grid fills all of it.
  whole.memory.reset(static_cast<double*>(std::malloc(bytes)));
  if (!whole.memory) return false;
  whole.nodes = whole.memory.get(), whole.nx = nx, whole.ny = ny;
  whole.topology = *topology;
  return true;
}

uint64_t zu_mgrid2d_get_nx(const Tzu_mgrid2d* grid) { return grid != nullptr ? grid->nx : 0; }
uint64_t zu_mgrid2d_get_ny(const Tzu_mgrid2d* grid) { return grid != nullptr ? grid->ny : 0; }

bool zu_mgrid2d_min_max(const Tzu_mgrid2d* grid, double* minimum, double* maximum) {
  if (!has_nodes(grid)) return false;
  double low = HUGE_VAL, high = -HUGE_VAL;
  const double* end = grid->nodes + grid->nx * grid->ny;
  for (const double* node = grid->nodes; node != end; ++node) {
    if (!std::isfinite(*node)) continue;
    low = std::fmin(low, *node);
    high = std::fmax(high, *node);
  }
  if (low > high) return false;
  *minimum = low, *maximum = high;
  return true;
}

// Keeps the library's own copies of what the header defines.
[[gnu::used]] static const auto exported_set = &zu_mgrid2d_set_dbl;
[[gnu::used]] static const auto exported_get = &zu_mgrid2d_get_dbl;
