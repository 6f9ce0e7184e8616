#include "src/style/classes/builders.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "src/style/classes/boundaries.h"
#include "src/style/classes/field_sample.h"
#include "src/style/classes/natural_breaks.h"

namespace zu::style {
namespace {

void begin(Tzu_rng_scale* scale, std::int32_t type, std::int32_t digits) {
  zu_rng_scale_set_rng_type(scale, type);
  zu_rng_scale_set_round_digits(scale, digits);
}

void finish(Tzu_rng_scale* scale, std::int32_t digits) {
  round_boundaries(scale, digits);
  captions(scale);
}

/// So many classes, and the outer boundaries.
void set_outline(Tzu_rng_scale* scale, std::uint64_t size, double minimum, double maximum) {
  zu_rng_scale_set_size(scale, size);
  zu_rng_scale_set_min_value(scale, minimum);
  zu_rng_scale_set_max_value(scale, maximum);
}

void set_class(Tzu_rng_scale* scale, std::uint64_t index, double minimum, double maximum) {
  zu_rng_scale_set_min(scale, index, minimum);
  zu_rng_scale_set_max(scale, index, maximum);
}

/// Classes from each number to the next one.
void set_between(Tzu_rng_scale* scale, const std::vector<double>& boundaries) {
  for (std::size_t i = 0; i + 1 < boundaries.size(); ++i)
    set_class(scale, i, boundaries[i], boundaries[i + 1]);
}

void spread_evenly(Tzu_rng_scale* scale, std::uint32_t count, double minimum, double maximum) {
  if (count == 0) {
    set_outline(scale, 1, minimum, maximum);
    set_class(scale, 0, minimum, maximum);
    return;
  }
  double step = (maximum - minimum) / count;
  if (!std::isfinite(step)) step = 0.0;
  set_outline(scale, count, minimum, minimum + count * step);
  for (std::uint32_t i = 0; i < count; ++i)
    set_class(scale, i, minimum + i * step, minimum + (i + 1.0) * step);
}

/// The rising numbers of the sequence 1, 2, 5, 10, … from the power and start on, up to the first
/// that is not below `maximum`.
void append_sequence(std::vector<double>& to, std::int32_t start, std::int32_t power,
                     double maximum, double sign) {
  constexpr double steps[] = {1.0, 2.0, 5.0};
  constexpr std::int32_t largest_power = 308;
  std::int32_t s = std::clamp(start, 0, 2);
  for (double last = steps[s] * std::pow(10.0, power);; last = steps[s] * std::pow(10.0, power)) {
    to.push_back(sign * last);
    if (!(last < maximum) || power > largest_power) return;
    s = (s + 1) % 3;
    if (s == 0) ++power;
  }
}

}  // namespace

void set_equal_intervals(Tzu_rng_scale* scale, const equal_params& params) {
  if (scale == nullptr) return;
  begin(scale, zu_range_equal, params.digits);
  spread_evenly(scale, params.count, params.minimum, params.maximum);
  finish(scale, params.digits);
}

void set_quantiles(Tzu_rng_scale* scale, const quantile_params& params) {
  if (scale == nullptr || params.histogram == nullptr) return;
  auto [minimum, maximum] = std::minmax(params.minimum, params.maximum);
  begin(scale, zu_range_quantile, params.digits);
  set_outline(scale, params.count, minimum, maximum);
  if (params.count != 0 && zu_histogramm_get_size(params.histogram) != 0) {
    std::vector<double> inner =
        quantile_boundaries(params.histogram, params.count, minimum, maximum);
    inner.front() = minimum, inner.back() = maximum;
    set_between(scale, inner);
  }
  finish(scale, params.digits);
}

void set_deviation_classes(Tzu_rng_scale* scale, const deviation_params& params) {
  if (scale == nullptr) return;
  begin(scale, zu_range_deviation, params.digits);
  zu_rng_scale_set_deviation_coeff(scale, params.coefficient);
  double reach = params.deviation * params.coefficient;
  if (params.count == 0)
    set_outline(scale, 0, params.mean, params.mean);
  else
    spread_evenly(scale, params.count, params.mean - reach, params.mean + reach);
  finish(scale, params.digits);
}

std::vector<double> logarithmic_boundaries(const logarithmic_params& params) {
  std::vector<double> all;
  append_sequence(all, params.start, params.power, params.maximum, 1.0);
  if (params.two_sided != 0)
    append_sequence(all, params.start, params.power, -params.minimum, -1.0);
  else
    all.push_back(0.0);
  std::sort(all.begin(), all.end());
  return all;
}

void set_logarithmic(Tzu_rng_scale* scale, const logarithmic_params& params) {
  if (scale == nullptr) return;
  begin(scale, zu_range_logarithmic, params.power);
  std::vector<double> all = logarithmic_boundaries(params);
  set_outline(scale, all.size() - 1, all.front(), all.back());
  set_between(scale, all);
  finish(scale, params.power);
}

void set_geometrical(Tzu_rng_scale* scale, const geometrical_params& params) {
  if (scale == nullptr) return;
  begin(scale, zu_range_geometrical, params.digits);
  auto [minimum, maximum] = std::minmax(params.minimum, params.maximum);
  if (params.count == 0) {
    set_outline(scale, 0, 0.0, 0.0);
  } else {
    double offset = minimum <= 0.0 ? 1.0 - minimum : 0.0;
    double a = std::log(minimum + offset), b = std::log(maximum + offset);
    double step = (b - a) / params.count;
    set_outline(scale, params.count, minimum, maximum);
    for (std::uint32_t i = 0; i < params.count; ++i)
      set_class(scale, i, std::exp(a + i * step) - offset, std::exp(a + (i + 1.0) * step) - offset);
  }
  finish(scale, params.digits);
}

void set_natural_breaks(Tzu_rng_scale* scale, const data::open_reference& source,
                        const natural_params& params, const std::uint32_t* seed) {
  if (scale == nullptr) return;
  auto [minimum, maximum] = std::minmax(params.minimum, params.maximum);
  std::vector<double> sample;
  if (sample_field(source, params.field, minimum, maximum, seed, sample))
    return set_natural_breaks(scale, std::move(sample), params);
  begin(scale, zu_range_natural, params.digits);
  finish(scale, params.digits);
}

void set_natural_breaks(Tzu_rng_scale* scale, std::vector<double> sample,
                        const natural_params& params) {
  if (scale == nullptr) return;
  begin(scale, zu_range_natural, params.digits);
  auto [minimum, maximum] = std::minmax(params.minimum, params.maximum);
  std::vector<double> all{minimum};
  for (double cut : natural_breaks(sample, params.count)) all.push_back(cut);
  all.push_back(maximum);
  set_outline(scale, all.size() - 1, minimum, maximum);
  set_between(scale, all);
  finish(scale, params.digits);
}

void set_manual(Tzu_rng_scale* scale, const std::vector<class_limits>& rows, std::int32_t digits) {
  if (scale == nullptr) return;
  zu_rng_scale_set_rng_type(scale, zu_range_manual);
  if (rows.empty())
    set_outline(scale, 0, 0.0, 0.0);
  else
    set_outline(scale, rows.size(), rows.front().minimum, rows.back().maximum);
  for (std::size_t i = 0; i < rows.size(); ++i)
    set_class(scale, i, rows[i].minimum, rows[i].maximum);
  captions(scale);
  zu_rng_scale_set_round_digits(scale, digits);
  round_boundaries(scale, digits);
}

}  // namespace zu::style
