#pragma once
// Reprojection both ways, with an affine step after it.

#include <cstddef>
#include <memory>
#include <string>

#include "platform/zuk_proj4_d2/coordinate_systems.h"
#include "zu/platform/zuk_prg.h"

namespace zu::platform {

class reprojector {
 public:
  /// False, and nothing to reproject, if there is no way between the two texts.
  bool init(const std::string& source, const std::string& target);
  bool is_needed() const { return way_ != nullptr && way_->pj != nullptr; }
  void use_affine(bool use) { affine_on_ = use; }
  void set_affine(const Tzu_matrix3x3& matrix);

  /// Transforms vertices in place; one without an image becomes infinite. False if none has one;
  /// no vertices at all are no failure.
  bool apply(Tzu_vtx_d2* vertices, std::size_t count, bool forward) const;
  /// The ordered box that holds the image of an ordered box; false if it has none.
  bool apply(Tzu_box_d2& box, bool forward) const;

 private:
  void project(Tzu_vtx_d2* vertices, std::size_t count, bool forward) const;
  bool project(Tzu_box_d2& box, bool forward) const;
  bool can_go(bool forward) const { return forward || !affine_on_ || affine_has_inverse_; }

  std::shared_ptr<const operation> way_;
  bool affine_on_ = false, affine_has_inverse_ = true;
  Tzu_matrix3x3 affine_{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  Tzu_matrix3x3 back_ = affine_;
};

}  // namespace zu::platform
