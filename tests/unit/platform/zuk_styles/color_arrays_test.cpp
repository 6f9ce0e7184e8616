#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "platform/zuk_styles/color_arrays.h"
#include "zu/platform/zuk_palettes.h"

namespace {

using zu::platform::distance;
using zu::platform::oklab;
using zu::platform::to_oklab;

std::vector<Tzu_color> colors_of(const char* name, std::size_t count, std::int32_t flag = 0) {
  std::vector<Tzu_color> colors(count);
  EXPECT_TRUE(zu_clr_arrays_generate_ex(zu_clr_arrays_find(name), count, colors.data(), flag))
      << name;
  return colors;
}

std::vector<oklab> looks_of(const char* name, std::size_t count) {
  std::vector<oklab> looks;
  for (Tzu_color each : colors_of(name, count)) looks.push_back(to_oklab(each));
  return looks;
}

std::uint32_t word(Tzu_color c) { return zu_clr_init_rgba(c.r, c.g, c.b, c.a); }

struct named_number {
  std::int32_t id;
  const char* name;
};
constexpr named_number numbers[] = {{0, "white_gray"},
                                    {1, "white_blue"},
                                    {2, "white_red"},
                                    {3, "white_green"},
                                    {4, "white_yellow"},
                                    {5, "blue_white_red"},
                                    {6, "red_white_blue"},
                                    {8, "rainbow"},
                                    {9, "gentle_rainbow"},
                                    {13, "blue"},
                                    {14, "green"},
                                    {15, "fresh"},
                                    {16, "mineral"},
                                    {17, "height_light"},
                                    {18, "height_dark"},
                                    {19, "height_depth"},
                                    {20, "turquoise"},
                                    {21, "calm"},
                                    {22, "red"},
                                    {23, "orange_yellow"},
                                    {24, "violet"},
                                    {27, "height_depth_2"},
                                    {25, "vinous_white_black"},
                                    {7, "green_white_brown"}};

TEST(color_arrays, have_the_numbers_that_tools_and_files_know_them_by) {
  for (const named_number& each : numbers) {
    EXPECT_STREQ(zu_clr_arrays_get_name(each.id), each.name);
    EXPECT_EQ(zu_clr_arrays_find(each.name), each.id);
  }
  EXPECT_EQ(zu_clr_arrays_get_count(), 28);
  std::set<std::string> names;
  for (std::int32_t id = 0; id < 28; ++id) names.insert(zu_clr_arrays_get_name(id));
  EXPECT_EQ(names.size(), 28U);
  EXPECT_EQ(zu_clr_arrays_get_name(28), nullptr);
  EXPECT_EQ(zu_clr_arrays_find("plaid"), -1);
  EXPECT_EQ(zu_clr_arrays_find(nullptr), -1);
}

TEST(color_arrays, of_an_unknown_number_are_none) {
  Tzu_color color{1, 2, 3, 4};
  for (std::int32_t id : {-1, 28, 1000})
    EXPECT_FALSE(zu_clr_arrays_generate_ex(id, 1, &color, 0)) << id;
  EXPECT_FALSE(zu_clr_arrays_generate_ex(5, 1, nullptr, 0));
  EXPECT_EQ(color.r, 1);
}

TEST(color_arrays, five_runs_from_blue_through_white_to_red_and_keeps_transparencies) {
  Tzu_color colors[5] = {};
  colors[1].a = 77;
  ASSERT_TRUE(zu_clr_arrays_generate_ex(5, 5, colors, 0));
  const int expected[5][3] = {
      {0, 0, 255}, {128, 128, 255}, {255, 255, 255}, {255, 128, 128}, {255, 0, 0}};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(colors[i].r, expected[i][0]) << i;
    EXPECT_EQ(colors[i].g, expected[i][1]) << i;
    EXPECT_EQ(colors[i].b, expected[i][2]) << i;
  }
  EXPECT_EQ(colors[1].a, 77);
}

