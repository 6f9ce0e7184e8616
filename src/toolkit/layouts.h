#pragma once
// Layouts keep holders of their children in a table that does not grow: a child for which there is
// no cell left is dropped.

#include <algorithm>
#include <array>
#include <functional>

#include "src/toolkit/labeled.h"

namespace zu::toolkit {
namespace detail {

/// `C` columns and `R` rows; `Self` is what `place` gives back for a chain of calls.
template <int C, int R, class Self> class grid_layout_base : public element_base<grid_layout_impl> {
 public:
  /// With `fill_by_columns`, `place` goes down a column before it goes to the next one.
  explicit grid_layout_base(bool fill_by_columns = false) : fill_by_columns_(fill_by_columns) {
    (fill_by_columns ? cursor_.row : cursor_.column) = -1;
    (fill_by_columns ? cursor_.column : cursor_.row) = 0;
    column_visible_.fill(true);
    row_visible_.fill(true);
  }

  /// Lays a child into the next free cell; one with a label into two.
  template <class T> Self& place(T& child) {
    if constexpr (std::is_base_of_v<with_place, T>)
      child.lay(*this);
    else
      put(child);
    return self();
  }
  /// Lays a child into a cell, in place of what was there.
  template <class T> Self& place_at(int column, int row, T& child) {
    if (is_cell(column, row)) keep(column, row, child);
    return self();
  }
  /// Leaves the next free cells empty.
  Self& skip(int cells = 1) {
    for (int i = 0; i < cells && to_next_free(); ++i) taken_[index(cursor_)] = true;
    return self();
  }
  /// Lays one element, without parts; the cell is none if the layout is full.
  template <class T> cell put(T& child) {
    if (!to_next_free()) return {};
    keep(cursor_.column, cursor_.row, child);
    return cursor_;
  }

  Self& set_column_stretch(int column, bool on = true) { return set(column_stretch_, column, on); }
  Self& set_row_stretch(int row, bool on = true) { return set(row_stretch_, row, on); }
  Self& set_column_visible(int column, bool on) { return set(column_visible_, column, on); }
  Self& set_row_visible(int row, bool on) { return set(row_visible_, row, on); }
  Self& set_column_size(int column, std::uint32_t size) { return set(column_size_, column, size); }
  Self& set_row_size(int row, std::uint32_t size) { return set(row_size_, row, size); }
  Self& set_spacing(std::uint32_t gap) {
    if (replace(spacing_, gap)) redraw();
    return self();
  }

  std::uint32_t column_count() override { return C; }
  std::uint32_t row_count() override { return R; }
  void visit_cell(std::uint32_t column, std::uint32_t row, element_visitor visitor) override {
    if (column >= C || row >= R) return;
    if (auto& child = children_[column + row * C]) child->visit(visitor);
  }
  bool column_stretch(std::uint32_t column) override { return get(column_stretch_, column); }
  bool row_stretch(std::uint32_t row) override { return get(row_stretch_, row); }
  bool column_visible(std::uint32_t column) override { return get(column_visible_, column); }
  bool row_visible(std::uint32_t row) override { return get(row_visible_, row); }
  std::uint32_t column_size(std::uint32_t column) override { return get(column_size_, column); }
  std::uint32_t row_size(std::uint32_t row) override { return get(row_size_, row); }
  std::uint32_t spacing() override { return spacing_; }

 protected:
  static std::size_t index(cell c) { return static_cast<std::size_t>(c.column + c.row * C); }
  static bool is_cell(int column, int row) {
    return column >= 0 && column < C && row >= 0 && row < R;
  }
  /// Keeps a cell from being filled by `place`.
  void take(int column, int row) {
    if (is_cell(column, row)) taken_[index({column, row})] = true;
  }
  Self& self() { return static_cast<Self&>(*this); }

 private:
  /// False if the cursor left the grid.
  bool to_next_free() {
    int& fast = fill_by_columns_ ? cursor_.row : cursor_.column;
    int& slow = fill_by_columns_ ? cursor_.column : cursor_.row;
    const int length = fill_by_columns_ ? R : C, lines = fill_by_columns_ ? C : R;
    while (slow < lines) {
      if (++fast == length) fast = 0, ++slow;
      if (slow < lines && !taken_[index(cursor_)]) return true;
    }
    return false;
  }
  template <class T> void keep(int column, int row, T& child) {
    children_[index({column, row})] = std::make_unique<generic_element_impl<T>>(child);
    take(column, row);
  }
  template <class values, class value> Self& set(values& all, int at, value given) {
    bool inside = at >= 0 && static_cast<std::size_t>(at) < all.size();
    if (inside && replace(all[static_cast<std::size_t>(at)], given)) redraw();
    return self();
  }
  template <class values> static auto get(const values& all, std::size_t at) {
    return at < all.size() ? all[at] : typename values::value_type();
  }

  std::array<std::unique_ptr<generic_element>, std::size_t{C} * R> children_;
  std::array<bool, std::size_t{C}* R> taken_ = {};
  std::array<bool, C> column_stretch_ = {}, column_visible_ = {};
  std::array<bool, R> row_stretch_ = {}, row_visible_ = {};
  std::array<std::uint32_t, C> column_size_ = {};
  std::array<std::uint32_t, R> row_size_ = {};
  std::uint32_t spacing_ = 0;
  bool fill_by_columns_;
  cell cursor_;  // the last filled one
};

}  // namespace detail

template <int C, int R>
class grid_layout : public detail::grid_layout_base<C, R, grid_layout<C, R>> {
 public:
  using detail::grid_layout_base<C, R, grid_layout>::grid_layout_base;
};

/// Children may take several cells.
template <int C, int R>
class grid_span_layout : public detail::grid_layout_base<C, R, grid_span_layout<C, R>> {
 public:
  using detail::grid_layout_base<C, R, grid_span_layout>::grid_layout_base;
  using detail::grid_layout_base<C, R, grid_span_layout>::place;

