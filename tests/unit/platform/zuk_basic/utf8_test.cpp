#include "platform/zuk_basic/utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(utf8, characters_of_one_to_four_bytes_go_there_and_back) {
  struct {
    std::wstring wide;
    std::string bytes;
  } const rows[] = {{L"", ""},
                    {L"A", "A"},
                    {L"\x0416", "\xD0\x96"},
                    {L"\x20AC", "\xE2\x82\xAC"},
                    {L"\U0001F5FA", "\xF0\x9F\x97\xBA"}};
  for (const auto& row : rows) {
    EXPECT_EQ(zu::platform::to_utf8(row.wide), row.bytes);
    EXPECT_TRUE(zu::platform::from_utf8(row.bytes) == row.wide) << row.bytes;
  }
}

TEST(utf8, what_is_no_character_becomes_the_replacement) {
  EXPECT_EQ(zu::platform::to_utf8(std::wstring(1, wchar_t(0xD800))), "\xEF\xBF\xBD");
  EXPECT_EQ(zu::platform::to_utf8(std::wstring(1, wchar_t(0x110000))), "\xEF\xBF\xBD");
  EXPECT_TRUE(zu::platform::from_utf8("a\xFFz") == L"a\xFFFDz");
  EXPECT_TRUE(zu::platform::from_utf8("\xD0") == L"\xFFFD");            // cut short
  EXPECT_TRUE(zu::platform::from_utf8("\xC0\x80") == L"\xFFFD\xFFFD");  // longer than need be
  EXPECT_TRUE(zu::platform::from_utf8("\xED\xA0\x80") == L"\xFFFD\xFFFD\xFFFD");  // a surrogate
}

TEST(utf8, a_missing_text_counts_as_empty) {
  const wchar_t* missing = nullptr;
  EXPECT_EQ(zu::platform::to_utf8(missing), "");
}

}  // namespace
