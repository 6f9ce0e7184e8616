#pragma once
// What an ArcView legend says, without its form.

#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_style_libs/odb_file.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {

/// A symbol of any kind; lengths are millimetres.
struct legend_symbol {
  enum class kinds { marker, line, shade };
  kinds kind = kinds::shade;
  Tzu_color color{};
  double size = 0.0;   ///< of a marker
  double angle = 0.0;  ///< of a marker, degrees counter-clockwise
  double width = 0.0;  ///< of a line
  std::vector<double> dashes;
  Tzu_color outline{};  ///< of a shade
  double outline_width = 0.0;
};

struct legend_class {
  std::wstring caption;
  std::optional<double> minimum, maximum;
  std::optional<std::wstring> text;  ///< the value of a class of texts
  std::optional<legend_symbol> symbol;
};

struct arcview_legend {
  enum class forms { single, values, ranges };
  forms form = forms::single;
  std::wstring field;  ///< empty if the legend names none
  std::vector<legend_class> classes;
  /// Of what no class holds: the class of all other values or, without it, that of no data.
  std::optional<legend_class> other;
};

/// Reads a legend. Composite symbols count as their first part, fills of patterns as their
/// background. Throws std::runtime_error if there is none, or it has no class with a symbol.
arcview_legend legend_in(const odb_file& file);

}  // namespace zu::platform
