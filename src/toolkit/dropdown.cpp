#include "src/toolkit/dropdown.h"

namespace zu::toolkit {

void dropdown_base::item_text(std::uint32_t index, string_visitor visitor) {
  if (index >= items_.size()) return;
  if (items_[index].id != 0)
    visit_text(items_[index].id, visitor);
  else
    call<&string_visitor_impl::visit>(visitor, items_[index].text.c_str());
}

void dropdown_base::item_picture(std::uint32_t index, bitmap_visitor visitor) {
  if (index < items_.size()) visit_bitmap(items_[index].picture, visitor);
}

void dropdown_base::add_item(std::int32_t id, std::wstring text, std::int32_t picture) {
  items_.push_back({id, std::move(text), picture});
  tell_list();
}

void dropdown_base::clear_items() {
  if (items_.empty()) return;
  items_.clear();
  tell_list();
}

}  // namespace zu::toolkit
