#pragma once
// Numbers as a person types them into a cell.

#include <optional>
#include <string_view>

namespace zu::style {

/// The number that a whole text is; nothing if it is none. The first comma counts as a point. The
/// grammar is that of `wcstod` in the "C" locale, whatever the language in force: leading blanks, a
/// sign, decimal or hexadecimal digits, "inf", "infinity", "nan" in any case. Refused are an empty
/// text, blanks anywhere else, and what is too large or too small for a double.
std::optional<double> parse_number(std::wstring_view text);

}  // namespace zu::style
