#include <gtest/gtest.h>

#include <cstring>

#include "zu/platform/zuk_dib.h"

namespace {

TEST(dib, a_pixel_is_four_bytes_red_first_and_rows_follow_one_another) {
  Tzu_dib* dib = zu_dib_create();
  zu_dib_set_nxy(dib, 3, 2);
  ASSERT_NE(zu_dib_get_arr(dib), nullptr);
  EXPECT_EQ(zu_dib_get_nx(dib), 3u);
  EXPECT_EQ(zu_dib_get_ny(dib), 2u);
  zu_dib_set_rgba(dib, 2, 1, 1, 2, 3, 4);
  const unsigned char expected[4] = {1, 2, 3, 4};
  EXPECT_EQ(std::memcmp(zu_dib_get_arr(dib) + 5, expected, 4), 0);
  uint8_t r, g, b, a;
  zu_dib_get_rgba(dib, 2, 1, &r, &g, &b, &a);
  EXPECT_EQ(r, 1);
  EXPECT_EQ(g, 2);
  EXPECT_EQ(b, 3);
  EXPECT_EQ(a, 4);
  zu_dib_destroy(dib);
}

TEST(dib, a_size_that_cannot_be_had_leaves_no_pixels) {
  Tzu_dib* dib = zu_dib_create();
  EXPECT_EQ(zu_dib_get_arr(dib), nullptr);
  struct {
    uint64_t nx, ny;
  } rows[] = {{0, 5},
              {5, 0},
              {uint64_t{1} << 63, 2},
              {uint64_t{1} << 62, 1},
              {uint64_t{1} << 32, uint64_t{1} << 32},
              {~uint64_t{0}, ~uint64_t{0}}};
  for (const auto& row : rows) {
    zu_dib_set_nxy(dib, 4, 4);
    EXPECT_NE(zu_dib_get_arr(dib), nullptr);
    zu_dib_set_nxy(dib, row.nx, row.ny);
    EXPECT_EQ(zu_dib_get_arr(dib), nullptr) << row.nx << " " << row.ny;
  }
  zu_dib_destroy(dib);
}

TEST(dib, counts_those_with_pixels) {
  uint64_t live = zu_dib_get_live_count(), made = zu_dib_get_made_count();
  Tzu_dib *a = zu_dib_create(), *b = zu_dib_create();
  EXPECT_EQ(zu_dib_get_live_count(), live);
  zu_dib_set_nxy(a, 2, 2);
  zu_dib_set_nxy(b, 2, 2);
  zu_dib_set_nxy(a, 3, 3);
  EXPECT_EQ(zu_dib_get_live_count(), live + 2);
  EXPECT_EQ(zu_dib_get_made_count(), made + 3);
  zu_dib_destroy(a);
  zu_dib_destroy(b);
  zu_dib_destroy(nullptr);
  EXPECT_EQ(zu_dib_get_live_count(), live);
}

}  // namespace
