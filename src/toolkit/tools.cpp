#include "src/toolkit/tools.h"

namespace zu::toolkit::detail {

bool tool<integer_tool_impl, std::int32_t>::set_value(std::int32_t value) {
  if (value < minimum_ || value > maximum_ || (validate && !validate(value))) return false;
  value_ = value;
  if (on_execute) on_execute(value);
  return true;
}

tool<list_tool_impl, std::int32_t>& tool<list_tool_impl, std::int32_t>::add(std::int32_t text) {
  items_.push_back({text, {}});
  tell_list();
  return *this;
}

void tool<list_tool_impl, std::int32_t>::set_items(std::vector<std::wstring> texts) {
  items_.clear();
  for (std::wstring& text : texts) items_.push_back({0, std::move(text)});
  tell_list();
}

void tool<list_tool_impl, std::int32_t>::item_text(std::uint32_t index, string_visitor visitor) {
  if (index >= items_.size()) return;
  if (items_[index].id != 0)
    visit_text(items_[index].id, visitor);
  else
    call<&string_visitor_impl::visit>(visitor, items_[index].text.c_str());
}

void tool<list_tool_impl, std::int32_t>::set_current(std::int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) return;
  current_ = index;
  if (on_execute) on_execute(index);
}

multitool& multitool::add(std::int32_t text, std::function<void()> action) {
  actions_.push_back({text, std::move(action)});
  tell_list();
  return *this;
}

void multitool::item_text(std::uint32_t index, string_visitor visitor) {
  if (index < actions_.size()) visit_text(actions_[index].text, visitor);
}

void multitool::execute(std::uint32_t index) {
  if (index < actions_.size() && actions_[index].act) actions_[index].act();
}

void toolset::visit(tool_visitor visitor) {
  for (const named_tool& t : tools_) call<&tool_visitor_impl::visit>(visitor, t.id, t.tool);
}

}  // namespace zu::toolkit::detail
