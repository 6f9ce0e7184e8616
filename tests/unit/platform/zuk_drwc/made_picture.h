#pragma once
// Pictures at one pixel a millimetre, and bitmaps to draw on them.

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "zu/platform/zuk_drwc.h"

namespace zu::test {

struct destroyed {
  void operator()(Tzu_drwc* drwc) const { zu_drwc_destroy(drwc); }
  void operator()(Tzu_dib* dib) const { zu_dib_destroy(dib); }
  void operator()(Tzu_ov_d2* set) const { zu_ov_d2_destroy(set); }
};
using drwc_ptr = std::unique_ptr<Tzu_drwc, destroyed>;
using dib_ptr = std::unique_ptr<Tzu_dib, destroyed>;
using ov_ptr = std::unique_ptr<Tzu_ov_d2, destroyed>;

inline drwc_ptr made_picture(std::uint64_t nx, std::uint64_t ny) {
  return drwc_ptr(zu_drwc_create_image(nx, ny, 25.4, false));
}

inline dib_ptr made_dib(std::uint64_t nx, std::uint64_t ny,
                        const std::function<Tzu_color(std::uint64_t, std::uint64_t)>& color) {
  dib_ptr dib(zu_dib_create());
  zu_dib_set_nxy(dib.get(), nx, ny);
  for (std::uint64_t y = 0; y < ny; ++y)
    for (std::uint64_t x = 0; x < nx; ++x) {
      Tzu_color c = color(x, y);
      zu_dib_set_rgba(dib.get(), x, y, c.r, c.g, c.b, c.a);
    }
  return dib;
}

inline void draw(const drwc_ptr& drwc, const Tzu_box_d2& box, const dib_ptr& dib,
                 std::uint8_t alpha = 255, std::uint32_t kind = 0) {
  Tzu_dib_draw_record record{box, kind, alpha, {0, 0, 0}};
  zu_drwc_draw_dib(drwc.get(), &record, dib.get());
}

struct rgba {
  int r, g, b, opacity;
  bool operator==(const rgba&) const = default;
};

/// The pixel in column x of row y, counted from the lowest.
inline rgba pixel(const drwc_ptr& drwc, std::uint64_t nx, std::uint64_t ny, std::uint64_t x,
                  std::uint64_t y) {
  std::vector<std::uint8_t> bytes(nx * ny * 4);
  zu_drwc_get_pixels(drwc.get(), bytes.data());
  const std::uint8_t* at = bytes.data() + ((ny - 1 - y) * nx + x) * 4;
  return {at[0], at[1], at[2], at[3]};
}

}  // namespace zu::test
