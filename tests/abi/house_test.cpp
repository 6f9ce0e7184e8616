// The rules of the house over this tree, and each rule over a small tree that breaks it.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

#include "tests/abi/house_rules.h"

namespace house {
namespace {

namespace fs = std::filesystem;

/// The rules held against the sources that the tests are built from.
class this_tree : public testing::Test {
 protected:
  static fs::path folder(const char* variable, const char* otherwise) {
    const char* value = std::getenv(variable);
    return fs::canonical(value != nullptr ? value : otherwise);
  }
  tree t_{folder("ZU_SOURCE_DIR", ".")};
};

TEST_F(this_tree, is_really_read) {
  EXPECT_EQ(t_.files.count("src/bundle/entry.cpp"), 1u);
  EXPECT_EQ(t_.files.count("include/zu/handle.h"), 1u);
}
TEST_F(this_tree, keeps_to_the_border) { EXPECT_EQ(includes_across_the_border(t_), findings()); }
TEST_F(this_tree, includes_down_the_floors) { EXPECT_EQ(includes_up_the_floors(t_), findings()); }
TEST_F(this_tree, includes_by_paths_from_its_root) {
  EXPECT_EQ(includes_with_dots(t_), findings());
}
TEST_F(this_tree, has_no_unused_files) {
  t_.read_compiled(folder("ZU_BUILD_DIR", "build") / "compile_commands.json");
  EXPECT_EQ(t_.compiled.count("src/bundle/entry.cpp"), 1u);
  EXPECT_EQ(unused_files(t_), findings());
}
TEST_F(this_tree, has_a_readme_in_each_folder) {
  EXPECT_EQ(folders_without_readme(t_), findings());
}
TEST_F(this_tree, has_no_dead_links) { EXPECT_EQ(dead_links(t_), findings()); }

/// A tree in a temporary folder.
class made_tree : public testing::Test {
 protected:
  made_tree() {
    const char* name = testing::UnitTest::GetInstance()->current_test_info()->name();
    root_ = fs::temp_directory_path() / ("zugrid_house_" + std::to_string(getpid()) + "_" + name);
  }
  ~made_tree() override { fs::remove_all(root_); }
  void write(const std::string& path, const std::string& text) {
    fs::create_directories((root_ / path).parent_path());
    std::ofstream(root_ / path) << text;
  }
  /// A file with one include directive.
  void include(const std::string& file, const std::string& what) {
    write(file, "#pragma once\n#include " + what + "\n");
  }
  tree read() const { return tree(root_); }

