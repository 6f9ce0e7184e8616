#pragma once
// Palettes that a person makes, in a list.

#include <memory>
#include <string>
#include <vector>

#include "zu/platform/zuk_palettes.h"

struct Tzu_clr_palette {
  std::wstring caption;
  std::vector<Tzu_color> colors;
};

/// Each palette has an address of its own, which a person's list hands out.
struct Tzu_clr_palettes {
  std::vector<std::unique_ptr<Tzu_clr_palette>> all;
};
