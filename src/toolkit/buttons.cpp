#include "src/toolkit/buttons.h"

namespace zu::toolkit {
namespace {

struct standard_button {
  std::uint32_t role;
  std::int32_t caption;
};
constexpr standard_button standard_buttons[] = {
    {button_box::default_ok, -101}, {button_box::ok, -101},    {button_box::default_cancel, -102},
    {button_box::cancel, -102},     {button_box::apply, -103}, {button_box::yes, -99},
    {button_box::no, -100}};

}  // namespace

button_box::button_box(std::uint32_t mask) {
  for (const standard_button& b : standard_buttons)
    if ((mask & b.role) != 0) entries_.push_back({b.caption, b.role});
}

button_box& button_box::add(std::int32_t caption, std::uint32_t role) {
  entries_.push_back({caption, role});
  tell_list();
  return *this;
}

void button_box::caption(std::uint32_t index, string_visitor visitor) {
  if (index < entries_.size()) visit_text(entries_[index].caption, visitor);
}

std::uint32_t button_box::role(std::uint32_t index) {
  return index < entries_.size() ? entries_[index].role : 0;
}

bool button_box::press(std::int32_t index) {
  if (index < 0) return true;
  switch (std::uint32_t pressed = role(static_cast<std::uint32_t>(index))) {
    case default_cancel:
    case cancel:
    case no:
      return true;
    case default_ok:
    case ok:
    case yes:
      return !on_accept || on_accept();
    case apply:
      if (on_apply) on_apply();
      return false;
    default:
      call<&button_box_handler_impl::pressed>(handler_, pressed);
      return false;
  }
}

button_layout& button_layout::add(std::int32_t caption, std::int32_t picture, std::uint32_t role) {
  button& added = buttons_.emplace_back(caption, 0, picture);
  added.on_click = [this, role] { clicked(role); };
  tell_list();
  return *this;
}

void button_layout::visit_cell(std::uint32_t column, std::uint32_t row, element_visitor visitor) {
  if (row != 0 || column >= buttons_.size()) return;
  auto& child = *std::next(buttons_.begin(), column);
  call<&element_visitor_impl::visit>(visitor, handle_of<button_impl>(child));
}

void button_layout::clicked(std::uint32_t role) {
  if ((role == button_box::default_ok || role == button_box::ok) && on_accept) on_accept();
  if ((role == button_box::default_cancel || role == button_box::cancel) && on_cancel) on_cancel();
  if (on_click) on_click(role);
}

}  // namespace zu::toolkit
