#pragma once
// Dashes of a line as a person types them: lengths on, off, … in millimetres, blanks between.

#include <optional>
#include <string>
#include <vector>

#include "zu/platform/zuk_symbols.h"

namespace zu::style::detail {

/// Empty for a solid line.
std::wstring dash_text(const Tzu_bpln_style* line);
/// The lengths of a text; nothing if one of them is no length, if they are more than a line takes,
/// or if none is above 0.
std::optional<std::vector<double>> parse_dashes(const std::wstring& text);

}  // namespace zu::style::detail
