#include "src/style/classes/natural_breaks.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>
#include <vector>

#include "src/style/classes/builders.h"
#include "src/style/classes/field_sample.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/style/classes/made_range_scale.h"

namespace {

using namespace zu;
using list = std::vector<double>;

/// Squared deviations of the sorted values from `first` up to `last` (exclusive).
double squares(const list& values, std::size_t first, std::size_t last) {
  double mean = 0, sum = 0;
  for (std::size_t i = first; i < last; ++i) mean += values[i];
  mean /= static_cast<double>(last - first);
  for (std::size_t i = first; i < last; ++i) sum += (values[i] - mean) * (values[i] - mean);
  return sum;
}

/// By trying them all: where the last of `classes` classes of the first `count` values begins, so
/// that the sum of squares is least; the lower one on a tie.
std::size_t last_class_start(const list& values, std::size_t count, std::size_t classes,
                             double* least) {
  *least = std::numeric_limits<double>::infinity();
  if (classes == 1) return *least = squares(values, 0, count), 0;
  std::size_t best = 0;
  for (std::size_t start = 1; start < count; ++start) {
    double below = 0;
    if (start == 1)
      below = 0;  // a single value makes any number of classes
    else
      last_class_start(values, start, classes - 1, &below);
    double sum = below + squares(values, start, count);
    if (sum < *least - 1e-9) *least = sum, best = start;
  }
  return best;
}

/// The kept walk back: from each class it goes on one value before the end of the one below.
list breaks_by_trying_all(const list& values, std::size_t classes) {
  list breaks(classes - 1);
  std::size_t count = values.size();
  for (std::size_t j = classes; j >= 2; --j) {
    double least = 0;
    std::size_t start = count <= 1 ? count : last_class_start(values, count, j, &least);
    breaks[j - 2] = values[start == 0 ? 0 : start - 1];
    count = start == 0 ? 0 : start - 1;
  }
  return breaks;
}

TEST(natural_breaks, are_those_of_every_partition_tried) {
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    std::size_t count = 6 + random() % 7, classes = 2 + random() % 3;
    list values(count);
    for (double& value : values) value = static_cast<double>(random() % 1000);
    list sorted = values;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(style::natural_breaks(values, static_cast<std::uint32_t>(classes)),
              breaks_by_trying_all(sorted, classes))
        << "round " << round;
    EXPECT_EQ(values, sorted);
  }
}

TEST(natural_breaks, end_a_class_on_the_last_value_below_a_gap) {
  list values{9, 1, 10, 2, 3, 11};
  EXPECT_EQ(style::natural_breaks(values, 2), (list{3}));
}

TEST(natural_breaks, step_back_one_value_more_than_the_class_ends) {
  // Three groups. The upper break is 12; the walk goes on from 11, where the lower break is 3.
  list values{1, 2, 3, 10, 11, 12, 30, 31, 32};
  EXPECT_EQ(style::natural_breaks(values, 3), (list{3, 12}));
  // The group in the middle has one value: the walk goes on from 2, and the break is 1, not 2.
  list short_middle{1, 2, 10, 30, 31};
  EXPECT_EQ(style::natural_breaks(short_middle, 3), (list{1, 10}));
}

TEST(natural_breaks, take_the_first_value_where_the_walk_leaves_the_sample) {
  list values{1, 2, 3, 4, 5, 6};
  list breaks = style::natural_breaks(values, 5);
  ASSERT_EQ(breaks.size(), 4u);
  EXPECT_EQ(breaks[0], 1);
  EXPECT_TRUE(std::is_sorted(breaks.begin(), breaks.end()));
}

TEST(natural_breaks, prefer_the_lower_start_on_a_tie) {
  list values{0, 1, 2};  // 0 | 1 2 and 0 1 | 2 have the same sums
  EXPECT_EQ(style::natural_breaks(values, 2), (list{0}));
  list same(5, 4.0);
  EXPECT_EQ(style::natural_breaks(same, 2), (list{4}));
}

TEST(natural_breaks, are_the_values_themselves_where_there_are_no_more_than_classes) {
  list values{3, 1, 2};
  EXPECT_EQ(style::natural_breaks(values, 3), (list{1, 2, 3}));
  EXPECT_EQ(style::natural_breaks(values, 9), (list{1, 2, 3}));
}

TEST(natural_breaks, are_none_of_an_empty_sample_or_of_less_than_two_classes) {
  list none, values{1, 2};
  EXPECT_TRUE(style::natural_breaks(none, 4).empty());
  EXPECT_TRUE(style::natural_breaks(values, 1).empty());
  EXPECT_TRUE(style::natural_breaks(values, 0).empty());
}

TEST(natural_breaks, come_out_of_values_whose_squares_leave_the_numbers) {
  list values{1e200, 2e200, 3e200, 4e200};
  EXPECT_EQ(style::natural_breaks(values, 2).size(), 1u);
}

