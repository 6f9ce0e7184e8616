#include "host/core/texts.h"

#include "host/core/failure.h"
#include "zu/platform/zuk_os.h"

namespace zu::host {

std::wstring wide(const std::string& text) {
  constexpr std::uint32_t utf8 = 65001;
  return text_of([&](Tzu_string_adp* adapter) {
    zu_os_multibyte_to_wide(utf8, text.data(), static_cast<std::int64_t>(text.size()), adapter);
  });
}

std::string narrow(const std::wstring& text) {
  std::string out;
  for (wchar_t letter : text) {
    auto c = static_cast<char32_t>(letter);
    auto tail = [&](int shift) { out += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
    if (c < 0x80)
      out += static_cast<char>(c);
    else if (c < 0x800)
      out += static_cast<char>(0xC0 | c >> 6), tail(0);
    else if (c < 0x10000)
      out += static_cast<char>(0xE0 | c >> 12), tail(6), tail(0);
    else
      out += static_cast<char>(0xF0 | c >> 18), tail(12), tail(6), tail(0);
  }
  return out;
}

std::wstring wide_name(const std::string& file) {
  std::wstring name = wide(file);
  if (narrow(name) != file) throw failure(file, "the name is no UTF-8");
  return name;
}

std::vector<std::string> reasons(const std::wstring& source, int kind) {
  std::vector<std::string> all;
  for (std::int32_t i = 0; i < zu_problems_get_count(source.c_str()); ++i) {
    std::int32_t found = -1;
    std::wstring text = text_of(
        [&](Tzu_string_adp* adapter) { found = zu_problems_get(source.c_str(), i, adapter); });
    if (kind == -1 || found == kind) all.push_back(narrow(text));
  }
  return all;
}

}  // namespace zu::host
