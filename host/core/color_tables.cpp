#include "host/core/color_tables.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/core/failure.h"
#include "host/core/numbers.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_io.h"

namespace zu::host {
namespace {

constexpr std::size_t most_classes = 256;
constexpr int bytes_a_step = 4;

Tzu_color mixed(Tzu_color from, Tzu_color to, double share) {
  auto byte = [&](std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(a + (b - a) * share + 0.5);
  };
  return {byte(from.r, to.r), byte(from.g, to.g), byte(from.b, to.b), byte(from.a, to.a)};
}

/// Classes that a part would become if there were room for any number.
std::size_t steps_of(const table_part& part) {
  int most = std::max({std::abs(part.from.r - part.to.r), std::abs(part.from.g - part.to.g),
                       std::abs(part.from.b - part.to.b), std::abs(part.from.a - part.to.a)});
  return static_cast<std::size_t>(std::max(1, (most + bytes_a_step - 1) / bytes_a_step));
}

struct made_class {
  double low, high;
  Tzu_color color;
  std::string label;
};

std::vector<made_class> classes_of(const color_table& table, std::pair<double, double> limits) {
  auto value = [&](const table_value& v) {
    return v.is_share ? limits.first + (limits.second - limits.first) * v.number : v.number;
  };
  std::size_t wanted = 0;
  for (const table_part& part : table.parts) wanted += steps_of(part);
  double room = std::min(1.0, static_cast<double>(most_classes) / static_cast<double>(wanted));
  std::vector<made_class> all;
  for (const table_part& part : table.parts) {
    double low = value(part.low), high = value(part.high);
    auto steps = static_cast<std::size_t>(static_cast<double>(steps_of(part)) * room);
    steps = std::max<std::size_t>(steps, 1);
    for (std::size_t i = 0; i < steps; ++i) {
      double share = 1.0 / static_cast<double>(steps), begin = static_cast<double>(i) * share;
      bool is_last = i + 1 == steps;
      all.push_back({low + (high - low) * begin,
                     is_last ? high : low + (high - low) * (static_cast<double>(i + 1) * share),
                     mixed(part.from, part.to, begin + share / 2), steps == 1 ? part.label : ""});
    }
  }
  return all;
}

void paint(Tzu_scale_prm* row, const std::optional<Tzu_color>& color) {
  zu_scale_prm_set_visible(row, color.has_value());
  if (color) zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(row), *color, 0);
}

void apply_values(const color_table& table, Tzu_val_scale* scale) {
  zu_val_scale_set_size(scale, table.values.size());
  for (std::size_t i = 0; i < table.values.size(); ++i) {
    const table_entry& entry = table.values[i];
    zu_val_scale_set_text_w(scale, i, wide(entry.value).c_str());
    zu_val_scale_set_caption_w(scale, i, wide(entry.label).c_str());
    paint(zu_val_scale_get_scale_prm_ptr(scale, i), entry.color);
  }
  paint(zu_val_scale_get_other_prm_ptr(scale), table.other);
}

void apply_parts(const color_table& table, std::pair<double, double> limits, Tzu_rng_scale* scale) {
  std::vector<made_class> classes = classes_of(table, limits);
  zu_rng_scale_set_size(scale, classes.size());
  zu_rng_scale_set_rng_type(scale, zu_range_manual);
  zu_rng_scale_set_min_value(scale, classes.front().low);
  zu_rng_scale_set_max_value(scale, classes.back().high);
  paint(zu_rng_scale_get_min_prm_ptr(scale), table.below);
  paint(zu_rng_scale_get_max_prm_ptr(scale), table.above);
  for (std::size_t i = 0; i < classes.size(); ++i) {
    zu_rng_scale_set_min(scale, i, classes[i].low);
    zu_rng_scale_set_max(scale, i, classes[i].high);
    zu_rng_scale_set_caption_w(scale, i, wide(classes[i].label).c_str());
    paint(zu_rng_scale_get_scale_prm_ptr(scale, i), classes[i].color);
  }
  paint(zu_rng_scale_get_other_prm_ptr(scale), table.other);
}

/// What a scale draws: rows that are hidden have no colour.
std::optional<Tzu_color> color_of(Tzu_scale_prm* row) {
  if (!zu_scale_prm_get_visible(row)) return {};
  return zu_stl_prm_get_color(zu_scale_prm_get_stl_prm_ptr(row), 0);
}

struct scale_colors {
  explicit scale_colors(Tzu_rng_scale* scale)
      : minimum(zu_rng_scale_get_min_value(scale)),
        maximum(zu_rng_scale_get_max_value(scale)),
        below(color_of(zu_rng_scale_get_min_prm_ptr(scale))),
        above(color_of(zu_rng_scale_get_max_prm_ptr(scale))),
        other(color_of(zu_rng_scale_get_other_prm_ptr(scale))) {
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
      std::string label =
          narrow(text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, i, a); }));
      std::replace_if(
          label.begin(), label.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
      classes.push_back({zu_rng_scale_get_min(scale, i), zu_rng_scale_get_max(scale, i),
                         color_of(zu_rng_scale_get_scale_prm_ptr(scale, i)), std::move(label)});
    }
  }
  struct one {
    double low, high;
    std::optional<Tzu_color> color;
    std::string label;
  };
  double minimum, maximum;
  std::vector<one> classes;
  std::optional<Tzu_color> below, above, other;
};

