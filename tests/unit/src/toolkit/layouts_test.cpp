#include "src/toolkit/layouts.h"

#include <gtest/gtest.h>

#include "src/toolkit/numbers.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::told;
using tests::viewing;

/// Instance in a cell, null where it is empty.
template <class layout> const void* at(layout& shown, std::uint32_t column, std::uint32_t row) {
  tests::element_taker taker;
  shown.visit_cell(column, row, taker.visitor());
  return taker.only().instance;
}
template <class T> const void* instance(T& element) { return handle_of_element(element).instance; }

TEST(grid_layout, fills_rows_and_drops_what_has_no_cell) {
  label a(1), b(2), c(3), d(4), e(5);
  grid_layout<2, 2> grid;
  grid.place(a).place(b).place(c).place(d).place(e).place(e);
  EXPECT_EQ(at(grid, 0, 0), instance(a));
  EXPECT_EQ(at(grid, 1, 0), instance(b));
  EXPECT_EQ(at(grid, 0, 1), instance(c));
  EXPECT_EQ(at(grid, 1, 1), instance(d)) << "the last free cell";
  EXPECT_EQ(at(grid, 2, 0), nullptr);
  EXPECT_EQ(at(grid, 0, 2), nullptr);
}

TEST(grid_layout, fills_columns_when_told) {
  label a(1), b(2), c(3);
  grid_layout<2, 2> grid(true);
  grid.place(a).place(b).place(c);
  EXPECT_EQ(at(grid, 0, 0), instance(a));
  EXPECT_EQ(at(grid, 0, 1), instance(b));
  EXPECT_EQ(at(grid, 1, 0), instance(c));
  EXPECT_EQ(at(grid, 1, 1), nullptr);
}

TEST(grid_layout, passes_cells_that_are_taken) {
  label a(1), b(2), c(3), d(4);
  grid_layout<3, 1> grid;
  grid.place_at(1, 0, a).place(b).place(c);
  EXPECT_EQ(at(grid, 0, 0), instance(b));
  EXPECT_EQ(at(grid, 1, 0), instance(a));
  EXPECT_EQ(at(grid, 2, 0), instance(c));
  grid.place_at(2, 0, d).place_at(3, 0, a).place_at(-1, 0, a).place_at(0, 1, a);
  EXPECT_EQ(at(grid, 2, 0), instance(d)) << "in place of what was there";

  grid_layout<2, 2> gaps;
  gaps.skip().place(a).skip(7).place(b);
  EXPECT_EQ(at(gaps, 0, 0), nullptr);
  EXPECT_EQ(at(gaps, 1, 0), instance(a));
  EXPECT_EQ(at(gaps, 0, 1), nullptr);
  EXPECT_EQ(at(gaps, 1, 1), nullptr);
}

TEST(grid_layout, shows_a_child_by_its_own_interface) {
  grid_layout<1, 1> outer, inner;
  outer.place(inner);
  tests::element_taker taker;
  outer.visit_cell(0, 0, taker.visitor());
  EXPECT_TRUE(cast<grid_layout_impl>(taker.only()));
  EXPECT_FALSE(cast<label_impl>(taker.only()));
}

TEST(grid_layout, a_labelled_child_takes_a_cell_for_its_label_and_one_for_its_control) {
  labeled_element<integer_input> number(55);
  labelex_element<integer_input> length(55, 67);
  grid_layout<3, 2> grid;
  grid.place(number).skip().place(length);
  EXPECT_EQ(at(grid, 0, 0), instance(number.label()));
  EXPECT_EQ(at(grid, 1, 0), instance(static_cast<integer_input&>(number)));
  EXPECT_EQ(number.place().column, 1);
  EXPECT_EQ(number.place().row, 0);
  EXPECT_EQ(number.label_place().column, 0);
  EXPECT_EQ(at(grid, 0, 1), instance(length.label()));
  EXPECT_EQ(at(grid, 2, 1), instance(length.unit()));

  labeled_element<integer_input> late(55);
  grid.place(late);
  EXPECT_EQ(late.place().column, -1);
}

