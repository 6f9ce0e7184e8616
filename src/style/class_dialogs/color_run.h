#pragma once
// The colours of a range scale that is given another number of classes.

#include <vector>

#include "src/bundle/owned.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style::detail {

/// The drawn styles of all rows, from the lower tail to the upper one, as they were at first.
class color_run {
 public:
  explicit color_run(Tzu_rng_scale* scale);

  /// Gives a scale that has more or fewer classes now the same run, from its first row to its last:
  /// of the array or palette of the person's that the colours were a run of, else of the colours
  /// themselves. All else of a style comes from the row that stood at the same share of the scale.
  /// A scale that had no classes and no colours gets those of a scale that data have filled.
  void spread_over(Tzu_rng_scale* scale) const;

 private:
  std::vector<Tzu_color> colors() const;

  std::vector<owned<zu_stl_prm_destroy>> rows_;
};

}  // namespace zu::style::detail
