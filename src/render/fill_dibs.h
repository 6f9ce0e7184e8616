#pragma once
// Which fill a layer's settings and its source ask for.

#include "src/render/render_context.h"

namespace zu {

/// Fills both DIBs of a job, lays the shade into the main one and punches its transparent colour
/// out. False if nothing may be drawn.
bool fill_dibs(const grid_draw_job& job);

}  // namespace zu
