#pragma once
// Polylines as strokes of Cairo.

#include <vector>

#include "platform/zuk_drwc/cairo_owned.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

namespace zu::platform {

/// Where strokes go: user space is pixels of the page, y downwards, and the colour is set.
struct stroke_page {
  cairo_t* cairo;
  double per_mm;                    ///< pixels a millimetre
  double width, height;             ///< of the page in pixels
  bool thinned;                     ///< vertices a fraction of a pixel apart are not wanted
  Tzu_box_d2 shown;                 ///< the part of the page that will show
  std::vector<Tzu_box_d2>& labels;  ///< boxes of numbers on the page, in its pixels
};

/// Strokes lines given in millimetres; false if none came near the page. Solid lines of a
/// transparent colour are one stroke, so that it shows once where they cross. Numbers are drawn
/// where the style asks for them and the set has a level.
bool stroke(const stroke_page& page, const Tzu_ov_d2& lines, const Tzu_pln_style& style);

}  // namespace zu::platform
