#pragma once
// Outlines that answer from plain data and count what they are asked and told.

#include <QString>
#include <cwchar>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "zu/outline.h"

namespace zu::desktop {

inline std::uint32_t row_of(outline_item item) { return call<&outline_item_impl::row>(item); }
inline void give(string_visitor visitor, const std::wstring& text) {
  call<&string_visitor_impl::visit>(visitor, text.c_str());
}

/// Texts of rows, which a function may refuse.
struct text_column : string_outline_column_impl {
  void id(string_visitor v) override { give(v, L"text_column"); }
  void caption(string_visitor v) override { give(v, said_caption); }
  void text(outline_item item, string_visitor v) override {
    asked.insert(row_of(item));
    give(v, row_of(item) < texts.size() ? texts[row_of(item)]
                                        : L"row " + std::to_wstring(row_of(item)));
  }
  bool is_editable(outline_item) override { return editable; }
  bool is_enabled(outline_item item) override { return row_of(item) != disabled_row; }
  bool set_text(outline_item item, const wchar_t* text) override {
    ++sets;
    if (text[0] == L'!') return false;
    texts[row_of(item)] = text;
    return true;
  }
  bool is_sortable() override { return sortable; }
  bool has_button(outline_item) override { return button; }
  void press_button(outline_item) override { ++presses; }
  void click(outline_item item) override { clicked = int(row_of(item)); }
  void item_hint(outline_item, string_visitor v) override {
    if (!hint_text.empty()) give(v, hint_text);
  }

  std::wstring said_caption = L"Text", hint_text;
  std::vector<std::wstring> texts;
  std::set<std::uint32_t> asked;
  bool editable = true, sortable = false, button = false;
  std::uint32_t disabled_row = UINT32_MAX;
  int sets = 0, presses = 0, clicked = -1;
};

/// A flat list over columns of any kind.
struct fake_outline : outline_impl {
  std::uint32_t attributes() override { return outline_shows_captions; }
  bool is_disabled() override { return disabled; }
  void visit_root(outline_item_visitor visitor) override {
    if (has_root) call<&outline_item_visitor_impl::visit>(visitor, outline_item());
  }
  std::uint32_t column_count() override { return std::uint32_t(columns.size()); }
  void visit_column(std::uint32_t i, outline_column_visitor visitor) override {
    call<&outline_column_visitor_impl::visit>(visitor, columns[i]);
  }
  void visit_checks(outline_checks_visitor visitor) override {
    if (checks)
      call<&outline_checks_visitor_impl::visit>(
          visitor, outline_checks(handle_of<outline_checks_impl>(*checks)));
  }
  std::uint32_t selection_mode() override { return mode; }
  bool is_tree() override { return false; }
  void visit_empty_text(string_visitor v) override { give(v, L"Nothing here"); }
  void current(outline_item_visitor visitor) override {
    struct item final : outline_item_index_impl {
      std::uint32_t row() override { return at; }
      std::uint32_t at = 0;
    } now;
    now.at = std::uint32_t(current_row);
    call<&outline_item_visitor_impl::visit>(
        visitor,
        outline_item(current_row < 0 ? handle() : handle_of<outline_item_index_impl>(now)));
  }
  void set_current(outline_item item) override {
    ++current_sets;
    if (int(row_of(item)) != refused_row) current_row = int(row_of(item));
  }
  void begin_marking() override { ++begins; }
  void end_marking() override { ++ends; }
  bool is_marked(outline_item item) override {
    ++mark_questions;
    return mode == outline_chooses_many ? marks.count(row_of(item)) > 0
                                        : int(row_of(item)) == current_row;
  }
  void set_marked(outline_item item, bool flag) override {
    ++mark_sets;
    flag ? (void)marks.insert(row_of(item)) : (void)marks.erase(row_of(item));
    if (tells_marks) redraw();
  }
  void activate(outline_item item) override { activated = int(row_of(item)); }
  std::uint32_t item_count(outline_item item) override { return item ? 0 : rows; }
  bool has_items(outline_item item) override { return !item && rows > 0; }
  std::int32_t sort_order() override { return order; }
  void caption_clicked(std::uint32_t column, bool shift) override {
    order = shift ? -int(column) - 1 : int(column) + 1;
    ++caption_clicks;
  }
  void attach_view(element_view given) override {
    ++attachments;
    view = given;
  }
  int query_interface(const char* name, const void** table, void** instance) override {
    if (menu != nullptr && std::strcmp(name, context_menu_impl::name) == 0)
      return menu->query_interface(name, table, instance);
    return outline_impl::query_interface(name, table, instance);
  }

  template <class x> void add(x& column) {
    using kind = typename x::listed_in;
    columns.push_back(handle_of<kind>(column));
  }
  void redraw() { call<&element_view_impl::redraw>(view); }
  void tell_current() { call<&element_view_impl::value_changed>(view); }
  void tell_columns() { call<&element_view_impl::list_changed>(view); }

  std::vector<handle> columns;
  outline_checks_impl* checks = nullptr;
  context_menu_impl* menu = nullptr;
  std::uint32_t rows = 3, mode = outline_chooses_one;
  bool has_root = true, disabled = false, tells_marks = false;
  int current_row = -1, refused_row = -2, order = 0, activated = -1;
  std::set<std::uint32_t> marks;
  int current_sets = 0, mark_sets = 0, begins = 0, ends = 0, attachments = 0, caption_clicks = 0;
  int mark_questions = 0;
  element_view view;
};

/// Whole numbers from 0 to 100; 13 is refused.
struct whole_column : integer_outline_column_impl {
  void caption(string_visitor v) override { give(v, L"Whole"); }
  std::int32_t value(outline_item item) override { return values[row_of(item)]; }
  bool is_editable(outline_item) override { return true; }
  bool set_value(outline_item item, std::int32_t value) override {
    ++sets;
    if (value == 13) return false;
    values[row_of(item)] = value;
    return true;
  }
  std::int32_t minimum(outline_item) override { return 0; }
  std::int32_t maximum(outline_item) override { return 100; }
  std::vector<std::int32_t> values = {1, 2, 3};
  int sets = 0;
};

}  // namespace zu::desktop
