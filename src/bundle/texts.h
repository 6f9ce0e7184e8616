#pragma once
// Texts by id: from the host's localizer, else from this module's table in the language in force,
// else in the base language, Russian.

#include <cstdint>
#include <string>

#include "zu/strings.h"

namespace zu {

/// Gives the text to the visitor, once; no call if there is none.
void get_text(std::int32_t id, string_visitor visitor);
/// The text, or an empty one.
std::wstring load_text(std::int32_t id);

}  // namespace zu
