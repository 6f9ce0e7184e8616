#pragma once
// What a person presses or ticks.

#include <array>
#include <functional>
#include <list>
#include <vector>

#include "src/toolkit/layouts.h"

namespace zu::toolkit {
namespace detail {

/// What buttons of both kinds have.
template <class impl>
class pressed_element
    : public mixed<impl, with_caption, with_hint, with_picture, with_enabled, with_visible> {
 public:
  explicit pressed_element(std::int32_t caption = 0, std::int32_t hint = 0,
                           std::int32_t picture = 0) {
    this->set_caption(caption);
    this->set_hint(hint);
    this->set_picture(picture);
  }
  /// An element shown instead of the picture.
  void set_image(toolkit::image& shown) {
    image_ = handle_of<image_impl>(shown);
    this->redraw();
  }
  void assign(bool pressed) {
    if (this->replace(pressed_, pressed)) this->tell_value();
  }

  handle image() override { return image_; }
  bool pressed() override { return pressed_; }

  std::function<void()> on_click;

 protected:
  void press_to(bool pressed) {
    pressed_ = pressed;
    if (on_click) on_click();
  }

 private:
  handle image_;
  bool pressed_ = false;
};

}  // namespace detail

class button : public detail::pressed_element<button_impl> {
 public:
  using pressed_element::pressed_element;
  bool toggle() override { return toggle_; }
  void set_toggle(bool toggle) {
    if (replace(toggle_, toggle)) redraw();
  }
  void press() override { press_to(!pressed()); }

 private:
  bool toggle_ = false;
};

class radiobutton : public detail::pressed_element<radiobutton_impl> {
 public:
  using pressed_element::pressed_element;
  void press() override { press_to(true); }
};

namespace detail::button_link {

/// Keeps a link as narrow as its text.
class layout_impl : public toolkit::grid_layout<2, 1> {
 public:
  explicit layout_impl(button& link) { place(link).set_column_stretch(1); }
};

}  // namespace detail::button_link

/// A button shown as a link.
class button_link : public button, public with_element {
 public:
  using button::button;
  bool is_link() override { return true; }
  handle element() override { return handle_of<grid_layout_impl>(layout_); }

 private:
  detail::button_link::layout_impl layout_{*this};
};

/// On at the start, as long as nothing is assigned.
class checkbox : public mixed<checkbox_impl, with_caption, with_hint, with_enabled> {
 public:
  enum : std::uint32_t { off = 0, undecided = 1, on = 2 };

  explicit checkbox(std::int32_t caption = 0, std::int32_t hint = 0) {
    set_caption(caption);
    set_hint(hint);
  }
  std::uint32_t state() const { return state_; }
  void assign(bool checked) { assign_state(checked ? on : off); }
  void assign_state(std::uint32_t state) {
    if (replace(state_, state)) tell_value();
  }

  bool is_undecided() override { return state_ == undecided; }
  bool is_checked() override { return state_ == on; }
  void set_checked(bool checked) override {
    state_ = checked ? on : off;
    if (on_state) on_state(checked);
  }

  std::function<void(bool)> on_state;

 private:
  std::uint32_t state_ = on;
};

/// A frame full of radio buttons, of which at most one is down. They are counted in the order in
/// which they were added.
template <int C, int R>
class radiogroup : public detail::groupbox_base<radiogroup<C, R>, grid_layout<C, R>> {
 public:
  using detail::groupbox_base<radiogroup, grid_layout<C, R>>::groupbox_base;

  radiogroup& add(std::int32_t caption, std::int32_t hint = 0, std::int32_t picture = 0) {
    if (count_ == C * R) return *this;
    radiobutton& added = buttons_[static_cast<std::size_t>(count_)];
    added.set_caption(caption);
    added.set_hint(hint);
    added.set_picture(picture);
    added.on_click = [this, index = count_] { press(index); };
    ++count_;
    return this->place(added);
  }
  int count() const { return count_; }
  int current() const { return current_; }  ///< -1: none
  void assign(int index) {
    current_ = index >= 0 && index < count_ ? index : -1;
    for (int i = 0; i < count_; ++i) at(i).assign(i == current_);
  }
  radiobutton& at(int index) { return buttons_[static_cast<std::size_t>(index)]; }

  std::function<void(int)> on_change;

 private:
  void press(int index) {
    bool changed = index != current_;
    assign(index);
    if (changed && on_change) on_change(index);
  }

  std::array<radiobutton, std::size_t{C} * R> buttons_;
  int count_ = 0, current_ = -1;
};

/// The row of standard buttons of a dialog.
class button_box : public element_base<button_box_impl> {
 public:
  /// Bits of the constructor's mask and roles, in the order of the row.
  enum : std::uint32_t {
    default_ok = 1,
    ok = 2,
    default_cancel = 4,
    cancel = 8,
    apply = 16,
    yes = 32,
    no = 64
  };

  explicit button_box(std::uint32_t mask);
  /// A further button; a role that is none of the standard ones goes to the host's handler.
  button_box& add(std::int32_t caption, std::uint32_t role);

  std::uint32_t count() override { return static_cast<std::uint32_t>(entries_.size()); }
  std::uint32_t kind(std::uint32_t index) override { return index < entries_.size() ? 1 : 0; }
  void caption(std::uint32_t index, string_visitor visitor) override;
  std::uint32_t role(std::uint32_t index) override;
  bool press(std::int32_t index) override;
  void attach_handler(button_box_handler handler) override { handler_ = handler; }

  std::function<bool()> on_accept;  ///< false keeps the dialog open
  std::function<void()> on_apply;

 private:
  struct entry {
    std::int32_t caption;
    std::uint32_t role;
  };
  std::vector<entry> entries_;
  button_box_handler handler_;
};

/// A row of buttons with roles anywhere in a dialog.
class button_layout : public element_base<grid_layout_impl> {
 public:
  button_layout& add(std::int32_t caption, std::uint32_t role) { return add(caption, 0, role); }
  button_layout& add(std::int32_t caption, std::int32_t picture, std::uint32_t role);

  std::uint32_t column_count() override { return static_cast<std::uint32_t>(buttons_.size()); }
  std::uint32_t row_count() override { return 1; }
  void visit_cell(std::uint32_t column, std::uint32_t row, element_visitor visitor) override;

  std::function<void()> on_accept, on_cancel;
  std::function<void(std::uint32_t)> on_click;  ///< after the other two

 private:
  void clicked(std::uint32_t role);

  std::list<button> buttons_;
};

}  // namespace zu::toolkit
