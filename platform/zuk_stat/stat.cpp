#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_stat.h"

using zu::platform::guarded;

struct Tzu_histogramm_data {
  std::vector<double> counts;
  double minimum = 0.0, maximum = 1.0;

  /// Of the boundary below class `index`; exact at both ends.
  double boundary(uint64_t index) const {
    if (index == counts.size()) return maximum;
    double share = static_cast<double>(index) / static_cast<double>(counts.size());
    return minimum + share * (maximum - minimum);
  }
};

namespace {

struct known_value {
  double value = 0.0;
  bool known = false;
};

}  // namespace

struct Tzu_stat {
  known_value minimum, maximum, average, stddev;
  Tzu_histogramm_data histogram;
  bool has_histogram = false;
};

namespace {

void set(Tzu_stat* stat, known_value Tzu_stat::*member, double value) {
  guarded(stat, [&](Tzu_stat& s) { s.*member = {value, true}; });
}

double get(const Tzu_stat* stat, known_value Tzu_stat::*member, bool* valid) {
  known_value found = stat != nullptr ? stat->*member : known_value();
  if (valid != nullptr) *valid = found.known;
  return found.value;
}

}  // namespace

Tzu_histogramm_data* zu_histogramm_create() { return new (std::nothrow) Tzu_histogramm_data; }
void zu_histogramm_destroy(Tzu_histogramm_data* histogram) { delete histogram; }
void zu_histogramm_assign(Tzu_histogramm_data* histogram, const Tzu_histogramm_data* from) {
  if (from != nullptr) guarded(histogram, [&](Tzu_histogramm_data& h) { h = *from; });
}
void zu_histogramm_clear(Tzu_histogramm_data* histogram) {
  guarded(histogram, [](Tzu_histogramm_data& h) { h.counts.clear(); });
}
void zu_histogramm_set_params(Tzu_histogramm_data* histogram, uint64_t classes) {
  guarded(histogram, [&](Tzu_histogramm_data& h) { h.counts.assign(classes, 0.0); });
}
void zu_histogramm_set_limits(Tzu_histogramm_data* histogram, double minimum, double maximum) {
  guarded(histogram, [&](Tzu_histogramm_data& h) { h.minimum = minimum, h.maximum = maximum; });
}
void zu_histogramm_get_params(const Tzu_histogramm_data* histogram, uint64_t* count,
                              double* minimum, double* maximum) {
  if (count != nullptr) *count = zu_histogramm_get_size(histogram);
  if (zu_histogramm_get_size(histogram) == 0) return;
  if (minimum != nullptr) *minimum = histogram->minimum;
  if (maximum != nullptr) *maximum = histogram->maximum;
}
double zu_histogramm_get_bnd_min(const Tzu_histogramm_data* histogram, uint64_t index) {
  return index < zu_histogramm_get_size(histogram) ? histogram->boundary(index) : NAN;
}
double zu_histogramm_get_bnd_max(const Tzu_histogramm_data* histogram, uint64_t index) {
  return index < zu_histogramm_get_size(histogram) ? histogram->boundary(index + 1) : NAN;
}
double zu_histogramm_get_max_val(const Tzu_histogramm_data* histogram) {
  if (zu_histogramm_get_size(histogram) == 0) return 0.0;
  return *std::max_element(histogram->counts.begin(), histogram->counts.end());
}
uint64_t zu_histogramm_get_size(const Tzu_histogramm_data* histogram) {
  return histogram != nullptr ? histogram->counts.size() : 0;
}
void zu_histogramm_set(Tzu_histogramm_data* histogram, uint64_t index, double count) {
  if (index < zu_histogramm_get_size(histogram)) histogram->counts[index] = count;
}
double zu_histogramm_get(const Tzu_histogramm_data* histogram, uint64_t index) {
  return index < zu_histogramm_get_size(histogram) ? histogram->counts[index] : 0.0;
}

Tzu_stat* zu_stat_create() { return new (std::nothrow) Tzu_stat; }
void zu_stat_destroy(Tzu_stat* stat) { delete stat; }
void zu_stat_set_minimum(Tzu_stat* stat, double value) { set(stat, &Tzu_stat::minimum, value); }
void zu_stat_set_maximum(Tzu_stat* stat, double value) { set(stat, &Tzu_stat::maximum, value); }
void zu_stat_set_average(Tzu_stat* stat, double value) { set(stat, &Tzu_stat::average, value); }
void zu_stat_set_stddev(Tzu_stat* stat, double value) { set(stat, &Tzu_stat::stddev, value); }
double zu_stat_get_minimum(const Tzu_stat* s, bool* valid) {
  return get(s, &Tzu_stat::minimum, valid);
}
double zu_stat_get_maximum(const Tzu_stat* s, bool* valid) {
  return get(s, &Tzu_stat::maximum, valid);
}
double zu_stat_get_average(const Tzu_stat* s, bool* valid) {
  return get(s, &Tzu_stat::average, valid);
}
double zu_stat_get_stddev(const Tzu_stat* s, bool* valid) {
  return get(s, &Tzu_stat::stddev, valid);
}
bool zu_stat_has_statistic(const Tzu_stat* stat) {
  return stat != nullptr && stat->minimum.known && stat->maximum.known && stat->average.known &&
         stat->stddev.known;
}
bool zu_stat_has_histogramm(const Tzu_stat* stat) { return stat != nullptr && stat->has_histogram; }
Tzu_histogramm_data* zu_stat_get_histogramm(Tzu_stat* stat, bool* valid) {
  if (valid != nullptr) *valid = zu_stat_has_histogramm(stat);
  return stat != nullptr ? &stat->histogram : nullptr;
}
void zu_stat_set_histogramm(Tzu_stat* stat, bool valid) {
  if (stat != nullptr) stat->has_histogram = valid;
}
