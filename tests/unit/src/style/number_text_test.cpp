#include "src/style/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using zu::style::parse_number;

TEST(number_text, is_taken_where_the_whole_text_is_a_number) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const struct {
    const wchar_t* text;
    double value;
  } cases[] = {{L"0", 0},
               {L"12", 12},
               {L"-7", -7},
               {L"+7", 7},
               {L"1.5", 1.5},
               {L"1,5", 1.5},
               {L"1,5e3", 1500},
               {L"1.5E-1", 0.15},
               {L".5", 0.5},
               {L",5", 0.5},
               {L"5.", 5},
               {L"5,", 5},
               {L"  12", 12},
               {L"\t12", 12},
               {L"0x10", 16},
               {L"-0X1p4", -16},
               {L"0x.8", 0.5},
               {L"inf", infinite},
               {L"-Infinity", -infinite},
               {L"1e308", 1e308},
               {L"0e999", 0},
               {L"0.1", 0.1},
               {L"123456789.123456789", 123456789.123456789}};
  for (const auto& c : cases) {
    auto value = parse_number(c.text);
    ASSERT_TRUE(value) << testing::PrintToString(c.text);
    EXPECT_EQ(*value, c.value) << testing::PrintToString(c.text);
  }
  EXPECT_TRUE(std::signbit(*parse_number(L"-0")));
  for (const wchar_t* text : {L"nan", L"-NaN", L"nan(12_a)"}) {
    ASSERT_TRUE(parse_number(text));
    EXPECT_TRUE(std::isnan(*parse_number(text)));
  }
}

TEST(number_text, is_refused_otherwise) {
  const wchar_t* texts[] = {L"",      L" ",     L"abc",      L"1 2",   L"1. 5",   L"12 ",
                            L"1,5,2", L"1.5,2", L"1,5.2",    L"1e",    L"1e+",    L"e5",
                            L".",     L",",     L"-",        L"+-5",   L"--5",    L"- 5",
                            L"0x",    L"0xg",   L"0x-5",     L"1e999", L"-1e999", L"1e-999",
                            L"12m",   L"nan(",  L"nan(-)",   L"infin", L"١٢",     L"1\u00a0000",
                            L"1'000", L"1_000", L"0x1p99999"};
  for (const wchar_t* text : texts)
    EXPECT_FALSE(parse_number(text)) << testing::PrintToString(text);
  EXPECT_FALSE(parse_number(std::wstring_view(L"1\0002", 3)));
}

}  // namespace
