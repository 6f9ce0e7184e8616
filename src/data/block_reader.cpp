#include "src/data/block_reader.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <utility>

#include "src/data/element.h"

namespace zu::data {
namespace {

constexpr std::int32_t success = 1, no_block = 0, impossible = 2;

/// Tiles of one read, each read once.
class tile_map {
 public:
  tile_map(grid_block block, std::size_t bytes) : block_(block), bytes_(bytes) {}

  /// The tile, or null with the reason in `result`.
  const char* at(std::uint64_t column, std::uint64_t row, std::int32_t& result) {
    auto [entry, is_new] = tiles_.try_emplace({column, row});
    if (is_new) {
      entry->second.reset(static_cast<char*>(std::malloc(bytes_)));
      result = entry->second ? call<&grid_block_impl::read_tile>(
                                   block_, column, row, static_cast<void*>(entry->second.get()))
                             : impossible;
      if (result != success) return nullptr;
    }
    return entry->second.get();
  }

 private:
  struct freed {
    void operator()(char* memory) const { std::free(memory); }
  };
  grid_block block_;
  std::size_t bytes_;
  std::map<std::pair<std::uint64_t, std::uint64_t>, std::unique_ptr<char, freed>> tiles_;
};

struct window_read {
  std::uint64_t ox, oy, sx, sy, nsx, nsy;
  std::uint64_t tile_width, tile_height;
  std::int32_t source_type, target_type;
  std::size_t source_bytes;           // of an element
  std::size_t tile_bytes;             // of a whole tile
  std::size_t column_step, row_step;  // in the buffer, in bytes
  char* buffer;
};

/// Whole runs of rows from tiles that are as wide as the grid.
std::int32_t read_row_runs(const window_read& w, tile_map& tiles) {
  std::int32_t result = success;
  for (std::uint64_t row = 0; row < w.sy;) {
    std::uint64_t y = w.oy + row, tile_row = y / w.tile_height, inside = y % w.tile_height;
    std::uint64_t rows = std::min(w.sy - row, w.tile_height - inside);
    const char* tile = tiles.at(0, tile_row, result);
    if (tile == nullptr) return result;
    for (std::uint64_t i = 0; i < rows; ++i)
      convert(tile + ((inside + i) * w.tile_width + w.ox) * w.source_bytes, w.source_type,
              w.source_bytes, w.buffer + (row + i) * w.row_step, w.target_type, w.column_step,
              w.sx);
    row += rows;
  }
  return success;
}

/// The overlap of each tile with the window.
std::int32_t read_tile_walk(const window_read& w, tile_map& tiles) {
  std::int32_t result = success;
  std::uint64_t end_x = w.ox + w.sx, end_y = w.oy + w.sy;
  for (std::uint64_t row = w.oy / w.tile_height; row * w.tile_height < end_y; ++row)
    for (std::uint64_t column = w.ox / w.tile_width; column * w.tile_width < end_x; ++column) {
      const char* tile = tiles.at(column, row, result);
      if (tile == nullptr) return result;
      std::uint64_t x0 = std::max(w.ox, column * w.tile_width);
      std::uint64_t x1 = std::min(end_x, (column + 1) * w.tile_width);
      std::uint64_t y0 = std::max(w.oy, row * w.tile_height);
      std::uint64_t y1 = std::min(end_y, (row + 1) * w.tile_height);
      for (std::uint64_t y = y0; y < y1; ++y)
        convert(tile + ((y % w.tile_height) * w.tile_width + x0 % w.tile_width) * w.source_bytes,
                w.source_type, w.source_bytes,
                w.buffer + (y - w.oy) * w.row_step + (x0 - w.ox) * w.column_step, w.target_type,
                w.column_step, x1 - x0);
    }
  return success;
}

/// Point decimation: the sample lies in the middle of its step, so that nothing shifts when the
/// step grows.
std::int32_t read_sampled(const window_read& w, tile_map& tiles) {
  std::int32_t result = success;
  double step_x = static_cast<double>(w.sx) / static_cast<double>(w.nsx);
  double step_y = static_cast<double>(w.sy) / static_cast<double>(w.nsy);
  for (std::uint64_t i = 0; i < w.nsy; ++i) {
    auto y = static_cast<std::uint64_t>((static_cast<double>(i) + 0.5) * step_y +
                                        static_cast<double>(w.oy));
    double at = static_cast<double>(w.ox) + step_x * 0.5;
    const char* row = nullptr;
    std::uint64_t first = 0, end = 0;  // columns of the tile that `row` is in
    for (std::uint64_t j = 0; j < w.nsx; ++j, at += step_x) {
      auto x = static_cast<std::uint64_t>(at);
      if (row == nullptr || x >= end) {
        std::uint64_t column = x / w.tile_width;
        const char* tile = tiles.at(column, y / w.tile_height, result);
        if (tile == nullptr) return result;
        first = column * w.tile_width, end = first + w.tile_width;
        row = tile + (y % w.tile_height) * w.tile_width * w.source_bytes;
      }
      convert(row + (x - first) * w.source_bytes, w.source_type, w.source_bytes,
              w.buffer + i * w.row_step + j * w.column_step, w.target_type, w.column_step, 1);
    }
  }
  return success;
}

/// What the block says of its tiles, for a buffer of `type`; success or why not.
std::int32_t describe(grid_block block, std::int32_t type, window_read& w) {
  w.source_type = call<&grid_block_impl::type>(block);
  w.target_type = type;
  w.source_bytes = element_width(w.source_type);
  std::uint64_t tile[3] = {0, 0, 0};
  if (w.source_bytes == 0 || element_width(type) == 0 ||
      !call<&grid_block_impl::tile_size>(block, tile) || tile[0] == 0 || tile[1] == 0)
    return impossible;
  w.tile_width = tile[0], w.tile_height = tile[1];
  bool countable = !__builtin_mul_overflow(tile[0], tile[1], &w.tile_bytes) &&
                   !__builtin_mul_overflow(w.tile_bytes, w.source_bytes, &w.tile_bytes);
  return countable ? success : impossible;
}

std::int32_t read_generic(grid_datasource& source, grid_block block, const std::int64_t* origin,
                          const std::uint64_t* size, void* buffer, const std::uint64_t* sample,
                          std::int32_t type, const std::uint64_t* strides) {
  window_read w;
  std::int32_t grid[3] = {0, 0, 0};
  if (describe(block, type, w) != success) return impossible;
  if (!source.sizes(grid)) return no_block;
  if (origin[0] < 0 || origin[1] < 0) return impossible;
  std::size_t bytes = element_width(type);
  std::uint64_t column_stride = strides != nullptr && strides[0] != 0 ? strides[0] : 1;
  std::uint64_t row_stride =
      strides != nullptr && strides[1] != 0 ? strides[1] : column_stride * sample[0];
  w.ox = static_cast<std::uint64_t>(origin[0]), w.oy = static_cast<std::uint64_t>(origin[1]);
  w.sx = size[0], w.sy = size[1], w.nsx = sample[0], w.nsy = sample[1];
  w.column_step = column_stride * bytes, w.row_step = row_stride * bytes;
  w.buffer = static_cast<char*>(buffer);
  tile_map tiles(block, w.tile_bytes);
  if (w.sx != w.nsx || w.sy != w.nsy) return read_sampled(w, tiles);
  bool whole_rows = w.column_step == bytes && w.row_step == w.sx * w.column_step &&
                    w.tile_width == static_cast<std::uint64_t>(grid[0]) &&
                    w.ox + w.sx <= w.tile_width;  // else the source is to refuse the tile beyond
  return whole_rows ? read_row_runs(w, tiles) : read_tile_walk(w, tiles);
}

/// A run in row order goes on at the start of the next row; its rows share the tiles.
std::int32_t read_run(std::uint64_t nx, grid_block block, std::uint64_t start, std::uint64_t count,
                      void* buffer, std::int32_t type) {
  window_read w;
  if (describe(block, type, w) != success) return impossible;
  w.column_step = element_width(type);
  w.buffer = static_cast<char*>(buffer);
  tile_map tiles(block, w.tile_bytes);
  while (count > 0) {
    w.ox = start % nx, w.oy = start / nx;
    w.sx = w.nsx = std::min(count, nx - w.ox);
    w.sy = w.nsy = 1;
    w.row_step = w.sx * w.column_step;
    std::int32_t result = read_tile_walk(w, tiles);
    if (result != success) return result;
    start += w.sx, count -= w.sx, w.buffer += w.row_step;
  }
  return success;
}

}  // namespace

std::int32_t read_window(grid_datasource& source, grid_block block, const std::int64_t* origin,
                         const std::uint64_t* size, void* buffer, const std::uint64_t* sample,
                         std::int32_t type, const std::uint64_t* strides) {
  if (!block) return no_block;
  std::int32_t result =
      call<&grid_block_impl::read_window>(block, origin, size, buffer, sample, type, strides);
  return result != 0 ? result
                     : read_generic(source, block, origin, size, buffer, sample, type, strides);
}

std::int32_t read_window_3d(grid_block block, const std::int64_t* origin, const std::uint64_t* size,
                            void* buffer, const std::uint64_t* sample, std::int32_t type,
                            const std::uint64_t* strides) {
  return call<&grid_block_impl::read_window_3d>(block, origin, size, buffer, sample, type, strides);
}

std::int32_t read_linear(grid_datasource& source, grid_block block, std::uint64_t start,
                         std::uint64_t count, void* buffer, std::int32_t type) {
  if (!block) return no_block;
  std::int32_t result = call<&grid_block_impl::read_linear>(block, start, count, buffer, type);
  if (result != 0) return result;
  std::int32_t grid[3] = {0, 0, 0};
  if (!source.sizes(grid) || grid[0] <= 0) return no_block;
  return read_run(static_cast<std::uint64_t>(grid[0]), block, start, count, buffer, type);
}

std::int32_t write_linear(grid_block block, std::uint64_t start, std::uint64_t count,
                          const void* buffer, std::int32_t type) {
  if (!block) return no_block;
  std::int32_t result =
      call<&grid_block_impl::write_linear>(block, start, count, buffer, count, type, 0);
  return result != 0 ? result : impossible;
}

}  // namespace zu::data
