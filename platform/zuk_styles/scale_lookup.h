#pragma once
// Prepares the look-up of a number among rows: rising keys, each the upper end of an interval of
// equal answer, cut into equal buckets.

#include <vector>

#include "zu/platform/zuk_styles.h"

namespace zu::platform {

class scale_lookup {
 public:
  /// Starts anew; `other` answers NaN and everything that no interval holds.
  void begin(Tzu_scale_prm* other);
  /// The next interval: what is above the key before, up to `key`. Keys must rise.
  void add(double key, Tzu_scale_prm* row);
  /// Closes the keys: what is above the last one has `row`. Fills in the public head.
  void end(Tzu_scale_prm* row, Tzu_scale_lookup& head);

 private:
  void cut_into_buckets(Tzu_scale_lookup& head);

  std::vector<double> keys_;
  std::vector<Tzu_scale_prm*> rows_;
  std::vector<uint32_t> first_key_;
  Tzu_scale_prm* other_ = nullptr;
};

/// A look-up that answers everything with `other`: the head of a scale outside of begin and end.
void answer_other(Tzu_scale_prm* other, Tzu_scale_lookup& head);

}  // namespace zu::platform
