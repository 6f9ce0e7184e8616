#include "src/style/dialogs/lib_style_outline.h"

#include "src/bundle/strings.h"

namespace zu::style::detail {

template <class traits> lib_style_outline<traits>::lib_style_outline() {
  constexpr std::uint32_t width = 56, height = 20;  // pixels of a sample
  sample_.on_picture = [this](outline_item item, bitmap_visitor visitor) {
    if (Tzu_idx_style* shown = entry(toolkit::row_of(item)))
      visit_sample<traits>(traits::library_style(shown), width, height, visitor);
  };
  caption_.on_text = [this](outline_item item, string_visitor visitor) {
    Tzu_idx_style* shown = entry(toolkit::row_of(item));
    if (shown == nullptr) return;
    Tzu_style_item* named = zu_style_item_find_by_index(zu_style_lib_get_root_item_ptr(library_),
                                                        zu_idx_style_get_index(shown));
    call<&string_visitor_impl::visit>(
        visitor, text_of([&](Tzu_string_adp* a) { zu_style_item_get_caption(named, a); }).c_str());
  };
  add_column(sample_).add_column(caption_);
}

template <class traits> void lib_style_outline<traits>::set_library(Tzu_style_lib* library) {
  library_ = library;
  current_ = -1;
  redraw();
}

template <class traits> std::uint32_t lib_style_outline<traits>::row_count() {
  return static_cast<std::uint32_t>(zu_style_list_get_size(list()));
}

template <class traits> void lib_style_outline<traits>::set_current_row(std::int64_t row) {
  current_ = row >= 0 && row < row_count() ? row : -1;
  if (current_ < 0) return;
  if (Tzu_idx_style* picked = entry(static_cast<std::uint32_t>(current_)); picked && on_pick)
    on_pick(traits::library_style(picked));
}

template <class traits> Tzu_idx_style* lib_style_outline<traits>::entry(std::uint32_t row) const {
  return zu_style_list_get_idx_style(list(), row);
}

template <class traits> library_picker<traits>::library_picker() {
  owned<zu_wstrings_destroy> names(zu_global_lib_styles_create_name_list());
  for (std::uint64_t i = 0; i < zu_wstrings_get_size(names.get()); ++i)
    libraries_.add(std::wstring(zu_wstrings_get_str(names.get(), i)), 0, i);
  libraries_.on_change = [this](std::uint64_t index) { show_library(index); };
  styles_.on_pick = [this](typename traits::argument picked) {
    if (on_pick) on_pick(picked);
  };
  choice_.place(libraries_).set_column_stretch(1);
  root_.place(choice_).place(styles_).set_row_stretch(1);
  if (has_libraries()) show_library(0);
}

template <class traits> void library_picker<traits>::show_library(std::uint64_t index) {
  styles_.set_library(zu_style_libs_get_lib_ptr(zu_global_lib_styles_get_libs(), index));
}

template class lib_style_outline<point_dialog_traits>;
template class lib_style_outline<line_dialog_traits>;
template class lib_style_outline<polygon_dialog_traits>;
template class library_picker<point_dialog_traits>;
template class library_picker<line_dialog_traits>;
template class library_picker<polygon_dialog_traits>;

}  // namespace zu::style::detail