std::string numbers(std::initializer_list<int> all, char between) {
  std::string text;
  for (int each : all) {
    if (!text.empty()) text += between;
    text += std::to_string(each);
  }
  return text;
}

std::string gmt_color(const std::optional<Tzu_color>& c) {
  if (!c || c->a == 255) return "-";
  std::string text = numbers({c->r, c->g, c->b}, '/');
  return c->a == 0 ? text : text + "@" + text_of_number(std::round(c->a / 2.55));
}

std::string gmt_text(const scale_colors& scale) {
  std::string text = "# COLOR_MODEL = RGB\n";
  for (const auto& each : scale.classes) {
    const std::string color = gmt_color(each.color);
    text += text_of_number(each.low) + '\t' + color;
    text += '\t' + text_of_number(each.high) + '\t' + color;
    if (!each.label.empty()) text += "\t;" + each.label;
    text += '\n';
  }
  return text + "B\t" + gmt_color(scale.below) + "\nF\t" + gmt_color(scale.above) + "\nN\t" +
         gmt_color(scale.other) + '\n';
}

/// Red, green, blue and opacity.
std::string four(const std::optional<Tzu_color>& c, char between) {
  return c ? numbers({c->r, c->g, c->b, 255 - c->a}, between) : numbers({0, 0, 0, 0}, between);
}

std::string qgis_text(const scale_colors& scale) {
  std::string text = "# QGIS Generated Color Map Export File\nINTERPOLATION:DISCRETE\n";
  auto line = [&](const std::string& value, const std::optional<Tzu_color>& color,
                  const std::string& label) {
    text += value + ',' + four(color, ',') + ',' + (label.empty() ? value : label) + '\n';
  };
  double end = scale.minimum;
  line(text_of_number(end), scale.below, "");
  for (const auto& each : scale.classes) {
    if (each.low > end) line(text_of_number(each.low), scale.other, "");
    line(text_of_number(each.high), each.color, each.label);
    end = each.high;
  }
  if (scale.maximum > end) line(text_of_number(scale.maximum), scale.other, "");
  line("inf", scale.above, "");
  return text;
}

std::string gdal_text(const scale_colors& scale) {
  std::string text;
  auto line = [&](double value, const std::optional<Tzu_color>& color) {
    text += text_of_number(value) + ' ' + four(color, ' ') + '\n';
  };
  constexpr double infinity = std::numeric_limits<double>::infinity();
  // A class is two points: colours are mixed between points, and none lies between these.
  auto range = [&](double low, double high, const std::optional<Tzu_color>& color) {
    line(std::nextafter(low, infinity), color);
    line(high, color);
  };
  double end = scale.minimum;
  line(end, scale.below);
  for (const auto& each : scale.classes) {
    if (each.low > end) range(end, each.low, scale.other);
    range(each.low, each.high, each.color);
    end = each.high;
  }
  if (scale.maximum > end) range(end, scale.maximum, scale.other), end = scale.maximum;
  line(std::nextafter(end, infinity), scale.above);
  return text + "nv " + four(scale.other, ' ') + '\n';
}

}  // namespace

bool color_table::has_shares() const {
  return std::any_of(parts.begin(), parts.end(),
                     [](const table_part& part) { return part.low.is_share; });
}

void apply_color_table(const color_table& table, std::pair<double, double> limits,
                       Tzu_stl_mngr* manager) {
  if (!table.values.empty()) {
    zu_stl_mngr_set_mode(manager, zu_style_value);
    apply_values(table, zu_stl_mngr_get_val_scale_ptr(manager));
  } else if (!table.parts.empty()) {
    zu_stl_mngr_set_mode(manager, zu_style_range);
    apply_parts(table, limits, zu_stl_mngr_get_rng_scale_ptr(manager));
  }
}

std::string text_of_scale(Tzu_rng_scale* scale, table_format format) {
  scale_colors colors(scale);
  if (colors.classes.empty()) return {};
  if (format == table_format::gmt) return gmt_text(colors);
  return format == table_format::qgis ? qgis_text(colors) : gdal_text(colors);
}

void write_color_table(const std::string& file, Tzu_rng_scale* scale) {
  auto ends = [&](const std::string& end) {
    return file.size() >= end.size() &&
           file.compare(file.size() - end.size(), end.size(), end) == 0;
  };
  std::string text = text_of_scale(scale, ends(".cpt")        ? table_format::gmt
                                          : ends(".qgis.txt") ? table_format::qgis
                                                              : table_format::gdal);
  if (text.empty()) throw failure(file, "the scale has no classes");
  bool written = false;
  std::wstring reason = text_of([&](Tzu_string_adp* adapter) {
    written = zu_io_write_file_w(wide(file).c_str(), text.data(), text.size(), adapter);
  });
  if (!written) throw failure(file, narrow(reason));
}

}  // namespace zu::host
