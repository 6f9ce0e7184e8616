#include "src/toolkit/numbers.h"

namespace zu::toolkit {

void slider::set_steps(std::int32_t step, std::int32_t tick, std::int32_t page) {
  bool changed = replace(step_, step);
  changed = replace(tick_, tick) || changed;
  changed = replace(page_, page) || changed;
  if (changed) tell_list();
}

std::int32_t detail::whole_steps(double length, double step) {
  constexpr double most = std::numeric_limits<std::int32_t>::max();
  constexpr double rounding = 1e-6;  // of a step, left by limits far from 0
  double steps = length / step + rounding;
  if (!(steps > 0)) return 0;
  return static_cast<std::int32_t>(std::min(std::floor(steps), most));
}

}  // namespace zu::toolkit
