#pragma once
// Class boundaries of a range scale by seven methods. Each builder stores its type and digits in
// the scale, sets the boundaries, rounds them and makes the captions anew; styles of rows stay.

#include <cstdint>
#include <string>
#include <vector>

#include "src/data/generic_datasource.h"
#include "zu/platform/zuk_stat.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

// `digits` of all records: boundaries become multiples of ten to this power; `zu_no_rounding`
// leaves them as they are.

struct equal_params {
  std::uint32_t count;
  double minimum, maximum;
  std::int32_t digits;
};
struct quantile_params {
  const Tzu_histogramm_data* histogram;
  std::uint32_t count;
  double minimum, maximum;
  std::int32_t digits;
};
struct deviation_params {
  std::uint32_t count;
  double mean, deviation;
  double coefficient;  ///< deviations from the mean to either outer boundary
  std::int32_t digits;
};
struct logarithmic_params {
  std::int32_t start;  ///< the first boundary's index into {1, 2, 5}
  std::int32_t power;  ///< of ten in the first boundary; the digits of the rounding too
  double minimum, maximum;
  std::uint8_t two_sided;  ///< negative boundaries too, else 0 below the first one
};
struct geometrical_params {
  std::uint32_t count;
  double minimum, maximum;
  std::int32_t digits;
};
struct natural_params {
  std::wstring field;
  std::uint32_t count;
  double minimum, maximum;
  std::int32_t digits;
};
struct class_limits {
  double minimum, maximum;
};

/// Classes of one width; the limits are taken as they are, also falling. Count 0 gives one class.
/// A width that is no finite number becomes 0.
void set_equal_intervals(Tzu_rng_scale* scale, const equal_params& params);

/// Classes of about as many values each, by the histogram's cumulative curve. The curve's height
/// at the minimum enters through the step alone. Without histogram or classes only the outer
/// boundaries and the size are set. Falling limits are swapped.
void set_quantiles(Tzu_rng_scale* scale, const quantile_params& params);

/// Equal intervals between mean - coefficient * deviation and mean + coefficient * deviation. Count
/// 0 leaves no classes, and tails that meet at the mean.
void set_deviation_classes(Tzu_rng_scale* scale, const deviation_params& params);

/// Boundaries of the sequence 1, 2, 5, 10, 20, … up to the first that is not below the maximum.
void set_logarithmic(Tzu_rng_scale* scale, const logarithmic_params& params);

/// Boundaries of equal ratio; where the minimum is not above 0 the values are moved to begin at 1.
/// Falling limits are swapped. Count 0 leaves no classes, and tails that meet at 0.
void set_geometrical(Tzu_rng_scale* scale, const geometrical_params& params);

/// Natural breaks of a sample of at most 3,000 values of the field between the limits. Falling
/// limits are swapped. A source that does not open, or has no such field, leaves the classes as
/// they are; rounding and captions follow all the same. `seed` makes the sample the same each time;
/// null takes another one each time.
void set_natural_breaks(Tzu_rng_scale* scale, const data::open_reference& source,
                        const natural_params& params, const std::uint32_t* seed = nullptr);

/// The same of a sample that is there already.
void set_natural_breaks(Tzu_rng_scale* scale, std::vector<double> sample,
                        const natural_params& params);

/// The classes as they are given. Captions are of the numbers before they are rounded.
void set_manual(Tzu_rng_scale* scale, const std::vector<class_limits>& rows, std::int32_t digits);

/// Boundaries of the logarithmic method, rising.
std::vector<double> logarithmic_boundaries(const logarithmic_params& params);

/// Rounds all boundaries to multiples of ten to the power `digits`, halves away from zero.
void round_boundaries(Tzu_rng_scale* scale, std::int32_t digits);

/// What captions of classes are made of.
enum class caption_form { both = 1, minimum = 2, maximum = 3 };
/// Captions of all rows from their boundaries, in the language in force; "other" keeps its own.
/// The tails keep theirs in every form.
void captions(Tzu_rng_scale* scale, caption_form form = caption_form::both);
/// What a tail or a class is called by its limits, rounded as the scale says.
std::wstring lower_caption(const Tzu_rng_scale* scale);
std::wstring upper_caption(const Tzu_rng_scale* scale);
std::wstring class_caption(const Tzu_rng_scale* scale, std::uint64_t index,
                           caption_form form = caption_form::both);

/// The array of scales that data have filled: from blue through white to red.
inline constexpr std::int32_t default_colors = 5;
/// Of lower tail, classes and upper tail; not owned.
std::vector<Tzu_stl_prm*> row_styles(Tzu_rng_scale* scale);
/// Spreads a numbered array of colours over lower tail, classes and upper tail, or gives them in
/// turn if it is one of kinds; transparencies stay. False, and nothing changed, if there is no such
/// array.
bool spread_colors(Tzu_rng_scale* scale, std::int32_t array);

}  // namespace zu::style
