#pragma once
// Files that are kept for a section: beside it, or, where its folder cannot be written, in the
// user's data folder.

#include <string>

namespace zu::platform {

inline constexpr char pyramid_suffix[] = ".ovr";
inline constexpr char params_suffix[] = ".prm";

/// The side file that there is; empty if there is none. The one beside the section comes first.
std::string existing_side_file(const std::string& section, const std::string& suffix);
/// Where a side file is to be written. Makes the folder if it is the user's data folder.
std::string side_file_to_write(const std::string& section, const std::string& suffix);
/// Whether `section` was last changed before `file` was. A time that cannot be read counts as 0.
bool is_newer(const std::string& file, const std::string& section);

}  // namespace zu::platform
