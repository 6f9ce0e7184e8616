#include <gtest/gtest.h>

#include "platform/zuk_style_libs/style_library.h"
#include "tests/unit/platform/taken_text.h"

namespace {

using tests::text_of;
using library_ptr = zu::platform::owned<zu_style_lib_destroy>;

std::wstring caption(Tzu_style_item* item) {
  return text_of([&](Tzu_string_adp* a) { zu_style_item_get_caption(item, a); });
}
Tzu_style_item* root(const library_ptr& library) {
  return zu_style_lib_get_root_item_ptr(library.get());
}
Tzu_style_item* item(const library_ptr& library, std::int32_t index) {
  return zu_style_item_find_by_index(root(library), index);
}
/// A point of a size under a number.
void add_point(const library_ptr& library, std::int32_t index, double size) {
  Tzu_style_list* list = zu_style_lib_get_pnt_list_ptr(library.get());
  Tzu_idx_style* entry = zu_style_list_insert(list, zu_style_list_get_size(list), index);
  zu_bpnt_style_set_size(zu_pnt_style_get_bpnt_style_ptr(zu_idx_pnt_style_get_pnt_style_ptr(entry)),
                         size);
}

TEST(style_library, an_item_is_found_by_its_number_at_any_depth_and_the_first_wins) {
  library_ptr library(zu_style_lib_create());
  Tzu_style_item* forest = zu_style_item_add(root(library), 10, L"Forest");
  zu_style_item_add(zu_style_item_add(forest, 11, L"Conifers"), 12, L"Pine");
  zu_style_item_add(root(library), 12, L"Twelve again");
  EXPECT_EQ(caption(item(library, 12)), L"Pine");
  EXPECT_EQ(item(library, 10), forest);
  EXPECT_EQ(zu_style_item_get_index(item(library, 11)), 11);
  EXPECT_EQ(item(library, 13), nullptr);
  EXPECT_EQ(zu_style_item_find_by_index(forest, 10), forest);
}

TEST(style_library, a_heading_and_the_root_are_no_codes) {
  library_ptr library(zu_style_lib_create());
  zu_style_item_add(root(library), zu_style_no_index, L"Heading");
  EXPECT_EQ(item(library, 0), nullptr);
  EXPECT_EQ(item(library, -1), nullptr);
  EXPECT_EQ(item(library, zu_style_no_index), nullptr);
}

TEST(style_library, a_list_holds_styles_of_its_kind_in_the_order_of_insertion) {
  library_ptr library(zu_style_lib_create());
  Tzu_style_list* lines = zu_style_lib_get_pln_list_ptr(library.get());
  zu_style_list_insert(lines, 0, 7);
  Tzu_idx_style* top = zu_style_list_insert(lines, 0, 8);
  zu_style_list_insert(lines, 99, 9);
  ASSERT_EQ(zu_style_list_get_size(lines), 3u);
  EXPECT_EQ(zu_style_list_find_idx(lines, 8), 0);
  EXPECT_EQ(zu_style_list_find_idx(lines, 7), 1);
  EXPECT_EQ(zu_style_list_find_idx(lines, 9), 2);
  EXPECT_EQ(zu_style_list_find_idx(lines, 6), -1);
  EXPECT_NE(zu_idx_pln_style_get_pln_style_ptr(top), nullptr);
  EXPECT_EQ(zu_idx_pnt_style_get_pnt_style_ptr(top), nullptr);
  EXPECT_EQ(zu_idx_pgn_style_get_pgn_style_ptr(top), nullptr);
  zu_style_list_remove(lines, 0);
  zu_style_list_remove(lines, 5);
  ASSERT_EQ(zu_style_list_get_size(lines), 2u);
  EXPECT_EQ(zu_idx_style_get_index(zu_style_list_get_idx_style(lines, 0)), 7);
  EXPECT_EQ(zu_style_list_get_idx_style(lines, 2), nullptr);
}

TEST(style_library, merging_adds_what_is_missing_and_leaves_what_is_there) {
  library_ptr library(zu_style_lib_create()), other(zu_style_lib_create());
  zu_style_lib_set_caption(library.get(), L"mine");
  zu_style_lib_set_caption(other.get(), L"other");
  Tzu_style_item* forest = zu_style_item_add(root(library), zu_style_no_index, L"Forest");
  zu_style_item_add(forest, 12, L"Pine");
  Tzu_style_item* other_forest = zu_style_item_add(root(other), zu_style_no_index, L"Forest");
  zu_style_item_add(other_forest, 12, L"Another name");
  zu_style_item_add(other_forest, 13, L"Fir");
  zu_style_item_add(zu_style_item_add(root(other), zu_style_no_index, L"Water"), 20, L"Lake");
  add_point(library, 12, 3.0);
  for (double size : {3.0, 4.0}) add_point(other, 12, size);
  add_point(other, 13, 3.0);
  zu_style_lib_merge(library.get(), other.get());

  EXPECT_EQ(caption(root(library)), L"mine");
  EXPECT_EQ(caption(item(library, 12)), L"Pine");
  EXPECT_EQ(zu_style_item_find_by_index(forest, 13), item(library, 13));
  EXPECT_EQ(caption(item(library, 20)), L"Lake");
  EXPECT_EQ(root(library)->items.size(), 2u);
  Tzu_style_list* points = zu_style_lib_get_pnt_list_ptr(library.get());
  EXPECT_EQ(zu_style_list_get_size(points), 3u);
  EXPECT_EQ(zu_style_list_find_idx(points, 12), 0);

  zu_style_lib_merge(library.get(), other.get());
  EXPECT_EQ(zu_style_list_get_size(points), 3u);
  zu_style_lib_merge(library.get(), library.get());
  zu_style_lib_merge(library.get(), nullptr);
  EXPECT_EQ(zu_style_list_get_size(points), 3u);
}

TEST(style_library, nothing_given_gives_nothing) {
  EXPECT_EQ(zu_style_lib_get_root_item_ptr(nullptr), nullptr);
  EXPECT_EQ(zu_style_item_add(nullptr, 1, L""), nullptr);
  EXPECT_EQ(zu_style_list_insert(nullptr, 0, 1), nullptr);
  EXPECT_EQ(zu_style_list_get_size(nullptr), 0u);
  EXPECT_EQ(zu_style_list_find_idx(nullptr, 0), -1);
  EXPECT_EQ(zu_idx_pnt_style_get_pnt_style_ptr(nullptr), nullptr);
  zu_style_list_remove(nullptr, 0);
  zu_style_lib_merge(nullptr, nullptr);
  zu_style_lib_destroy(nullptr);
}

}  // namespace
