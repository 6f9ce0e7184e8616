#include "platform/zuk_drwc/image_context.h"

#include "platform/zuk_drwc/cut_ring.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

namespace zu::platform {
namespace {

constexpr double mm_per_inch = 25.4;

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

constexpr double hair = 1e-6;  // pixels; what rounding may have moved a side

/// Nearest whole number, half up. What misses a half by the rounding of millimetres alone counts as
/// one: both sides of a box that lies on halves must go the same way, or it would grow by a pixel.
std::int64_t rounded(double pixels) {
  return static_cast<std::int64_t>(std::floor(pixels + 0.5 + hair));
}

/// The pixel that holds the low side of a box narrower than a pixel.
std::int64_t pixel_at(double side) { return static_cast<std::int64_t>(std::floor(side + hair)); }

/// The source index of each of `count` pixels: its own if the sizes agree, else the nearest.
std::uint64_t nearest_index(std::uint64_t i, std::uint64_t count, std::uint64_t source) {
  if (source == count) return i;
  auto at = static_cast<std::uint64_t>((static_cast<double>(i) + 0.5) *
                                       static_cast<double>(source) / static_cast<double>(count));
  return std::min(at, source - 1);
}

/// Puts a DIB over rows of words, whose row 0 is the picture's top, cut to the picture.
void put(std::uint32_t* words, std::int64_t stride, std::int64_t nx, std::int64_t ny,
         const pixel_box& place, const Tzu_dib& dib, std::uint8_t alpha) {
  auto width = static_cast<std::uint64_t>(place.x1 - place.x0);
  auto height = static_cast<std::uint64_t>(place.y1 - place.y0);
  std::int64_t x0 = std::max<std::int64_t>(0, place.x0), x1 = std::min(nx, place.x1);
  std::int64_t y0 = std::max<std::int64_t>(0, place.y0), y1 = std::min(ny, place.y1);
  for (std::int64_t y = y0; y < y1; ++y) {
    std::uint32_t* row = words + (ny - 1 - y) * stride;
    const std::uint32_t* from =
        dib.pixels +
        nearest_index(static_cast<std::uint64_t>(y - place.y0), height, dib.ny) * dib.nx;
    if (width == dib.nx) {
      if (x0 < x1) put_row(row + x0, from + (x0 - place.x0), x1 - x0, alpha);
    } else {
      for (std::int64_t x = x0; x < x1; ++x) {
        auto i = static_cast<std::uint64_t>(x - place.x0);
        row[x] = over(row[x], from[nearest_index(i, width, dib.nx)], alpha);
      }
    }
  }
}

std::uint32_t* words_of(cairo_surface_t* surface) {
  return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface));
}

std::int64_t stride_of(cairo_surface_t* surface) {
  return cairo_image_surface_get_stride(surface) / 4;
}

surface_ptr new_surface(std::int64_t nx, std::int64_t ny) {
  surface_ptr made(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(nx), static_cast<int>(ny)));
  if (cairo_surface_status(made.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  return made;
}

}  // namespace

image_context::image_context(std::uint64_t nx, std::uint64_t ny, double dots_per_inch,
                             bool accurate)
    : nx_(nx), ny_(ny), per_mm_(dots_per_inch / mm_per_inch), accurate_(accurate) {
  if (nx == 0 || ny == 0 || nx > largest_side || ny > largest_side || !(per_mm_ > 0.0))
    throw std::bad_alloc();
  surface_ = new_surface(static_cast<std::int64_t>(nx), static_cast<std::int64_t>(ny));
  cairo_.reset(cairo_create(surface_.get()));
}

Tzu_box_d2 image_context::page() const {
  return {0, 0, static_cast<double>(nx_) / per_mm_, static_cast<double>(ny_) / per_mm_};
}

pixel_box image_context::pixels_of(const Tzu_box_d2& mm) const {
  constexpr double far = 1e9;
  double sides[4] = {mm.x0 * per_mm_, mm.y0 * per_mm_, mm.x1 * per_mm_, mm.y1 * per_mm_};
  bool sensible = sides[0] < sides[2] && sides[1] < sides[3] &&
                  std::all_of(sides, sides + 4, [](double s) { return std::abs(s) < far; });
  if (!sensible) return {0, 0, 0, 0};
  pixel_box box{rounded(sides[0]), rounded(sides[1]), rounded(sides[2]), rounded(sides[3])};
  // What has an area shows, be it one pixel.
  if (box.x1 == box.x0) box.x0 = pixel_at(sides[0]), box.x1 = box.x0 + 1;
  if (box.y1 == box.y0) box.y0 = pixel_at(sides[1]), box.y1 = box.y0 + 1;
  auto most = static_cast<std::int64_t>(largest_side);
  if (box.x1 - box.x0 > most || box.y1 - box.y0 > most) return {0, 0, 0, 0};
  return box;
}

