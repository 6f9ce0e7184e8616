#pragma once
// Pages of the dialog of class boundaries, one for each method. A page shows what a scale and the
// statistics of a field hold, and builds a scale from what the person made of it.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "src/style/classes/builders.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/numbers.h"

namespace zu::style::detail {

/// What is known of the field; 0 where nothing is.
struct known_field {
  data::open_reference source;
  std::wstring field;
  double minimum = 0.0, maximum = 0.0, mean = 0.0, deviation = 0.0;
};

/// A choice of the power of ten that boundaries are multiples of, from -10 to 10.
class rounding_input : public toolkit::labeled_element<toolkit::dropdownex<std::int32_t>> {
 public:
  rounding_input();
  /// What is not offered shows as -2.
  void assign_digits(std::int32_t digits);
};

/// The number of classes; a number of a person's is 0 to 100,000.
class count_input : public toolkit::labeled_element<toolkit::integer_input> {
 public:
  static constexpr std::int32_t most = 100'000;
  count_input();
  std::uint32_t count() { return static_cast<std::uint32_t>(value()); }
  void assign_count(double count);  ///< cut to what a person may give; finite alone
};

/// Of the labels of all pages and of the choice above them, so that the inputs stand in one line.
inline constexpr std::uint32_t label_width = 20;

/// `load` shows the count, outer boundaries and digits of a scale; the boundaries of one that has
/// no classes are the field's.
class method_page : public toolkit::with_element {
 public:
  virtual void load(const Tzu_rng_scale* scale) = 0;
  virtual void build(Tzu_rng_scale* scale) = 0;

  std::function<void()> on_change;  ///< the person changed what would be built

 protected:
  explicit method_page(const known_field& field) : field_(field) {}
  class_limits outer_limits(const Tzu_rng_scale* scale) const;
  template <class... inputs> void listen(inputs&... all) {
    ((all.on_change = [this](auto) { tell(); }), ...);
  }
  void tell() {
    if (on_change) on_change();
  }

  const known_field& field_;
};

/// Count, step and limits are tied: what is changed moves the step, and the step moves the count.
class equal_page : public method_page {
 public:
  explicit equal_page(const known_field& field);
  void load(const Tzu_rng_scale* scale) override;
  void build(Tzu_rng_scale* scale) override;
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void assign_step(double minimum, double maximum, double count);

  count_input count_;
  toolkit::labeled_element<toolkit::floating_input> step_{10427}, minimum_{10428}, maximum_{10429};
  rounding_input digits_;
  toolkit::grid_layout<2, 6> root_;
};

/// Count and limits: of quantiles, natural breaks and geometrical classes.
class limits_page : public method_page {
 public:
  using builder =
      std::function<void(Tzu_rng_scale*, std::uint32_t count, class_limits, std::int32_t digits)>;
  limits_page(const known_field& field, builder build);
  void load(const Tzu_rng_scale* scale) override;
  void build(Tzu_rng_scale* scale) override;
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  builder build_;
  count_input count_;
  toolkit::labeled_element<toolkit::floating_input> minimum_{10428}, maximum_{10429};
  rounding_input digits_;
  toolkit::grid_layout<2, 5> root_;
};

class deviation_page : public method_page {
 public:
  explicit deviation_page(const known_field& field);
  void load(const Tzu_rng_scale* scale) override;
  void build(Tzu_rng_scale* scale) override;
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  count_input count_;
  toolkit::labeled_element<toolkit::dropdownex<double>> coefficient_{10430};
  double loaded_coefficient_ = 1.0;  // kept where it is none of those offered
  rounding_input digits_;
  toolkit::grid_layout<2, 4> root_;
};

class logarithmic_page : public method_page {
 public:
  explicit logarithmic_page(const known_field& field);
  void load(const Tzu_rng_scale* scale) override;
  void build(Tzu_rng_scale* scale) override;
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  logarithmic_params params();
  void show_count();

  toolkit::labeled_element<toolkit::dropdownex<std::int32_t>> start_{10436};
  toolkit::checkbox two_sided_{10437};
  toolkit::labeled_element<toolkit::integer_output> count_{10426};
  rounding_input digits_;
  toolkit::grid_layout<2, 5> root_;
};

}  // namespace zu::style::detail
