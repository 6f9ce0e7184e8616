#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_prg/vertices.h"

using zu::platform::guarded;

namespace {

/// The plane through the three corners of a triangle, from the low corner of its cell.
struct plane {
  double x, y;          // target of the low corner
  double dx, dy;        // one source unit along x
  double dx_up, dy_up;  // and along y
  bool covered;
};

/// The public head, with the lattice behind it. A cell is cut from its low corner (i, j) to
/// (i + 1, j + 1): the triangle below the diagonal holds the points with fx >= fy.
struct mesh : Tzu_trimesh_d2 {
  std::int64_t columns, rows;  // cells
  double x0, y0, step_x, step_y;
  std::vector<plane> planes;  // two a cell, above and below the diagonal; columns outermost

  void make_planes(const std::vector<Tzu_vtx_d2>& target);
  void start_row(double x, double y);
  void next_run();

 private:
  void start_run(double pixels, bool is_covered);

  double source_x_ = 0.0;  // of the next run's first pixel
  double up_ = 0.0;        // the row's distance from the low side of its cells
  double diagonal_ = 0.0;  // where the row meets the diagonal, from the low side in x
  std::int64_t row_ = -1;  // of cells; -1 outside
};

void mesh::make_planes(const std::vector<Tzu_vtx_d2>& target) {
  auto at = [&](std::int64_t i, std::int64_t j) -> const Tzu_vtx_d2& {
    return target[static_cast<std::size_t>(i * (rows + 1) + j)];
  };
  auto through = [this](const Tzu_vtx_d2& low, const Tzu_vtx_d2& x_from, const Tzu_vtx_d2& x_to,
                        const Tzu_vtx_d2& y_from, const Tzu_vtx_d2& y_to) {
    plane made{low.x,
               low.y,
               (x_to.x - x_from.x) / step_x,
               (x_to.y - x_from.y) / step_x,
               (y_to.x - y_from.x) / step_y,
               (y_to.y - y_from.y) / step_y,
               true};
    for (double term : {made.x, made.y, made.dx, made.dy, made.dx_up, made.dy_up})
      made.covered = made.covered && std::isfinite(term);
    return made;
  };
  planes.reserve(static_cast<std::size_t>(2 * columns * rows));
  for (std::int64_t i = 0; i < columns; ++i)
    for (std::int64_t j = 0; j < rows; ++j) {
      const Tzu_vtx_d2 &low = at(i, j), &high = at(i + 1, j + 1);
      const Tzu_vtx_d2 &left = at(i, j + 1), &right = at(i + 1, j);
      planes.push_back(through(low, left, high, low, left));
      planes.push_back(through(low, low, right, right, high));
    }
}

void mesh::start_row(double x, double y) {
  done = count = 0;
  source_x_ = x;
  double j = std::floor((y - y0) / step_y);
  bool inside = j >= 0.0 && j < static_cast<double>(rows);
  row_ = inside ? static_cast<std::int64_t>(j) : -1;
  up_ = y - (y0 + j * step_y);
  diagonal_ = up_ * step_x / step_y;
}

/// `pixels` is the distance to the run's end, one pixel a unit: those before it belong to the run.
void mesh::start_run(double pixels, bool is_covered) {
  constexpr double endless = 1e12;
  done = 0, covered = is_covered;
  count =
      std::max<std::int64_t>(1, static_cast<std::int64_t>(std::ceil(std::min(pixels, endless))));
  source_x_ += static_cast<double>(count);
}

void mesh::next_run() {
  double i = std::floor((source_x_ - x0) / step_x);
  if (row_ < 0 || !(i < static_cast<double>(columns))) {  // also where the start is no number
    start_run(HUGE_VAL, false);
  } else if (i < 0.0) {
    start_run(x0 - source_x_, false);
  } else {
    double along = source_x_ - (x0 + i * step_x);
    bool below = along >= diagonal_;
    std::int64_t cell = static_cast<std::int64_t>(i) * rows + row_;
    const plane& p = planes[static_cast<std::size_t>(2 * cell + (below ? 1 : 0))];
    x = p.x + p.dx * along + p.dx_up * up_;
    y = p.y + p.dy * along + p.dy_up * up_;
    dx = p.dx, dy = p.dy;
    start_run((below ? step_x : diagonal_) - along, p.covered);
  }
}

mesh& whole(Tzu_trimesh_d2& head) { return static_cast<mesh&>(head); }

/// Fills in the lattice of the source vertices; false if they are none.
bool read_lattice(const std::vector<Tzu_vtx_d2>& source, mesh& out) {
  std::size_t rows = 0;
  while (rows < source.size() && source[rows].x == source.front().x) ++rows;
  if (rows < 2 || source.size() % rows != 0 || source.size() / rows < 2) return false;
  out.rows = static_cast<std::int64_t>(rows) - 1;
  out.columns = static_cast<std::int64_t>(source.size() / rows) - 1;
  out.x0 = source.front().x, out.y0 = source.front().y;
  out.step_x = source[rows].x - out.x0, out.step_y = source[1].y - out.y0;
  if (!(out.step_x > 0.0) || !(out.step_y > 0.0)) return false;
  for (std::size_t k = 0; k < source.size(); ++k) {
    std::size_t column = k / rows, row = k % rows;
    double x = out.x0 + static_cast<double>(column) * out.step_x;
    double y = out.y0 + static_cast<double>(row) * out.step_y;
    if (std::abs(source[k].x - x) > out.step_x * 1e-6 ||
        std::abs(source[k].y - y) > out.step_y * 1e-6)
      return false;
  }
  return true;
}

}  // namespace

Tzu_trimesh_d2* zu_trimesh_d2_create(const Tzu_pv_d2* target, const Tzu_pv_d2* source) {
  if (target == nullptr) return nullptr;
  return guarded(source, static_cast<Tzu_trimesh_d2*>(nullptr),
                 [&](const Tzu_pv_d2& s) -> Tzu_trimesh_d2* {
                   auto made = std::make_unique<mesh>();
                   const auto& targets = target->vertices;
                   if (targets.size() != s.vertices.size() || !read_lattice(s.vertices, *made))
                     return nullptr;
                   made->make_planes(targets);
                   zu_trimesh_d2_init(made.get(), 0.0, 0.0);
                   return made.release();
                 });
}

void zu_trimesh_d2_destroy(Tzu_trimesh_d2* head) {
  if (head != nullptr) delete &whole(*head);
}

void zu_trimesh_d2_init(Tzu_trimesh_d2* head, double x, double y) {
  guarded(head, [&](Tzu_trimesh_d2& h) { whole(h).start_row(x, -y); });
}

void zu_trimesh_d2_next_run(Tzu_trimesh_d2* head) {
  guarded(head, [](Tzu_trimesh_d2& h) { whole(h).next_run(); });
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_scan = &zu_trimesh_d2_scan;
