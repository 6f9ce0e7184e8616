#pragma once
// Numbers that a person types or draws, and those that they only read.

#include <cmath>
#include <functional>
#include <limits>

#include "src/toolkit/layouts.h"

namespace zu::toolkit {
namespace detail {

/// `set_value` is a candidate, which `validate` may refuse; `apply` is its acceptance.
template <class T, class Impl>
class numeric_input : public mixed<Impl, with_hint, with_enabled, with_read_only, with_width> {
 public:
  using value_type = T;

  void set_minimum(T minimum) { set_range(minimum, maximum_, step_); }
  void set_maximum(T maximum) { set_range(minimum_, maximum, step_); }
  void set_step(T step) { set_range(minimum_, maximum_, step); }
  void set_range(T minimum, T maximum) { set_range(minimum, maximum, step_); }
  void set_range(T minimum, T maximum, T step) {
    bool changed = this->replace(minimum_, minimum);
    changed = this->replace(maximum_, maximum) || changed;
    changed = this->replace(step_, step) || changed;
    if (changed) this->tell_list();
  }
  void set_decimals(std::uint32_t decimals) {
    if (this->replace(decimals_, decimals)) this->redraw();
  }
  void assign(T value) {
    if (this->replace(value_, value)) this->tell_value(value);
  }

  T minimum() override { return minimum_; }
  T maximum() override { return maximum_; }
  T step() override { return step_; }
  std::uint32_t decimals() override { return decimals_; }
  T value() override { return value_; }
  bool set_value(T value) override {
    T former = std::exchange(value_, value);
    if (!validate || validate(value)) return true;
    value_ = former;
    return false;
  }
  void apply() override {
    if (on_change) on_change(value_);
  }

  std::function<bool(T)> validate;
  std::function<void(T)> on_change;

 private:
  static constexpr T limit = std::numeric_limits<T>::max();
  T value_ = 0, step_ = 1, minimum_ = -limit, maximum_ = limit;
  std::uint32_t decimals_ = 0;
};

template <class T, class Impl>
class numeric_output : public mixed<Impl, with_hint, with_enabled, with_width> {
 public:
  void assign(T value) {
    if (this->replace(value_, value)) this->tell_value(value);
  }
  T value() override { return value_; }

 private:
  T value_ = 0;
};

}  // namespace detail

using integer_input = detail::numeric_input<std::int32_t, integer_input_impl>;
using floating_input = detail::numeric_input<double, floating_input_impl>;
using integer_output = detail::numeric_output<std::int32_t, integer_output_impl>;

class floating_output : public detail::numeric_output<double, floating_output_impl> {
 public:
  std::uint32_t decimals() override { return decimals_; }
  void set_decimals(std::uint32_t decimals) {
    if (replace(decimals_, decimals)) redraw();
  }

 private:
  std::uint32_t decimals_ = 0;
};

/// Whole positions from 0 to a maximum.
class slider : public mixed<slider_impl, with_enabled> {
 public:
  void set_maximum(std::int32_t maximum) {
    if (replace(maximum_, maximum)) tell_list();
  }
  /// Positions for a key, between marks, for a page key.
  void set_steps(std::int32_t step, std::int32_t tick, std::int32_t page);
  void assign(std::int32_t value) {
    if (replace(value_, value)) tell_value(value);
  }

  std::int32_t value() override { return value_; }
  std::int32_t maximum() override { return maximum_; }
  std::int32_t step() override { return step_; }
  std::int32_t tick() override { return tick_; }
  std::int32_t page() override { return page_; }
  void set_value(std::int32_t value) override {
    value_ = value;
    if (on_move) on_move(value);
  }
  void apply() override {
    if (on_apply) on_apply(value_);
  }

  std::function<void(std::int32_t)> on_move, on_apply;

 private:
  std::int32_t value_ = 0, maximum_ = 100, step_ = 1, tick_ = 10, page_ = 10;
};

namespace detail {

/// Whole steps that fit into a length, not one less for a step that is no binary fraction.
std::int32_t whole_steps(double length, double step);

/// A number and a slider that move each other. The number is the master: the slider stands at the
/// last whole step below it.
template <class I> class slider_input : public with_element {
 public:
  using value_type = typename I::value_type;

  slider_input() {
    layout_.place(input_).place(slider_).set_column_stretch(1);
    input_.validate = [this](value_type v) {
      bool accepted = !validate || validate(v);
      if (accepted) slider_.assign(position(v));
      return accepted;
    };
    input_.on_change = [this](value_type v) {
      if (on_change) on_change(v);
    };
    slider_.on_move = [this](std::int32_t p) { moved(p); };
    slider_.on_apply = [this](std::int32_t) { input_.apply(); };
  }

  /// Sets both; as a candidate of a person's, it may be refused.
  bool set_value(value_type value) {
    bool accepted = input_.set_value(value);
    if (accepted) input_.redraw();
    return accepted;
  }
  void assign(value_type value) {
    input_.assign(value);
    slider_.assign(position(value));
  }
  value_type value() { return input_.value(); }
  void set_range(value_type minimum, value_type maximum, value_type step) {
    input_.set_range(minimum, maximum, step);
    slider_.set_maximum(whole_steps(static_cast<double>(maximum) - static_cast<double>(minimum),
                                    static_cast<double>(step)));
    slider_.assign(position(input_.value()));
  }
  virtual void set_enabled(bool enabled) {
    input_.set_enabled(enabled);
    slider_.set_enabled(enabled);
  }
  I& input() { return input_; }
  toolkit::slider& slider() { return slider_; }
  handle element() override { return handle_of<grid_layout_impl>(layout_); }

  std::function<bool(value_type)> validate;
  std::function<void(value_type)> on_change;

 private:
  std::int32_t position(value_type value) {
    double from_minimum = static_cast<double>(value) - static_cast<double>(input_.minimum());
    return std::min(whole_steps(from_minimum, static_cast<double>(input_.step())),
                    slider_.maximum());
  }
  void moved(std::int32_t to) {
    auto value = static_cast<value_type>(input_.minimum() + to * input_.step());
    if (!set_value(value)) {
      slider_.assign(position(input_.value()));
      slider_.redraw();
    }
  }

  I input_;
  toolkit::slider slider_;
  grid_layout<2, 1> layout_;
};

}  // namespace detail

using detail::slider_input;

/// A slider with a number, labelled "Value" unless told otherwise.
template <class I> class labeled_slider : public labeled_element<slider_input<I>> {
 public:
  explicit labeled_slider(std::int32_t text = 55) : labeled_element<slider_input<I>>(text) {}
};

}  // namespace zu::toolkit
