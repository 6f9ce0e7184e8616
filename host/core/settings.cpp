#include "host/core/settings.h"

#include <cstdlib>
#include <filesystem>

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_os.h"

namespace zu::host {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t root_name[] = L"zugrid_settings";
constexpr std::int32_t russian = 0, english = 50000;

/// The folder of a variable that names one from the root; a relative one counts as none.
fs::path folder_in(const char* variable) {
  const char* value = std::getenv(variable);
  fs::path folder = value != nullptr ? value : "";
  return folder.is_absolute() ? folder : fs::path();
}

fs::path settings_path() {
  fs::path folder = folder_in("XDG_CONFIG_HOME");
  if (folder.empty() && !folder_in("HOME").empty()) folder = folder_in("HOME") / ".config";
  return folder.empty() ? folder : folder / "zugrid" / "settings.xml";
}

}  // namespace

settings::settings() : path_(settings_path().string()), root_(zu_xnode_create_root_w(root_name)) {
  std::error_code none;
  if (path_.empty() || !fs::exists(path_, none)) return;
  std::wstring reason = text_of([&](Tzu_string_adp* adapter) {
    root_.reset(zu_xnode_load_file_w(wide_name(path_).c_str(), adapter));
  });
  if (!root_) throw failure(path_, narrow(reason));
  if (text_of([&](Tzu_string_adp* a) { zu_xnode_get_name_w(root_.get(), a); }) != root_name)
    throw failure(path_, "holds no settings of zugrid");
}

std::string settings::get(const std::string& name) const {
  return narrow(text_of([&](Tzu_string_adp* adapter) {
    zu_xnode_get_attr_wstr(root_.get(), wide(name).c_str(), adapter);
  }));
}

void settings::set(const std::string& name, const std::string& value) {
  if (path_.empty()) throw failure("neither XDG_CONFIG_HOME nor HOME names a folder for settings");
  zu_xnode_set_attr_wstr(root_.get(), wide(name).c_str(), wide(value).c_str());
  std::error_code error;
  fs::create_directories(fs::path(path_).parent_path(), error);
  if (error) throw failure(path_, error.message());
  bool saved = false;
  std::wstring reason = text_of([&](Tzu_string_adp* adapter) {
    saved = zu_xnode_save_file_w(root_.get(), wide_name(path_).c_str(), adapter);
  });
  if (!saved) throw failure(path_, narrow(reason));
}

void apply_settings() {
  std::string overviews, style_libraries;
  try {
    settings kept;
    overviews = kept.get("overviews");
    style_libraries = kept.get("style_libraries");
  } catch (const failure&) {  // as for the language
  }
  if (!overviews.empty()) zu_options_set_build_overviews(overviews == "1");
  zu_options_set_style_libs_path(wide(style_libraries).c_str());
}

void choose_language(const std::string& name) {
  std::string chosen = name;
  if (chosen.empty()) {
    try {
      chosen = settings().get("lang");
    } catch (const failure&) {  // a broken file is no reason not to draw; `zugrid config` says it
    }
  }
  if (chosen == "ru") zu_res_set_lng(russian);
  if (chosen == "en") zu_res_set_lng(english);
}

}  // namespace zu::host
