#include "platform/zuk_drwc/mark_stamps.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "platform/zuk_drwc/cairo_owned.h"

namespace zu::platform {
namespace {

constexpr std::uint32_t full = 255;

std::uint32_t part_of(std::uint32_t value, std::uint32_t of_255) {
  return (value * of_255 + full / 2) / full;
}

/// Two channels, each in a half of the word, by a part of 255.
std::uint32_t parts_of(std::uint32_t halves, std::uint32_t of_255) {
  constexpr std::uint32_t low_bytes = 0x00FF00FF, rounding = 0x00800080;
  std::uint32_t x = (halves & low_bytes) * of_255 + rounding;
  return (x + (x >> 8 & low_bytes)) >> 8 & low_bytes;
}

/// A premultiplied word over another one.
std::uint32_t over(std::uint32_t word, std::uint32_t below) {
  std::uint32_t rest = full - (word >> 24);
  if (rest == 0) return word;
  return word + (parts_of(below, rest) | parts_of(below >> 8, rest) << 8);
}

}  // namespace

mark_stamps::mark_stamps(const mark& stamped)
    : mark_(stamped),
      reach_(static_cast<std::int64_t>(std::ceil(stamped.reach()))),
      side_(2 * reach_ + 1) {
  Tzu_color c = stamped.color();
  for (std::uint32_t cover = 0; cover <= full; ++cover) {
    std::uint32_t a = part_of(full - c.a, cover);
    covered_[cover] = a << 24 | part_of(c.r, a) << 16 | part_of(c.g, a) << 8 | part_of(c.b, a);
  }
}

const mark_stamps::mask& mark_stamps::mask_at(int x_step, int y_step) {
  mask& kept = masks_[y_step * steps + x_step];
  if (!kept.empty()) return kept;
  auto side = static_cast<int>(side_);
  surface_ptr surface(cairo_image_surface_create(CAIRO_FORMAT_A8, side, side));
  cairo_ptr cairo(cairo_create(surface.get()));
  double middle = static_cast<double>(reach_);
  mark_.add_path(cairo.get(), {middle + double(x_step) / steps, middle + double(y_step) / steps},
                 0);
  cairo_fill(cairo.get());
  cairo_surface_flush(surface.get());
  const unsigned char* row = cairo_image_surface_get_data(surface.get());
  if (row == nullptr) throw std::bad_alloc();
  mask made;
  for (int y = 0; y < side; ++y, row += cairo_image_surface_get_stride(surface.get()))
    made.insert(made.end(), row, row + side);
  return kept = std::move(made);
}

void mark_stamps::put(std::uint32_t* words, std::int64_t stride, const pixel_box& bounds,
                      const Tzu_vtx_d2& middle) {
  constexpr double farthest = 1e9;  // pixels: beyond any page
  double whole_x = std::floor(middle.x), whole_y = std::floor(middle.y);
  if (!(std::fabs(whole_x) < farthest && std::fabs(whole_y) < farthest)) return;
  auto left = static_cast<std::int64_t>(whole_x) - reach_;
  auto top = static_cast<std::int64_t>(whole_y) - reach_;
  pixel_box shown = common({left, top, left + side_, top + side_}, bounds);
  if (shown.is_empty()) return;
  const mask& covers = mask_at(static_cast<int>((middle.x - whole_x) * steps),
                               static_cast<int>((middle.y - whole_y) * steps));
  for (std::int64_t y = shown.y0; y < shown.y1; ++y) {
    const std::uint8_t* cover = covers.data() + (y - top) * side_ + (shown.x0 - left);
    std::uint32_t* at = words + y * stride + shown.x0;
    for (std::int64_t x = shown.x0; x < shown.x1; ++x, ++at, ++cover)
      if (*cover != 0) *at = over(covered_[*cover], *at);
  }
}

}  // namespace zu::platform
