#include "src/toolkit/outline.h"

#include <gtest/gtest.h>

#include <functional>

#include "src/bundle/strings.h"
#include "src/toolkit/list.h"
#include "src/toolkit/outline_columns.h"
#include "src/toolkit/outline_view.h"

namespace zu::toolkit {
namespace {

struct kept_items final : outline_item_visitor_impl {
  void visit(outline_item item) override {
    ++visits;
    was_empty = !item;
    row = row_of(item);
  }
  outline_item_visitor get() {
    return outline_item_visitor(handle_of<outline_item_visitor_impl>(*this));
  }
  int visits = 0;
  bool was_empty = false;
  std::uint32_t row = 99;
};
struct kept_column final : outline_column_visitor_impl {
  void visit(handle column) override { found = column; }
  outline_column_visitor get() {
    return outline_column_visitor(handle_of<outline_column_visitor_impl>(*this));
  }
  handle found;
};
struct counting_view final : element_view_impl {
  void value_changed() override { ++values; }
  void redraw() override { ++redraws; }
  void list_changed() override { ++lists; }
  int values = 0, redraws = 0, lists = 0;
};

std::wstring said(const std::function<void(string_visitor)>& ask) {
  std::wstring text = L"(none)";
  stdwstring_visitor visitor(text);
  ask(string_visitor(handle_of<string_visitor_impl>(visitor)));
  return text;
}

struct three_rows : outline_table {
  std::uint32_t row_count() override { return 3; }
  std::int64_t current_row() override { return chosen; }
  void set_current_row(std::int64_t row) override { chosen = row; }
  std::int64_t chosen = -1;
};

/// The slot of an operation in the table that crosses the border.
template <auto operation> int slot_of() {
  return zu::detail::index_of<operation>(outline_impl::operations());
}

TEST(outline, has_its_operations_in_fixed_slots) {
  // Slot 0 leads to the query.
  EXPECT_EQ(slot_of<&outline_impl::attributes>(), 1);
  EXPECT_EQ(slot_of<&outline_impl::visit_root>(), 3);
  EXPECT_EQ(slot_of<&outline_impl::column_count>(), 4);
  EXPECT_EQ(slot_of<&outline_impl::visit_checks>(), 5);
  EXPECT_EQ(slot_of<&outline_impl::visit_column>(), 6);
  EXPECT_EQ(slot_of<&outline_impl::selection_mode>(), 8);
  EXPECT_EQ(slot_of<&outline_impl::is_tree>(), 10);
  EXPECT_EQ(slot_of<&outline_impl::current>(), 13);
  EXPECT_EQ(slot_of<&outline_impl::set_current>(), 14);
  EXPECT_EQ(slot_of<&outline_impl::is_marked>(), 16);
  EXPECT_EQ(slot_of<&outline_impl::set_marked>(), 18);
  EXPECT_EQ(slot_of<&outline_impl::has_items>(), 26);
  EXPECT_EQ(slot_of<&outline_impl::item_count>(), 27);
  EXPECT_EQ(slot_of<&outline_impl::attach_view>(), 35);
}

TEST(outline, of_no_class_answers_with_the_defaults) {
  outline_impl plain;
  handle h = handle_of<outline_impl>(plain);
  EXPECT_EQ(call<&outline_impl::attributes>(h), 0u);
  EXPECT_EQ(call<&outline_impl::selection_mode>(h), 0u);
  EXPECT_TRUE(call<&outline_impl::is_tree>(h));
  EXPECT_TRUE(call<&outline_impl::can_resize_columns>(h));
  EXPECT_EQ(call<&outline_impl::lines_per_row>(h), 1u);
  EXPECT_EQ(call<&outline_impl::tree_column>(h), 0);
  kept_items root;
  call<&outline_impl::visit_root>(h, root.get());
  EXPECT_EQ(root.visits, 0);
}

TEST(outline, has_the_empty_item_for_its_root_and_shows_captions) {
  outline shown;
  handle h = handle_of<outline_impl>(shown);
  kept_items root;
  call<&outline_impl::visit_root>(h, root.get());
  EXPECT_EQ(root.visits, 1);
  EXPECT_TRUE(root.was_empty);
  EXPECT_EQ(call<&outline_impl::attributes>(h), 1u);
  EXPECT_EQ(call<&outline_impl::selection_mode>(h), 5u);
  EXPECT_FALSE(call<&outline_impl::has_items>(h, outline_item()));
}

TEST(outline_table, without_rows_counts_none_and_has_no_current_item) {
  outline_table shown;
  handle h = handle_of<outline_impl>(shown);
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 0u);
  kept_items current;
  call<&outline_impl::current>(h, current.get());
  EXPECT_EQ(current.visits, 1);
  EXPECT_TRUE(current.was_empty);
  EXPECT_FALSE(call<&outline_impl::is_tree>(h));
  EXPECT_EQ(call<&outline_impl::tree_column>(h), -1);
}

TEST(outline_table, takes_items_for_rows) {
  three_rows shown;
  handle h = handle_of<outline_impl>(shown);
  outline_table_item_index second(1);
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 3u);
  EXPECT_EQ(call<&outline_impl::item_count>(h, second.item()), 0u);
  EXPECT_TRUE(call<&outline_impl::has_items>(h, outline_item()));
  EXPECT_FALSE(call<&outline_impl::has_items>(h, second.item()));
  call<&outline_impl::set_current>(h, second.item());
  EXPECT_EQ(shown.chosen, 1);
  EXPECT_TRUE(call<&outline_impl::is_marked>(h, second.item()));
  kept_items current;
  call<&outline_impl::current>(h, current.get());
  EXPECT_EQ(current.row, 1u);
  EXPECT_FALSE(current.was_empty);
}

