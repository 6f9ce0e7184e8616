#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/unit/platform/zuk_xml_data/made_styles.h"

namespace {

namespace fs = std::filesystem;
using namespace tests;

constexpr char colors[] = "clr_mngr_style";
constexpr char lines[] = "pln_mngr_style";

struct scale_files : testing::Test {
  fs::path folder = fs::path(testing::TempDir()) / ("scale_files" + std::to_string(getpid()));
  Tzu_xml_save_2d* xml = zu_xml_save_2d_create();
  scale_files() { fs::create_directories(folder); }
  ~scale_files() override {
    zu_xml_save_2d_destroy(xml);
    fs::remove_all(folder);
  }
  std::wstring path(const std::string& name) const {
    std::string narrow = (folder / name).string();
    return {narrow.begin(), narrow.end()};
  }
  std::wstring reason() const {
    return text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml, a); });
  }
  static std::wstring text(const Tzu_stl_mngr* manager) {
    return written_by([&](Tzu_xnode* node) {
      zu_xml_save_style_save_mngr_style(nullptr, node, L"styles",
                                        zu_stl_mngr_get_style_type(manager), manager);
    });
  }
};

TEST_F(scale_files, scales_come_back_under_the_key_of_their_manager) {
  for (unsigned seed = 0; seed < 10; ++seed) {
    style_maker make(seed);
    for (const char* key : {colors, lines}) {
      manager_ptr saved = make.manager(key), loaded(zu_stl_mngr_create(key));
      ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml, path("a._rg").c_str(), saved.get(), key));
      ASSERT_TRUE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), saved.get(), key));
      // What scale files do not hold is made equal, so that the rest can be compared as a whole.
      zu_stl_mngr_set_mode(loaded.get(), zu_stl_mngr_get_mode(saved.get()));
      zu::platform::assign(*zu_stl_mngr_get_simple_sp_ptr(loaded.get()),
                           *zu_stl_mngr_get_simple_sp_ptr(saved.get()));
      ASSERT_TRUE(zu_xml_data_load_rng_scale_w(xml, path("a._rg").c_str(), loaded.get(), key));
      ASSERT_TRUE(zu_xml_data_load_val_scale_w(xml, path("a._vl").c_str(), loaded.get(), key));
      ASSERT_EQ(facts(loaded.get()), facts(saved.get())) << seed;
    }
  }
}

TEST_F(scale_files, another_key_or_kind_is_refused_and_the_manager_stays) {
  style_maker make(5);
  manager_ptr saved = make.manager(colors), other = make.manager(lines);
  std::wstring before = text(other.get());
  ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml, path("a._rg").c_str(), saved.get(), colors));
  EXPECT_FALSE(zu_xml_data_load_rng_scale_w(xml, path("a._rg").c_str(), other.get(), lines));
  EXPECT_EQ(reason(), L"holds no such scale");
  EXPECT_FALSE(zu_xml_data_load_rng_scale_w(xml, path("a._rg").c_str(), other.get(), colors));
  EXPECT_FALSE(zu_xml_data_save_rng_scale_w(xml, path("b._rg").c_str(), saved.get(), lines));
  EXPECT_FALSE(fs::exists(folder / "b._rg"));
  EXPECT_EQ(text(other.get()), before);
  EXPECT_FALSE(zu_xml_data_load_val_scale_w(xml, path("a._rg").c_str(), saved.get(), colors));
}

TEST_F(scale_files, a_file_that_is_none_is_refused_with_the_reason) {
  manager_ptr manager = style_maker(6).manager(colors);
  std::wstring before = text(manager.get());
  std::ofstream(folder / "broken._rg") << "<range_scale manager=\"clr_mngr_style\"><scale>";
  std::ofstream(folder / "empty._rg") << "<range_scale manager=\"clr_mngr_style\"/>";
  struct {
    const char* name;
    const wchar_t* reason;
  } const cases[] = {{"none._rg", L"no such file"},
                     {"broken._rg", L"is no XML: "},
                     {"empty._rg", L"holds no such scale"},
                     {"", L"is a folder"}};
  for (const auto& c : cases) {
    EXPECT_FALSE(zu_xml_data_load_rng_scale_w(xml, path(c.name).c_str(), manager.get(), colors));
    EXPECT_EQ(reason().find(c.reason), 0u) << c.name << testing::PrintToString(reason());
  }
  EXPECT_EQ(text(manager.get()), before);
  EXPECT_FALSE(zu_xml_data_save_rng_scale_w(xml, path("no/a._rg").c_str(), manager.get(), colors));
  EXPECT_EQ(reason(), L"no such folder");
}

TEST_F(scale_files, nothing_given_is_no_success) {
  manager_ptr manager(zu_stl_mngr_create(colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(nullptr, L"x", manager.get(), colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, nullptr, manager.get(), colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), nullptr, colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), manager.get(), nullptr));
  EXPECT_FALSE(zu_xml_data_load_val_scale_w(xml, nullptr, manager.get(), colors));
}

}  // namespace
