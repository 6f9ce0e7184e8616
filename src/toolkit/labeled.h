#pragma once
// A control with its label in the cell before it, and perhaps a unit of measure in the one behind.

#include "src/toolkit/labels.h"

namespace zu::toolkit {

/// A cell of a layout; -1 for none.
struct cell {
  int column = -1, row = -1;
};

/// Where a label and what it labels were laid: by it a dialog hides their row.
class with_place {
 public:
  cell label_place() const { return label_place_; }
  cell place() const { return place_; }

 protected:
  cell label_place_, place_;
};

namespace detail {

/// A `T` that takes two cells of a layout, one for its label.
template <class T> class labeled_element : public T, public with_place {
 public:
  template <class... args>
  explicit labeled_element(std::int32_t text, args&&... given)
      : T(std::forward<args>(given)...), label_(text) {}

  void set_enabled(bool enabled) override {
    T::set_enabled(enabled);
    label_.set_enabled(enabled);
  }
  toolkit::label& label() { return label_; }

  template <class layout> void lay(layout& into) {
    label_place_ = into.put(label_);
    place_ = into.put(static_cast<T&>(*this));
  }

 private:
  toolkit::label label_;
};

/// The same with a second label behind the control: three cells.
template <class T> class labelex_element : public labeled_element<T> {
 public:
  template <class... args>
  explicit labelex_element(std::int32_t text, std::int32_t unit, args&&... given)
      : labeled_element<T>(text, std::forward<args>(given)...), unit_(unit) {}

  void set_enabled(bool enabled) override {
    labeled_element<T>::set_enabled(enabled);
    unit_.set_enabled(enabled);
  }
  toolkit::label& unit() { return unit_; }

  template <class layout> void lay(layout& into) {
    labeled_element<T>::lay(into);
    into.put(unit_);
  }

 private:
  toolkit::label unit_;
};

}  // namespace detail

using detail::labeled_element;
using detail::labelex_element;

}  // namespace zu::toolkit
