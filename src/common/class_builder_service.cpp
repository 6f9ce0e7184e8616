#include "src/common/class_builder_service.h"

#include <algorithm>
#include <cmath>

#include "src/bundle/owned.h"
#include "src/data/grid_datasource.h"
#include "src/style/classes/builders.h"
#include "src/style/classes/unique_values.h"

namespace zu {
namespace {

data::open_reference source_of(const wchar_t* name) {
  data::open_reference source;
  source.name = name;
  source.opener = &zu_datasource_open;
  return source;
}

/// The logarithmic boundaries then go through three powers of ten up to the larger limit.
std::int32_t power_for(double largest) {
  constexpr int powers_below = 2;
  if (!(largest > 0.0) || !std::isfinite(largest)) return 0;
  return static_cast<std::int32_t>(std::floor(std::log10(largest))) - powers_below;
}

/// What the methods need of a field, read when it is asked for.
class read_field {
 public:
  bool open(const wchar_t* source, const wchar_t* field) {
    source_ = source_of(source), name_ = field;
    if (!grid_.open(source_, data::open_read_only)) return false;
    index_ = grid_.find_field(name_);
    return index_ >= 0;
  }
  /// Limits, mean and deviation; false for a field without values.
  bool read() {
    if (!grid_.knows_statistics(index_) &&
        (!grid_.read_statistics(index_, 0, nullptr) || grid_.field_count(index_) == 0))
      return false;
    grid_.fill_stat(stat_.get(), index_);
    return true;
  }
  bool read_histogram() { return grid_.read_histogram(stat_.get(), index_, nullptr); }
  double minimum() const { return zu_stat_get_minimum(stat_.get(), nullptr); }
  double maximum() const { return zu_stat_get_maximum(stat_.get(), nullptr); }
  double mean() const { return zu_stat_get_average(stat_.get(), nullptr); }
  double deviation() const { return zu_stat_get_stddev(stat_.get(), nullptr); }
  const Tzu_histogramm_data* histogram() { return zu_stat_get_histogramm(stat_.get(), nullptr); }
  const data::open_reference& source() const { return source_; }
  const std::wstring& name() const { return name_; }

 private:
  data::open_reference source_;
  std::wstring name_;
  data::grid_datasource grid_;
  std::int64_t index_ = -1;
  owned<zu_stat_destroy> stat_{zu_stat_create()};
};

bool build_logarithmic(Tzu_rng_scale* scale, const class_request& r, double minimum,
                       double maximum) {
  double largest = r.two_sided ? std::max(std::abs(minimum), std::abs(maximum)) : maximum;
  std::int32_t power = r.has_power ? r.power : power_for(largest);
  style::set_logarithmic(scale, {r.start, power, minimum, maximum, r.two_sided});
  return true;
}

bool build_classes(Tzu_rng_scale* scale, read_field& field, const class_request& r) {
  bool needs_field = !r.has_minimum || !r.has_maximum || r.method == zu_range_deviation ||
                     r.method == zu_range_quantile;
  if (needs_field && !field.read()) return false;
  double minimum = r.has_minimum ? r.minimum : field.minimum();
  double maximum = r.has_maximum ? r.maximum : field.maximum();
  switch (r.method) {
    case zu_range_equal:
      style::set_equal_intervals(scale, {r.count, minimum, maximum, r.digits});
      return true;
    case zu_range_deviation:
      style::set_deviation_classes(
          scale, {r.count, field.mean(), field.deviation(), r.coefficient, r.digits});
      return true;
    case zu_range_logarithmic:
      return build_logarithmic(scale, r, minimum, maximum);
    case zu_range_quantile:
      if (!field.read_histogram()) return false;
      style::set_quantiles(scale, {field.histogram(), r.count, minimum, maximum, r.digits});
      return true;
    case zu_range_natural:
      style::set_natural_breaks(scale, field.source(),
                                {field.name(), r.count, minimum, maximum, r.digits},
                                r.has_seed ? &r.seed : nullptr);
      return true;
    case zu_range_geometrical:
      style::set_geometrical(scale, {r.count, minimum, maximum, r.digits});
      return true;
    default:
      return false;
  }
}

}  // namespace

bool class_builder_service_of_common::build(Tzu_rng_scale* scale, const wchar_t* source,
                                            const wchar_t* field, const class_request* request) {
  read_field read;
  return scale != nullptr && request != nullptr && read.open(source, field) &&
         build_classes(scale, read, *request);
}

bool class_builder_service_of_common::fill_values(Tzu_val_scale* scale, const wchar_t* source,
                                                  const wchar_t* field, std::int64_t limit,
                                                  bool* all) {
  style::unique_texts values;
  if (scale == nullptr || !style::read_unique_values(source_of(source), field, limit, values))
    return false;
  if (all != nullptr) *all = static_cast<std::int64_t>(values.size()) < limit;
  style::rebuild(scale, values);
  return true;
}

}  // namespace zu
