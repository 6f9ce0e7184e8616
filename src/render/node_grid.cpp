#include "src/render/node_grid.h"

#include <limits>

#include "src/bundle/strings.h"
#include "src/render/sample_block.h"
#include "src/render/samplers.h"

namespace zu {

owned_grid make_node_grid(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny) {
  Tzu_mgrid2d_topology topology{box.x0, box.y0, (box.x1 - box.x0) / static_cast<double>(nx),
                                (box.y1 - box.y0) / static_cast<double>(ny), 0.0};
  owned_grid grid(zu_dbl_mgrid2d_create());
  if (!zu_mgrid2d_init(grid.get(), nx, ny, &topology)) grid.reset();
  return grid;
}

bool resample(const grid_render_context& context, data::grid_datasource& source,
              const Tzu_box_d2& box, std::wstring field_name, Tzu_mgrid2d* grid) {
  Tzu_stl_mngr* manager = context.params.stl_mngr;
  if (field_name.empty() && manager != nullptr)
    field_name = text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_prop_name_w(manager, a); });
  std::int64_t field = source.find_field(field_name);
  if (field == -1) return false;

  // Between the samples whatever the layer has, so that the window is wide enough too.
  grid_render_context between = context;
  between.params.interpolate = true;
  std::uint64_t nx = zu_mgrid2d_get_nx(grid), ny = zu_mgrid2d_get_ny(grid);
  grid_draw_job job{between, source, nullptr, nullptr, box, nx, ny};
  sample_space space;
  sample_block<double> samples;
  if (!prepare(job, space) || !samples.read_field(job, field, space.window)) return false;
  pixel_walk walk(job, space);
  if (!walk.ready()) return false;

  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  walk.visit(
      nx, ny,
      [&](std::uint64_t x, std::uint64_t y, double sx, double sy) {
        double value;
        zu_mgrid2d_set_dbl(grid, x, y, bilinear_value(samples, sx, sy, value) ? value : none);
      },
      [&](std::uint64_t x, std::uint64_t y) { zu_mgrid2d_set_dbl(grid, x, y, none); });
  return true;
}

}  // namespace zu
