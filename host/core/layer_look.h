#pragma once
// What a person asks of a layer's look, and how a layer takes it.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/core/classes.h"
#include "host/core/color_tables.h"
#include "host/core/scene.h"
#include "zu/platform/zuk_styles.h"

namespace zu::host {

/// The shade of the relief. Degrees; azimuth clockwise from the north of the map.
struct hillshade_look {
  std::string field;  ///< empty: the coloured one
  double z_factor = 1, altitude = 45, azimuth = 315;
  double part = 0.5;  ///< of the shade in the colour, 0 to 1
  bool multidirectional = false;
};

/// Lines of equal value. Steps in the unit of the field.
struct isoline_look {
  std::string field;                 ///< empty: the coloured one
  std::optional<double> thin, bold;  ///< none: from the other one, or `default_thin_step`
  bool label = false;                ///< numbers on the bold lines
};

/// Steps of isolines where none is asked for and the field's range takes them.
inline constexpr double default_thin_step = 10, default_bold_step = 50;

struct layer_look {
  std::optional<draw_type> draw;                    ///< none: the source's own
  std::string field;                                ///< empty: the default one
  std::vector<std::string> rgb;                     ///< three names, or none
  std::optional<std::pair<double, double>> limits;  ///< of gray or rgb; none: the field's
  std::vector<double> breaks;                       ///< n + 1 rising ones; none: from the data
  class_builder_service builder;                    ///< for the next two
  std::optional<class_request> classes;             ///< breaks that are made of the field
  bool unique_values = false;                       ///< a value scale of the field's own values
  std::vector<Tzu_color> colors;                    ///< n + 2, n with hidden tails, or none
  std::optional<std::int32_t> gradient;             ///< array of the colours; none: the default one
  std::optional<color_table> table;                 ///< the whole scale
  std::string scale_file;                           ///< of the whole scale; empty: none
  std::vector<std::pair<std::string, Tzu_color>> values;  ///< a value scale
  std::optional<Tzu_color> simple;
  std::optional<Tzu_color> other;  ///< of what no class or value holds; none: invisible
  bool interpolate = false;
  int transparency = 0;  ///< percent
  std::optional<hillshade_look> hillshade;
  std::optional<isoline_look> isolines;
  std::optional<std::int64_t> slice;  ///< of a volume, from 0

  bool colors_nothing_but_lines() const {
    return !draw && field.empty() && rgb.empty() && breaks.empty() && colors.empty() &&
           values.empty() && !classes && !unique_values && !gradient && !table &&
           scale_file.empty() && !other && !hillshade && !isolines && !slice;
  }
  bool styles_a_scale() const {
    return !field.empty() || !breaks.empty() || !colors.empty() || !values.empty() || simple ||
           classes || unique_values || gradient || table || !scale_file.empty() || other;
  }
};

/// Number of classes of a default scale.
inline constexpr std::size_t default_classes = 10;

/// Why a layer cannot take a look: an unknown field, bands that make no image, no slices. Empty if
/// it can.
std::string why_not(const layer_look& look, const layer& dressed);

/// Gives a layer the look. Throws `failure` with `why_not`.
void apply_look(const layer_look& look, layer& dressed);

/// Colours a layer by what a file holds: the scale of a scale page, a legend of ArcView, or a
/// colour table of another program. A table, and a scale whose field the layer lacks, colour the
/// field that the layer is coloured by, else the default one. Throws `failure` with the file and
/// the reason; the layer is then as it was.
void load_colors(const std::string& file, layer& dressed);
/// Writes the scale of a layer: "._rg" or "._vl" as scale pages do, ".cpt", ".qgis.txt" or anything
/// else as a colour table of classes. Throws `failure`.
void save_colors(const std::string& file, const layer& dressed);

/// Gives every layer of a scene the look that it can take, and the others its transparency alone.
/// Throws `failure` if none can take it.
void dress(scene& dressed, const layer_look& look);

}  // namespace zu::host
