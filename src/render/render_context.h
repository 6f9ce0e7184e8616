#pragma once
// The state of one draw, and of one tile of it.

#include <cstdint>

#include "src/data/grid_datasource.h"
#include "src/render/grid_render_params.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu {

struct rpj_binding {
  Tzu_rpj_fb_d2* rpj = nullptr;  ///< layer to render
  bool needed = false;
};

struct grid_render_context {
  grid_render_params params;
  rpj_binding reprojection;
  const Tzu_table_data* selection = nullptr;
  Izu_render* render = nullptr;
  Tzu_drwc* drwc = nullptr;
  Izu_layer* layer = nullptr;
};

/// One fill of a pair of DIBs of the same size.
struct grid_draw_job {
  const grid_render_context& context;
  data::grid_datasource& source;
  Tzu_dib* main;       ///< may be null
  Tzu_dib* selection;  ///< may be null
  Tzu_box_d2 box;      ///< of the tile, in render coordinates
  std::uint64_t nx, ny;
};

}  // namespace zu
