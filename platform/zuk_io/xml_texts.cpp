#include "platform/zuk_io/xml_texts.h"

#include "platform/zuk_basic/utf8.h"

namespace zu::platform {
namespace {

struct span {
  char32_t first, last;
};
// Extensible Markup Language 1.0 (fifth edition), productions 4 and 4a, without the colon.
constexpr span name_start[] = {
    {'A', 'Z'},       {'_', '_'},       {'a', 'z'},       {0xC0, 0xD6},     {0xD8, 0xF6},
    {0xF8, 0x2FF},    {0x370, 0x37D},   {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F},
    {0x2C00, 0x2FEF}, {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
constexpr span name_rest[] = {
    {'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t size> bool is_in(const span (&spans)[size], char32_t c) {
  for (const span& each : spans)
    if (c >= each.first && c <= each.last) return true;
  return false;
}

bool fits_name(char32_t c, bool first) {
  return is_in(name_start, c) || (!first && is_in(name_rest, c));
}

bool fits_value(char32_t c) {
  return c >= 0x20 ? c != 0xFFFE && c != 0xFFFF : c == '\t' || c == '\n' || c == '\r';
}

constexpr std::string_view digits = "0123456789ABCDEF";

bool begins_run(std::wstring_view text) {
  return text.size() >= 3 && text[0] == L'_' && text[1] == L'x' && text[2] < 0x80 &&
         digits.find(static_cast<char>(text[2])) != std::string_view::npos;
}

std::string run_of(char32_t c) {
  std::string number;
  for (; c > 0; c /= 16) number.insert(number.begin(), digits[c % 16]);
  return "_x" + number + "_";
}

template <class test> std::string escaped(std::wstring_view text, test fits) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto c = static_cast<char32_t>(text[i]);
    bool whole = fits(c, i == 0) && !begins_run(text.substr(i));
    // What is no character at all is left to the encoding.
    bool character = c > 0 && c <= 0x10FFFF && (c < 0xD800 || c >= 0xE000);
    out += whole || !character ? to_utf8(text.substr(i, 1)) : run_of(c);
  }
  return out;
}

}  // namespace

std::string xml_name(std::wstring_view key) { return escaped(key, &fits_name); }

std::string xml_value(std::wstring_view value) {
  return escaped(value, [](char32_t c, bool) { return fits_value(c); });
}

std::wstring from_xml(std::string_view text) {
  std::wstring wide = from_utf8(text), out;
  for (std::size_t i = 0; i < wide.size(); ++i) {
    std::size_t at = i + 2;
    char32_t c = 0;
    if (begins_run(std::wstring_view(wide).substr(i)))
      for (std::size_t digit; at < wide.size() && at < i + 8 && wide[at] < 0x80; ++at) {
        digit = digits.find(static_cast<char>(wide[at]));
        if (digit == std::string_view::npos) break;
        c = c * 16 + static_cast<char32_t>(digit);
      }
    bool run = c > 0 && c <= 0x10FFFF && (c < 0xD800 || c >= 0xE000) && at < wide.size() &&
               wide[at] == L'_';
    out += run ? static_cast<wchar_t>(c) : wide[i];
    if (run) i = at;
  }
  return out;
}

}  // namespace zu::platform
