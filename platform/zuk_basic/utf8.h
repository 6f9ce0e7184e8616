#pragma once
// Wide texts are UTF-32, files and the terminal are UTF-8.

#include <string>
#include <string_view>

namespace zu::platform {

/// UTF-8 of a wide text; what is no character becomes U+FFFD.
inline std::string to_utf8(std::wstring_view text) {
  std::string out;
  for (wchar_t wide : text) {
    auto c = static_cast<char32_t>(wide);
    if (c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) c = 0xFFFD;
    auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6)), tail(0);
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12)), tail(6), tail(0);
    } else {
      out += static_cast<char>(0xF0 | (c >> 18)), tail(12), tail(6), tail(0);
    }
  }
  return out;
}

/// The same of a text that may be missing: null counts as empty.
inline std::string to_utf8(const wchar_t* text) {
  return to_utf8(text != nullptr ? std::wstring_view(text) : std::wstring_view());
}

/// Wide text of UTF-8; a byte that belongs to no character becomes U+FFFD.
inline std::wstring from_utf8(std::string_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size();) {
    auto lead = static_cast<unsigned char>(text[i++]);
    int tails = lead < 0x80 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : -1;
    char32_t c = tails <= 0 ? lead : lead & (0x3F >> tails);
    bool good = tails >= 0 && lead < 0xF8 && i + static_cast<std::size_t>(tails) <= text.size();
    for (int k = 0; good && k < tails; ++k) {
      auto next = static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]);
      good = (next & 0xC0) == 0x80;
      c = c << 6 | (next & 0x3F);
    }
    static constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
    good = good && c >= least[tails] && c <= 0x10FFFF && (c < 0xD800 || c >= 0xE000);
    if (good) i += static_cast<std::size_t>(tails);
    out += static_cast<wchar_t>(good ? c : 0xFFFD);
  }
  return out;
}

}  // namespace zu::platform
