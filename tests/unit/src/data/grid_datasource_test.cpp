#include "src/data/grid_datasource.h"

#include <gtest/gtest.h>

#include <cmath>

#include "src/data/nodata_test.h"
#include "tests/unit/src/made_source.h"

namespace {

using namespace zu;
using namespace zu::data;
using tests::made_source;

/// A made source that also keeps statistics of its own, as far as it is told.
struct knowing_source : made_source, polymorphic<stat_source_impl> {
  using made_source::made_source;
  std::map<int, double> known;  // by position
  std::vector<double> unique;
  bool answer(int position, double* out) {
    auto entry = known.find(position);
    if (entry == known.end()) return false;
    *out = entry->second;
    return true;
  }
  bool minimum(std::int64_t, double* out) override { return answer(2, out); }
  bool maximum(std::int64_t, double* out) override { return answer(3, out); }
  bool mean(std::int64_t, double* out) override { return answer(4, out); }
  bool stddev(std::int64_t, double* out) override { return answer(5, out); }
  bool unique_numbers(std::int64_t, std::int64_t, floatings_visitor visitor) override {
    if (unique.empty()) return false;
    call<&floatings_visitor_impl::visit>(visitor, unique.data(), unique.size());
    return true;
  }
  bool histogram(std::int64_t, histogram_visitor visitor) override {
    const std::int64_t counts[] = {3, 0, 7};
    call<&histogram_visitor_impl::visit>(visitor, std::uint64_t{3}, counts);
    return true;
  }
};

int tile_reads(const made_source& s) {
  int sum = 0;
  for (const auto& [tile, count] : s.tile_reads) sum += count;
  return sum;
}

TEST(nodata_test, follows_the_band) {
  struct {
    nodata_test test;
    double sample;
    bool valid;
  } const cases[] = {
      {{0, false, true}, std::nan(""), true},
      {{0, false, true}, HUGE_VAL, true},
      {{std::nan(""), true, false}, 5, true},
      {{std::nan(""), true, false}, std::nan(""), false},
      {{HUGE_VAL, true, false}, -HUGE_VAL, false},
      {{0, true, true}, 5e-7, false},
      {{0, true, true}, 1e-6, false},
      {{0, true, true}, 1.1e-6, true},
      {{-9999, true, true}, -9999.0999, false},
      {{-9999, true, true}, -9999.2, true},
      {{-9999, true, true}, std::nan(""), false},
      {{-9999, true, true}, HUGE_VAL, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(c.test.valid(c.sample), c.valid) << c.test.value << " and " << c.sample;
}

TEST(generic_datasource, an_empty_name_is_no_field) {
  made_source s(1, 1);
  s.add(L"", {1});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.find_field(L""), -1);
}

TEST(generic_datasource, opens_with_the_flags_of_its_mode) {
  static std::vector<int> flags;
  static made_source* made;
  static int refuse;
  made_source s(1, 1);
  made = &s;
  auto opener = [](const wchar_t*, std::int32_t read_only, void*, Tzu_handle* out) {
    flags.push_back(read_only);
    if (read_only != refuse) *out = made->handle();
  };
  struct {
    int mode, refused;
    std::vector<int> asked;
    bool opened;
  } const cases[] = {{0, -1, {1}, true},   {1, -1, {0}, true}, {2, -1, {0}, true},
                     {2, 0, {0, 1}, true}, {0, 1, {1}, false}, {1, 0, {0}, false}};
  for (const auto& c : cases) {
    flags.clear();
    refuse = c.refused;
    open_reference reference;
    reference.name = L"x";
    reference.opener = opener;
    grid_datasource data;
    EXPECT_EQ(data.open(reference, c.mode), c.opened);
    EXPECT_EQ(flags, c.asked);
  }
  grid_datasource without_opener;
  EXPECT_FALSE(without_opener.open({L"x", nullptr, nullptr, nullptr}, 0));
}

TEST(statistics, of_a_field_are_computed_in_one_pass_and_remembered) {
  made_source s(5, 3);
  auto& band = s.add(L"z", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, -9999, 12, 13, 14, 20});
  band.has_nodata = true;
  band.nodata = -9999;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_minimum(0), 1);
  int reads = tile_reads(s);
  EXPECT_GT(reads, 0);
  EXPECT_EQ(data.field_maximum(0), 20);
  EXPECT_EQ(data.field_minimum(0), 1);
  EXPECT_EQ(data.field_count(0), 14u);
  EXPECT_NEAR(data.field_mean(0), 114.0 / 14, 1e-12);
  EXPECT_EQ(tile_reads(s), reads);
  // Sum of squares 1294, minus 14 times the square of the mean, by 13.
  EXPECT_NEAR(data.field_stddev(0), std::sqrt((1294 - 114.0 * 114.0 / 14) / 13), 1e-12);
}

