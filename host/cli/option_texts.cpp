#include "host/cli/option_texts.h"

#include <charconv>
#include <cmath>

#include "host/cli/commands.h"

namespace zu::cli {
namespace {

[[noreturn]] void refuse(const std::string& option, const std::string& what) {
  throw usage_error(option + ": " + what);
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

std::vector<std::string> parts_of(const std::string& option, const std::string& text) {
  std::vector<std::string> parts;
  std::size_t from = 0;
  while (true) {
    std::size_t comma = text.find(',', from);
    std::string part = text.substr(from, comma == std::string::npos ? comma : comma - from);
    std::size_t first = part.find_first_not_of(" \t"), last = part.find_last_not_of(" \t");
    if (first == std::string::npos) refuse(option, "an empty part in " + quoted(text));
    parts.push_back(part.substr(first, last - first + 1));
    if (comma == std::string::npos) return parts;
    from = comma + 1;
  }
}

double number_of(const std::string& option, const std::string& text) {
  const char* begin = text.data();
  const char* end = begin + text.size();
  bool plus = begin != end && *begin == '+';
  if (plus) ++begin;
  double value = 0.0;
  auto read = std::from_chars(begin, end, value);
  bool read_whole = read.ec == std::errc() && read.ptr == end && !(plus && *begin == '-');
  if (!read_whole || !std::isfinite(value)) refuse(option, quoted(text) + " is no number");
  return value;
}

std::vector<double> numbers_of(const std::string& option, const std::string& text) {
  std::vector<double> numbers;
  for (const std::string& part : parts_of(option, text)) numbers.push_back(number_of(option, part));
  return numbers;
}

Tzu_color color_of(const std::string& option, const std::string& text) {
  bool shaped = (text.size() == 7 || text.size() == 9) && text.front() == '#';
  std::uint32_t value = 0;
  auto read = shaped ? std::from_chars(text.data() + 1, text.data() + text.size(), value, 16)
                     : std::from_chars_result{text.data(), std::errc::invalid_argument};
  if (read.ec != std::errc() || read.ptr != text.data() + text.size())
    refuse(option, quoted(text) + " is no colour; write #rrggbb or #rrggbbaa");
  if (text.size() == 7) value = value << 8 | 255;
  auto byte = [&](int shift) { return static_cast<std::uint8_t>(value >> shift & 255); };
  return {byte(24), byte(16), byte(8), static_cast<std::uint8_t>(255 - byte(0))};
}

std::vector<Tzu_color> colors_of(const std::string& option, const std::string& text) {
  std::vector<Tzu_color> colors;
  for (const std::string& part : parts_of(option, text)) colors.push_back(color_of(option, part));
  return colors;
}

std::pair<std::uint64_t, std::uint64_t> size_of(const std::string& option,
                                                const std::string& text) {
  constexpr std::uint64_t largest = 32767;
  std::size_t cross = text.find('x');
  std::uint64_t sides[2] = {0, 0};
  std::string parts[2];
  if (cross != std::string::npos)
    parts[0] = text.substr(0, cross), parts[1] = text.substr(cross + 1);
  for (int i = 0; i < 2; ++i) {
    const std::string& part = parts[i];
    auto read = std::from_chars(part.data(), part.data() + part.size(), sides[i]);
    if (part.empty() || read.ec != std::errc() || read.ptr != part.data() + part.size() ||
        sides[i] == 0 || sides[i] > largest)
      refuse(option, quoted(text) + " is no size; write WxH, each from 1 to 32767");
  }
  return {sides[0], sides[1]};
}

Tzu_box_d2 box_of(const std::string& option, const std::string& text) {
  std::vector<double> n = numbers_of(option, text);
  if (n.size() != 4) refuse(option, "needs four numbers x0,y0,x1,y1");
  if (!(n[0] < n[2]) || !(n[1] < n[3]))
    refuse(option, "is turned inside out: x0 must be below x1 and y0 below y1");
  return {n[0], n[1], n[2], n[3]};
}

std::pair<double, double> limits_of(const std::string& option, const std::string& text) {
  std::vector<double> n = numbers_of(option, text);
  if (n.size() != 2 || !(n[0] < n[1])) refuse(option, "needs two numbers MIN,MAX, MIN below MAX");
  return {n[0], n[1]};
}

std::vector<double> breaks_of(const std::string& option, const std::string& text) {
  std::vector<double> breaks = numbers_of(option, text);
  if (breaks.size() < 2) refuse(option, "needs at least two boundaries");
  for (std::size_t i = 1; i < breaks.size(); ++i)
    if (!(breaks[i - 1] < breaks[i])) refuse(option, "boundaries must rise");
  return breaks;
}

std::vector<std::pair<std::string, Tzu_color>> values_of(const std::string& option,
                                                         const std::string& text) {
  std::vector<std::pair<std::string, Tzu_color>> values;
  for (const std::string& part : parts_of(option, text)) {
    std::size_t equals = part.rfind('=');
    if (equals == std::string::npos || equals == 0)
      refuse(option, quoted(part) + " is no VALUE=COLOR");
    number_of(option, part.substr(0, equals));
    values.emplace_back(part.substr(0, equals), color_of(option, part.substr(equals + 1)));
  }
  return values;
}

}  // namespace zu::cli
