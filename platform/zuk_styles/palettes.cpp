#include "platform/zuk_styles/palettes.h"

#include <algorithm>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_styles/color_arrays.h"

using zu::platform::guarded;

namespace {

template <class values> void erase_at(values& all, uint64_t index) {
  if (index < all.size()) all.erase(all.begin() + static_cast<std::ptrdiff_t>(index));
}

/// Gathers what is marked in front of `index`, both kinds in their order.
template <class values> void move_marked(values& all, const Tzu_int_set* marked, uint64_t index) {
  if (marked == nullptr) return;
  values before, moved, behind;
  for (values* part : {&before, &moved, &behind}) part->reserve(all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    bool is_marked = zu_int_set_has(marked, static_cast<int64_t>(i));
    (is_marked ? moved : i < index ? before : behind).push_back(std::move(all[i]));
  }
  std::move(moved.begin(), moved.end(), std::back_inserter(before));
  std::move(behind.begin(), behind.end(), std::back_inserter(before));
  all = std::move(before);
}

}  // namespace

Tzu_clr_palettes* zu_clr_palettes_create() { return new (std::nothrow) Tzu_clr_palettes; }
void zu_clr_palettes_destroy(Tzu_clr_palettes* list) { delete list; }
void zu_clr_palettes_assign(Tzu_clr_palettes* list, const Tzu_clr_palettes* from) {
  if (from == nullptr || list == from) return;
  guarded(list, [&](Tzu_clr_palettes& l) {
    Tzu_clr_palettes copy;
    for (const auto& each : from->all) copy.all.push_back(std::make_unique<Tzu_clr_palette>(*each));
    l = std::move(copy);
  });
}
uint64_t zu_clr_palettes_get_size(const Tzu_clr_palettes* list) {
  return list != nullptr ? list->all.size() : 0;
}
Tzu_clr_palette* zu_clr_palettes_get_ptr(Tzu_clr_palettes* list, uint64_t index) {
  return index < zu_clr_palettes_get_size(list) ? list->all[index].get() : nullptr;
}
Tzu_clr_palette* zu_clr_palettes_add(Tzu_clr_palettes* list) {
  return guarded(list, static_cast<Tzu_clr_palette*>(nullptr), [](Tzu_clr_palettes& l) {
    return l.all.emplace_back(std::make_unique<Tzu_clr_palette>()).get();
  });
}
void zu_clr_palettes_del(Tzu_clr_palettes* list, uint64_t index) {
  guarded(list, [&](Tzu_clr_palettes& l) { erase_at(l.all, index); });
}
void zu_clr_palettes_move_palettes(Tzu_clr_palettes* list, const Tzu_int_set* marked,
                                   uint64_t index) {
  guarded(list, [&](Tzu_clr_palettes& l) { move_marked(l.all, marked, index); });
}

void zu_clr_palette_assign(Tzu_clr_palette* palette, const Tzu_clr_palette* from) {
  if (from != nullptr) guarded(palette, [&](Tzu_clr_palette& p) { p = Tzu_clr_palette(*from); });
}
void zu_clr_palette_get_wcaption(const Tzu_clr_palette* palette, Tzu_string_adp* adapter) {
  if (palette != nullptr) zu_string_adp_feed(adapter, palette->caption.c_str());
}
void zu_clr_palette_set_wcaption(Tzu_clr_palette* palette, const wchar_t* caption) {
  guarded(palette, [&](Tzu_clr_palette& p) { p.caption = caption != nullptr ? caption : L""; });
}
uint64_t zu_clr_palette_get_size(const Tzu_clr_palette* palette) {
  return palette != nullptr ? palette->colors.size() : 0;
}
Tzu_color zu_clr_palette_get_color(const Tzu_clr_palette* palette, uint64_t index) {
  return index < zu_clr_palette_get_size(palette) ? palette->colors[index] : Tzu_color{};
}
void zu_clr_palette_set_color(Tzu_clr_palette* palette, uint64_t index, Tzu_color color) {
  if (index < zu_clr_palette_get_size(palette)) palette->colors[index] = color;
}
void zu_clr_palette_add_color(Tzu_clr_palette* palette, Tzu_color color) {
  guarded(palette, [&](Tzu_clr_palette& p) { p.colors.push_back(color); });
}
void zu_clr_palette_del_color(Tzu_clr_palette* palette, uint64_t index) {
  guarded(palette, [&](Tzu_clr_palette& p) { erase_at(p.colors, index); });
}
void zu_clr_palette_move_clrs(Tzu_clr_palette* palette, const Tzu_int_set* marked, uint64_t index) {
  guarded(palette, [&](Tzu_clr_palette& p) { move_marked(p.colors, marked, index); });
}
void zu_clr_palette_invert(Tzu_clr_palette* palette) {
  guarded(palette, [](Tzu_clr_palette& p) { std::reverse(p.colors.begin(), p.colors.end()); });
}

bool zu_clr_arrays_init_palette(int32_t id, Tzu_clr_palette* palette) {
  return guarded(palette, false, [&](Tzu_clr_palette& p) {
    const zu::platform::color_array* array = zu::platform::find_color_array(id);
    if (array != nullptr) p.colors = array->colors;
    return array != nullptr;
  });
}
void zu_clr_arrays_generate_palette_ex(const Tzu_clr_palette* palette, uint64_t count,
                                       Tzu_color* colors, int32_t flag) {
  using zu::platform::color_ramp;
  if (zu_clr_palette_get_size(palette) == 0 || colors == nullptr) return;
  guarded(palette, [&](const Tzu_clr_palette& p) {
    flag == 0 ? spread(color_ramp(p.colors, zu::platform::ramp_form::spread), count, colors)
              : zu::platform::repeat(p.colors, count, colors);
  });
}
