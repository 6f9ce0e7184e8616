#include <algorithm>
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
  classes.clear();
  for (const range_class& c : from.classes)
    classes.push_back({c.minimum, c.maximum, make_row(*c.row)});
  minimum = from.minimum, maximum = from.maximum;
  lower = from.lower, upper = from.upper, other = from.other;
  answer_other(&other, lookup);
  runs_ = 0;
  return *this;
}

void range_scale::resize(std::size_t size) { classes.resize(size); }

void range_scale::begin_find() {
  if (runs_++ == 0) prepare();
}

void range_scale::end_find() {
  if (runs_ > 0 && --runs_ == 0) answer_other(&other, lookup);
}

/// The answer changes only at the boundaries: for each interval between two of them, the first in
/// the order of the scale that holds it.
void range_scale::prepare() {
  std::vector<double> ends{minimum, maximum};
  for (const range_class& c : classes) ends.insert(ends.end(), {c.minimum, c.maximum});
  ends.erase(std::remove_if(ends.begin(), ends.end(), [](double e) { return std::isnan(e); }),
             ends.end());
  std::sort(ends.begin(), ends.end());
  ends.erase(std::unique(ends.begin(), ends.end()), ends.end());

  // `value` stands for the interval that it closes.
  auto row_of = [&](double value) {
    if (value <= minimum) return &lower;
    auto holds = [&](const range_class& c) { return c.minimum < value && value <= c.maximum; };
    auto found = std::find_if(classes.begin(), classes.end(), holds);
    if (found != classes.end()) return found->row.get();
    return value > maximum ? &upper : &other;
  };
  prepared_.begin(&other);
  for (double end : ends) prepared_.add(end, row_of(end));
  // Above the last boundary there is only the upper tail, unless it ends nowhere.
  prepared_.end(std::isnan(maximum) ? &other : &upper, lookup);
}

}  // namespace zu::platform
