#pragma once
// How a point among the samples becomes a sample, and what lies outside is transparent.

#include "src/render/pixel_walk.h"

namespace zu {

/// A pixel that starts on the edge of a cell shows the cell above the edge. Far more than the
/// rounding of coordinates (some 1e-8 of a cell for centimetre cells at six million metres), far
/// less than can be seen: without it every third picture of a whole grid would lose its lowest row
/// or column.
inline constexpr double edge_tolerance = 1e-6;

/// The sample whose unit square holds the point: `color(index)` of it.
template <class color> class nearest {
 public:
  nearest(std::uint64_t nx, std::uint64_t ny, color of_index)
      : nx_(nx),
        width_(static_cast<double>(nx)),
        height_(static_cast<double>(ny)),
        of_index_(of_index) {}

  pixel operator()(double sx, double sy) const {
    sx += edge_tolerance, sy += edge_tolerance;
    // The same as comparing the floors, and false for NaN.
    if (!(sx >= 0.0 && sx < width_ && sy >= 0.0 && sy < height_)) return transparent_pixel;
    return of_index_(static_cast<std::uint64_t>(static_cast<std::int64_t>(sy)) * nx_ +
                     static_cast<std::uint64_t>(static_cast<std::int64_t>(sx)));
  }

 private:
  std::uint64_t nx_;
  double width_, height_;
  color of_index_;
};

/// The value between the middles of four samples. False for a sample without a value, and in the
/// outermost half of a cell.
template <class block>
__attribute__((always_inline)) inline bool bilinear_value(const block& samples, double sx,
                                                          double sy, double& value) {
  double last_x = static_cast<double>(samples.nx()) - 1.0;
  double last_y = static_cast<double>(samples.ny()) - 1.0;
  double ux = sx - 0.5, uy = sy - 0.5;
  if (!(ux >= 0.0 && ux < last_x && uy >= 0.0 && uy < last_y)) return false;
  auto ix = static_cast<std::uint64_t>(static_cast<std::int64_t>(ux));
  auto iy = static_cast<std::uint64_t>(static_cast<std::int64_t>(uy));
  double s00 = samples.at(ix, iy), s10 = samples.at(ix + 1, iy);
  double s01 = samples.at(ix, iy + 1), s11 = samples.at(ix + 1, iy + 1);
  if (!samples.valid(s00) || !samples.valid(s10) || !samples.valid(s01) || !samples.valid(s11))
    return false;
  double fx = ux - static_cast<double>(ix), fy = uy - static_cast<double>(iy);
  value = (1 - fx) * (1 - fy) * s00 + fx * (1 - fy) * s10 + (1 - fx) * fy * s01 + fx * fy * s11;
  return true;
}

/// `color(value)` of the value between the samples.
template <class block, class color> class bilinear {
 public:
  bilinear(const block& samples, color of_value) : samples_(samples), of_value_(of_value) {}

  pixel operator()(double sx, double sy) const {
    double value;
    return bilinear_value(samples_, sx, sy, value) ? of_value_(value) : transparent_pixel;
  }

 private:
  const block& samples_;
  color of_value_;
};

}  // namespace zu
