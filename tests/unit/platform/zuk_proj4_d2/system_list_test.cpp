#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "zu/platform/zuk_proj4_d2.h"

namespace {

struct kept_system {
  std::wstring name, area;
  double west, east;
  bool geographic, deprecated;
};
using systems = std::map<std::wstring, kept_system>;

systems listed() {
  systems all;
  auto take = [](const Tzu_pj_system* s, void* user) {
    (*static_cast<systems*>(user))[std::wstring(s->authority) + L":" + s->code] = {
        s->name, s->area, s->west, s->east, s->is_geographic, s->is_deprecated};
  };
  EXPECT_TRUE(zu_pj_list_systems(take, &all));
  return all;
}

TEST(system_list, systems_are_told_with_name_and_area) {
  systems all = listed();
  EXPECT_GT(all.size(), 5000u);
  const kept_system& utm = all.at(L"EPSG:32637");
  EXPECT_EQ(utm.name, L"WGS 84 / UTM zone 37N");
  EXPECT_NE(utm.area.find(L"Between 36"), std::wstring::npos);
  EXPECT_EQ(utm.west, 36);
  EXPECT_EQ(utm.east, 42);
  EXPECT_FALSE(utm.geographic);
  EXPECT_FALSE(utm.deprecated);
  EXPECT_TRUE(all.at(L"EPSG:4326").geographic);
}

TEST(system_list, systems_out_of_use_and_of_more_axes_are_told_apart) {
  systems all = listed();
  EXPECT_TRUE(all.at(L"EPSG:32074").deprecated);  // NAD27 / BLM 14N (feet), withdrawn
  EXPECT_EQ(all.count(L"EPSG:4979"), 0u);         // WGS 84 with heights
  EXPECT_EQ(all.count(L"EPSG:4978"), 0u);         // WGS 84 from the centre of the earth
}

TEST(system_list, nobody_to_tell_is_refused) { EXPECT_FALSE(zu_pj_list_systems(nullptr, nullptr)); }

}  // namespace
