#include <gtest/gtest.h>

#include "platform/zuk_basic/owned.h"
#include "tests/unit/platform/file_size_limit.h"
#include "tests/unit/platform/own_folder.h"
#include "tests/unit/platform/zuk_xml_data/made_styles.h"

namespace {

using namespace tests;
using library_ptr = zu::platform::owned<zu_style_lib_destroy>;

struct library_files : testing::Test {
  ~library_files() override { zu_xml_save_2d_destroy(xml); }
  std::wstring reason() const {
    return text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml, a); });
  }
  bool save(const library_ptr& library) {
    return zu_xml_data_save_style_lib(xml, path.c_str(), library.get());
  }
  bool load(const library_ptr& library) {
    return zu_xml_data_load_style_lib(xml, path.c_str(), library.get());
  }
  bool load(const std::string& text, const library_ptr& library) {
    folder.write("a._ls", text);
    return load(library);
  }
  own_folder folder{"library_files"};
  std::wstring path = folder.at("a._ls");
  Tzu_xml_save_2d* xml = zu_xml_save_2d_create();
  library_ptr library{zu_style_lib_create()}, loaded{zu_style_lib_create()};
};

std::wstring caption(const library_ptr& library) {
  return text_of([&](Tzu_string_adp* a) { zu_style_lib_get_caption(library.get(), a); });
}
std::wstring caption(const library_ptr& library, std::int32_t index) {
  const Tzu_style_item* item =
      zu_style_item_find_by_index(zu_style_lib_get_root_item_ptr(library.get()), index);
  return text_of([&](Tzu_string_adp* a) { zu_style_item_get_caption(item, a); });
}

TEST_F(library_files, a_library_comes_back) {
  style_maker make(1);
  zu_style_lib_set_caption(library.get(), L"\u041f\u043e\u0447\u0432\u044b \r\n<&>");
  Tzu_style_item* root = zu_style_lib_get_root_item_ptr(library.get());
  Tzu_style_item* heading = zu_style_item_add(root, zu_style_no_index, L"Forest");
  zu_style_item_add(heading, 12, L"Pine");
  zu_style_item_add(heading, -3, L"Fir");
  Tzu_style_list* points = zu_style_lib_get_pnt_list_ptr(library.get());
  Tzu_style_list* lines = zu_style_lib_get_pln_list_ptr(library.get());
  Tzu_style_list* polygons = zu_style_lib_get_pgn_list_ptr(library.get());
  zu_style_list_insert(points, 0, 12);
  zu_style_list_insert(points, 1, 13);
  *zu_idx_pnt_style_get_pnt_style_ptr(zu_style_list_get_idx_style(points, 1)) = make.point();
  zu_idx_style_set_version(zu_style_list_get_idx_style(points, 1), 1);
  *zu_idx_pln_style_get_pln_style_ptr(zu_style_list_insert(lines, 0, 5)) = make.line();
  *zu_idx_pgn_style_get_pgn_style_ptr(zu_style_list_insert(polygons, 0, 12)) = make.polygon();
  ASSERT_TRUE(save(library)) << testing::PrintToString(reason());
  ASSERT_TRUE(load(loaded)) << testing::PrintToString(reason());

  EXPECT_EQ(caption(loaded), caption(library));
  EXPECT_EQ(caption(loaded, 12), L"Pine");
  EXPECT_EQ(caption(loaded, -3), L"Fir");
  Tzu_style_list* back = zu_style_lib_get_pnt_list_ptr(loaded.get());
  ASSERT_EQ(zu_style_list_get_size(back), 2u);
  EXPECT_EQ(zu_style_list_find_idx(back, 13), 1);
  Tzu_idx_style* entry = zu_style_list_get_idx_style(back, 1);
  EXPECT_EQ(zu_idx_style_get_version(entry), 1);
  EXPECT_EQ(facts(*zu_idx_pnt_style_get_pnt_style_ptr(entry)),
            facts(*zu_idx_pnt_style_get_pnt_style_ptr(zu_style_list_get_idx_style(points, 1))));
  entry = zu_style_list_get_idx_style(zu_style_lib_get_pln_list_ptr(loaded.get()), 0);
  EXPECT_EQ(facts(*zu_idx_pln_style_get_pln_style_ptr(entry)),
            facts(*zu_idx_pln_style_get_pln_style_ptr(zu_style_list_get_idx_style(lines, 0))));
  entry = zu_style_list_get_idx_style(zu_style_lib_get_pgn_list_ptr(loaded.get()), 0);
  EXPECT_EQ(facts(*zu_idx_pgn_style_get_pgn_style_ptr(entry)),
            facts(*zu_idx_pgn_style_get_pgn_style_ptr(zu_style_list_get_idx_style(polygons, 0))));
  // The tree keeps its shape: the root is no code, nor is a heading.
  zu_xml_data_save_style_lib_file(folder.at("b._ls").c_str(), loaded.get());
  auto content = [&](const char* name) {
    std::ifstream in(folder.path() / name);
    return std::string(std::istreambuf_iterator<char>(in), {});
  };
  EXPECT_EQ(content("b._ls"), content("a._ls"));
}

