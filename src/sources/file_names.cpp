#include "src/sources/file_names.h"

#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

namespace zu {

std::wstring file_name_of(const std::wstring& path) {
  std::size_t separator = path.find_last_of(L"\\/");
  return separator == std::wstring::npos ? path : path.substr(separator + 1);
}

std::wstring extension_of(const std::wstring& path) {
  std::wstring name = file_name_of(path);
  std::size_t point = name.rfind(L'.');
  if (point == std::wstring::npos) return {};
  return text_of([&](Tzu_string_adp* a) { zu_os_lower(name.c_str() + point, a); });
}

}  // namespace zu
