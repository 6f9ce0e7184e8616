#include "platform/zuk_file_segy/side_file.h"

#include <unistd.h>

#include <filesystem>

#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_os.h"

namespace zu::platform {

namespace {

namespace fs = std::filesystem;

/// The same file in the user's data folder; empty if there is no such folder.
std::string user_place(const std::string& path, bool make) {
  std::error_code error;
  fs::path absolute = fs::absolute(path, error);
  std::wstring found;
  Tzu_string_adp* adapter = zu_string_adp_create(
      nullptr, [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; },
      &found);
  bool known =
      !error && zu_os_get_user_place_w(from_utf8(absolute.native()).c_str(), make, adapter);
  zu_string_adp_destroy(adapter);
  return known ? to_utf8(found) : std::string();
}

}  // namespace

std::string existing_side_file(const std::string& section, const std::string& suffix) {
  std::error_code error;
  if (fs::is_regular_file(section + suffix, error)) return section + suffix;
  std::string kept = user_place(section + suffix, false);
  return !kept.empty() && fs::is_regular_file(kept, error) ? kept : std::string();
}

std::string side_file_to_write(const std::string& section, const std::string& suffix) {
  fs::path folder = fs::path(section).parent_path();
  if (folder.empty()) folder = ".";
  if (::access(folder.c_str(), W_OK) == 0) return section + suffix;
  std::string kept = user_place(section + suffix, true);
  return kept.empty() ? section + suffix : kept;
}

bool is_newer(const std::string& file, const std::string& section) {
  return zu_os_get_file_time(from_utf8(section).c_str()) <
         zu_os_get_file_time(from_utf8(file).c_str());
}

}  // namespace zu::platform