TEST(color_arrays, begin_and_end_with_their_first_and_last_colour) {
  for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id) {
    const auto& stored = zu::platform::find_color_array(id)->colors;
    Tzu_color colors[2] = {};
    ASSERT_TRUE(zu_clr_arrays_generate_ex(id, 2, colors, 0));
    EXPECT_EQ(word(colors[0]), word(stored.front())) << id;
    bool goes_round = std::string(zu_clr_arrays_get_name(id)) == "hue_circle";
    EXPECT_EQ(word(colors[1]), word(goes_round ? stored.front() : stored.back())) << id;
    Tzu_color one{0, 0, 0, 9};
    ASSERT_TRUE(zu_clr_arrays_generate_ex(id, 1, &one, 0));
    EXPECT_EQ(one.g, stored.front().g) << id;
    EXPECT_EQ(one.a, 9);
    EXPECT_TRUE(zu_clr_arrays_generate_ex(id, 0, &one, 0));
  }
}

/// Those that run one way, for amounts.
constexpr const char* sequential[] = {"white_gray",   "white_blue",    "white_red", "white_green",
                                      "white_yellow", "tidal",         "ember",     "blue",
                                      "green",        "fresh",         "turquoise", "calm",
                                      "red",          "orange_yellow", "violet"};

TEST(color_arrays, for_amounts_grow_steadily_lighter_or_darker) {
  for (const char* name : sequential) {
    std::vector<oklab> looks = looks_of(name, 1000);
    double way = looks.back().l > looks.front().l ? 1 : -1;
    for (std::size_t i = 100; i < looks.size(); ++i)
      ASSERT_GT((looks[i].l - looks[i - 100].l) * way, 0.0) << name << ' ' << i;
  }
}

TEST(color_arrays, have_steps_that_look_alike) {
  // Classes of a legend, where a step is seen; white and its even neighbours are among them.
  for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id) {
    std::string name = zu_clr_arrays_get_name(id);
    bool in_parts = name == "blue_white_red" || name == "red_white_blue" || name == "mineral" ||
                    name == "vinous_white_black" || name.rfind("height_depth", 0) == 0;
    if (in_parts) continue;
    std::vector<oklab> looks = looks_of(name.c_str(), 65);
    std::vector<double> steps;
    for (std::size_t i = 1; i < looks.size(); ++i)
      steps.push_back(distance(looks[i - 1], looks[i]));
    auto [least, most] = std::minmax_element(steps.begin(), steps.end());
    // A byte of rounding is up to 0.004 in the dark.
    EXPECT_LT(*most - *least, 0.3 * *most + 0.008) << name;
  }
}

TEST(color_arrays, about_a_middle_are_as_dark_at_one_end_as_at_the_other) {
  for (const char* name : {"green_white_brown", "violet_white_orange"}) {
    std::vector<oklab> looks = looks_of(name, 201);
    EXPECT_NEAR(looks[100].l, 1.0, 0.001) << name;
    for (std::size_t i = 0; i < 100; ++i)
      ASSERT_NEAR(looks[i].l, looks[200 - i].l, 0.03) << name << ' ' << i;
  }
}

/// As somebody without green cones sees it (Machado, Oliveira and Fernandes 2009, deuteranopia of
/// severity 1, in linear light).
oklab without_green(Tzu_color c) {
  double r = std::pow(c.r / 255.0, 2.2), g = std::pow(c.g / 255.0, 2.2),
         b = std::pow(c.b / 255.0, 2.2);
  auto byte = [](double light) {
    return static_cast<std::uint8_t>(std::pow(std::clamp(light, 0.0, 1.0), 1 / 2.2) * 255);
  };
  return to_oklab({byte(0.367322 * r + 0.860646 * g - 0.227968 * b),
                   byte(0.280085 * r + 0.672501 * g + 0.047413 * b),
                   byte(-0.011820 * r + 0.042940 * g + 0.968881 * b), 0});
}

