#include "platform/zuk_select/cell_scan.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zu::platform {
namespace {

struct edge {
  Tzu_vtx_d2 low, high;  // low.y <= high.y
};

/// Cells first to last of a row; empty if first > last.
struct cells {
  std::int64_t first, last;
};
using row = std::vector<cells>;

double x_at(const edge& e, double y) {
  if (y <= e.low.y) return e.low.x;
  if (y >= e.high.y) return e.high.x;
  return e.low.x + (y - e.low.y) / (e.high.y - e.low.y) * (e.high.x - e.low.x);
}

/// The lattice's cells between two bounds that may lie far outside.
cells within(double first, double last, std::int64_t nx) {
  return {static_cast<std::int64_t>(std::clamp(first, 0.0, static_cast<double>(nx))),
          static_cast<std::int64_t>(std::clamp(last, -1.0, static_cast<double>(nx - 1)))};
}

class row_scan {
 public:
  row_scan(const std::vector<edge>& active, std::int64_t y, std::int64_t nx)
      : active_(active), y_(static_cast<double>(y)), nx_(nx) {}

  /// Cells that edges touch.
  void touched(row& out) const {
    for (const edge& e : active_) {
      auto [left, right] = reach(e);
      add(out, within(std::ceil(left) - 1, std::floor(right), nx_));
    }
  }
  /// Cells whose inner part edges go through.
  void cut(row& out) const {
    for (const edge& e : active_) {
      bool level = e.low.y == e.high.y;
      bool only_touches =
          level ? e.low.y == y_ || e.low.y == y_ + 1 : e.high.y <= y_ || e.low.y >= y_ + 1;
      if (only_touches) continue;
      auto [left, right] = reach(e);
      if (left == right && left == std::floor(left)) continue;  // along the border of two cells
      add(out,
          within(std::floor(left), left == right ? std::floor(left) : std::ceil(right) - 1, nx_));
    }
  }
  /// Cells whose middle is inside the polygon.
  void filled(row& out) const {
    double middle = y_ + 0.5;
    std::vector<double> crossings;
    for (const edge& e : active_)
      if (e.low.y <= middle && middle < e.high.y) crossings.push_back(x_at(e, middle));
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
      add(out, within(std::ceil(crossings[i] - 0.5), std::ceil(crossings[i + 1] - 0.5) - 1, nx_));
  }

 private:
  /// From where to where an edge goes in the row.
  std::pair<double, double> reach(const edge& e) const {
    if (e.low.y == e.high.y) return std::minmax({e.low.x, e.high.x});
    return std::minmax({x_at(e, y_), x_at(e, y_ + 1)});
  }
  static void add(row& out, cells c) {
    if (c.first <= c.last) out.push_back(c);
  }

  const std::vector<edge>& active_;
  double y_;
  std::int64_t nx_;
};

std::vector<edge> edges_of(const std::vector<vertices>& shape, bool closed) {
  std::vector<edge> edges;
  auto add = [&](Tzu_vtx_d2 a, Tzu_vtx_d2 b) {
    edges.push_back(a.y <= b.y ? edge{a, b} : edge{b, a});
  };
  for (const vertices& list : shape) {
    for (std::size_t i = 1; i < list.size(); ++i) add(list[i - 1], list[i]);
    if (!list.empty() && (closed || list.size() == 1)) add(list.back(), list.front());
  }
  std::sort(edges.begin(), edges.end(),
            [](const edge& a, const edge& b) { return a.low.y < b.low.y; });
  return edges;
}

void collect(const row& found, std::uint64_t first_id, id_runs& out) {
  for (const cells& c : found)
    out.insert({first_id + static_cast<std::uint64_t>(c.first),
                first_id + static_cast<std::uint64_t>(c.last)});
}

row sorted(row cells_of_row) {
  std::sort(cells_of_row.begin(), cells_of_row.end(),
            [](const cells& a, const cells& b) { return a.first < b.first; });
  return cells_of_row;
}

/// The runs of one row.
id_runs scan(const row_scan& scanned, cell_rule rule, std::uint64_t first_id) {
  row found, without;
  if (rule != cell_rule::passed) scanned.filled(found);
  if (rule == cell_rule::inside)
    scanned.cut(without);
  else
    scanned.touched(found);
  id_runs runs;
  collect(sorted(found), first_id, runs);
  if (without.empty()) return runs;
  id_runs holes;
  collect(sorted(without), first_id, holes);
  runs.subtract(holes);
  return runs;
}

}  // namespace

id_runs cells_under(const std::vector<vertices>& shape, cell_rule rule, lattice_size size,
                    std::uint64_t base) {
  id_runs all;
  std::vector<edge> edges = edges_of(shape, rule != cell_rule::passed), active;
  if (edges.empty() || size.nx <= 0 || size.ny <= 0) return all;
  double highest = -INFINITY;
  for (const edge& e : edges) highest = std::max(highest, e.high.y);
  // Rows that touch the shape, which the row below its lowest point may do.
  cells rows = within(std::ceil(edges.front().low.y) - 1, std::floor(highest), size.ny);
  auto next = edges.begin();
  for (std::int64_t y = rows.first; y <= rows.last; ++y) {
    auto low = static_cast<double>(y);
    std::erase_if(active, [&](const edge& e) { return e.high.y < low; });
    for (; next != edges.end() && next->low.y <= low + 1; ++next)
      if (next->high.y >= low) active.push_back(*next);
    std::uint64_t first_id =
        base + static_cast<std::uint64_t>(y) * static_cast<std::uint64_t>(size.nx);
    const id_runs found = scan({active, y, size.nx}, rule, first_id);
    for (const id_run& run : found.runs()) all.insert(run);
  }
  return all;
}

}  // namespace zu::platform
