#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_palettes.h"

namespace {

using zu::platform::owned;
using list_ptr = owned<zu_clr_palettes_destroy>;

Tzu_color gray(std::uint8_t level) { return {level, level, level, 0}; }

std::vector<int> levels(const Tzu_clr_palette* palette) {
  std::vector<int> all;
  for (std::uint64_t i = 0; i < zu_clr_palette_get_size(palette); ++i)
    all.push_back(zu_clr_palette_get_color(palette, i).r);
  return all;
}

Tzu_clr_palette* add(Tzu_clr_palettes* list, const wchar_t* caption,
                     std::initializer_list<std::uint8_t> grays) {
  Tzu_clr_palette* palette = zu_clr_palettes_add(list);
  zu_clr_palette_set_wcaption(palette, caption);
  for (std::uint8_t each : grays) zu_clr_palette_add_color(palette, gray(each));
  return palette;
}

std::wstring captions(Tzu_clr_palettes* list) {
  std::wstring all;
  for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(list); ++i)
    all += tests::text_of([&](Tzu_string_adp* a) {
      zu_clr_palette_get_wcaption(zu_clr_palettes_get_ptr(list, i), a);
    });
  return all;
}

owned<zu_int_set_destroy> set_of(std::initializer_list<int> indices) {
  owned<zu_int_set_destroy> set(zu_int_set_create());
  for (int each : indices) zu_int_set_add(set.get(), each);
  return set;
}

TEST(palettes, are_copied_with_their_captions_and_colours) {
  list_ptr from(zu_clr_palettes_create()), to(zu_clr_palettes_create());
  add(from.get(), L"a", {1, 2});
  add(from.get(), L"б", {});
  zu_clr_palettes_assign(to.get(), from.get());
  zu_clr_palettes_del(from.get(), 0);
  EXPECT_EQ(captions(from.get()), L"б");
  EXPECT_EQ(captions(to.get()), L"aб");
  EXPECT_EQ(levels(zu_clr_palettes_get_ptr(to.get(), 0)), (std::vector{1, 2}));
  zu_clr_palettes_del(from.get(), 7);
  EXPECT_EQ(zu_clr_palettes_get_size(from.get()), 1U);
  EXPECT_EQ(zu_clr_palettes_get_ptr(from.get(), 1), nullptr);
}

TEST(palettes, keep_the_address_of_each_while_others_come_and_go) {
  list_ptr list(zu_clr_palettes_create());
  Tzu_clr_palette* kept = add(list.get(), L"kept", {5});
  for (int i = 0; i < 100; ++i) zu_clr_palettes_add(list.get());
  EXPECT_EQ(zu_clr_palettes_get_ptr(list.get(), 0), kept);
}

struct move_case {
  std::initializer_list<int> marked;
  std::uint64_t index;
  const wchar_t* expected;
};

TEST(palettes, that_are_marked_move_together_before_a_place) {
  const move_case cases[] = {
      {{0}, 3, L"bcade"},    {{0}, 5, L"bcdea"},    {{4}, 0, L"eabcd"},       {{1, 3}, 0, L"bdace"},
      {{1, 3}, 5, L"acebd"}, {{1, 3}, 2, L"abdce"}, {{0, 1, 2}, 1, L"abcde"}, {{}, 2, L"abcde"},
      {{2}, 2, L"abcde"},    {{2}, 99, L"abdec"},   {{-1, 40}, 0, L"abcde"},
  };
  for (const move_case& c : cases) {
    list_ptr list(zu_clr_palettes_create());
    Tzu_clr_palette* palette = add(list.get(), L"", {});
    for (int i = 0; i < 5; ++i) zu_clr_palette_add_color(palette, gray('a' + i));
    zu_clr_palette_move_clrs(palette, set_of(c.marked).get(), c.index);
    std::wstring colors;
    for (int level : levels(palette)) colors += static_cast<wchar_t>(level);
    EXPECT_EQ(colors, c.expected);
    zu_clr_palettes_del(list.get(), 0);
    for (const wchar_t* caption : {L"a", L"b", L"c", L"d", L"e"}) add(list.get(), caption, {});
    zu_clr_palettes_move_palettes(list.get(), set_of(c.marked).get(), c.index);
    EXPECT_EQ(captions(list.get()), c.expected);
  }
}

