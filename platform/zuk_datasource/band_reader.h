#pragma once
// Reading of one band in the presented order of rows.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gdal_priv.h>

#include "platform/zuk_datasource/open_dataset.h"

namespace zu::platform {

/// Cells of the presented grid, and how many samples of them are wanted.
struct grid_window {
  std::int64_t x, y;
  std::uint64_t nx, ny, sample_x, sample_y;
};

/// Results of a read, as the interface of a block has them.
enum read_result : std::int32_t { read_done = 1, read_impossible = 2, read_failed = 3 };

/// The rows and columns that `samples` samples take from `size` cells at `origin`: those in whose
/// middle they lie, columns by repeated addition of the step. A hair, the same as GDAL's, keeps a
/// sample between two cells in the upper one; so all ways of reading take the same cells.
std::vector<std::int64_t> sampled_rows(std::int64_t origin, std::uint64_t size,
                                       std::uint64_t samples);
std::vector<std::int64_t> sampled_columns(std::int64_t origin, std::uint64_t size,
                                          std::uint64_t samples);

/// Element type by which cells of a band are presented, 1 to 10, and GDAL's type to read them by.
/// Complex cells are presented by their real part.
std::int32_t element_type_of(GDALRasterBand& band);
GDALDataType gdal_type_of(std::int32_t element);

/// NoData of a band as a double; false if it has none.
bool nodata_of(GDALRasterBand& band, double& out);

class band_reader {
 public:
  /// `band` from 1. Reasons of failed reads are kept for `name`.
  band_reader(dataset_ptr dataset, int band, bool rows_run_south, std::wstring name);

  std::int32_t type() const { return type_; }
  std::uint64_t columns() const { return columns_; }
  std::uint64_t rows() const { return rows_; }
  GDALRasterBand& band() { return band_; }

  /// Nearest samples of a window, as elements of `type` with strides in elements (0: dense).
  /// Cells that cannot be read become NoData, or NaN or 0, as long as some can be.
  std::int32_t read(const grid_window& window, void* out, std::int32_t type,
                    std::uint64_t column_stride, std::uint64_t row_stride);

 private:
  struct target;
  std::int64_t file_row(std::int64_t row) const;
  // Elements of the band's own type, rows in the file's order.
  bool read_native(const grid_window& window, void* out, std::uint64_t row_stride);
  bool read_sampled(const grid_window& window, void* out);
  bool read_overview(const grid_window& window, std::int64_t top, GDALRasterIOExtraArg options,
                     void* out);
  std::int32_t salvage(const grid_window& window, const target& to, const std::string& reason);
  void keep(const std::string& reason, std::int32_t kind);

  dataset_ptr dataset_;
  GDALRasterBand& band_;
  int index_;  // from 0
  bool rows_run_south_;
  std::wstring name_;
  std::int32_t type_;
  std::uint64_t columns_, rows_;
};

/// The reason if a block of a GeoTIFF band, or of its inner overviews, begins beyond the end of its
/// file; empty otherwise. A block that only ends there is a broken tile.
std::string truncation_of(GDALRasterBand& band, const std::string& path);

}  // namespace zu::platform
