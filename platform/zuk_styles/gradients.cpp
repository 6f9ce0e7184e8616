// Rows between two ends take what lies evenly between them.

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/scales.h"

using zu::platform::guarded;
using zu::platform::range_scale;
using zu::platform::value_scale;
using zu::platform::whole;

namespace zu::platform {
namespace {

using styles = std::vector<Tzu_stl_prm*>;
/// Changes the styles `index` of all but the first and the last.
using gradient = void (*)(const styles&, int index);

double between(double a, double b, double share) { return a + (b - a) * share; }

uint8_t byte(double value) {
  return static_cast<uint8_t>(std::clamp(std::floor(value + 0.5), 0.0, 255.0));
}

/// `change(style, share)` for each row between the ends.
template <class change> void for_inner(const styles& rows, change c) {
  for (std::size_t i = 1; i + 1 < rows.size(); ++i)
    c(*rows[i], static_cast<double>(i) / static_cast<double>(rows.size() - 1));
}

void spread_colors(const styles& rows, int index) {
  Tzu_color a = color_of(*rows.front(), index), b = color_of(*rows.back(), index);
  for_inner(rows, [&](Tzu_stl_prm& style, double t) {
    set_color(style, index,
              {byte(between(a.r, b.r, t)), byte(between(a.g, b.g, t)), byte(between(a.b, b.b, t)),
               color_of(style, index).a});
  });
}

void spread_transparency(const styles& rows, int index) {
  double a = color_of(*rows.front(), index).a, b = color_of(*rows.back(), index).a;
  for_inner(rows, [&](Tzu_stl_prm& style, double t) {
    Tzu_color color = color_of(style, index);
    color.a = byte(between(a, b, t));
    set_color(style, index, color);
  });
}

/// Hue in sixths of the circle, 0 to 6; none of a gray.
std::optional<double> hue_of(Tzu_color c) {
  double high = std::max({c.r, c.g, c.b}), low = std::min({c.r, c.g, c.b}), width = high - low;
  if (width == 0.0) return {};
  if (c.r == high) return std::fmod((c.g - c.b) / width + 6.0, 6.0);
  if (c.g == high) return (c.b - c.r) / width + 2.0;
  return (c.r - c.g) / width + 4.0;
}

/// The colour with another hue: its highest and lowest part stay the highest and lowest.
Tzu_color with_hue(Tzu_color c, double hue) {
  double high = std::max({c.r, c.g, c.b}), low = std::min({c.r, c.g, c.b});
  auto part = [&](double of) {  // where on the circle the part is at its highest
    double away = std::abs(std::remainder(hue - of, 6.0));
    return byte(low + (high - low) * std::clamp(2.0 - away, 0.0, 1.0));
  };
  return {part(0.0), part(2.0), part(4.0), c.a};
}

void spread_hue(const styles& rows, int index) {
  std::optional<double> a = hue_of(color_of(*rows.front(), index)),
                        b = hue_of(color_of(*rows.back(), index));
  if (!a && !b) return;
  double from = a.value_or(b.value_or(0.0));
  double way = std::remainder(b.value_or(from) - from, 6.0);
  for_inner(rows, [&](Tzu_stl_prm& style, double t) {
    set_color(style, index, with_hue(color_of(style, index), from + way * t));
  });
}

/// Of each kind of style that an end has.
void spread_sizes(const styles& rows, int index) {
  for (sized kind : all_sized) {
    if (!is_made(*rows.front(), index, kind) && !is_made(*rows.back(), index, kind)) continue;
    double a = size_of(*rows.front(), index, kind), b = size_of(*rows.back(), index, kind);
    for_inner(rows, [&](Tzu_stl_prm& style, double t) {
      set_size(style, index, kind, between(a, b, t));
    });
  }
}

void apply(const styles& rows, int32_t selected, gradient change) {
  if (rows.size() > 2) change(rows, selected != 0);
}

template <class head>
void over_span(head* scale, uint64_t first, uint64_t last, int32_t selected, gradient change) {
  guarded(scale, [&](head& s) {
    styles rows;
    for (uint64_t i = first; i <= last && i < whole(s).classes.size(); ++i)
      rows.push_back(&whole(s).classes[i].row.get()->style);
    apply(rows, selected, change);
  });
}

template <class scale> void add_marked(scale& s, styles& rows) {
  for (auto& c : s.classes)
    if (c.marked) rows.push_back(&c.row.get()->style);
}

void over_marked(Tzu_val_scale* scale, int32_t selected, gradient change) {
  guarded(scale, [&](Tzu_val_scale& s) {
    styles rows;
    add_marked(whole(s), rows);
    apply(rows, selected, change);
  });
}
void over_marked(Tzu_rng_scale* scale, int32_t selected, gradient change) {
  guarded(scale, [&](Tzu_rng_scale& head) {
    range_scale& s = whole(head);
    styles rows;
    if (s.lower_marked) rows.push_back(&s.lower.style);
    add_marked(s, rows);
    if (s.upper_marked) rows.push_back(&s.upper.style);
    apply(rows, selected, change);
  });
}

}  // namespace
}  // namespace zu::platform

using zu::platform::over_marked;
using zu::platform::over_span;
using zu::platform::spread_colors;
using zu::platform::spread_hue;
using zu::platform::spread_sizes;
using zu::platform::spread_transparency;

void zu_rng_scale_clr_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                               int32_t selected) {
  over_span(scale, first, last, selected, spread_colors);
}
void zu_rng_scale_hue_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                               int32_t selected) {
  over_span(scale, first, last, selected, spread_hue);
}
void zu_rng_scale_transparency_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                        int32_t selected) {
  over_span(scale, first, last, selected, spread_transparency);
}
void zu_rng_scale_size_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                int32_t selected) {
  over_span(scale, first, last, selected, spread_sizes);
}
void zu_rng_scale_clr_gradient_marked(Tzu_rng_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_colors);
}
void zu_rng_scale_transparency_gradient_marked(Tzu_rng_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_transparency);
}
void zu_rng_scale_size_gradient_marked(Tzu_rng_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_sizes);
}

void zu_val_scale_clr_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                               int32_t selected) {
  over_span(scale, first, last, selected, spread_colors);
}
void zu_val_scale_transparency_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                                        int32_t selected) {
  over_span(scale, first, last, selected, spread_transparency);
}
void zu_val_scale_size_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                                int32_t selected) {
  over_span(scale, first, last, selected, spread_sizes);
}
void zu_val_scale_clr_gradient_marked(Tzu_val_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_colors);
}
void zu_val_scale_transparency_gradient_marked(Tzu_val_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_transparency);
}
void zu_val_scale_size_gradient_marked(Tzu_val_scale* scale, int32_t selected) {
  over_marked(scale, selected, spread_sizes);
}
