#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_dib.h"

using zu::platform::guarded;

namespace {

std::atomic<uint64_t> live{0}, made{0};

void free_pixels(Tzu_dib& dib) {
  if (dib.pixels != nullptr) --live;
  std::free(dib.pixels);
  dib.pixels = nullptr;
}

}  // namespace

Tzu_dib* zu_dib_create() { return new (std::nothrow) Tzu_dib{nullptr, 0, 0}; }

void zu_dib_destroy(Tzu_dib* dib) {
  guarded(dib, free_pixels);
  delete dib;
}

void zu_dib_set_nxy(Tzu_dib* dib, uint64_t nx, uint64_t ny) {
  guarded(dib, [&](Tzu_dib& d) {
    free_pixels(d);
    d.nx = nx, d.ny = ny;
    constexpr uint64_t most = std::numeric_limits<ptrdiff_t>::max() / sizeof(uint32_t);
    if (nx == 0 || ny == 0 || ny > most / nx) return;
    d.pixels = static_cast<uint32_t*>(std::malloc(nx * ny * sizeof(uint32_t)));
    if (d.pixels != nullptr) ++live, ++made;
  });
}

uint32_t* zu_dib_get_arr(Tzu_dib* dib) { return dib != nullptr ? dib->pixels : nullptr; }
uint64_t zu_dib_get_nx(const Tzu_dib* dib) { return dib != nullptr ? dib->nx : 0; }
uint64_t zu_dib_get_ny(const Tzu_dib* dib) { return dib != nullptr ? dib->ny : 0; }
void zu_dib_premultiply_alpha(Tzu_dib* dib) {
  guarded(dib, [](Tzu_dib& d) {
    if (d.pixels == nullptr) return;
    constexpr uint32_t full = 255;
    for (uint32_t* p = d.pixels; p != d.pixels + d.nx * d.ny; ++p) {
      uint32_t opacity = full - (*p >> 24), mixed = opacity << 24;
      for (int shift : {0, 8, 16})
        mixed |= ((*p >> shift & full) * opacity + full / 2) / full << shift;
      *p = mixed;
    }
  });
}
uint64_t zu_dib_get_live_count() { return live; }
uint64_t zu_dib_get_made_count() { return made; }

// Keep the library's own copies of what the header defines.
[[gnu::used]] static const auto exported_set_rgba = &zu_dib_set_rgba;
[[gnu::used]] static const auto exported_get_rgba = &zu_dib_get_rgba;
