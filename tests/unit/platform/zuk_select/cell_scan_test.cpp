// Cells under shapes, against each cell looked at alone.

#include "platform/zuk_select/cell_scan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace {

using namespace zu::platform;
using shape = std::vector<vertices>;
using ids = std::set<std::uint64_t>;

ids members(const id_runs& runs) {
  ids all;
  for (const id_run& run : runs.runs())
    for (std::uint64_t id = run.first; id <= run.last; ++id) all.insert(id);
  return all;
}

struct segment {
  Tzu_vtx_d2 a, b;
};

std::vector<segment> segments(const shape& s, bool closed) {
  std::vector<segment> all;
  for (const vertices& list : s)
    for (std::size_t i = 0; i < list.size(); ++i)
      if (closed || i + 1 < list.size() || list.size() == 1)
        all.push_back({list[i], list[(i + 1) % list.size()]});
  return all;
}

/// Liang and Barsky 1984, ACM Transactions on Graphics 3(1), p. 1: the part in the closed cell.
bool part_in_cell(const segment& s, double x, double y, double& t0, double& t1) {
  t0 = 0, t1 = 1;
  double dx = s.b.x - s.a.x, dy = s.b.y - s.a.y;
  double p[] = {-dx, dx, -dy, dy}, q[] = {s.a.x - x, x + 1 - s.a.x, s.a.y - y, y + 1 - s.a.y};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0) return false;
    } else if (p[i] < 0) {
      t0 = std::max(t0, q[i] / p[i]);
    } else {
      t1 = std::min(t1, q[i] / p[i]);
    }
  }
  return t0 <= t1;
}
bool touches(const segment& s, double x, double y) {
  double t0 = 0, t1 = 0;
  return part_in_cell(s, x, y, t0, t1);
}
bool cuts(const segment& s, double x, double y) {
  double t0 = 0, t1 = 0;
  if (!part_in_cell(s, x, y, t0, t1)) return false;
  double t = (t0 + t1) / 2;
  double px = s.a.x + t * (s.b.x - s.a.x), py = s.a.y + t * (s.b.y - s.a.y);
  return px > x && px < x + 1 && py > y && py < y + 1;
}
bool contains(const std::vector<segment>& rings, double x, double y) {
  bool inside = false;
  for (const segment& s : rings)
    if ((s.a.y <= y) != (s.b.y <= y) && s.a.x + (y - s.a.y) / (s.b.y - s.a.y) * (s.b.x - s.a.x) > x)
      inside = !inside;
  return inside;
}

ids looked_at(const shape& s, cell_rule rule, lattice_size size, std::uint64_t base) {
  std::vector<segment> all = segments(s, rule != cell_rule::passed);
  ids found;
  for (std::int64_t y = 0; y < size.ny; ++y)
    for (std::int64_t x = 0; x < size.nx; ++x) {
      auto px = static_cast<double>(x), py = static_cast<double>(y);
      auto any = [&](auto test) {
        return std::any_of(all.begin(), all.end(),
                           [&](const segment& e) { return test(e, px, py); });
      };
      bool middle = contains(all, px + 0.5, py + 0.5);
      bool in = rule == cell_rule::passed     ? any(touches)
                : rule == cell_rule::crossing ? middle || any(touches)
                                              : middle && !any(cuts);
      if (in) found.insert(base + static_cast<std::uint64_t>(y * size.nx + x));
    }
  return found;
}

void expect_same(const shape& s, lattice_size size) {
  for (cell_rule rule : {cell_rule::passed, cell_rule::inside, cell_rule::crossing})
    ASSERT_EQ(members(cells_under(s, rule, size, 1000)), looked_at(s, rule, size, 1000))
        << static_cast<int>(rule);
}

shape box(double x0, double y0, double x1, double y1) {
  return {{{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}}};
}

