#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "zu/platform/zuk_prg.h"

namespace {

using map = std::function<Tzu_vtx_d2(double, double)>;

/// A mesh over vertices -25, 0, 25, … up to `x_end` and `y_end`, columns outermost.
class lattice_mesh {
 public:
  lattice_mesh(double x_end, double y_end, const map& target) {
    Tzu_pv_d2 *from = zu_pv_d2_create(), *to = zu_pv_d2_create();
    for (double x = -25; x <= x_end; x += 25)
      for (double y = -25; y <= y_end; y += 25) {
        Tzu_vtx_d2 source{x, y}, mapped = target(x, y);
        zu_pv_d2_add_vtx(from, &source);
        zu_pv_d2_add_vtx(to, &mapped);
      }
    mesh_ = zu_trimesh_d2_create(to, from);
    zu_pv_d2_destroy(from);
    zu_pv_d2_destroy(to);
  }
  ~lattice_mesh() { zu_trimesh_d2_destroy(mesh_); }
  lattice_mesh(const lattice_mesh&) = delete;
  lattice_mesh& operator=(const lattice_mesh&) = delete;
  Tzu_trimesh_d2* get() { return mesh_; }

 private:
  Tzu_trimesh_d2* mesh_;
};

/// Calls `look(x, covered, target)` for the pixels of a row.
template <class looker>
void scan_row(lattice_mesh& mesh, double x0, int y, int count, looker look) {
  zu_trimesh_d2_init(mesh.get(), x0, -static_cast<double>(y));
  for (int k = 0; k < count; ++k) {
    Tzu_vtx_d2 point{-1, -1};
    bool covered = zu_trimesh_d2_scan(mesh.get(), &point.x, &point.y);
    look(x0 + k, covered, point);
  }
}

TEST(trimesh, gives_what_the_matrix_gives_where_the_map_is_affine) {
  Tzu_matrix3x3 matrix{{{1.37, -0.21, 1003.25}, {0.18, 0.93, -417.5}, {0, 0, 1}}};
  auto affine = [&](double x, double y) {
    zu_xy_apply_matrix3x3(&x, &y, &matrix);
    return Tzu_vtx_d2{x, y};
  };
  lattice_mesh mesh(225, 125, affine);
  for (int y = 0; y < 110; ++y)
    scan_row(mesh, 0, y, 203, [&](double x, bool covered, Tzu_vtx_d2 point) {
      Tzu_vtx_d2 expected = affine(x, y);
      ASSERT_TRUE(covered) << x << " " << y;
      ASSERT_NEAR(point.x, expected.x, 1e-12 * 1300);
      ASSERT_NEAR(point.y, expected.y, 1e-12 * 1300);
    });
}

TEST(trimesh, whole_numbers_stay_whole) {
  lattice_mesh mesh(125, 125, [](double x, double y) { return Tzu_vtx_d2{3 * x + 7, 2 * y - x}; });
  for (int y = 0; y < 100; ++y)
    scan_row(mesh, 0, y, 100, [&](double x, bool covered, Tzu_vtx_d2 point) {
      ASSERT_TRUE(covered);
      ASSERT_EQ(point.x, 3 * x + 7);
      ASSERT_EQ(point.y, 2 * y - x);
    });
}

// Of the four corners of a cell one is lifted; what rises tells the triangle.
TEST(trimesh, a_cell_is_cut_from_its_low_corner) {
  auto lifted_at = [](double at_x, double at_y) {
    return [=](double x, double y) { return Tzu_vtx_d2{x == at_x && y == at_y ? 25.0 : 0.0, 0}; };
  };
  lattice_mesh right(25, 25, lifted_at(25, 0)), above(25, 25, lifted_at(0, 25));
  for (int y = 0; y < 25; ++y) {
    // In the triangle (0, 0), (25, 0), (25, 25) the plane is x - y; on the other side 0.
    scan_row(right, 0, y, 25, [&](double x, bool, Tzu_vtx_d2 point) {
      EXPECT_NEAR(point.x, std::max(0.0, x - y), 1e-12) << x << " " << y;
    });
    scan_row(above, 0, y, 25, [&](double x, bool, Tzu_vtx_d2 point) {
      EXPECT_NEAR(point.x, std::max(0.0, y - x), 1e-12) << x << " " << y;
    });
  }
}

TEST(trimesh, the_map_has_no_seams) {
  auto curved = [](double x, double y) {
    return Tzu_vtx_d2{x + 4 * std::sin(y / 30), y + 3 * std::cos(x / 40)};
  };
  lattice_mesh mesh(225, 125, curved);
  for (int y = 0; y < 100; ++y) {
    Tzu_vtx_d2 before{};
    scan_row(mesh, 0, y, 200, [&](double x, bool covered, Tzu_vtx_d2 point) {
      ASSERT_TRUE(covered);
      // Its distance from the curved map: the second derivative is below 0.005 a pixel.
      ASSERT_NEAR(point.x, curved(x, y).x, 25 * 25 * 0.005 / 2);
      if (x > 0) {
        ASSERT_NEAR(point.x - before.x, 1, 0.01);
        ASSERT_NEAR(point.y - before.y, 0, 0.1);
      }
      before = point;
    });
  }
}

TEST(trimesh, outside_the_lattice_nothing_is_covered) {
  lattice_mesh mesh(50, 50, [](double x, double y) { return Tzu_vtx_d2{x, y}; });
  scan_row(mesh, -60, 10, 130, [](double x, bool covered, Tzu_vtx_d2 point) {
    EXPECT_EQ(covered, x >= -25 && x < 50) << x;
    EXPECT_EQ(point.x, covered ? x : -1) << x;  // left alone where nothing covers
  });
  for (int y : {-26, 50, 1000})
    scan_row(mesh, 0, y, 10, [](double, bool covered, Tzu_vtx_d2) { EXPECT_FALSE(covered); });
  scan_row(mesh, -1e300, 0, 10, [](double, bool covered, Tzu_vtx_d2) { EXPECT_FALSE(covered); });
  scan_row(mesh, std::nan(""), 0, 3,
           [](double, bool covered, Tzu_vtx_d2) { EXPECT_FALSE(covered); });
}

TEST(trimesh, the_row_is_given_negated_and_row_0_as_either_zero) {
  lattice_mesh mesh(50, 50, [](double x, double y) { return Tzu_vtx_d2{x, y}; });
  for (double y : {0.0, -0.0, -7.0}) {
    zu_trimesh_d2_init(mesh.get(), 0.0, y);
    double tx, ty;
    ASSERT_TRUE(zu_trimesh_d2_scan(mesh.get(), &tx, &ty));
    EXPECT_EQ(ty, -y);
  }
}

TEST(trimesh, a_triangle_with_a_vertex_that_is_not_finite_is_missing) {
  for (double bad : {std::nan(""), HUGE_VAL}) {
    lattice_mesh mesh(50, 50, [bad](double x, double y) {
      return Tzu_vtx_d2{x == 25 && y == 0 ? bad : x, y};
    });
    // The cell of (25, 0) and its low corner (0, 0): the lower triangle is missing, the upper
    // there.
    scan_row(mesh, 0, 10, 25,
             [](double x, bool covered, Tzu_vtx_d2) { EXPECT_EQ(covered, x < 10) << x; });
  }
}

TEST(trimesh, only_a_lattice_makes_one) {
  auto made = [](std::initializer_list<Tzu_vtx_d2> source, std::size_t targets) {
    Tzu_pv_d2 *from = zu_pv_d2_create(), *to = zu_pv_d2_create();
    for (const Tzu_vtx_d2& v : source) zu_pv_d2_add_vtx(from, &v);
    Tzu_vtx_d2 zero{0, 0};
    for (std::size_t i = 0; i < targets; ++i) zu_pv_d2_add_vtx(to, &zero);
    Tzu_trimesh_d2* mesh = zu_trimesh_d2_create(to, from);
    bool is_made = mesh != nullptr;
    zu_trimesh_d2_destroy(mesh);
    zu_pv_d2_destroy(from);
    zu_pv_d2_destroy(to);
    return is_made;
  };
  EXPECT_TRUE(made({{0, 0}, {0, 1}, {1, 0}, {1, 1}}, 4));
  EXPECT_FALSE(made({{0, 0}, {0, 1}, {1, 0}, {1, 1}}, 3));  // of other sizes
  EXPECT_FALSE(made({{0, 0}, {1, 0}, {0, 1}, {1, 1}}, 4));  // rows outermost
  EXPECT_FALSE(made({{0, 1}, {0, 0}, {1, 1}, {1, 0}}, 4));  // falling
  EXPECT_FALSE(made({{0, 0}, {0, 1}, {1, 0}, {1, 2}}, 4));  // unequal steps
  EXPECT_FALSE(made({{0, 0}, {0, 1}}, 2));                  // one column
  EXPECT_FALSE(made({}, 0));
  EXPECT_EQ(zu_trimesh_d2_create(nullptr, nullptr), nullptr);
}

}  // namespace
