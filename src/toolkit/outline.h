#pragma once
// Outlines as base classes: derive, override what the list shows, list the columns.

#include <vector>

#include "src/toolkit/context_menu.h"
#include "src/toolkit/element.h"
#include "zu/outline.h"

namespace zu::toolkit {

/// Item of a flat table; lives during the visit that it is made for.
class outline_table_item_index : public outline_item_index_impl {
 public:
  explicit outline_table_item_index(std::uint32_t row) : row_(row) {}
  std::uint32_t row() override { return row_; }
  outline_item item() { return outline_item(handle_of<outline_item_index_impl>(*this)); }

 private:
  std::uint32_t row_;
};

/// Row of an item; 0 for the root.
inline std::uint32_t row_of(outline_item item) { return call<&outline_item_impl::row>(item); }

namespace detail {

/// Columns in display order. They are members of whoever lists them.
template <class base> class with_outline_column_visit : public base {
 public:
  template <class x> with_outline_column_visit& add_column(outline_column_interface<x>& column) {
    columns_.push_back(handle_of<x>(static_cast<x&>(column)));
    return *this;
  }
  std::uint32_t column_count() override { return static_cast<std::uint32_t>(columns_.size()); }
  void visit_column(std::uint32_t index, outline_column_visitor visitor) override {
    if (index < columns_.size())
      call<&outline_column_visitor_impl::visit>(visitor, columns_[index]);
  }

 private:
  std::vector<handle> columns_;
};

/// What all outlines share. `redraw` tells the view that items are others.
class outline_base
    : public with_outline_column_visit<with_context_menu<element_base<outline_impl>>> {
 public:
  void tell_current() { tell_value(); }  ///< the current item or marks are others
  void tell_columns() { tell_list(); }   ///< columns are others too
};

}  // namespace detail

/// A list or tree whose root is the empty item. Captions show, one item is chosen at a time.
class outline : public detail::outline_base {
 public:
  std::uint32_t attributes() override { return outline_shows_captions; }
  void visit_root(outline_item_visitor visitor) override {
    call<&outline_item_visitor_impl::visit>(visitor, outline_item());
  }
  std::uint32_t selection_mode() override { return outline_chooses_one; }
  bool has_items(outline_item item) override { return item_count(item) != 0; }
};

/// A flat list: an item is a row.
class outline_table : public outline {
 public:
  bool is_tree() override { return false; }
  std::int32_t tree_column() override { return -1; }
  void current(outline_item_visitor visitor) override;
  void set_current(outline_item item) override { set_current_row(row_of(item)); }
  bool is_marked(outline_item item) override { return row_of(item) == current_row(); }
  bool has_items(outline_item item) override { return !item; }
  std::uint32_t item_count(outline_item item) override { return item ? 0 : row_count(); }

  virtual std::uint32_t row_count() { return 0; }
  virtual std::int64_t current_row() { return -1; }  ///< -1: none
  virtual void set_current_row(std::int64_t) {}
};

}  // namespace zu::toolkit
