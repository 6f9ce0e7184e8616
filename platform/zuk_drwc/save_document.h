#pragma once
// Documents as files.

#include <string>

namespace zu::platform {

/// Ending of a file's name with its dot, in small letters (of ASCII); empty if there is none.
std::string lower_ending(const std::string& path);

/// Writes the bytes, whole or not at all. Throws `write_failure`.
void save_document(const std::string& bytes, const std::string& path);

}  // namespace zu::platform
