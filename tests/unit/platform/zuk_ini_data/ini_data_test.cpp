#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_ini_data.h"

namespace {

namespace fs = std::filesystem;

struct ini_data : testing::Test {
  fs::path folder = fs::path(testing::TempDir()) / ("ini_data" + std::to_string(getpid()));
  std::optional<std::string> kept;
  ini_data() {
    fs::create_directories(folder);
    if (const char* before = std::getenv("XDG_DATA_HOME")) kept = before;
    setenv("XDG_DATA_HOME", folder.c_str(), 1);
  }
  ~ini_data() override {
    kept ? setenv("XDG_DATA_HOME", kept->c_str(), 1) : unsetenv("XDG_DATA_HOME");
    fs::remove_all(folder);
  }
  /// Empty if there is none.
  static std::wstring path(const wchar_t* name) {
    Tzu_ini_data* data = zu_ini_data_create(name);
    std::wstring given;
    bool is_there = false;
    given = tests::text_of(
        [&](Tzu_string_adp* a) { is_there = zu_ini_data_get_storage_path(data, a); });
    zu_ini_data_destroy(data);
    EXPECT_EQ(is_there, !given.empty());
    return given;
  }
};

TEST_F(ini_data, gives_a_folder_of_the_name_and_makes_it) {
  EXPECT_EQ(path(L"favourites"), (folder / "zugrid" / "favourites").wstring());
  EXPECT_TRUE(fs::is_directory(folder / "zugrid" / "favourites"));
  EXPECT_EQ(path(L"favourites"), (folder / "zugrid" / "favourites").wstring());
}

TEST_F(ini_data, takes_plain_names_alone) {
  for (const wchar_t* name : {L"", L".", L"..", L"a/b", L"/etc"})
    EXPECT_EQ(zu_ini_data_create(name), nullptr) << name;
  EXPECT_EQ(zu_ini_data_create(nullptr), nullptr);
}

TEST_F(ini_data, says_where_there_can_be_no_folder) {
  std::ofstream(folder / "zugrid") << "a file";
  EXPECT_EQ(path(L"favourites"), L"");
  EXPECT_FALSE(zu_ini_data_get_storage_path(nullptr, nullptr));
}

}  // namespace
