#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_prg/vertices.h"

using zu::platform::guarded;

namespace {

/// The public head, with the lattice behind it. A cell is cut from its low corner (i, j) to
/// (i + 1, j + 1): the triangle below the diagonal holds the points with fx >= fy.
struct mesh : Tzu_trimesh_d2 {
  std::vector<Tzu_vtx_d2> target;  // columns outermost
  std::int64_t columns, rows;      // vertices
  double x0, y0, step_x, step_y;

  // The scan: the source point of the next run's first pixel.
  double source_x = 0.0, source_y = 0.0;

  const Tzu_vtx_d2& at(std::int64_t i, std::int64_t j) const {
    return target[static_cast<std::size_t>(i * rows + j)];
  }
  void next_run();

 private:
  void run_in_cell(std::int64_t i, std::int64_t j);
  void start(std::int64_t pixels, bool is_covered) {
    done = 0, count = std::max<std::int64_t>(1, pixels), covered = is_covered;
    source_x += static_cast<double>(count);
  }
};

constexpr std::int64_t endless = std::int64_t{1} << 40;

/// Pixels, one source unit apart, of which the first lies `distance` or less before the end.
std::int64_t pixels_before(double distance) {
  return static_cast<std::int64_t>(std::ceil(std::min(distance, 1e12)));
}

void mesh::next_run() {
  double i = std::floor((source_x - x0) / step_x), j = std::floor((source_y - y0) / step_y);
  bool in_a_row = j >= 0.0 && j < static_cast<double>(rows - 1);
  if (!in_a_row || !(i < static_cast<double>(columns - 1)))  // also where the start is no number
    start(endless, false);
  else if (i < 0.0)
    start(pixels_before(x0 - source_x), false);
  else
    run_in_cell(static_cast<std::int64_t>(i), static_cast<std::int64_t>(j));
}

void mesh::run_in_cell(std::int64_t i, std::int64_t j) {
  // Distances from the low corner. Products come before quotients: whole numbers stay whole.
  double off_x = source_x - (x0 + static_cast<double>(i) * step_x);
  double off_y = source_y - (y0 + static_cast<double>(j) * step_y);
  double diagonal = off_y * step_x / step_y;
  const Tzu_vtx_d2 &low = at(i, j), &high = at(i + 1, j + 1);
  bool below = off_x >= diagonal;
  const Tzu_vtx_d2& corner = below ? at(i + 1, j) : at(i, j + 1);
  bool finite = std::isfinite(low.x) && std::isfinite(low.y) && std::isfinite(high.x) &&
                std::isfinite(high.y) && std::isfinite(corner.x) && std::isfinite(corner.y);
  if (finite) {
    // The plane through the three corners, by its rises along the cell's sides.
    const Tzu_vtx_d2 &x_from = below ? low : corner, &x_to = below ? corner : high;
    const Tzu_vtx_d2 &y_from = below ? corner : low, &y_to = below ? high : corner;
    x = low.x + (x_to.x - x_from.x) * off_x / step_x + (y_to.x - y_from.x) * off_y / step_y;
    y = low.y + (x_to.y - x_from.y) * off_x / step_x + (y_to.y - y_from.y) * off_y / step_y;
    dx = (x_to.x - x_from.x) / step_x;
    dy = (x_to.y - x_from.y) / step_x;
  }
  // The run ends at the diagonal or at the cell's far side.
  start(pixels_before((below ? step_x : diagonal) - off_x), finite);
}

mesh& whole(Tzu_trimesh_d2& head) { return static_cast<mesh&>(head); }

/// Fills in the lattice of the source vertices; false if they are none.
bool read_lattice(const std::vector<Tzu_vtx_d2>& source, mesh& out) {
  std::size_t rows = 0;
  while (rows < source.size() && source[rows].x == source.front().x) ++rows;
  if (rows < 2 || source.size() % rows != 0 || source.size() / rows < 2) return false;
  out.rows = static_cast<std::int64_t>(rows);
  out.columns = static_cast<std::int64_t>(source.size() / rows);
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
                   made->target = target->vertices;
                   if (made->target.size() != s.vertices.size() || !read_lattice(s.vertices, *made))
                     return nullptr;
                   zu_trimesh_d2_init(made.get(), 0.0, 0.0);
                   return made.release();
                 });
}

void zu_trimesh_d2_destroy(Tzu_trimesh_d2* head) {
  if (head != nullptr) delete &whole(*head);
}

void zu_trimesh_d2_init(Tzu_trimesh_d2* head, double x, double y) {
  guarded(head, [&](Tzu_trimesh_d2& h) {
    mesh& m = whole(h);
    m.source_x = x, m.source_y = -y;
    m.done = m.count = 0;
  });
}

void zu_trimesh_d2_next_run(Tzu_trimesh_d2* head) {
  guarded(head, [](Tzu_trimesh_d2& h) { whole(h).next_run(); });
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_scan = &zu_trimesh_d2_scan;
