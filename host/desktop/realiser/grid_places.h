#pragma once
// Where the cells of a table lie on the screen. Rows are numbers of 64 bits and scroll by whole
// rows; columns scroll by pixels; the fixed ones stay.

#include <QRect>
#include <optional>
#include <vector>

#include "host/desktop/realiser/grid_cells.h"

namespace zu::desktop {

struct grid_places {
  static constexpr int narrowest = 16;  ///< of columns, pixels

  std::vector<int> widths;  ///< of all columns, pixels
  std::uint32_t fixed_columns = 0;
  std::uint64_t rows = 0;  ///< all, with the fixed ones
  std::uint64_t fixed_rows = 0;
  std::uint64_t top = 0;  ///< scrolled rows above those in sight
  int left = 0;           ///< scrolled pixels of columns
  int row_height = 20;
  QSize size;  ///< of the view

  int fixed_width() const;
  int fixed_height() const;
  int scrolled_width() const;  ///< of all columns that scroll
  std::uint64_t scrolled_rows() const { return rows > fixed_rows ? rows - fixed_rows : 0; }
  std::uint64_t rows_that_fit() const;  ///< whole ones, at least 1
  std::uint64_t last_top() const;       ///< with which the last row is whole
  int last_left() const;

  int x_of(std::uint32_t column) const;
  QRect rect(grid_place at) const;  ///< empty for a row out of sight
  std::optional<grid_place> place_at(QPoint point) const;
  /// The columns of which a part is in sight, the fixed ones too.
  std::vector<std::uint32_t> columns_in_sight() const;
  /// First and behind the last of the scrolled rows in sight, counted with the fixed ones.
  std::pair<std::uint64_t, std::uint64_t> rows_in_sight() const;
  /// The column at whose right edge a point of the fixed rows lies.
  std::optional<std::uint32_t> edge_at(QPoint point) const;
  /// Scrolls as little as shows a cell whole.
  void bring_into_sight(grid_place at);
};

}  // namespace zu::desktop
