// What the linked module shows and asks for.

#include <algorithm>
#include <set>

#include "tests/abi/bundle_module.h"

namespace plain {
namespace {

std::string last_word(const std::string& line) { return line.substr(line.rfind(' ') + 1); }

TEST(exports, are_exactly_two) {
  std::set<std::string> names;
  for (const std::string& line : lines_of("nm -D --defined-only '" + bundle_path() + "'"))
    names.insert(last_word(line));
  EXPECT_EQ(names, (std::set<std::string>{"zu_bundle_interface_to_custom_pointer",
                                          "scary_vcl_bug_crashes_everything_on_unloading"}));
}

TEST(exports, the_bundle_needs_the_platform_and_the_language_alone) {
  const std::set<std::string> known = {"libzuk_platform.so", "libstdc++.so.6",
                                       "libm.so.6",          "libgcc_s.so.1",
                                       "libc.so.6",          "ld-linux-x86-64.so.2"};
  bool platform = false;
  for (const std::string& line : lines_of("readelf -d '" + bundle_path() + "'")) {
    if (line.find("(NEEDED)") == std::string::npos) continue;
    std::string library = line.substr(line.find('[') + 1);
    library.pop_back();
    platform = platform || library == "libzuk_platform.so";
    bool of_sanitizer = library.rfind("libasan", 0) == 0 || library.rfind("libubsan", 0) == 0;
    EXPECT_TRUE(of_sanitizer || known.count(library) != 0) << library;
  }
  EXPECT_TRUE(platform);
}

// Symbols of the C and C++ libraries carry a version; what is left must be plain functions of the
// platform, or weak ones that the linker looks for.
TEST(exports, the_bundle_asks_the_platform_for_plain_functions_alone) {
  std::vector<std::string> lines = lines_of("nm -D --undefined-only '" + bundle_path() + "'");
  for (const std::string& line : lines)
    if (last_word(line) == "__asan_init")
      GTEST_SKIP() << "the sanitizer stands in for the C library";
  int asked = 0;
  for (const std::string& line : lines) {
    std::string name = last_word(line);
    if (name.find('@') != std::string::npos || line.find(" w ") != std::string::npos) continue;
    // Conversions have names of their own.
    EXPECT_TRUE(name.rfind("zu_", 0) == 0 || name.rfind("gp_", 0) == 0) << name;
    ++asked;
  }
  EXPECT_GT(asked, 0);
}

}  // namespace
}  // namespace plain
