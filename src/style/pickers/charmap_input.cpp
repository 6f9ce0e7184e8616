#include "src/style/pickers/charmap_input.h"

#include <algorithm>

#include "zu/platform/zuk_drwc.h"

namespace zu::style {
namespace {

constexpr std::uint32_t characters_in_a_row = 12;

/// "U+2605 ★"
std::wstring code_and_letter(std::uint32_t character) {
  constexpr wchar_t digits[] = L"0123456789ABCDEF";
  constexpr int fewest = 4, bits = 4;
  std::wstring code;
  for (std::uint32_t rest = character; rest != 0 || code.size() < fewest; rest >>= bits)
    code.insert(code.begin(), digits[rest % 16]);
  return L"U+" + code + L' ' + static_cast<wchar_t>(character);
}

}  // namespace

namespace detail {

character_grid::character_grid() : symbol_grid(characters_in_a_row) { read(); }

void character_grid::set_font(const Tzu_fnt_type* font) {
  if (font == nullptr || zu_fnt_type_equal(font_.get(), font)) return;
  zu_fnt_type_assign(font_.get(), font);
  assign({});
  read();
  tell_data();
}

void character_grid::read() {
  owned<zu_ints_destroy> found(zu_ints_create());
  zu_fnt_type_list_characters(font_.get(), found.get());
  characters_.clear();
  for (std::uint64_t i = 0; i < zu_ints_get_size(found.get()); ++i)
    characters_.push_back(static_cast<std::uint32_t>(zu_ints_get(found.get(), i)));
}

std::optional<std::uint64_t> character_grid::index_of(std::uint32_t character) const {
  auto at = std::lower_bound(characters_.begin(), characters_.end(), character);
  if (at == characters_.end() || *at != character) return {};
  return static_cast<std::uint64_t>(at - characters_.begin());
}

void character_grid::put(Tzu_bpnt_style* point, std::uint64_t index) const {
  zu_bpnt_style_set_use_figure(point, false);
  zu_bpnt_style_set_symbol(point, characters_[index]);
  zu_bpnt_style_set_fnt_type(point, font_.get());
}

std::wstring character_grid::text_of(std::uint64_t index) const {
  return code_and_letter(characters_[index]);
}

}  // namespace detail

charmap_input::charmap_input() {
  characters_.on_pick = [this] { picked(); };
  root_.place(characters_).place(current_).set_row_stretch(0);
  show(symbol_);
}

void charmap_input::set_font(const Tzu_fnt_type* font) {
  characters_.set_font(font);
  show(symbol_);
}

void charmap_input::assign(const Tzu_bpnt_style* from) {
  characters_.set_font(zu_bpnt_style_get_fnt_type(from));
  show(zu_bpnt_style_get_symbol(from));
}

void charmap_input::apply_to(Tzu_bpnt_style* to) const {
  zu_bpnt_style_set_use_figure(to, false);
  zu_bpnt_style_set_symbol(to, symbol_);
  zu_bpnt_style_set_fnt_type(to, font());
}

void charmap_input::set_enabled(bool enabled) {
  characters_.set_enabled(enabled);
  current_.set_enabled(enabled);
}

void charmap_input::show(std::uint32_t symbol) {
  symbol_ = symbol;
  characters_.assign(characters_.index_of(symbol));
  current_.assign(code_and_letter(symbol));
}

void charmap_input::picked() {
  std::uint32_t chosen = characters_.character(*characters_.picked());
  if (chosen == symbol_) return;
  show(chosen);
  if (on_change) on_change();
}

}  // namespace zu::style
