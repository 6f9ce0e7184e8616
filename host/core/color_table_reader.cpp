// Texts of colour tables.

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <functional>
#include <iterator>
#include <limits>

#include "host/core/color_names.h"
#include "host/core/color_tables.h"
#include "host/core/failure.h"

namespace zu::host {
namespace {

constexpr std::size_t longest_text = 16u << 20, most_lines = 100000;

using tokens = std::vector<std::string_view>;

tokens split(std::string_view text, std::string_view separators) {
  tokens all;
  for (std::size_t at = 0;
       (at = text.find_first_not_of(separators, at)) != std::string_view::npos;) {
    std::size_t end = std::min(text.find_first_of(separators, at), text.size());
    all.push_back(text.substr(at, end - at));
    at = end;
  }
  return all;
}

std::string_view trimmed(std::string_view text) {
  std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") + 1 - first);
}

bool begins(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string upper(std::string_view text) {
  std::string all(text);
  for (char& c : all)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  return all;
}

std::optional<double> number_in(std::string_view text) {
  if (begins(text, "+") && !begins(text, "+-")) text.remove_prefix(1);
  double value = 0;
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  bool whole = !text.empty() && error == std::errc() && end == text.data() + text.size();
  return whole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// The lines of a text, counted, without blanks around them; empty ones are left out.
class lines {
 public:
  lines(std::string name, std::string_view text) : name_(std::move(name)), rest_(text) {}
  bool next() {
    while (!rest_.empty()) {
      std::size_t end = std::min(rest_.find('\n'), rest_.size());
      line_ = trimmed(rest_.substr(0, end));
      rest_.remove_prefix(std::min(end + 1, rest_.size()));
      if (++number_ > most_lines) refuse("has too many lines");
      if (!line_.empty()) return true;
    }
    return false;
  }
  std::string_view line() const { return line_; }
  [[noreturn]] void refuse(const std::string& reason) const {
    throw failure(name_, "line " + std::to_string(number_) + ": " + reason);
  }
  [[noreturn]] void refuse_text(std::string_view text, const std::string& what) const {
    refuse("\"" + std::string(text.substr(0, 40)) + "\" is no " + what);
  }
  double number(std::string_view text, const char* what = "number") const {
    std::optional<double> value = number_in(text);
    if (!value) refuse_text(text, what);
    return *value;
  }
  std::uint8_t byte(std::string_view text) const { return byte(number(text), text); }
  std::uint8_t byte(double value, std::string_view text) const {
    if (!(value >= 0 && value <= 255)) refuse_text(text, "share of a colour from 0 to 255");
    return static_cast<std::uint8_t>(value + 0.5);
  }

 private:
  std::string name_;
  std::string_view rest_, line_;
  std::size_t number_ = 0;
};

/// What stands behind both a value and a colour of points; GDAL and QGIS mix colours between them.
struct point {
  table_value value;
  Tzu_color color{};
  std::string label;
};

/// Points that only a rounding is between are a step at one value.
void join_steps(std::vector<point>& points) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  double span = points.back().value.number - points.front().value.number;
  for (std::size_t i = 1; i < points.size(); ++i) {
    double before = points[i - 1].value.number;
    if (points[i].value.number <= std::max(std::nextafter(before, infinity), before + span * 1e-12))
      points[i].value.number = before;
  }
}

color_table between(std::vector<point> points, const lines& at) {
  if (points.size() < 2) at.refuse("needs two values at least");
  std::stable_sort(points.begin(), points.end(),
                   [](const point& a, const point& b) { return a.value.number < b.value.number; });
  join_steps(points);
  color_table table;
  table.below = points.front().color, table.above = points.back().color;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const point &low = points[i - 1], &high = points[i];
    if (low.value.number < high.value.number)
      table.parts.push_back({low.value, high.value, low.color, high.color, high.label});
  }
  if (table.parts.empty()) at.refuse("needs two values at least");
  return table;
}

// --- GMT

using three = std::array<double, 3>;

Tzu_color of_hsv(const three& c) {
  double sector = std::fmod(c[0], 360) / 60;
  auto channel = [&](double turn) {
    double k = std::fmod(turn + sector, 6);
    double value = c[2] - c[2] * c[1] * std::clamp(std::min(k, 4 - k), 0.0, 1.0);
    return static_cast<std::uint8_t>(value * 255 + 0.5);
  };
  return {channel(5), channel(3), channel(1), 0};
}

struct gmt_color {
  Tzu_color color{};
  std::optional<three> hsv;  // as it was written
};

class gmt_reader {
 public:
  gmt_reader(const std::string& name, std::string_view text) : at_(name, text) {}

