#include <filesystem>
#include <string>
#include <system_error>

#include "zu/platform/zuk_basic.h"

namespace {

std::wstring own_program() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).wstring();
}

std::wstring& main_module() {
  static std::wstring path = own_program();
  return path;
}

}  // namespace

const wchar_t* zu_options_get_main_module_path() { return main_module().c_str(); }

void zu_options_set_main_module_path(const wchar_t* path) {
  main_module() = path != nullptr ? path : own_program();
}