TEST(statistics, of_nothing_are_zero) {
  made_source s(2, 2);
  auto& band = s.add(L"z", {7, 7, 7, 7});
  band.has_nodata = true;
  band.nodata = 7;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_minimum(0), 0);
  EXPECT_EQ(data.field_maximum(0), 0);
  EXPECT_EQ(data.field_mean(0), 0);
  EXPECT_EQ(data.field_count(0), 0u);
  EXPECT_EQ(data.field_stddev(0), 0);
}

TEST(statistics, the_deviation_of_one_value_is_zero) {
  made_source s(1, 1);
  s.add(L"z", {42});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_stddev(0), 0);
  EXPECT_EQ(data.field_mean(0), 42);
}

TEST(statistics, the_deviation_divides_by_the_count_of_the_record) {
  made_source s(3, 1);
  s.add(L"z", {1, 2, 3});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  field_statistics record;  // as if nothing had been counted
  record.mean = 2;
  data.compute_stddev(0, record);
  EXPECT_EQ(record.stddev, std::sqrt(2));
  record.count = 3;
  data.compute_stddev(0, record);
  EXPECT_EQ(record.stddev, 1);
}

TEST(statistics, of_a_field_that_cannot_be_read_to_its_end_are_of_what_was_read) {
  made_source s(4, 3);  // tiles of 4 x 2
  s.add(L"z", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  s.reads_before_failure = 1;
  EXPECT_EQ(data.field_maximum(0), 8);
  EXPECT_EQ(data.field_count(0), 8u);
  EXPECT_EQ(data.field_mean(0), 4.5);
  field_statistics record = {};
  s.reads_before_failure = 0;
  data.compute_stddev(0, record);
  EXPECT_TRUE(record.stddev_done);
  EXPECT_EQ(record.stddev, 0);
  std::vector<double> values;
  s.reads_before_failure = 1;
  EXPECT_TRUE(data.field_values(0, values));
  EXPECT_EQ(values.size(), 8u);
  std::set<double> numbers;
  s.reads_before_failure = 1;
  EXPECT_FALSE(data.field_unique_numbers(0, -1, numbers));
  EXPECT_EQ(numbers.size(), 8u);
}

TEST(statistics, ask_for_a_block_once_a_pass) {
  made_source s(2, 2);
  s.add(L"z", {1, 2, 3, 4});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  s.reads_before_failure = 0;
  EXPECT_EQ(data.field_maximum(0), 0);
  EXPECT_EQ(s.block_requests, 1);
  EXPECT_EQ(s.blocks_alive, 0);
}

TEST(statistics, skip_what_is_not_finite_only_where_the_band_has_nodata) {
  made_source s(3, 1);
  auto& band = s.add(L"z", {1, std::nan(""), 5});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_count(0), 3u);
  EXPECT_EQ(data.field_maximum(0), 5);
  EXPECT_TRUE(std::isnan(data.field_mean(0)));
  band.has_nodata = true;
  band.nodata = std::nan("");
  grid_datasource again;
  ASSERT_TRUE(again.attach(s.handle()));
  EXPECT_EQ(again.field_count(0), 2u);
  EXPECT_EQ(again.field_mean(0), 3);
}

