#include "src/render/sample_window.h"

#include <gtest/gtest.h>

#include "tests/unit/src/made_source.h"

namespace {

using namespace zu;

struct window_bench {
  grid_render_context context;
  std::int32_t grid[3];
  Tzu_matrix3x3 map_to_grid;  // cells of size 1 from (0, 0)

  window_bench(std::int32_t nx, std::int32_t ny) : grid{nx, ny, 1} {
    zu_matrix3x3_init_single(&map_to_grid);
  }
  bool ask(Tzu_box_d2 box, std::uint64_t nx, std::uint64_t ny, sample_window& window) {
    data::grid_datasource source;
    return compute_window({context, source, nullptr, nullptr, box, nx, ny}, grid, map_to_grid,
                          window);
  }
};

TEST(compute_window, samples_of_a_huge_grid_follow_the_picture) {
  window_bench b(20000, 20000);
  sample_window w;
  ASSERT_TRUE(b.ask({0, 0, 20000, 20000}, 100, 100, w));
  EXPECT_EQ(w.origin[0], 0);
  EXPECT_EQ(w.size[0], 20000u);
  EXPECT_EQ(w.samples[0], 100u);  // 100 * 19999 / 20000 + 1, truncated
  EXPECT_EQ(w.samples[1], 100u);
}

TEST(compute_window, a_pixel_smaller_than_a_node_keeps_the_step_at_one) {
  window_bench b(100, 100);
  sample_window w;
  ASSERT_TRUE(b.ask({10, 20, 20, 30}, 1000, 1000, w));
  EXPECT_EQ(w.origin[0], 10);
  EXPECT_EQ(w.origin[1], 20);
  EXPECT_EQ(w.size[0], 11u);
  EXPECT_EQ(w.samples[0], 11u);
}

TEST(compute_window, interpolation_needs_one_node_more_on_each_side) {
  window_bench b(100, 100);
  b.context.params.interpolate = true;
  sample_window w;
  ASSERT_TRUE(b.ask({10, 20, 20, 30}, 10, 10, w));
  EXPECT_EQ(w.origin[0], 9);
  EXPECT_EQ(w.size[0], 13u);
}

TEST(compute_window, the_step_is_the_same_at_the_edge_as_in_the_middle) {
  window_bench b(1000, 1000);
  sample_window middle, edge;
  ASSERT_TRUE(b.ask({400, 400, 600, 600}, 50, 50, middle));
  ASSERT_TRUE(b.ask({900, 900, 1100, 1100}, 50, 50, edge));
  EXPECT_EQ(middle.size[0], 201u);
  EXPECT_EQ(middle.samples[0], 51u);
  EXPECT_EQ(edge.size[0], 100u);
  EXPECT_EQ(edge.samples[0], 25u);  // 50 * 99 / 200 + 1 = 25.75
}

TEST(compute_window, samples_stay_on_the_same_nodes_while_the_view_moves) {
  window_bench b(1000, 1000);
  sample_window w;
  for (double shift : {0.0, 0.75, 1.5, 3.25}) {
    ASSERT_TRUE(b.ask({100 + shift, 100, 300 + shift, 300}, 50, 50, w));
    EXPECT_EQ(w.origin[0] % 4, 0) << shift;
  }
}

TEST(compute_window, outside_the_grid_there_is_none) {
  window_bench b(10, 10);
  sample_window w;
  EXPECT_FALSE(b.ask({20, 0, 30, 10}, 10, 10, w));
  EXPECT_FALSE(b.ask({-20, 0, -10, 10}, 10, 10, w));
  EXPECT_FALSE(b.ask({0, 0, HUGE_VAL, 10}, 10, 10, w));
}

TEST(compute_window, the_slice_is_the_origin_along_z) {
  window_bench b(10, 10);
  b.context.params.slice_index = 4;
  sample_window w;
  ASSERT_TRUE(b.ask({0, 0, 10, 10}, 10, 10, w));
  EXPECT_EQ(w.origin[2], 4);
  EXPECT_EQ(w.size[2], 1u);
  EXPECT_EQ(w.samples[2], 1u);
}

}  // namespace
