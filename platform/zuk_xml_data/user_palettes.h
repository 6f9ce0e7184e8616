#pragma once
// The person's own palettes.

#include <string>

#include "zu/platform/zuk_palettes.h"

namespace zu::platform {

/// Reads the person's file, if there is one. What cannot be read leaves the list empty, is kept
/// under the name with ".broken" behind it, so that the next save does not take it away, and its
/// reason is kept as a problem of that name.
void read_user_palettes(const std::wstring& path, Tzu_clr_palettes* list);

}  // namespace zu::platform
