#pragma once
// Point styles for pictures at one pixel a millimetre.

#include "platform/zuk_styles/symbols.h"
#include "tests/unit/platform/zuk_drwc/made_picture.h"

namespace zu::test {

inline Tzu_pnt_style figure(int32_t number, double size, Tzu_color color = {200, 0, 0, 0}) {
  Tzu_pnt_style style;
  style.point.figure = number;
  style.point.size = size;
  style.point.color = color;
  return style;
}

inline void draw_point(const drwc_ptr& drwc, double x, double y, const Tzu_pnt_style& style) {
  zu_drwc_draw_pnt(drwc.get(), 1, &x, &y, &style);
}

/// Covered pixels of a picture, parts counted as such.
inline double ink(const drwc_ptr& drwc, std::uint64_t nx, std::uint64_t ny) {
  std::vector<std::uint8_t> bytes(nx * ny * 4);
  zu_drwc_get_pixels(drwc.get(), bytes.data());
  double sum = 0;
  for (std::uint64_t i = 3; i < bytes.size(); i += 4) sum += bytes[i] / 255.0;
  return sum;
}

}  // namespace zu::test
