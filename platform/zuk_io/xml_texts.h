#pragma once
// Texts as XML can hold them: a character that it cannot is written as "_x", its number in capital
// hexadecimal digits, and "_"; an underscore that would begin such a run is written so itself.

#include <string>
#include <string_view>

namespace zu::platform {

/// UTF-8 of a key as an XML name; empty for an empty key.
std::string xml_name(std::wstring_view key);
/// UTF-8 of a value, without the characters that XML has no place for.
std::string xml_value(std::wstring_view value);
/// The key or value that was written so.
std::wstring from_xml(std::string_view text);

}  // namespace zu::platform
