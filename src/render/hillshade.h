#pragma once
// The shade of a field's relief, mixed into a filled DIB.

#include "src/render/render_context.h"

namespace zu {

/// Mixes the shade into the job's main DIB. A pixel on which the shade has no value becomes
/// transparent, and so do the first row and column of every DIB. False, and the DIB as it was
/// filled, if the layer wants no shade or it cannot be had.
bool apply_hillshade(const grid_draw_job& job);

/// Mixes shades, a node a pixel, into the colours of a DIB: `part` of the shade's low byte and the
/// rest of the colour. A pixel lies between the four nodes at and below it.
void mix_shade(Tzu_dib* dib, const Tzu_mgrid2d* shade, double part);

}  // namespace zu
