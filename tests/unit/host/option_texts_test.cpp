#include "host/cli/option_texts.h"

#include <gtest/gtest.h>

#include "host/cli/commands.h"

namespace {

using namespace zu::cli;

TEST(option_texts, numbers_have_a_point_in_every_locale) {
  EXPECT_EQ(numbers_of("--x", "-1.5, 2e3,+4"), (std::vector<double>{-1.5, 2000, 4}));
  for (const char* bad : {"", "1,,2", "1,5x", "nan", "inf", "0x10", "1 2", ",", "--1"})
    EXPECT_THROW(numbers_of("--x", bad), usage_error) << bad;
}

TEST(option_texts, a_colour_has_six_or_eight_digits_of_which_the_last_two_are_an_opacity) {
  Tzu_color opaque = color_of("--c", "#12aBff"), half = color_of("--c", "#01020380");
  EXPECT_EQ(opaque.r, 0x12);
  EXPECT_EQ(opaque.g, 0xab);
  EXPECT_EQ(opaque.b, 0xff);
  EXPECT_EQ(opaque.a, 0);
  EXPECT_EQ(half.b, 3);
  EXPECT_EQ(half.a, 127);
  for (const char* bad : {"", "#", "123456", "#12345", "#1234567", "#12345g", "#-12345", "red"})
    EXPECT_THROW(color_of("--c", bad), usage_error) << bad;
}

TEST(option_texts, a_size_has_two_sides) {
  EXPECT_EQ(size_of("--size", "1920x1080"), (std::pair<std::uint64_t, std::uint64_t>(1920, 1080)));
  for (const char* bad : {"", "0x5", "5x0", "5", "5x", "x5", "5x5x5", "-5x5", "32768x1", "5.5x5"})
    EXPECT_THROW(size_of("--size", bad), usage_error) << bad;
}

TEST(option_texts, a_box_is_not_inside_out) {
  Tzu_box_d2 box = box_of("--extent", "-10,20,30.5,40");
  EXPECT_EQ(box.x0, -10);
  EXPECT_EQ(box.y1, 40);
  for (const char* bad : {"1,2,3", "3,2,1,4", "1,4,3,2", "1,1,1,2", "1,2,3,4,5"})
    EXPECT_THROW(box_of("--extent", bad), usage_error) << bad;
}

TEST(option_texts, boundaries_rise) {
  EXPECT_EQ(breaks_of("--breaks", "0,1,2").size(), 3u);
  for (const char* bad : {"1", "2,1", "1,1"}) EXPECT_THROW(breaks_of("--breaks", bad), usage_error);
  EXPECT_THROW(limits_of("--limits", "5,5"), usage_error);
}

TEST(option_texts, values_carry_their_colours) {
  auto values = values_of("--values", "1=#ff0000, a=b=#00ff00");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_EQ(values[0].first, "1");
  EXPECT_EQ(values[1].first, "a=b");
  EXPECT_EQ(values[1].second.g, 255);
  for (const char* bad : {"1", "=#ff0000", "1=red"})
    EXPECT_THROW(values_of("--values", bad), usage_error) << bad;
}

}  // namespace
