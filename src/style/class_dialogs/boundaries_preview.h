#pragma once
// Where the boundaries of classes lie in the distribution of a field.

#include <functional>
#include <vector>

#include "src/toolkit/drawn.h"
#include "zu/platform/zuk_stat.h"

namespace zu::style::detail {

class boundaries_preview : public toolkit::with_element {
 public:
  boundaries_preview();
  /// The histogram is not owned; null, or one without classes, leaves the boundaries alone.
  void assign(const Tzu_histogramm_data* histogram, std::vector<double> boundaries);
  handle element() override { return handle_of<canvas_impl>(canvas_); }

  std::function<void(std::vector<double>)> on_change;  ///< a person moved a boundary

 private:
  void draw(Tzu_drwc* page) const;

  toolkit::canvas canvas_{0, 30};
  const Tzu_histogramm_data* histogram_ = nullptr;
  std::vector<double> boundaries_;
};

}  // namespace zu::style::detail
