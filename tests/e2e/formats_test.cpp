// The same grid in the formats of the field shows the same picture.

#include <cpl_string.h>

#include "tests/e2e/program.h"

namespace tests {
namespace {

struct format {
  const char* driver;
  const char* file;
  std::vector<const char*> options;
};

const std::vector<format> formats = {
    {"AAIGrid", "g.asc", {}},
    {"GSAG", "ascii.grd", {}},
    {"GSBG", "binary.grd", {}},
    {"GS7BG", "seven.grd", {}},
    {"HFA", "g.img", {}},
    {"EHdr", "g.flt", {}},
    {"ZMap", "g.zmap", {}},
    {"GPKG", "g.gpkg", {"TILING_SCHEME=CUSTOM"}},
    {"JP2OpenJPEG", "g.jp2", {"QUALITY=100", "REVERSIBLE=YES"}},
    {"netCDF", "g.nc", {}},
    {"SAGA", "g.sdat", {}},
    {"XYZ", "g.xyz", {}},
    {"GTiff", "g.tif", {"TILED=YES", "COMPRESS=DEFLATE", "BLOCKXSIZE=16", "BLOCKYSIZE=16"}},
};

class in_formats : public in_a_folder {};

TEST_F(in_formats, a_grid_shows_the_same_picture) {
  constexpr int nx = 40, ny = 30;
  std::vector<double> values;
  for (int y = 0; y < ny; ++y)
    for (int x = 0; x < nx; ++x) values.push_back((x * 7 + y * 13) % 100);
  made_grid made = grid("source.tif", nx, ny, GDT_Int16);
  made.transform({500000, 10, 0, 6000300, 0, -10});
  made.projection("EPSG:32637");
  made.values(1, values);
  made.close();
  const std::vector<std::string> look{
      "--size",   "40x30",      "--extent", "500000,6000000,500400,6000300",
      "--breaks", "0,25,50,75", "--colors", "#000000,#ff0000,#00ff00,#0000ff,#ffffff"};
  ASSERT_EQ(render(path("source.tif"), look).exit, 0);
  std::vector<rgba> wanted = picture(path("o.png")).all();

  GDALAllRegister();
  std::unique_ptr<GDALDataset> source(
      GDALDataset::Open(path("source.tif").c_str(), GDAL_OF_RASTER));
  for (const format& each : formats) {
    SCOPED_TRACE(each.driver);
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(each.driver);
    if (driver == nullptr) continue;  // this GDAL was built without it
    CPLStringList options;
    for (const char* option : each.options) options.AddString(option);
    std::unique_ptr<GDALDataset> copy(driver->CreateCopy(path(each.file).c_str(), source.get(),
                                                         FALSE, options.List(), nullptr, nullptr));
    ASSERT_TRUE(copy);
    copy.reset();
    outcome result = render(path(each.file), look);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(picture(path("o.png")).all(), wanted);
  }
}

}  // namespace
}  // namespace tests
