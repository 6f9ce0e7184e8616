#include "src/style/tos4_grid1d_style_ds.h"

#include <gtest/gtest.h>

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/data/generic_datasource.h"
#include "tests/unit/src/made_pgrid.h"

namespace {

using namespace zu;
using texts = std::vector<std::wstring>;

std::wstring two_bands(const std::string& name) {
  tests::made_pgrid file(name);
  file.grid.type = zu_tos4_profile;
  file.grid.size[0] = 2;
  file.add(L"Vp", {1, 2});
  file.add(L"глубина", {3, 4});
  return file.close();
}

texts distinct(element::tos4_grid1d_style_ds& ds, std::int64_t field) {
  data::generic_datasource source;
  EXPECT_TRUE(source.attach(handle_of<data_source_impl>(ds)));
  texts all;
  source.field_unique_values(field, -1, all);
  return all;
}

TEST(tos4_grid1d_style_ds, has_one_field) {
  element::tos4_grid1d_style_ds ds(L"");
  data::generic_datasource source;
  ASSERT_TRUE(source.attach(handle_of<data_source_impl>(ds)));
  EXPECT_EQ(source.number_of_fields(), 1);
  EXPECT_EQ(source.field_name(0), L"Fields");
  EXPECT_EQ(source.field_name(1), L"");
  EXPECT_EQ(source.find_field(L"Fields"), 0);
  EXPECT_EQ(source.find_field(L"Vp"), -1);
}

TEST(tos4_grid1d_style_ds, its_field_has_a_caption_for_people) {
  element::tos4_grid1d_style_ds ds(L"");
  texts captions;
  stdwstring_list_visitor visitor(captions);
  for (std::int64_t field : {0, 1})
    ds.field_caption(field, string_visitor(handle_of<string_visitor_impl>(visitor)));
  ASSERT_EQ(captions.size(), 1u);
  EXPECT_FALSE(captions[0].empty());
  EXPECT_EQ(captions[0], load_text(41));
}

TEST(tos4_grid1d_style_ds, its_distinct_texts_are_the_names_of_the_bands) {
  element::tos4_grid1d_style_ds ds(two_bands("style_ds.pgrid"));
  EXPECT_EQ(distinct(ds, 0), (texts{L"Vp", L"глубина"}));
  EXPECT_EQ(distinct(ds, 1), texts{});
}

TEST(tos4_grid1d_style_ds, a_source_that_does_not_open_has_none) {
  element::tos4_grid1d_style_ds ds(L"/no/such.pgrid");
  EXPECT_EQ(distinct(ds, 0), texts{});
}

}  // namespace
