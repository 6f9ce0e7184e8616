#pragma once
// Outlines of function objects: a dialog fills a table with lambdas and declares no class. Each
// operation calls its function if that is set, and otherwise does as the class below it.

#include <functional>

#include "src/toolkit/outline.h"

namespace zu::toolkit {
namespace detail {

template <class base> class outline_of_functions : public base {
 public:
  std::function<std::uint32_t()> on_attributes;
  std::function<bool()> on_is_disabled;
  std::function<void(outline_item_visitor)> on_visit_root;
  std::function<std::uint32_t()> on_column_count;
  std::function<void(outline_checks_visitor)> on_visit_checks;
  std::function<void(std::uint32_t, outline_column_visitor)> on_visit_column;
  std::function<std::uint32_t()> on_visible_rows;
  std::function<std::uint32_t()> on_selection_mode;
  std::function<std::uint32_t()> on_width;
  std::function<bool()> on_is_tree;
  std::function<void(string_visitor)> on_visit_hint;
  std::function<void(string_visitor)> on_visit_empty_text;
  std::function<void(outline_item_visitor)> on_current;
  std::function<void(outline_item)> on_set_current;
  std::function<void(outline_item)> on_activate;
  std::function<bool(outline_item)> on_is_marked;
  std::function<void()> on_begin_marking;
  std::function<void(outline_item, bool)> on_set_marked;
  std::function<void()> on_end_marking;
  std::function<bool()> on_can_move_marked;
  std::function<void(outline_item, bool)> on_move_marked;
  std::function<bool(outline_item)> on_is_open;
  std::function<bool(outline_item)> on_is_item_disabled;
  std::function<bool(outline_item)> on_is_item_bold;
  std::function<std::uint32_t(outline_item)> on_item_background;
  std::function<bool(outline_item)> on_has_items;
  std::function<std::uint32_t(outline_item)> on_item_count;
  std::function<bool()> on_shows_lines;
  std::function<bool()> on_can_resize_columns;
  std::function<std::uint32_t()> on_lines_per_row;
  std::function<bool()> on_alternates_rows;
  std::function<std::int32_t()> on_sort_order;
  std::function<std::int32_t()> on_tree_column;
  std::function<void(std::uint32_t, bool)> on_caption_clicked;

  std::uint32_t attributes() override {
    return on_attributes ? on_attributes() : base::attributes();
  }
  bool is_disabled() override { return on_is_disabled ? on_is_disabled() : base::is_disabled(); }
  void visit_root(outline_item_visitor visitor) override {
    on_visit_root ? on_visit_root(visitor) : base::visit_root(visitor);
  }
  std::uint32_t column_count() override {
    return on_column_count ? on_column_count() : base::column_count();
  }
  void visit_checks(outline_checks_visitor visitor) override {
    on_visit_checks ? on_visit_checks(visitor) : base::visit_checks(visitor);
  }
  void visit_column(std::uint32_t column, outline_column_visitor visitor) override {
    on_visit_column ? on_visit_column(column, visitor) : base::visit_column(column, visitor);
  }
  std::uint32_t visible_rows() override {
    return on_visible_rows ? on_visible_rows() : base::visible_rows();
  }
  std::uint32_t selection_mode() override {
    return on_selection_mode ? on_selection_mode() : base::selection_mode();
  }
  std::uint32_t width() override { return on_width ? on_width() : base::width(); }
  bool is_tree() override { return on_is_tree ? on_is_tree() : base::is_tree(); }
  void visit_hint(string_visitor visitor) override {
    on_visit_hint ? on_visit_hint(visitor) : base::visit_hint(visitor);
  }
  void visit_empty_text(string_visitor visitor) override {
    on_visit_empty_text ? on_visit_empty_text(visitor) : base::visit_empty_text(visitor);
  }
  void current(outline_item_visitor visitor) override {
    on_current ? on_current(visitor) : base::current(visitor);
  }
  void set_current(outline_item item) override {
    on_set_current ? on_set_current(item) : base::set_current(item);
  }
  void activate(outline_item item) override {
    on_activate ? on_activate(item) : base::activate(item);
  }
  bool is_marked(outline_item item) override {
    return on_is_marked ? on_is_marked(item) : base::is_marked(item);
  }
  void begin_marking() override { on_begin_marking ? on_begin_marking() : base::begin_marking(); }
  void set_marked(outline_item item, bool marked) override {
    on_set_marked ? on_set_marked(item, marked) : base::set_marked(item, marked);
  }
  void end_marking() override { on_end_marking ? on_end_marking() : base::end_marking(); }
  bool can_move_marked() override {
    return on_can_move_marked ? on_can_move_marked() : base::can_move_marked();
  }
  void move_marked(outline_item item, bool behind) override {
    on_move_marked ? on_move_marked(item, behind) : base::move_marked(item, behind);
  }
  bool is_open(outline_item item) override {
    return on_is_open ? on_is_open(item) : base::is_open(item);
  }
  bool is_item_disabled(outline_item item) override {
    return on_is_item_disabled ? on_is_item_disabled(item) : base::is_item_disabled(item);
  }
  bool is_item_bold(outline_item item) override {
    return on_is_item_bold ? on_is_item_bold(item) : base::is_item_bold(item);
  }
  std::uint32_t item_background(outline_item item) override {
    return on_item_background ? on_item_background(item) : base::item_background(item);
  }
  bool has_items(outline_item item) override {
    return on_has_items ? on_has_items(item) : base::has_items(item);
  }
  std::uint32_t item_count(outline_item item) override {
    return on_item_count ? on_item_count(item) : base::item_count(item);
  }
  bool shows_lines() override { return on_shows_lines ? on_shows_lines() : base::shows_lines(); }
  bool can_resize_columns() override {
    return on_can_resize_columns ? on_can_resize_columns() : base::can_resize_columns();
  }
  std::uint32_t lines_per_row() override {
    return on_lines_per_row ? on_lines_per_row() : base::lines_per_row();
  }
  bool alternates_rows() override {
    return on_alternates_rows ? on_alternates_rows() : base::alternates_rows();
  }
  std::int32_t sort_order() override {
    return on_sort_order ? on_sort_order() : base::sort_order();
  }
  std::int32_t tree_column() override {
    return on_tree_column ? on_tree_column() : base::tree_column();
  }
  void caption_clicked(std::uint32_t column, bool shift) override {
    on_caption_clicked ? on_caption_clicked(column, shift) : base::caption_clicked(column, shift);
  }
};

}  // namespace detail

/// With no function set it shows nothing: it has no root.
using outline_view = detail::outline_of_functions<detail::outline_base>;

namespace detail {
using outline_table_functions = outline_of_functions<outline_table>;
}

/// A flat list of functions. With no function set it has no rows.
class outline_table_view : public detail::outline_table_functions {
 public:
  std::function<std::uint32_t()> on_row_count;
  std::function<std::int64_t()> on_current_row;
  std::function<void(std::int64_t)> on_set_current_row;

  std::uint32_t row_count() override { return on_row_count ? on_row_count() : 0; }
  std::int64_t current_row() override { return on_current_row ? on_current_row() : -1; }
  void set_current_row(std::int64_t row) override {
    if (on_set_current_row) on_set_current_row(row);
  }
};

}  // namespace zu::toolkit
