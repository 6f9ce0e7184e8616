#include "src/style/classes/builders.h"

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "zu/platform/zuk_palettes.h"

#include <cmath>
#include <string_view>

namespace zu::style {
namespace {

// Texts that all parts of the system share.
constexpr std::int32_t below_text = -621, above_text = -622, between_text = -623;

std::wstring number(const Tzu_rng_scale* scale, double value) {
  std::int32_t digits = zu_rng_scale_get_round_digits(scale);
  return text_of([&](Tzu_string_adp* a) { zu_round_digits_format_number(digits, value, a); });
}

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

void round_boundaries(Tzu_rng_scale* scale, std::int32_t digits) {
  if (digits == zu_no_rounding) return;
  double to_units = std::pow(10.0, -digits), from_units = std::pow(10.0, digits);
  auto rounded = [&](double x) {
    double size = std::floor(std::abs(x) * to_units + 0.5) * from_units;
    return x < 0.0 && size > 0.0 ? -size : size;
  };
  zu_rng_scale_set_min_value(scale, rounded(zu_rng_scale_get_min_value(scale)));
  zu_rng_scale_set_max_value(scale, rounded(zu_rng_scale_get_max_value(scale)));
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) {
    zu_rng_scale_set_min(scale, i, rounded(zu_rng_scale_get_min(scale, i)));
    zu_rng_scale_set_max(scale, i, rounded(zu_rng_scale_get_max(scale, i)));
  }
}

std::wstring lower_caption(const Tzu_rng_scale* scale) {
  return load_text(below_text) + number(scale, zu_rng_scale_get_min_value(scale));
}
std::wstring upper_caption(const Tzu_rng_scale* scale) {
  return load_text(above_text) + number(scale, zu_rng_scale_get_max_value(scale));
}
std::wstring class_caption(const Tzu_rng_scale* scale, std::uint64_t index, caption_form form) {
  std::wstring low = number(scale, zu_rng_scale_get_min(scale, index));
  std::wstring high = number(scale, zu_rng_scale_get_max(scale, index));
  if (form == caption_form::minimum) return low;
  if (form == caption_form::maximum) return high;
  return filled(load_text(between_text), {low, high});
}

void captions(Tzu_rng_scale* scale, caption_form form) {
  zu_rng_scale_set_min_caption_w(scale, lower_caption(scale).c_str());
  zu_rng_scale_set_max_caption_w(scale, upper_caption(scale).c_str());
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i)
    zu_rng_scale_set_caption_w(scale, i, class_caption(scale, i, form).c_str());
}

std::vector<Tzu_stl_prm*> row_styles(Tzu_rng_scale* scale) {
  std::vector<Tzu_stl_prm*> all;
  auto add = [&](Tzu_scale_prm* row) { all.push_back(zu_scale_prm_get_stl_prm_ptr(row)); };
  add(zu_rng_scale_get_min_prm_ptr(scale));
  std::uint64_t size = zu_rng_scale_get_size(scale);
  for (std::uint64_t i = 0; i < size; ++i) add(zu_rng_scale_get_scale_prm_ptr(scale, i));
  add(zu_rng_scale_get_max_prm_ptr(scale));
  return all;
}

bool spread_colors(Tzu_rng_scale* scale, std::int32_t array) {
  std::vector<Tzu_stl_prm*> styles = row_styles(scale);
  std::vector<Tzu_color> colors;
  colors.reserve(styles.size());
  for (Tzu_stl_prm* style : styles) colors.push_back(*zu_stl_prm_get_clr_style_ptr(style, 0));
  if (!zu_clr_arrays_generate_ex(array, colors.size(), colors.data(),
                                 zu_clr_arrays_is_of_kinds(array)))
    return false;
  for (std::size_t i = 0; i < styles.size(); ++i) zu_stl_prm_clr_set_all(styles[i], colors[i], 0);
  return true;
}

}  // namespace zu::style
