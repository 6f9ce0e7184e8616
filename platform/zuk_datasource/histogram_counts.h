#pragma once
// Counts of cells in equal classes between two limits.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/zuk_datasource/band_statistics.h"
#include "platform/zuk_datasource/source_details.h"

namespace zu::platform {

/// Between these limits, both inclusive: a cell on a boundary belongs to the class above, on the
/// last one to the class below. Equal limits put what lies on them into the first class.
struct histogram_limits {
  double minimum = 0, maximum = 0;
  std::uint64_t classes = 0;
};

/// As zu_datasource_get_histogram_classes, for an element type.
std::uint64_t histogram_classes(std::int32_t type, double minimum, double maximum);

class histogram_counts {
 public:
  explicit histogram_counts(const histogram_limits& limits);

  /// `count` elements of `type` in a row; what is not valid or not between the limits is left out.
  void add(const void* cells, std::int32_t type, std::size_t count, const valid_cells& valid);
  /// The same for an element that stands `times` times.
  void add_repeated(const void* cell, std::int32_t type, std::int64_t times,
                    const valid_cells& valid);
  /// Adds the counts to those of `out`, one a class.
  void add_to(std::int64_t* out) const;

 private:
  template <class cell> void add_run(const cell* cells, std::size_t count, const valid_cells&);

  histogram_limits limits_;
  double per_unit_;
  // Lanes side by side, since neighbours are often of one class, and the last class of a lane takes
  // what does not count.
  std::vector<std::int64_t> lanes_;
};

/// Adds the counts of all cells of `band` (from 1) to those of `out`. False as `scan_band`.
bool exact_histogram(open_dataset& dataset, int band, const std::wstring& name,
                     const histogram_limits& limits, bool (*progress)(double share, void* user),
                     void* user, std::int64_t* out);

/// Gives the counts of a field in classes that suit it between its least and greatest value, stored
/// or read. False, and no call, if there are none.
bool visit_histogram(source_details_impl& source, std::int64_t field, histogram_visitor visitor);

}  // namespace zu::platform
