#pragma once
// What a style draws at which render level.

#include <set>

#include "platform/zuk_styles/symbols.h"

namespace zu::platform {

using level_set = std::set<int32_t>;

// Adds the levels of the parts that show.
void add_levels(const Tzu_pnt_style& style, level_set& levels);
void add_levels(const Tzu_pln_style& style, level_set& levels);
void add_levels(const Tzu_pgn_style& style, level_set& levels);

}  // namespace zu::platform
