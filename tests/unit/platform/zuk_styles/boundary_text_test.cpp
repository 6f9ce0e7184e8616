#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_styles.h"

namespace {

TEST(boundary_text, has_the_decimals_of_its_digits) {
  const struct {
    std::int32_t digits;
    double value;
    const wchar_t* text;
  } cases[] = {
      {-2, 12.375, L"12.38"},
      {-2, 12, L"12.00"},
      {-1, -0.04, L"0.0"},
      {0, 1234567.4, L"1234567"},
      {2, 1300, L"1300"},
      {10, 0, L"0"},
      {0, -0.2, L"0"},
      {zu_no_rounding, 0.1, L"0.1"},
      {zu_no_rounding, 1e300, L"1e+300"},
      {zu_no_rounding, -2.5, L"-2.5"},
      {-1000, 0.5, L"0.500000000000000000000000000000"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(tests::text_of(
                  [&](Tzu_string_adp* a) { zu_round_digits_format_number(c.digits, c.value, a); }),
              c.text);
}

TEST(boundary_text, of_any_number_fits) {
  auto length = [](std::int32_t digits, double value) {
    return tests::text_of(
               [&](Tzu_string_adp* a) { zu_round_digits_format_number(digits, value, a); })
        .size();
  };
  const double most = std::numeric_limits<double>::max();
  EXPECT_EQ(length(-29, -most), 1u + 309u + 1u + 29u);
  EXPECT_EQ(length(-1000, -most), 1u + 309u + 1u + 30u);
  EXPECT_GT(length(0, std::nan("")), 0u);
  EXPECT_GT(length(-2, INFINITY), 0u);
}

}  // namespace
