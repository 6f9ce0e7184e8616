#include "src/bundle/strings.h"

#include <gtest/gtest.h>

namespace {

using namespace zu;

TEST(stdwstring_visitor, replaces_the_text_on_each_call) {
  std::wstring text;
  stdwstring_visitor visitor(text);
  string_visitor handle = handle_of<string_visitor_impl>(visitor);
  call<&string_visitor_impl::visit>(handle, L"one");
  call<&string_visitor_impl::visit>(handle, L"two");
  EXPECT_EQ(text, L"two");
}

TEST(stdwstring_list_visitor, keeps_all_and_skips_null) {
  std::vector<std::wstring> texts;
  stdwstring_list_visitor visitor(texts);
  string_visitor handle = handle_of<string_visitor_impl>(visitor);
  for (const wchar_t* text : {L"b", static_cast<const wchar_t*>(nullptr), L"a", L"b"})
    call<&string_visitor_impl::visit>(handle, text);
  EXPECT_EQ(texts, (std::vector<std::wstring>{L"b", L"a", L"b"}));
}

TEST(stdwstring_set_visitor, keeps_each_once_and_skips_null) {
  std::set<std::wstring> texts;
  stdwstring_set_visitor visitor(texts);
  for (const wchar_t* text : {L"b", static_cast<const wchar_t*>(nullptr), L"a", L"b"})
    visitor.visit(text);
  EXPECT_EQ(texts, (std::set<std::wstring>{L"a", L"b"}));
}

TEST(std_wstring_adapter, takes_wide_and_narrow_text_and_null_empties_it) {
  std::wstring text = L"before";
  Tzu_std_wstring_adapter adapter(text);
  zu_string_adp_feed(adapter.adapter, L"широкий");
  EXPECT_EQ(text, L"широкий");
  zu_string_adp_feed_narrow(adapter.adapter, "\xd1\x83\xd0\xb7");
  EXPECT_EQ(text, L"уз");
  adapter.take(static_cast<const wchar_t*>(nullptr));
  EXPECT_EQ(text, L"");
  text = L"again";
  adapter.take(static_cast<const char*>(nullptr));
  EXPECT_EQ(text, L"");
  zu_string_adp_destroy(adapter.adapter);
}

TEST(string_adp_visitor, passes_texts_on_to_the_adapter) {
  std::wstring text = text_of([](Tzu_string_adp* adapter) {
    string_adp_visitor visitor(adapter);
    call<&string_visitor_impl::visit>(handle_of<string_visitor_impl>(visitor), L"through");
  });
  EXPECT_EQ(text, L"through");
}

TEST(visitor_string_adapter, converts_narrow_text_with_its_encoding_and_takes_null_as_empty) {
  std::vector<std::wstring> texts;
  stdwstring_list_visitor visitor(texts);
  zu::detail::visitor_string_adapter<string_visitor> adapter(
      handle_of<string_visitor_impl>(visitor), 8);
  zu_string_adp_feed(adapter.adapter, L"wide");
  zu_string_adp_feed_narrow(adapter.adapter, "\xcf\xf0\xe8");
  adapter.take(static_cast<const char*>(nullptr));
  EXPECT_EQ(texts, (std::vector<std::wstring>{L"wide", L"При", L""}));
  zu_string_adp_destroy(adapter.adapter);
}

TEST(visitor_string_adapter, does_nothing_without_a_visitor) {
  zu::detail::visitor_string_adapter<string_visitor> adapter{string_visitor()};
  adapter.take(L"wide");
  adapter.take("narrow");
  zu_string_adp_destroy(adapter.adapter);
}

TEST(encoding_table, converts_by_the_code_page_of_the_row) {
  struct {
    int row;
    const char* name;
    const char* second_name;
    const char* narrow;
    const wchar_t* wide;
  } const cases[] = {
      {0, "UTF-8", "UTF-8", "\xd0\x96", L"Ж"},      {5, "UTF-32LE", "UTF-32BE", "a", L"a"},
      {6, "UTF-32BE", "UTF-32LE", "a", L"a"},       {7, "CP1250", "Windows-1250", "\xa5", L"Ą"},
      {8, "CP1251", "Windows-1251", "\xc6", L"Ж"},  {9, "CP1252", "Windows-1252", "\xe9", L"é"},
      {10, "CP1253", "Windows-1253", "\xe1", L"α"}, {11, "CP1254", "Windows-1254", "\xdd", L"İ"},
      {12, "CP1255", "Windows-1255", "\xe0", L"א"}, {13, "CP1256", "Windows-1256", "\xc8", L"ب"},
      {14, "CP1257", "Windows-1257", "\xc0", L"Ą"}, {15, "CP1258", "Windows-1258", "\xfe", L"₫"},
      {16, "CP866", "OEM 866", "\x86", L"Ж"},       {17, "ASCII", "US-ASCII", "a", L"a"},
      {18, "SYSTEM", "ANSI", "\xd0\x96", L"Ж"},
  };
  for (const auto& c : cases) {
    EXPECT_STREQ(encoding_at(c.row)->name, c.name);
    EXPECT_STREQ(encoding_at(c.row)->second_name, c.second_name);
    EXPECT_EQ(wide_from(c.narrow, c.row), c.wide) << c.name;
  }
  EXPECT_EQ(encoding_at(19), nullptr);
  EXPECT_EQ(encoding_at(-1), nullptr);
  EXPECT_EQ(wide_from("a", 19), L"");
}

}  // namespace
