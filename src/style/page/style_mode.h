#pragma once
// Which of a manager's styles draws.

#include "src/style/style_traits.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/events.h"
#include "src/toolkit/labeled.h"

namespace zu::style::detail {

/// Shows nothing for a manager in a mode that is not offered.
template <class style_traits>
class style_mode : public toolkit::labeled_element<toolkit::dropdownex<Tzu_style_mode>> {
 public:
  style_mode() : labeled_element(10301) {
    add(10302, 0, zu_style_simple).add(10303, 0, zu_style_value).add(10304, 0, zu_style_range);
    if (style_traits::offers_rules) add(10305, 0, zu_style_rule);
    on_change = [this](Tzu_style_mode mode) {
      if (mngr_ == nullptr) return;
      zu_stl_mngr_set_mode(mngr_, mode);
      selected(current());
    };
    reload();
  }
  /// Not owned; null is none.
  void set(Tzu_stl_mngr* mngr) {
    mngr_ = mngr;
    reload();
  }
  /// Follows the manager's mode.
  void reload() {
    mngr_ != nullptr ? assign_value(static_cast<Tzu_style_mode>(zu_stl_mngr_get_mode(mngr_)))
                     : assign(-1);
  }

  event<void(std::int32_t)> selected;  ///< the index of the item

 private:
  Tzu_stl_mngr* mngr_ = nullptr;
};

}  // namespace zu::style::detail
