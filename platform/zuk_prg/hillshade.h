#pragma once
// How a grid is lit.

#include "zu/platform/zuk_prg.h"

struct Tzu_hillshade_params {
  double z_factor = 1.0;
  double altitude = 45.0, azimuth = 315.0;  // of the sun, degrees
  bool multidirectional = false;
};

namespace zu::platform {

/// As `zu_mgrid2d_hillshade`, for a grid that has nodes; `out` has the same size and topology.
void shade_grid(const Tzu_mgrid2d& grid, const Tzu_hillshade_params& params, Tzu_mgrid2d& out);

}  // namespace zu::platform