  fs::path root_;
};

struct attempt {
  const char* file;
  const char* what;
};

TEST_F(made_tree, what_may_be_included_gives_no_finding) {
  const attempt table[] = {
      {"src/a.h", "\"src/b.h\""},
      {"src/b.h", "\"zu/handle.h\""},
      {"src/c.h", "\"zu/platform/zuk_prg.h\""},
      {"src/d.h", "<vector>"},
      {"src/e.h", "\"resources/texts.def\""},
      {"platform/zuk_io/a.h", "<gdal_priv.h>"},
      {"platform/zuk_io/b.h", "\"platform/zuk_basic/guarded.h\""},
      {"platform/zuk_io/c.h", "\"zu/data_source.h\""},
      {"host/core/a.h", "<dlfcn.h>"},
      {"host/core/b.h", "\"zu/services.h\""},
      {"host/cli/a.h", "<CLI/CLI.hpp>"},
      {"host/cli/b.h", "\"host/core/a.h\""},
      {"host/desktop/a.h", "<QWidget>"},
      {"include/zu/a.h", "<cstdint>"},
      {"include/zu/platform/zuk_prg.h", "<stdint.h>"},
      {"tests/abi/a.h", "\"src/a.h\""},
  };
  for (const attempt& each : table) include(each.file, each.what);
  EXPECT_EQ(includes_across_the_border(read()), findings());
}

TEST_F(made_tree, every_step_across_the_border_is_found) {
  const attempt table[] = {
      {"src/a.h", "<gdal_priv.h>"},
      {"src/b.h", "<QString>"},
      {"src/c.h", "<cairo.h>"},
      {"src/d.h", "\"platform/zuk_basic/utf8.h\""},
      {"src/e.h", "\"host/core/source.h\""},
      {"src/f.h", "<unistd.h>"},
      {"src/g.h", "\"gdal_priv.h\""},
      {"platform/zuk_io/a.h", "\"src/data/element.h\""},
      {"platform/zuk_io/b.h", "\"host/core/source.h\""},
      {"platform/zuk_io/c.h", "<src/data/element.h>"},
      {"platform/zuk_io/d.h", "<QImage>"},
      {"host/core/a.h", "\"src/data/element.h\""},
      {"host/core/b.h", "\"platform/zuk_io/xnode.h\""},
      {"host/core/c.h", "<QWidget>"},
      {"host/core/d.h", "\"host/cli/commands.h\""},
      {"host/cli/a.h", "<QtWidgets/QWidget>"},
      {"host/cli/b.h", "<gdal.h>"},
      {"host/core/e.h", "\"resources/texts.def\""},
      {"host/desktop/a.h", "\"host/cli/commands.h\""},
      {"include/zu/a.h", "\"src/data/element.h\""},
      {"include/zu/b.h", "\"zu/platform/zuk_prg.h\""},
      {"include/zu/platform/zuk_prg.h", "<gdal.h>"},
  };
  for (const attempt& each : table) {
    fs::remove_all(root_);
    include(each.file, each.what);
    EXPECT_EQ(includes_across_the_border(read()).size(), 1u) << each.file << " " << each.what;
  }
}

TEST_F(made_tree, an_include_up_the_floors_is_found) {
  include("platform/zuk_styles/a.cpp", "\"zu/platform/zuk_basic.h\"");
  include("platform/zuk_styles/b.cpp", "\"platform/zuk_prg/vertices.h\"");
  include("platform/zuk_drwc/a.cpp", "\"zu/platform/zuk_render.h\"");
  EXPECT_EQ(includes_up_the_floors(read()), findings());

  const attempt table[] = {
      {"platform/zuk_basic/up.cpp", "\"zu/platform/zuk_prg.h\""},
      {"platform/zuk_styles/up.cpp", "\"platform/zuk_datasource/pool.h\""},
      {"platform/zuk_lr2d/up.cpp", "\"zu/platform/zuk_drwc.h\""},
      {"include/zu/platform/zuk_prg.h", "\"zu/platform/zuk_lr2d.h\""},
      {"platform/zuk_new/floorless.cpp", "\"zu/platform/zuk_basic.h\""},
  };
  std::size_t found = 0;
  for (const attempt& each : table) {
    include(each.file, each.what);
    EXPECT_EQ(includes_up_the_floors(read()).size(), ++found) << each.file;
  }
}

TEST_F(made_tree, an_include_with_dots_is_found) {
  include("tests/unit/a.cpp", "\"tests/unit/b.h\"");
  EXPECT_EQ(includes_with_dots(read()), findings());
  include("tests/unit/c.cpp", "\"../b.h\"");
  include("src/d.cpp", "\"src/data/../layer/e.h\"");
  include("src/f.cpp", "\"./g.h\"");
  EXPECT_EQ(includes_with_dots(read()).size(), 3u);
}

TEST_F(made_tree, unused_files_are_found) {
  include("src/a.cpp", "\"src/a.h\"");
  include("src/b.cpp", "\"zu/c.h\"");
  write("src/a.h", "");
  write("include/zu/c.h", "");
  write("tests/abi/lonely.h", "");
  write("compile_commands.json", "[{\"file\": \"" + (root_ / "src/a.cpp").string() + "\"},\n" +
                                     "{\"file\": \"" + (root_ / "src/b.cpp").string() + "\"}]");
  tree used = read();
  used.read_compiled(root_ / "compile_commands.json");
  EXPECT_EQ(unused_files(used), findings());

  write("src/never.h", "");
  write("platform/zuk_io/never.cpp", "");
  write("include/zu/platform/never.h", "");
  tree t = read();
  t.read_compiled(root_ / "compile_commands.json");
  EXPECT_EQ(unused_files(t), (findings{"include/zu/platform/never.h is never included",
                                       "platform/zuk_io/never.cpp is never compiled",
                                       "src/never.h is never included"}));
}

TEST_F(made_tree, a_folder_that_does_not_explain_itself_is_found) {
  for (const char* file : {"src/README.md", "src/data/README.md", "src/data/deeper/a.h",
                           "include/zu/README.md", "include/zu/handle.h", "dev", ".ci/run"})
    write(file, "Text.\n");
  EXPECT_EQ(folders_without_readme(read()), findings());

  for (const char* file : {"src/layer/a.h", "bench/run", "include/zu/platform/zuk_prg.h"})
    write(file, "");
  EXPECT_EQ(folders_without_readme(read()),
            (findings{"bench has no README.md", "include/zu/platform has no README.md",
                      "src/layer has no README.md"}));
}

TEST_F(made_tree, a_dead_link_is_found) {
  write("docs/guide.md", "[up](../README.md), [part](#part), [site](https://example.org/a.md)\n");
  write("README.md", "[guide](docs/guide.md#start) ![picture](docs/guide.md \"title\")\n");
  EXPECT_EQ(dead_links(read()), findings());
  write("docs/other.md", "[gone](gone.md) and ![lost](../pictures/lost.png)\n");
  EXPECT_EQ(dead_links(read()), (findings{"docs/other.md links to gone.md",
                                          "docs/other.md links to ../pictures/lost.png"}));
}

TEST_F(made_tree, builds_and_hidden_folders_are_left_out) {
  for (const char* file : {"build/a.h", "build-asan/b.h", ".git/c.h", "src/building/d.h"})
    write(file, "");
  EXPECT_EQ(read().files, std::set<std::string>{"src/building/d.h"});
}

}  // namespace
}  // namespace house
