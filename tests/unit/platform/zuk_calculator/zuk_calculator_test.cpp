#include "zu/platform/zuk_calculator.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/zuk_basic/owned.h"
#include "tests/unit/platform/taken_text.h"

namespace {

using filter_ptr = zu::platform::owned<zu_calc_filter_destroy>;

filter_ptr new_filter() { return filter_ptr(zu_calc_filter_create()); }
std::wstring stored(const filter_ptr& filter) {
  return tests::text_of([&](Tzu_string_adp* a) { zu_calc_filter_to_str(filter.get(), a); });
}
std::wstring readable(const filter_ptr& filter) {
  return tests::text_of([&](Tzu_string_adp* a) { zu_calc_filter_pretty_print(filter.get(), a); });
}

TEST(calc_filter, a_range_is_two_conditions_that_hold_together) {
  filter_ptr filter = new_filter();
  zu_calc_filter_add(filter.get(), 1, L"z", zu_calc_greater, L"10", zu_calc_number, true);
  zu_calc_filter_add(filter.get(), 1, L"z", zu_calc_less_equal, L"20", zu_calc_number, true);
  EXPECT_EQ(zu_calc_filter_get_size(filter.get()), 2U);
  EXPECT_EQ(readable(filter), L"z > 10 and z <= 20");
  EXPECT_EQ(stored(filter), L"and \"z\" greater number \"10\"; and \"z\" less_equal number \"20\"");
}

TEST(calc_filter, every_comparison_has_its_sign) {
  const wchar_t* expected[] = {L"z = 1", L"z != 1", L"z < 1", L"z <= 1", L"z > 1", L"z >= 1"};
  for (std::int32_t comparison = 0; comparison < 6; ++comparison) {
    filter_ptr filter = new_filter();
    zu_calc_filter_add(filter.get(), 1, L"z", comparison, L"1", zu_calc_number, true);
    EXPECT_EQ(readable(filter), expected[comparison]);
    filter_ptr again = new_filter();
    EXPECT_TRUE(zu_calc_filter_from_str(again.get(), stored(filter).c_str()));
    EXPECT_EQ(readable(again), expected[comparison]);
  }
}

TEST(calc_filter, texts_stand_in_quotes_and_what_is_switched_off_is_not_shown) {
  filter_ptr filter = new_filter();
  zu_calc_filter_add(filter.get(), 1, L"rock", zu_calc_equal, L"tuff", zu_calc_text, true);
  zu_calc_filter_add(filter.get(), 1, L"age", zu_calc_less, L"5", zu_calc_number, false);
  zu_calc_filter_add(filter.get(), 0, L"rock", zu_calc_equal, L"lava", zu_calc_text, true);
  EXPECT_EQ(readable(filter), L"rock = \"tuff\" or rock = \"lava\"");
}

TEST(calc_filter, parentheses_hold_together_what_comes_first) {
  filter_ptr filter = new_filter();
  const std::int32_t joins[] = {1, 0, 1, 0};
  for (std::int32_t join : joins)
    zu_calc_filter_add(filter.get(), join, L"z", zu_calc_equal, L"1", zu_calc_number, true);
  EXPECT_EQ(readable(filter), L"(z = 1 or z = 1) and z = 1 or z = 1");
}

TEST(calc_filter, the_stored_text_gives_the_same_filter_whatever_its_names_and_texts) {
  const wchar_t* hard[] = {L"",      L"\"",      L"\\",          L"\\\"; and \"",
                           L"a; b",  L" ",       L"Высота, м",   L"line\nnext\ttab\x7f",
                           L"\\u1;", L"\x1\x1f", L"<z & \"y\">", L"\U0001f30b and or off number"};
  for (const wchar_t* field : hard)
    for (const wchar_t* text : hard) {
      filter_ptr filter = new_filter();
      zu_calc_filter_add(filter.get(), 1, field, zu_calc_not_equal, text, zu_calc_text, false);
      zu_calc_filter_add(filter.get(), 0, text, zu_calc_less, field, zu_calc_number, true);
      filter_ptr again = new_filter();
      ASSERT_TRUE(zu_calc_filter_from_str(again.get(), stored(filter).c_str()));
      EXPECT_EQ(zu_calc_filter_get_size(again.get()), 2U);
      EXPECT_EQ(stored(again), stored(filter));
      EXPECT_EQ(readable(again), std::wstring(text) + L" < " + field);
      for (wchar_t letter : stored(filter)) EXPECT_GE(letter, L' ');
    }
}

TEST(calc_filter, no_conditions_are_no_text) {
  filter_ptr filter = new_filter();
  EXPECT_EQ(stored(filter), L"");
  EXPECT_EQ(readable(filter), L"");
  zu_calc_filter_add(filter.get(), 1, L"z", zu_calc_equal, L"1", zu_calc_number, true);
  EXPECT_TRUE(zu_calc_filter_from_str(filter.get(), L""));
  EXPECT_EQ(zu_calc_filter_get_size(filter.get()), 0U);
}

TEST(calc_filter, a_text_of_another_form_leaves_it_as_it_was) {
  const wchar_t* foreign[] = {L"z > 10",
                              L"12.5",
                              L"and",
                              L"and ",
                              L"and \"z\"",
                              L"and \"z\" equal",
                              L"and \"z\" equal number",
                              L"and \"z\" equal number 10",
                              L"and \"z\" equal number \"10",
                              L"and \"z\" like number \"10\"",
                              L"and \"z\" equal date \"10\"",
                              L"nor \"z\" equal number \"10\"",
                              L"off off and \"z\" equal number \"10\"",
                              L"and \"z\" equal number \"10\"; ",
                              L"and \"z\" equal number \"10\"x",
                              L" and \"z\" equal number \"10\"",
                              L"and \"z\\\" equal number \"10\"",
                              L"and \"z\" equal number \"\\u0;\"",
                              L"and \"z\" equal number \"\\u41;\"",
                              L"and \"z\" equal number \"\\ux;\"",
                              L"and \"z\" equal number \"\\u;\"",
                              L"and \"z\" equal number \"a\nb\""};
  filter_ptr filter = new_filter();
  zu_calc_filter_add(filter.get(), 1, L"z", zu_calc_equal, L"1", zu_calc_number, true);
  for (const wchar_t* text : foreign) {
    EXPECT_FALSE(zu_calc_filter_from_str(filter.get(), text));
    EXPECT_EQ(readable(filter), L"z = 1");
  }
}

TEST(calc_filter, a_comparison_that_there_is_not_adds_nothing) {
  filter_ptr filter = new_filter();
  zu_calc_filter_add(filter.get(), 1, L"z", 6, L"1", zu_calc_number, true);
  zu_calc_filter_add(filter.get(), 1, L"z", -1, L"1", zu_calc_number, true);
  zu_calc_filter_add(filter.get(), 1, L"z", zu_calc_equal, L"1", 2, true);
  EXPECT_EQ(zu_calc_filter_get_size(filter.get()), 0U);
}

TEST(calc_filter, clears_and_stands_null) {
  filter_ptr filter = new_filter();
  zu_calc_filter_add(filter.get(), 1, nullptr, zu_calc_equal, nullptr, zu_calc_text, true);
  EXPECT_EQ(readable(filter), L" = \"\"");
  zu_calc_filter_clear(filter.get());
  EXPECT_EQ(zu_calc_filter_get_size(filter.get()), 0U);
  zu_calc_filter_clear(nullptr);
  zu_calc_filter_add(nullptr, 1, L"z", zu_calc_equal, L"1", zu_calc_text, true);
  EXPECT_EQ(zu_calc_filter_get_size(nullptr), 0U);
  EXPECT_FALSE(zu_calc_filter_from_str(nullptr, L""));
}

}  // namespace