TEST(statistics, a_missing_field_leaves_the_record_as_it_was) {
  made_source s(1, 1);
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  field_statistics record;
  record.minimum = 3;
  data.compute_basic_stat(5, record);
  data.compute_stddev(5, record);
  EXPECT_EQ(record.minimum, 3);
  EXPECT_FALSE(record.basic_done);
  EXPECT_FALSE(record.stddev_done);
  EXPECT_EQ(data.field_maximum(5), 0);
}

TEST(statistics, the_source_answers_first_and_both_answers_may_stand) {
  knowing_source s(2, 1);
  s.add(L"z", {5, 6});
  s.known = {{2, -100.0}};
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_minimum(0), -100);
  EXPECT_TRUE(s.tile_reads.empty());
  EXPECT_EQ(data.field_maximum(0), 6);
  field_statistics record;
  data.compute_basic_stat(0, record);
  EXPECT_EQ(record.minimum, 5);
  EXPECT_EQ(data.field_minimum(0), -100);
}

TEST(statistics, fill_the_platforms_objects) {
  knowing_source s(2, 1);
  s.add(L"z", {5, 7});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  Tzu_stat* stat = zu_stat_create();
  data.fill_stat(stat, 0);
  bool valid = false;
  EXPECT_EQ(zu_stat_get_minimum(stat, &valid), 5);
  EXPECT_TRUE(valid);
  EXPECT_EQ(zu_stat_get_maximum(stat, &valid), 7);
  EXPECT_EQ(zu_stat_get_average(stat, &valid), 6);
  EXPECT_NEAR(zu_stat_get_stddev(stat, &valid), std::sqrt(2), 1e-12);
  data.fill_histogram(stat, 0);
  EXPECT_TRUE(zu_stat_has_histogramm(stat));
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat, nullptr);
  ASSERT_EQ(zu_histogramm_get_size(histogram), 3u);
  EXPECT_EQ(zu_histogramm_get(histogram, 0), 3);
  EXPECT_EQ(zu_histogramm_get(histogram, 2), 7);
  EXPECT_EQ(zu_histogramm_get_bnd_min(histogram, 0), 5);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 2), 7);
  zu_stat_destroy(stat);
  made_source without(1, 1);
  without.add(L"z", {1});
  grid_datasource plain;
  ASSERT_TRUE(plain.attach(without.handle()));
  EXPECT_FALSE(plain.field_histogram(0, histogram));
}

TEST(unique_values, fall_through_to_reading_where_the_source_declines) {
  knowing_source s(3, 2);
  s.add(L"z", {3, 1, 2, 3, 1, 2});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  std::set<double> numbers;
  EXPECT_TRUE(data.field_unique_values(0, -1, numbers));
  EXPECT_EQ(numbers, (std::set<double>{1, 2, 3}));
  s.unique = {9, 8, 9};
  numbers.clear();
  EXPECT_TRUE(data.field_unique_values(0, -1, numbers));
  EXPECT_EQ(numbers, (std::set<double>{8, 9}));
}

TEST(unique_values, a_limit_is_looked_at_after_a_whole_chunk) {
  made_source s(8, 4);
  std::vector<double> values;
  for (int i = 0; i < 32; ++i) values.push_back(i);
  s.add(L"z", values);  // tiles of 4 x 2
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  std::set<double> numbers;
  EXPECT_TRUE(data.field_unique_numbers(0, 1, numbers));
  EXPECT_EQ(numbers.size(), 8u);
  field_statistics record;
  data.count_unique(0, record);
  EXPECT_EQ(record.distinct, 32u);
  EXPECT_TRUE(record.distinct_done);
}

TEST(unique_values, as_texts_have_fifteen_digits_and_a_point) {
  made_source s(3, 1);
  s.add(L"z", {0.1, 1e20, 2});
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  std::vector<std::wstring> texts{L"before"};
  EXPECT_TRUE(data.field_unique_values(0, -1, texts));
  EXPECT_EQ(texts, (std::vector<std::wstring>{L"0.1", L"2", L"1e+20"}));
}

