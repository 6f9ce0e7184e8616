#include "platform/zuk_styles/scale_lookup.h"

#include <algorithm>
#include <cmath>

namespace zu::platform {
namespace {

constexpr double infinity = HUGE_VAL;

}  // namespace

void scale_lookup::begin(Tzu_scale_prm* other) {
  keys_.clear();
  rows_.clear();
  other_ = other;
}

void scale_lookup::add(double key, Tzu_scale_prm* row) {
  // Intervals of the same answer are one.
  if (!rows_.empty() && rows_.back() == row)
    keys_.back() = key;
  else
    keys_.push_back(key), rows_.push_back(row);
}

void scale_lookup::end(Tzu_scale_prm* row, Tzu_scale_lookup& head) {
  if (!keys_.empty() && keys_.back() == infinity) {
    keys_.pop_back();
    row = rows_.back();
    rows_.pop_back();
  }
  keys_.push_back(infinity);
  rows_.push_back(row);
  cut_into_buckets(head);
  head.keys = keys_.data();
  head.rows = rows_.data();
  head.other = other_;
}

/// Four buckets a key between the first and the last finite one. The first key of a bucket is the
/// first that is not below its low end, found with the very arithmetic of the look-up.
void scale_lookup::cut_into_buckets(Tzu_scale_lookup& head) {
  auto finite = [](double key) { return std::isfinite(key); };
  auto first = std::find_if(keys_.begin(), keys_.end(), finite);
  auto last = std::find_if(keys_.rbegin(), keys_.rend(), finite);
  double low = first != keys_.end() ? *first : 0.0;
  double high = first != keys_.end() ? *last : 0.0;
  std::size_t buckets = std::clamp<std::size_t>(keys_.size() * 4, 1, 1 << 16);
  double per_unit = static_cast<double>(buckets) / (high - low);
  if (!(high > low) || !std::isfinite(per_unit) || !std::isfinite(high - low))
    buckets = 1, per_unit = 0.0;
  head.low = low;
  head.per_unit = per_unit;
  head.last_bucket = static_cast<double>(buckets - 1);
  first_key_.assign(buckets, 0);
  std::size_t key = 0;
  for (std::size_t bucket = 0; bucket < buckets; ++bucket) {
    // A key whose own bucket lies before this one is below all numbers of this one.
    while (bucket > 0 && key + 1 < keys_.size()) {
      double place = (keys_[key] - low) * per_unit;
      if (place > 0.0 ? std::min(place, head.last_bucket) >= static_cast<double>(bucket) : false)
        break;
      ++key;
    }
    first_key_[bucket] = static_cast<uint32_t>(key);
  }
  head.first_key = first_key_.data();
}

void answer_other(Tzu_scale_prm* other, Tzu_scale_lookup& head) {
  static constexpr double last_key[] = {infinity};
  static constexpr uint32_t first_key[] = {0};
  head.low = head.per_unit = head.last_bucket = 0.0;
  head.first_key = first_key;
  head.keys = last_key;
  head.other = other;
  // The one row of such a look-up is the head's own word.
  head.rows = &head.other;
}

}  // namespace zu::platform
