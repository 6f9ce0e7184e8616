#include "src/style/class_dialogs/color_run.h"

#include <algorithm>
#include <optional>

#include "src/style/classes/builders.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::style::detail {
namespace {

using color_list = std::vector<Tzu_color>;

constexpr std::int32_t primary = 0;  // the drawn style of a row

bool alike(const Tzu_color& a, const Tzu_color& b) {
  return a.r == b.r && a.g == b.g && a.b == b.b;
}

/// A numbered array, or a palette if it is not null, as a ramp or in turn.
struct origin {
  std::int32_t id;
  const Tzu_clr_palette* palette;
  std::int32_t flag;

  void generate(color_list& colors) const {
    if (palette != nullptr)
      zu_clr_arrays_generate_palette_ex(palette, colors.size(), colors.data(), flag);
    else
      zu_clr_arrays_generate_ex(id, colors.size(), colors.data(), flag);
  }
  bool gives(const color_list& colors) const {
    color_list made(1, colors.front());  // the first tells most arrays apart
    generate(made);
    if (!alike(made.front(), colors.front())) return false;
    made = colors;
    generate(made);
    return std::equal(made.begin(), made.end(), colors.begin(), alike);
  }
};

std::optional<origin> origin_of(const color_list& colors) {
  for (std::int32_t flag : {0, 1}) {
    for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id)
      if (origin array{id, nullptr, flag}; array.gives(colors)) return array;
    Tzu_clr_palettes* own = zu_get_user_palettes();
    for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(own); ++i) {
      const Tzu_clr_palette* palette = zu_clr_palettes_get_ptr(own, i);
      if (zu_clr_palette_get_size(palette) == 0) continue;  // would change nothing
      if (origin own_palette{0, palette, flag}; own_palette.gives(colors)) return own_palette;
    }
  }
  return {};
}

void resample(const color_list& from, color_list& to) {
  owned<zu_clr_palettes_destroy> list(zu_clr_palettes_create());
  Tzu_clr_palette* palette = zu_clr_palettes_add(list.get());
  for (const Tzu_color& color : from) zu_clr_palette_add_color(palette, color);
  zu_clr_arrays_generate_palette_ex(palette, to.size(), to.data(), 0);
}

}  // namespace

color_run::color_run(Tzu_rng_scale* scale) {
  for (const Tzu_stl_prm* style : row_styles(scale)) rows_.emplace_back(zu_stl_prm_clone(style));
}

color_list color_run::colors() const {
  color_list all;
  for (const auto& row : rows_) all.push_back(zu_stl_prm_get_color(row.get(), primary));
  return all;
}

void color_run::spread_over(Tzu_rng_scale* scale) const {
  const std::vector<Tzu_stl_prm*> styles = row_styles(scale);
  const std::size_t count = styles.size();
  if (count == rows_.size()) return;
  const bool had_classes = rows_.size() > 2;
  color_list before = colors(), after;
  for (std::size_t i = 0; i < count; ++i) {
    std::size_t same_share = (i * (rows_.size() - 1) + (count - 1) / 2) / (count - 1);
    if (had_classes && i > 0 && i + 1 < count)
      zu_rng_scale_set_stl_prm(scale, i - 1, rows_[same_share].get(), primary);
    after.push_back(zu_stl_prm_get_color(styles[i], primary));
  }
  if (std::optional<origin> known = origin_of(before))
    known->generate(after);
  else if (!had_classes && alike(before.front(), before.back()))
    origin{default_colors, nullptr, 0}.generate(after);
  else
    resample(before, after);
  for (std::size_t i = 0; i < count; ++i) zu_stl_prm_clr_set_all(styles[i], after[i], primary);
}

}  // namespace zu::style::detail
