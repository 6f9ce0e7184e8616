#include "src/render/pixel_walk.h"

namespace zu {
namespace {

constexpr std::int64_t lattice_step = 25;

/// Vertices at every 25 pixels, from one step before the DIB to its far edge, columns outermost.
owned<zu_pv_d2_destroy> lattice(std::uint64_t nx, std::uint64_t ny) {
  owned<zu_pv_d2_destroy> vertices(zu_pv_d2_create());
  auto end_x = static_cast<std::int64_t>(nx) + lattice_step;
  auto end_y = static_cast<std::int64_t>(ny) + lattice_step;
  for (std::int64_t i = -lattice_step; i < end_x; i += lattice_step)
    for (std::int64_t j = -lattice_step; j < end_y; j += lattice_step) {
      Tzu_vtx_d2 vertex;
      zu_vtx_d2_init_xy(&vertex, static_cast<double>(i), static_cast<double>(j));
      zu_pv_d2_add_vtx(vertices.get(), &vertex);
    }
  return vertices;
}

}  // namespace

pixel_walk::pixel_walk(const grid_draw_job& job, const sample_space& space)
    : by_mesh_(job.context.reprojection.needed) {
  const rpj_binding& reprojection = job.context.reprojection;
  if (!by_mesh_) {
    zu_matrix3x3_mult(&pixel_to_sample_, &space.map_to_sample, &space.pixel_to_map);
    return;
  }
  pixels_ = lattice(job.nx, job.ny);
  samples_.reset(zu_pv_d2_create());
  zu_pv_d2_assign(samples_.get(), pixels_.get());
  zu_pv_d2_apply_matrix3x3(samples_.get(), &space.pixel_to_map);
  zu_rpj_fb_d2_apply_pv(reprojection.rpj, samples_.get(), 0);
  zu_pv_d2_apply_matrix3x3(samples_.get(), &space.map_to_sample);
  mesh_.reset(zu_trimesh_d2_create(samples_.get(), pixels_.get()));
}

}  // namespace zu
