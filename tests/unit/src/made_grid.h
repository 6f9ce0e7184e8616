#pragma once
// A GeoTIFF that a test makes in its temporary folder.

#include <cpl_conv.h>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace tests {

class made_grid {
 public:
  made_grid(const std::string& name, int nx, int ny, GDALDataType type, int bands,
            const std::vector<std::string>& options = {})
      : path_(testing::TempDir() + "/" + name) {
    GDALAllRegister();
    std::filesystem::remove(path_ + ".aux.xml");
    CPLStringList list;
    for (const std::string& option : options) list.AddString(option.c_str());
    set_.reset(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(path_.c_str(), nx, ny,
                                                                        bands, type, list.List()));
    transform({0, 1, 0, static_cast<double>(ny), 0, -1});
  }
  void transform(std::array<double, 6> t) { set_->SetGeoTransform(t.data()); }
  void projection(const char* text) {
    OGRSpatialReference system;
    system.SetFromUserInput(text);
    set_->SetSpatialRef(&system);
  }
  void roles(const std::vector<GDALColorInterp>& all) {
    for (std::size_t i = 0; i < all.size(); ++i)
      set_->GetRasterBand(static_cast<int>(i) + 1)->SetColorInterpretation(all[i]);
  }
  GDALRasterBand* band(int number) { return set_->GetRasterBand(number); }
  /// Values from the north-west cell, row by row.
  void values(int number, std::vector<double> all) {
    int nx = set_->GetRasterXSize(), ny = set_->GetRasterYSize();
    EXPECT_EQ(band(number)->RasterIO(GF_Write, 0, 0, nx, ny, all.data(), nx, ny, GDT_Float64, 0, 0,
                                     nullptr),
              CE_None);
  }
  /// Ends the writing and gives the path.
  std::wstring close() {
    set_.reset();
    return std::filesystem::path(path_).wstring();
  }

 private:
  std::string path_;
  std::unique_ptr<GDALDataset> set_;
};

}  // namespace tests
