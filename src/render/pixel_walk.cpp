#include "src/render/pixel_walk.h"

namespace zu {
namespace {

constexpr double lattice_step = 25.0;

/// Vertices at every 25 pixels, from one step before the DIB to its far edge, columns outermost.
owned<zu_pv_d2_destroy> lattice(std::uint64_t nx, std::uint64_t ny) {
  owned<zu_pv_d2_destroy> vertices(zu_pv_d2_create());
  double end_x = static_cast<double>(nx) + lattice_step;
  double end_y = static_cast<double>(ny) + lattice_step;
  for (double i = -lattice_step; i < end_x; i += lattice_step)
    for (double j = -lattice_step; j < end_y; j += lattice_step) {
      Tzu_vtx_d2 vertex;
      zu_vtx_d2_init_xy(&vertex, i, j);
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
  owned<zu_pv_d2_destroy> pixels = lattice(job.nx, job.ny);
  owned<zu_pv_d2_destroy> samples(zu_pv_d2_create());
  zu_pv_d2_assign(samples.get(), pixels.get());
  zu_pv_d2_apply_matrix3x3(samples.get(), &space.pixel_to_map);
  zu_rpj_fb_d2_apply_pv(reprojection.rpj, samples.get(), 0);
  zu_pv_d2_apply_matrix3x3(samples.get(), &space.map_to_sample);
  mesh_.reset(zu_trimesh_d2_create(samples.get(), pixels.get()));
}

}  // namespace zu
