#pragma once
// Classes of a range scale about the mean of the values.

#include <cstdint>

#include "zu/platform/zuk_styles.h"

namespace zu::style {

/// Boundaries by the standard deviation.
struct deviation_params {
  std::uint32_t count;
  double mean, deviation;
  double coefficient;   ///< deviations from the mean to either outer boundary
  std::int32_t digits;  ///< of the rounding
};

/// `count` equal intervals between mean - coefficient * deviation and mean + coefficient *
/// deviation, rounded, with captions; the scale keeps how it was made. Count 0 leaves no classes,
/// and tails that meet at the mean.
void set_deviation_classes(Tzu_rng_scale* scale, const deviation_params& params);

}  // namespace zu::style
