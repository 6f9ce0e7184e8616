#include "host/cli/option_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <map>

#include "host/cli/commands.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_palettes.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::cli {
namespace {

[[noreturn]] void refuse(const std::string& option, const std::string& what) {
  throw usage_error(option + ": " + what);
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

/// What each key of an overlay's settings does with its value; a key of a mark has none.
struct setting_keys {
  std::map<std::string, std::function<void(const std::string&)>> values;
  std::map<std::string, std::function<void()>> marks;
};

void read_settings(const std::string& option, const std::string& text, const setting_keys& keys) {
  if (text == as_it_comes) return;
  for (const std::string& part : parts_of(option, text)) {
    std::size_t equals = part.find('=');
    std::string key = part.substr(0, equals);
    auto value = keys.values.find(key);
    auto mark = keys.marks.find(key);
    if (equals != std::string::npos && value != keys.values.end())
      value->second(part.substr(equals + 1));
    else if (equals == std::string::npos && mark != keys.marks.end())
      mark->second();
    else
      refuse(option, quoted(part) + " is no setting of it");
  }
}

/// Whether a text is settings of that option, and no source.
bool are_settings(const std::string& option, const std::string& text) {
  std::string key = text.substr(0, text.find_first_of("=,"));
  static const std::map<std::string, std::vector<std::string>> keys = {
      {"--hillshade", {"z", "altitude", "azimuth", "part", "field", "multidirectional"}},
      {"--isolines", {"thin", "bold", "field", "label"}},
      {"--legend", {"only", "top-right", "top-left", "bottom-left", "bottom-right"}}};
  const std::vector<std::string>& known = keys.at(option);
  bool mark = key == "multidirectional" || key == "label" || option == "--legend";
  return text == as_it_comes || (std::find(known.begin(), known.end(), key) != known.end() &&
                                 (mark || text.find('=') != std::string::npos));
}

/// Takes a number that lies in a range.
auto number_into(const std::string& option, double least, double most, double& into) {
  return [=, &into](const std::string& text) {
    double number = number_of(option, text);
    if (number < least || number > most) refuse(option, quoted(text) + " is out of range");
    into = number;
  };
}

auto step_into(const std::string& option, std::optional<double>& into) {
  return [=, &into](const std::string& text) {
    double step = number_of(option, text);
    if (!(step > 0)) refuse(option, "a step must be above 0");
    into = step;
  };
}

auto text_into(const std::string& option, std::string& into) {
  return [=, &into](const std::string& text) {
    if (text.empty()) refuse(option, "an empty name says nothing");
    into = text;
  };
}

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

std::int32_t gradient_of(const std::string& option, const std::string& text) {
  std::int32_t id = zu_clr_arrays_find(text.c_str());
  if (id >= 0) return id;
  std::string names;
  for (std::int32_t i = 0; i < zu_clr_arrays_get_count(); ++i)
    names += (i > 0 ? ", " : "") + std::string(zu_clr_arrays_get_name(i));
  refuse(option, quoted(text) + " is none of " + names);
}

std::vector<std::string> with_settings(const std::vector<std::string>& arguments) {
  std::vector<std::string> all;
  bool options = true;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& each = arguments[i];
    std::string next = i + 1 < arguments.size() ? arguments[i + 1] : "";
    options = options && each != "--";
    bool overlay = options && (each == "--hillshade" || each == "--isolines" || each == "--legend");
    all.push_back(overlay && !are_settings(each, next) ? each + "=" + as_it_comes : each);
  }
  return all;
}

void check_projection(const std::string& option, const std::string& text) {
  bool known = false;
  std::wstring why = host::text_of(
      [&](Tzu_string_adp* reason) { known = zu_pj_check_w(host::wide(text).c_str(), reason); });
  if (!known)
    throw usage_error(option + ": \"" + text + "\" is no coordinate system" +
                      (why.empty() ? "" : ": " + host::narrow(why)));
}

host::hillshade_look hillshade_of(const std::string& option, const std::string& text) {
  host::hillshade_look look;
  read_settings(option, text,
                {{{"z", number_into(option, -1e9, 1e9, look.z_factor)},
                  {"altitude", number_into(option, 0, 90, look.altitude)},
                  {"azimuth", number_into(option, -360, 360, look.azimuth)},
                  {"part", number_into(option, 0, 1, look.part)},
                  {"field", text_into(option, look.field)}},
                 {{"multidirectional", [&look] { look.multidirectional = true; }}}});
  return look;
}

host::isoline_look isolines_of(const std::string& option, const std::string& text) {
  host::isoline_look look;
  read_settings(option, text,
                {{{"thin", step_into(option, look.thin)},
                  {"bold", step_into(option, look.bold)},
                  {"field", text_into(option, look.field)}},
                 {{"label", [&look] { look.label = true; }}}});
  return look;
}

}  // namespace zu::cli
