#include "zu/platform/zuk_stat.h"

#include <gtest/gtest.h>

namespace {

TEST(stat, knows_which_values_were_set) {
  Tzu_stat* stat = zu_stat_create();
  bool valid = true;
  EXPECT_EQ(zu_stat_get_minimum(stat, &valid), 0);
  EXPECT_FALSE(valid);
  zu_stat_set_minimum(stat, 1);
  zu_stat_set_maximum(stat, 2);
  zu_stat_set_average(stat, 3);
  zu_stat_set_stddev(stat, 4);
  EXPECT_EQ(zu_stat_get_minimum(stat, &valid), 1);
  EXPECT_TRUE(valid);
  EXPECT_EQ(zu_stat_get_maximum(stat, nullptr), 2);
  EXPECT_EQ(zu_stat_get_average(stat, nullptr), 3);
  EXPECT_EQ(zu_stat_get_stddev(stat, nullptr), 4);
  zu_stat_destroy(stat);
}

TEST(histogram, holds_a_number_a_class_and_is_copied) {
  Tzu_stat* stat = zu_stat_create();
  Tzu_histogramm_data* histogram = zu_histogramm_create();
  zu_histogramm_set_params(histogram, 3);
  zu_histogramm_set(histogram, 1, 5);
  zu_histogramm_set(histogram, 3, 9);
  EXPECT_EQ(zu_histogramm_get_size(histogram), 3u);
  EXPECT_EQ(zu_histogramm_get(histogram, 1), 5);
  EXPECT_EQ(zu_histogramm_get(histogram, 3), 0);
  bool valid = true;
  zu_histogramm_assign(zu_stat_get_histogramm(stat, &valid), histogram);
  EXPECT_FALSE(valid);
  zu_stat_set_histogramm(stat, true);
  zu_histogramm_clear(histogram);
  EXPECT_EQ(zu_histogramm_get_size(histogram), 0u);
  EXPECT_EQ(zu_histogramm_get(zu_stat_get_histogramm(stat, &valid), 1), 5);
  EXPECT_TRUE(valid);
  zu_histogramm_destroy(histogram);
  zu_stat_destroy(stat);
}

}  // namespace