  color_table read() {
    while (at_.next()) {
      std::string_view line = at_.line();
      if (line.front() == '#')
        read_comment(line);
      else
        read_line(line);
    }
    if (table_.parts.empty() && table_.values.empty()) at_.refuse("holds no colours");
    return std::move(table_);
  }

 private:
  void read_comment(std::string_view line) {
    std::string text = upper(line);
    std::size_t key = text.find("COLOR_MODEL");
    if (key == std::string::npos) return;
    std::size_t model = text.find_first_not_of(" \t=+", key + 11);
    model_ = model == std::string::npos ? "RGB" : text.substr(model, text.find(' ', model) - model);
    if (model_ != "RGB" && model_ != "HSV" && model_ != "CMYK")
      at_.refuse_text(model_, "colour model; there are RGB, HSV and CMYK");
  }

  void read_line(std::string_view line) {
    std::size_t semicolon = line.find(';');
    std::string label(semicolon == std::string_view::npos ? ""
                                                          : trimmed(line.substr(semicolon + 1)));
    tokens parts = split(line.substr(0, semicolon), " \t");
    if (parts.empty()) return;
    if (parts[0] == "B" || parts[0] == "F" || parts[0] == "N") return read_rest(parts);
    // Annotations of the scale bar: lower, upper, both.
    if (parts.size() > 3 && (parts.back() == "L" || parts.back() == "U" || parts.back() == "B"))
      parts.pop_back();
    std::size_t next = 0;
    std::string_view key = parts[next++];
    if (parts.size() == 1) at_.refuse("has a value without a colour");
    components_ = all_numbers(parts) && (parts.size() == 8 || parts.size() == 10)
                      ? (parts.size() - 2) / 2
                      : 1;
    gmt_color from = read_color(parts, next);
    if (next == parts.size() || !number_in(parts[next]))
      return add_value(key, from, parts, next, label);
    double low = at_.number(key), high = at_.number(parts[next++]);
    gmt_color to = read_color(parts, next);
    if (next < parts.size()) at_.refuse_text(parts[next], "part of a colour");
    add_part(low, high, from, to, label);
  }

  static bool all_numbers(const tokens& parts) {
    return std::all_of(parts.begin(), parts.end(), [](auto t) { return number_in(t).has_value(); });
  }

  /// Colours of what lies below, above, and of what is no number.
  void read_rest(const tokens& parts) {
    if (parts.size() == 1) at_.refuse("has no colour");
    std::size_t next = 1;
    components_ = parts.size() == 4 && all_numbers({parts.begin() + 1, parts.end()}) ? 3 : 1;
    std::optional<Tzu_color> color;
    if (parts[1] != "-") color = read_color(parts, next).color;
    (parts[0] == "B" ? table_.below : parts[0] == "F" ? table_.above : table_.other) = color;
  }

  void add_value(std::string_view key, const gmt_color& color, const tokens& parts,
                 std::size_t next, std::string label) {
    if (!table_.parts.empty()) at_.refuse("mixes single values with ranges");
    at_.number(key, "value");
    for (; next < parts.size(); ++next)
      label += (label.empty() ? "" : " ") + std::string(parts[next]);
    table_.values.push_back({std::string(key), color.color, std::move(label)});
  }

  void add_part(double low, double high, const gmt_color& from, const gmt_color& to,
                const std::string& label) {
    if (!table_.values.empty()) at_.refuse("mixes single values with ranges");
    if (!(low < high)) at_.refuse("has a range that does not rise");
    if (!table_.parts.empty() && low < table_.parts.back().high.number)
      at_.refuse("begins before the range above it ends");
    constexpr int steps = 16;  // a way through hues is no straight one in red, green and blue
    bool through_hues = from.hsv && to.hsv && *from.hsv != *to.hsv;
    for (int i = 0, n = through_hues ? steps : 1; i < n; ++i) {
      double a = double(i) / n, b = double(i + 1) / n;
      auto mix = [&](double share) {
        three c;
        for (std::size_t k = 0; k < 3; ++k)
          c[k] = (*from.hsv)[k] + ((*to.hsv)[k] - (*from.hsv)[k]) * share;
        return of_hsv(c);
      };
      table_.parts.push_back({{low + (high - low) * a, false},
                              {i + 1 < n ? low + (high - low) * b : high, false},
                              through_hues ? mix(a) : from.color,
                              through_hues ? mix(b) : to.color,
                              label});
    }
  }

  gmt_color read_color(const tokens& parts, std::size_t& next) {
    if (next + components_ > parts.size()) at_.refuse("has a value without a colour");
    if (components_ == 1) return read_word(parts[next++]);
    tokens own(parts.begin() + static_cast<std::ptrdiff_t>(next),
               parts.begin() + static_cast<std::ptrdiff_t>(next + components_));
    next += components_;
    return of_components(own, components_ == 4 ? "CMYK" : model_);
  }

