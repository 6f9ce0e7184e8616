#pragma once
// What is drawn from a grid besides its colours: lines of equal value and the shade of its relief.
// A layer's styles of both are off, and these draw nothing, until they can be switched on.

#include "src/render/render_context.h"

namespace zu {

/// Lines above the raster of one tile, whose DIB has nx by ny pixels.
void draw_isoline_pass(const grid_render_context& context, const Tzu_box_d2& box, std::uint64_t nx,
                       std::uint64_t ny, data::grid_datasource& source);

/// The shade laid into a filled main DIB.
bool apply_hillshade(const grid_draw_job& job);

}  // namespace zu
