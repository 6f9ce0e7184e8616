#pragma once
// Prepares the look-up of a number among rows: rising keys, each the upper end of an interval of
// equal answer, cut into equal buckets.

#include <vector>

#include "zu/platform/zuk_styles.h"

namespace zu::platform {

/// Values above `low` and up to `high`.
struct held_interval {
  double low, high;
  Tzu_scale_prm* row;
};

/// The first interval, in the order given, that holds an end; asked for rising ends.
class interval_sweep {
 public:
  explicit interval_sweep(const std::vector<held_interval>& intervals);
  /// Null if none holds it.
  Tzu_scale_prm* row_at(double end);

 private:
  const std::vector<held_interval>& intervals_;
  std::vector<std::size_t> by_low_;  // indexes, the lowest first
  std::vector<std::size_t> open_;    // a heap of those that begin below, first in order on top
  std::size_t next_ = 0;
};

class scale_lookup {
 public:
  /// Starts anew; `other` answers NaN.
  void begin(Tzu_scale_prm* other);
  /// The next interval: what is above the key before, up to `key`. Keys must rise.
  void add(double key, Tzu_scale_prm* row);
  /// Closes the keys: what is above the last one has `row`. The head is valid until `begin`.
  Tzu_scale_lookup end(Tzu_scale_prm* row);

 private:
  void cut_into_buckets(Tzu_scale_lookup& head);
  double cut_into_buckets(Tzu_scale_lookup& head, bool by_bits);

  std::vector<double> keys_;
  std::vector<Tzu_scale_prm*> rows_;
  std::vector<uint32_t> first_key_;
  Tzu_scale_prm* other_ = nullptr;
};

/// Sorted, each once, without NaN.
void make_keys(std::vector<double>& ends);

/// A look-up that answers everything with `other`: the head of a scale outside of begin and end.
void answer_other(Tzu_scale_prm* other, Tzu_scale_lookup& head);

}  // namespace zu::platform
