#pragma once
// The curve of one band of a profile, as polylines: all of it, and the selected pieces of it.

#include "src/bundle/owned.h"
#include "src/data/nodata_test.h"
#include "zu/platform/zuk_prg.h"

namespace zu {

class profile_curve {
 public:
  /// Samples stand at x = origin, origin + step, …
  profile_curve(double origin, double step, data::nodata_test nodata);

  /// The next sample. One without a value breaks the curve; a selected run stays open over it, and
  /// otherwise begins and ends half a step outside its samples, on the chord.
  void add(double v, bool selected);
  void apply(const Tzu_matrix3x3& matrix);
  Tzu_ov_d2* unselected() const { return unselected_.get(); }
  Tzu_ov_d2* selected() const { return selected_.get(); }

 private:
  void add_selected(double v, double x, bool valid, bool selected);

  owned<zu_ov_d2_destroy> unselected_, selected_;
  Tzu_pv_d2 *open_unselected_ = nullptr, *open_selected_ = nullptr;  // null between runs
  double origin_, step_;
  data::nodata_test nodata_;
  std::uint64_t index_ = 0;  // of the next sample
  double previous_;          // before the first: NoData
};

}  // namespace zu
