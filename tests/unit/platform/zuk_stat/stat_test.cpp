#include "zu/platform/zuk_stat.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(stat, knows_which_values_were_set) {
  Tzu_stat* stat = zu_stat_create();
  bool valid = true;
  EXPECT_EQ(zu_stat_get_minimum(stat, &valid), 0);
  EXPECT_FALSE(valid);
  zu_stat_set_minimum(stat, 1);
  zu_stat_set_maximum(stat, 2);
  zu_stat_set_average(stat, 3);
  EXPECT_FALSE(zu_stat_has_statistic(stat)) << "the deviation is not known";
  zu_stat_set_stddev(stat, 4);
  EXPECT_TRUE(zu_stat_has_statistic(stat));
  EXPECT_EQ(zu_stat_get_minimum(stat, &valid), 1);
  EXPECT_TRUE(valid);
  EXPECT_EQ(zu_stat_get_maximum(stat, nullptr), 2);
  EXPECT_EQ(zu_stat_get_average(stat, nullptr), 3);
  EXPECT_EQ(zu_stat_get_stddev(stat, nullptr), 4);
  zu_stat_destroy(stat);
}

TEST(histogram, holds_a_number_a_class_and_is_copied) {
  Tzu_histogramm_data* histogram = zu_histogramm_create();
  zu_histogramm_set_params(histogram, 3);
  zu_histogramm_set(histogram, 1, 5);
  zu_histogramm_set(histogram, 3, 9);
  EXPECT_EQ(zu_histogramm_get_size(histogram), 3u);
  EXPECT_EQ(zu_histogramm_get(histogram, 1), 5);
  EXPECT_EQ(zu_histogramm_get(histogram, 3), 0);
  EXPECT_EQ(zu_histogramm_get_max_val(histogram), 5);
  Tzu_histogramm_data* copy = zu_histogramm_create();
  zu_histogramm_assign(copy, histogram);
  zu_histogramm_clear(histogram);
  EXPECT_EQ(zu_histogramm_get_size(histogram), 0u);
  EXPECT_EQ(zu_histogramm_get_max_val(histogram), 0);
  EXPECT_EQ(zu_histogramm_get(copy, 1), 5);
  zu_histogramm_destroy(copy);
  zu_histogramm_destroy(histogram);
}

TEST(histogram, lies_between_its_limits_in_equal_classes) {
  Tzu_histogramm_data* histogram = zu_histogramm_create();
  std::uint64_t count = 7;
  double low = -1, high = -1;
  zu_histogramm_get_params(histogram, &count, &low, &high);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(low, -1) << "without classes only the count is written";
  zu_histogramm_set_params(histogram, 4);
  zu_histogramm_get_params(histogram, &count, &low, &high);
  EXPECT_EQ(low, 0);
  EXPECT_EQ(high, 1);
  zu_histogramm_set_limits(histogram, 10, 30);
  zu_histogramm_get_params(histogram, nullptr, &low, &high);
  EXPECT_EQ(low, 10);
  EXPECT_EQ(high, 30);
  EXPECT_EQ(zu_histogramm_get_bnd_min(histogram, 0), 10);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 0), 15);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 3), 30);
  EXPECT_TRUE(std::isnan(zu_histogramm_get_bnd_min(histogram, 4)));
  EXPECT_TRUE(std::isnan(zu_histogramm_get_bnd_max(nullptr, 0)));
  zu_histogramm_set_params(histogram, 2);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 0), 20) << "the limits stay";
  zu_histogramm_destroy(histogram);
}

TEST(histogram, of_statistics_is_valid_when_it_is_said_to_be) {
  Tzu_stat* stat = zu_stat_create();
  bool valid = true;
  ASSERT_NE(zu_stat_get_histogramm(stat, &valid), nullptr);
  EXPECT_FALSE(valid);
  zu_stat_set_histogramm(stat, true);
  EXPECT_TRUE(zu_stat_has_histogramm(stat));
  zu_stat_get_histogramm(stat, &valid);
  EXPECT_TRUE(valid);
  zu_stat_set_histogramm(stat, false);
  EXPECT_FALSE(zu_stat_has_histogramm(stat));
  EXPECT_EQ(zu_stat_get_histogramm(nullptr, &valid), nullptr);
  EXPECT_FALSE(valid);
  zu_stat_destroy(stat);
}

}  // namespace
