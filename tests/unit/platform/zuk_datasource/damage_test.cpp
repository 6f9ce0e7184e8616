#include <cmath>
#include <fstream>

#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;

namespace {

double ramp(int x, int y, int) { return 1 + x + 100 * y; }

constexpr int side = 64;  // 4 x 4 tiles of 16 x 16

std::string tiled(const std::string& path, const char* compression, bool with_nodata = false) {
  auto set = [&](GDALDataset& d) {
    if (with_nodata) d.GetRasterBand(1)->SetNoDataValue(-1);
  };
  return make(path,
              {.nx = side,
               .ny = side,
               .options = {"TILED=YES", "BLOCKXSIZE=16", "BLOCKYSIZE=16", compression}},
              ramp, set);
}

long long tile_offset(const std::string& path, int column, int row) {
  GDALDataset* d = GDALDataset::FromHandle(GDALOpen(path.c_str(), GA_ReadOnly));
  std::string item = "BLOCK_OFFSET_" + std::to_string(column) + "_" + std::to_string(row);
  long long offset = std::atoll(d->GetRasterBand(1)->GetMetadataItem(item.c_str(), "TIFF"));
  GDALClose(d);
  return offset;
}

// Overwrites the head of the tile in the file's second row and column of tiles.
std::string with_a_broken_tile(const std::string& path) {
  long long offset = tile_offset(path, 1, 1);
  std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  file.seekp(offset);
  file << std::string(16, '\xEE');
  return path;
}

bool in_broken_tile(std::size_t presented) {
  std::size_t x = presented % side, y = side - 1 - presented / side;
  return x >= 16 && x < 32 && y >= 16 && y < 32;
}

TEST(damage, cells_of_a_broken_tile_become_nodata_and_the_others_stand) {
  for (bool with_nodata : {true, false}) {
    folder f;
    zu_problems_clear(nullptr);
    std::string path = with_a_broken_tile(tiled(f.at("a.tif"), "COMPRESS=DEFLATE", with_nodata));
    source s(path);
    block b(s.band(0));
    std::vector<double> cells = b.doubles({0, 0}, {side, side}, {side, side});
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (!in_broken_tile(i))
        ASSERT_EQ(cells[i],
                  ramp(static_cast<int>(i % side), static_cast<int>(side - 1 - i / side), 0));
      else if (with_nodata)
        ASSERT_EQ(cells[i], -1);
      else
        ASSERT_TRUE(std::isnan(cells[i]));
    }
    std::vector<std::wstring> why = reasons(path);
    ASSERT_FALSE(why.empty());
    EXPECT_EQ(why[0].find(L"a tile cannot be read: "), 0u);
    EXPECT_EQ(why[0].find(L"a.tif"), std::wstring::npos);
    std::vector<std::uint8_t> bytes;
    EXPECT_EQ(b.window(element_uint8, {16, 32}, {16, 16}, {4, 4}, bytes), 3);
  }
}

TEST(damage, a_decimated_read_of_a_broken_tile_keeps_the_rest) {
  folder f;
  source s(with_a_broken_tile(tiled(f.at("a.tif"), "COMPRESS=DEFLATE")));
  block b(s.band(0));
  std::vector<double> cells = b.doubles({0, 0}, {side, side}, {4, 4});
  EXPECT_TRUE(std::isnan(cells[2 * 4 + 1]));
  EXPECT_EQ(cells[0], ramp(8, 63 - 8, 0));
  EXPECT_EQ(cells[15], ramp(56, 63 - 56, 0));
}

TEST(damage, statistics_are_those_of_the_cells_that_can_be_read) {
  folder f;
  source s(with_a_broken_tile(tiled(f.at("a.tif"), "COMPRESS=DEFLATE")));
  Tzu_field_stat stat{};
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
  EXPECT_EQ(stat.count, static_cast<std::uint64_t>(side * side - 256));
}

TEST(damage, a_tile_that_ends_beyond_the_file_is_a_broken_tile) {
  for (const char* compression : {"COMPRESS=NONE", "COMPRESS=DEFLATE"}) {
    folder f;
    std::string path = tiled(f.at("a.tif"), compression);
    long long end = tile_offset(path, 3, 3) + 10;
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(end));
    source s(path);
    block b(s.band(0));
    std::vector<double> cells = b.doubles({0, 0}, {side, side}, {side, side});
    EXPECT_TRUE(std::isnan(cells[side - 1]));
    EXPECT_EQ(cells[0], ramp(0, side - 1, 0));
    cells = b.doubles({0, 0}, {side, side}, {8, 8});
    EXPECT_TRUE(std::isnan(cells[7]));
    EXPECT_EQ(cells[0], ramp(4, side - 1 - 4, 0));
  }
}

TEST(damage, a_truncated_file_fails_with_where_it_ends) {
  for (const char* compression : {"COMPRESS=NONE", "COMPRESS=DEFLATE"}) {
    folder f;
    zu_problems_clear(nullptr);
    std::string path = tiled(f.at("a.tif"), compression);
    long long end = tile_offset(path, 3, 3) - 10;
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(end));
    source s(path);
    ASSERT_TRUE(s);
    block b(s.band(0));
    std::vector<double> out;
    EXPECT_EQ(b.window(element_float64, {0, 0}, {side, side}, {side, side}, out), 3);
    EXPECT_EQ(b.window(element_float64, {0, 0}, {side, side}, {8, 8}, out), 3);
    EXPECT_EQ(b.window(element_float64, {0, 48}, {16, 16}, {16, 16}, out), 1);
    Tzu_field_stat stat{};
    EXPECT_FALSE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
    std::vector<std::wstring> why = reasons(path);
    ASSERT_EQ(why.size(), 1u);
    EXPECT_EQ(why[0].find(L"the file is truncated: a block at byte "), 0u);
    EXPECT_NE(why[0].find(L"lies beyond its end at " + std::to_wstring(end)), std::wstring::npos);
  }
}

}  // namespace
