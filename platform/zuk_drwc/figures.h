#pragma once
// The outlines of the figures that points are drawn with.

#include <cairo.h>

#include <cstdint>

namespace zu::platform {

/// Adds the outline of a `Tzu_figure` about the origin to the path, in a square of side `size`, y
/// downwards; nothing for another number. A hole runs against what is around it, so that the fill
/// is that of the winding rule. `on_pixels`: bars and frames are whole units thick.
void add_figure(cairo_t* cairo, std::int32_t figure, double size, bool on_pixels);

/// Whether all sides of a figure lie along the axes.
bool is_square_cut(std::int32_t figure);

}  // namespace zu::platform
