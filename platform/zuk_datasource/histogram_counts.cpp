#include "platform/zuk_datasource/histogram_counts.h"

#include <algorithm>
#include <cmath>

#include "platform/zuk_datasource/band_scan.h"
#include "platform/zuk_datasource/elements.h"

namespace zu::platform {
namespace {

constexpr std::size_t lanes = 4;

}  // namespace

std::uint64_t histogram_classes(std::int32_t type, double minimum, double maximum) {
  constexpr std::uint64_t most = 256;
  constexpr double too_many = 9e15;  // numbers that are not all told apart
  bool whole = type >= element_uint8 && type <= element_uint64;
  if (!whole || !(maximum >= minimum && maximum - minimum < too_many)) return most;
  double numbers = std::floor(maximum - minimum) + 1;
  double in_a_class = std::ceil(numbers / static_cast<double>(most));
  return std::max<std::uint64_t>(1, static_cast<std::uint64_t>(numbers / in_a_class));
}

histogram_counts::histogram_counts(const histogram_limits& limits)
    : limits_(limits),
      per_unit_(limits.maximum > limits.minimum
                    ? static_cast<double>(limits.classes) / (limits.maximum - limits.minimum)
                    : 0.0),
      lanes_(lanes * (limits.classes + 1)) {
  if (!std::isfinite(per_unit_)) per_unit_ = 0.0;  // limits that are all but equal
}

template <class cell>
void histogram_counts::add_run(const cell* cells, std::size_t count, const valid_cells& valid) {
  constexpr std::size_t at_once = 256;
  const double low = limits_.minimum, high = limits_.maximum, per_unit = per_unit_;
  const auto nowhere = static_cast<double>(limits_.classes), last = nowhere - 1;
  const std::size_t stride = limits_.classes + 1;
  std::int32_t places[at_once];
  for (std::size_t start = 0; start < count; start += at_once) {
    std::size_t part = std::min(at_once, count - start);
    for (std::size_t i = 0; i < part; ++i) {
      auto x = static_cast<double>(cells[start + i]);
      double place = std::min((x - low) * per_unit, last);
      bool counts = is_valid(x, valid) & (x >= low) & (x <= high);
      places[i] = static_cast<std::int32_t>(counts ? place : nowhere);
    }
    std::size_t i = 0;
    for (; i + lanes <= part; i += lanes)
      for (std::size_t lane = 0; lane < lanes; ++lane)
        ++lanes_[lane * stride + static_cast<std::size_t>(places[i + lane])];
    for (; i < part; ++i) ++lanes_[static_cast<std::size_t>(places[i])];
  }
}

void histogram_counts::add(const void* cells, std::int32_t type, std::size_t count,
                           const valid_cells& valid) {
  if (limits_.classes == 0) return;
  with_element_type(
      type, [&](auto cell) { add_run(static_cast<const decltype(cell)*>(cells), count, valid); });
}

void histogram_counts::add_repeated(const void* cell, std::int32_t type, std::int64_t times,
                                    const valid_cells& valid) {
  histogram_counts one(limits_);
  one.add(cell, type, 1, valid);
  for (std::size_t i = 0; i < lanes_.size(); ++i) lanes_[i] += one.lanes_[i] * times;
}

void histogram_counts::add_to(std::int64_t* out) const {
  for (std::size_t lane = 0; lane < lanes; ++lane)
    for (std::size_t i = 0; i < limits_.classes; ++i)
      out[i] += lanes_[lane * (limits_.classes + 1) + i];
}

bool exact_histogram(open_dataset& dataset, int band, const std::wstring& name,
                     const histogram_limits& limits, bool (*progress)(double, void*), void* user,
                     std::int64_t* out) {
  GDALRasterBand& cells_of = *dataset.gdal().GetRasterBand(band);
  const std::int32_t type = element_type_of(cells_of);
  const valid_cells valid = valid_cells_of(cells_of);
  histogram_counts by_thread[] = {histogram_counts(limits), histogram_counts(limits)};
  auto take = [&](int, int thread, const void* cells, std::size_t count) {
    by_thread[thread].add(cells, type, count, valid);
  };
  if (!scan_band(dataset, band, name, progress, user, take)) return false;
  for (const histogram_counts& counts : by_thread) counts.add_to(out);
  return true;
}

bool visit_histogram(source_details_impl& source, std::int64_t field, histogram_visitor visitor) {
  Tzu_field_info known = {};
  if (!source.field_info(field, &known)) return false;
  histogram_limits limits{known.minimum, known.maximum, 0};
  if (!known.has_stat) {
    Tzu_field_stat read = {};
    if (!source.compute_stat(field, 0, nullptr, nullptr, &read) || read.count == 0) return false;
    limits.minimum = read.minimum, limits.maximum = read.maximum;
  }
  limits.classes = histogram_classes(known.type, limits.minimum, limits.maximum);
  std::vector<std::int64_t> counts(limits.classes);
  if (!source.compute_histogram(field, limits.classes, limits.minimum, limits.maximum, nullptr,
                                nullptr, counts.data()))
    return false;
  call<&histogram_visitor_impl::visit>(visitor, limits.classes, counts.data());
  return true;
}

}  // namespace zu::platform
