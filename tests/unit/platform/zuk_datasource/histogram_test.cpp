#include <cmath>
#include <limits>
#include <numeric>

#include "platform/zuk_datasource/histogram_counts.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;

namespace {

using numbers = std::vector<std::int64_t>;

numbers histogram_of(const source& s, double minimum, double maximum, std::size_t classes) {
  numbers out(classes, 77);
  EXPECT_TRUE(zu_datasource_compute_histogram(s.get(), 0, classes, minimum, maximum, nullptr,
                                              nullptr, out.data()));
  return out;
}

numbers counts_of(const std::vector<float>& cells, const platform::histogram_limits& limits,
                  const platform::valid_cells& valid = {}) {
  platform::histogram_counts counts(limits);
  counts.add(cells.data(), element_float32, cells.size(), valid);
  numbers out(limits.classes);
  counts.add_to(out.data());
  return out;
}

TEST(histogram_counts, put_a_boundary_into_the_class_above_and_the_last_one_into_the_last_class) {
  EXPECT_EQ(counts_of({0, 0.5, 1, 2, 2.5, 3, 4}, {0, 4, 4}), (numbers{2, 1, 2, 2}));
}

TEST(histogram_counts, leave_out_what_is_not_between_the_limits_or_no_value) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(counts_of({-1, 0, nan, HUGE_VALF, -HUGE_VALF, 2, 2.001F, 1}, {0, 2, 2}),
            (numbers{1, 2}));
  EXPECT_EQ(counts_of({-9999, -9999.05F, 1, 2}, {-10000, 2, 1}, {true, -9999}), (numbers{2}));
}

TEST(histogram_counts, of_whole_numbers_have_as_many_numbers_in_each_class) {
  using platform::histogram_classes;
  EXPECT_EQ(histogram_classes(element_float32, 0, 9), 256u);
  EXPECT_EQ(histogram_classes(element_uint8, 0, 255), 256u);
  EXPECT_EQ(histogram_classes(element_uint8, 60, 190), 131u);
  EXPECT_EQ(histogram_classes(element_int16, -7, -7), 1u);
  EXPECT_EQ(histogram_classes(element_uint16, 0, 65535), 256u);
  EXPECT_EQ(histogram_classes(element_int64, -9e18, 9e18), 256u);
  EXPECT_EQ(histogram_classes(element_uint8, NAN, 1), 256u);
  EXPECT_EQ(histogram_classes(element_uint8, 1, 0), 256u) << "no limits at all";
  EXPECT_EQ(histogram_classes(element_uint8, 0, -300), 256u);
  for (int count : {1, 2, 131, 256, 257, 300, 400, 512}) {
    std::vector<float> all;
    for (int i = 0; i < count; ++i) all.push_back(static_cast<float>(10 + i));
    std::uint64_t classes = histogram_classes(element_int16, 10, 9 + count);
    EXPECT_LE(classes, 256u);
    numbers counts = counts_of(all, {10.0, 9.0 + count, classes});
    // What is over stands in the last class.
    for (std::size_t i = 0; i + 1 < counts.size(); ++i)
      EXPECT_EQ(counts[i], count <= 256 ? 1 : 2) << count << " " << i;
  }
}

TEST(histogram_counts, of_equal_limits_stand_in_the_first_class) {
  EXPECT_EQ(counts_of({5, 5, 6, 4}, {5, 5, 3}), (numbers{2, 0, 0}));
}

TEST(histogram_counts, of_a_repeated_cell_are_as_many) {
  platform::histogram_counts counts({0, 10, 2});
  const std::int16_t seven = 7, eleven = 11;
  counts.add_repeated(&seven, element_int16, 5'000'000'000, {});
  counts.add_repeated(&eleven, element_int16, 3, {});
  numbers out{1, 1};
  counts.add_to(out.data());
  EXPECT_EQ(out, (numbers{1, 5'000'000'001}));
}

// Cells 7 y + x, 0..34, without the first row of the file.
TEST(histogram, of_a_band_counts_each_valid_cell_once) {
  auto value = [](int x, int y, int) { return y == 0 ? -9999 : 7 * y + x; };
  auto set = [](GDALDataset& d) { d.GetRasterBand(1)->SetNoDataValue(-9999); };
  for (GDALDataType type : {GDT_Int16, GDT_Float32, GDT_Float64})
    for (const char* layout : {"TILED=NO", "BLOCKYSIZE=2", "TILED=YES", "COMPRESS=LZW"}) {
      folder f;
      source s(make(f.at("a.tif"), {.type = type, .options = {layout}}, value, set));
      EXPECT_EQ(histogram_of(s, 7, 34, 3), (numbers{9, 9, 10})) << layout;
      EXPECT_EQ(histogram_of(s, 10, 12, 2), (numbers{1, 2})) << layout;
    }
}

TEST(histogram, of_a_large_band_is_that_of_one_thread) {
  folder f;
  source s(make(f.at("a.tif"), {.nx = 300, .ny = 200, .options = {"BLOCKYSIZE=3"}},
                [](int x, int y, int) { return (x * 31 + y * 17) % 1000; }));
  numbers expected(10);
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 300; ++x)
      ++expected[static_cast<std::size_t>((x * 31 + y * 17) % 1000 / 100)];
  EXPECT_EQ(histogram_of(s, 0, 1000, 10), expected);
}

TEST(histogram, stops_and_refuses) {
  folder f;
  source s(make(f.at("a.tif"), {.options = {"BLOCKYSIZE=1"}}, [](int x, int, int) { return x; }));
  numbers out{9, 9};
  auto stop = [](double, void*) { return false; };
  EXPECT_FALSE(zu_datasource_compute_histogram(s.get(), 0, 2, 0, 9, stop, nullptr, out.data()));
  EXPECT_EQ(out, (numbers{0, 0}));
  auto refuses = [&](std::int64_t field, std::uint64_t classes, double low, double high) {
    return !zu_datasource_compute_histogram(s.get(), field, classes, low, high, nullptr, nullptr,
                                            out.data());
  };
  EXPECT_TRUE(refuses(7, 2, 0, 9));
  EXPECT_TRUE(refuses(0, 0, 0, 9));
  EXPECT_TRUE(refuses(0, 2, 9, 0));
  EXPECT_TRUE(refuses(0, 2, 0, std::nan("")));
  EXPECT_TRUE(refuses(0, UINT64_MAX, 0, 9));
}

struct taken_histogram final : histogram_visitor_impl {
  void visit(std::uint64_t classes, const std::int64_t* from) override {
    counts.assign(from, from + classes);
  }
  numbers counts;
};

TEST(histogram, of_a_source_has_256_classes_between_its_own_limits) {
  folder f;
  source s(make(f.at("a.tif"), {}, [](int x, int y, int) { return 7 * y + x; }));
  taken_histogram taken;
  auto visitor = histogram_visitor(handle_of<histogram_visitor_impl>(taken));
  EXPECT_TRUE(call<&stat_source_impl::histogram>(s.stat(), std::int64_t{0}, visitor));
  ASSERT_EQ(taken.counts.size(), 256u);
  EXPECT_EQ(taken.counts.front(), 1);
  EXPECT_EQ(taken.counts.back(), 1);
  EXPECT_EQ(std::accumulate(taken.counts.begin(), taken.counts.end(), std::int64_t{0}), 35);
  EXPECT_FALSE(call<&stat_source_impl::histogram>(s.stat(), std::int64_t{4}, visitor));
}

}  // namespace
