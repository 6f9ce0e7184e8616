#pragma once
// Visits every pixel of a DIB, or node of a grid in its place, in rows and finds the sample under
// it: by one matrix, or, where a reprojection is in force, by a triangle mesh with a vertex every
// 25 pixels.

#include "src/bundle/owned.h"
#include "src/render/row_bands.h"
#include "src/render/sample_window.h"

namespace zu {

/// Four bytes of a DIB pixel.
using pixel = Tzu_color;
inline constexpr pixel transparent_pixel{0, 0, 0, 255};

class pixel_walk {
 public:
  pixel_walk(const grid_draw_job& job, const sample_space& space);
  /// False if a mesh is needed and could not be had.
  bool ready() const { return !by_mesh_ || mesh_; }

  /// Stores `shade(sx, sy)`, a pixel for a point among the samples, in every pixel. Rows are shaded
  /// side by side.
  template <class shader> void paint(Tzu_dib* dib, const shader& shade) const {
    auto store = [dib](std::uint64_t x, std::uint64_t y, pixel p) {
      zu_dib_set_rgba(dib, x, y, p.r, p.g, p.b, p.a);
    };
    visit(
        zu_dib_get_nx(dib), zu_dib_get_ny(dib),
        [&](std::uint64_t x, std::uint64_t y, double sx, double sy) { store(x, y, shade(sx, sy)); },
        [&](std::uint64_t x, std::uint64_t y) { store(x, y, transparent_pixel); });
  }

  /// Calls `at(x, y, sx, sy)` with the point among the samples of every pixel of nx by ny, and
  /// `beside(x, y)` where a mesh covers none. Pixels are addressed by their low corners. Those of
  /// different rows are visited side by side.
  template <class visitor, class without>
  void visit(std::uint64_t nx, std::uint64_t ny, const visitor& at, const without& beside) const {
    in_row_bands(ny, nx, [&](std::uint64_t from, std::uint64_t to) {
      if (by_mesh_)
        visit_mesh(nx, from, to, at, beside);
      else
        visit_direct(nx, from, to, at);
    });
  }

 private:
  template <class visitor>
  void visit_direct(std::uint64_t nx, std::uint64_t from, std::uint64_t to,
                    const visitor& at) const {
    const Tzu_matrix3x3 matrix = pixel_to_sample_;
    for (std::uint64_t y = from; y < to; ++y)
      for (std::uint64_t x = 0; x < nx; ++x) {
        auto sx = static_cast<double>(x), sy = static_cast<double>(y);
        zu_xy_apply_matrix3x3(&sx, &sy, &matrix);
        at(x, y, sx, sy);
      }
  }
  /// A mesh knows the row it is in, so that each band has one of its own.
  template <class visitor, class without>
  void visit_mesh(std::uint64_t nx, std::uint64_t from, std::uint64_t to, const visitor& at,
                  const without& beside) const {
    owned_mesh own;
    if (from > 0) own.reset(zu_trimesh_d2_create(samples_.get(), pixels_.get()));
    Tzu_trimesh_d2* mesh = from > 0 ? own.get() : mesh_.get();
    for (std::uint64_t y = from; y < to; ++y) {
      zu_trimesh_d2_init(mesh, 0.0, -static_cast<double>(y));
      for (std::uint64_t x = 0; x < nx; ++x) {
        double sx = 0.0, sy = 0.0;
        if (mesh != nullptr && zu_trimesh_d2_scan(mesh, &sx, &sy))
          at(x, y, sx, sy);
        else
          beside(x, y);
      }
    }
  }

  using owned_mesh = owned<zu_trimesh_d2_destroy>;

  bool by_mesh_;
  Tzu_matrix3x3 pixel_to_sample_;
  owned<zu_pv_d2_destroy> pixels_, samples_;  // the mesh's vertices
  owned_mesh mesh_;
};

}  // namespace zu
