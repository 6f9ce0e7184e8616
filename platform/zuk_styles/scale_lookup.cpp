#include "platform/zuk_styles/scale_lookup.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace zu::platform {
namespace {

constexpr double infinity = HUGE_VAL;

}  // namespace

interval_sweep::interval_sweep(const std::vector<held_interval>& intervals)
    : intervals_(intervals), by_low_(intervals.size()) {
  std::iota(by_low_.begin(), by_low_.end(), std::size_t{0});
  // An interval with a NaN for an end holds nothing, and would spoil the order.
  std::erase_if(by_low_, [&](std::size_t i) {
    return std::isnan(intervals_[i].low) || std::isnan(intervals_[i].high);
  });
  std::sort(by_low_.begin(), by_low_.end(),
            [&](std::size_t a, std::size_t b) { return intervals_[a].low < intervals_[b].low; });
}

Tzu_scale_prm* interval_sweep::row_at(double end) {
  for (; next_ < by_low_.size() && intervals_[by_low_[next_]].low < end; ++next_) {
    open_.push_back(by_low_[next_]);
    std::push_heap(open_.begin(), open_.end(), std::greater<>());
  }
  while (!open_.empty() && intervals_[open_.front()].high < end) {
    std::pop_heap(open_.begin(), open_.end(), std::greater<>());
    open_.pop_back();
  }
  return open_.empty() ? nullptr : intervals_[open_.front()].row;
}

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

Tzu_scale_lookup scale_lookup::end(Tzu_scale_prm* row) {
  if (keys_.empty() || keys_.back() != infinity) add(infinity, row);
  Tzu_scale_lookup head{};
  cut_into_buckets(head);
  head.keys = keys_.data();
  head.rows = rows_.data();
  head.other = other_;
  return head;
}

/// Equal buckets of numbers, unless those of bits leave clearly less halving to do, if values are
/// spread as the keys are.
void scale_lookup::cut_into_buckets(Tzu_scale_lookup& head) {
  double work = cut_into_buckets(head, true);
  std::vector<uint32_t> by_bits = first_key_;
  Tzu_scale_lookup of_bits = head;
  if (0.8 * cut_into_buckets(head, false) > work) {
    first_key_.swap(by_bits);
    head = of_bits;
  }
  head.first_key = first_key_.data();
}

/// Some buckets a key between the first and the last finite one, so that most hold no key and the
/// others one. Keys are placed with the very arithmetic of the look-up. The result is the sum over
/// the keys of the steps in their buckets.
double scale_lookup::cut_into_buckets(Tzu_scale_lookup& head, bool by_bits) {
  auto place = [by_bits](double key) { return by_bits ? zu_scale_lookup_bits(key) : key; };
  auto finite = [](double key) { return std::isfinite(key); };
  auto first = std::find_if(keys_.begin(), keys_.end(), finite);
  auto last = std::find_if(keys_.rbegin(), keys_.rend(), finite);
  double low = first != keys_.end() ? place(*first) : 0.0;
  double high = first != keys_.end() ? place(*last) : 0.0;
  std::size_t keys = keys_.size();
  std::size_t buckets = std::min<std::size_t>(std::clamp<std::size_t>(4096, 4 * keys, 16 * keys),
                                              std::size_t{1} << 16);
  double per_unit = static_cast<double>(buckets) / (high - low);
  if (!(high > low) || !std::isfinite(per_unit) || !std::isfinite(high - low))
    buckets = 1, per_unit = 0.0;
  head.low = low;
  head.per_unit = per_unit;
  head.last_bucket = static_cast<double>(buckets - 1);
  head.by_bits = by_bits;
  // A key in a bucket before this one is below all numbers of this one.
  auto bucket_of = [&](double key) {
    double bucket = (place(key) - low) * per_unit;
    return bucket > 0.0 ? std::floor(std::min(bucket, head.last_bucket)) : 0.0;
  };
  first_key_.assign(buckets + 1, static_cast<uint32_t>(keys - 1));
  std::size_t key = 0;
  double work = 0.0;
  for (std::size_t bucket = 0; bucket < buckets; ++bucket) {
    std::size_t before = key;
    while (key + 1 < keys && bucket_of(keys_[key]) < static_cast<double>(bucket)) ++key;
    first_key_[bucket] = static_cast<uint32_t>(key);
    auto held = static_cast<double>(key - before);
    work += held * std::log2(held + 1.0);
  }
  auto held = static_cast<double>(keys - 1 - key);  // of the last bucket
  return work + held * std::log2(held + 1.0);
}

void make_keys(std::vector<double>& ends) {
  std::erase_if(ends, [](double end) { return std::isnan(end); });
  std::sort(ends.begin(), ends.end());
  ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
}

void answer_other(Tzu_scale_prm* other, Tzu_scale_lookup& head) {
  static constexpr double last_key[] = {infinity};
  static constexpr uint32_t first_key[] = {0, 0};
  head.low = head.per_unit = head.last_bucket = 0.0;
  head.by_bits = false;
  head.first_key = first_key;
  head.keys = last_key;
  head.other = other;
  // The one row of such a look-up is the head's own word.
  head.rows = &head.other;
}

}  // namespace zu::platform
