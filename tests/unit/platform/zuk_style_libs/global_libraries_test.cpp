#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_style_libs/style_library.h"
#include "tests/unit/platform/own_folder.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_style_libs.h"

namespace {

namespace fs = std::filesystem;
using namespace tests;

/// Another folder of a person's data, for as long as it lives.
class data_home {
 public:
  explicit data_home(const fs::path& folder) {
    const char* set = std::getenv("XDG_DATA_HOME");
    if (set != nullptr) former_ = set;
    setenv("XDG_DATA_HOME", folder.c_str(), 1);
  }
  ~data_home() {
    former_ ? setenv("XDG_DATA_HOME", former_->c_str(), 1) : unsetenv("XDG_DATA_HOME");
  }

 private:
  std::optional<std::string> former_;
};

/// A style folder of the test's own, taken back at its end.
struct global_libraries : testing::Test {
  global_libraries() {
    zu_options_set_style_libs_path(folder.at("styles").c_str());
    zu_res_set_lng(0);
  }
  ~global_libraries() override {
    zu_options_set_style_libs_path(nullptr);
    zu_options_set_main_module_path(nullptr);
    zu_res_set_lng(language_);
  }
  void write(const std::string& name, const std::string& caption) {
    folder.write(name, "<style_library caption='" + caption + "'/>");
    // A file that is as long as it was need not have another time at once.
    fs::last_write_time(folder.path() / name,
                        fs::file_time_type::clock::now() + std::chrono::seconds(++written_));
  }
  static std::vector<std::wstring> names() {
    zu::platform::owned<zu_wstrings_destroy> list(zu_global_lib_styles_create_name_list());
    std::vector<std::wstring> all;
    for (std::uint64_t i = 0; i < zu_wstrings_get_size(list.get()); ++i)
      all.push_back(zu_wstrings_get_str(list.get(), i));
    return all;
  }
  own_folder folder{"global_libraries"};

 private:
  std::int32_t language_ = zu_res_get_lng();
  int written_ = 0;
};
using captions = std::vector<std::wstring>;

TEST_F(global_libraries, without_a_folder_there_are_none) {
  EXPECT_EQ(zu_global_lib_styles_get_libs(), nullptr);
  EXPECT_EQ(names(), captions());
  EXPECT_EQ(zu_style_libs_get_size(nullptr), 0u);
  EXPECT_EQ(zu_style_libs_get_lib_ptr(nullptr, 0), nullptr);
}

TEST_F(global_libraries, the_files_of_the_folder_are_read_by_name) {
  write("styles/b._ls", "second");
  write("styles/A._ls", "first");
  write("styles/c.txt", "no library");
  write("styles/d._ls", "");
  fs::create_directory(folder.path() / "styles" / "e._ls");
  EXPECT_EQ(names(), (captions{L"first", L"second", L"d"}));
  Tzu_style_libs* libraries = zu_global_lib_styles_get_libs();
  ASSERT_EQ(zu_style_libs_get_size(libraries), 3u);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) {
              zu_style_lib_get_caption(zu_style_libs_get_lib_ptr(libraries, 1), a);
            }),
            L"second");
  EXPECT_EQ(zu_style_libs_get_lib_ptr(libraries, 3), nullptr);
}

TEST_F(global_libraries, a_change_of_the_folder_is_seen_at_the_next_call) {
  write("styles/a._ls", "old");
  EXPECT_EQ(names(), captions{L"old"});
  Tzu_style_libs* before = zu_global_lib_styles_get_libs();
  EXPECT_EQ(zu_global_lib_styles_get_libs(), before);
  EXPECT_EQ(zu_style_libs_get_lib_ptr(zu_global_lib_styles_get_libs(), 0),
            zu_style_libs_get_lib_ptr(before, 0));
  write("styles/a._ls", "new");
  EXPECT_EQ(names(), captions{L"new"});
  write("styles/b._ls", "more");
  EXPECT_EQ(names(), (captions{L"new", L"more"}));
  fs::remove_all(folder.path() / "styles");
  EXPECT_EQ(zu_global_lib_styles_get_libs(), nullptr);
}

