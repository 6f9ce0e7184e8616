#pragma once
// Colours by their English names.

#include <optional>
#include <string>
#include <string_view>

#include "zu/platform/zuk_basic.h"

namespace zu::host {

/// Opaque; in any case of letters. "gray0" to "gray100" are shares of white.
std::optional<Tzu_color> color_of_name(std::string_view name);

}  // namespace zu::host
