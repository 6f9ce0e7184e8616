#include "platform/zuk_io/atomic_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace zu::platform {
namespace {

namespace fs = std::filesystem;

class atomic_file_test : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "zu_atomic_XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string content(const char* name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::ptrdiff_t files() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }

  fs::path folder_;
};

TEST_F(atomic_file_test, the_older_file_stays_until_the_new_one_is_committed) {
  std::ofstream(folder_ / "a.txt") << "old";
  atomic_file file((folder_ / "a.txt").string());
  std::ofstream(file.temporary()) << "new";
  EXPECT_EQ(content("a.txt"), "old");
  EXPECT_EQ(fs::path(file.temporary()).parent_path(), folder_);
  EXPECT_EQ(fs::path(file.temporary()).extension(), ".txt");
  file.commit();
  EXPECT_EQ(content("a.txt"), "new");
  EXPECT_EQ(files(), 1);
}

TEST_F(atomic_file_test, what_is_not_committed_leaves_nothing) {
  std::ofstream(folder_ / "a.txt") << "old";
  {
    atomic_file file((folder_ / "a.txt").string());
    std::ofstream(file.temporary()) << "new";
  }
  EXPECT_EQ(content("a.txt"), "old");
  EXPECT_EQ(files(), 1);
}

TEST_F(atomic_file_test, a_temporary_file_that_has_gone_is_a_failure) {
  atomic_file file((folder_ / "a.txt").string());
  fs::remove(file.temporary());
  EXPECT_THROW(file.commit(), write_failure);
  EXPECT_EQ(files(), 0);
}

}  // namespace
}  // namespace zu::platform
