#pragma once
// Bitmaps put over Cairo's pixels.

#include <cstdint>

#include "platform/zuk_drwc/cairo_owned.h"
#include "zu/platform/zuk_dib.h"

namespace zu::platform {

/// Whole pixels, the row of lowest y first: columns x0 .. x1 - 1, rows y0 .. y1 - 1.
struct pixel_box {
  std::int64_t x0, y0, x1, y1;

  bool is_empty() const { return x0 >= x1 || y0 >= y1; }
};

/// What two boxes share; empty if nothing.
pixel_box common(const pixel_box& a, const pixel_box& b);

/// Puts a DIB, spread over `place`, over the part `shown` of a picture. The low left pixel of the
/// surface is the pixel (origin_x, origin_y) of the picture. A DIB of the size of `place` is copied
/// pixel by pixel, any other sampled at the nearest pixel.
void put_dib(cairo_surface_t* surface, std::int64_t origin_x, std::int64_t origin_y,
             const pixel_box& place, const pixel_box& shown, const Tzu_dib& dib,
             std::uint8_t alpha);

/// A picture in memory, transparent all over. Throws std::bad_alloc.
surface_ptr new_surface(std::int64_t nx, std::int64_t ny);
/// Premultiplied pixels, the top row first, alpha in the high byte and blue in the low one.
std::uint32_t* words_of(cairo_surface_t* surface);
std::int64_t stride_of(cairo_surface_t* surface);  ///< words a row

}  // namespace zu::platform
