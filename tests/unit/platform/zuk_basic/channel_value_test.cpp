#include <gtest/gtest.h>

#include <cmath>

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_stat.h"

namespace {

TEST(channel_value, spreads_the_limits_over_a_byte_and_rounds_half_up) {
  struct {
    double low, high, value;
    int expected;
  } rows[] = {{0, 100, 50, 128},  // 127.5
              {0, 510, 1, 1},     // 0.5
              {0, 510, 3, 2},     // 1.5
              {-10, 10, -10, 0},        {-10, 10, 10, 255}, {-10, 10, -11, 0},
              {-10, 10, 11, 255},       {100, 0, 25, 191},  // limits the other way: 191.25
              {0, 100, std::nan(""), 0}};
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(channels);
  for (const auto& row : rows) {
    zu_clr_channel_set_limits(gray, row.low, row.high);
    EXPECT_EQ(zu_clr_channel_get255value(gray, row.value), row.expected) << row.value;
  }
  zu_rgb_channels_destroy(channels);
}

TEST(channel_value, equal_limits_make_a_step) {
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(channels);
  zu_clr_channel_set_limits(gray, 7, 7);
  EXPECT_EQ(zu_clr_channel_get255value(gray, 6.9), 0);
  EXPECT_EQ(zu_clr_channel_get255value(gray, 7), 0);
  EXPECT_EQ(zu_clr_channel_get255value(gray, std::nextafter(7.0, 8.0)), 255);
  EXPECT_EQ(zu_clr_channel_get255value(gray, std::nan("")), 0);
  zu_rgb_channels_destroy(channels);
}

TEST(channel, has_limits_that_are_set_one_by_one_and_cut_to_the_data) {
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* red = zu_rgb_channels_get_red(channels);
  zu_clr_channel_set_min(red, -50);
  zu_clr_channel_set_max(red, 150);
  EXPECT_EQ(zu_clr_channel_get_minimum(red), -50);
  EXPECT_EQ(zu_clr_channel_get_maximum(red), 150);
  EXPECT_EQ(zu_clr_channel_get255value(red, 50), 128) << "the range follows";
  zu_clr_channel_bound_minmax(red, 0, 100);
  EXPECT_EQ(zu_clr_channel_get_minimum(red), 0);
  EXPECT_EQ(zu_clr_channel_get_maximum(red), 100);
  zu_clr_channel_bound_minmax(red, 200, 300);
  EXPECT_EQ(zu_clr_channel_get_minimum(red), 200);
  EXPECT_EQ(zu_clr_channel_get_maximum(red), 200);
  zu_rgb_channels_destroy(channels);
}

TEST(channel, keeps_the_statistics_of_its_field_as_long_as_it_is_that_field) {
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* red = zu_rgb_channels_get_red(channels);
  zu_clr_channel_set_prop_name_w(red, L"depth");
  zu_stat_set_minimum(zu_clr_channel_get_stat(red), 3);
  bool valid = false;
  zu_clr_channel_set_prop_name_w(red, L"depth");
  EXPECT_EQ(zu_stat_get_minimum(zu_clr_channel_get_stat(red), &valid), 3);
  EXPECT_TRUE(valid);
  zu_clr_channel_set_prop_name_w(red, L"height");
  zu_stat_get_minimum(zu_clr_channel_get_stat(red), &valid);
  EXPECT_FALSE(valid);
  EXPECT_EQ(zu_clr_channel_get_stat(nullptr), nullptr);
  zu_rgb_channels_destroy(channels);
}

}  // namespace
