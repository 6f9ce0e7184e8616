#pragma once
// Classes of a range scale from the values of a field, and their colours.

#include <cstdint>
#include <string>

#include "src/data/grid_datasource.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

/// `count` classes of one width between the limits, tails outside of them; the limits are taken as
/// they are, also falling. Count 0 gives one class. A width that is no finite number becomes 0.
void set_equal_intervals(Tzu_rng_scale* scale, std::uint32_t count, double minimum, double maximum);

/// Rounds all boundaries to multiples of ten to the power `digits`, halves away from zero. -30
/// leaves them as they are.
void round_boundaries(Tzu_rng_scale* scale, std::int32_t digits);

/// Captions of all rows from their boundaries, in the language in force; "other" keeps its own.
void set_captions(Tzu_rng_scale* scale);

/// Spreads a numbered array of colours over lower tail, classes and upper tail; transparencies
/// stay. False, and nothing changed, if there is no such array.
bool spread_colors(Tzu_rng_scale* scale, std::int32_t array);

/// Ten equal intervals between the limits of a field, rounded as the scale says, with captions,
/// from blue through white to red. False, and nothing changed, if the source does not open or has
/// no such field.
bool fill_range_scale(Tzu_rng_scale* scale, const data::open_reference& source,
                      const std::wstring& field);

}  // namespace zu::style
