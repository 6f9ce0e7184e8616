#include "src/data/cell_text.h"

#include <gtest/gtest.h>

#include "tests/unit/src/made_source.h"

namespace {

using namespace zu;
using data::cell_text;

TEST(cell_text, is_the_shortest_text_of_up_to_fifteen_digits) {
  tests::made_source source(3, 2);
  source.add(L"z", {1, 0.1, -1234567.25, 1e300, 1.0 / 3.0, 0});
  data::grid_datasource grid;
  ASSERT_TRUE(grid.attach(source.handle()));
  EXPECT_EQ(cell_text(grid, 0, 0, 0), L"1");
  EXPECT_EQ(cell_text(grid, 0, 1, 0), L"0.1");
  EXPECT_EQ(cell_text(grid, 0, 2, 0), L"-1234567.25");
  EXPECT_EQ(cell_text(grid, 0, 0, 1), L"1e+300");
  EXPECT_EQ(cell_text(grid, 0, 1, 1), L"0.333333333333333");
  EXPECT_EQ(cell_text(grid, 0, 2, 1), L"0");
}

TEST(cell_text, is_empty_where_there_is_no_value_or_none_can_be_read) {
  tests::made_source source(3, 2);
  tests::made_band& band = source.add(L"z", {-9999, 1, 2, 3, 4, 5});
  band.has_nodata = true, band.nodata = -9999;
  data::grid_datasource grid;
  ASSERT_TRUE(grid.attach(source.handle()));
  EXPECT_EQ(cell_text(grid, 0, 0, 0), L"");
  EXPECT_EQ(cell_text(grid, 0, 1, 0), L"1");
  EXPECT_EQ(cell_text(grid, 1, 0, 0), L"") << "no such field";
  source.reads_before_failure = 0;
  EXPECT_EQ(cell_text(grid, 0, 1, 0), L"");
  EXPECT_EQ(source.blocks_alive, 0);
}

}  // namespace
