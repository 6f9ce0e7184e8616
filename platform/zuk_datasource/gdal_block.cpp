#include "platform/zuk_datasource/gdal_block.h"

#include <algorithm>
#include <cstring>

#include "platform/zuk_datasource/cell_runs.h"
#include "platform/zuk_datasource/elements.h"

namespace zu::platform {

namespace {

constexpr std::uint64_t most_tile_cells = std::uint64_t(1) << 22;
constexpr std::uint64_t id_tile = 256;

}  // namespace

gdal_block::gdal_block(band_reader reader) : reader_(std::move(reader)) {
  int x = 0, y = 0;
  reader_.band().GetBlockSize(&x, &y);
  tile_x_ = std::min(static_cast<std::uint64_t>(std::max(x, 1)), reader_.columns());
  tile_y_ = std::min(static_cast<std::uint64_t>(std::max(y, 1)), reader_.rows());
  // Some drivers take the whole grid for a block; a reader of tiles is not to hold that much.
  tile_y_ = std::clamp(most_tile_cells / tile_x_, std::uint64_t(1), tile_y_);
}

bool gdal_block::tile_size(std::uint64_t* three) {
  three[0] = tile_x_, three[1] = tile_y_, three[2] = 1;
  return true;
}

bool gdal_block::nodata(std::int32_t, double* out) { return nodata_of(reader_.band(), *out); }

std::int32_t gdal_block::read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                                     std::int32_t type) {
  if (!is_run(start, count, reader_.columns(), reader_.rows())) return read_impossible;
  return for_rows_of_run(
      start, count, reader_.columns(), static_cast<std::byte*>(buffer), element_width(type),
      [&](const grid_window& window, void* out) { return reader_.read(window, out, type, 0, 0); });
}

std::int32_t gdal_block::read_window(const std::int64_t* origin, const std::uint64_t* size,
                                     void* buffer, const std::uint64_t* sample, std::int32_t type,
                                     const std::uint64_t* strides) {
  return reader_.read({origin[0], origin[1], size[0], size[1], sample[0], sample[1]}, buffer, type,
                      stride_of(strides, 0), stride_of(strides, 1));
}

std::int32_t gdal_block::read_window_3d(const std::int64_t* origin, const std::uint64_t* size,
                                        void* buffer, const std::uint64_t* sample,
                                        std::int32_t type, const std::uint64_t* strides) {
  return origin[2] == 0 ? read_window(origin, size, buffer, sample, type, strides) : 0;
}

std::int32_t gdal_block::read_tile(std::uint64_t column, std::uint64_t row, void* buffer) {
  if (column >= reader_.columns() || row >= reader_.rows()) return read_impossible;
  std::uint64_t x = column * tile_x_, y = row * tile_y_;
  if (x >= reader_.columns() || y >= reader_.rows()) return read_impossible;
  std::uint64_t nx = std::min(tile_x_, reader_.columns() - x);
  std::uint64_t ny = std::min(tile_y_, reader_.rows() - y);
  if (nx < tile_x_ || ny < tile_y_)
    std::memset(buffer, 0, tile_x_ * tile_y_ * element_width(reader_.type()));
  return reader_.read({static_cast<std::int64_t>(x), static_cast<std::int64_t>(y), nx, ny, nx, ny},
                      buffer, reader_.type(), 0, tile_x_);
}

bool row_id_block::tile_size(std::uint64_t* three) {
  three[0] = std::min(id_tile, columns_), three[1] = std::min(id_tile, rows_), three[2] = 1;
  return true;
}

std::int32_t row_id_block::read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                                       std::int32_t type) {
  if (!is_run(start, count, columns_, rows_)) return read_impossible;
  return for_rows_of_run(start, count, columns_, static_cast<std::byte*>(buffer),
                         element_width(type), [&](const grid_window& w, void* out) {
                           std::int64_t origin[] = {w.x, w.y};
                           std::uint64_t size[] = {w.nx, w.ny};
                           return read_window(origin, size, out, size, type, nullptr);
                         });
}

std::int32_t row_id_block::read_window(const std::int64_t* origin, const std::uint64_t* size,
                                       void* buffer, const std::uint64_t* sample, std::int32_t type,
                                       const std::uint64_t* strides) {
  return read_slice(0, origin, size, buffer, sample, type, strides);
}

