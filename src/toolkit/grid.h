#pragma once
// Tables of typed cells: derive, and answer for data columns and rows, which are counted without
// the fixed ones.

#include "src/toolkit/context_menu.h"
#include "src/toolkit/element.h"
#include "zu/grid_table.h"

namespace zu::toolkit {

/// One fixed row of captions over the data, and at the left as many fixed columns as a derived
/// class says, of which the first is for running numbers.
class grid : public with_context_menu<element_base<grid_impl>> {
 public:
  virtual std::uint32_t data_column_count() { return 0; }
  virtual std::uint64_t data_row_count() { return 0; }
  virtual void column_header_cell(std::uint32_t /*data column*/, grid_cell_visitor) {}
  virtual void row_header_cell(std::uint32_t /*fixed column*/, std::uint64_t /*data row*/,
                               grid_cell_visitor) {}
  virtual void corner_cell(std::uint32_t /*fixed column*/, std::uint64_t /*fixed row*/,
                           grid_cell_visitor) {}
  virtual void data_cell(std::uint32_t /*column*/, std::uint64_t /*row*/, grid_cell_visitor) {}
  /// The column is counted with the fixed ones here and where a caption is clicked.
  virtual bool is_active_column(std::uint32_t) { return false; }
  virtual bool is_selected_row(std::uint32_t /*column*/, std::uint64_t /*data row*/) {
    return false;
  }
  virtual void set_active_column(std::uint32_t) {}  ///< its caption was clicked
  virtual bool row_header_clicked(std::uint32_t /*fixed column*/, std::uint64_t /*data row*/,
                                  bool /*Shift is down*/) {
    return false;
  }
  virtual void toggle_row(std::uint32_t /*column*/, std::uint64_t /*data row*/) {}
  virtual void set_current(std::uint32_t /*data column*/, std::uint64_t /*data row*/) {}
  /// False: none is current.
  virtual bool current(std::uint32_t* /*data column*/, std::uint64_t* /*data row*/) {
    return false;
  }

  std::uint32_t column_count() override { return fixed_columns() + data_column_count(); }
  std::uint64_t row_count() override { return fixed_rows() + data_row_count(); }
  std::uint32_t fixed_columns() override { return 1; }
  std::uint32_t fixed_rows() override { return 1; }
  std::uint32_t column_width(std::uint32_t column) override { return column == 0 ? 10 : 15; }
  void visit_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  void cell_text(std::uint32_t column, std::uint64_t row, string_visitor visitor) override;
  bool column_is_chosen(std::uint32_t column) override { return is_active_column(column); }
  bool is_marked(std::uint32_t column, std::uint64_t row) override;
  bool header_clicked(std::uint32_t column, bool shift) override;
  bool fixed_clicked(std::uint32_t column, std::uint64_t row, bool shift) override;
  void toggle(std::uint32_t column, std::uint64_t row) override;
  void move_to(std::uint32_t column, std::uint64_t row) override;
  bool position(std::uint32_t* column, std::uint64_t* row) override;

  void tell_columns() { tell_value(); }  ///< columns are others
  void tell_data() { tell_list(); }      ///< rows are others, or fewer or more
};

/// The running number of a row, in the first fixed column.
class grid_row_cell : public grid_string_cell_impl {
 public:
  grid_row_cell(grid& owner, std::uint32_t column, std::uint64_t row)
      : owner_(owner), column_(column), row_(row) {}
  void text(string_visitor visitor) override;
  bool is_read_only() override { return true; }
  std::uint32_t alignment() override { return 3; }

 protected:
  grid& owner_;
  std::uint32_t column_;
  std::uint64_t row_;
};

/// A mark that says whether a data row is selected. In the corner above the marks there is none.
class grid_check_cell : public grid_check_cell_impl {
 public:
  /// `row` is counted with the fixed ones.
  grid_check_cell(grid& owner, std::uint32_t column, std::uint64_t row)
      : owner_(owner), column_(column), row_(row) {}
  bool is_checked() override;
  void set_checked(bool checked, bool shift) override;
  bool is_shown() override { return row_ >= owner_.fixed_rows(); }

 protected:
  grid& owner_;
  std::uint32_t column_;
  std::uint64_t row_;
};

}  // namespace zu::toolkit