TEST(outline_table, takes_the_empty_item_for_row_0) {
  three_rows shown;
  EXPECT_EQ(row_of(outline_item()), 0u);
  call<&outline_impl::set_current>(handle_of<outline_impl>(shown), outline_item());
  EXPECT_EQ(shown.chosen, 0);
}

TEST(outline_table_item_index, has_its_row_in_entry_2_of_its_table) {
  outline_table_item_index index(7);
  handle item = handle_of<outline_item_index_impl>(index);
  using entry = std::uint32_t (*)(const void*, void*);
  auto row = reinterpret_cast<entry>(static_cast<const slot*>(item.table)[2]);
  EXPECT_EQ(row(item.table, item.instance), 7u);
  EXPECT_TRUE(cast<outline_item_index_impl>(item));
}

TEST(outline, tells_its_view_as_long_as_it_has_one) {
  three_rows shown;
  shown.redraw();  // nobody is told
  counting_view view;
  call<&outline_impl::attach_view>(handle_of<outline_impl>(shown),
                                   element_view(handle_of<element_view_impl>(view)));
  shown.tell_current();
  shown.redraw();
  shown.redraw();
  shown.tell_columns();
  EXPECT_EQ(view.values, 1);
  EXPECT_EQ(view.redraws, 2);
  EXPECT_EQ(view.lists, 1);
  call<&outline_impl::attach_view>(handle_of<outline_impl>(shown), element_view());
  shown.redraw();
  EXPECT_EQ(view.redraws, 2);
}

TEST(outline, lists_its_columns_in_the_order_in_which_they_were_added) {
  three_rows shown;
  outline_index_column number(L"number", 0);
  outline_string_column_view name(L"name", 0);
  shown.add_column(number).add_column(name);
  handle h = handle_of<outline_impl>(shown);
  ASSERT_EQ(call<&outline_impl::column_count>(h), 2u);
  kept_column first, second, none;
  call<&outline_impl::visit_column>(h, 0u, first.get());
  call<&outline_impl::visit_column>(h, 1u, second.get());
  call<&outline_impl::visit_column>(h, 2u, none.get());
  EXPECT_TRUE(cast<integer_outline_column_impl>(first.found));
  EXPECT_TRUE(cast<string_outline_column_impl>(second.found));
  EXPECT_FALSE(none.found);
}

TEST(outline_index_column, counts_rows_from_1_and_is_read_only) {
  outline_index_column number(L"the id", 0);
  handle h = handle_of<integer_outline_column_impl>(number);
  outline_table_item_index fifth(4);
  EXPECT_EQ(call<&integer_outline_column_impl::value>(h, fifth.item()), 5);
  EXPECT_FALSE(call<&integer_outline_column_impl::is_editable>(h, fifth.item()));
  EXPECT_EQ(said([&](string_visitor v) { call<&integer_outline_column_impl::id>(h, v); }),
            L"the id");
  EXPECT_EQ(said([&](string_visitor v) { call<&integer_outline_column_impl::caption>(h, v); }),
            L"(none)")
      << "0 is no text";
}

TEST(outline_string_column_view, without_functions_is_empty_and_refuses) {
  outline_string_column_view column(L"name", 0);
  handle h = handle_of<string_outline_column_impl>(column);
  outline_table_item_index row(0);
  EXPECT_EQ(
      said([&](string_visitor v) { call<&string_outline_column_impl::text>(h, row.item(), v); }),
      L"(none)");
  EXPECT_FALSE(call<&string_outline_column_impl::is_editable>(h, row.item()));
  EXPECT_FALSE(call<&string_outline_column_impl::set_text>(h, row.item(), L"x"));
}

TEST(outline_string_column_view, does_what_its_functions_do) {
  outline_string_column_view column(L"name", 0);
  std::wstring value = L"old";
  column.on_text = [&](outline_item, string_visitor v) {
    call<&string_visitor_impl::visit>(v, value.c_str());
  };
  column.on_is_editable = [](outline_item item) { return row_of(item) == 2; };
  column.on_set_text = [&](outline_item, const wchar_t* text) {
    value = text;
    return true;
  };
  handle h = handle_of<string_outline_column_impl>(column);
  outline_table_item_index row(2);
  EXPECT_TRUE(call<&string_outline_column_impl::is_editable>(h, row.item()));
  EXPECT_TRUE(call<&string_outline_column_impl::set_text>(h, row.item(), L"new"));
  EXPECT_EQ(
      said([&](string_visitor v) { call<&string_outline_column_impl::text>(h, row.item(), v); }),
      L"new");
}

