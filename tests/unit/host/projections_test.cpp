// The search among coordinate systems.

#include "host/core/projections.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zu::host {
namespace {

const projections& known() {
  static const projections all;
  return all;
}

std::string first_of(const std::string& text) {
  auto found = known().search(text, 1);
  return found.empty() ? "" : found[0]->text;
}

struct search_case {
  const char* text;
  const char* first;
};

TEST(projections, the_likeliest_comes_first) {
  const search_case cases[] = {
      {"3857", "EPSG:3857"},
      {"epsg:3857", "EPSG:3857"},
      {"EPSG 32637", "EPSG:32637"},
      {"utm 37", "EPSG:32637"},
      {"utm 37s", "EPSG:32737"},
      {"zone 37N wgs84 UTM", "EPSG:32637"},
      {"wgs 84", "EPSG:4326"},
      {"pseudo mercator", "EPSG:3857"},
      {"pulkovo 1942", "EPSG:4284"},
      {"Пулково 1942", "EPSG:4284"},
      {"пулково", "EPSG:4200"},
      {"ск-95", "EPSG:4200"},
      {"ск42 гаусс крюгер зона 6", "EPSG:28406"},
      {"british national grid", "EPSG:27700"},
  };
  for (const search_case& each : cases) EXPECT_EQ(first_of(each.text), each.first) << each.text;
}

TEST(projections, an_area_finds_what_is_used_there) {
  auto found = known().search("svalbard utm");
  ASSERT_FALSE(found.empty());
  EXPECT_NE(found[0]->area.find("Svalbard"), std::string::npos) << found[0]->area;
}

TEST(projections, all_words_must_be_there) {
  EXPECT_TRUE(known().search("utm klingon").empty());
  EXPECT_TRUE(known().search("").empty());
  EXPECT_TRUE(known().search(" ,; ").empty());
}

TEST(projections, no_more_come_than_asked_for) { EXPECT_EQ(known().search("utm", 7).size(), 7u); }

TEST(projections, what_is_out_of_use_comes_behind) {
  auto found = known().search("pulkovo", 10000);
  auto deprecated = [](const projection_entry* each) { return each->is_deprecated; };
  EXPECT_TRUE(std::any_of(found.begin(), found.end(), deprecated));
  EXPECT_FALSE(found.front()->is_deprecated);
}

TEST(projections, an_entry_says_what_it_is) {
  const projection_entry* utm = known().find("EPSG:32637");
  ASSERT_NE(utm, nullptr);
  EXPECT_EQ(utm->name, "WGS 84 / UTM zone 37N");
  EXPECT_FALSE(utm->is_geographic);
  ASSERT_TRUE(utm->bounds);
  EXPECT_EQ(utm->bounds->x0, 36);
  EXPECT_EQ(utm->bounds->x1, 42);
  EXPECT_TRUE(known().find("EPSG:4326")->is_geographic);
  EXPECT_EQ(known().find("EPSG:0"), nullptr);
}

TEST(projections, texts_have_names_and_reasons) {
  EXPECT_EQ(projection_name("EPSG:32637"), "WGS 84 / UTM zone 37N");
  EXPECT_EQ(why_no_projection("EPSG:32637"), "");
  EXPECT_NE(why_no_projection("EPSG:1"), "");
  EXPECT_NE(why_no_projection("nonsense"), "");
}

}  // namespace
}  // namespace zu::host
