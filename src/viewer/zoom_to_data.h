#pragma once
// Zooming to a box that comes from data.

#include "zu/platform/zuk_viewer2d.h"

namespace zu {

/// The box, with 10 mm of the window to either hand of its middle where an axis is shorter than
/// 10 mm, so that nothing collapses to a point.
Tzu_box_d2 of_least_extent(Tzu_viewer2d* viewer, Tzu_box_d2 box);
/// Shows such a box with a margin. Nothing without a viewer.
void zoom_to_data(Tzu_viewer2d* viewer, const Tzu_box_d2& box);

}  // namespace zu
