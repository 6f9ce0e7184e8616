#pragma once
// The gallery's lists, trees and table.

#include <array>
#include <vector>

#include "src/common/gallery_texts.h"
#include "src/toolkit/grid.h"
#include "src/toolkit/layouts.h"
#include "src/toolkit/list.h"
#include "src/toolkit/outline_columns.h"
#include "src/toolkit/outline_view.h"

namespace zu::gallery {

/// A row of the list: a cell of every kind of column.
struct sample_row {
  std::wstring name, unit;
  std::int32_t count = 0;
  double value = 0;
  bool shown = true;
  std::int32_t kind = 0;
  bool marked = false;
};

/// A column of the sample rows, of kind `x`.
template <class x> class sample_column : public x {
 public:
  sample_column(std::vector<sample_row>& rows, const wchar_t* id, std::int32_t caption)
      : rows_(rows), id_(id), caption_(caption) {}
  void id(string_visitor visitor) override { call<&string_visitor_impl::visit>(visitor, id_); }
  void caption(string_visitor visitor) override { toolkit::visit_text(caption_, visitor); }

 protected:
  sample_row& at(outline_item item) { return rows_[toolkit::row_of(item)]; }

 private:
  std::vector<sample_row>& rows_;
  const wchar_t* id_;
  std::int32_t caption_;
};

struct name_column : sample_column<string_outline_column_impl> {
  using sample_column::sample_column;
  void text(outline_item item, string_visitor visitor) override;
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item item, const wchar_t* text) override;  ///< an empty one is refused
};
struct unit_column : sample_column<assisted_string_outline_column_impl> {
  using sample_column::sample_column;
  void text(outline_item item, string_visitor visitor) override;
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item item, const wchar_t* text) override;
  void visit_suggestions(outline_item item, string_visitor visitor) override;
};
struct count_column : sample_column<integer_outline_column_impl> {
  using sample_column::sample_column;
  std::int32_t value(outline_item item) override { return at(item).count; }
  bool is_editable(outline_item) override { return true; }
  bool set_value(outline_item item, std::int32_t value) override;
  std::int32_t minimum(outline_item) override { return 0; }
  std::int32_t maximum(outline_item) override { return 1000; }
};
struct value_column : sample_column<floating_outline_column_impl> {
  using sample_column::sample_column;
  double value(outline_item item) override { return at(item).value; }
  bool is_editable(outline_item) override { return true; }
  bool set_value(outline_item item, double value) override;
};
struct shown_column : sample_column<boolean_outline_column_impl> {
  using sample_column::sample_column;
  bool is_checked(outline_item item) override { return at(item).shown; }
  void set_checked(outline_item item, bool checked) override { at(item).shown = checked; }
};
struct kind_column : sample_column<enum_outline_column_impl> {
  using sample_column::sample_column;
  std::int32_t current(outline_item item) override { return at(item).kind; }
  bool set_current(outline_item item, std::int32_t kind) override;
  std::uint32_t count(outline_item) override { return 3; }
  void choice_text(outline_item, std::uint32_t choice, string_visitor visitor) override;
};
struct picture_column : sample_column<bitmap_outline_column_impl> {
  using sample_column::sample_column;
  void picture(outline_item item, bitmap_visitor visitor) override;
};
struct drawing_column : sample_column<canvas_outline_column_impl> {
  using sample_column::sample_column;
  void draw(outline_item item, Tzu_drwc* page) override;
};

class lists_page : public toolkit::with_element {
 public:
  lists_page();
  void change();
  void set_enabled(bool enabled);
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  struct checks : outline_checks_impl {
    explicit checks(std::vector<sample_row>& rows) : rows(rows) {}
    bool checked(outline_item item) override { return rows[toolkit::row_of(item)].marked; }
    void set_checked(outline_item item, bool on) override {
      rows[toolkit::row_of(item)].marked = on;
    }
    std::vector<sample_row>& rows;
  };
  void fill_rows();
  void fill_tree();

  std::vector<sample_row> rows_;
  std::int64_t current_ = 0;
  bool enabled_ = true;
  checks checks_{rows_};
  toolkit::outline_index_column number_{L"zu_gallery_number", text::number};
  name_column name_{rows_, L"zu_gallery_name", text::name};
  unit_column unit_{rows_, L"zu_gallery_unit", text::unit};
  count_column count_{rows_, L"zu_gallery_count", text::whole};
  value_column value_{rows_, L"zu_gallery_value", text::real};
  shown_column shown_{rows_, L"zu_gallery_shown", text::shown};
  kind_column kind_{rows_, L"zu_gallery_kind", text::kind};
  picture_column picture_{rows_, L"zu_gallery_picture", text::picture};
  drawing_column drawing_{rows_, L"zu_gallery_drawing", text::drawing};
  toolkit::outline_table_view table_;
  toolkit::outline_string_column_view tree_text_{L"zu_gallery_tree", text::tree};
  toolkit::outline_view tree_;
  toolkit::outline_table_view empty_;
  toolkit::list list_;
  toolkit::grid_layout<3, 1> below_;
  toolkit::grid_layout<1, 2> root_;
};

/// A table with more rows than any memory would hold.
class table_page : public toolkit::grid, public toolkit::with_element {
 public:
  static constexpr std::uint64_t rows = 400'000'000;

  std::uint32_t data_column_count() override { return 4; }
  std::uint64_t data_row_count() override { return rows; }
  std::uint32_t fixed_columns() override { return 2; }
  void column_header_cell(std::uint32_t column, grid_cell_visitor visitor) override;
  void row_header_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  void corner_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  void data_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  bool is_selected_row(std::uint32_t, std::uint64_t row) override { return row % 7 == 3; }
  void set_current(std::uint32_t column, std::uint64_t row) override {
    column_ = column, row_ = row;
  }
  bool current(std::uint32_t* column, std::uint64_t* row) override {
    *column = column_, *row = row_;
    return true;
  }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

  table_page() { root_.place(static_cast<toolkit::grid&>(*this)); }

 private:
  std::uint32_t column_ = 0;
  std::uint64_t row_ = 0;
  toolkit::grid_layout<1, 1> root_;
};

}  // namespace zu::gallery
