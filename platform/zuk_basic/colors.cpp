#include "zu/platform/zuk_basic.h"

Tzu_color zu_clr_init_int(uint32_t word) {
  auto byte_at = [&](int n) { return static_cast<uint8_t>(word >> (8 * n)); };
  return {byte_at(0), byte_at(1), byte_at(2), byte_at(3)};
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_pack = &zu_clr_init_rgba;
