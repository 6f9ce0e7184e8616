#include <cmath>
#include <limits>

#include "platform/zuk_datasource/band_statistics.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;
using zu::platform::statistics_of_run;
using zu::platform::valid_cells;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

Tzu_field_stat stat_of(const source& s, std::uint64_t most = 0) {
  Tzu_field_stat out{};
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, most, nullptr, nullptr, &out));
  return out;
}

// Cells 0..34 without the first row of the file (0..6): 7..34, mean 20.5, and the deviation of 28
// numbers in a row is sqrt(28 * 29 / 12).
TEST(statistics, leave_nodata_out_and_divide_by_one_less) {
  auto value = [](int x, int y, int) { return y == 0 ? -9999 : 7 * y + x; };
  auto set = [](GDALDataset& d) { d.GetRasterBand(1)->SetNoDataValue(-9999); };
  for (GDALDataType type : {GDT_Int16, GDT_Float32, GDT_Float64})
    for (const char* layout : {"TILED=NO", "BLOCKYSIZE=2", "TILED=YES", "COMPRESS=LZW"}) {
      folder f;
      source s(make(f.at("a.tif"), {.type = type, .options = {layout}}, value, set));
      Tzu_field_stat stat = stat_of(s);
      EXPECT_EQ(stat.count, 28u);
      EXPECT_EQ(stat.minimum, 7);
      EXPECT_EQ(stat.maximum, 34);
      EXPECT_NEAR(stat.mean, 20.5, 1e-12);
      EXPECT_NEAR(stat.stddev, std::sqrt(28 * 29 / 12.0), 1e-12);
      EXPECT_FALSE(stat.estimate);
    }
}

TEST(statistics, of_complex_cells_are_those_of_the_real_part) {
  folder f;
  source s(make(f.at("a.tif"), {.type = GDT_CFloat32}, [](int x, int, int) { return x; }));
  EXPECT_EQ(stat_of(s).maximum, 6);
}

TEST(statistics, of_nothing_valid_are_zero) {
  folder f;
  auto set = [](GDALDataset& d) { d.GetRasterBand(1)->SetNoDataValue(5); };
  source s(make(
      f.at("a.tif"), {}, [](int, int, int) { return 5; }, set));
  Tzu_field_stat stat = stat_of(s);
  EXPECT_EQ(stat.count, 0u);
  EXPECT_EQ(stat.minimum, 0);
  EXPECT_EQ(stat.maximum, 0);
  EXPECT_EQ(stat.stddev, 0);
}

TEST(statistics, of_one_value_have_no_deviation) {
  const float one[] = {42};
  auto part = statistics_of_run(one, element_float32, 1, {});
  EXPECT_EQ(part.count, 1u);
  EXPECT_EQ(part.squares, 0);
}

TEST(statistics, nodata_has_a_tolerance_of_a_hundred_thousandth) {
  valid_cells valid{true, -9999};
  const double cells[] = {-9999, -9999.05, -9998.95, -9999.2, nan, HUGE_VAL, 3};
  auto part = statistics_of_run(cells, element_float64, 7, valid);
  EXPECT_EQ(part.count, 2u);
  EXPECT_EQ(part.minimum, -9999.2);
  EXPECT_EQ(part.maximum, 3);
}

TEST(statistics, leave_out_what_is_no_number) {
  const float cells[] = {static_cast<float>(nan), 1, HUGE_VALF, 2, 3, 4, 5, -HUGE_VALF};
  auto part = statistics_of_run(cells, element_float32, 8, {});
  EXPECT_EQ(part.count, 5u);
  EXPECT_EQ(part.mean, 3);
  EXPECT_EQ(part.squares, 10);
}

TEST(statistics, keep_their_digits_where_the_mean_is_large) {
  std::vector<double> cells;
  for (int i = 0; i < 1000; ++i) cells.push_back(1e9 + i % 2);
  auto part = statistics_of_run(cells.data(), element_float64, cells.size(), {});
  EXPECT_DOUBLE_EQ(part.mean, 1e9 + 0.5);
  EXPECT_NEAR(part.squares, 250, 1e-6);
}

TEST(statistics, of_two_parts_are_those_of_the_whole) {
  const std::int32_t cells[] = {1, 5, 9, 2, 8, 4, 4};
  auto whole = statistics_of_run(cells, element_int32, 7, {});
  auto part = statistics_of_run(cells, element_int32, 3, {});
  part.add(statistics_of_run(cells + 3, element_int32, 4, {}));
  part.add({});
  EXPECT_EQ(part.count, whole.count);
  EXPECT_DOUBLE_EQ(part.mean, whole.mean);
  EXPECT_DOUBLE_EQ(part.squares, whole.squares);
  EXPECT_EQ(part.maximum, 9);
}

TEST(statistics, of_a_sample_are_an_estimate_from_no_more_cells_than_asked) {
  folder f;
  source s(make(f.at("a.tif"), {.nx = 100, .ny = 80}, [](int x, int, int) { return x; }));
  Tzu_field_stat stat = stat_of(s, 200);
  EXPECT_TRUE(stat.estimate);
  EXPECT_LE(stat.count, 200u);
  EXPECT_GT(stat.count, 100u);
  EXPECT_NEAR(stat.mean, 49.5, 2);
  EXPECT_FALSE(stat_of(s, 8000).estimate);
}

TEST(statistics, stop_when_progress_says_so) {
  folder f;
  source s(make(f.at("a.tif"), {.options = {"BLOCKYSIZE=1"}}, [](int x, int, int) { return x; }));
  Tzu_field_stat out{};
  int calls = 0;
  auto stop = [](double share, void* user) {
    EXPECT_GT(share, 0);
    EXPECT_LE(share, 1);
    ++*static_cast<int*>(user);
    return false;
  };
  EXPECT_FALSE(zu_datasource_compute_stat(s.get(), 0, 0, stop, &calls, &out));
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(zu_datasource_compute_stat(s.get(), 5, 0, nullptr, nullptr, &out));
}

TEST(stored_statistics, are_told_only_when_they_are_exact) {
  for (bool approximate : {false, true}) {
    folder f;
    auto set = [&](GDALDataset& d) {
      GDALRasterBand* band = d.GetRasterBand(1);
      band->SetMetadataItem("STATISTICS_MINIMUM", "1.5");
      band->SetMetadataItem("STATISTICS_MAXIMUM", "9.25");
      if (approximate) band->SetMetadataItem("STATISTICS_APPROXIMATE", "YES");
    };
    source s(make(
        f.at("a.tif"), {}, [](int, int, int) { return 2; }, set));
    double value = 0;
    EXPECT_EQ(call<&stat_source_impl::minimum>(s.stat(), 0ll, &value), !approximate);
    if (!approximate) {
      EXPECT_EQ(value, 1.5);
      EXPECT_TRUE(call<&stat_source_impl::maximum>(s.stat(), 0ll, &value));
      EXPECT_EQ(value, 9.25);
    }
    EXPECT_FALSE(call<&stat_source_impl::mean>(s.stat(), 0ll, &value));
    EXPECT_FALSE(call<&stat_source_impl::minimum>(s.stat(), 3ll, &value));
    Tzu_field_info info;
    ASSERT_TRUE(zu_datasource_get_field_info(s.get(), 0, &info));
    EXPECT_FALSE(info.has_stat);
    EXPECT_EQ(info.type, element_float32);
  }
}

}  // namespace
