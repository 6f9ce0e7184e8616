// Coordinates as a person reads them.

#include "host/core/coordinate_text.h"

#include <gtest/gtest.h>

namespace zu::host {
namespace {

const compass_letters letters{"E", "W", "N", "S"};

std::string text_in(const char* projection, double x, double y, coordinate_units units,
                    double pixel = 10) {
  coordinate_text made;
  made.set_projection(projection);
  return made.text(x, y, pixel, units, letters);
}

struct place_case {
  const char* projection;
  double x, y;
  const char *degrees, *dms;
};

// Longitudes and latitudes by GDAL's CoordinateTransformation, their minutes by hand.
TEST(coordinate_text, gives_longitude_and_latitude_on_wgs_84) {
  const place_case cases[] = {
      {"EPSG:32637", 350000, 6185000, "36.60778°E 55.78732°N", "36°36′28.0″E 55°47′14.4″N"},
      {"EPSG:32637", 500000, 0, "39.00000°E 0.00000°N", "39°00′00.0″E 0°00′00.0″N"},
      {"EPSG:3857", -8238310.24, 4970071.58, "74.00600°W 40.71280°N", "74°00′21.6″W 40°42′46.1″N"},
      {"EPSG:32733", 300000, 6243000, "12.83613°E 33.93448°S", "12°50′10.1″E 33°56′04.1″S"},
  };
  for (const place_case& each : cases) {
    EXPECT_EQ(text_in(each.projection, each.x, each.y, coordinate_units::degrees), each.degrees);
    EXPECT_EQ(text_in(each.projection, each.x, each.y, coordinate_units::dms), each.dms);
  }
}

TEST(coordinate_text, of_a_scene_in_degrees_is_as_it_stands) {
  EXPECT_EQ(text_in("EPSG:4326", 36.61934, 55.78311, coordinate_units::degrees),
            "36.61934°E 55.78311°N");
  EXPECT_EQ(text_in("EPSG:4326", 36.61934, 55.78311, coordinate_units::dms),
            "36°37′09.6″E 55°46′59.2″N");
}

TEST(coordinate_text, goes_once_around_the_earth) {
  EXPECT_EQ(text_in("EPSG:4326", 200, 10, coordinate_units::degrees), "160.00000°W 10.00000°N");
  EXPECT_EQ(text_in("EPSG:4326", -350, -10, coordinate_units::degrees), "10.00000°E 10.00000°S");
}

TEST(coordinate_text, rounds_up_to_whole_minutes_and_degrees) {
  EXPECT_EQ(text_in("EPSG:4326", 9.99999, -0.9999999, coordinate_units::dms),
            "10°00′00.0″E 1°00′00.0″S");
  EXPECT_EQ(text_in("EPSG:4326", -0.000001, -0.000001, coordinate_units::degrees),
            "0.00000°E 0.00000°N");
}

TEST(coordinate_text, has_more_decimals_where_a_pixel_is_small) {
  const double x = 350000, y = 6185000;
  EXPECT_EQ(text_in("EPSG:32637", x, y, coordinate_units::degrees, 0.1),
            "36.6077769°E 55.7873250°N");
  EXPECT_EQ(text_in("EPSG:32637", x, y, coordinate_units::dms, 0.1),
            "36°36′27.997″E 55°47′14.370″N");
  EXPECT_EQ(text_in("EPSG:32637", x, y, coordinate_units::degrees, 1e-9),
            "36.60777685°E 55.78732496°N");
  EXPECT_EQ(text_in("EPSG:32637", x, y, coordinate_units::degrees, 0), "36.60778°E 55.78732°N");
}

TEST(coordinate_text, is_in_units_of_the_map_where_nothing_leads_to_wgs_84) {
  EXPECT_EQ(text_in("", 350000, 6185000, coordinate_units::degrees), "350000; 6185000");
  EXPECT_EQ(text_in("nonsense", 350000, 6185000, coordinate_units::dms), "350000; 6185000");
  EXPECT_EQ(text_in("EPSG:4326", 10, 90.5, coordinate_units::degrees, 1), "10.0; 90.5");
  EXPECT_EQ(text_in("EPSG:32637", 350000, 6185000, coordinate_units::map), "350000; 6185000");
}

TEST(coordinate_text, follows_the_projection_of_the_scene) {
  coordinate_text made;
  auto text = [&] { return made.text(0, 0, 10, coordinate_units::degrees, letters); };
  EXPECT_EQ(text(), "0; 0");
  made.set_projection("EPSG:3857");
  EXPECT_EQ(text(), "0.00000°E 0.00000°N");
  made.set_projection("");
  EXPECT_EQ(text(), "0; 0");
}

TEST(coordinate_text, of_the_map_has_the_decimals_that_a_pixel_needs) {
  EXPECT_EQ(map_coordinate(1234.5678, 100), "1235");
  EXPECT_EQ(map_coordinate(1234.5678, 1), "1234.6");
  EXPECT_EQ(map_coordinate(37.123456, 0.0001), "37.12346");
  EXPECT_EQ(map_coordinate(-1234.5678, 0), "-1234.57");
}

}  // namespace
}  // namespace zu::host