TEST(grid_layout, answers_by_default_when_asked_beside_itself) {
  grid_layout<2, 1> grid;
  EXPECT_EQ(grid.column_count(), 2U);
  EXPECT_EQ(grid.row_count(), 1U);
  EXPECT_TRUE(grid.column_visible(1));
  EXPECT_FALSE(grid.column_stretch(0));
  EXPECT_FALSE(grid.column_stretch(2));
  EXPECT_EQ(grid.row_size(7), 0U);
  grid.set_column_stretch(1).set_row_size(0, 12).set_column_size(5, 3);
  EXPECT_TRUE(grid.column_stretch(1));
  EXPECT_EQ(grid.row_size(0), 12U);
}

TEST(grid_span_layout, a_span_takes_its_cells_and_is_cut_at_the_edge) {
  label a(1), b(2), c(3);
  grid_span_layout<3, 2> grid;
  grid.place(a, 2).place(b, 5, 5).place(c);
  EXPECT_EQ(at(grid, 0, 0), instance(a));
  EXPECT_EQ(at(grid, 1, 0), nullptr);
  EXPECT_EQ(grid.column_span(0, 0), 2U);
  EXPECT_EQ(grid.row_span(0, 0), 1U);
  EXPECT_EQ(at(grid, 2, 0), instance(b));
  EXPECT_EQ(grid.column_span(2, 0), 1U);
  EXPECT_EQ(grid.row_span(2, 0), 2U);
  EXPECT_EQ(at(grid, 0, 1), instance(c));
  EXPECT_EQ(grid.column_span(9, 9), 1U);
}

TEST(grid_span_layout, of_a_labelled_child_the_control_is_spread) {
  labeled_element<integer_input> number(55);
  grid_span_layout<4, 1> grid;
  grid.place(number, 3);
  EXPECT_EQ(grid.column_span(0, 0), 1U);
  EXPECT_EQ(grid.column_span(1, 0), 3U);
}

TEST(groupbox, frames_a_layout_and_may_have_a_mark) {
  tests::base_language base;
  label a(1);
  groupbox<1, 1> box(55, 67);
  box.place(a).place(a);
  EXPECT_EQ(tests::text([&](auto v) { box.caption(v); }), L"Значение");
  EXPECT_EQ(tests::text([&](auto v) { box.hint(v); }), L"Шаг Z");
  auto inner = cast<grid_layout_impl>(box.layout());
  EXPECT_EQ(call<&grid_layout_impl::column_count>(inner), 1U);
  EXPECT_EQ(at(box.cells(), 0, 0), instance(a));
  EXPECT_FALSE(box.checkable());
  EXPECT_TRUE(box.checked());
  std::vector<bool> heard;
  box.on_check = [&](bool on) { heard.push_back(on); };
  box.set_checked(false);
  EXPECT_FALSE(box.checked());
  box.assign(true);
  EXPECT_EQ(heard, std::vector<bool>{false}) << "what the program sets is no input";

  groupbox_span<2, 1> spread;
  spread.place(a, 2);
  EXPECT_EQ(spread.cells().column_span(0, 0), 2U);
}

TEST(stack_layout, shows_one_of_its_pages) {
  label a(1), b(2);
  stack_layout<3> stack;
  stack.skip().place(a).place(b).place(b);
  EXPECT_EQ(stack.count(), 3U);
  tests::element_taker taker;
  for (std::uint32_t page : {0U, 1U, 2U, 3U}) stack.visit_page(page, taker.visitor());
  ASSERT_EQ(taker.elements.size(), 2U);
  EXPECT_EQ(taker.elements[1].instance, instance(b));
  viewing view(stack);
  stack.assign(2);
  stack.assign(2);
  stack.assign(3);
  EXPECT_EQ(stack.current(), 2U);
  EXPECT_EQ(view.calls(), (told{1, 0, 0}));
}

TEST(labeled_element, is_enabled_and_disabled_with_its_labels) {
  labelex_element<integer_input> length(55, 67);
  viewing label(length.label());
  viewing unit(length.unit());
  viewing control(static_cast<integer_input&>(length));
  length.set_enabled(true);
  EXPECT_EQ(label.calls(), told());
  length.set_enabled(false);
  for (const told& calls : {label.calls(), unit.calls(), control.calls()})
    EXPECT_EQ(calls, (told{0, 1, 0}));
  EXPECT_FALSE(length.label().enabled());
  length.label().set_enabled(true);
  length.set_enabled(false);
  EXPECT_EQ(control.calls(), (told{0, 1, 0})) << "each is compared for itself";
  EXPECT_FALSE(length.label().enabled());
}

}  // namespace
}  // namespace zu::toolkit
