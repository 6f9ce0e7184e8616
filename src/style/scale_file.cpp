#include "src/style/scale_file.h"

namespace zu::style {
std::wstring scale_file_path(const std::wstring& source, const std::wstring& field,
                             const wchar_t* extension) {
  if (source.empty() || source.front() == L'*' || field.empty()) return {};
  std::size_t separator = source.find_last_of(L"\\/");
  std::size_t name = separator == std::wstring::npos ? 0 : separator + 1;
  std::size_t point = source.rfind(L'.');
  // A point at the head of a name begins no extension.
  bool has_extension = point != std::wstring::npos && point > name;
  std::wstring part = field;
  for (wchar_t& letter : part)
    if (letter == L'\\' || letter == L'/') letter = L'_';
  return source.substr(0, has_extension ? point : source.size()) + L"." + part + extension;
}

}  // namespace zu::style
