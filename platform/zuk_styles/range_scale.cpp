#include <cmath>

#include "platform/zuk_styles/scales.h"

namespace zu::platform {

Tzu_scale_prm new_row() { return {{{{128, 128, 128, 0}, {255, 255, 0, 0}}}, true}; }

row_ptr make_row(const Tzu_scale_prm& like) { return std::make_unique<Tzu_scale_prm>(like); }

range_scale::range_scale() : Tzu_rng_scale{}, lower(new_row()), upper(new_row()), other(new_row()) {
  other.visible = false;
  answer_other(&other, lookup);
}

range_scale& range_scale::operator=(const range_scale& from) {
  if (this == &from) return *this;
  forget();
  classes.clear();
  classes.resize(from.classes.size());
  for (std::size_t i = 0; i < classes.size(); ++i) {
    const range_class& c = from.classes[i];
    classes[i].minimum = c.minimum, classes[i].maximum = c.maximum;
    *classes[i].row = *c.row;
  }
  minimum = from.minimum, maximum = from.maximum;
  lower = from.lower, upper = from.upper, other = from.other;
  return *this;
}

void range_scale::resize(std::size_t size) {
  forget();
  classes.resize(size);
}

void range_scale::forget() {
  answer_other(&other, lookup);
  runs_ = 0;
}

void range_scale::begin_find() {
  if (runs_ == 0) prepare();
  ++runs_;
}

void range_scale::end_find() {
  if (runs_ > 0 && --runs_ == 0) forget();
}

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
