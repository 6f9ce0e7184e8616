#include <cpl_vsi.h>
#include <sys/stat.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/user_data_folder.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_os.h"

namespace {

namespace fs = std::filesystem;
using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::to_utf8;
using zu::platform::user_data_folder;

constexpr int32_t russian = 0, english = 50000;

int32_t language_of_system() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0')
      return std::strncmp(value, "ru", 2) == 0 ? russian : english;
  }
  return english;
}

int32_t& language() {
  static int32_t offset = language_of_system();
  return offset;
}

}  // namespace

bool zu_os_file_exists(const wchar_t* path) {
  return guarded(path, false, [](const wchar_t& text) {
    VSIStatBufL attributes;
    return VSIStatExL(to_utf8(&text).c_str(), &attributes, VSI_STAT_EXISTS_FLAG) == 0;
  });
}

bool zu_os_get_user_place_w(const wchar_t* path, bool make, Tzu_string_adp* adapter) {
  return guarded(path, false, [&](const wchar_t& text) {
    fs::path folder = user_data_folder();
    fs::path file = fs::absolute(to_utf8(&text)).lexically_normal();
    if (folder.empty() || !file.has_filename()) return false;
    fs::path place = folder / "zugrid" / "beside" / file.relative_path();
    if (make) fs::create_directories(place.parent_path());
    zu_string_adp_feed(adapter, from_utf8(place.string()).c_str());
    return true;
  });
}

int64_t zu_os_get_file_time(const wchar_t* path) {
  return zu::platform::guarded(path, int64_t(0), [](const wchar_t& text) -> int64_t {
    struct stat attributes;
    if (stat(zu::platform::to_utf8(&text).c_str(), &attributes) != 0) return 0;
    return int64_t(attributes.st_mtim.tv_sec) * 1'000'000'000 + attributes.st_mtim.tv_nsec;
  });
}

int32_t zu_res_get_lng() { return language(); }
void zu_res_set_lng(int32_t offset) { language() = offset; }
