#pragma once
// Texts by id: from the host's localizer, else from this module's table in the language in force,
// else in the base language, Russian.

#include <cstdint>
#include <string>

#include "zu/strings.h"

namespace zu {

/// Gives the text to the visitor, once; no call if there is none.
void get_text(std::int32_t id, string_visitor visitor);
/// The same for a text that all parts of the system share; a localizer is not asked.
void get_text_of_basic(std::int32_t id, string_visitor visitor);
/// The text, or an empty one. An id of 0 or below is that of a shared text with the sign turned.
std::wstring load_text(std::int32_t id);

}  // namespace zu