TEST_F(global_libraries, a_library_that_was_handed_out_stays_as_it_was) {
  write("styles/a._ls", "old");
  write("styles/b._ls", "same");
  Tzu_style_libs* all = zu_global_lib_styles_get_libs();
  Tzu_style_lib *old = zu_style_libs_get_lib_ptr(all, 0), *same = zu_style_libs_get_lib_ptr(all, 1);
  write("styles/a._ls", "new");
  EXPECT_EQ(names(), (captions{L"new", L"same"}));
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_style_lib_get_caption(old, a); }), L"old");
  EXPECT_EQ(zu_style_libs_get_lib_ptr(zu_global_lib_styles_get_libs(), 1), same);
}

TEST_F(global_libraries, a_broken_file_is_left_out_and_its_reason_is_kept) {
  write("styles/a._ls", "good");
  folder.write("styles/b._ls", "<no_library/>");
  EXPECT_EQ(names(), captions{L"good"});
  std::wstring path = folder.at("styles/b._ls");
  EXPECT_EQ(zu_problems_get_count(path.c_str()), 1);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_problems_get(path.c_str(), 0, a); }),
            L"is no library of styles");
  EXPECT_EQ(zu_problems_get_count(folder.at("styles/a._ls").c_str()), 0);
}

// The program's own libraries lie beside it, and a person's are before them.
TEST_F(global_libraries, those_of_the_program_follow_in_its_language_unless_a_folder_is_set) {
  write("share/zugrid/style_libs/ru/soil._ls", "\xD0\x9F\xD0\xBE\xD1\x87\xD0\xB2\xD1\x8B");
  write("share/zugrid/style_libs/en/soil._ls", "Soils");
  write("share/zugrid/style_libs/en/rock._ls", "Rocks");
  zu_options_set_main_module_path(folder.at("bin/zugrid").c_str());
  EXPECT_EQ(zu_global_lib_styles_get_libs(), nullptr);

  data_home home(folder.path() / "home");
  zu_options_set_style_libs_path(nullptr);
  EXPECT_EQ(names(), captions{L"\u041f\u043e\u0447\u0432\u044b"});
  zu_res_set_lng(50000);
  EXPECT_EQ(names(), (captions{L"Rocks", L"Soils"}));
  write("home/zugrid/styles/soil._ls", "My soils");
  EXPECT_EQ(names(), (captions{L"My soils", L"Rocks"}));
}

// Beside the test program as beside the others.
TEST_F(global_libraries, those_that_come_with_the_program_name_and_style_the_same_codes) {
  data_home home(folder.path());
  zu_options_set_style_libs_path(nullptr);
  std::vector<std::vector<std::int32_t>> codes[2];
  for (int language : {0, 1}) {
    zu_res_set_lng(language * 50000);
    Tzu_style_libs* all = zu_global_lib_styles_get_libs();
    ASSERT_EQ(zu_style_libs_get_size(all), 3u);
    for (std::uint64_t i = 0; i < 3; ++i) {
      Tzu_style_lib* library = zu_style_libs_get_lib_ptr(all, i);
      std::vector<std::int32_t>& found = codes[language].emplace_back();
      for (const auto& style : zu_style_lib_get_pgn_list_ptr(library)->styles) {
        found.push_back(style->index);
        Tzu_style_item* item =
            zu_style_item_find_by_index(zu_style_lib_get_root_item_ptr(library), style->index);
        EXPECT_NE(text_of([&](Tzu_string_adp* a) { zu_style_item_get_caption(item, a); }), L"");
        EXPECT_NE(zu_style_list_find_idx(zu_style_lib_get_pnt_list_ptr(library), style->index), -1);
        EXPECT_NE(zu_style_list_find_idx(zu_style_lib_get_pln_list_ptr(library), style->index), -1);
      }
      EXPECT_GT(found.size(), 10u);
    }
  }
  EXPECT_EQ(codes[0], codes[1]);
}

}  // namespace
