// Pictures that end as bitmaps.

#include <memory>
#include <new>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_bmp_dc.h"

using zu::platform::guarded;
using zu::platform::owned;

struct Tzu_bmp_dc {
  owned<zu_drwc_destroy> drwc;
  uint64_t nx, ny;
};

Tzu_bmp_dc* zu_bmp_dc_create(uint64_t width_px, uint64_t height_px, double dots_per_mm) {
  constexpr double mm_per_inch = 25.4;
  owned<zu_drwc_destroy> drwc(
      zu_drwc_create_image(width_px, height_px, dots_per_mm * mm_per_inch, false));
  if (!drwc) return nullptr;
  return new (std::nothrow) Tzu_bmp_dc{std::move(drwc), width_px, height_px};
}
void zu_bmp_dc_destroy(Tzu_bmp_dc* dc) { delete dc; }
Tzu_drwc* zu_bmp_dc_get_drwc(Tzu_bmp_dc* dc) { return dc != nullptr ? dc->drwc.get() : nullptr; }

bool zu_bmp_dc_bmp_to_dib(Tzu_bmp_dc* dc, Tzu_dib* dib) {
  if (dib == nullptr) return false;
  return guarded(dc, false, [&](Tzu_bmp_dc& d) {
    zu_dib_set_nxy(dib, 0, 0);
    std::vector<uint8_t> rgba(d.nx * d.ny * 4);
    zu_dib_set_nxy(dib, d.nx, d.ny);
    if (zu_dib_get_arr(dib) == nullptr) return false;
    zu_drwc_get_pixels(d.drwc.get(), rgba.data());
    const uint8_t* from = rgba.data();
    for (uint64_t y = d.ny; y-- > 0;)
      for (uint64_t x = 0; x < d.nx; ++x, from += 4)
        zu_dib_set_rgba(dib, x, y, from[0], from[1], from[2], static_cast<uint8_t>(255 - from[3]));
    return true;
  });
}
