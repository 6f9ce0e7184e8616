#pragma once
// Where a person's own data lie.

#include <filesystem>

namespace zu::platform {

/// $XDG_DATA_HOME, else ~/.local/share; empty if the environment names no absolute one.
std::filesystem::path user_data_folder();

}  // namespace zu::platform
