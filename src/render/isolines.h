#pragma once
// Lines of equal value above the raster, traced on a grid of a node per five pixels each way, so
// that they cost what the screen costs.

#include "src/render/render_context.h"

namespace zu {

/// Lines of one tile, whose DIB has nx by ny pixels. Every failure ends the pass, with what was
/// drawn so far.
void draw_isoline_pass(const grid_render_context& context, const Tzu_box_d2& box, std::uint64_t nx,
                       std::uint64_t ny, data::grid_datasource& source);

}  // namespace zu
