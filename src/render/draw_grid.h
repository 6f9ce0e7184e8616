#pragma once
// From a layer's settings to pixels in the drawing context. Nothing outlives a call; whatever
// fails, the layer is not drawn, or drawn in part.

#include "src/render/render_context.h"

namespace zu {

/// Sets up a draw of `layer` and runs it. `table` holds the selection and may be null.
void draw_layer(Izu_render* render, Izu_layer* layer, const Tzu_table_data* table,
                const grid_render_params& params, bool selection_only);

/// Draws with a context whose reprojection, selection, render, drawing context and layer are set.
void draw_grid(grid_render_context& context, const grid_render_params& params, bool selection_only);

}  // namespace zu
