#include "src/toolkit/grid.h"

#include <string>

namespace zu::toolkit {
namespace {

/// Passes the text of a cell on.
class text_of_cell : public grid_cell_visitor_impl {
 public:
  explicit text_of_cell(string_visitor receiver) : receiver_(receiver) {}
  void visit(handle cell) override {
    // The text stands in the same slot for cells of all kinds.
    call<&grid_string_cell_impl::text>(cell, receiver_);
  }

 private:
  string_visitor receiver_;
};

}  // namespace

void grid::visit_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) {
  if (column >= column_count() || row >= row_count()) return;
  const bool data_column = column >= fixed_columns(), data_row = row >= fixed_rows();
  if (data_column && data_row)
    data_cell(column - fixed_columns(), row - fixed_rows(), visitor);
  else if (data_row)
    row_header_cell(column, row - fixed_rows(), visitor);
  else if (data_column)
    column_header_cell(column - fixed_columns(), visitor);
  else
    corner_cell(column, row, visitor);
}

void grid::cell_text(std::uint32_t column, std::uint64_t row, string_visitor visitor) {
  text_of_cell receiver(visitor);
  visit_cell(column, row, handle_of<grid_cell_visitor_impl>(receiver));
}

bool grid::is_marked(std::uint32_t column, std::uint64_t row) {
  return row >= fixed_rows() && is_selected_row(column, row - fixed_rows());
}

bool grid::header_clicked(std::uint32_t column, bool) {
  if (column < fixed_columns()) return false;
  set_active_column(column);
  return true;
}

bool grid::fixed_clicked(std::uint32_t column, std::uint64_t row, bool shift) {
  return row >= fixed_rows() && row_header_clicked(column, row - fixed_rows(), shift);
}

void grid::toggle(std::uint32_t column, std::uint64_t row) {
  if (row >= fixed_rows()) toggle_row(column, row - fixed_rows());
}

void grid::move_to(std::uint32_t column, std::uint64_t row) {
  if (column >= fixed_columns() && row >= fixed_rows())
    set_current(column - fixed_columns(), row - fixed_rows());
}

bool grid::position(std::uint32_t* column, std::uint64_t* row) {
  std::uint32_t data_column = 0;
  std::uint64_t data_row = 0;
  if (!current(&data_column, &data_row)) return false;
  *column = data_column + fixed_columns();
  *row = data_row + fixed_rows();
  return true;
}

void grid_row_cell::text(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, std::to_wstring(row_ + 1).c_str());
}

bool grid_check_cell::is_checked() { return owner_.is_marked(column_, row_); }

void grid_check_cell::set_checked(bool checked, bool) {
  if (checked != is_checked()) owner_.toggle(column_, row_);
}

}  // namespace zu::toolkit
