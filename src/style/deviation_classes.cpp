#include "src/style/deviation_classes.h"

#include "src/style/range_classes.h"

namespace zu::style {

void set_deviation_classes(Tzu_rng_scale* scale, const deviation_params& params) {
  if (scale == nullptr) return;
  zu_rng_scale_set_rng_type(scale, zu_range_deviation);
  zu_rng_scale_set_round_digits(scale, params.digits);
  zu_rng_scale_set_deviation_coeff(scale, params.coefficient);
  if (params.count == 0) {
    zu_rng_scale_set_size(scale, 0);
    zu_rng_scale_set_min_value(scale, params.mean);
    zu_rng_scale_set_max_value(scale, params.mean);
  } else {
    double reach = params.deviation * params.coefficient;
    set_equal_intervals(scale, params.count, params.mean - reach, params.mean + reach);
  }
  round_boundaries(scale, params.digits);
  set_captions(scale);
}

}  // namespace zu::style
