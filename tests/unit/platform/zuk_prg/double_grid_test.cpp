#include <cmath>
#include <cstdint>

#include "tests/unit/platform/zuk_prg/made_double_grid.h"

namespace {

using tests::grid_ptr;
using tests::made_double_grid;

const Tzu_mgrid2d_topology unit{0, 0, 1, 1, 0};

TEST(double_grid, a_node_gives_back_what_it_was_set_to) {
  grid_ptr grid = made_double_grid(3, 2, unit, [](double x, double y) { return 10 * y + x; });
  EXPECT_EQ(zu_mgrid2d_get_nx(grid.get()), 3u);
  EXPECT_EQ(zu_mgrid2d_get_ny(grid.get()), 2u);
  zu_mgrid2d_set_dbl(grid.get(), 1, 1, -7);
  EXPECT_EQ(zu_mgrid2d_get_dbl(grid.get(), 0, 1), 10);
  EXPECT_EQ(zu_mgrid2d_get_dbl(grid.get(), 1, 1), -7);
  EXPECT_EQ(zu_mgrid2d_get_dbl(grid.get(), 2, 1), 12);
}

TEST(double_grid, a_grid_that_cannot_be_had_has_no_nodes) {
  struct {
    std::uint64_t nx, ny;
    Tzu_mgrid2d_topology topology;
  } const cases[] = {
      {0, 2, unit},
      {2, 0, unit},
      {UINT64_C(1) << 40, UINT64_C(1) << 40, unit},  // the product does not fit
      {2, 2, {0, 0, 0, 1, 0}},
      {2, 2, {0, 0, 1, 0, 0}},
      {2, 2, {0, NAN, 1, 1, 0}},
      {2, 2, {0, 0, INFINITY, 1, 0}},
  };
  grid_ptr grid = made_double_grid(2, 2, unit, [](double, double) { return 1.0; });
  for (const auto& c : cases) {
    EXPECT_FALSE(zu_mgrid2d_init(grid.get(), c.nx, c.ny, &c.topology));
    EXPECT_EQ(zu_mgrid2d_get_nx(grid.get()), 0u);
    double low, high;
    EXPECT_FALSE(zu_mgrid2d_min_max(grid.get(), &low, &high));
  }
  EXPECT_FALSE(zu_mgrid2d_init(grid.get(), 2, 2, nullptr));
  EXPECT_FALSE(zu_mgrid2d_init(nullptr, 2, 2, &unit));
}

TEST(double_grid, minimum_and_maximum_are_of_what_is_finite) {
  double values[2][3] = {{NAN, 5, -INFINITY}, {-3, INFINITY, 2}};
  grid_ptr grid = made_double_grid(3, 2, unit, [&](double x, double y) {
    return values[static_cast<int>(y)][static_cast<int>(x)];
  });
  double low = 0, high = 0;
  EXPECT_TRUE(zu_mgrid2d_min_max(grid.get(), &low, &high));
  EXPECT_EQ(low, -3);
  EXPECT_EQ(high, 5);
}

TEST(double_grid, a_grid_without_values_has_no_minimum) {
  grid_ptr grid = made_double_grid(3, 2, unit, [](double, double) { return NAN; });
  double low = 1, high = 2;
  EXPECT_FALSE(zu_mgrid2d_min_max(grid.get(), &low, &high));
  EXPECT_EQ(low, 1);
  EXPECT_EQ(high, 2);
}

}  // namespace
