#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "src/style/dialogs/favorites_list.h"
#include "tests/unit/src/style/dialogs/style_form.h"
#include "zu/platform/zuk_basic.h"

namespace {

using namespace zu;
using list = style::favorites_list<style::favorites_line>;

class favorites : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("zu_favorites_" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_ / "libs" / "favorites");
    former_libs_ = zu_options_get_style_libs_path();
    zu_options_set_style_libs_path(path("libs").c_str());
    if (const char* former = std::getenv("XDG_DATA_HOME")) former_home_ = former;
    setenv("XDG_DATA_HOME", folder_.c_str(), 1);
  }
  void TearDown() override {
    zu_options_set_style_libs_path(former_libs_.c_str());
    former_home_.empty() ? unsetenv("XDG_DATA_HOME")
                         : setenv("XDG_DATA_HOME", former_home_.c_str(), 1);
    std::filesystem::remove_all(folder_);
  }
  std::wstring path(const char* name) const {
    std::string narrow = folder_ / name;
    return {narrow.begin(), narrow.end()};
  }
  /// Adds lines of these widths, one after the other.
  void add(list& to, std::initializer_list<double> widths) {
    to.on_style = [this] { return line_.get(); };
    for (double width : widths) {
      zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(line_.get()), width);
      to.append();
    }
  }
  /// Widths in the order of the list, found by picking each.
  std::vector<double> widths(list& of) {
    std::vector<double> all;
    of.on_pick = [&](const Tzu_pln_style* picked) {
      owned<zu_pln_style_destroy> copy(zu_pln_style_create());
      zu_pln_style_assign(copy.get(), picked);
      all.push_back(zu_bpln_style_get_width(zu_pln_style_get_bpln_style_ptr(copy.get())));
    };
    for (std::uint32_t i = 0; i < of.size(); ++i) pick(of, i);
    of.on_pick = nullptr;
    return all;
  }
  void pick(list& of, std::uint32_t row) {
    toolkit::outline_table_item_index item(row);
    call<&outline_impl::set_current>(tests::style_form(of.element()).one<outline_impl>(),
                                     item.item());
  }

  tests::base_language language_;
  tests::answering person_;
  std::filesystem::path folder_;
  std::wstring former_libs_;
  std::string former_home_;
  owned<zu_pln_style_destroy> line_{zu_pln_style_create()};
};

using doubles = std::vector<double>;

TEST_F(favorites, a_new_one_goes_to_the_top) {
  list styles;
  EXPECT_EQ(styles.size(), 0u);
  styles.append();  // nobody says which style
  EXPECT_EQ(styles.size(), 0u);
  add(styles, {1, 2, 3});
  EXPECT_EQ(widths(styles), (doubles{3, 2, 1}));
}

TEST_F(favorites, the_current_one_is_removed_and_then_none_is_current) {
  list styles;
  add(styles, {1, 2, 3});
  styles.remove();
  EXPECT_EQ(styles.size(), 3u);
  pick(styles, 1);
  styles.remove();
  EXPECT_EQ(widths(styles), (doubles{3, 1}));
  pick(styles, 0);
  add(styles, {4});
  styles.remove();
  EXPECT_EQ(widths(styles), (doubles{4, 3, 1}));
}

TEST_F(favorites, stay_across_runs_in_the_persons_own_file) {
  {
    list styles;
    add(styles, {1, 2});
  }
  EXPECT_TRUE(std::filesystem::exists(folder_ / "zugrid" / "stylefav" / "line.2._ls"));
  list again;
  EXPECT_EQ(widths(again), (doubles{2, 1}));
  EXPECT_EQ((style::favorites_list<style::favorites_point>().size()), 0u);
}

TEST_F(favorites, begin_with_those_of_the_style_libraries) {
  {
    list styles;
    add(styles, {7});
    person_.path = path("libs/favorites/line._ls");
    styles.save();
    pick(styles, 0);
    styles.remove();
  }
  EXPECT_EQ(list().size(), 0u);  // the person's own file is there, without styles
  std::filesystem::remove_all(folder_ / "zugrid");
  {
    list seeded;
    EXPECT_EQ(widths(seeded), (doubles{7}));
    add(seeded, {8});
  }
  std::filesystem::remove_all(folder_ / "libs");
  list own;
  EXPECT_EQ(widths(own), (doubles{8, 7}));
}

TEST_F(favorites, a_file_is_merged_and_what_is_held_stays) {
  person_.path = path("some._ls");
  list styles;
  add(styles, {1, 2});
  styles.save();
  EXPECT_EQ(person_.asked_filter, load_text(10475));
  styles.load();  // they are there already
  EXPECT_EQ(widths(styles), (doubles{2, 1}));
  pick(styles, 0);
  styles.remove();
  add(styles, {5});
  styles.load();
  EXPECT_EQ(styles.size(), 3u);
  std::ofstream(folder_ / "broken._ls") << "<style_lib";
  for (const char* wrong : {"broken._ls", "none._ls"}) {
    person_.path = path(wrong);
    styles.load();
    EXPECT_EQ(styles.size(), 3u);
  }
  person_.accepts = false;
  styles.load();
  styles.save();
  EXPECT_EQ(styles.size(), 3u);
}

TEST_F(favorites, that_would_be_lost_are_told_of) {
  std::vector<std::wstring> warnings;
  const Tzu_message_hooks hooks{[](const wchar_t* text, void* user) {
                                  static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
                                },
                                nullptr, &warnings};
  zu_set_message_hooks(&hooks);
  const std::filesystem::path own = folder_ / "zugrid" / "stylefav" / "line.2._ls";
  { list untouched; }
  std::filesystem::remove_all(own);
  std::filesystem::create_directories(own / "in the way");
  { list untouched; }
  EXPECT_TRUE(warnings.empty()) << "nothing is lost";
  {
    list styles;
    add(styles, {1});
  }
  zu_set_message_hooks(nullptr);
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_EQ(warnings[0], own.wstring() + L": is a folder");
}

TEST_F(favorites, tools_do_what_they_say) {
  list styles;
  styles.on_style = [this] { return line_.get(); };
  tests::style_form form(styles.element());
  form.use_tool(L"zu_common_style_favorites_append_tool");
  EXPECT_EQ(styles.size(), 1u);
  person_.path = path("some._ls");
  form.use_tool(L"zu_common_style_favorites_save_tool");
  pick(styles, 0);
  form.use_tool(L"zu_common_style_favorites_remove_tool");
  EXPECT_EQ(styles.size(), 0u);
  form.use_tool(L"zu_common_style_favorites_load_tool");
  EXPECT_EQ(styles.size(), 1u);
}

TEST_F(favorites, without_a_folder_of_the_persons_nothing_is_kept) {
  std::ofstream(folder_ / "file") << "no folder";
  setenv("XDG_DATA_HOME", (folder_ / "file").c_str(), 1);
  {
    list styles;
    add(styles, {1});
  }
  EXPECT_EQ(list().size(), 0u);
  EXPECT_EQ(style::favorites_path(L"line._ls", false), L"");
}

}  // namespace
