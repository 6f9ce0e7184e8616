// Arrays and tables of colours, by pixel, and beside what GDAL makes of the same table.

#include <gdal_utils.h>

#include <cmath>
#include <sstream>

#include "tests/e2e/program.h"
#include "zu/platform/zuk_palettes.h"

namespace tests {
namespace {

using pixels = std::vector<rgba>;

rgba pixel(Tzu_color c) { return {c.r, c.g, c.b, 255 - c.a}; }

class colors : public in_a_folder {
 protected:
  pixels drawn(const std::string& source, const std::vector<std::string>& more) {
    outcome result = in_a_folder::render(source, more);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return picture(path("o.png")).all();
  }
  static pixels array(const char* name, std::size_t count, std::int32_t flag = 0) {
    std::vector<Tzu_color> all(count);
    zu_clr_arrays_generate_ex(zu_clr_arrays_find(name), count, all.data(), flag);
    pixels read;
    for (Tzu_color each : all) read.push_back(pixel(each));
    return read;
  }
};

TEST_F(colors, a_gradient_colours_classes_and_tails) {
  std::string source = floats("g.tif", 4, 1, {-1, 5, 15, 25});
  EXPECT_EQ(drawn(source, {"--breaks", "0,10,20", "--gradient", "tidal", "--size", "4x1"}),
            array("tidal", 4));
}

TEST_F(colors, a_gradient_alone_colours_the_default_classes) {
  std::string source = floats("g.tif", 2, 1, {0, 100});
  pixels expected = array("ember", 12);
  EXPECT_EQ(drawn(source, {"--gradient", "ember", "--size", "2x1"}),
            (pixels{expected[0], expected[10]}));
}

TEST_F(colors, a_gradient_colours_classes_made_of_the_data) {
  std::string source = floats("g.tif", 4, 1, {0, 1, 2, 3});
  pixels shown = drawn(
      source, {"--classify", "equal", "--count", "3", "--gradient", "violet", "--size", "4x1"});
  pixels expected = array("violet", 5);
  EXPECT_EQ(shown[1], expected[1]);
  EXPECT_EQ(shown[3], expected[3]);
}

TEST_F(colors, an_array_of_kinds_gives_its_colours_in_turn) {
  pixels in_turn = array("mineral", 5, 1);
  std::string source = floats("g.tif", 3, 1, {7, 8, 9});
  EXPECT_EQ(drawn(source, {"--unique", "--gradient", "mineral", "--size", "3x1"}),
            (pixels{in_turn[0], in_turn[1], in_turn[2]}));
  EXPECT_EQ(drawn(source, {"--breaks", "6,7.5,8.5,9.5", "--gradient", "mineral", "--size", "3x1"}),
            (pixels{in_turn[1], in_turn[2], in_turn[3]}))
      << "behind the lower tail";
}

TEST_F(colors, an_unknown_gradient_is_answered_with_the_names) {
  outcome result = render(floats("g.tif", 1, 1, {0}), {"--gradient", "plaid"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_NE(result.err.find("\"plaid\" is none of white_gray, "), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("height_depth_2"), std::string::npos);
  EXPECT_FALSE(exists("o.png"));
}

TEST_F(colors, options_that_say_colours_twice_are_refused) {
  std::string source = floats("g.tif", 1, 1, {0});
  write("t.cpt", "0 red 1 blue\n");
  for (const std::vector<std::string>& more :
       std::vector<std::vector<std::string>>{{"--gradient", "red", "--simple", "#000000"},
                                             {"--gradient", "red", "--values", "1=#000000"},
                                             {"--gradient", "red", "--color-table", path("t.cpt")},
                                             {"--color-table", path("t.cpt"), "--breaks", "0,1"},
                                             {"--color-table", path("t.cpt"), "--draw", "gray"}})
    EXPECT_EQ(render(source, more).exit, 2) << more[2];
}

TEST_F(colors, a_table_of_classes_is_drawn_as_it_stands) {
  std::string source = floats("g.tif", 5, 1, {-1, 5, 10, 15, 25});
  write("t.cpt", "0 255/0/0 10 255/0/0\n10 0/0/255 20 0/0/255\nF green\n");
  EXPECT_EQ(
      drawn(source, {"--color-table", path("t.cpt"), "--size", "5x1"}),
      (pixels{clear, {255, 0, 0, 255}, {255, 0, 0, 255}, {0, 0, 255, 255}, {0, 255, 0, 255}}));
}

TEST_F(colors, a_table_of_values_is_drawn_as_it_stands) {
  std::string source = floats("g.tif", 3, 1, {1, 2, 3});
  write("t.txt",
        "# QGIS Generated Color Map Export File\nINTERPOLATION:EXACT\n"
        "1,255,0,0,255,one\n2,0,0,255,128,two\n");
  EXPECT_EQ(drawn(source, {"--color-table", path("t.txt"), "--size", "3x1"}),
            (pixels{{255, 0, 0, 255}, {0, 0, 255, 128}, clear}));
}

TEST_F(colors, a_broken_table_is_named_with_its_line) {
  write("t.cpt", "0 red 1 blue\n1 blue 2 mauvish\n");
  outcome result = render(floats("g.tif", 1, 1, {0}), {"--color-table", path("t.cpt")});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.err, "zugrid: " + path("t.cpt") + ": line 2: \"mauvish\" is no colour\n");
  EXPECT_EQ(render(floats("g.tif", 1, 1, {0}), {"--color-table", path("none.cpt")}).exit, 1);
}

/// Pixels of gdaldem color-relief, with opacities.
pixels relief_of(const std::string& source, const std::string& table, const std::string& output) {
  GDALAllRegister();
  const char* arguments[] = {"-alpha", nullptr};
  GDALDEMProcessingOptions* options =
      GDALDEMProcessingOptionsNew(const_cast<char**>(arguments), nullptr);
  GDALDatasetH in = GDALOpen(source.c_str(), GA_ReadOnly);
  int wrong = 0;
  GDALDatasetH out =
      GDALDEMProcessing(output.c_str(), in, "color-relief", table.c_str(), options, &wrong);
  EXPECT_EQ(wrong, 0);
  GDALClose(out);
  GDALClose(in);
  GDALDEMProcessingOptionsFree(options);
  return picture(output).all();
}

std::vector<double> rising(int count, double low, double high) {
  std::vector<double> all;
  for (int i = 0; i < count; ++i) all.push_back(low + (high - low) * (i + 0.37) / count);
  return all;
}

TEST_F(colors, a_table_that_runs_looks_as_gdal_draws_it) {
  std::string source = floats("g.tif", 40, 25, rising(1000, -20, 130));
  for (const char* text :
       {"0 0 0 255\n50 255 255 255\n100 200 0 0\n", "0% 10 20 30\n25% 200 220 30\n100% 255 0 255\n",
        "100 red\n0 green\n20 yellow\n"}) {
    write("t.clr", text);
    pixels ours = drawn(source, {"--color-table", path("t.clr"), "--size", "40x25"});
    pixels theirs = relief_of(source, path("t.clr"), path("relief.tif"));
    ASSERT_EQ(ours.size(), theirs.size());
    int most = 0;
    for (std::size_t i = 0; i < ours.size(); ++i)
      for (std::size_t k = 0; k < 4; ++k)
        most = std::max(most, std::abs(ours[i][k] - theirs[i][k]));
    EXPECT_LE(most, 4) << text;
  }
}

TEST_F(colors, a_saved_table_makes_gdal_draw_the_same_classes) {
  std::string source = floats("g.tif", 40, 25, rising(1000, -20, 130));
  pixels ours = drawn(source, {"--breaks", "0,10,50,100", "--gradient", "height_dark", "--size",
                               "40x25", "--save-color-table", path("t.clr")});
  EXPECT_EQ(ours, relief_of(source, path("t.clr"), path("relief.tif")));
}

TEST_F(colors, a_saved_table_draws_the_same_picture_again) {
  std::string source = floats("g.tif", 40, 25, rising(1000, -20, 130));
  for (const char* name : {"t.cpt", "t.qgis.txt", "t.clr"}) {
    pixels first = drawn(source, {"--breaks", "0,10,50,100", "--gradient", "calm", "--size",
                                  "40x25", "--save-color-table", path(name)});
    EXPECT_EQ(drawn(source, {"--color-table", path(name), "--size", "40x25"}), first) << name;
  }
}

TEST_F(colors, a_table_is_not_saved_over_a_source_or_without_classes) {
  std::string source = floats("g.tif", 1, 1, {0});
  EXPECT_EQ(render(source, {"--save-color-table", source}).exit, 1);
  EXPECT_EQ(render(source, {"--simple", "#000000", "--save-color-table", path("t.cpt")}).exit, 1);
  EXPECT_FALSE(exists("t.cpt"));
}

TEST_F(colors, gradients_are_named_one_a_line_and_drawn) {
  outcome result = run({"gradients"});
  EXPECT_EQ(result.exit, 0);
  std::istringstream lines(result.out);
  std::int32_t count = 0;
  for (std::string name; std::getline(lines, name); ++count)
    EXPECT_EQ(zu_clr_arrays_find(name.c_str()), count);
  EXPECT_EQ(count, zu_clr_arrays_get_count());

  result = run({"gradients", "-o", path("g.png")});
  EXPECT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(result.out, "");
  pixels shown = picture(path("g.png")).all();
  for (Tzu_color ends : {Tzu_color{0x0e, 0x61, 0x06, 0}, Tzu_color{0x52, 0x16, 0x15, 0}})
    EXPECT_NE(std::find(shown.begin(), shown.end(), pixel(ends)), shown.end());
  EXPECT_EQ(run({"gradients", "-o", path("g.txt")}).exit, 2);
}

}  // namespace
}  // namespace tests
