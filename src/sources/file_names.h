#pragma once
// Parts of the paths that a person opens. Both "\" and "/" end a folder.

#include <string>

namespace zu {

/// What stands behind the last separator; the whole if there is none.
std::wstring file_name_of(const std::wstring& path);
/// From the last point of the file name to its end, in lower case; empty if it has no point.
std::wstring extension_of(const std::wstring& path);

}  // namespace zu