  /// From the next free cell on; of a labelled child, the control takes the span. What does not fit
  /// into the grid is cut.
  template <class T> grid_span_layout& place(T& child, int columns, int rows = 1) {
    if constexpr (std::is_base_of_v<with_place, T>) {
      child.lay(*this);
      spread(child.place(), columns, rows);
    } else {
      spread(this->put(child), columns, rows);
    }
    return *this;
  }
  std::uint32_t column_span(std::uint32_t column, std::uint32_t row) override {
    return span_of(column, row).columns;
  }
  std::uint32_t row_span(std::uint32_t column, std::uint32_t row) override {
    return span_of(column, row).rows;
  }

 private:
  struct span {
    std::uint32_t columns = 1, rows = 1;
  };
  span span_of(std::uint32_t column, std::uint32_t row) const {
    return column < C && row < R ? spans_[column + row * C] : span();
  }
  void spread(cell from, int columns, int rows) {
    if (!this->is_cell(from.column, from.row)) return;
    columns = std::clamp(columns, 1, C - from.column), rows = std::clamp(rows, 1, R - from.row);
    spans_[this->index(from)] = {static_cast<std::uint32_t>(columns),
                                 static_cast<std::uint32_t>(rows)};
    for (int row = 0; row < rows; ++row)
      for (int column = 0; column < columns; ++column)
        this->take(from.column + column, from.row + row);
  }

  std::array<span, std::size_t{C} * R> spans_;
};

namespace detail {

/// A layout in a frame.
template <class Self, class Layout>
class groupbox_base : public mixed<groupbox_impl, with_caption, with_hint> {
 public:
  explicit groupbox_base(std::int32_t caption = 0, std::int32_t hint = 0) {
    this->set_caption(caption);
    this->set_hint(hint);
  }
  template <class... args> Self& place(args&&... given) {
    layout_.place(std::forward<args>(given)...);
    return static_cast<Self&>(*this);
  }
  Layout& cells() { return layout_; }
  /// Gives the frame a mark.
  void set_checkable(bool checkable) {
    if (this->replace(checkable_, checkable)) this->redraw();
  }
  void assign(bool checked) {
    if (this->replace(checked_, checked)) this->tell_value();
  }

  handle layout() override { return handle_of<grid_layout_impl>(layout_); }
  bool checkable() override { return checkable_; }
  bool checked() override { return checked_; }
  void set_checked(bool checked) override {
    checked_ = checked;
    if (on_check) on_check(checked);
  }

  std::function<void(bool)> on_check;

 private:
  Layout layout_;
  bool checkable_ = false, checked_ = true;
};

}  // namespace detail

template <int C, int R>
class groupbox : public detail::groupbox_base<groupbox<C, R>, grid_layout<C, R>> {
 public:
  using detail::groupbox_base<groupbox, grid_layout<C, R>>::groupbox_base;
};

template <int C, int R>
class groupbox_span : public detail::groupbox_base<groupbox_span<C, R>, grid_span_layout<C, R>> {
 public:
  using detail::groupbox_base<groupbox_span, grid_span_layout<C, R>>::groupbox_base;
};

/// `N` pages of which one shows.
template <int N> class stack_layout : public element_base<stack_layout_impl> {
 public:
  /// On the next page; a page may be left empty.
  template <class T> stack_layout& place(T& child) {
    if (next_ < N) pages_[next_++] = std::make_unique<detail::generic_element_impl<T>>(child);
    return *this;
  }
  stack_layout& skip() {
    if (next_ < N) ++next_;
    return *this;
  }
  void assign(std::uint32_t page) {
    if (page < N && replace(current_, page)) tell_value();
  }

  std::uint32_t count() override { return N; }
  void visit_page(std::uint32_t page, element_visitor visitor) override {
    if (page < N && pages_[page]) pages_[page]->visit(visitor);
  }
  std::uint32_t current() override { return current_; }

 private:
  std::array<std::unique_ptr<detail::generic_element>, N> pages_;
  std::uint32_t next_ = 0, current_ = 0;
};

}  // namespace zu::toolkit
