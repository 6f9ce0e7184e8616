#pragma once
// The field that colours are made of.

#include <string>

#include "src/data/generic_datasource.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/labeled.h"

namespace zu::style {

namespace detail {

/// Names of a source's fields in their order; none if it does not open.
std::vector<std::wstring> field_names(const data::open_reference& source);

}  // namespace detail

/// The fields of a model's source, of which a person chooses the model's. `model` has `source`,
/// `field()` and `set_field(name)`.
template <class model>
class colorby_field : public toolkit::labeled_element<toolkit::dropdownex<std::wstring>> {
 public:
  explicit colorby_field(model& m) : labeled_element(10310), model_(m) {
    on_change = [this](const std::wstring& name) {
      if (name == model_.field()) return;
      model_.set_field(name);
      if (on_field) on_field();
    };
  }
  /// Asks the source for its fields anew.
  void reload() {
    clear();
    names_ = detail::field_names(model_.source);
    for (const std::wstring& name : names_) add(name, 0, name);
    show_current();
  }
  const std::vector<std::wstring>& names() const { return names_; }
  /// Shows which field is the model's now; none if the source has no such field.
  void show_current() { assign_value(model_.field()); }

  std::function<void()> on_field;  ///< a person has chosen another field

 private:
  model& model_;
  std::vector<std::wstring> names_;
};

}  // namespace zu::style
