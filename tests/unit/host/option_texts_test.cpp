#include "host/cli/option_texts.h"

#include <gtest/gtest.h>

#include "host/cli/commands.h"

namespace zu::cli {
namespace {

TEST(option_texts, a_number_has_a_point_and_nothing_behind_it) {
  struct {
    const char* text;
    double value;
  } good[] = {{"0", 0},      {"-1.5", -1.5},    {"+2", 2},           {".5", 0.5},
              {"1e3", 1000}, {"-2.5E-1", -.25}, {"6187000", 6187000}};
  for (const auto& each : good) EXPECT_EQ(number_of("--x", each.text), each.value) << each.text;
  for (const char* text : {"", "-", "+", "++1", "+-1", "1,5", "1 ", " 1", "nan", "inf", "-inf",
                           "1e999", "0x10", "12m"})
    EXPECT_THROW(number_of("--x", text), usage_error) << text;
}

TEST(option_texts, a_colour_is_hexadecimal_and_its_last_pair_an_opacity) {
  auto same = [](Tzu_color a, Tzu_color b) {
    return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a;
  };
  EXPECT_TRUE(same(color_of("--c", "#0180fF"), {1, 128, 255, 0}));
  EXPECT_TRUE(same(color_of("--c", "#01020300"), {1, 2, 3, 255}));
  EXPECT_TRUE(same(color_of("--c", "#010203ff"), {1, 2, 3, 0}));
  for (const char* text : {"", "#", "#fff", "0180ff", "#0180f", "#0180fff", "#0180fg", "#-18000",
                           "#+18000", "#0180ff0011"})
    EXPECT_THROW(color_of("--c", text), usage_error) << text;
}

TEST(option_texts, a_size_has_two_whole_sides) {
  EXPECT_EQ(size_of("--size", "1024x768"), (std::pair<std::uint64_t, std::uint64_t>(1024, 768)));
  EXPECT_EQ(size_of("--size", "1x32767").second, 32767u);
  for (const char* text :
       {"", "x", "1x", "x1", "0x1", "1x0", "32768x1", "-1x1", "1.5x1", "1x1x1", "1X1", " 1x1"})
    EXPECT_THROW(size_of("--size", text), usage_error) << text;
}

TEST(option_texts, a_box_has_its_low_corner_first) {
  Tzu_box_d2 box = box_of("--extent", "-10,20,30,40.5");
  EXPECT_EQ(box.x0, -10);
  EXPECT_EQ(box.y0, 20);
  EXPECT_EQ(box.x1, 30);
  EXPECT_EQ(box.y1, 40.5);
  for (const char* text : {"1,2,3", "1,2,3,4,5", "3,0,1,1", "0,3,1,1", "0,0,0,1", "0,0,1,0"})
    EXPECT_THROW(box_of("--extent", text), usage_error) << text;
}

TEST(option_texts, boundaries_rise) {
  EXPECT_EQ(breaks_of("--breaks", "-1, 0,2.5"), (std::vector<double>{-1, 0, 2.5}));
  for (const char* text : {"1", "1,1", "2,1", "1,,2", "1,2,"})
    EXPECT_THROW(breaks_of("--breaks", text), usage_error) << text;
}

TEST(option_texts, a_value_keeps_its_text_and_must_be_a_number) {
  auto values = values_of("--values", "1.50=#ff0000,-2=#00ff0080");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_EQ(values[0].first, "1.50");
  EXPECT_EQ(values[0].second.r, 255);
  EXPECT_EQ(values[1].first, "-2");
  EXPECT_EQ(values[1].second.a, 127);
  for (const char* text : {"1", "=#000000", "1=", "one=#000000", "nan=#000000", "1=2=#000000"})
    EXPECT_THROW(values_of("--values", text), usage_error) << text;
}

TEST(option_texts, an_overlay_keeps_the_settings_that_are_not_given) {
  host::hillshade_look shade = hillshade_of("--hillshade", "z=2.5, part=0.25,multidirectional");
  EXPECT_EQ(shade.z_factor, 2.5);
  EXPECT_EQ(shade.part, 0.25);
  EXPECT_TRUE(shade.multidirectional);
  EXPECT_EQ(shade.altitude, 45);
  EXPECT_EQ(shade.azimuth, 315);
  host::isoline_look lines = isolines_of("--isolines", "bold=100,label,field=a b");
  EXPECT_FALSE(lines.thin);
  EXPECT_EQ(lines.bold, 100);
  EXPECT_TRUE(lines.label);
  EXPECT_EQ(lines.field, "a b");
  EXPECT_FALSE(isolines_of("--isolines", as_it_comes).label);
}

TEST(option_texts, an_overlay_refuses_settings_that_mean_nothing) {
  for (const char* text : {"z", "z=", "z=x", "altitude=91", "part=1.5", "sun=1", "label", "z=1,,"})
    EXPECT_THROW(hillshade_of("--hillshade", text), usage_error) << text;
  for (const char* text : {"thin=0", "thin=-1", "thin=nan", "bold", "field=", "multidirectional"})
    EXPECT_THROW(isolines_of("--isolines", text), usage_error) << text;
}

TEST(option_texts, an_overlay_option_takes_no_source_for_its_settings) {
  using line = std::vector<std::string>;
  EXPECT_EQ(with_settings({"render", "--hillshade", "a.tif", "--isolines"}),
            (line{"render", "--hillshade=default", "a.tif", "--isolines=default"}));
  EXPECT_EQ(with_settings({"--hillshade", "z=2", "--isolines", "label"}),
            (line{"--hillshade", "z=2", "--isolines", "label"}));
  EXPECT_EQ(with_settings({"--isolines", "a=b.tif"}), (line{"--isolines=default", "a=b.tif"}));
  EXPECT_EQ(with_settings({"--", "--isolines"}), (line{"--", "--isolines"}));
}

TEST(option_texts, what_is_refused_names_its_option) {
  try {
    limits_of("--limits", "2,1");
    FAIL() << "limits that fall were taken";
  } catch (const usage_error& error) {
    EXPECT_EQ(std::string(error.what()).rfind("--limits: ", 0), 0u) << error.what();
  }
}

}  // namespace
}  // namespace zu::cli
