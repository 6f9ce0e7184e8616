#include "host/desktop/realiser/grid_places.h"

#include <algorithm>
#include <numeric>

namespace zu::desktop {

int grid_places::fixed_width() const {
  const auto end = widths.begin() + std::min<std::ptrdiff_t>(fixed_columns, std::ssize(widths));
  return std::accumulate(widths.begin(), end, 0);
}
int grid_places::fixed_height() const { return int(std::min(fixed_rows, rows)) * row_height; }
int grid_places::scrolled_width() const {
  return std::accumulate(widths.begin(), widths.end(), 0) - fixed_width();
}
std::uint64_t grid_places::rows_that_fit() const {
  return std::uint64_t(std::max((size.height() - fixed_height()) / row_height, 1));
}
std::uint64_t grid_places::last_top() const {
  return scrolled_rows() > rows_that_fit() ? scrolled_rows() - rows_that_fit() : 0;
}
int grid_places::last_left() const {
  return std::max(scrolled_width() - (size.width() - fixed_width()), 0);
}

int grid_places::x_of(std::uint32_t column) const {
  const auto end = widths.begin() + std::min<std::ptrdiff_t>(column, std::ssize(widths));
  return std::accumulate(widths.begin(), end, 0) - (column >= fixed_columns ? left : 0);
}

QRect grid_places::rect(grid_place at) const {
  if (at.column >= widths.size() || at.row >= rows) return {};
  std::uint64_t shown = at.row;
  if (at.row >= fixed_rows) {
    const auto [first, end] = rows_in_sight();
    if (at.row < first || at.row >= end) return {};
    shown = at.row - top;
  }
  return QRect(x_of(at.column), int(shown) * row_height, widths[at.column], row_height);
}

std::optional<grid_place> grid_places::place_at(QPoint point) const {
  if (point.x() < 0 || point.y() < 0) return {};
  grid_place found;
  found.row = std::uint64_t(point.y() / row_height);
  if (found.row >= fixed_rows) found.row += top;
  if (found.row >= rows) return {};
  const bool scrolled = point.x() >= fixed_width();
  for (found.column = scrolled ? fixed_columns : 0; found.column < widths.size(); ++found.column)
    if (point.x() < x_of(found.column) + widths[found.column]) return found;
  return {};
}

std::vector<std::uint32_t> grid_places::columns_in_sight() const {
  std::vector<std::uint32_t> found;
  int x = 0;
  for (std::uint32_t column = 0; column < widths.size(); ++column) {
    if (column == fixed_columns) x -= left;
    const int from = column < fixed_columns ? 0 : fixed_width();
    if (x >= size.width()) break;
    if (x + widths[column] > from) found.push_back(column);
    x += widths[column];
  }
  return found;
}

std::pair<std::uint64_t, std::uint64_t> grid_places::rows_in_sight() const {
  const int height = std::max(size.height() - fixed_height(), 0);
  const std::uint64_t shown = std::uint64_t((height + row_height - 1) / row_height);
  const std::uint64_t first = std::min(fixed_rows + top, rows);
  return {first, std::min(first + shown, rows)};
}

std::optional<std::uint32_t> grid_places::edge_at(QPoint point) const {
  constexpr int reach = 3;
  if (point.y() < 0 || point.y() >= fixed_height()) return {};
  std::optional<std::uint32_t> found;
  for (std::uint32_t column : columns_in_sight())
    if (std::abs(point.x() - (x_of(column) + widths[column])) <= reach) found = column;
  return found;
}

void grid_places::bring_into_sight(grid_place at) {
  if (at.row >= fixed_rows) {
    const std::uint64_t row = at.row - fixed_rows, fit = rows_that_fit();
    if (row < top) top = row;
    if (row >= top + fit) top = row - fit + 1;
  }
  top = std::min(top, last_top());
  if (at.column >= fixed_columns && at.column < widths.size()) {
    const int x = x_of(at.column) + left - fixed_width();
    const int room = size.width() - fixed_width();
    if (x + widths[at.column] > left + room) left = x + widths[at.column] - room;
    if (x < left) left = x;
  }
  left = std::clamp(left, 0, last_left());
}

}  // namespace zu::desktop
