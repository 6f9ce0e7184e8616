// Each row once, however many cores there are.

#include "src/render/row_bands.h"

#include <gtest/gtest.h>

#include <atomic>
#include <vector>

namespace {

TEST(in_row_bands, each_row_is_in_one_band) {
  for (std::uint64_t rows : {0, 1, 2, 3, 255, 1001})
    for (std::uint64_t row_size : {0, 1, 300, 1 << 20}) {
      std::vector<std::atomic<int>> seen(rows);
      zu::in_row_bands(rows, row_size, [&](std::uint64_t from, std::uint64_t to) {
        ASSERT_LE(to, rows);
        for (std::uint64_t row = from; row < to; ++row) ++seen[row];
      });
      for (const std::atomic<int>& times : seen) EXPECT_EQ(times, 1);
    }
}

TEST(in_row_bands, few_pixels_are_one_band) {
  std::atomic<int> bands = 0;
  zu::in_row_bands(100, 100, [&](std::uint64_t, std::uint64_t) { ++bands; });
  EXPECT_EQ(bands, 1);
}

}  // namespace
