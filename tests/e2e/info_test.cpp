// What zugrid info says of a source, and help and version.

#include <nlohmann/json.hpp>

#include "tests/e2e/program.h"

namespace tests {
namespace {

using nlohmann::json;

class info : public in_a_folder {
 protected:
  json told(const std::string& source, const std::vector<std::string>& more = {}) {
    std::vector<std::string> all{"info", source, "--json"};
    all.insert(all.end(), more.begin(), more.end());
    outcome result = run(all);
    EXPECT_EQ(result.exit, 0) << result.err;
    json data = json::parse(result.out, nullptr, false);
    EXPECT_FALSE(data.is_discarded()) << result.out;
    return data;
  }
};

TEST_F(info, tells_size_box_projection_and_fields) {
  made_grid made = grid("g.tif", 3, 2, GDT_Int16);
  made.transform({500000, 25, 0, 6000000, 0, -25});
  made.projection("EPSG:32637");
  made.band(1)->SetDescription("height");
  made.band(1)->SetNoDataValue(-1);
  made.values(1, {1, 2, 3, 4, 5, -1});
  made.close();
  json data = told(path("g.tif"));
  EXPECT_EQ(data["driver"], "GTiff");
  EXPECT_EQ(data["georeference"], "geotransform");
  EXPECT_EQ(data["size"], json({3, 2, 1}));
  EXPECT_EQ(data["box"], json({500000, 5999950, 500075, 6000000}));
  EXPECT_EQ(data["spacing"], json({25, 25}));
  EXPECT_EQ(data["rows_run_south"], true);
  EXPECT_EQ(data["projection"]["name"], "WGS 84 / UTM zone 37N");
  EXPECT_EQ(data["projection"]["code"], "EPSG:32637");
  ASSERT_EQ(data["fields"].size(), 1u);
  EXPECT_EQ(data["fields"][0]["name"], "height");
  EXPECT_EQ(data["fields"][0]["type"], "int16");
  EXPECT_EQ(data["fields"][0]["nodata"], -1);
  EXPECT_EQ(data["fields"][0]["statistics"]["minimum"], 1);
  EXPECT_EQ(data["fields"][0]["statistics"]["maximum"], 5);
  EXPECT_EQ(data["fields"][0]["statistics"]["estimate"], false);
  EXPECT_EQ(data["georeference_file"], path("g.tif"));
  EXPECT_EQ(data["parts"], json::array());
}

TEST_F(info, computes_exact_statistics_when_asked) {
  double nodata = -1;
  json field = told(floats("g.tif", 3, 1, {1, -1, 3}, &nodata), {"--stats"})["fields"][0];
  EXPECT_EQ(field["statistics"]["minimum"], 1);
  EXPECT_EQ(field["statistics"]["maximum"], 3);
  EXPECT_EQ(field["statistics"]["mean"], 2);
  EXPECT_EQ(field["statistics"]["count"], 2);
  EXPECT_DOUBLE_EQ(field["statistics"]["deviation"].get<double>(), std::sqrt(2.0));
}

TEST_F(info, a_number_that_is_not_finite_is_a_text) {
  double nodata = std::nan("");
  json data = told(floats("g.tif", 1, 1, {1}, &nodata));
  EXPECT_EQ(data["fields"][0]["nodata"], "nan");
}

TEST_F(info, says_where_the_georeference_comes_from) {
  made_grid made = grid("gcp.tif", 2, 2, GDT_Float32);
  made.close();
  std::unique_ptr<GDALDataset> bare(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
      path("gcp.tif").c_str(), 2, 2, 1, GDT_Float32, nullptr));
  std::vector<GDAL_GCP> points(3);
  GDALInitGCPs(3, points.data());
  double corners[3][4] = {{0, 0, 10, 20}, {2, 0, 12, 20}, {0, 2, 10, 18}};
  for (std::size_t i = 0; i < 3; ++i) {
    points[i].dfGCPPixel = corners[i][0], points[i].dfGCPLine = corners[i][1];
    points[i].dfGCPX = corners[i][2], points[i].dfGCPY = corners[i][3];
  }
  bare->SetGCPs(3, points.data(), "");
  bare.reset();
  GDALDeinitGCPs(3, points.data());
  json data = told(path("gcp.tif"));
  EXPECT_EQ(data["georeference"], "ground control points");
  EXPECT_EQ(data["box"], json({10, 18, 12, 20}));
}

TEST_F(info, names_the_file_that_gave_the_georeference) {
  std::string bare = path("bare.tif");
  GDALAllRegister();
  GDALClose(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(bare.c_str(), 2, 2, 1,
                                                                     GDT_Float32, nullptr));
  EXPECT_TRUE(told(bare)["georeference_file"].is_null());
  std::ofstream(path("bare.tfw")) << "10\n0\n0\n-10\n105\n995\n";
  json data = told(bare);
  EXPECT_EQ(data["georeference_file"], path("bare.tfw"));
  EXPECT_EQ(data["box"], json({100, 980, 120, 1000}));
  std::ofstream(path("bare.tif.aux.xml"))
      << "<PAMDataset><GeoTransform>0,1,0,2,0,-1</GeoTransform></PAMDataset>";
  data = told(bare);
  EXPECT_EQ(data["georeference_file"], path("bare.tif.aux.xml"));
  EXPECT_EQ(data["box"], json({0, 0, 2, 2}));
}

TEST_F(info, a_container_of_several_grids_names_its_parts_which_open_by_these_names) {
  GDALAllRegister();
  CPLStringList options;
  for (const char* table : {"one", "two"}) {
    options.Clear();
    options.SetNameValue("RASTER_TABLE", table);
    if (exists("c.gpkg")) options.SetNameValue("APPEND_SUBDATASET", "YES");
    std::unique_ptr<GDALDataset> set(GetGDALDriverManager()->GetDriverByName("GPKG")->Create(
        path("c.gpkg").c_str(), 4, 4, 1, GDT_Byte, options.List()));
    ASSERT_TRUE(set);
    std::array<double, 6> transform{0, 1, 0, 4, 0, -1};
    set->SetGeoTransform(transform.data());
    set->GetRasterBand(1)->Fill(7);
  }
  std::string one = "GPKG:" + path("c.gpkg") + ":one", two = "GPKG:" + path("c.gpkg") + ":two";
  for (const outcome& whole : {run({"info", path("c.gpkg")}), render(path("c.gpkg"))}) {
    EXPECT_EQ(whole.exit, 1);
    EXPECT_NE(whole.err.find(one + ", " + two), std::string::npos) << whole.err;
  }
  for (const std::string& part : {one, two}) {
    EXPECT_EQ(run({"info", part}).exit, 0);
    EXPECT_EQ(render(part, {"--size", "4x4"}).exit, 0);
  }
}

TEST_F(info, is_readable_without_json) {
  outcome result =
      run({"info", floats("g.tif", 2, 1, {0.5, 1.5})}, [] { setenv("LC_ALL", "de_DE.UTF-8", 1); });
  EXPECT_EQ(result.exit, 0);
  EXPECT_NE(result.out.find("2 x 1 cells"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"Band 1\"  float32"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("projection    none"), std::string::npos) << result.out;
}

TEST_F(info, help_and_version_are_a_success) {
  for (const std::vector<std::string>& line : std::vector<std::vector<std::string>>{
           {"--help"}, {"--version"}, {"render", "--help"}, {"info", "--help"}}) {
    outcome result = run(line);
    EXPECT_EQ(result.exit, 0);
    EXPECT_NE(result.out, "");
    EXPECT_EQ(result.err, "");
  }
}

}  // namespace
}  // namespace tests
