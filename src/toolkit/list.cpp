#include "src/toolkit/list.h"

namespace zu::toolkit {

void list::clear() {
  items_.clear();
  current_ = -1;
  tell_list();
}

list& list::add(std::wstring text) {
  items_.push_back({std::move(text)});
  tell_list();
  return *this;
}

void list::choose(std::int32_t index) {
  if (replace(current_, index)) tell_value();
}

void list::mark(std::uint32_t index, bool marked) {
  if (index < items_.size() && replace(items_[index].marked, marked)) tell_value();
}

void list::set_selection_mode(std::uint32_t mode) {
  if (replace(selection_mode_, mode)) redraw();
}

void list::item_text(std::uint32_t index, string_visitor visitor) {
  if (index < items_.size()) call<&string_visitor_impl::visit>(visitor, items_[index].text.c_str());
}

void list::item_picture(std::uint32_t index, bitmap_visitor visitor) {
  if (on_picture) on_picture(index, visitor);
}

void list::set_current(std::int32_t index) {
  current_ = index;
  if (on_current) on_current(index);
}

bool list::is_marked(std::uint32_t index) {
  if (selection_mode_ == outline_chooses_one) return static_cast<std::int64_t>(index) == current_;
  return index < items_.size() && items_[index].marked;
}

void list::set_marked(std::uint32_t index, bool marked) {
  if (selection_mode_ != outline_chooses_many || index >= items_.size()) return;
  items_[index].marked = marked;
  if (on_mark) on_mark(index, marked);
}

void list::activate(std::uint32_t index) {
  if (on_activate) on_activate(index);
}

bool list::set_text(std::uint32_t index, const wchar_t* text) {
  if (index >= items_.size() || text == nullptr || !on_text || !on_text(index, text)) return false;
  items_[index].text = text;
  return true;
}

}  // namespace zu::toolkit