TEST(color_arrays, violet_and_orange_stay_apart_without_green_cones) {
  std::vector<Tzu_color> colors = colors_of("violet_white_orange", 9);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_GT(distance(without_green(colors[i]), without_green(colors[8 - i])), 0.08) << i;
}

TEST(color_arrays, of_water_and_land_break_in_the_middle) {
  for (const char* name : {"height_depth", "height_depth_2"}) {
    for (std::size_t count : {2, 12, 13, 100}) {
      std::vector<Tzu_color> colors = colors_of(name, count);
      for (std::size_t i = 0; i < count; ++i) {
        bool is_water = 2 * i + 1 <= count;
        bool is_blue = colors[i].b > colors[i].r && colors[i].b >= colors[i].g;
        EXPECT_EQ(is_blue, is_water) << name << ' ' << i << " of " << count;
      }
    }
  }
}

TEST(color_arrays, turn_by_turn_are_the_stored_ones_from_the_first_again) {
  for (std::int32_t id = 0; id < zu_clr_arrays_get_count(); ++id) {
    const auto& stored = zu::platform::find_color_array(id)->colors;
    std::vector<Tzu_color> colors(stored.size() * 2 + 1);
    ASSERT_TRUE(zu_clr_arrays_generate_ex(id, colors.size(), colors.data(), 1));
    for (std::size_t i = 0; i < colors.size(); ++i)
      ASSERT_EQ(word(colors[i]), word(stored[i % stored.size()])) << id << ' ' << i;
  }
}

/// Those that tools offer as a row of single colours.
constexpr const char* palettes[] = {"mineral",       "fresh",   "calm",           "red",
                                    "orange_yellow", "green",   "turquoise",      "blue",
                                    "violet",        "rainbow", "gentle_rainbow", "hue_circle"};

TEST(color_arrays, offered_as_palettes_have_neighbours_that_differ) {
  for (const char* name : palettes) {
    const auto& stored = zu::platform::find_color_array(zu_clr_arrays_find(name))->colors;
    for (std::size_t i = 0; i < stored.size(); ++i) {
      const Tzu_color &a = stored[i], &b = stored[(i + 1) % stored.size()];
      EXPECT_GT(distance(to_oklab(a), to_oklab(b)), 0.075) << name << ' ' << i;
    }
  }
}

TEST(color_arrays, of_kinds_are_those_that_tools_give_in_turn_alone) {
  for (const named_number& each : numbers)
    EXPECT_EQ(zu_clr_arrays_is_of_kinds(each.id), std::string("mineral") == each.name) << each.name;
  EXPECT_FALSE(zu_clr_arrays_is_of_kinds(-1));
  EXPECT_FALSE(zu_clr_arrays_is_of_kinds(28));
}

TEST(color_arrays, of_minerals_are_all_told_apart) {
  const auto& stored = zu::platform::find_color_array(16)->colors;
  for (std::size_t i = 0; i < stored.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GT(distance(to_oklab(stored[i]), to_oklab(stored[j])), 0.07) << i << ' ' << j;
}

TEST(color_arrays, of_directions_end_where_they_begin) {
  std::vector<Tzu_color> colors = colors_of("hue_circle", 9);
  EXPECT_EQ(word(colors.front()), word(colors.back()));
}

TEST(oklab, gives_every_byte_back) {
  for (int r = 0; r < 256; r += 15)
    for (int g = 0; g < 256; g += 15)
      for (int b = 0; b < 256; b += 15) {
        Tzu_color c{static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g),
                    static_cast<std::uint8_t>(b), 0};
        ASSERT_EQ(word(zu::platform::from_oklab(to_oklab(c))), word(c));
      }
  // Ottosson's own table: pure red is L 0.627955, a 0.224863, b 0.125846.
  oklab red = to_oklab({255, 0, 0, 0});
  EXPECT_NEAR(red.l, 0.627955, 1e-4);
  EXPECT_NEAR(red.a, 0.224863, 1e-4);
  EXPECT_NEAR(red.b, 0.125846, 1e-4);
}

}  // namespace