class natural_classes : public tests::made_range_scale {
 protected:
  data::open_reference source_of(tests::made_grid& grid) {
    data::open_reference source;
    source.name = grid.close();
    source.opener = &zu_datasource_open;
    return source;
  }
};

TEST_F(natural_classes, begin_and_end_at_the_limits) {
  tests::made_grid grid("natural.tif", 3, 3, GDT_Float64, 1);
  grid.values(1, {1, 2, 3, 10, 11, 12, 30, 31, 32});
  style::set_natural_breaks(scale_, source_of(grid), {L"Band 1", 3, 0, 40, zu_no_rounding});
  EXPECT_EQ(boundaries(), (list{0, 0, 3, 3, 12, 12, 40, 40}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_natural);
}

TEST_F(natural_classes, take_values_between_swapped_limits_alone) {
  tests::made_grid grid("natural_limits.tif", 3, 3, GDT_Float64, 1);
  grid.values(1, {1, 2, 3, 10, 11, 12, 30, 31, 32});
  style::set_natural_breaks(scale_, source_of(grid), {L"Band 1", 2, 15, 0, zu_no_rounding});
  EXPECT_EQ(boundaries(), (list{0, 0, 3, 3, 15, 15}));
}

TEST_F(natural_classes, can_be_more_than_asked_for_by_one) {
  tests::made_grid grid("natural_few.tif", 3, 1, GDT_Float64, 1);
  grid.values(1, {5, 1, 3});
  style::set_natural_breaks(scale_, source_of(grid), {L"Band 1", 3, 0, 9, zu_no_rounding});
  EXPECT_EQ(boundaries(), (list{0, 0, 1, 1, 3, 3, 5, 5, 9, 9}));
}

TEST_F(natural_classes, of_no_source_stay_but_are_rounded) {
  style::set_equal_intervals(scale_, {2, 0.4, 8.4, zu_no_rounding});
  data::open_reference nowhere;
  nowhere.name = L"/nowhere/at.tif";
  nowhere.opener = &zu_datasource_open;
  style::set_natural_breaks(scale_, nowhere, {L"z", 5, 0, 10, 0});
  EXPECT_EQ(boundaries(), (list{0, 0, 4, 4, 8, 8}));
  EXPECT_EQ(caption(0).find(L"0"), 0u);
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_natural);
}

/// 100 x 80 cells with the values 0 to 7999, or of few values where told.
class field_sample : public natural_classes {
 protected:
  data::open_reference ramp(const char* name, int step) {
    tests::made_grid grid(name, 100, 80, GDT_Float64, 1);
    list cells(8000);
    for (std::size_t i = 0; i < cells.size(); ++i)
      cells[i] = i % static_cast<std::size_t>(step) == 0 ? static_cast<double>(i) : -1.0;
    grid.values(1, cells);
    return source_of(grid);
  }
  static constexpr std::uint32_t seed = 5;
};

TEST_F(field_sample, of_a_large_field_has_three_thousand_cells_each_once) {
  list sample;
  ASSERT_TRUE(style::sample_field(ramp("sample.tif", 1), L"Band 1", 0, 8000, &seed, sample));
  EXPECT_EQ(sample.size(), style::sample_limit);
  std::set<double> distinct(sample.begin(), sample.end());
  EXPECT_EQ(distinct.size(), sample.size());
  double mean = 0;
  for (double value : sample) mean += value / static_cast<double>(sample.size());
  EXPECT_NEAR(mean, 3999.5, 5 * 2309 / std::sqrt(3000)) << "from all over the field";
}

TEST_F(field_sample, is_the_same_for_the_same_seed_and_another_without) {
  data::open_reference source = ramp("seed.tif", 1);
  list first, second, third;
  style::sample_field(source, L"Band 1", 0, 8000, &seed, first);
  style::sample_field(source, L"Band 1", 0, 8000, &seed, second);
  style::sample_field(source, L"Band 1", 0, 8000, nullptr, third);
  EXPECT_EQ(first, second);
  EXPECT_NE(first, third);
}

TEST_F(field_sample, finds_rare_values) {
  list sample;
  ASSERT_TRUE(style::sample_field(ramp("rare.tif", 1000), L"Band 1", 0, 8000, &seed, sample));
  std::sort(sample.begin(), sample.end());
  EXPECT_EQ(sample, (list{0, 1000, 2000, 3000, 4000, 5000, 6000, 7000}));
}

TEST_F(field_sample, holds_no_values_outside_of_the_limits) {
  list sample;
  ASSERT_TRUE(style::sample_field(ramp("cut.tif", 1), L"Band 1", 100, 299, &seed, sample));
  EXPECT_EQ(sample.size(), 200u);
  EXPECT_EQ(*std::min_element(sample.begin(), sample.end()), 100);
  EXPECT_EQ(*std::max_element(sample.begin(), sample.end()), 299);
}

TEST_F(field_sample, of_a_field_that_is_not_there_is_none) {
  list sample;
  EXPECT_FALSE(style::sample_field(ramp("none.tif", 1), L"z", 0, 1, nullptr, sample));
}

}  // namespace