TEST(outline_columns, of_lambdas_have_21_and_11_operations_of_their_own) {
  EXPECT_EQ(zu::detail::index_of<&string_outline_column_impl::longest_text>(
                string_outline_column_impl::operations()),
            21);
  EXPECT_EQ(zu::detail::index_of<&bitmap_outline_column_impl::picture>(
                bitmap_outline_column_impl::operations()),
            11);
}

TEST(enum_outline_column, says_in_entry_14_of_its_operations_whether_a_cell_is_enabled) {
  // The query counts as operation 0 and has no slot of its own.
  EXPECT_EQ(zu::detail::index_of<&enum_outline_column_impl::is_enabled>(
                enum_outline_column_impl::operations()),
            13);
}

TEST(outline_view, without_functions_shows_an_empty_list) {
  outline_view shown;
  handle h = handle_of<outline_impl>(shown);
  EXPECT_EQ(call<&outline_impl::column_count>(h), 0u);
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 0u);
  EXPECT_FALSE(call<&outline_impl::has_items>(h, outline_item()));
  EXPECT_EQ(call<&outline_impl::attributes>(h), 0u);
  EXPECT_TRUE(call<&outline_impl::is_tree>(h));
  kept_items visits;
  call<&outline_impl::visit_root>(h, visits.get());
  call<&outline_impl::current>(h, visits.get());
  EXPECT_EQ(visits.visits, 0);
}

TEST(outline_view, calls_the_function_of_each_operation) {
  outline_view shown;
  int marked = 0;
  shown.on_item_count = [](outline_item item) { return item ? 0u : 4u; };
  shown.on_set_marked = [&](outline_item item, bool flag) {
    marked = flag ? int(row_of(item)) : -1;
  };
  handle h = handle_of<outline_impl>(shown);
  outline_table_item_index third(2);
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 4u);
  call<&outline_impl::set_marked>(h, third.item(), true);
  EXPECT_EQ(marked, 2);
}

TEST(outline_table_view, is_a_flat_list_of_functions) {
  outline_table_view shown;
  handle h = handle_of<outline_impl>(shown);
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 0u);
  kept_items current;
  call<&outline_impl::current>(h, current.get());
  EXPECT_TRUE(current.was_empty);
  std::int64_t row = 1;
  shown.on_row_count = [] { return 2u; };
  shown.on_current_row = [&] { return row; };
  shown.on_set_current_row = [&](std::int64_t wanted) { row = wanted; };
  EXPECT_EQ(call<&outline_impl::item_count>(h, outline_item()), 2u);
  call<&outline_impl::set_current>(h, outline_item());
  EXPECT_EQ(row, 0);
}

TEST(with_context_menu, answers_to_the_menu_only_while_there_is_one) {
  three_rows shown;
  handle h = handle_of<outline_impl>(shown);
  EXPECT_FALSE(cast<context_menu_impl>(h));
  context_menu_impl menu;
  shown.set_context_menu(&menu);
  EXPECT_EQ(cast<context_menu_impl>(h).instance, static_cast<void*>(&menu));
  EXPECT_TRUE(cast<outline_impl>(h));
  shown.set_context_menu(nullptr);
  EXPECT_FALSE(cast<context_menu_impl>(h));
}

TEST(list, keeps_texts_and_tells_its_view_of_real_changes_alone) {
  list shown;
  counting_view view;
  shown.add(L"a").add(L"b");
  shown.attach_view(element_view(handle_of<element_view_impl>(view)));
  handle h = handle_of<list_impl>(shown);
  EXPECT_EQ(call<&list_impl::count>(h), 2u);
  EXPECT_EQ(said([&](string_visitor v) { call<&list_impl::item_text>(h, 1u, v); }), L"b");
  EXPECT_EQ(said([&](string_visitor v) { call<&list_impl::item_text>(h, 2u, v); }), L"(none)");
  shown.choose(1);
  shown.choose(1);
  shown.set_enabled(true);
  EXPECT_EQ(view.values, 1);
  EXPECT_EQ(view.redraws, 0);
  int chosen = -1;
  shown.on_current = [&](std::int32_t row) { chosen = row; };
  call<&list_impl::set_current>(h, 0);
  EXPECT_EQ(chosen, 0);
  EXPECT_EQ(view.values, 1) << "a person's choice comes from the view";
}

TEST(list, refuses_texts_that_nobody_takes) {
  list shown;
  shown.add(L"a");
  handle h = handle_of<list_impl>(shown);
  EXPECT_FALSE(call<&list_impl::is_editable>(h, 0u));
  EXPECT_FALSE(call<&list_impl::set_text>(h, 0u, L"x"));
  shown.on_text = [](std::uint32_t, const wchar_t* text) { return text[0] != L'!'; };
  EXPECT_FALSE(call<&list_impl::set_text>(h, 0u, L"!"));
  EXPECT_TRUE(call<&list_impl::set_text>(h, 0u, L"x"));
  EXPECT_EQ(said([&](string_visitor v) { call<&list_impl::item_text>(h, 0u, v); }), L"x");
}

}  // namespace
}  // namespace zu::toolkit
