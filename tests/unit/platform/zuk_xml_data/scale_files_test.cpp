#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/zuk_xml_data/scales.h"
#include "tests/unit/platform/file_size_limit.h"
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
    for (const char* key : manager_types) {
      manager_ptr saved = make.manager(key), loaded(zu_stl_mngr_create(key));
      ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml, path("a._rg").c_str(), saved.get(), key));
      ASSERT_TRUE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), saved.get(), key));
      // What scale files do not hold is made equal, so that the rest can be compared as a whole.
      zu_stl_mngr_set_mode(loaded.get(), zu_stl_mngr_get_mode(saved.get()));
      zu_stl_mngr_set_use_render_levels(loaded.get(),
                                        zu_stl_mngr_get_use_render_levels(saved.get()));
      zu::platform::assign(*zu_stl_mngr_get_simple_sp_ptr(loaded.get()),
                           *zu_stl_mngr_get_simple_sp_ptr(saved.get()));
      ASSERT_TRUE(zu_xml_data_save_val_scale_w(xml, path("a._rl").c_str(), saved.get(), key));
      ASSERT_TRUE(zu_xml_data_load_rng_scale_w(xml, path("a._rg").c_str(), loaded.get(), key));
      ASSERT_TRUE(zu_xml_data_load_val_scale_w(xml, path("a._vl").c_str(), loaded.get(), key));
      ASSERT_TRUE(zu_xml_data_load_val_scale_w(xml, path("a._rl").c_str(), loaded.get(), key));
      ASSERT_EQ(facts(loaded.get()), facts(saved.get())) << seed;
    }
  }
}

TEST_F(scale_files, what_is_saved_under_a_key_reads_back_under_it_alone) {
  for (const char* key : manager_types) {
    manager_ptr saved = style_maker(7).manager(key);
    ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml, path("a._rg").c_str(), saved.get(), key));
    for (const char* other : manager_types) {
      manager_ptr loaded(zu_stl_mngr_create(other));
      EXPECT_EQ(zu_xml_data_load_rng_scale_w(xml, path("a._rg").c_str(), loaded.get(), other),
                other == key)
          << key << ' ' << other;
    }
  }
}

TEST_F(scale_files, the_extension_alone_makes_a_value_scale_a_rule_scale) {
  manager_ptr saved(zu_stl_mngr_create(colors)), loaded(zu_stl_mngr_create(colors));
  zu_stl_mngr_set_val_prop_name_w(saved.get(), L"z");
  Tzu_val_scale* values = zu_stl_mngr_get_val_scale_ptr(saved.get());
  Tzu_val_scale* rules = zu_stl_mngr_get_rule_scale_ptr(saved.get());
  zu_val_scale_set_size(values, 1), zu_val_scale_set_size(rules, 2);
  zu_val_scale_set_text_w(rules, 1, L"z > 3");
  ASSERT_TRUE(zu_xml_data_save_val_scale_w(xml, path("a._RL").c_str(), saved.get(), colors));
  ASSERT_TRUE(zu_xml_data_load_val_scale_w(xml, path("a._RL").c_str(), loaded.get(), colors));
  rules = zu_stl_mngr_get_rule_scale_ptr(loaded.get());
  ASSERT_EQ(zu_val_scale_get_size(rules), 2u);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(rules, 1, a); }), L"z > 3");
  EXPECT_EQ(zu_val_scale_get_size(zu_stl_mngr_get_val_scale_ptr(loaded.get())), 0u);

  fs::copy_file(folder / "a._RL", folder / "a._vl");
  EXPECT_TRUE(zu_xml_data_load_val_scale_w(xml, path("a._vl").c_str(), loaded.get(), colors));
  EXPECT_EQ(zu_val_scale_get_size(zu_stl_mngr_get_val_scale_ptr(loaded.get())), 2u);
}

TEST_F(scale_files, the_type_of_the_manager_can_be_the_key) {
  manager_ptr saved = style_maker(8).manager("pgn_mngr_style");
  manager_ptr loaded(zu_stl_mngr_create("pgn_mngr_style")), other(zu_stl_mngr_create(colors));
  Tzu_xml_save_style* by_type = zu_xml_save_style_create();
  auto why = [&] {
    return text_of([&](Tzu_string_adp* a) { zu_xml_save_style_get_reason_w(by_type, a); });
  };
  std::wstring ranges = path("a._rg"), values = path("a._vl");
  EXPECT_TRUE(zu_xml_save_style_save_rng_scale(by_type, ranges.c_str(), saved.get()));
  EXPECT_TRUE(zu_xml_save_style_save_val_scale(by_type, values.c_str(), saved.get()));
  EXPECT_TRUE(zu_xml_save_style_load_rng_scale(by_type, ranges.c_str(), loaded.get()));
  EXPECT_TRUE(zu_xml_save_style_load_val_scale(by_type, values.c_str(), loaded.get()));
  auto range_text = [&](Tzu_stl_mngr* m) {
    return written_by([&](Tzu_xnode* node) { zu::platform::save_range_scale(node, m); });
  };
  EXPECT_EQ(range_text(loaded.get()), range_text(saved.get()));
  EXPECT_EQ(why(), L"");
  EXPECT_FALSE(zu_xml_save_style_load_rng_scale(by_type, ranges.c_str(), other.get()));
  EXPECT_EQ(why(), L"holds no such scale");
  EXPECT_FALSE(zu_xml_save_style_load_rng_scale(by_type, ranges.c_str(), nullptr));
  zu_xml_save_style_destroy(by_type);
}

// A limit on the size of files stands for a full disk: writes fail in the same way.
TEST_F(scale_files, on_a_full_disk_the_old_file_stays) {
  manager_ptr manager(zu_stl_mngr_create(colors));
  std::wstring file = path("a._rg");
  ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml, file.c_str(), manager.get(), colors));
  auto size = fs::file_size(folder / "a._rg");
  zu_rng_scale_set_size(zu_stl_mngr_get_rng_scale_ptr(manager.get()), 1000);
  {
    file_size_limit limit(4096);
    EXPECT_FALSE(zu_xml_data_save_rng_scale_w(xml, file.c_str(), manager.get(), colors));
  }
  EXPECT_EQ(reason(), L"no space left on the device");
  EXPECT_EQ(fs::file_size(folder / "a._rg"), size);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
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

TEST_F(scale_files, nothing_given_is_no_success_but_nobody_need_hear_the_reason) {
  manager_ptr manager(zu_stl_mngr_create(colors));
  EXPECT_TRUE(zu_xml_data_save_val_scale_w(nullptr, path("x").c_str(), manager.get(), colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, nullptr, manager.get(), colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), nullptr, colors));
  EXPECT_FALSE(zu_xml_data_save_val_scale_w(xml, path("a._vl").c_str(), manager.get(), nullptr));
  EXPECT_FALSE(zu_xml_data_load_val_scale_w(xml, nullptr, manager.get(), colors));
}

}  // namespace
