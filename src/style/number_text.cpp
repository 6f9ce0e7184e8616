#include "src/style/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace zu::style {
namespace {

/// The text with a point for the first comma; empty for letters that no number has.
std::string plain(std::wstring_view text) {
  std::string out;
  for (wchar_t letter : text) {
    if (letter <= 0 || letter > 0x7f) return {};
    out += static_cast<char>(letter);
  }
  if (std::size_t comma = out.find(','); comma != std::string::npos) out[comma] = '.';
  return out;
}

bool is_one_of(char letter, std::string_view letters) {
  return letters.find(letter) != std::string_view::npos;
}
constexpr std::string_view digits = "0123456789.", hex_digits = "0123456789abcdefABCDEF.";

std::string lower(std::string_view text) {
  std::string out(text);
  for (char& letter : out)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  return out;
}

/// "inf", "infinity", "nan", "nan(…)" in any case.
std::optional<double> parse_word(std::string_view text) {
  std::string word = lower(text);
  if (word == "inf" || word == "infinity") return std::numeric_limits<double>::infinity();
  bool is_nan = word == "nan";
  if (word.rfind("nan(", 0) == 0 && word.back() == ')')
    is_nan = std::all_of(word.begin() + 4, word.end() - 1, [](char c) {
      return is_one_of(c, "0123456789abcdefghijklmnopqrstuvwxyz_");
    });
  return is_nan ? std::optional(std::numeric_limits<double>::quiet_NaN()) : std::nullopt;
}

std::optional<double> parse_digits(std::string_view text) {
  bool hex = text.size() > 2 && text[0] == '0' && lower(text.substr(1, 1)) == "x";
  if (hex) text.remove_prefix(2);
  if (text.empty() || !is_one_of(text[0], hex ? hex_digits : digits)) return {};
  double value = 0.0;
  const char* end = text.data() + text.size();
  auto [stopped, error] = std::from_chars(
      text.data(), end, value, hex ? std::chars_format::hex : std::chars_format::general);
  if (stopped != end || error != std::errc() || !std::isfinite(value)) return {};
  std::string_view mantissa = text.substr(0, text.find_first_of(hex ? "pP" : "eE"));
  bool is_zero = mantissa.find_first_not_of("0.") == std::string_view::npos;
  return value != 0.0 || is_zero ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<double> parse_number(std::wstring_view text) {
  std::string given = plain(text);
  std::string_view rest = given;
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t\n\v\f\r"), rest.size()));
  bool negative = !rest.empty() && rest[0] == '-';
  if (negative || (!rest.empty() && rest[0] == '+')) rest.remove_prefix(1);
  std::optional<double> value = parse_word(rest);
  if (!value) value = parse_digits(rest);
  if (value && negative) value = -*value;
  return value;
}

}  // namespace zu::style
