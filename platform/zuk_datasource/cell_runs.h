#pragma once
// Runs of cells in row order as windows of a grid.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/zuk_datasource/band_reader.h"

namespace zu::platform {

/// Calls `read(window, out)` for the windows of a run of cells in row order: at most a part of a
/// row, whole rows and a part of a row. The first result that is not success ends it.
template <class read_rows>
std::int32_t for_rows_of_run(std::uint64_t start, std::uint64_t count, std::uint64_t columns,
                             std::byte* out, std::size_t width, read_rows read) {
  while (count > 0) {
    std::uint64_t x = start % columns, y = start / columns;
    std::uint64_t nx = std::min(count, columns - x), ny = 1;
    if (nx == columns) ny = count / columns;
    auto result = read(
        grid_window{static_cast<std::int64_t>(x), static_cast<std::int64_t>(y), nx, ny, nx, ny},
        out);
    if (result != read_done) return result;
    start += nx * ny, count -= nx * ny, out += nx * ny * width;
  }
  return read_done;
}

/// Whether the cells are in the grid.
inline bool is_run(std::uint64_t start, std::uint64_t count, std::uint64_t columns,
                   std::uint64_t rows) {
  return start <= columns * rows && count <= columns * rows - start;
}

/// Stride `index` of a block's read; 0, dense, if there are none.
inline std::uint64_t stride_of(const std::uint64_t* strides, int index) {
  return strides == nullptr ? 0 : strides[index];
}

}  // namespace zu::platform