TEST(palette, gives_sets_takes_and_turns_its_colours_round) {
  list_ptr list(zu_clr_palettes_create());
  Tzu_clr_palette* palette = add(list.get(), L"", {1, 2, 3});
  zu_clr_palette_set_color(palette, 1, {9, 8, 7, 6});
  EXPECT_EQ(zu_clr_palette_get_color(palette, 1).a, 6);
  zu_clr_palette_set_color(palette, 3, gray(50));
  EXPECT_EQ(levels(palette), (std::vector{1, 9, 3}));
  zu_clr_palette_invert(palette);
  EXPECT_EQ(levels(palette), (std::vector{3, 9, 1}));
  zu_clr_palette_del_color(palette, 0);
  zu_clr_palette_del_color(palette, 2);
  EXPECT_EQ(levels(palette), (std::vector{9, 1}));
  EXPECT_EQ(zu_clr_palette_get_color(palette, 2).a, 0);
}

TEST(palette, takes_the_colours_of_a_numbered_array) {
  list_ptr list(zu_clr_palettes_create());
  Tzu_clr_palette* palette = add(list.get(), L"kept", {1});
  EXPECT_FALSE(zu_clr_arrays_init_palette(28, palette));
  EXPECT_EQ(levels(palette), std::vector{1});
  ASSERT_TRUE(zu_clr_arrays_init_palette(5, palette));
  EXPECT_EQ(levels(palette), (std::vector{0, 255, 255}));
  EXPECT_EQ(captions(list.get()), L"kept");
}

TEST(palette, is_spread_with_each_of_its_colours_in_its_place) {
  list_ptr list(zu_clr_palettes_create());
  // The first two look much nearer to one another than the last two.
  Tzu_clr_palette* palette = add(list.get(), L"", {10, 20, 250});
  Tzu_color colors[5] = {{0, 0, 0, 1}, {0, 0, 0, 2}, {0, 0, 0, 3}, {0, 0, 0, 4}, {0, 0, 0, 5}};
  zu_clr_arrays_generate_palette_ex(palette, 5, colors, 0);
  EXPECT_EQ(colors[0].r, 10);
  EXPECT_EQ(colors[2].r, 20);
  EXPECT_EQ(colors[4].r, 250);
  EXPECT_GT(colors[3].r, 90);
  EXPECT_LT(colors[3].r, 135);
  EXPECT_EQ(colors[3].r, colors[3].b);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(colors[i].a, i + 1);
  zu_clr_arrays_generate_palette_ex(palette, 5, colors, 1);
  EXPECT_EQ(colors[2].r, 250);
  EXPECT_EQ(colors[3].r, 10);
  EXPECT_EQ(colors[3].a, 4);
}

TEST(palette, without_colours_changes_nothing) {
  list_ptr list(zu_clr_palettes_create());
  Tzu_color color = gray(3);
  zu_clr_arrays_generate_palette_ex(add(list.get(), L"", {}), 1, &color, 0);
  zu_clr_arrays_generate_palette_ex(nullptr, 1, &color, 1);
  EXPECT_EQ(color.r, 3);
}

TEST(palettes, that_are_null_are_left_alone) {
  zu_clr_palettes_destroy(nullptr);
  zu_clr_palettes_assign(nullptr, nullptr);
  zu_clr_palettes_del(nullptr, 0);
  EXPECT_EQ(zu_clr_palettes_add(nullptr), nullptr);
  EXPECT_EQ(zu_clr_palettes_get_size(nullptr), 0U);
  zu_clr_palette_add_color(nullptr, {});
  zu_clr_palette_invert(nullptr);
  EXPECT_FALSE(zu_clr_arrays_init_palette(5, nullptr));
}

}  // namespace