TEST(cell_scan, a_box_on_the_edges_of_cells_holds_them_and_touches_their_neighbours) {
  EXPECT_EQ(members(cells_under(box(1, 1, 3, 2), cell_rule::inside, {5, 4}, 0)), (ids{6, 7}));
  EXPECT_EQ(members(cells_under(box(1, 1, 3, 2), cell_rule::crossing, {5, 4}, 0)),
            (ids{0, 1, 2, 3, 5, 6, 7, 8, 10, 11, 12, 13}));
}
TEST(cell_scan, a_box_over_parts_of_cells_holds_those_in_between) {
  EXPECT_EQ(members(cells_under(box(0.5, 0.5, 3.5, 2.5), cell_rule::inside, {5, 4}, 0)),
            (ids{6, 7}));
  EXPECT_EQ(cells_under(box(0.5, 0.5, 3.5, 2.5), cell_rule::crossing, {5, 4}, 0).count(), 12u);
}
TEST(cell_scan, a_hole_is_not_inside) {
  shape ring = box(0, 0, 5, 5);
  ring.push_back(box(1, 1, 4, 4).front());
  EXPECT_EQ(cells_under(ring, cell_rule::inside, {5, 5}, 0).count(), 16u);
}
TEST(cell_scan, a_hole_within_a_cell_spoils_it) {
  shape ring = box(0, 0, 3, 1);
  ring.push_back(box(1.2, 0.2, 1.3, 0.3).front());
  EXPECT_EQ(members(cells_under(ring, cell_rule::inside, {3, 1}, 0)), (ids{0, 2}));
}
TEST(cell_scan, a_ring_of_one_point_holds_nothing_and_touches_its_cell) {
  shape point = {{{2.5, 1.5}, {2.5, 1.5}}};
  EXPECT_TRUE(cells_under(point, cell_rule::inside, {5, 4}, 0).empty());
  EXPECT_EQ(members(cells_under(point, cell_rule::crossing, {5, 4}, 0)), (ids{7}));
  EXPECT_EQ(members(cells_under({{{2.5, 1.5}}}, cell_rule::passed, {5, 4}, 0)), (ids{7}));
}
TEST(cell_scan, a_diagonal_passes_the_cells_on_it_and_touches_those_at_its_corners) {
  EXPECT_EQ(members(cells_under({{{0.5, 0.5}, {2.5, 2.5}}}, cell_rule::passed, {3, 3}, 0)),
            (ids{0, 1, 3, 4, 5, 7, 8}));
}
TEST(cell_scan, nothing_is_under_nothing) {
  EXPECT_TRUE(cells_under({}, cell_rule::crossing, {5, 4}, 0).empty());
  EXPECT_TRUE(cells_under({{}}, cell_rule::crossing, {5, 4}, 0).empty());
  EXPECT_TRUE(cells_under(box(0, 0, 1, 1), cell_rule::crossing, {0, 0}, 0).empty());
}
TEST(cell_scan, shapes_far_outside_are_cut_at_the_lattice) {
  for (shape s : {box(-1e12, -1e12, 1e12, 1e12), box(2.5, -1e12, 1e12, 1e12), box(-9, -9, -5, 1e12),
                  box(6, 0, 9, 3), box(0, 4.5, 9, 8)})
    expect_same(s, {5, 4});
}
TEST(cell_scan, boxes_on_half_cells_are_exact) {
  std::mt19937 random(1);
  auto half = [&] { return (static_cast<double>(random() % 24) - 4) / 2; };
  for (int i = 0; i < 500; ++i) {
    double x = half(), y = half();
    expect_same(box(x, y, x + half() + 2, y + half() + 2), {7, 6});
  }
}
TEST(cell_scan, diamonds_through_corners_are_exact) {
  for (double r : {0.5, 1.0, 1.5, 2.0, 3.0})
    for (double x : {0.0, 2.0, 2.5, 3.0})
      expect_same({{{x + r, 3}, {x, 3 + r}, {x - r, 3}, {x, 3 - r}}}, {7, 7});
}
TEST(cell_scan, random_polygons_and_lines_agree_with_each_cell_looked_at) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> place(-3, 15);
  for (int i = 0; i < 2000; ++i) {
    shape s(1 + random() % 3);
    for (vertices& ring : s)
      for (std::size_t n = 1 + random() % 8; n > 0; --n)
        ring.push_back({place(random), place(random)});
    expect_same(s, {static_cast<std::int64_t>(1 + random() % 12),
                    static_cast<std::int64_t>(1 + random() % 12)});
  }
}

}  // namespace
