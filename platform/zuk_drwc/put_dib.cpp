#include "platform/zuk_drwc/put_dib.h"

#include <algorithm>
#include <new>

namespace zu::platform {
namespace {

/// Both 16-bit halves of x / 255, rounded, for halves up to 255 * 255.
inline std::uint32_t over_255(std::uint32_t x) {
  x += 0x00800080u;
  return (x + (x >> 8 & 0x00FF00FFu)) >> 8 & 0x00FF00FFu;
}

/// One DIB pixel over one pixel of the picture (premultiplied, alpha in the high byte, blue in the
/// low one). Two channels at a time and without jumps, so that rows become vector code.
inline std::uint32_t over(std::uint32_t below, std::uint32_t dib_word, std::uint32_t alpha) {
  std::uint32_t opacity = over_255((255 - (dib_word >> 24)) * alpha), rest = 255 - opacity;
  std::uint32_t blue_red = (dib_word >> 16 & 255) | (dib_word & 255) << 16;
  std::uint32_t green_full = (dib_word >> 8 & 255) | 255u << 16;
  // What is below is premultiplied already; its own opacity only thins out.
  return over_255(blue_red * opacity + (below & 0x00FF00FFu) * rest) |
         over_255(green_full * opacity + (below >> 8 & 0x00FF00FFu) * rest) << 8;
}

/// Words of a row over words of the picture. Maps are opaque or clear for long stretches, which are
/// told by eight words at once; the inner loops have a fixed length for the compiler's sake.
void put_row(std::uint32_t* __restrict to, const std::uint32_t* __restrict from, std::int64_t count,
             std::uint32_t alpha) {
  constexpr std::int64_t stretch = 8;
  std::int64_t x = 0;
  for (; x + stretch <= count; x += stretch) {
    std::uint32_t any = 0, all = 0xFFFFFFFFu;
    for (int k = 0; k < stretch; ++k) any |= from[x + k], all &= from[x + k];
    if (all >> 24 == 255) continue;
    if (any >> 24 == 0 && alpha == 255) {
      for (int k = 0; k < stretch; ++k) {
        std::uint32_t word = from[x + k];
        to[x + k] = 0xFF000000u | (word & 255) << 16 | (word & 0xFF00u) | (word >> 16 & 255);
      }
    } else {
      for (int k = 0; k < stretch; ++k) to[x + k] = over(to[x + k], from[x + k], alpha);
    }
  }
  for (; x < count; ++x) to[x] = over(to[x], from[x], alpha);
}

/// The source index of each of `count` pixels: its own if the sizes agree, else the nearest.
std::uint64_t nearest_index(std::uint64_t i, std::uint64_t count, std::uint64_t source) {
  if (source == count) return i;
  auto at = static_cast<std::uint64_t>((static_cast<double>(i) + 0.5) *
                                       static_cast<double>(source) / static_cast<double>(count));
  return std::min(at, source - 1);
}

}  // namespace

pixel_box common(const pixel_box& a, const pixel_box& b) {
  return {std::max(a.x0, b.x0), std::max(a.y0, b.y0), std::min(a.x1, b.x1), std::min(a.y1, b.y1)};
}

void put_dib(cairo_surface_t* surface, std::int64_t origin_x, std::int64_t origin_y,
             const pixel_box& place, const pixel_box& shown, const Tzu_dib& dib,
             std::uint8_t alpha) {
  cairo_surface_flush(surface);
  std::int64_t nx = cairo_image_surface_get_width(surface);
  std::int64_t ny = cairo_image_surface_get_height(surface);
  pixel_box drawn =
      common(common(place, shown), {origin_x, origin_y, origin_x + nx, origin_y + ny});
  auto width = static_cast<std::uint64_t>(place.x1 - place.x0);
  auto height = static_cast<std::uint64_t>(place.y1 - place.y0);
  for (std::int64_t y = drawn.y0; y < drawn.y1; ++y) {
    std::uint32_t* row =
        words_of(surface) + (origin_y + ny - 1 - y) * stride_of(surface) - origin_x;
    const std::uint32_t* from =
        dib.pixels +
        nearest_index(static_cast<std::uint64_t>(y - place.y0), height, dib.ny) * dib.nx;
    if (width == dib.nx) {
      if (drawn.x0 < drawn.x1)
        put_row(row + drawn.x0, from + (drawn.x0 - place.x0), drawn.x1 - drawn.x0, alpha);
    } else {
      for (std::int64_t x = drawn.x0; x < drawn.x1; ++x) {
        auto i = static_cast<std::uint64_t>(x - place.x0);
        row[x] = over(row[x], from[nearest_index(i, width, dib.nx)], alpha);
      }
    }
  }
  cairo_surface_mark_dirty(surface);
}

surface_ptr new_surface(std::int64_t nx, std::int64_t ny) {
  surface_ptr made(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(nx), static_cast<int>(ny)));
  if (cairo_surface_status(made.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  return made;
}

std::uint32_t* words_of(cairo_surface_t* surface) {
  return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface));
}

std::int64_t stride_of(cairo_surface_t* surface) {
  return cairo_image_surface_get_stride(surface) / 4;
}

}  // namespace zu::platform
