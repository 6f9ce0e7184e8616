#include "platform/zuk_io/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;
using zu::platform::atomic_file;
using zu::platform::write_failure;

struct a_folder : testing::Test {
  fs::path folder = fs::path(testing::TempDir()) / "atomic";
  a_folder() {
    fs::remove_all(folder);
    fs::create_directory(folder);
  }
  static std::string text_in(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::ptrdiff_t files() {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
  }
};
using atomic_file_test = a_folder;

TEST_F(atomic_file_test, replaces_the_old_file_only_when_committed) {
  fs::path path = folder / "a.txt";
  std::ofstream(path) << "old";
  {
    atomic_file file(path.string());
    std::ofstream(file.temporary()) << "half";
    EXPECT_EQ(text_in(path), "old");
    EXPECT_EQ(fs::path(file.temporary()).extension(), ".txt");
  }
  EXPECT_EQ(text_in(path), "old");
  EXPECT_EQ(files(), 1);
  atomic_file file(path.string());
  std::ofstream(file.temporary()) << "new";
  file.commit();
  EXPECT_EQ(text_in(path), "new");
  EXPECT_EQ(files(), 1);
}

TEST_F(atomic_file_test, keeps_the_access_of_the_old_file_and_what_a_link_leads_to) {
  fs::path path = folder / "a.txt", link = folder / "link.txt";
  std::ofstream(path) << "old";
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(path, link);
  atomic_file file(link.string());
  std::ofstream(file.temporary()) << "new";
  file.commit();
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(text_in(path), "new");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(atomic_file_test, refuses_what_cannot_be_a_file) {
  fs::path missing = folder / "no" / "a.txt";
  struct {
    std::string path, reason;
  } const cases[] = {{missing.string(), "no such folder"},
                     {folder.string(), "is a folder"},
                     {"/dev/full", "is not a regular file"}};
  for (const auto& c : cases) {
    try {
      atomic_file file(c.path);
      ADD_FAILURE() << c.path;
    } catch (const write_failure& failure) {
      EXPECT_EQ(failure.what(), c.reason);
    }
  }
  EXPECT_EQ(files(), 0);
}

}  // namespace
