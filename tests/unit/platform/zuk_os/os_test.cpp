#include "zu/platform/zuk_os.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/unit/platform/taken_text.h"

namespace {

using tests::text_of;
using tests::texts_of;

TEST(compare_ignoring_case, follows_the_root_collation_at_secondary_strength) {
  struct {
    const wchar_t* a;
    const wchar_t* b;
    int sign;
  } const cases[] = {{L"Value", L"vALUE", 0}, {L"Поле", L"ПОЛЕ", 0}, {L"a", L"b", -1},
                     {L"b", L"A", 1},         {L"e", L"é", -1},      {L"É", L"é", 0},
                     {L"", L"a", -1},         {nullptr, L"", 0},     {L"ё", L"ж", -1},
                     {L"a1", L"a2", -1}};
  for (const auto& c : cases) {
    std::int32_t result = zu_os_compare_ignoring_case(c.a, c.b);
    EXPECT_EQ((result > 0) - (result < 0), c.sign) << (&c - cases);
  }
}

TEST(case_mapping, knows_letters_beyond_latin) {
  EXPECT_EQ(text_of([](Tzu_string_adp* t) { zu_os_lower(L"ПоЛе.GRD", t); }), L"поле.grd");
  EXPECT_EQ(text_of([](Tzu_string_adp* t) { zu_os_upper(L"straße й", t); }), L"STRASSE Й");
  EXPECT_EQ(text_of([](Tzu_string_adp* t) { zu_os_lower(L"\U00010400", t); }), L"\U00010428");
}

std::wstring converted(std::uint32_t page, const char* text, std::int64_t bytes = -1) {
  return text_of([&](Tzu_string_adp* t) { zu_os_multibyte_to_wide(page, text, bytes, t); });
}

TEST(multibyte_to_wide, takes_the_code_page_or_says_that_it_has_none) {
  EXPECT_EQ(converted(65001, "\xd0\x96\xf0\x9f\x8c\x8d"), L"Ж\U0001F30D");
  EXPECT_EQ(converted(0, "\xd0\x96"), L"Ж");
  EXPECT_EQ(converted(1251, "\xc6\xfe"), L"Жю");
  EXPECT_EQ(converted(866, "\x86"), L"Ж");
  EXPECT_EQ(converted(1252, "\x80"), L"€");
  EXPECT_EQ(converted(1251, "abc", 2), L"ab");
  EXPECT_EQ(converted(65001, ""), L"");
  EXPECT_EQ(converted(20127, "a\xe9"), L"a\xfffd");
  EXPECT_EQ(converted(65001, "a\xff")[1], L'\xfffd');
  EXPECT_TRUE(texts_of([](Tzu_string_adp* t) {
                EXPECT_FALSE(zu_os_multibyte_to_wide(932, "a", -1, t));
                EXPECT_FALSE(zu_os_multibyte_to_wide(1251, "a", std::int64_t{1} << 32, t));
              }).empty());
}

TEST(file_exists, is_true_of_files_and_folders) {
  std::string folder = testing::TempDir();
  std::ofstream(folder + "/существует.bin") << "x";
  std::wstring wide_folder(folder.begin(), folder.end());
  EXPECT_TRUE(zu_os_file_exists((wide_folder + L"/существует.bin").c_str()));
  EXPECT_TRUE(zu_os_file_exists(wide_folder.c_str()));
  EXPECT_FALSE(zu_os_file_exists((wide_folder + L"/нет.bin").c_str()));
  EXPECT_FALSE(zu_os_file_exists(L""));
  EXPECT_FALSE(zu_os_file_exists(nullptr));
}

TEST(user_place, is_the_same_path_under_the_users_data_folder) {
  std::string folder =
      std::filesystem::path(testing::TempDir() + "/zuk_os_data").lexically_normal();
  std::filesystem::remove_all(folder);
  const char* before = std::getenv("XDG_DATA_HOME");
  std::string kept = before != nullptr ? before : "";
  setenv("XDG_DATA_HOME", folder.c_str(), 1);
  auto place = [](const wchar_t* path, bool make) {
    return text_of([&](Tzu_string_adp* t) { zu_os_get_user_place_w(path, make, t); });
  };
  std::wstring wide_folder = std::filesystem::path(folder).wstring();
  EXPECT_EQ(place(L"/data/./x/../a.z._rg", false), wide_folder + L"/zugrid/beside/data/a.z._rg");
  EXPECT_EQ(place(L"/../../a", false), wide_folder + L"/zugrid/beside/a");
  EXPECT_FALSE(std::filesystem::exists(folder));
  place(L"/data/a.z._rg", true);
  EXPECT_TRUE(std::filesystem::is_directory(folder + "/zugrid/beside/data"));
  EXPECT_EQ(place(L"", true), L"");
  EXPECT_EQ(place(nullptr, true), L"");

  std::filesystem::remove_all(folder);
  std::ofstream(folder) << "no folder";
  EXPECT_EQ(place(L"/data/a", true), L"");
  std::filesystem::remove(folder);
  setenv("XDG_DATA_HOME", "no/absolute/path", 1);
  EXPECT_NE(place(L"/data/a", false).find(L".local/share/zugrid"), std::wstring::npos);
  if (before != nullptr)
    setenv("XDG_DATA_HOME", kept.c_str(), 1);
  else
    unsetenv("XDG_DATA_HOME");
}

TEST(language, can_be_chosen) {
  std::int32_t before = zu_res_get_lng();
  EXPECT_TRUE(before == 0 || before == 50000);
  zu_res_set_lng(0);
  EXPECT_EQ(zu_res_get_lng(), 0);
  zu_res_set_lng(before);
}

}  // namespace
