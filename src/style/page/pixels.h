#pragma once
// Pictures that are made where they are shown: samples of styles and strips of colours.

#include <vector>

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_dib.h"
#include "zu/toolkit.h"

namespace zu::style::detail {

/// Gives a bitmap that `zu_dib_premultiply_alpha` has been through to a view; no call for one
/// without pixels.
void visit_pixels(Tzu_dib* dib, bitmap_visitor visitor);

/// Gives a strip of columns of equal width, as opaque colours from left to right.
void visit_strip(const std::vector<Tzu_color>& colors, std::uint32_t width, std::uint32_t height,
                 bitmap_visitor visitor);

}  // namespace zu::style::detail
