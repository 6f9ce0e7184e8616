#pragma once
// Where the boundaries of classes lie in the distribution of a field, to be looked at and dragged.

#include <functional>

#include "src/style/histogram/histogramm_viewer.h"

namespace zu::style::detail {

class boundaries_preview : public toolkit::with_element {
 public:
  boundaries_preview(const data::open_reference& source, const std::wstring& field,
                     Tzu_stat* stat) {
    viewer_.set_source(source, field);
    viewer_.set_stat(stat);
    viewer_.on_change = [this] {
      if (on_change) on_change(viewer_.scale());
    };
  }
  void assign(const Tzu_rng_scale* scale) { viewer_.assign(scale); }
  /// Whether the tools let a person split the range into equal classes.
  void offer_count(bool offered) { viewer_.offer_count(offered); }
  handle element() override { return viewer_.element(); }

  /// A person moved a boundary or made other classes: the scale as it is on show.
  std::function<void(const Tzu_rng_scale*)> on_change;

 private:
  element::detail::histogramm_viewer viewer_;
};

}  // namespace zu::style::detail