  gmt_color read_word(std::string_view word) {
    std::size_t percent = word.find('@');
    std::string_view text = word.substr(0, percent);
    gmt_color read;
    if (text.empty()) at_.refuse_text(word, "colour");
    if (text == "-") {
      read.color = {0, 0, 0, 255};
    } else if (text.front() == '#') {
      read.color = of_hexadecimal(text);
    } else if (text.find('/') != std::string_view::npos) {
      tokens own = split(text, "/");
      read = of_components(own, own.size() == 4 ? "CMYK" : "RGB");
    } else if (number_in(text)) {
      std::uint8_t level = at_.byte(text);
      read.color = {level, level, level, 0};
    } else if (tokens own = split(text, "-"); own.size() == 3 && number_in(own[0])) {
      read = of_components(own, "HSV");
    } else if (auto named = color_of_name(text)) {
      read.color = *named;
    } else {
      at_.refuse_text(text, "colour");
    }
    if (percent != std::string_view::npos)
      read.color.a = at_.byte(at_.number(word.substr(percent + 1)) * 2.55, word);
    return read;
  }

  gmt_color of_components(const tokens& own, std::string_view model) {
    if (own.size() != (model == "CMYK" ? 4 : 3))
      at_.refuse("has a colour of too few or many numbers");
    gmt_color read;
    if (model == "HSV") {
      read.hsv = three{in_range(own[0], 360), in_range(own[1], 1), in_range(own[2], 1)};
      read.color = of_hsv(*read.hsv);
    } else if (model == "CMYK") {
      double black = 1 - in_range(own[3], 100) / 100;
      auto ink = [&](std::size_t i) {
        return static_cast<std::uint8_t>((1 - in_range(own[i], 100) / 100) * black * 255 + 0.5);
      };
      read.color = {ink(0), ink(1), ink(2), 0};
    } else {
      read.color = {at_.byte(own[0]), at_.byte(own[1]), at_.byte(own[2]), 0};
    }
    return read;
  }

  double in_range(std::string_view text, double most) const {
    double value = at_.number(text);
    if (!(value >= 0 && value <= most)) at_.refuse_text(text, "share of a colour");
    return value;
  }

  Tzu_color of_hexadecimal(std::string_view text) const {
    std::uint32_t rgb = 0;
    auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), rgb, 16);
    if (text.size() != 7 || error != std::errc() || end != text.data() + 7)
      at_.refuse_text(text, "colour");
    return {static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
            static_cast<std::uint8_t>(rgb), 0};
  }

  lines at_;
  color_table table_;
  std::string model_ = "RGB";
  std::size_t components_ = 1;  // of a colour in the line at hand; 1: a word
};

// --- QGIS

Tzu_color bytes_of(const lines& at, const tokens& parts, std::size_t first) {
  bool has_opacity = parts.size() > first + 3;
  std::uint8_t opacity = has_opacity ? at.byte(parts[first + 3]) : 255;
  return {at.byte(parts[first]), at.byte(parts[first + 1]), at.byte(parts[first + 2]),
          static_cast<std::uint8_t>(255 - opacity)};
}

struct qgis_line {
  std::string_view value;
  Tzu_color color;
  std::string label;
};

std::vector<qgis_line> lines_of_qgis(lines& at, std::string& method) {
  std::vector<qgis_line> all;
  while (at.next()) {
    std::string_view line = at.line();
    if (line.front() == '#') continue;
    if (begins(line, "INTERPOLATION:")) {
      method = trimmed(line.substr(14));
      if (method != "INTERPOLATED" && method != "DISCRETE" && method != "EXACT")
        at.refuse_text(method, "interpolation; there are INTERPOLATED, DISCRETE and EXACT");
      continue;
    }
    tokens parts = split(line, ",");
    if (parts.size() < 5) at.refuse("needs a value and four parts of a colour");
    std::string_view label =
        parts.size() > 5 ? line.substr(static_cast<std::size_t>(parts[5].data() - line.data()))
                         : std::string_view();
    parts.resize(5);
    for (std::string_view& part : parts) part = trimmed(part);
    if (parts[0] != "inf") at.number(parts[0], "value");
    all.push_back({parts[0], bytes_of(at, parts, 1), std::string(trimmed(label))});
  }
  return all;
}

/// Each line is the upper end of a class; below the first there is but its colour.
color_table discrete(const std::vector<qgis_line>& all, const lines& at) {
  color_table table;
  for (std::size_t i = 0; i < all.size(); ++i) {
    const qgis_line& each = all[i];
    if (each.value == "inf") {
      if (i + 1 < all.size()) at.refuse("has a class above the infinite one");
      table.above = each.color;
    } else if (i == 0) {
      table.below = each.color;
    } else {
      double low = *number_in(all[i - 1].value), high = *number_in(each.value);
      if (!(low < high)) at.refuse("has classes that do not rise");
      table.parts.push_back({{low, false}, {high, false}, each.color, each.color, each.label});
    }
  }
  if (table.parts.empty()) at.refuse("needs two values at least");
  return table;
}

