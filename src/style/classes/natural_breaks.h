#pragma once
// Natural breaks of a sample: boundaries between classes of the least squared deviations. Jenks
// 1977, Optimal data classification for choropleth maps, as a dynamic programme over the sorted
// values.

#include <cstdint>
#include <vector>

namespace zu::style {

/// Upper ends of all classes but the last, rising; the sample is sorted. `classes` of a sample that
/// has no more values than that: the values themselves. None for an empty sample and for less than
/// two classes. Each step back through the programme goes one row further than the class's end.
std::vector<double> natural_breaks(std::vector<double>& sample, std::uint32_t classes);

}  // namespace zu::style
