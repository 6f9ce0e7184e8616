#pragma once
// The numbered arrays of colours.

#include <cstdint>
#include <span>

#include "platform/zuk_styles/color_ramp.h"

namespace zu::platform {

struct color_array {
  const char* name;
  std::vector<Tzu_color> colors;  ///< opaque
  color_ramp ramp;
  bool of_kinds;
};

/// In the order of their numbers, which are keys of files and tools.
std::span<const color_array> color_arrays();
/// Null if there is none of that number.
const color_array* find_color_array(std::int32_t id);

}  // namespace zu::platform
