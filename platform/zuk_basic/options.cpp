#include <filesystem>
#include <string>
#include <system_error>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/user_data_folder.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_basic.h"

namespace {

std::wstring own_program() {
  std::error_code unknown;
  // A name on disk need not be UTF-8, and the path's own conversion throws then.
  return zu::platform::from_utf8(std::filesystem::read_symlink("/proc/self/exe", unknown).native());
}

std::wstring& main_module() {
  static std::wstring path = own_program();
  return path;
}

std::wstring own_style_libs() {
  std::filesystem::path folder = zu::platform::user_data_folder();
  return folder.empty() ? std::wstring()
                        : zu::platform::from_utf8((folder / "zugrid" / "styles").native());
}

std::wstring& style_libs() {
  static std::wstring path = own_style_libs();
  return path;
}

/// Whether the host has set the folder of style libraries.
bool style_libs_set = false;

bool build_overviews = false;
double mm_delta = 1.0;

}  // namespace

const wchar_t* zu_options_get_main_module_path() { return main_module().c_str(); }

void zu_options_set_main_module_path(const wchar_t* path) {
  zu::platform::guarded(&main_module(),
                        [&](std::wstring& kept) { kept = path != nullptr ? path : own_program(); });
}

const wchar_t* zu_options_get_style_libs_path() { return style_libs().c_str(); }

void zu_options_set_style_libs_path(const wchar_t* path) {
  zu::platform::guarded(&style_libs(), [&](std::wstring& kept) {
    style_libs_set = path != nullptr && *path != L'\0';
    kept = style_libs_set ? path : own_style_libs();
  });
}

const wchar_t* zu_options_get_own_style_libs_path() {
  static std::wstring path;
  zu::platform::guarded(&path, [](std::wstring& kept) {
    kept.clear();
    std::filesystem::path folder =
        std::filesystem::path(zu::platform::to_utf8(main_module())).parent_path();
    if (style_libs_set || folder.empty()) return;
    kept = zu::platform::from_utf8(
        (folder.parent_path() / "share" / "zugrid" / "style_libs").native());
  });
  return path.c_str();
}

bool zu_options_get_build_overviews() { return build_overviews; }
void zu_options_set_build_overviews(bool build) { build_overviews = build; }
double zu_options_get_mm_delta() { return mm_delta; }
void zu_options_set_mm_delta(double millimetres) {
  if (millimetres > 0) mm_delta = millimetres;
}
