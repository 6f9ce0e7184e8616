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

/// The value between the middles of four samples: `color(value)`. One sample without a value, and
/// the outermost half of a cell, are transparent.
template <class block, class color> class bilinear {
 public:
  bilinear(const block& samples, color of_value)
      : samples_(samples),
        last_x_(static_cast<double>(samples.nx()) - 1.0),
        last_y_(static_cast<double>(samples.ny()) - 1.0),
        of_value_(of_value) {}

  pixel operator()(double sx, double sy) const {
    double ux = sx - 0.5, uy = sy - 0.5;
    if (!(ux >= 0.0 && ux < last_x_ && uy >= 0.0 && uy < last_y_)) return transparent_pixel;
    auto ix = static_cast<std::int64_t>(ux), iy = static_cast<std::int64_t>(uy);
    std::uint64_t low =
        static_cast<std::uint64_t>(iy) * samples_.nx() + static_cast<std::uint64_t>(ix);
    std::uint64_t high = low + samples_.nx();
    double s00 = samples_.at(low), s10 = samples_.at(low + 1);
    double s01 = samples_.at(high), s11 = samples_.at(high + 1);
    if (!samples_.valid(s00) || !samples_.valid(s10) || !samples_.valid(s01) ||
        !samples_.valid(s11))
      return transparent_pixel;
    double fx = ux - static_cast<double>(ix), fy = uy - static_cast<double>(iy);
    return of_value_((1 - fx) * (1 - fy) * s00 + fx * (1 - fy) * s10 + (1 - fx) * fy * s01 +
                     fx * fy * s11);
  }

 private:
  const block& samples_;
  double last_x_, last_y_;
  color of_value_;
};

}  // namespace zu
