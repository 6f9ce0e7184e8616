#pragma once
// Whether a sample is a value.

#include <algorithm>
#include <cmath>

#include "zu/data_source.h"

namespace zu::data {

struct nodata_test {
  double value = 0.0;    ///< the NoData of the band
  bool enabled = false;  ///< the band has one
  bool numeric = false;  ///< it is a finite number

  /// Asks a block, for a buffer of `type`; the word is a double whatever the type.
  static nodata_test of(grid_block block, std::int32_t type) {
    nodata_test test;
    test.enabled = call<&grid_block_impl::nodata>(block, type, &test.value);
    test.numeric = std::isfinite(test.value);
    return test;
  }
  /// Without NoData everything is, NaN too. With a finite one, what differs from it by more than
  /// the tolerance max(1e-6, 1e-5 of the larger magnitude); otherwise what is finite.
  bool valid(double x) const {
    if (!enabled) return true;
    if (!numeric) return std::isfinite(x);
    double tolerance = std::max(1e-6, std::max(std::abs(x), std::abs(value)) * 1e-5);
    return std::abs(x - value) > tolerance;
  }
};

}  // namespace zu::data
