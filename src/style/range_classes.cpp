#include "src/style/range_classes.h"

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "zu/platform/zuk_palettes.h"

#include <cmath>
#include <string_view>
#include <vector>

namespace zu::style {
namespace {

constexpr std::uint32_t default_classes = 10;
constexpr std::int32_t default_colors = 5;

/// Style parameters from the lower tail to the upper one.
std::vector<Tzu_stl_prm*> styles_of(Tzu_rng_scale* scale) {
  std::vector<Tzu_stl_prm*> all;
  auto add = [&](Tzu_scale_prm* row) { all.push_back(zu_scale_prm_get_stl_prm_ptr(row)); };
  add(zu_rng_scale_get_min_prm_ptr(scale));
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) add(zu_rng_scale_get_scale_prm_ptr(scale, i));
  add(zu_rng_scale_get_max_prm_ptr(scale));
  return all;
}

// Texts that all parts of the system share.
constexpr std::int32_t below_text = -621, above_text = -622, between_text = -623;

/// The form with each "%ls" replaced, in order.
std::wstring filled(std::wstring form, const std::vector<std::wstring>& parts) {
  constexpr std::wstring_view mark = L"%ls";
  std::size_t place = 0;
  for (const std::wstring& part : parts) {
    place = form.find(mark, place);
    if (place == std::wstring::npos) break;
    form.replace(place, mark.size(), part);
    place += part.size();
  }
  return form;
}

}  // namespace

void set_equal_intervals(Tzu_rng_scale* scale, std::uint32_t count, double minimum,
                         double maximum) {
  zu_rng_scale_set_size(scale, count == 0 ? 1 : count);
  zu_rng_scale_set_min_value(scale, minimum);
  if (count == 0) {
    zu_rng_scale_set_min(scale, 0, minimum);
    zu_rng_scale_set_max(scale, 0, maximum);
    zu_rng_scale_set_max_value(scale, maximum);
    return;
  }
  double step = (maximum - minimum) / count;
  if (!std::isfinite(step)) step = 0.0;
  for (std::uint32_t i = 0; i < count; ++i) {
    zu_rng_scale_set_min(scale, i, minimum + i * step);
    zu_rng_scale_set_max(scale, i, minimum + (i + 1.0) * step);
  }
  zu_rng_scale_set_max_value(scale, minimum + count * step);
}

void round_boundaries(Tzu_rng_scale* scale, std::int32_t digits) {
  if (digits == zu_no_rounding) return;
  double to_units = std::pow(10.0, -digits), from_units = std::pow(10.0, digits);
  auto rounded = [&](double x) {
    double size = std::floor(std::abs(x) * to_units + 0.5) * from_units;
    return x < 0.0 ? -size : size;
  };
  zu_rng_scale_set_min_value(scale, rounded(zu_rng_scale_get_min_value(scale)));
  zu_rng_scale_set_max_value(scale, rounded(zu_rng_scale_get_max_value(scale)));
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) {
    zu_rng_scale_set_min(scale, i, rounded(zu_rng_scale_get_min(scale, i)));
    zu_rng_scale_set_max(scale, i, rounded(zu_rng_scale_get_max(scale, i)));
  }
}

void set_captions(Tzu_rng_scale* scale) {
  std::int32_t digits = zu_rng_scale_get_round_digits(scale);
  auto number = [&](double value) {
    return text_of([&](Tzu_string_adp* a) { zu_round_digits_format_number(digits, value, a); });
  };
  std::wstring below = load_text(below_text) + number(zu_rng_scale_get_min_value(scale));
  std::wstring above = load_text(above_text) + number(zu_rng_scale_get_max_value(scale));
  zu_rng_scale_set_min_caption_w(scale, below.c_str());
  zu_rng_scale_set_max_caption_w(scale, above.c_str());
  const std::wstring form = load_text(between_text);
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) {
    std::wstring between = filled(
        form, {number(zu_rng_scale_get_min(scale, i)), number(zu_rng_scale_get_max(scale, i))});
    zu_rng_scale_set_caption_w(scale, i, between.c_str());
  }
}

bool spread_colors(Tzu_rng_scale* scale, std::int32_t array) {
  std::vector<Tzu_stl_prm*> styles = styles_of(scale);
  std::vector<Tzu_color> colors;
  colors.reserve(styles.size());
  for (Tzu_stl_prm* style : styles) colors.push_back(*zu_stl_prm_get_clr_style_ptr(style, 0));
  if (!zu_clr_arrays_generate_ex(array, colors.size(), colors.data(), 0)) return false;
  for (std::size_t i = 0; i < styles.size(); ++i) zu_stl_prm_clr_set_all(styles[i], colors[i], 0);
  return true;
}

bool fill_range_scale(Tzu_rng_scale* scale, const data::open_reference& source,
                      const std::wstring& field) {
  data::grid_datasource grid;
  if (scale == nullptr || !grid.open(source, data::open_read_only)) return false;
  std::int64_t index = grid.find_field(field);
  if (index < 0) return false;
  set_equal_intervals(scale, default_classes, grid.field_minimum(index), grid.field_maximum(index));
  zu_rng_scale_set_rng_type(scale, zu_range_equal);
  round_boundaries(scale, zu_rng_scale_get_round_digits(scale));
  set_captions(scale);
  return spread_colors(scale, default_colors);
}

}  // namespace zu::style