std::int32_t row_id_block::read_slice(std::uint64_t slice, const std::int64_t* origin,
                                      const std::uint64_t* size, void* buffer,
                                      const std::uint64_t* sample, std::int32_t type,
                                      const std::uint64_t* strides) const {
  auto outside = [](std::int64_t o, std::uint64_t n, std::uint64_t all) {
    return o < 0 || n == 0 || static_cast<std::uint64_t>(o) >= all ||
           n > all - static_cast<std::uint64_t>(o);
  };
  std::size_t width = element_width(type);
  if (width == 0 || outside(origin[0], size[0], columns_) || outside(origin[1], size[1], rows_))
    return read_impossible;
  std::uint64_t across = stride_of(strides, 0) == 0 ? 1 : stride_of(strides, 0);
  std::uint64_t down = stride_of(strides, 1) == 0 ? across * sample[0] : stride_of(strides, 1);
  std::vector<std::int64_t> columns = sampled_columns(origin[0], size[0], sample[0]);
  std::vector<std::int64_t> rows = sampled_rows(origin[1], size[1], sample[1]);
  std::vector<std::uint64_t> ids(sample[0]);
  for (std::uint64_t row = 0; row < sample[1]; ++row) {
    std::uint64_t first = (slice * rows_ + static_cast<std::uint64_t>(rows[row])) * columns_;
    for (std::uint64_t i = 0; i < sample[0]; ++i)
      ids[i] = first + static_cast<std::uint64_t>(columns[i]);
    convert_elements(ids.data(), element_uint64, 1,
                     static_cast<std::byte*>(buffer) + row * down * width, type,
                     static_cast<std::ptrdiff_t>(across), sample[0]);
  }
  return read_done;
}

std::int32_t row_id_block::read_window_3d(const std::int64_t* origin, const std::uint64_t* size,
                                          void* buffer, const std::uint64_t* sample,
                                          std::int32_t type, const std::uint64_t* strides) {
  if (origin[2] < 0 || static_cast<std::uint64_t>(origin[2]) >= slices_) return read_impossible;
  return read_slice(static_cast<std::uint64_t>(origin[2]), origin, size, buffer, sample, type,
                    strides);
}

std::int32_t row_id_block::read_tile(std::uint64_t column, std::uint64_t row, void* buffer) {
  std::uint64_t tile[3];
  tile_size(tile);
  if (column > columns_ / tile[0] || row > rows_ / tile[1]) return read_impossible;
  std::uint64_t x = column * tile[0], y = row * tile[1];
  if (x >= columns_ || y >= rows_) return read_impossible;
  std::int64_t origin[] = {static_cast<std::int64_t>(x), static_cast<std::int64_t>(y)};
  std::uint64_t size[] = {std::min(tile[0], columns_ - x), std::min(tile[1], rows_ - y)};
  std::uint64_t strides[] = {0, tile[0]};
  std::memset(buffer, 0, tile[0] * tile[1] * sizeof(std::uint64_t));
  return read_window(origin, size, buffer, size, element_uint64, strides);
}

gdal_palette::gdal_palette(GDALRasterBand& band) {
  GDALColorTable* table = band.GetColorTable();
  double nodata = 0;
  bool has_nodata = nodata_of(band, nodata);
  for (int i = 0; table != nullptr && i < table->GetColorEntryCount(); ++i) {
    GDALColorEntry entry{};
    table->GetColorEntryAsRGB(i, &entry);
    auto byte = [](int part) { return static_cast<std::uint8_t>(std::clamp(part, 0, 255)); };
    bool hidden = has_nodata && nodata == i;
    colors_.push_back({byte(entry.c1), byte(entry.c2), byte(entry.c3),
                       hidden ? std::uint8_t(255) : byte(255 - entry.c4)});
  }
}

bool gdal_palette::color(std::int64_t index, std::uint8_t* four) {
  if (index < 0 || index >= size()) return false;
  std::copy_n(colors_[static_cast<std::size_t>(index)].begin(), 4, four);
  return true;
}

}  // namespace zu::platform
