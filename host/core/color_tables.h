#pragma once
// Colour tables of other programs: .cpt files of GMT, colour maps that QGIS exports, and colour
// relief of GDAL.

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "zu/platform/zuk_styles.h"

namespace zu::host {

/// A value in the unit of the field, or a share of its range, 0 to 1.
struct table_value {
  double number = 0;
  bool is_share = false;
};

/// Values of a range, whose colour runs from one to another; `low` alone is where it begins.
struct table_part {
  table_value low, high;
  Tzu_color from{}, to{};
  std::string label;
};

/// One value and its colour.
struct table_entry {
  std::string value;  ///< a number as it is written
  Tzu_color color{};
  std::string label;
};

/// Either parts, rising and apart from one another, or values.
struct color_table {
  std::vector<table_part> parts;
  std::vector<table_entry> values;
  std::optional<Tzu_color> below, above;  ///< the parts; none: not drawn
  std::optional<Tzu_color> other;         ///< of what nothing else holds; none: not drawn

  bool has_shares() const;
};

enum class table_format { gmt, qgis, gdal };

/// By the name's ending ".cpt", else by the first lines; else GDAL's.
table_format format_of(const std::string& file, std::string_view text);
/// Throws `failure` with the file, the line and the reason.
color_table read_color_table(const std::string& file);
/// The same of a text that is called `name` in the reason.
color_table parse_color_table(const std::string& name, std::string_view text, table_format format);

/// Classes and tails of a range scale, or rows of a value scale; the manager's mode follows. The
/// colour of a part of one colour is that of its class. A part along which the colour runs becomes
/// as many classes of equal width as the colour has steps of a few bytes, and each has the colour
/// of its middle; all parts together become at most 256, or one each where there are more. `limits`
/// are those of the field, for shares.
void apply_color_table(const color_table& table, std::pair<double, double> limits,
                       Tzu_stl_mngr* manager);

/// A range scale as a table of that format, its visible classes with their captions. Boundaries
/// hold as each program has them: GDAL and QGIS take a boundary into the class below, as here, GMT
/// into the one above.
std::string text_of_scale(Tzu_rng_scale* scale, table_format format);
/// Writes it whole or not at all: ".cpt" for GMT, ".qgis.txt" as an export of QGIS, anything else
/// for GDAL. Throws `failure`.
void write_color_table(const std::string& file, Tzu_rng_scale* scale);

}  // namespace zu::host
