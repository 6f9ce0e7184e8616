#pragma once
// Minimum, maximum, mean and deviation of the valid cells of a band, in one pass.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/zuk_datasource/band_reader.h"
#include "zu/platform/zuk_datasource.h"

namespace zu::platform {

/// Which cells count. NoData has a tolerance, max(1e-6, max(|x|, |value|) * 1e-5); a NoData that is
/// no number stands for every cell that is none. A cell that is no finite number never counts.
struct valid_cells {
  bool has_nodata = false;  ///< and it is finite
  double nodata = 0;
};
valid_cells valid_cells_of(GDALRasterBand& band);

inline bool is_valid(double x, const valid_cells& valid) {
  bool finite = std::fabs(x) <= std::numeric_limits<double>::max();
  if (!valid.has_nodata) return finite;
  double scale = std::max(std::fabs(x), std::fabs(valid.nodata));
  return finite & (std::fabs(x - valid.nodata) > std::max(1e-6, scale * 1e-5));
}

/// Moments of a part of the cells, about the part's own mean.
struct partial_statistics {
  std::uint64_t count = 0;
  double minimum = 0, maximum = 0, mean = 0, squares = 0;

  /// Adds another part. Chan, Golub and LeVeque 1979, STAN-CS-79-773, eq. 2.1.
  void add(const partial_statistics& other);
};

/// Statistics of `count` elements of `type` in a row.
partial_statistics statistics_of_run(const void* cells, std::int32_t type, std::size_t count,
                                     const valid_cells& valid);

/// What the parts add up to; all zero if nothing was valid.
Tzu_field_stat summary(const partial_statistics& all, bool estimate);

/// Of all cells of `band` (from 1). False as `scan_band`.
bool exact_statistics(open_dataset& dataset, int band, const std::wstring& name,
                      bool (*progress)(double share, void* user), void* user, Tzu_field_stat& out);

/// From one nearest read of at most `most` cells.
bool sample_statistics(band_reader& reader, std::uint64_t most, Tzu_field_stat& out);

}  // namespace zu::platform