TEST(field_values, are_all_valid_ones_in_read_order) {
  made_source s(4, 2);
  auto& band = s.add(L"z", {8, 7, 6, 5, 0, 3, 2, 1});
  band.has_nodata = true;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  std::vector<double> values;
  EXPECT_TRUE(data.field_values(0, values));
  EXPECT_EQ(values, (std::vector<double>{8, 7, 6, 5, 3, 2, 1}));
  std::vector<std::wstring> texts;
  EXPECT_TRUE(data.field_value_texts(0, texts));
  EXPECT_EQ(texts.front(), L"8");
  EXPECT_FALSE(data.field_values(4, values));
}

TEST(field_groups, give_each_text_of_the_first_field_the_texts_of_the_others) {
  made_source s(3, 2);
  auto& first = s.add(L"a", {1, 2, 1, -1, 3, 2});
  first.has_nodata = true;
  first.nodata = -1;
  auto& second = s.add(L"b", {10, 20, 30, 40, 0, 60});
  second.has_nodata = true;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  group_map groups;
  EXPECT_TRUE(data.field_groups({0, 1}, -1, groups));
  EXPECT_EQ(groups, (group_map{{L"1", {L"10"}}, {L"2", {L"20"}}, {L"3", {}}}));
  EXPECT_FALSE(data.field_groups({0, 7}, -1, groups));
  EXPECT_EQ(s.blocks_alive, 0);
}

TEST(unique_field_name, takes_a_counter_where_the_name_is_taken_in_any_case) {
  made_source s(1, 1);
  s.add(L"Value");
  s.add(L"value1");
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.unique_field_name(L"value"), L"value2");
  EXPECT_EQ(data.unique_field_name(L"other"), L"other");
  made_source none(1, 1);
  grid_datasource empty;
  ASSERT_TRUE(empty.attach(none.handle()));
  EXPECT_EQ(empty.unique_field_name(L"value"), L"value");
}

TEST(grid_datasource, binds_only_to_a_grid) {
  struct : data_source_impl {
  } no_grid;
  grid_datasource data;
  EXPECT_FALSE(data.attach(handle_of<data_source_impl>(no_grid)));
  EXPECT_FALSE(data.attach(handle()));
  std::int32_t sizes[3];
  EXPECT_FALSE(data.sizes(sizes));
  made_source s(3, 2);
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_TRUE(data.sizes(sizes));
  data.unbind();
  EXPECT_FALSE(data.sizes(sizes));
}

TEST(grid_datasource, finds_the_first_band_of_a_role) {
  made_source s(1, 1);
  s.add(L"a").role = role_gray;
  s.add(L"b").role = role_red;
  s.add(L"c").role = role_red;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.find_band_of_role(role_red), 1);
  EXPECT_EQ(data.find_band_of_role(role_blue), -1);
}

TEST(grid_datasource, lifts_the_plane_matrix_where_there_is_no_other_and_spaces_by_one) {
  made_source s(2, 2);
  s.x0 = 100, s.cell = 5;
  grid_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  Tzu_matrix4x4 matrix;
  ASSERT_TRUE(data.matrix(matrix));
  EXPECT_EQ(matrix.m[0][0], 5);
  EXPECT_EQ(matrix.m[0][3], 102.5);
  EXPECT_EQ(matrix.m[2][2], 1);
  EXPECT_EQ(matrix.m[3][3], 1);
  double spacing[3];
  EXPECT_FALSE(data.get_spacing(spacing));
  EXPECT_EQ(spacing[1], 1.0);
}

TEST(generic_datasource, answers_as_the_grid_that_it_is) {
  made_source s(2, 1);
  s.add(L"z", {4, 6});
  generic_datasource data;
  ASSERT_TRUE(data.attach(s.handle()));
  EXPECT_EQ(data.field_maximum(0), 6);
  EXPECT_EQ(data.field_stddev(0), std::sqrt(2));
  std::set<double> numbers;
  EXPECT_TRUE(data.field_unique_values(0, -1, numbers));
  EXPECT_EQ(numbers.size(), 2u);
}

}  // namespace
