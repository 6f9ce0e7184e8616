#include <filesystem>
#include <memory>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/user_data_folder.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_ini_data.h"

using zu::platform::guarded;

struct Tzu_ini_data {
  std::string name;
};

namespace {

bool is_plain_name(const std::string& name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos;
}

}  // namespace

Tzu_ini_data* zu_ini_data_create(const wchar_t* name) {
  return guarded(name, static_cast<Tzu_ini_data*>(nullptr), [](const wchar_t& first) {
    auto made = std::make_unique<Tzu_ini_data>(Tzu_ini_data{zu::platform::to_utf8(&first)});
    return is_plain_name(made->name) ? made.release() : nullptr;
  });
}
void zu_ini_data_destroy(Tzu_ini_data* data) { delete data; }
bool zu_ini_data_get_storage_path(const Tzu_ini_data* data, Tzu_string_adp* adapter) {
  return guarded(data, false, [&](const Tzu_ini_data& d) {
    std::filesystem::path folder = zu::platform::user_data_folder();
    if (folder.empty()) return false;
    folder /= "zugrid";
    folder /= d.name;
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (!std::filesystem::is_directory(folder, failed)) return false;
    zu_string_adp_feed(adapter, zu::platform::from_utf8(folder.native()).c_str());
    return true;
  });
}
