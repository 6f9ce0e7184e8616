#pragma once
// Elements that count what reaches them.

#include <gtest/gtest.h>

#include <QString>
#include <QTest>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/desktop/realiser/realiser.h"
#include "zu/editors.h"
#include "zu/tools.h"

namespace zu::desktop {

/// Views that lie with some fake element now.
inline int living_views = 0;

template <class impl, class view_handle = element_view, class view_impl = element_view_impl>
struct faked : impl {
  ~faked() { living_views -= view ? 1 : 0; }
  void attach_view(view_handle given) override {
    living_views += int(bool(given)) - int(bool(view));
    view = given;
  }
  void redraw() { call<&view_impl::redraw>(view); }
  view_handle view;
  std::wstring caption_text, hint_text;
  bool is_enabled = true, is_visible = true;
};

inline void say(string_visitor visitor, const std::wstring& text) {
  if (!text.empty()) call<&string_visitor_impl::visit>(visitor, text.c_str());
}

struct fake_label : faked<label_impl> {
  explicit fake_label(std::wstring text) { caption_text = std::move(text); }
  void text(string_visitor v) override { say(v, caption_text); }
  bool enabled() override { return is_enabled; }
};

/// One, three or four channels; the bottom row first.
struct fake_bitmap : bitmap_impl {
  void pixels(bytes_visitor visitor) override {
    if (!bytes.empty())
      call<&bytes_visitor_impl::visit>(visitor, height, width * 4, width, 4, channels, 1,
                                       bytes.data());
  }
  std::int32_t id() override { return number; }
  std::uint64_t width = 2, height = 2, channels = 4;
  std::int32_t number = 1;
  std::vector<std::uint8_t> bytes;
};
inline void show(bitmap_visitor visitor, fake_bitmap& shown) {
  call<&bitmap_visitor_impl::visit>(visitor, bitmap(handle_of<bitmap_impl>(shown)));
}

struct fake_button : faked<button_impl> {
  explicit fake_button(std::wstring text = L"Press") { caption_text = std::move(text); }
  void caption(string_visitor v) override { say(v, caption_text); }
  void hint(string_visitor v) override { say(v, hint_text); }
  bool enabled() override { return is_enabled; }
  bool visible() override { return is_visible; }
  bool pressed() override { return is_pressed; }
  bool toggle() override { return is_toggle; }
  bool is_link() override { return link; }
  void press() override {
    is_pressed = !is_pressed;
    ++presses;
    if (on_press) on_press();
  }
  bool is_pressed = false, is_toggle = false, link = false;
  int presses = 0;
  std::function<void()> on_press;
};

struct fake_checkbox : faked<checkbox_impl> {
  void caption(string_visitor v) override { say(v, caption_text); }
  bool enabled() override { return is_enabled; }
  bool is_undecided() override { return state == 1; }
  bool is_checked() override { return state == 2; }
  void set_checked(bool checked) override {
    ++sets;
    if (!is_stubborn) state = checked ? 2 : 0;
  }
  int state = 0, sets = 0;
  bool is_stubborn = false;
};

struct fake_radiobutton : faked<radiobutton_impl> {
  void caption(string_visitor v) override { say(v, caption_text); }
  bool pressed() override { return group != nullptr && *group == this; }
  void press() override {
    ++presses;
    fake_radiobutton* before = std::exchange(*group, this);
    if (before != nullptr && before != this) before->redraw();
    redraw();
  }
  fake_radiobutton** group = nullptr;
  int presses = 0;
};

template <class impl> struct fake_line : faked<impl> {
  void text(string_visitor v) override { say(v, content); }
  void hint(string_visitor v) override { say(v, this->hint_text); }
  bool enabled() override { return this->is_enabled; }
  bool set_text(const wchar_t* given) override {
    offered.push_back(given);
    if (validate && !validate(given)) return false;
    content = given;
    return true;
  }
  void commit() override { committed.push_back(content); }
  void change(std::wstring text) {
    content = std::move(text);
    call<&element_view_impl::value_changed>(this->view);
  }
  std::wstring content;
  std::vector<std::wstring> offered, committed;
  std::function<bool(const std::wstring&)> validate;
};
struct fake_input : fake_line<input_impl> {
  bool visible() override { return is_visible; }
  bool read_only() override { return is_read_only; }
  std::uint32_t width() override { return columns; }
  bool is_read_only = false;
  std::uint32_t columns = 0;
};
struct fake_assisted_input : fake_line<assisted_input_impl> {
  void visit_suggestions(string_visitor v) override {
    for (const auto& text : suggestions) say(v, text);
  }
  std::vector<std::wstring> suggestions;
};
struct fake_selection : text_selection_impl {
  std::uint32_t begin() override { return first; }
  std::uint32_t end() override { return last; }
  void select(std::uint32_t a, std::uint32_t b) override { first = a, last = b, ++selects; }
  std::uint32_t first = 0, last = 0;
  int selects = 0;
};
struct fake_multiline : fake_line<multiline_input_impl> {
  handle selection() override { return handle_of<text_selection_impl>(marked); }
  std::uint32_t lines() override { return rows; }
  fake_selection marked;
  std::uint32_t rows = 5;
};

template <class impl, class number, class view_handle, class view_impl>
struct fake_number : faked<impl, view_handle, view_impl> {
  void hint(string_visitor v) override { say(v, this->hint_text); }
  bool enabled() override { return this->is_enabled; }
  number minimum() override { return low; }
  number maximum() override { return high; }
  number step() override { return by; }
  std::uint32_t decimals() override { return digits; }
  number value() override { return content; }
  bool set_value(number given) override {
    offered.push_back(given);
    if (validate && !validate(given)) return false;
    content = given;
    return true;
  }
  void apply() override { applied.push_back(content); }
  void change(number value) {
    content = value;
    call<&view_impl::value_changed>(this->view, value);
  }
  number content = 0, low = 0, high = 0, by = 1;
  std::uint32_t digits = 0;
  std::vector<number> offered, applied;
  std::function<bool(number)> validate;
};
using fake_integer = fake_number<integer_input_impl, std::int32_t, integer_view, integer_view_impl>;
using fake_floating = fake_number<floating_input_impl, double, floating_view, floating_view_impl>;

struct fake_slider : faked<slider_impl, integer_view, integer_view_impl> {
  std::int32_t value() override { return content; }
  std::int32_t maximum() override { return high; }
  void set_value(std::int32_t given) override { content = given, sets.push_back(given); }
  void apply() override { ++applies; }
  std::int32_t content = 0, high = 100;
  std::vector<std::int32_t> sets;
  int applies = 0;
};

struct fake_dropdown : faked<dropdown_impl> {
  std::uint32_t count() override { return std::uint32_t(items.size()); }
  void item_text(std::uint32_t i, string_visitor v) override { say(v, items.at(i)); }
  std::int32_t current() override { return index; }
  void set_current(std::int32_t given) override {
    sets.push_back(given);
    if (!is_stubborn) index = given;
  }
  bool enabled() override { return is_enabled; }
  std::vector<std::wstring> items;
  std::int32_t index = 0;
  std::vector<std::int32_t> sets;
  bool is_stubborn = false;
};

/// Children in cells, in reading order.
struct fake_grid : faked<grid_layout_impl> {
  fake_grid(std::uint32_t columns, std::vector<handle> cells)
      : columns(columns), cells(std::move(cells)), rows_shown(row_count(), true) {}
  std::uint32_t column_count() override { return columns; }
  std::uint32_t row_count() override {
    return std::uint32_t((cells.size() + columns - 1) / columns);
  }
  void visit_cell(std::uint32_t column, std::uint32_t row, element_visitor v) override {
    std::size_t at = column + std::size_t{row} * columns;
    if (at < cells.size() && cells[at]) call<&element_visitor_impl::visit>(v, cells[at]);
  }
  std::uint32_t column_span(std::uint32_t column, std::uint32_t row) override {
    return column == 0 && row == wide_row ? columns : 1;
  }
  bool column_stretch(std::uint32_t column) override { return int(column) == stretched; }
  bool row_visible(std::uint32_t row) override { return rows_shown.at(row); }
  std::uint32_t column_size(std::uint32_t column) override { return column == 0 ? size : 0; }
  std::uint32_t columns, size = 0, wide_row = 1000;
  std::vector<handle> cells;
  std::vector<bool> rows_shown;
  int stretched = -1;
};

struct fake_groupbox : faked<groupbox_impl> {
  void caption(string_visitor v) override { say(v, caption_text); }
  handle layout() override { return inner; }
  bool checkable() override { return is_checkable; }
  bool checked() override { return is_checked; }
  void set_checked(bool given) override { is_checked = given, ++sets; }
  handle inner;
  bool is_checkable = false, is_checked = true;
  int sets = 0;
};

struct fake_stack : faked<stack_layout_impl> {
  std::uint32_t count() override { return std::uint32_t(pages.size()); }
  void visit_page(std::uint32_t i, element_visitor v) override {
    call<&element_visitor_impl::visit>(v, pages.at(i));
  }
  std::uint32_t current() override { return index; }
  std::vector<handle> pages;
  std::uint32_t index = 0;
};

struct fake_docker : faked<docker_impl> {
  fake_docker(std::wstring caption, handle root) : root(root) { caption_text = std::move(caption); }
  void visit_caption(string_visitor v) override { say(v, caption_text); }
  void visit_element(element_visitor v) override { call<&element_visitor_impl::visit>(v, root); }
  handle root;
};

struct fake_tabs : faked<tab_layout_impl> {
  std::uint32_t count() override { return std::uint32_t(pages.size()); }
  void visit_tab(std::uint32_t i, docker_visitor v) override {
    call<&docker_visitor_impl::visit>(v, ids.at(i).c_str(),
                                      docker(handle_of<docker_impl>(*pages.at(i))));
  }
  std::int32_t current() override { return index; }
  void set_current(std::int32_t given) override { index = given, sets.push_back(given); }
  std::vector<fake_docker*> pages;
  std::vector<std::wstring> ids;
  std::int32_t index = 0;
  std::vector<std::int32_t> sets;
};

struct fake_button_box : faked<button_box_impl> {
  explicit fake_button_box(std::vector<std::uint32_t> roles) : roles(std::move(roles)) {}
  std::uint32_t count() override { return std::uint32_t(roles.size()); }
  std::uint32_t kind(std::uint32_t) override { return 1; }
  void caption(std::uint32_t i, string_visitor v) override {
    say(v, L"&" + std::to_wstring(roles.at(i)));
  }
  std::uint32_t role(std::uint32_t i) override { return roles.at(i); }
  bool press(std::int32_t i) override {
    presses.push_back(roles.at(std::size_t(i)));
    if (roles.at(std::size_t(i)) > 64)
      call<&button_box_handler_impl::pressed>(handler, roles.at(std::size_t(i)));
    return lets_close;
  }
  void attach_handler(button_box_handler given) override { handler = given; }
  std::vector<std::uint32_t> roles, presses;
  button_box_handler handler;
  bool lets_close = true;
};

/// The control of an element, shown and in reach of the keyboard.
struct shown {
  template <class impl> explicit shown(impl& element) {
    control = realise(handle_in_force(element), &window);
    control->move(10, 10);
    control->resize(control->sizeHint().expandedTo(QSize(120, 24)));
    window.resize(control->size() + QSize(20, 20));
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) ADD_FAILURE() << "no window";
  }
  /// As an element's tree hands it out: on the table of its own interface.
  template <class impl> static handle handle_in_force(impl& element) {
    handle found;
    call<&queried::query>(element.polymorphic_handle(), impl::name, &found.table, &found.instance);
    return found;
  }
  template <class kind> kind* find(const char* name) {
    if (control->objectName() == QLatin1String(name)) return qobject_cast<kind*>(control);
    return control->findChild<kind*>(QLatin1String(name));
  }
  QWidget window;
  QWidget* control;
};
template <class impl> handle in_tree(impl& element) { return shown::handle_in_force(element); }

}  // namespace zu::desktop
