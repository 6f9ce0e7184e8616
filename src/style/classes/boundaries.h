#pragma once
// What the builders of class boundaries share: boundaries of a histogram.

#include <cstdint>
#include <vector>

#include "zu/platform/zuk_stat.h"

namespace zu::style {

/// `count` + 1 boundaries by the cumulative curve of a histogram that has classes. Only the inner
/// ones are sought in the curve; the first is `minimum`.
std::vector<double> quantile_boundaries(const Tzu_histogramm_data* histogram, std::uint32_t count,
                                        double minimum, double maximum);

}  // namespace zu::style