color_table read_qgis(const std::string& name, std::string_view text) {
  lines at(name, text);
  std::string method = "INTERPOLATED";
  std::vector<qgis_line> all = lines_of_qgis(at, method);
  if (method == "DISCRETE") return discrete(all, at);
  color_table table;
  std::vector<point> points;
  for (const qgis_line& each : all) {
    if (each.value == "inf") at.refuse("has an infinite value, which goes with DISCRETE");
    table.values.push_back({std::string(each.value), each.color, each.label});
    points.push_back({{*number_in(each.value), false}, each.color, each.label});
  }
  if (method == "INTERPOLATED") return between(std::move(points), at);
  if (table.values.empty()) at.refuse("holds no colours");
  return table;
}

// --- GDAL

/// The colours that GDAL has names for.
std::optional<Tzu_color> gdal_color(std::string_view name) {
  struct named {
    std::string_view name;
    Tzu_color color;
  };
  static constexpr named all[] = {
      {"WHITE", {255, 255, 255, 0}}, {"BLACK", {0, 0, 0, 0}},      {"RED", {255, 0, 0, 0}},
      {"GREEN", {0, 255, 0, 0}},     {"BLUE", {0, 0, 255, 0}},     {"YELLOW", {255, 255, 0, 0}},
      {"MAGENTA", {255, 0, 255, 0}}, {"CYAN", {0, 255, 255, 0}},   {"AQUA", {0, 191, 191, 0}},
      {"GREY", {191, 191, 191, 0}},  {"GRAY", {191, 191, 191, 0}}, {"ORANGE", {255, 127, 0, 0}},
      {"BROWN", {191, 127, 63, 0}},  {"PURPLE", {127, 0, 255, 0}}, {"VIOLET", {127, 0, 255, 0}},
      {"INDIGO", {0, 127, 255, 0}}};
  for (const named& each : all)
    if (each.name == name) return each.color;
  return {};
}

color_table read_gdal(const std::string& name, std::string_view text) {
  lines at(name, text);
  std::vector<point> points;
  std::optional<Tzu_color> nodata, otherwise;
  while (at.next()) {
    if (at.line().front() == '#') continue;
    tokens parts = split(at.line(), " ,\t:");
    if (parts.size() < 2) at.refuse("has a value without a colour");
    Tzu_color color{};
    if (std::optional<Tzu_color> named = gdal_color(upper(parts[1])); named && parts.size() == 2)
      color = *named;
    else if (parts.size() >= 4 && parts.size() <= 5)
      color = bytes_of(at, parts, 1);
    else
      at.refuse(parts.size() == 2 ? "\"" + std::string(parts[1]) + "\" is no colour"
                                  : "needs a value and three or four parts of a colour");
    std::string word = upper(parts[0]);
    if (word == "NV") {
      nodata = color;
    } else if (word == "DEFAULT") {
      otherwise = color;
    } else {
      bool is_share = word.back() == '%';
      if (!points.empty() && points.back().value.is_share != is_share)
        at.refuse("mixes values and percentages");
      double number = at.number(std::string_view(word).substr(0, word.size() - is_share), "value");
      points.push_back({{is_share ? number / 100 : number, is_share}, color, ""});
    }
  }
  color_table table = between(std::move(points), at);
  table.other = otherwise ? otherwise : nodata;
  return table;
}

}  // namespace

table_format format_of(const std::string& file, std::string_view text) {
  if (file.size() > 4 && upper(file.substr(file.size() - 4)) == ".CPT") return table_format::gmt;
  std::string_view head = text.substr(0, 4096);
  if (head.find("INTERPOLATION:") != std::string_view::npos || begins(head, "# QGIS Generated"))
    return table_format::qgis;
  return head.find("COLOR_MODEL") != std::string_view::npos ? table_format::gmt
                                                            : table_format::gdal;
}

color_table parse_color_table(const std::string& name, std::string_view text, table_format format) {
  if (format == table_format::gmt) return gmt_reader(name, text).read();
  return format == table_format::qgis ? read_qgis(name, text) : read_gdal(name, text);
}

color_table read_color_table(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  std::string text(longest_text + 1, '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(in.gcount()));
  if (in.bad() || (text.empty() && !in.eof())) throw failure(file, "cannot be read");
  if (text.size() > longest_text) throw failure(file, "is too long for a colour table");
  if (text.find('\0') != std::string::npos) throw failure(file, "is no text");
  return parse_color_table(file, text, format_of(file, text));
}

}  // namespace zu::host
