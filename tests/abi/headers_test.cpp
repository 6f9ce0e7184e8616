// Each public header stands alone: the platform's as C and as C++, the border's as C++.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> headers_in(const std::string& folder) {
  std::vector<fs::path> all;
  for (const auto& entry :
       fs::directory_iterator(fs::path(std::getenv("ZU_SOURCE_DIR")) / "include" / folder))
    if (entry.path().extension() == ".h") all.push_back(entry.path());
  return all;
}

bool compiles(const std::string& compiler, const fs::path& header) {
  std::string root = (fs::path(std::getenv("ZU_SOURCE_DIR")) / "include").string();
  std::string command = compiler + " -Wall -Wextra -Werror -fsyntax-only -I'" + root +
                        "' -include '" + header.string() + "' /dev/null";
  return std::system(command.c_str()) == 0;
}

TEST(headers, of_the_platform_compile_alone_as_c_and_as_cpp) {
  std::vector<fs::path> headers = headers_in("zu/platform");
  ASSERT_GE(headers.size(), 14u);
  for (const fs::path& header : headers) {
    EXPECT_TRUE(compiles("cc -x c -std=c11", header)) << header;
    EXPECT_TRUE(compiles("c++ -x c++ -std=c++20", header)) << header;
  }
}

TEST(headers, of_the_border_compile_alone) {
  std::vector<fs::path> headers = headers_in("zu");
  ASSERT_GE(headers.size(), 8u);
  for (const fs::path& header : headers)
    EXPECT_TRUE(compiles("c++ -x c++ -std=c++20", header)) << header;
  EXPECT_TRUE(compiles("cc -x c -std=c11",
                       fs::path(std::getenv("ZU_SOURCE_DIR")) / "include/zu/c_handle.h"));
}

TEST(headers, that_are_broken_are_noticed) {
  fs::path broken = fs::path(testing::TempDir()) / "broken.h";
  std::fclose(std::fopen(broken.c_str(), "w"));
  EXPECT_TRUE(compiles("cc -x c -std=c11", broken));
  FILE* file = std::fopen(broken.c_str(), "w");
  std::fputs("bool undeclared_in_c11(void);\n", file);
  std::fclose(file);
  EXPECT_FALSE(compiles("cc -x c -std=c11 2>/dev/null", broken));
}

}  // namespace
