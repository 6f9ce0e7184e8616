#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_palettes.h"

namespace {

using tests::text_of;
using tests::texts_of;

TEST(string_adapter, delivers_each_text_to_its_sink_and_none_to_null) {
  EXPECT_EQ(texts_of([](Tzu_string_adp* a) {
              zu_string_adp_feed(a, L"wide");
              zu_string_adp_feed_narrow(a, "narrow");
            }),
            (std::vector<std::wstring>{L"wide", L"narrow"}));
  zu_string_adp_feed(nullptr, L"x");
  zu_string_adp_feed_narrow(nullptr, "x");
  zu_string_adp_destroy(nullptr);
}

TEST(options, tell_the_program_unless_another_is_set) {
  EXPECT_NE(std::wstring(zu_options_get_main_module_path()).find(L"unit_platform"),
            std::wstring::npos);
  zu_options_set_main_module_path(L"/opt/zumiraqt/bin/host");
  EXPECT_STREQ(zu_options_get_main_module_path(), L"/opt/zumiraqt/bin/host");
  zu_options_set_main_module_path(nullptr);
  EXPECT_NE(std::wstring(zu_options_get_main_module_path()).find(L"unit_platform"),
            std::wstring::npos);
}

TEST(color, words_have_red_in_the_low_byte) {
  EXPECT_EQ(zu_clr_init_rgba(1, 2, 3, 4), 0x04030201u);
}

TEST(problems, are_kept_by_source_each_once_oldest_first) {
  zu_problems_clear(nullptr);
  zu_problems_add(L"a", zu_problem_open, L"no such file");
  zu_problems_add(L"a", zu_problem_read, L"a tile");
  zu_problems_add(L"a", zu_problem_open, L"no such file");
  zu_problems_add(L"b", zu_problem_write, L"full");
  ASSERT_EQ(zu_problems_get_count(L"a"), 2);
  std::int32_t kind = -1;
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { kind = zu_problems_get(L"a", 1, t); }), L"a tile");
  EXPECT_EQ(kind, zu_problem_read);
  EXPECT_EQ(zu_problems_get(L"a", 2, nullptr), -1);
  EXPECT_EQ(zu_problems_get(L"a", -1, nullptr), -1);
  EXPECT_EQ(zu_problems_get_count(nullptr), 0);
  zu_problems_clear(L"a");
  EXPECT_EQ(zu_problems_get_count(L"a"), 0);
  EXPECT_EQ(zu_problems_get_count(L"b"), 1);
  for (int i = 0; i < 40; ++i) zu_problems_add(L"c", zu_problem_read, std::to_wstring(i).c_str());
  EXPECT_EQ(zu_problems_get_count(L"c"), 16);
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_problems_get(L"c", 15, t); }), L"39");
  zu_problems_clear(nullptr);
}

TEST(channels, are_copied_with_names_and_limits) {
  Tzu_rgb_channels* from = zu_rgb_channels_create();
  Tzu_rgb_channels* to = zu_rgb_channels_create();
  EXPECT_EQ(zu_clr_channel_get_maximum(zu_rgb_channels_get_red(to)), 255);
  zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_blue(from), L"Имя");
  zu_clr_channel_set_limits(zu_rgb_channels_get_blue(from), -1, 3);
  zu_rgb_channels_assign(to, from);
  zu_rgb_channels_destroy(from);
  Tzu_clr_channel* blue = zu_rgb_channels_get_blue(to);
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_clr_channel_get_prop_name_w(blue, t); }), L"Имя");
  EXPECT_EQ(zu_clr_channel_get_minimum(blue), -1);
  EXPECT_EQ(zu_clr_channel_get255value(blue, 1), 128);
  zu_rgb_channels_destroy(to);
  EXPECT_EQ(zu_rgb_channels_get_red(nullptr), nullptr);
  zu_rgb_channels_destroy(nullptr);
}

/// Style libraries by the environment as given; null leaves a variable out.
std::wstring default_style_libs(const char* data, const char* home) {
  const std::pair<const char*, const char*> given[] = {{"XDG_DATA_HOME", data}, {"HOME", home}};
  std::optional<std::string> kept[2];
  for (int i = 0; i < 2; ++i) {
    if (const char* before = std::getenv(given[i].first)) kept[i] = before;
    unsetenv(given[i].first);
    if (given[i].second != nullptr) setenv(given[i].first, given[i].second, 1);
  }
  zu_options_set_style_libs_path(nullptr);
  for (int i = 0; i < 2; ++i) {
    unsetenv(given[i].first);
    if (kept[i]) setenv(given[i].first, kept[i]->c_str(), 1);
  }
  return zu_options_get_style_libs_path();
}

TEST(options, style_libraries_lie_in_the_persons_data_unless_another_folder_is_set) {
  EXPECT_EQ(default_style_libs("/data", "/home/who"), L"/data/zugrid/styles");
  EXPECT_EQ(default_style_libs(nullptr, "/home/who"), L"/home/who/.local/share/zugrid/styles");
  EXPECT_EQ(default_style_libs("not/absolute", "/home/who"),
            L"/home/who/.local/share/zugrid/styles");
  EXPECT_EQ(default_style_libs(nullptr, nullptr), L"");
  EXPECT_EQ(default_style_libs("/Данные", nullptr), L"/Данные/zugrid/styles");
  zu_options_set_style_libs_path(L"/opt/Стили");
  EXPECT_STREQ(zu_options_get_style_libs_path(), L"/opt/Стили");
  zu_options_set_style_libs_path(L"/opt/styles");
  zu_options_set_style_libs_path(L"");
  EXPECT_STRNE(zu_options_get_style_libs_path(), L"/opt/styles");
}

TEST(options, overviews_are_built_only_where_the_host_says_so) {
  EXPECT_FALSE(zu_options_get_build_overviews());
  zu_options_set_build_overviews(true);
  EXPECT_TRUE(zu_options_get_build_overviews());
  zu_options_set_build_overviews(false);
}

}  // namespace
