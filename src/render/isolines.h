#pragma once
// Lines of equal value above the raster, traced on a grid of a node per five pixels each way, so
// that they cost what the screen costs.

#include <future>

#include "src/bundle/owned.h"
#include "src/render/node_grid.h"
#include "src/render/render_context.h"

namespace zu {

/// Lines of one tile, whose DIB has nx by ny pixels. Every failure ends the pass, with what was
/// drawn so far.
class isoline_pass {
 public:
  /// Reads the nodes and goes on to trace beside the caller, who may fill the tile meanwhile.
  isoline_pass(const grid_render_context& context, const Tzu_box_d2& box, std::uint64_t nx,
               std::uint64_t ny, data::grid_datasource& source);
  /// Waits for the lines, if there are any, and draws them.
  void draw();

 private:
  const grid_render_context& context_;
  owned_grid grid_;
  owned<zu_dbls_destroy> levels_{zu_dbls_create()};
  owned<zu_bits_destroy> bold_{zu_bits_create()};  // of each level
  owned<zu_cv_d2_destroy> lines_{zu_cv_d2_create()};
  std::future<bool> traced_;  // last: it ends before what it works on
};

}  // namespace zu
