#include "zu/platform/zuk_attr_data.h"

#include <gtest/gtest.h>

#include "tests/unit/platform/taken_text.h"

namespace {

TEST(table_data, remembers_which_ids_are_selected) {
  Tzu_table_data* table = zu_table_data_create();
  EXPECT_FALSE(zu_table_data_has_selected_ids(table));
  zu_table_data_begin_update(table);
  zu_table_data_set_selected_id(table, 5, true);
  zu_table_data_set_selected_id(table, ~std::uint64_t{0}, true);
  zu_table_data_end_update(table);
  EXPECT_TRUE(zu_table_data_is_selected_id(table, 5));
  EXPECT_TRUE(zu_table_data_is_selected_id(table, ~std::uint64_t{0}));
  EXPECT_FALSE(zu_table_data_is_selected_id(table, 6));
  zu_table_data_set_selected_id(table, 5, false);
  EXPECT_FALSE(zu_table_data_is_selected_id(table, 5));
  zu_table_data_clear_selected_ids(table);
  EXPECT_FALSE(zu_table_data_has_selected_ids(table));
  zu_table_data_set_wsource(table, L"grid.tif");
  EXPECT_EQ(tests::text_of([&](Tzu_string_adp* t) { zu_table_data_get_wsource(table, t); }),
            L"grid.tif");
  zu_table_data_destroy(table);
  EXPECT_FALSE(zu_table_data_has_selected_ids(nullptr));
}

}  // namespace
