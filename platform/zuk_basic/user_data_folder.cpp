#include "platform/zuk_basic/user_data_folder.h"

#include <cstdlib>

namespace zu::platform {

std::filesystem::path user_data_folder() {
  namespace fs = std::filesystem;
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data != nullptr && fs::path(data).is_absolute()) return data;
  const char* home = std::getenv("HOME");
  if (home != nullptr && fs::path(home).is_absolute()) return fs::path(home) / ".local" / "share";
  return {};
}

}  // namespace zu::platform
