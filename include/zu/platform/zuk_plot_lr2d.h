#pragma once
// Layers that plot numbers: the bars of a histogram, and upright lines. They have no source and no
// plug-in object; a scene of a dialog holds them. x is the plotted value, y goes from 0 to 1.

#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_stat.h"

// Types for `zu_lr2d_create`.
#define ZU_PLOT_HISTOGRAM_LR2D "zu_plot_histogram_lr2d_interface_3"
#define ZU_PLOT_LINE_LR2D "zu_plot_line_lr2d_interface_0"

/// The bars; copied. The layer's box becomes that of the histogram, unknown if it has no classes.
/// The tallest bar is 1 high. A bar has the fill of the simple style of the layer's manager
/// (polygons), or, in the mode of a range scale, the cell colour of the row that its middle falls
/// into; invisible rows leave bars light. A layer of another type is left alone.
ZU_API void zu_plot_histogram_lr2d_set_histogramm(Izu_layer* layer,
                                                  const Tzu_histogramm_data* histogram);
/// The places of the lines, drawn in the simple style of the layer's manager (lines); copied. A
/// layer of another type is left alone.
ZU_API void zu_plot_line_lr2d_set_places(Izu_layer* layer, const Tzu_dbls* places);
