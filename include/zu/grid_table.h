#pragma once
// Tables of typed cells, with fixed columns at the left and fixed rows on top that do not scroll.
// Whoever shows one asks for the cells in sight and for nothing else, so that a table may have
// any number of rows. All columns and rows are counted with the fixed ones.

#include "zu/toolkit.h"

namespace zu {

/// Takes a cell of any kind, by the handle of its own interface. The cell lives during the call.
struct grid_cell_visitor_impl : plain_interface<grid_cell_visitor_impl> {
  static constexpr char name[] = "zu_grid_cell_visitor_interface_0";
  virtual void visit(handle /*cell*/) {}
  using operations = in_order<&grid_cell_visitor_impl::visit>;
};
using grid_cell_visitor = of<grid_cell_visitor_impl>;

/// What every cell answers first, in these slots.
template <class x> struct grid_cell_interface : plain_interface<x> {
  using listed_in = x;
  virtual void text(string_visitor) {}  ///< that the cell shows, and that is copied
  virtual void hint(string_visitor) {}
  virtual bool is_read_only() { return false; }
  virtual bool is_enabled() { return true; }
  virtual std::uint32_t alignment() { return 0; }   ///< 0 by kind, 1 left, 2 middle, 3 right
  virtual std::uint32_t background() { return 0; }  ///< 0xAARRGGBB; 0: the usual
  template <auto... own>
  using cell_order = typename plain_interface<x>::template in_order<
      &grid_cell_interface::text, &grid_cell_interface::hint, &grid_cell_interface::is_read_only,
      &grid_cell_interface::is_enabled, &grid_cell_interface::alignment,
      &grid_cell_interface::background, own...>;
};

struct grid_string_cell_impl : grid_cell_interface<grid_string_cell_impl> {
  static constexpr char name[] = "zu_grid_string_cell_interface_6";
  virtual bool set_text(const wchar_t*) { return false; }  ///< false: refused
  using operations = cell_order<&grid_string_cell_impl::set_text>;
};

struct grid_integer_cell_impl : grid_cell_interface<grid_integer_cell_impl> {
  static constexpr char name[] = "zu_grid_integer_cell_interface_8";
  virtual std::int32_t value() { return 0; }
  virtual bool set_value(std::int32_t) { return false; }  ///< false: refused
  virtual std::int32_t minimum() { return INT32_MIN; }
  virtual std::int32_t maximum() { return INT32_MAX; }
  using operations = cell_order<&grid_integer_cell_impl::value, &grid_integer_cell_impl::set_value,
                                &grid_integer_cell_impl::minimum, &grid_integer_cell_impl::maximum>;
};

struct grid_floating_cell_impl : grid_cell_interface<grid_floating_cell_impl> {
  static constexpr char name[] = "zu_grid_floating_cell_interface_10";
  virtual double value() { return 0; }
  virtual bool set_value(double) { return false; }  ///< false: refused
  virtual double minimum() { return -1e300; }
  virtual double maximum() { return 1e300; }
  using operations =
      cell_order<&grid_floating_cell_impl::value, &grid_floating_cell_impl::set_value,
                 &grid_floating_cell_impl::minimum, &grid_floating_cell_impl::maximum>;
};

struct grid_check_cell_impl : grid_cell_interface<grid_check_cell_impl> {
  static constexpr char name[] = "zu_grid_check_cell_interface_0";
  virtual bool is_checked() { return false; }
  virtual void set_checked(bool, bool /*Shift is down*/) {}
  virtual bool is_undecided() { return false; }  ///< neither on nor off
  virtual bool is_shown() { return true; }       ///< false: an empty cell
  using operations =
      cell_order<&grid_check_cell_impl::is_checked, &grid_check_cell_impl::set_checked,
                 &grid_check_cell_impl::is_undecided, &grid_check_cell_impl::is_shown>;
};

struct grid_bitmap_cell_impl : grid_cell_interface<grid_bitmap_cell_impl> {
  static constexpr char name[] = "zu_grid_bitmap_cell_interface_4";
  virtual void picture(bitmap_visitor) {}
  virtual void click() {}
  using operations = cell_order<&grid_bitmap_cell_impl::picture, &grid_bitmap_cell_impl::click>;
};

/// The table itself. Its view's slot 1 tells that columns are others, slot 2 that cells or the
/// current cell show something else, slot 3 that the data are others: rows may be fewer or more.
struct grid_impl : plain_interface<grid_impl> {
  static constexpr char name[] = "zu_grid_interface_32";
  virtual std::uint32_t attributes() { return 0; }  ///< no bit has a meaning yet
  virtual std::uint32_t column_count() { return 0; }
  virtual std::uint64_t row_count() { return 0; }
  virtual std::uint32_t fixed_columns() { return 0; }
  virtual std::uint32_t fixed_rows() { return 0; }
  virtual void column_id(std::uint32_t, string_visitor) {}  ///< by which a width is remembered
  virtual std::uint32_t column_width(std::uint32_t) { return 0; }  ///< characters; 0: by content
  virtual void visit_cell(std::uint32_t /*column*/, std::uint64_t /*row*/, grid_cell_visitor) {}
  virtual void cell_text(std::uint32_t /*column*/, std::uint64_t /*row*/, string_visitor) {}
  virtual bool column_is_chosen(std::uint32_t) { return false; }  ///< shown as chosen
  virtual bool is_marked(std::uint32_t /*column*/, std::uint64_t /*row*/) { return false; }
  /// A click on a cell of a fixed row; true if the grid took it.
  virtual bool header_clicked(std::uint32_t, bool /*Shift is down*/) { return false; }
  /// A click on a cell of a fixed column that is no check; true if the grid took it.
  virtual bool fixed_clicked(std::uint32_t /*column*/, std::uint64_t /*row*/,
                             bool /*Shift is down*/) {
    return false;
  }
  virtual void toggle(std::uint32_t /*column*/, std::uint64_t /*row*/) {}  ///< the space bar
  virtual void move_to(std::uint32_t /*column*/, std::uint64_t /*row*/) {}
  /// False, and the numbers are left alone, if no cell is current.
  virtual bool position(std::uint32_t* /*column*/, std::uint64_t* /*row*/) { return false; }
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&grid_impl::attributes, &grid_impl::column_count, &grid_impl::row_count,
               &grid_impl::fixed_columns, &grid_impl::fixed_rows, &grid_impl::column_id,
               &grid_impl::column_width, &grid_impl::visit_cell, &grid_impl::cell_text,
               &grid_impl::column_is_chosen, &grid_impl::is_marked, &grid_impl::header_clicked,
               &grid_impl::fixed_clicked, &grid_impl::toggle, &grid_impl::move_to,
               &grid_impl::position, &grid_impl::hint, &grid_impl::enabled,
               &grid_impl::attach_view>;
};

}  // namespace zu
