#pragma once
// Device-independent bitmaps: what the pipeline fills and a drawing context draws.

#include "zu/platform/zuk_api.h"

/// Pixels r, g, b, a with `a` a transparency: 0 opaque, 255 invisible. Row 0 is the row of lowest
/// y.
typedef struct Tzu_dib {
  uint32_t* pixels;  ///< row-major words, red in the low byte; null if they could not be had
  uint64_t nx, ny;
} Tzu_dib;

ZU_API Tzu_dib* zu_dib_create(void);       ///< without pixels; null if out of memory
ZU_API void zu_dib_destroy(Tzu_dib* dib);  ///< null is ignored
/// Takes pixels of the size; their contents are undefined. On failure `zu_dib_get_arr` is null.
ZU_API void zu_dib_set_nxy(Tzu_dib* dib, uint64_t nx, uint64_t ny);
ZU_API uint32_t* zu_dib_get_arr(Tzu_dib* dib);
ZU_API uint64_t zu_dib_get_nx(const Tzu_dib* dib);
ZU_API uint64_t zu_dib_get_ny(const Tzu_dib* dib);
/// Makes pixels ready for a view: `a` becomes an opacity, 255 opaque, and the colours are mixed
/// with it, rounded to the nearest. For bitmaps that are not drawn again.
ZU_API void zu_dib_premultiply_alpha(Tzu_dib* dib);
/// Bitmaps of this process that have pixels now, and how often pixels were taken: for tests.
ZU_API uint64_t zu_dib_get_live_count(void);
ZU_API uint64_t zu_dib_get_made_count(void);

#ifdef __cplusplus
/// Stores one pixel; x < nx and y < ny are the caller's duty.
ZU_HOT void zu_dib_set_rgba(Tzu_dib* dib, uint64_t x, uint64_t y, uint8_t r, uint8_t g, uint8_t b,
                            uint8_t a) {
  dib->pixels[y * dib->nx + x] = static_cast<uint32_t>(r) | static_cast<uint32_t>(g) << 8 |
                                 static_cast<uint32_t>(b) << 16 | static_cast<uint32_t>(a) << 24;
}
/// Reads one pixel; x < nx and y < ny are the caller's duty.
ZU_HOT void zu_dib_get_rgba(const Tzu_dib* dib, uint64_t x, uint64_t y, uint8_t* r, uint8_t* g,
                            uint8_t* b, uint8_t* a) {
  uint32_t word = dib->pixels[y * dib->nx + x];
  *r = static_cast<uint8_t>(word);
  *g = static_cast<uint8_t>(word >> 8);
  *b = static_cast<uint8_t>(word >> 16);
  *a = static_cast<uint8_t>(word >> 24);
}
#else
ZU_API void zu_dib_set_rgba(Tzu_dib* dib, uint64_t x, uint64_t y, uint8_t r, uint8_t g, uint8_t b,
                            uint8_t a);
ZU_API void zu_dib_get_rgba(const Tzu_dib* dib, uint64_t x, uint64_t y, uint8_t* r, uint8_t* g,
                            uint8_t* b, uint8_t* a);
#endif
