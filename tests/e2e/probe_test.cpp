// What the information tool says at a point, as the command line asks it.

#include <ogr_spatialref.h>
#include <nlohmann/json.hpp>

#include "tests/e2e/program.h"

namespace tests {
namespace {

using json = nlohmann::json;

class probe : public in_a_folder {
 protected:
  /// 3 x 2 cells of 10, from (100, 980) to (130, 1000); values 1 to 6 from the north-west.
  std::string placed(const char* projection = "EPSG:32637") {
    made_grid made = grid("g.tif", 3, 2, GDT_Int16);
    made.transform({500100, 10, 0, 6001000, 0, -10});
    made.projection(projection);
    made.band(1)->SetDescription("height");
    made.values(1, {1, 2, 3, 4, 5, 6});
    made.close();
    return path("g.tif");
  }
  std::string height_at(const std::string& x, const std::string& y,
                        const std::vector<std::string>& more = {}) {
    std::vector<std::string> line{"probe", path("g.tif"), x, y, "--json"};
    line.insert(line.end(), more.begin(), more.end());
    outcome result = run(line);
    if (result.exit != 0) return result.err;
    return json::parse(result.out).at(0).at("values").at("height");
  }
};

TEST_F(probe, a_point_gets_the_cell_that_a_person_sees_there) {
  placed();
  EXPECT_EQ(height_at("500100.1", "6000999.9"), "1");
  EXPECT_EQ(height_at("500109.9", "6000990.1"), "1");
  EXPECT_EQ(height_at("500110.1", "6000990.1"), "2");
  EXPECT_EQ(height_at("500129.9", "6000980.1"), "6");
}

TEST_F(probe, says_where_the_cell_is_counted_from_one) {
  placed();
  outcome result = run({"probe", path("g.tif"), "500125", "6000995"});
  EXPECT_EQ(result.exit, 0) << result.err;
  EXPECT_NE(result.out.find(" 3, "), std::string::npos) << result.out;
  EXPECT_NE(result.out.find(" 2\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("height: 3"), std::string::npos) << result.out;
}

TEST_F(probe, a_grid_file_says_what_its_origin_says) {
  placed();
  ASSERT_EQ(run({"convert", path("g.tif"), path("g.pgrid")}).exit, 0);
  std::size_t files = file_count();
  outcome original = run({"probe", path("g.tif"), "500125", "6000985"});
  outcome converted = run({"probe", path("g.pgrid"), "500125", "6000985"});
  EXPECT_EQ(converted.exit, 0) << converted.err;
  EXPECT_EQ(converted.out, original.out);
  EXPECT_EQ(file_count(), files) << "a look left something beside the file";
}

TEST_F(probe, a_point_beside_the_grid_is_a_failure_with_its_reason) {
  placed();
  outcome result = run({"probe", path("g.tif"), "500131", "6000990"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "zugrid: " + path("g.tif") + ": has no cell at this point\n");
  EXPECT_EQ(run({"probe", path("none.tif"), "1", "1"}).exit, 1);
  EXPECT_EQ(run({"probe", path("g.tif"), "1", "north"}).exit, 2);
}

TEST_F(probe, a_point_may_be_given_in_another_coordinate_system) {
  placed();
  // The middle of the cell of value 5, by PROJ: x 500115 y 6000985 of zone 37.
  OGRSpatialReference utm, degrees;
  utm.importFromEPSG(32637);
  degrees.importFromEPSG(4326);
  degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  double x = 500115, y = 6000985;
  std::unique_ptr<OGRCoordinateTransformation> to_degrees(
      OGRCreateCoordinateTransformation(&utm, &degrees));
  ASSERT_TRUE(to_degrees->Transform(1, &x, &y));
  char east[32], north[32];
  std::snprintf(east, sizeof east, "%.9f", x);
  std::snprintf(north, sizeof north, "%.9f", y);
  EXPECT_EQ(height_at(east, north, {"--crs", "EPSG:4326"}), "5");
}

}  // namespace
}  // namespace tests
