#include <gtest/gtest.h>

#include <cmath>

#include "zu/platform/zuk_basic.h"

namespace {

TEST(lists, give_back_what_was_added_in_order) {
  Tzu_dbls* numbers = zu_dbls_create();
  Tzu_bits* bits = zu_bits_create();
  for (int i = 0; i < 70; ++i) {
    EXPECT_TRUE(zu_dbls_add(numbers, i * 0.5));
    EXPECT_TRUE(zu_bits_add(bits, i % 3 == 0));
  }
  EXPECT_EQ(zu_dbls_get_size(numbers), 70u);
  EXPECT_EQ(zu_bits_get_size(bits), 70u);
  for (unsigned i = 0; i < 70; ++i) {
    EXPECT_EQ(zu_dbls_get(numbers, i), i * 0.5);
    EXPECT_EQ(zu_bits_get_bit(bits, i), i % 3 == 0);
  }
  zu_dbls_clear(numbers);
  zu_bits_clear(bits);
  EXPECT_EQ(zu_dbls_get_size(numbers) + zu_bits_get_size(bits), 0u);
  zu_dbls_destroy(numbers);
  zu_bits_destroy(bits);
}

TEST(lists, beyond_the_end_and_without_a_list_there_is_nothing) {
  Tzu_dbls* numbers = zu_dbls_create();
  EXPECT_TRUE(std::isnan(zu_dbls_get(numbers, 0)));
  zu_dbls_destroy(numbers);
  EXPECT_TRUE(std::isnan(zu_dbls_get(nullptr, 0)));
  EXPECT_FALSE(zu_bits_get_bit(nullptr, 0));
  EXPECT_FALSE(zu_dbls_add(nullptr, 1));
  EXPECT_FALSE(zu_bits_add(nullptr, true));
}

TEST(lists, whole_numbers_come_back_in_order) {
  Tzu_ints* list = zu_ints_create();
  for (std::int64_t n : {std::int64_t{3}, INT64_MIN, std::int64_t{-1}})
    EXPECT_TRUE(zu_ints_add(list, n));
  EXPECT_EQ(zu_ints_get_size(list), 3u);
  EXPECT_EQ(zu_ints_get(list, 1), INT64_MIN);
  EXPECT_EQ(zu_ints_get(list, 3), 0);
  EXPECT_EQ(zu_ints_get_size(nullptr), 0u);
  EXPECT_FALSE(zu_ints_add(nullptr, 1));
  zu_ints_destroy(list);
}

TEST(lists, a_set_holds_a_number_once) {
  Tzu_int_set* set = zu_int_set_create();
  for (std::int64_t n : {5, -2, 5}) EXPECT_TRUE(zu_int_set_add(set, n));
  EXPECT_EQ(zu_int_set_get_size(set), 2u);
  EXPECT_TRUE(zu_int_set_has(set, -2));
  EXPECT_FALSE(zu_int_set_has(set, 2));
  EXPECT_FALSE(zu_int_set_has(nullptr, 2));
  zu_int_set_destroy(set);
}

TEST(lists, texts_come_back_in_order) {
  Tzu_wstrings* list = zu_wstrings_create();
  EXPECT_TRUE(zu_wstrings_add(list, L"песок"));
  EXPECT_TRUE(zu_wstrings_add(list, nullptr));
  EXPECT_EQ(zu_wstrings_get_size(list), 2u);
  EXPECT_STREQ(zu_wstrings_get_str(list, 0), L"песок");
  EXPECT_STREQ(zu_wstrings_get_str(list, 1), L"");
  EXPECT_EQ(zu_wstrings_get_str(list, 2), nullptr);
  zu_wstrings_destroy(list);
}

TEST(colors, a_word_gives_back_its_colour) {
  Tzu_color color = zu_clr_init_int(zu_clr_init_rgba(1, 2, 3, 4));
  EXPECT_EQ(color.r, 1);
  EXPECT_EQ(color.g, 2);
  EXPECT_EQ(color.b, 3);
  EXPECT_EQ(color.a, 4);
}

}  // namespace
