#include <cmath>

#include "platform/zuk_styles/scales.h"

namespace zu::platform {

/// The answer changes only at the boundaries: for each interval between two of them, the first in
/// the order of the scale that holds it.
void range_scale::prepare() {
  std::vector<double> ends{minimum, maximum};
  std::vector<held_interval> held;
  for (const range_class& c : classes) {
    ends.insert(ends.end(), {c.minimum, c.maximum});
    held.push_back({c.minimum, c.maximum, c.row.get()});
  }
  make_keys(ends);
  interval_sweep sweep(held);
  prepared_.begin(&other);
  for (double end : ends) {  // the end stands for the interval that it closes
    Tzu_scale_prm* row = sweep.row_at(end);
    if (row == nullptr) row = end > maximum ? &upper : &other;
    prepared_.add(end, end <= minimum ? &lower : row);
  }
  // Above the last boundary there is only the upper tail, unless it begins nowhere.
  lookup = prepared_.end(std::isnan(maximum) ? &other : &upper);
}

}  // namespace zu::platform
