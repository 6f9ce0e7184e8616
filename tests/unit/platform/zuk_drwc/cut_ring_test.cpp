#include "platform/zuk_drwc/cut_ring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zu::platform {
namespace {

double area(const std::vector<Tzu_vtx_d2>& ring) {
  double twice = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Tzu_vtx_d2 &a = ring[i], &b = ring[(i + 1) % ring.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return twice / 2;
}

constexpr Tzu_box_d2 box{0, 0, 10, 10};

TEST(cut_ring, what_lies_inside_stays_as_it_is) {
  std::vector<Tzu_vtx_d2> kept = cut_ring({{1, 1}, {9, 1}, {5, 10}}, box);
  ASSERT_EQ(kept.size(), 3u);
  EXPECT_EQ(kept[2].y, 10);
}

TEST(cut_ring, what_lies_outside_is_gone) {
  EXPECT_TRUE(cut_ring({{11, 1}, {19, 1}, {15, 9}}, box).empty());
  EXPECT_TRUE(cut_ring({}, box).empty());
}

TEST(cut_ring, keeps_the_common_area) {
  EXPECT_DOUBLE_EQ(area(cut_ring({{5, 5}, {15, 5}, {15, 15}, {5, 15}}, box)), 25);
  EXPECT_DOUBLE_EQ(area(cut_ring({{-90, -90}, {110, -90}, {110, 110}, {-90, 110}}, box)), 100);
  EXPECT_DOUBLE_EQ(area(cut_ring({{0, 0}, {20, 0}, {0, 20}}, box)), 100);
  EXPECT_DOUBLE_EQ(area(cut_ring({{0, 0}, {15, 0}, {0, 15}}, box)), 87.5);
}

TEST(cut_ring, leaves_out_what_is_not_finite) {
  EXPECT_DOUBLE_EQ(area(cut_ring({{0, 0}, {NAN, 3}, {8, 0}, {8, HUGE_VAL}, {8, 8}}, box)), 32);
}

}  // namespace
}  // namespace zu::platform
