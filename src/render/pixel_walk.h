#pragma once
// Visits every pixel of a DIB in rows and finds the sample under it: by one matrix, or, where a
// reprojection is in force, by a triangle mesh with a vertex every 25 pixels.

#include "src/bundle/owned.h"
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

  /// Stores `shade(sx, sy)`, a pixel for a point among the samples, in every pixel. Pixels are
  /// addressed by their low corners.
  template <class shader> void paint(Tzu_dib* dib, const shader& shade) const {
    if (by_mesh_)
      paint_mesh(dib, shade);
    else
      paint_direct(dib, shade);
  }

 private:
  template <class shader> void paint_direct(Tzu_dib* dib, const shader& shade) const {
    const Tzu_matrix3x3 matrix = pixel_to_sample_;
    std::uint64_t nx = zu_dib_get_nx(dib), ny = zu_dib_get_ny(dib);
    for (std::uint64_t y = 0; y < ny; ++y)
      for (std::uint64_t x = 0; x < nx; ++x) {
        auto sx = static_cast<double>(x), sy = static_cast<double>(y);
        zu_xy_apply_matrix3x3(&sx, &sy, &matrix);
        pixel p = shade(sx, sy);
        zu_dib_set_rgba(dib, x, y, p.r, p.g, p.b, p.a);
      }
  }
  template <class shader> void paint_mesh(Tzu_dib* dib, const shader& shade) const {
    std::uint64_t nx = zu_dib_get_nx(dib), ny = zu_dib_get_ny(dib);
    for (std::uint64_t y = 0; y < ny; ++y) {
      zu_trimesh_d2_init(mesh_.get(), 0.0, -static_cast<double>(y));
      for (std::uint64_t x = 0; x < nx; ++x) {
        double sx = 0.0, sy = 0.0;
        pixel p = transparent_pixel;
        if (zu_trimesh_d2_scan(mesh_.get(), &sx, &sy)) p = shade(sx, sy);
        zu_dib_set_rgba(dib, x, y, p.r, p.g, p.b, p.a);
      }
    }
  }

  bool by_mesh_;
  Tzu_matrix3x3 pixel_to_sample_;
  owned<zu_trimesh_d2_destroy> mesh_;
};

}  // namespace zu
