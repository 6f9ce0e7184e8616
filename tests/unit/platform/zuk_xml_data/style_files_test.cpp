#include <gtest/gtest.h>

#include <filesystem>

#include "tests/unit/platform/file_size_limit.h"
#include "tests/unit/platform/own_folder.h"
#include "tests/unit/platform/zuk_xml_data/made_styles.h"

namespace {

namespace fs = std::filesystem;
using namespace tests;

// What the kinds differ in.
bool save(Tzu_xml_save_style* x, const wchar_t* p, const Tzu_pnt_style& s) {
  return zu_xml_save_style_save_style_pnt_file(x, p, &s);
}
bool save(Tzu_xml_save_style* x, const wchar_t* p, const Tzu_pln_style& s) {
  return zu_xml_save_style_save_style_pln_file(x, p, &s);
}
bool save(Tzu_xml_save_style* x, const wchar_t* p, const Tzu_pgn_style& s) {
  return zu_xml_save_style_save_style_pgn_file(x, p, &s);
}
bool load(Tzu_xml_save_style* x, const wchar_t* p, Tzu_pnt_style& s) {
  return zu_xml_save_style_load_style_pnt_file(x, p, &s);
}
bool load(Tzu_xml_save_style* x, const wchar_t* p, Tzu_pln_style& s) {
  return zu_xml_save_style_load_style_pln_file(x, p, &s);
}
bool load(Tzu_xml_save_style* x, const wchar_t* p, Tzu_pgn_style& s) {
  return zu_xml_save_style_load_style_pgn_file(x, p, &s);
}
std::wstring text(const Tzu_pnt_style& s) {
  return text_of([&](Tzu_string_adp* a) { zu_xml_save_style_save_style_pnt_str(nullptr, &s, a); });
}
std::wstring text(const Tzu_pln_style& s) {
  return text_of([&](Tzu_string_adp* a) { zu_xml_save_style_save_style_pln_str(nullptr, &s, a); });
}
std::wstring text(const Tzu_pgn_style& s) {
  return text_of([&](Tzu_string_adp* a) { zu_xml_save_style_save_style_pgn_str(nullptr, &s, a); });
}
bool take(const std::wstring& text, Tzu_pnt_style& s) {
  return zu_xml_save_style_load_style_pnt_str(nullptr, text.c_str(), &s);
}
bool take(const std::wstring& text, Tzu_pln_style& s) {
  return zu_xml_save_style_load_style_pln_str(nullptr, text.c_str(), &s);
}
bool take(const std::wstring& text, Tzu_pgn_style& s) {
  return zu_xml_save_style_load_style_pgn_str(nullptr, text.c_str(), &s);
}

struct style_files : testing::Test {
  ~style_files() override { zu_xml_save_style_destroy(xml); }
  std::wstring reason() const {
    return text_of([&](Tzu_string_adp* a) { zu_xml_save_style_get_reason_w(xml, a); });
  }
  /// Through a file and through a text, over another style.
  template <class style> void expect_back(const style& saved, style over) {
    style over_too = over;
    ASSERT_TRUE(save(xml, path.c_str(), saved));
    ASSERT_TRUE(load(xml, path.c_str(), over));
    ASSERT_EQ(facts(over), facts(saved));
    ASSERT_TRUE(take(text(saved), over_too));
    ASSERT_EQ(facts(over_too), facts(saved));
  }
  own_folder folder{"style_files"};
  std::wstring path = folder.at("\u0441\u0442\u0438\u043b\u044c.xml");
  Tzu_xml_save_style* xml = zu_xml_save_style_create();
};

TEST_F(style_files, any_style_comes_back_from_files_and_texts) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    style_maker make(seed);
    SCOPED_TRACE(seed);
    expect_back(make.point(), make.point());
    expect_back(make.line(), make.line());
    expect_back(make.polygon(), make.polygon());
  }
}

TEST_F(style_files, a_style_of_another_kind_is_refused_and_the_style_stays) {
  style_maker make(1);
  Tzu_pnt_style point = make.point();
  Tzu_pln_style line = make.line();
  std::wstring before = text(line);
  ASSERT_TRUE(save(xml, path.c_str(), point));
  EXPECT_FALSE(load(xml, path.c_str(), line));
  EXPECT_EQ(reason(), L"holds no style of that kind");
  EXPECT_FALSE(take(text(point), line));
  EXPECT_FALSE(take(L"", line));
  EXPECT_FALSE(take(L"a text of somebody else", line));
  EXPECT_FALSE(take(L"<line_style", line));
  EXPECT_EQ(text(line), before);
}

TEST_F(style_files, a_failure_has_its_reason_and_success_has_none) {
  Tzu_pnt_style point;
  EXPECT_FALSE(load(xml, folder.at("none").c_str(), point));
  EXPECT_EQ(reason(), L"no such file");
  EXPECT_TRUE(save(xml, path.c_str(), point));
  EXPECT_EQ(reason(), L"");
  EXPECT_FALSE(save(xml, folder.at("no/such").c_str(), point));
  EXPECT_EQ(reason(), L"no such folder");
}

TEST_F(style_files, on_a_full_disk_the_old_file_stays) {
  Tzu_pnt_style point, loaded;
  ASSERT_TRUE(save(xml, path.c_str(), point));
  point.point.font.family.assign(10000, L'a');
  {
    file_size_limit limit(4096);
    EXPECT_FALSE(save(xml, path.c_str(), point));
  }
  EXPECT_EQ(reason(), L"no space left on the device");
  EXPECT_TRUE(load(xml, path.c_str(), loaded));
  EXPECT_EQ(loaded.point.font.family, L"DejaVu Sans");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST_F(style_files, nothing_given_is_no_success) {
  Tzu_pnt_style point;
  EXPECT_FALSE(zu_xml_save_style_save_style_pnt_file(xml, path.c_str(), nullptr));
  EXPECT_FALSE(zu_xml_save_style_save_style_pnt_file(xml, nullptr, &point));
  EXPECT_FALSE(zu_xml_save_style_load_style_pnt_file(xml, nullptr, &point));
  EXPECT_FALSE(zu_xml_save_style_load_style_pnt_str(xml, nullptr, &point));
  EXPECT_FALSE(zu_xml_save_style_load_style_pnt_str(xml, L"<point_style/>", nullptr));
  EXPECT_TRUE(zu_xml_save_style_load_style_pnt_str(xml, L"<point_style/>", &point));
  EXPECT_FALSE(zu_xml_save_style_save_style_pnt_str(xml, nullptr, nullptr));
}

}  // namespace
