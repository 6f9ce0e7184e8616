#include "src/style/palettes/palette_tables.h"

#include <algorithm>

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/style/page/pixels.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::style::detail {
namespace {

constexpr std::uint32_t strip_width = 120, strip_height = 16;  // pixels

std::vector<Tzu_color> colors_of(const Tzu_clr_palette* palette) {
  std::vector<Tzu_color> all;
  for (std::uint64_t i = 0; i < zu_clr_palette_get_size(palette); ++i)
    all.push_back(zu_clr_palette_get_color(palette, i));
  return all;
}

void say(string_visitor visitor, const std::wstring& text) {
  call<&string_visitor_impl::visit>(visitor, text.c_str());
}

}  // namespace

std::wstring caption_of(const Tzu_clr_palette* palette) {
  return text_of([&](Tzu_string_adp* a) { zu_clr_palette_get_wcaption(palette, a); });
}

std::wstring filled_in(std::int32_t text, const std::vector<std::wstring>& values) {
  std::wstring format = load_text(text), all;
  std::size_t next = 0;
  for (std::size_t at = 0; at < format.size(); ++at) {
    std::size_t length = format.compare(at, 2, L"%d") == 0    ? 2
                         : format.compare(at, 3, L"%ls") == 0 ? 3
                                                              : 0;
    if (length == 0 || next == values.size()) {
      all += format[at];
    } else {
      all += values[next++];
      at += length - 1;
    }
  }
  return all;
}

palettes_table::palettes_table(Tzu_clr_palettes* list) : list_(list) {
  caption_.on_text = [this](outline_item item, string_visitor visitor) {
    say(visitor, caption_of(zu_clr_palettes_get_ptr(list_, toolkit::row_of(item))));
  };
  caption_.on_is_editable = [](outline_item) { return true; };
  caption_.on_set_text = [this](outline_item item, const wchar_t* text) {
    zu_clr_palette_set_wcaption(zu_clr_palettes_get_ptr(list_, toolkit::row_of(item)), text);
    edited();
    return true;
  };
  caption_.on_width = [] { return 26u; };
  strip_.on_width = [] { return 19u; };
  strip_.on_picture = [this](outline_item item, bitmap_visitor visitor) {
    visit_strip(colors_of(zu_clr_palettes_get_ptr(list_, toolkit::row_of(item))), strip_width,
                strip_height, visitor);
  };
  add_column(caption_).add_column(strip_);
}

std::uint32_t palettes_table::row_count() {
  return static_cast<std::uint32_t>(zu_clr_palettes_get_size(list_));
}

void palettes_table::visit_empty_text(string_visitor visitor) {
  toolkit::visit_text(14706, visitor);
}

Tzu_clr_palette* palettes_table::current() const {
  const std::int64_t row = leading_row();
  return row >= 0 ? zu_clr_palettes_get_ptr(list_, static_cast<std::uint64_t>(row)) : nullptr;
}

bool palettes_table::has(const std::wstring& caption) const {
  for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(list_); ++i)
    if (caption_of(zu_clr_palettes_get_ptr(list_, i)) == caption) return true;
  return false;
}

void palettes_table::add() {
  std::uint64_t number = zu_clr_palettes_get_size(list_) + 1;
  auto caption = [&] { return filled_in(13652, {std::to_wstring(number)}); };
  while (has(caption())) ++number;
  zu_clr_palette_set_wcaption(zu_clr_palettes_add(list_), caption().c_str());
  choose({std::int64_t{row_count()} - 1});
  edited();
}

void palettes_table::add_copies(Tzu_clr_palettes* from) {
  rows added;
  for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(from); ++i) {
    added.insert(row_count());
    zu_clr_palette_assign(zu_clr_palettes_add(list_), zu_clr_palettes_get_ptr(from, i));
  }
  if (added.empty()) return;
  choose(std::move(added));
  edited();
}

void palettes_table::remove_chosen() {
  const rows all = chosen();
  if (all.empty() || !zu_ask_wyes_no(filled_in(13663, {std::to_wstring(all.size())}).c_str()))
    return;
  choose({});  // nobody holds a palette that goes
  for (auto row = all.rbegin(); row != all.rend(); ++row)
    zu_clr_palettes_del(list_, static_cast<std::uint64_t>(*row));
  std::int64_t left = std::min<std::int64_t>(*all.begin(), std::int64_t{row_count()} - 1);
  if (left >= 0) choose({left});
  edited();
}

owned<zu_clr_palettes_destroy> palettes_table::chosen_palettes() const {
  owned<zu_clr_palettes_destroy> copies(zu_clr_palettes_create());
  for (std::int64_t row : chosen())
    zu_clr_palette_assign(zu_clr_palettes_add(copies.get()),
                          zu_clr_palettes_get_ptr(list_, static_cast<std::uint64_t>(row)));
  return copies;
}

void palettes_table::move(const Tzu_int_set* marked, std::uint64_t index) {
  zu_clr_palettes_move_palettes(list_, marked, index);
}

colors_table::colors_table() {
  color_.on_text = [this](outline_item item, string_visitor visitor) {
    Tzu_color c = color_of(item);
    say(visitor, filled_in(13658, {std::to_wstring(c.r), std::to_wstring(c.g), std::to_wstring(c.b),
                                   std::to_wstring(255 - c.a)}));
  };
  color_.on_picture = [this](outline_item item, bitmap_visitor visitor) {
    visit_strip({color_of(item)}, strip_height * 2, strip_height, visitor);
  };
  color_.on_has_button = [](outline_item) { return true; };
  color_.on_press_button = [this](outline_item item) { activate(item); };
  add_column(color_);
}

std::uint32_t colors_table::row_count() {
  return static_cast<std::uint32_t>(zu_clr_palette_get_size(palette_));
}

Tzu_color colors_table::color_of(outline_item item) const {
  return zu_clr_palette_get_color(palette_, toolkit::row_of(item));
}

void colors_table::set_palette(Tzu_clr_palette* palette) {
  if (palette_ == palette) return;
  palette_ = palette;
  choose({});
}

void colors_table::add() {
  Tzu_color color{};
  if (palette_ == nullptr || !zu_ask_color(&color)) return;
  zu_clr_palette_add_color(palette_, color);
  choose({std::int64_t{row_count()} - 1});
  edited();
}

void colors_table::activate(outline_item item) {
  Tzu_color color = color_of(item);
  if (toolkit::row_of(item) >= row_count() || !zu_ask_color(&color)) return;
  zu_clr_palette_set_color(palette_, toolkit::row_of(item), color);
  edited();
}

void colors_table::remove_chosen() {
  const rows all = chosen();
  if (all.empty() ||
      !zu_ask_wyes_no(
          filled_in(13664, {std::to_wstring(all.size()), caption_of(palette_)}).c_str()))
    return;
  for (auto row = all.rbegin(); row != all.rend(); ++row)
    zu_clr_palette_del_color(palette_, static_cast<std::uint64_t>(*row));
  std::int64_t left = std::min<std::int64_t>(*all.begin(), std::int64_t{row_count()} - 1);
  choose(left >= 0 ? rows{left} : rows{});
  edited();
}

void colors_table::import(std::int32_t array) {
  if (!zu_clr_arrays_init_palette(array, palette_)) return;
  choose({});
  edited();
}

void colors_table::invert() {
  if (palette_ == nullptr) return;
  zu_clr_palette_invert(palette_);
  edited();
}

void colors_table::move(const Tzu_int_set* marked, std::uint64_t index) {
  zu_clr_palette_move_clrs(palette_, marked, index);
}

}  // namespace zu::style::detail
