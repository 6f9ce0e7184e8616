#pragma once
// A field resampled to a grid of nodes over a job's box.

#include <string>

#include "src/bundle/owned.h"
#include "src/render/render_context.h"

namespace zu {

using owned_grid = owned<zu_mgrid2d_destroy>;

/// A grid of nx by ny nodes, where node (x, y) lies at the low corner of pixel (x, y) of a DIB of
/// that size. Empty if it could not be had.
owned_grid make_node_grid(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny);

/// Samples a field at all nodes of a grid over `box`, always between the samples; a node without a
/// value gets a quiet NaN. The field is `field_name`, or that of the layer's style manager if the
/// name is empty. False if there is no such field or it cannot be read.
bool resample(const grid_render_context& context, data::grid_datasource& source,
              const Tzu_box_d2& box, std::wstring field_name, Tzu_mgrid2d* grid);

}  // namespace zu
