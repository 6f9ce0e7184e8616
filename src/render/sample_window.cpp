#include "src/render/sample_window.h"

#include <algorithm>
#include <cmath>

namespace zu {
namespace {

struct side {
  double origin, size, samples;
};

/// One axis: `low`, `high` of the box in nodes. False if the window is empty.
bool clamp_side(double low, double high, double step, double pad, std::int32_t nodes, side& out) {
  double start = std::floor(std::floor(low / step) * step) - pad;
  double end = std::ceil(std::ceil(high / step) * step) + pad;
  double whole = end - start;
  double first = std::max(0.0, start);
  double last = std::min(end, static_cast<double>(nodes) - 1.0);
  if (!(first <= last) || !(whole > 0.0)) return false;
  // In proportion to what the clamping left: the sampling step is the same at the grid's edge.
  double samples = std::ceil(whole / step) * (last - first) / whole + 1.0;
  out = {first, last - first + 1.0, std::trunc(samples)};
  return true;
}

}  // namespace

bool compute_window(const grid_draw_job& job, const std::int32_t (&grid_size)[3],
                    const Tzu_matrix3x3& map_to_grid, sample_window& window) {
  Tzu_box_d2 box = job.box;
  const rpj_binding& reprojection = job.context.reprojection;
  if (reprojection.needed && !zu_rpj_fb_d2_apply_box_approx(reprojection.rpj, &box, 0))
    return false;
  // In source coordinates, and then in nodes: how much of the grid lies under a pixel.
  double area = (box.x1 - box.x0) * (box.y1 - box.y0) / static_cast<double>(job.nx * job.ny);
  double step =
      std::sqrt(std::abs(zu_matrix3x3_determinant(&map_to_grid))) * std::sqrt(std::abs(area));
  if (!std::isfinite(step)) return false;
  step = std::max(1.0, step);
  zu_box_d2_apply_matrix3x3(&box, &map_to_grid);
  double pad = job.context.params.interpolate ? 1.0 : 0.0;

  side x, y;
  if (!clamp_side(box.x0, box.x1, step, pad, grid_size[0], x) ||
      !clamp_side(box.y0, box.y1, step, pad, grid_size[1], y))
    return false;
  window = {{static_cast<std::int64_t>(x.origin), static_cast<std::int64_t>(y.origin),
             job.context.params.slice_index},
            {static_cast<std::uint64_t>(x.size), static_cast<std::uint64_t>(y.size), 1},
            {static_cast<std::uint64_t>(x.samples), static_cast<std::uint64_t>(y.samples), 1}};
  return true;
}

bool prepare(const grid_draw_job& job, sample_space& space) {
  std::int32_t grid_size[3];
  Tzu_matrix3x3 map_to_grid;
  if (!job.source.sizes(grid_size) || !job.source.matrix(map_to_grid) ||
      !zu_matrix3x3_invert_inplace(&map_to_grid))
    return false;
  // From here on a node lies in the middle of its unit square, and floor finds the nearest.
  map_to_grid.m[0][2] += 0.5;
  map_to_grid.m[1][2] += 0.5;
  sample_window& window = space.window;
  if (!compute_window(job, grid_size, map_to_grid, window)) return false;

  Tzu_box_d2 pixels, nodes, samples;
  zu_box_d2_init_xy(&pixels, 0.0, 0.0, static_cast<double>(job.nx), static_cast<double>(job.ny));
  zu_matrix3x3_init_box2box(&space.pixel_to_map, &pixels, &job.box);
  auto x = static_cast<double>(window.origin[0]), y = static_cast<double>(window.origin[1]);
  zu_box_d2_init_xy(&nodes, x, y, x + static_cast<double>(window.size[0]),
                    y + static_cast<double>(window.size[1]));
  zu_box_d2_init_xy(&samples, 0.0, 0.0, static_cast<double>(window.samples[0]),
                    static_cast<double>(window.samples[1]));
  Tzu_matrix3x3 grid_to_sample;
  zu_matrix3x3_init_box2box(&grid_to_sample, &nodes, &samples);
  zu_matrix3x3_mult(&space.map_to_sample, &grid_to_sample, &map_to_grid);
  return true;
}

}  // namespace zu
