#pragma once
// Double grids that tests make.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>

#include "zu/platform/zuk_prg.h"

namespace tests {

struct grid_destroyer {
  void operator()(Tzu_mgrid2d* grid) const { zu_mgrid2d_destroy(grid); }
};
using grid_ptr = std::unique_ptr<Tzu_mgrid2d, grid_destroyer>;

/// A grid whose node (x, y) has the value `of(x, y)`.
template <class function>
grid_ptr made_double_grid(std::uint64_t nx, std::uint64_t ny, const Tzu_mgrid2d_topology& topology,
                          const function& of) {
  grid_ptr grid(zu_dbl_mgrid2d_create());
  EXPECT_TRUE(zu_mgrid2d_init(grid.get(), nx, ny, &topology));
  for (std::uint64_t y = 0; y < ny; ++y)
    for (std::uint64_t x = 0; x < nx; ++x)
      zu_mgrid2d_set_dbl(grid.get(), x, y, of(static_cast<double>(x), static_cast<double>(y)));
  return grid;
}

/// Hills of some hundreds on cells of 10.
inline double hills(double x, double y) {
  return 200 * std::sin(x / 7) * std::cos(y / 5) + 30 * std::sin(x + 2 * y) + 3 * x;
}

}  // namespace tests