void image_context::fill(Tzu_color color) {
  cairo_save(cairo_.get());
  cairo_reset_clip(cairo_.get());
  cairo_set_operator(cairo_.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_rgba(cairo_.get(), color.r / 255.0, color.g / 255.0, color.b / 255.0,
                        (255 - color.a) / 255.0);
  cairo_paint(cairo_.get());
  cairo_restore(cairo_.get());
}

void image_context::draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) {
  if (dib.pixels == nullptr || dib.nx == 0 || dib.ny == 0) return;
  pixel_box place = pixels_of(record.box);
  if (clipped_) {
    draw_clipped(place, dib, record.alpha);
    return;
  }
  cairo_surface_flush(surface_.get());
  put(words_of(surface_.get()), stride_of(surface_.get()), static_cast<std::int64_t>(nx_),
      static_cast<std::int64_t>(ny_), place, dib, record.alpha);
  cairo_surface_mark_dirty(surface_.get());
}

/// Through a surface of its own, which Cairo paints inside the clip.
void image_context::draw_clipped(const pixel_box& place, const Tzu_dib& dib, std::uint8_t alpha) {
  auto nx = static_cast<std::int64_t>(nx_), ny = static_cast<std::int64_t>(ny_);
  surface_ptr layer = new_surface(nx, ny);
  put(words_of(layer.get()), stride_of(layer.get()), nx, ny, place, dib, alpha);
  cairo_surface_mark_dirty(layer.get());
  cairo_set_source_surface(cairo_.get(), layer.get(), 0, 0);
  cairo_paint(cairo_.get());
  cairo_set_source_rgba(cairo_.get(), 0, 0, 0, 1);
}

void image_context::set_clip(const Tzu_ov_d2* polygon) {
  clear_clip();
  auto* rings = const_cast<Tzu_ov_d2*>(polygon);  // read only; the getters give what may be edited
  auto width = static_cast<double>(nx_), height = static_cast<double>(ny_);
  // Cairo keeps 24 bits of whole pixels: what lies far outside would come back on the other side.
  const Tzu_box_d2 near_the_page{-width, -height, 2 * width, 2 * height};
  cairo_new_path(cairo_.get());
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(rings); ++i) {
    Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(rings, i);
    const Tzu_vtx_d2* vertices = zu_pv_d2_get_arr(list);
    std::vector<Tzu_vtx_d2> ring;
    for (std::uint64_t k = 0; k < zu_pv_d2_get_size(list); ++k)
      ring.push_back({vertices[k].x * per_mm_, height - vertices[k].y * per_mm_});
    for (const Tzu_vtx_d2& v : cut_ring(ring, near_the_page)) cairo_line_to(cairo_.get(), v.x, v.y);
    cairo_close_path(cairo_.get());
    cairo_new_sub_path(cairo_.get());
  }
  cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_EVEN_ODD);
  cairo_clip(cairo_.get());
  clipped_ = true;
}

void image_context::clear_clip() {
  cairo_reset_clip(cairo_.get());
  clipped_ = false;
}

void image_context::copy_pixels(std::uint8_t* rgba) const {
  cairo_surface_flush(surface_.get());
  const std::uint32_t* words = words_of(surface_.get());
  std::int64_t stride = stride_of(surface_.get());
  for (std::uint64_t y = 0; y < ny_; ++y, words += stride)
    for (std::uint64_t x = 0; x < nx_; ++x, rgba += 4) {
      std::uint32_t word = words[x], a = word >> 24;
      if (a == 255) {
        rgba[0] = static_cast<std::uint8_t>(word >> 16);
        rgba[1] = static_cast<std::uint8_t>(word >> 8);
        rgba[2] = static_cast<std::uint8_t>(word);
        rgba[3] = 255;
        continue;
      }
      auto straight = [&](int shift) {
        std::uint32_t c = word >> shift & 255;
        return static_cast<std::uint8_t>(a == 0 ? 0 : std::min(255u, (c * 255 + a / 2) / a));
      };
      rgba[0] = straight(16), rgba[1] = straight(8), rgba[2] = straight(0);
      rgba[3] = static_cast<std::uint8_t>(a);
    }
}

bool image_context::has_ink() const {
  cairo_surface_flush(surface_.get());
  const std::uint32_t* words = words_of(surface_.get());
  std::int64_t stride = stride_of(surface_.get());
  for (std::uint64_t y = 0; y < ny_; ++y, words += stride)
    if (std::any_of(words, words + nx_, [](std::uint32_t word) { return word >> 24 != 0; }))
      return true;
  return false;
}

}  // namespace zu::platform
