#pragma once
// Which part of the grid a job reads, at how many samples, and how its pixels find them.

#include <cstdint>

#include "src/render/render_context.h"

namespace zu {

struct sample_window {
  std::int64_t origin[3];    ///< first node; the third is the slice
  std::uint64_t size[3];     ///< in nodes
  std::uint64_t samples[3];  ///< what is asked of the source
};

/// What a fill and a resampling begin with.
struct sample_space {
  sample_window window;
  Tzu_matrix3x3 pixel_to_map;   ///< pixel of the DIB to render coordinates
  Tzu_matrix3x3 map_to_sample;  ///< source coordinates to samples
};

/// False, and the fill ends, if the grid has no matrix, cannot be brought under the job's box, or
/// does not reach it.
bool prepare(const grid_draw_job& job, sample_space& space);

/// The level of detail: the window under the job's box, snapped to multiples of the node step of a
/// pixel, so that the samples stay on the same nodes while the view moves.
bool compute_window(const grid_draw_job& job, const std::int32_t (&grid_size)[3],
                    const Tzu_matrix3x3& map_to_grid, sample_window& window);

}  // namespace zu
