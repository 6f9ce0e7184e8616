// What goes wrong is said in one line, with the exit code that a script can ask, and leaves no
// file.

#include <algorithm>

#include "tests/e2e/program.h"

namespace tests {
namespace {

class bad_input : public in_a_folder {
 protected:
  bad_input() : good_(floats("good.tif", 2, 1, {5, 15})) {}

  /// One line that names the reason, the exit code, and no picture.
  void refused(const outcome& result, int exit, const std::string& reason) {
    EXPECT_EQ(result.exit, exit) << result.err;
    EXPECT_EQ(result.err.rfind("zugrid: ", 0), 0u) << result.err;
    EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_FALSE(exists("o.png"));
  }

  std::string good_;
};

TEST_F(bad_input, usage_is_refused_with_exit_code_2) {
  struct {
    std::vector<std::string> options;
    const char* reason;
  } cases[] = {
      {{"--size", "0x5"}, "--size: \"0x5\""},
      {{"--size", "10"}, "--size: \"10\""},
      {{"--size", "-3x4"}, "--size"},
      {{"--size", "40000x1"}, "--size"},
      {{"--size", "1x1", "--size", "2x2"}, "--size"},
      {{"--extent", "0,0,5"}, "--extent: needs four numbers"},
      {{"--extent", "5,0,0,5"}, "--extent: is turned inside out"},
      {{"--extent", "0,0,0,5"}, "--extent: is turned inside out"},
      {{"--extent", "0,0,nan,5"}, "\"nan\" is no number"},
      {{"--extent", "0,0,inf,5"}, "\"inf\" is no number"},
      {{"--extent", "0,0,5;5,5"}, "\"5;5\" is no number"},
      {{"--crs", "EPSG:999999"}, "--crs: \"EPSG:999999\" is no coordinate system"},
      {{"--crs", "somewhere"}, "is no coordinate system"},
      {{"--crs", ""}, "--crs"},
      {{"--field", ""}, "--field"},
      {{"--background", ""}, "--background"},
      {{"--draw", "scales"}, "--draw"},
      {{"--rgb", "a,b"}, "--rgb: needs three names"},
      {{"--rgb", "a,,b"}, "--rgb: an empty part"},
      {{"--breaks", "1"}, "--breaks: needs at least two"},
      {{"--breaks", "1,3,2"}, "--breaks: boundaries must rise"},
      {{"--breaks", "1,1"}, "--breaks: boundaries must rise"},
      {{"--breaks", "1,2,3", "--colors", "#000000"}, "--colors: 2 classes take 4"},
      {{"--breaks", "1,2", "--colors", "#000000,#000000"}, "--colors: 1 classes take 3"},
      {{"--colors", "#12"}, "\"#12\" is no colour"},
      {{"--colors", "#00ff0g"}, "is no colour"},
      {{"--colors", "red"}, "is no colour"},
      {{"--values", "1"}, "\"1\" is no VALUE=COLOR"},
      {{"--values", "=#000000"}, "is no VALUE=COLOR"},
      {{"--values", "one=#000000"}, "\"one\" is no number"},
      {{"--values", "1=#000000", "--breaks", "1,2"}, "--values"},
      {{"--simple", "#000000", "--breaks", "1,2"}, "--simple"},
      {{"--limits", "1,2"}, "--limits: goes with"},
      {{"--draw", "gray", "--limits", "2,1"}, "--limits"},
      {{"--draw", "gray", "--breaks", "2,3"}, "--draw"},
      {{"--draw", "rgb", "--field", "Band 1"}, "--field"},
      {{"--transparency", "101"}, "--transparency"},
      {{"--transparency", "-1"}, "--transparency"},
      {{"--transparency", "half"}, "--transparency"},
      {{"--hillshade", "z=high"}, "--hillshade"},
      {{"--isolines", "thin=-1"}, "--isolines"},
      {{"-o", "twice.png"}, "--output"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.options[0] + (each.options.size() > 1 ? " " + each.options[1] : ""));
    refused(render(good_, each.options), 2, each.reason);
  }
}

TEST_F(bad_input, a_command_line_that_lacks_something_says_what) {
  struct {
    std::vector<std::string> line;
    const char* reason;
  } cases[] = {
      {{}, "command"},
      {{"nonsense"}, "nonsense"},
      {{"render"}, "SOURCE"},
      {{"render", good_}, "--output"},
      {{"render", "", "-o", path("o.png")}, "SOURCE"},
      {{"render", good_, "-o", ""}, "--output"},
      {{"render", good_, "-o", path("o.xyz")}, "must end in .png, .tif, .pdf or .svg"},
      {{"render", good_, "-o", path("noending")}, "must end in .png, .tif, .pdf or .svg"},
      {{"info"}, "SOURCE"},
      {{"info", good_, good_}, "good.tif"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.reason);
    refused(run(each.line), 2, each.reason);
  }
}

TEST_F(bad_input, a_source_that_is_no_grid_fails_with_its_name) {
  std::filesystem::create_directory(path("folder"));
  write("empty.tif", "");
  write("text.tif", "not a grid\n");
  write("head.tif", text_of_file(good_).substr(0, 6));
  struct {
    const char* name;
    const char* reason;
  } cases[] = {{"missing.tif", "no such file"},
               {"folder", "directory"},
               {"empty.tif", "empty"},
               {"text.tif", "not a grid"},
               {"head.tif", ""}};
  for (const auto& each : cases) {
    SCOPED_TRACE(each.name);
    outcome drawn = render(path(each.name));
    refused(drawn, 1, path(each.name) + ": ");
    refused(drawn, 1, each.reason);
    refused(run({"info", path(each.name)}), 1, path(each.name) + ": ");
  }
}

TEST_F(bad_input, a_file_cut_off_is_no_picture) {
  made_grid made = grid("big.tif", 256, 256, GDT_Float32, 1, {"TILED=YES"});
  made.values(1, std::vector<double>(256 * 256, 3));
  made.close();
  write("cut.tif", text_of_file(path("big.tif")).substr(0, 100000));
  refused(render(path("cut.tif")), 1, path("cut.tif") + ": ");
}

TEST_F(bad_input, a_broken_tile_leaves_the_rest_of_the_picture) {
  made_grid made = grid("g.tif", 128, 64, GDT_Float32, 1,
                        {"TILED=YES", "BLOCKXSIZE=64", "BLOCKYSIZE=64", "COMPRESS=DEFLATE"});
  std::vector<double> values;
  for (int i = 0; i < 128 * 64; ++i) values.push_back(i % 97);
  made.values(1, values);
  made.close();
  std::string bytes = text_of_file(path("g.tif"));
  std::unique_ptr<GDALDataset> set(GDALDataset::Open(path("g.tif").c_str()));
  ASSERT_TRUE(set);
  std::size_t tile = std::stoul(set->GetRasterBand(1)->GetMetadataItem("BLOCK_OFFSET_1_0", "TIFF"));
  bytes.replace(tile, 32, 32, '\xff');
  write("broken.tif", bytes);
  outcome result = run({"render", path("broken.tif"), "-o", path("o.png"), "--size", "128x64"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
  EXPECT_NE(result.err.find(path("broken.tif") + ": "), std::string::npos) << result.err;
  picture whole(path("o.png"));
  EXPECT_EQ(whole.at(100, 30), clear) << "the broken tile";
  EXPECT_EQ(whole.at(10, 10)[3], 255) << "the other one";
  EXPECT_NE(whole.at(10, 10), whole.at(60, 10)) << "its classes follow the values that are there";
}

TEST_F(bad_input, a_source_without_read_permission_says_so) {
  std::filesystem::permissions(path("good.tif"), std::filesystem::perms::none);
  auto as_somebody = [] {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(127);
  };
  outcome result = run({"render", good_, "-o", path("o.png")}, as_somebody);
  if (result.exit == 127) GTEST_SKIP() << "the program cannot be run by another user here";
  refused(result, 1, good_ + ": ");
}

TEST_F(bad_input, an_unknown_field_is_told_with_those_that_there_are) {
  refused(render(good_, {"--field", "depth"}), 1,
          good_ + ": has no field \"depth\"; its fields are: Band 1");
  refused(render(good_, {"--rgb", "Band 1,Band 1,blue"}), 1, "\"blue\"");
}

TEST_F(bad_input, a_grid_that_is_no_image_cannot_be_drawn_as_one) {
  refused(render(good_, {"--draw", "image"}), 1, good_ + ": ");
}

TEST_F(bad_input, one_bad_source_among_good_ones_leaves_nothing) {
  refused(run({"render", good_, path("missing.tif"), good_, "-o", path("o.png")}), 1,
          path("missing.tif"));
}

TEST_F(bad_input, the_output_must_not_be_a_source) {
  std::string before = text_of_file(good_);
  refused(run({"render", good_, "-o", good_}), 1, good_ + ": is one of the sources");
  std::filesystem::create_symlink(good_, path("link.tif"));
  refused(run({"render", good_, "-o", path("link.tif")}), 1, "is one of the sources");
  EXPECT_EQ(text_of_file(good_), before);
}

TEST_F(bad_input, an_output_that_cannot_be_written_says_why) {
  refused(run({"render", good_, "-o", path("nowhere/o.png")}), 1, path("nowhere/o.png") + ": ");
  std::filesystem::create_directory(path("folder.png"));
  refused(run({"render", good_, "-o", path("folder.png")}), 1, path("folder.png") + ": ");
  EXPECT_EQ(file_count(), 2u);
}

TEST_F(bad_input, a_name_that_is_no_utf8_never_becomes_another_file) {
  refused(run({"render", good_, "-o", path("\xff.png")}), 1, "the name is no UTF-8");
  refused(render(path("\xff.tif")), 1, "the name is no UTF-8");
  EXPECT_EQ(file_count(), 1u);
}

TEST_F(bad_input, a_full_disk_leaves_the_older_picture_and_nothing_else) {
  for (const char* name : {"old.png", "old.tif"}) {
    write(name, "an older picture");
    outcome result = run({"render", good_, "-o", path(name), "--size", "2000x2000"}, [] {
      rlimit most{1000, 1000};
      setrlimit(RLIMIT_FSIZE, &most);
    });
    refused(result, 1, path(name) + ": ");
    EXPECT_EQ(text_of_file(path(name)), "an older picture");
  }
  EXPECT_EQ(file_count(), 3u);
}

TEST_F(bad_input, a_closed_door_for_the_answer_is_a_failure) {
  outcome result = run({"info", good_, "--json"}, [] {
    if (std::freopen("/dev/full", "w", stdout) == nullptr) _exit(126);
  });
  refused(result, 1, "standard output");
}

}  // namespace
}  // namespace tests
