#include "src/toolkit/grid.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "src/bundle/strings.h"

namespace zu::toolkit {
namespace {

/// Two data columns and three data rows; every cell says which of the four it is.
struct small_grid : grid {
  std::uint32_t data_column_count() override { return 2; }
  std::uint64_t data_row_count() override { return 3; }
  std::uint32_t fixed_columns() override { return 2; }
  void column_header_cell(std::uint32_t c, grid_cell_visitor) override { asked = {'h', c, 0}; }
  void row_header_cell(std::uint32_t c, std::uint64_t r, grid_cell_visitor visitor) override {
    asked = {'r', c, r};
    grid_row_cell cell(*this, c, r);
    call<&grid_cell_visitor_impl::visit>(visitor, handle_of<grid_string_cell_impl>(cell));
  }
  void corner_cell(std::uint32_t c, std::uint64_t r, grid_cell_visitor) override {
    asked = {'c', c, r};
  }
  void data_cell(std::uint32_t c, std::uint64_t r, grid_cell_visitor) override {
    asked = {'d', c, r};
  }
  bool is_selected_row(std::uint32_t, std::uint64_t row) override {
    return selected.count(row) > 0;
  }
  void set_active_column(std::uint32_t column) override { active = int(column); }
  void toggle_row(std::uint32_t, std::uint64_t row) override {
    if (selected.erase(row) == 0) selected.insert(row);
  }
  void set_current(std::uint32_t c, std::uint64_t r) override { place = {c, r}; }
  bool current(std::uint32_t* c, std::uint64_t* r) override {
    *c = place.first, *r = place.second;
    return true;
  }

  struct question {
    char part;
    std::uint32_t column;
    std::uint64_t row;
    bool operator==(const question&) const = default;
  };
  question asked{};
  std::set<std::uint64_t> selected;
  int active = -1;
  std::pair<std::uint32_t, std::uint64_t> place{1, 2};
};

TEST(grid, counts_the_fixed_columns_and_the_row_of_captions) {
  small_grid shown;
  handle h = handle_of<grid_impl>(shown);
  EXPECT_EQ(call<&grid_impl::column_count>(h), 4u);
  EXPECT_EQ(call<&grid_impl::row_count>(h), 4u);
  EXPECT_EQ(call<&grid_impl::fixed_rows>(h), 1u);
  EXPECT_EQ(call<&grid_impl::column_width>(h, 0u), 10u);
  EXPECT_EQ(call<&grid_impl::column_width>(h, 3u), 15u);
  grid empty;
  EXPECT_EQ(empty.fixed_columns(), 1u);
  EXPECT_EQ(empty.row_count(), 1u) << "a table without rows shows its captions alone";
}

TEST(grid, asks_for_a_cell_by_the_part_that_it_stands_in) {
  small_grid shown;
  handle h = handle_of<grid_impl>(shown);
  const struct {
    std::uint32_t column;
    std::uint64_t row;
    small_grid::question asked;
  } cases[] = {{2, 1, {'d', 0, 0}}, {3, 3, {'d', 1, 2}}, {1, 2, {'r', 1, 1}}, {0, 1, {'r', 0, 0}},
               {3, 0, {'h', 1, 0}}, {1, 0, {'c', 1, 0}}, {4, 1, {}},          {0, 4, {}}};
  for (const auto& c : cases) {
    shown.asked = {};
    call<&grid_impl::visit_cell>(h, c.column, c.row, grid_cell_visitor());
    EXPECT_TRUE(shown.asked == c.asked) << c.column << " " << c.row;
  }
}

TEST(grid, gives_the_text_of_a_cell_of_any_kind) {
  small_grid shown;
  std::wstring text;
  stdwstring_visitor visitor(text);
  call<&grid_impl::cell_text>(handle_of<grid_impl>(shown), 0u, std::uint64_t{2},
                              string_visitor(handle_of<string_visitor_impl>(visitor)));
  EXPECT_EQ(text, L"2");
}

TEST(grid, counts_data_columns_and_rows_for_what_its_owner_hears) {
  small_grid shown;
  handle h = handle_of<grid_impl>(shown);
  std::uint32_t column = 0;
  std::uint64_t row = 0;
  EXPECT_TRUE(call<&grid_impl::position>(h, &column, &row));
  EXPECT_EQ(column, 3u);
  EXPECT_EQ(row, 3u);
  call<&grid_impl::move_to>(h, 2u, std::uint64_t{1});
  EXPECT_EQ(shown.place, std::make_pair(0u, std::uint64_t{0}));
  call<&grid_impl::move_to>(h, 1u, std::uint64_t{1});
  EXPECT_EQ(shown.place.first, 0u) << "a fixed cell is never current";
  call<&grid_impl::toggle>(h, 2u, std::uint64_t{3});
  EXPECT_TRUE(call<&grid_impl::is_marked>(h, 2u, std::uint64_t{3}));
  EXPECT_FALSE(call<&grid_impl::is_marked>(h, 2u, std::uint64_t{0}));
}

TEST(grid, makes_a_column_active_by_its_caption_alone) {
  small_grid shown;
  handle h = handle_of<grid_impl>(shown);
  EXPECT_FALSE(call<&grid_impl::header_clicked>(h, 1u, false));
  EXPECT_EQ(shown.active, -1);
  EXPECT_TRUE(call<&grid_impl::header_clicked>(h, 3u, false));
  EXPECT_EQ(shown.active, 3);
}

TEST(grid_check_cell, follows_the_selection_of_its_row_and_is_missing_in_the_corner) {
  small_grid shown;
  grid_check_cell cell(shown, 1, 2), corner(shown, 1, 0);
  EXPECT_FALSE(cell.is_checked());
  cell.set_checked(true, false);
  EXPECT_TRUE(cell.is_checked());
  cell.set_checked(true, false);
  EXPECT_TRUE(cell.is_checked()) << "the same again changes nothing";
  EXPECT_EQ(shown.selected, (std::set<std::uint64_t>{1}));
  EXPECT_TRUE(cell.is_shown());
  EXPECT_FALSE(corner.is_shown());
}

}  // namespace
}  // namespace zu::toolkit
