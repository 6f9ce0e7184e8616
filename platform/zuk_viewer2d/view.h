#pragma once
// What a window shows of a scene: the middle, and how many units of the scene a millimetre is.

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

struct view {
  double cx = 0.5, cy = 0.5;
  double ux = 0, uy = 0;  ///< units a millimetre; 0 until a box is fitted

  bool equals(const view& other) const;
};

/// A window in pixels and millimetres.
struct window_size {
  double nx = 0, ny = 0;      ///< pixels
  double dots = 96.0 / 25.4;  ///< pixels a millimetre

  bool has_area() const { return nx > 0 && ny > 0; }
  double width() const { return nx / dots; }
  double height() const { return ny / dots; }
};

/// The view of all of a box: with one scale for both axes the box is widened about its middle.
view fitted(const Tzu_box_d2& box, const window_size& window, bool anisotropic);
Tzu_box_d2 box_of(const view& v, const window_size& window);

}  // namespace zu::platform
