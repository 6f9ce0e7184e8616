#include "src/style/pickers/symbol_input.h"

#include <algorithm>
#include <cwctype>

#include "src/bundle/strings.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::style {
namespace {

/// Names of fonts are the same whatever the case of their letters.
bool same_name(const std::wstring& a, const std::wstring& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](wchar_t x, wchar_t y) {
    return std::towlower(static_cast<std::wint_t>(x)) == std::towlower(static_cast<std::wint_t>(y));
  });
}

std::wstring family_of(const Tzu_fnt_type* font) {
  return text_of([&](Tzu_string_adp* a) { zu_fnt_type_get_wname(font, a); });
}

}  // namespace

symbol_input::symbol_input() {
  list_fonts();
  select(family_of(font_.get()));
  fonts_.on_change = [this](const std::wstring& family) { chosen(family); };
  characters_.on_change = [this] {
    if (on_change) on_change();
  };
  font_row_.place(fonts_).set_column_stretch(1);
  root_.place(font_row_).place(characters_).set_row_stretch(1);
}

void symbol_input::list_fonts() {
  owned<zu_wstrings_destroy> names(zu_wstrings_create());
  zu_fnt_type_list(names.get());
  for (std::uint64_t i = 0; i < zu_wstrings_get_size(names.get()); ++i) {
    families_.emplace_back(zu_wstrings_get_str(names.get(), i));
    fonts_.add(families_.back(), 0, families_.back());
  }
}

void symbol_input::select(const std::wstring& family) {
  auto at = std::find_if(families_.begin(), families_.end(),
                         [&](const std::wstring& name) { return same_name(name, family); });
  if (at == families_.end()) {
    fonts_.add(family, 0, family);
    at = families_.insert(families_.end(), family);
  }
  fonts_.assign(static_cast<std::int32_t>(at - families_.begin()));
}

void symbol_input::assign(const Tzu_bpnt_style* from) {
  zu_fnt_type_assign(font_.get(), zu_bpnt_style_get_fnt_type(from));
  select(family_of(font_.get()));
  characters_.assign(from);
}

void symbol_input::set_enabled(bool enabled) {
  fonts_.set_enabled(enabled);
  characters_.set_enabled(enabled);
}

void symbol_input::chosen(const std::wstring& family) {
  if (same_name(family, family_of(font_.get()))) return;
  zu_fnt_type_set_wname(font_.get(), family.c_str());
  characters_.set_font(font_.get());
  if (on_change) on_change();
}

}  // namespace zu::style
