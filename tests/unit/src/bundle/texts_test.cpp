#include "src/bundle/texts.h"

#include <gtest/gtest.h>

#include <set>

#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

namespace {

using zu::load_text;

constexpr std::int32_t russian = 0, english = 50000;

class texts : public testing::Test {
 protected:
  ~texts() override { zu_res_set_lng(before_); }

 private:
  std::int32_t before_ = zu_res_get_lng();
};

TEST_F(texts, of_this_module_come_in_the_language_in_force) {
  zu_res_set_lng(english);
  EXPECT_EQ(load_text(201), L"Grid Files");
  EXPECT_EQ(load_text(10174), L"Uniform 3D Grid ");
  zu_res_set_lng(russian);
  EXPECT_EQ(load_text(201), L"Сеточные файлы");
  EXPECT_EQ(load_text(22), L"Растр");
}

TEST_F(texts, of_header_words_have_one_language_and_their_spelling) {
  for (std::int32_t language : {russian, english}) {
    zu_res_set_lng(language);
    EXPECT_EQ(load_text(11240), L"Job identification number");
    EXPECT_EQ(load_text(11269), L"Number of extended textual headers");
    EXPECT_EQ(load_text(11458), L"Number o vertically summed traces");
    EXPECT_EQ(load_text(11524), L"Clossline Number");
  }
}

TEST_F(texts, an_id_of_zero_or_below_is_a_shared_text) {
  zu_res_set_lng(english);
  EXPECT_EQ(load_text(-5), L"Close");
  EXPECT_EQ(load_text(-662), L"Minimum");
  zu_res_set_lng(russian);
  EXPECT_EQ(load_text(-5), L"Закрыть");
  EXPECT_EQ(load_text(0), L"");
  EXPECT_EQ(load_text(-1), L"");
}

struct counting_visitor : zu::string_visitor_impl {
  int calls = 0;
  void visit(const wchar_t*) override { ++calls; }
};

TEST_F(texts, a_text_that_is_nowhere_gives_no_call) {
  counting_visitor visitor;
  zu::string_visitor receiver(zu::handle_of<zu::string_visitor_impl>(visitor));
  for (std::int32_t id : {0, 1, -300, 10440, 50000, 99999}) zu::get_text(id, receiver);
  for (std::int32_t id : {0, 1, -5, 300}) zu::get_text_of_basic(id, receiver);
  EXPECT_EQ(visitor.calls, 0);
  zu::get_text(300, zu::string_visitor());
  zu::get_text_of_basic(5, zu::string_visitor());
  zu::get_text_of_basic(5, receiver);
  EXPECT_EQ(visitor.calls, 1);
}

struct row {
  std::int32_t id;
  std::wstring base, english;
  bool has_english;
};
row row_of(std::int32_t id, const wchar_t* base, const wchar_t* english) {
  return {id, base, english != nullptr ? english : L"", english != nullptr};
}

const row bundle_rows[] = {
#define ZU_TEXT(id, base, english) row_of(id, base, english),
#include "resources/texts.def"
#undef ZU_TEXT
};
const row basic_rows[] = {
#define ZU_TEXT(id, base, english) row_of(id, base, english),
#include "platform/zuk_basic/texts.def"
#undef ZU_TEXT
};

// The conversions of a format text, such as "%d%ls".
std::wstring conversions(const std::wstring& text) {
  std::wstring found;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'%') continue;
    found += text[i + 1] == L'l' ? text.substr(i, 3) : text.substr(i, 2);
  }
  return found;
}

template <class table> void expect_sound(const table& rows, std::int32_t limit) {
  std::int32_t last = 0;
  for (const row& each : rows) {
    EXPECT_GT(each.id, last) << "ids rise";
    last = each.id;
    EXPECT_FALSE(each.base.empty()) << each.id;
    if (!each.has_english) continue;
    EXPECT_FALSE(each.english.empty()) << each.id;
    // A percent sign of a unit is no conversion.
    if (each.id != 30) {
      EXPECT_EQ(conversions(each.base), conversions(each.english)) << each.id;
    }
    for (wchar_t letter : each.english)
      EXPECT_FALSE(letter >= 0x400 && letter <= 0x4FF) << each.id << " has a Cyrillic letter";
  }
  EXPECT_LT(last, limit) << "a twin would be taken for a text of its own";
}

TEST(text_tables, ids_rise_and_both_languages_take_the_same_arguments) {
  expect_sound(bundle_rows, english);
  expect_sound(basic_rows, english);
}

TEST(text_tables, only_header_words_lack_a_twin) {
  for (const row& each : bundle_rows) {
    bool header_word =
        (each.id >= 11240 && each.id <= 11269) || (each.id >= 11450 && each.id <= 11527);
    EXPECT_EQ(each.has_english, !header_word) << each.id;
  }
  for (const row& each : basic_rows) EXPECT_TRUE(each.has_english) << each.id;
}

TEST_F(texts, every_row_is_found_under_its_id_in_both_languages) {
  for (std::int32_t language : {russian, english}) {
    zu_res_set_lng(language);
    bool twin = language == english;
    for (const row& each : bundle_rows)
      EXPECT_EQ(load_text(each.id), twin && each.has_english ? each.english : each.base);
    for (const row& each : basic_rows)
      EXPECT_EQ(load_text(-each.id), twin ? each.english : each.base);
  }
}

}  // namespace
