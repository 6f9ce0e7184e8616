#include "host/desktop/window/status_line.h"

#include <gtest/gtest.h>

namespace zu::desktop {

TEST(status_line, reads_scales_as_people_write_them) {
  struct {
    const char* text;
    double scale;
  } cases[] = {{"1:25000", 25000}, {"25000", 25000}, {"1 : 25 000", 25000},
               {"1:0,5", 0.5},     {"2.5", 2.5},     {"", 0},
               {"one", 0},         {"-5", 0},        {"1:0", 0},
               {"inf", 0}};
  for (const auto& each : cases)
    EXPECT_EQ(scale_of_text(QString::fromLatin1(each.text)), each.scale) << each.text;
}

TEST(status_line, writes_scales_without_fractions_but_for_small_ones) {
  EXPECT_EQ(text_of_scale(25000.4), QStringLiteral("1:25000"));
  EXPECT_EQ(text_of_scale(0.5), QStringLiteral("1:0.5"));
  EXPECT_EQ(text_of_scale(12.3456), QStringLiteral("1:12.35"));
  EXPECT_EQ(text_of_scale(0), QString());
}

TEST(status_line, coordinates_have_the_decimals_that_a_pixel_needs) {
  EXPECT_EQ(coordinate_text(1234.5678, 100), QStringLiteral("1235"));
  EXPECT_EQ(coordinate_text(1234.5678, 1), QStringLiteral("1234.6"));
  EXPECT_EQ(coordinate_text(37.123456, 0.0001), QStringLiteral("37.12346"));
}

}  // namespace zu::desktop
