#include "src/style/type_text.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace zu::style {

std::wstring type_text(const std::type_info& type) {
  int status = 0;
  std::unique_ptr<char, void (*)(void*)> plain(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
  std::string_view name = status == 0 ? plain.get() : type.name();
  return {name.begin(), name.end()};
}

}  // namespace zu::style