TEST_F(library_files, what_is_no_library_is_refused_and_the_library_stays) {
  zu_style_lib_set_caption(library.get(), L"mine");
  EXPECT_FALSE(load(library));
  EXPECT_EQ(reason(), L"no such file");
  struct {
    std::string text;
    const wchar_t* reason;
  } const cases[] = {{"", L"is empty"},
                     {"<style_library", L"is no XML"},
                     {"<range_scale/>", L"is no library of styles"},
                     {"<style_library version='2'/>", L"is of a newer version"}};
  for (const auto& c : cases) {
    EXPECT_FALSE(load(c.text, library)) << c.text;
    EXPECT_EQ(reason().find(c.reason), 0u) << testing::PrintToString(reason());
  }
  EXPECT_EQ(caption(library), L"mine");
  EXPECT_FALSE(zu_xml_data_load_style_lib_file(path.c_str(), nullptr));
  EXPECT_FALSE(zu_xml_data_save_style_lib_file(path.c_str(), nullptr));
}

TEST_F(library_files, too_many_entries_and_too_deep_trees_are_refused) {
  std::string items, styles, deep, closing;
  for (int i = 0; i < 100001; ++i) items += "<item/>", styles += "<style/>";
  EXPECT_FALSE(load("<style_library>" + items + "</style_library>", loaded));
  EXPECT_EQ(reason(), L"has too many entries");
  EXPECT_FALSE(load("<style_library><points>" + styles + "</points></style_library>", loaded));
  for (int i = 0; i < 70; ++i) deep += "<item>", closing += "</item>";
  EXPECT_FALSE(load("<style_library>" + deep + closing + "</style_library>", loaded));
  EXPECT_EQ(reason(), L"is nested too deeply");

  Tzu_style_item* item = zu_style_lib_get_root_item_ptr(library.get());
  for (int i = 0; i < 60; ++i) item = zu_style_item_add(item, i, L"");
  EXPECT_TRUE(save(library) && load(loaded));
  EXPECT_NE(zu_style_item_find_by_index(zu_style_lib_get_root_item_ptr(loaded.get()), 59), nullptr);
  zu_style_item_add(item, 60, L"");
  EXPECT_FALSE(save(library));
  EXPECT_EQ(reason(), L"is nested too deeply");
}

TEST_F(library_files, numbers_that_are_none_are_no_codes) {
  ASSERT_TRUE(
      load("<style_library><item index='9999999999' caption='a'/><item index='x'/>"
           "<points><style index='x' version='-4'/></points></style_library>",
           loaded));
  Tzu_style_list* points = zu_style_lib_get_pnt_list_ptr(loaded.get());
  ASSERT_EQ(zu_style_list_get_size(points), 1u);
  EXPECT_EQ(zu_idx_style_get_index(zu_style_list_get_idx_style(points, 0)), 0);
  EXPECT_EQ(zu_idx_style_get_version(zu_style_list_get_idx_style(points, 0)), 0);
  EXPECT_EQ(caption(loaded, 1410065407), L"");  // 9999999999 cut to 32 bits
}

TEST_F(library_files, on_a_full_disk_the_old_file_stays) {
  zu_style_lib_set_caption(library.get(), L"small");
  ASSERT_TRUE(save(library));
  zu_style_lib_set_caption(library.get(), std::wstring(10000, L'a').c_str());
  {
    file_size_limit limit(4096);
    EXPECT_FALSE(save(library));
  }
  EXPECT_EQ(reason(), L"no space left on the device");
  EXPECT_TRUE(load(loaded));
  EXPECT_EQ(caption(loaded), L"small");
}

}  // namespace
