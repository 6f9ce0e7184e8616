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

}  // namespace
