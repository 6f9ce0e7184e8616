#include "src/style/class_dialogs/method_pages.h"

#include <algorithm>
#include <cmath>

namespace zu::style::detail {
namespace {

constexpr std::int32_t least_digits = -10, most_digits = 10, digits_of_unknown = -2;
constexpr double starts[] = {1.0, 2.0, 5.0};

std::wstring digits_text(std::int32_t digits) {
  if (digits < 0) return L"0." + std::wstring(static_cast<std::size_t>(-digits), L'd');
  return std::wstring(static_cast<std::size_t>(digits) + 1, L'd');
}

double size_of(const Tzu_rng_scale* scale) {
  return static_cast<double>(zu_rng_scale_get_size(scale));
}

}  // namespace

rounding_input::rounding_input() : labeled_element(10435) {
  set_hint(15001);
  for (std::int32_t d = least_digits; d <= most_digits; ++d) add(digits_text(d), 0, d);
}
void rounding_input::assign_digits(std::int32_t digits) {
  bool offered = digits >= least_digits && digits <= most_digits;
  assign_value(offered ? digits : digits_of_unknown);
}

count_input::count_input() : labeled_element(10426) { set_range(0, most, 1); }
void count_input::assign_count(double count) {
  if (std::isfinite(count)) assign(static_cast<std::int32_t>(std::clamp<double>(count, 0, most)));
}

class_limits method_page::outer_limits(const Tzu_rng_scale* scale) const {
  if (zu_rng_scale_get_size(scale) == 0) return {field_.minimum, field_.maximum};
  return {zu_rng_scale_get_min_value(scale), zu_rng_scale_get_max_value(scale)};
}

equal_page::equal_page(const known_field& field) : method_page(field) {
  count_.validate = [this](std::int32_t count) {
    assign_step(minimum_.value(), maximum_.value(), count);
    return true;
  };
  step_.validate = [this](double step) {
    count_.assign_count(std::ceil(std::abs((maximum_.value() - minimum_.value()) / step)));
    return step != 0.0;
  };
  minimum_.validate = [this](double minimum) {
    assign_step(minimum, maximum_.value(), count_.value());
    return true;
  };
  maximum_.validate = [this](double maximum) {
    assign_step(minimum_.value(), maximum, count_.value());
    return true;
  };
  listen(count_, step_, minimum_, maximum_, digits_);
  root_.place(count_).place(step_).place(minimum_).place(maximum_).place(digits_);
  root_.set_column_size(0, label_width).set_column_stretch(1).set_row_stretch(5);
}

void equal_page::assign_step(double minimum, double maximum, double count) {
  step_.assign((maximum - minimum) / count);
}

void equal_page::load(const Tzu_rng_scale* scale) {
  class_limits limits = outer_limits(scale);
  count_.assign_count(size_of(scale));
  minimum_.assign(limits.minimum);
  maximum_.assign(limits.maximum);
  digits_.assign_digits(zu_rng_scale_get_round_digits(scale));
  assign_step(limits.minimum, limits.maximum, count_.value());
}

void equal_page::build(Tzu_rng_scale* scale) {
  set_equal_intervals(scale, {count_.count(), minimum_.value(), maximum_.value(), digits_.value()});
}

limits_page::limits_page(const known_field& field, builder build)
    : method_page(field), build_(std::move(build)) {
  listen(count_, minimum_, maximum_, digits_);
  root_.place(count_).place(minimum_).place(maximum_).place(digits_);
  root_.set_column_size(0, label_width).set_column_stretch(1).set_row_stretch(4);
}

void limits_page::load(const Tzu_rng_scale* scale) {
  class_limits limits = outer_limits(scale);
  count_.assign_count(size_of(scale));
  minimum_.assign(limits.minimum);
  maximum_.assign(limits.maximum);
  digits_.assign_digits(zu_rng_scale_get_round_digits(scale));
}

void limits_page::build(Tzu_rng_scale* scale) {
  build_(scale, count_.count(), {minimum_.value(), maximum_.value()}, digits_.value());
}

deviation_page::deviation_page(const known_field& field) : method_page(field) {
  coefficient_.add(10431, 0, 0.5).add(10432, 0, 1.0).add(10433, 0, 2.0).add(10434, 0, 3.0);
  listen(count_, coefficient_, digits_);
  root_.place(count_).place(coefficient_).place(digits_);
  root_.set_column_size(0, label_width).set_column_stretch(1).set_row_stretch(3);
}

void deviation_page::load(const Tzu_rng_scale* scale) {
  count_.assign_count(size_of(scale));
  loaded_coefficient_ = zu_rng_scale_get_deviation_coeff(scale);
  coefficient_.assign_value(loaded_coefficient_);
  digits_.assign_digits(zu_rng_scale_get_round_digits(scale));
}

void deviation_page::build(Tzu_rng_scale* scale) {
  double coefficient = coefficient_.current() < 0 ? loaded_coefficient_ : coefficient_.value();
  set_deviation_classes(
      scale, {count_.count(), field_.mean, field_.deviation, coefficient, digits_.value()});
}

logarithmic_page::logarithmic_page(const known_field& field) : method_page(field) {
  for (std::int32_t i = 0; i < 3; ++i)
    start_.add(std::to_wstring(static_cast<int>(starts[i])), 0, i);
  two_sided_.assign(false);
  two_sided_.set_hint(15002);
  auto changed = [this](auto) {
    show_count();
    tell();
  };
  start_.on_change = changed;
  two_sided_.on_state = changed;
  digits_.on_change = changed;
  root_.place(start_).skip().place(two_sided_).place(count_).place(digits_);
  root_.set_column_size(0, label_width).set_column_stretch(1).set_row_stretch(4);
}

logarithmic_params logarithmic_page::params() {
  return {start_.value(), digits_.value(), field_.minimum, field_.maximum,
          static_cast<std::uint8_t>(two_sided_.is_checked())};
}

void logarithmic_page::show_count() {
  count_.assign(static_cast<std::int32_t>(logarithmic_boundaries(params()).size()) - 1);
}

void logarithmic_page::load(const Tzu_rng_scale* scale) {
  digits_.assign_digits(zu_rng_scale_get_round_digits(scale));
  bool was_so = zu_rng_scale_get_rng_type(scale) == zu_range_logarithmic;
  two_sided_.assign(was_so && zu_rng_scale_get_min_value(scale) < 0.0);
  // The least boundary above 0 tells which one a scale of this method began with.
  std::int32_t start = 0;
  double least = 0.0, unit = std::pow(10.0, digits_.value());
  for (std::uint64_t i = 0; was_so && i < zu_rng_scale_get_size(scale) && !(least > 0.0); ++i)
    least = zu_rng_scale_get_max(scale, i);
  for (std::int32_t i = 0; i < 3; ++i)
    if (std::abs(least / unit - starts[i]) < 0.5) start = i;
  start_.assign_value(start);
  show_count();
}

void logarithmic_page::build(Tzu_rng_scale* scale) { set_logarithmic(scale, params()); }

}  // namespace zu::style::detail
