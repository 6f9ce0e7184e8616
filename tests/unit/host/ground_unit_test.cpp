#include "host/core/ground_unit.h"

#include <gtest/gtest.h>

namespace zu::host {
namespace {

TEST(ground_unit, is_as_long_as_the_projection_says) {
  // A degree of longitude on WGS 84, from the tables of Snyder 1987, p. 29, in metres.
  struct {
    const char* projection;
    double y, metres, tolerance;
  } cases[] = {{"", 55, 1, 0},
               {"no such system", 55, 1, 0},
               {"EPSG:32637", 6200000, 1, 0},
               {"EPSG:2264", 0, 0.3048006096, 1e-9},  // US survey feet
               {"EPSG:4326", 0, 111319.49, 0.01},
               {"EPSG:4326", 60, 55800, 1},
               {"EPSG:4326", -60, 55800, 1},
               {"+proj=longlat +datum=WGS84 +towgs84=0,0,0", 0, 111319.49, 0.01},
               {"EPSG:4326+5773", 0, 111319.49, 0.01}};  // with heights
  for (const auto& each : cases) {
    ground_unit unit;
    unit.set_projection(each.projection);
    EXPECT_NEAR(unit.metres(each.y), each.metres, each.tolerance) << each.projection << each.y;
  }
}

TEST(ground_unit, has_a_length_at_the_poles_and_beyond) {
  ground_unit unit;
  unit.set_projection("EPSG:4326");
  EXPECT_GT(unit.metres(90), 1000);
  EXPECT_NEAR(unit.metres(90), unit.metres(89), 1e-6);
  EXPECT_NEAR(unit.metres(-300), unit.metres(-89), 1e-6);
}

TEST(ground_unit, follows_another_projection) {
  ground_unit unit;
  unit.set_projection("EPSG:4326");
  unit.set_projection("");
  EXPECT_EQ(unit.metres(0), 1);
}

}  // namespace
}  // namespace zu::host
