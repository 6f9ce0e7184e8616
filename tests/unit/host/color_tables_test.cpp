#include "host/core/color_tables.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "host/core/color_names.h"
#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

/// "#rrggbb", with an opacity behind it where the colour is not opaque.
std::string text_of(Tzu_color c) {
  char text[16];
  std::snprintf(text, sizeof text, c.a == 0 ? "#%02x%02x%02x" : "#%02x%02x%02x%02x", c.r, c.g, c.b,
                255 - c.a);
  return text;
}
std::string text_of(const std::optional<Tzu_color>& c) { return c ? text_of(*c) : "none"; }
std::string parts_of(const color_table& table) {
  std::string all;
  for (const table_part& each : table.parts) {
    std::string low = std::to_string(static_cast<int>(each.low.number)),
                high = std::to_string(static_cast<int>(each.high.number));
    all += low + text_of(each.from) + " " + high + text_of(each.to) + " " + each.label + "|";
  }
  return all;
}

color_table gmt(std::string_view text) { return parse_color_table("a", text, table_format::gmt); }
color_table qgis(std::string_view text) { return parse_color_table("a", text, table_format::qgis); }
color_table gdal(std::string_view text) { return parse_color_table("a", text, table_format::gdal); }

TEST(gmt_table, has_ranges_whose_colours_run_and_the_three_for_the_rest) {
  color_table table =
      gmt("# COLOR_MODEL = RGB\n"
          "-10\t0/0/255\t0\twhite\t;sea\n"
          "0 0 128 0 20 255 255 0 L\r\n"
          "20 200 30 #102030\n"
          "B black\nF 255 0 0\nN 128\n");
  EXPECT_EQ(parts_of(table), "-10#0000ff 0#ffffff sea|0#008000 20#ffff00 |20#c8c8c8 30#102030 |");
  EXPECT_EQ(text_of(table.below), "#000000");
  EXPECT_EQ(text_of(table.above), "#ff0000");
  EXPECT_EQ(text_of(table.other), "#808080");
}

TEST(gmt_table, without_colours_for_the_rest_leaves_it_undrawn) {
  color_table table = gmt("0 red 10 red\n10 - 20 -\n20 blue@50 30 blue@50\nB -\n");
  EXPECT_EQ(parts_of(table),
            "0#ff0000 10#ff0000 |10#00000000 20#00000000 |20#0000ff80 30#0000ff80 |");
  EXPECT_EQ(text_of(table.below), "none");
  EXPECT_EQ(text_of(table.above), "none");
}

TEST(gmt_table, in_hues_runs_through_them) {
  color_table table = gmt("# COLOR_MODEL = +HSV\n0 0 1 1 16 240 1 1\n");
  ASSERT_EQ(table.parts.size(), 16U);
  EXPECT_EQ(text_of(table.parts.front().from), "#ff0000");
  EXPECT_EQ(text_of(table.parts[7].to), "#00ff00") << "120 degrees stand in the middle";
  EXPECT_EQ(table.parts[7].high.number, 8);
  EXPECT_EQ(text_of(table.parts.back().to), "#0000ff");
  EXPECT_EQ(parts_of(gmt("0 60-1-1 1 60-1-1\n")), "0#ffff00 1#ffff00 |");
}

TEST(gmt_table, in_inks_is_what_a_screen_shows) {
  EXPECT_EQ(parts_of(gmt("0 0/100/0/0 1 0/0/0/100\n")), "0#ff00ff 1#000000 |");
  EXPECT_EQ(parts_of(gmt("# COLOR_MODEL = CMYK\n0 0 100 0 0 1 0 0 0 0\n")), "0#ff00ff 1#ffffff |");
}

TEST(gmt_table, of_single_values_is_a_list_of_them) {
  color_table table = gmt("1 red forest\n2\t0/0/255 ;deep water\n3 10\nN white\n");
  ASSERT_EQ(table.values.size(), 3U);
  EXPECT_EQ(table.values[0].value, "1");
  EXPECT_EQ(table.values[0].label, "forest");
  EXPECT_EQ(table.values[1].label, "deep water");
  EXPECT_EQ(text_of(table.values[2].color), "#0a0a0a");
  EXPECT_TRUE(table.parts.empty());
}

TEST(qgis_table, of_points_runs_between_them) {
  color_table table = qgis(
      "# QGIS Generated Color Map Export File\nINTERPOLATION:INTERPOLATED\n"
      "0,0,0,255,255,low\n10,255,255,255,128,a, b\n");
  EXPECT_EQ(parts_of(table), "0#0000ff 10#ffffff80 a, b|");
  EXPECT_EQ(text_of(table.below), "#0000ff");
  EXPECT_EQ(text_of(table.above), "#ffffff80");
}

TEST(qgis_table, of_classes_names_their_upper_ends) {
  color_table table =
      qgis("INTERPOLATION:DISCRETE\n0,1,1,1,255,below\n10,2,2,2,255,<= 10\ninf,3,3,3,255,above\n");
  EXPECT_EQ(parts_of(table), "0#020202 10#020202 <= 10|");
  EXPECT_EQ(text_of(table.below), "#010101");
  EXPECT_EQ(text_of(table.above), "#030303");
  EXPECT_EQ(text_of(qgis("INTERPOLATION:DISCRETE\n0,1,1,1,255,a\n1,2,2,2,255,b\n").above), "none");
}

TEST(qgis_table, of_exact_values_is_a_list_of_them) {
  color_table table = qgis("INTERPOLATION:EXACT\n1,2,3,4,255,one\n2.5,5,6,7,0,\n");
  ASSERT_EQ(table.values.size(), 2U);
  EXPECT_EQ(table.values[1].value, "2.5");
  EXPECT_EQ(text_of(table.values[1].color), "#05060700");
}

TEST(gdal_table, has_points_in_any_order_names_and_a_colour_of_no_data) {
  color_table table = gdal("# relief\n100 white\n-5,0,0,255\n0:\t10 20 30 128\nnv 1 2 3\n");
  EXPECT_EQ(parts_of(table), "-5#0000ff 0#0a141e80 |0#0a141e80 100#ffffff |");
  EXPECT_EQ(text_of(table.other), "#010203");
  EXPECT_EQ(text_of(gdal("0 red\n1 blue\nnv 1 2 3\ndefault 4 5 6\n").other), "#040506");
}

TEST(gdal_table, in_percent_is_of_the_fields_range) {
  color_table table = gdal("0% black\n50% red\n100% white\n");
  ASSERT_EQ(table.parts.size(), 2U);
  EXPECT_TRUE(table.has_shares());
  EXPECT_EQ(table.parts[1].low.number, 0.5);
}

TEST(gdal_table, with_two_colours_at_a_value_has_a_step_there) {
  EXPECT_EQ(parts_of(gdal("0 black\n5 red\n5 blue\n9 blue\n")),
            "0#000000 5#ff0000 |5#0000ff 9#0000ff |");
}

struct refused {
  table_format format;
  const char* text;
  const char* reason;
};

TEST(color_table, that_is_broken_says_where_and_why) {
  using enum table_format;
  const refused all[] = {
      {gmt, "", "line 0: holds no colours"},
      {gmt, "# x\n\n0 red 1 mauvish\n", "line 3: \"mauvish\" is no colour"},
      {gmt, "0 red\n1 red 2 red\n", "line 2: mixes single values with ranges"},
      {gmt, "5 red 1 red\n", "line 1: has a range that does not rise"},
      {gmt, "0 red 2 red\n1 red 3 red\n", "line 2: begins before the range above it ends"},
      {gmt, "0 300 1 0\n", "line 1: \"300\" is no share of a colour from 0 to 255"},
      {gmt, "0 red 1\n", "line 1: has a value without a colour"},
      {gmt, "7\n", "line 1: has a value without a colour"},
      {gmt, "B\n", "line 1: has no colour"},
      {gmt, "# COLOR_MODEL = LAB\n",
       "line 1: \"LAB\" is no colour model; there are RGB, HSV and CMYK"},
      {gmt, "0 400-1-1 1 red\n", "line 1: \"400\" is no share of a colour"},
      {qgis, "INTERPOLATION:CUBIC\n",
       "line 1: \"CUBIC\" is no interpolation; there are INTERPOLATED, DISCRETE and EXACT"},
      {qgis, "1,2,3\n", "line 1: needs a value and four parts of a colour"},
      {qgis, "INTERPOLATION:DISCRETE\n2,0,0,0,255,\n1,0,0,0,255,\n",
       "line 3: has classes that do not rise"},
      {qgis, "inf,0,0,0,255,\n1,0,0,0,255,\n",
       "line 2: has an infinite value, which goes with DISCRETE"},
      {qgis, "x,0,0,0,255,\n", "line 1: \"x\" is no value"},
      {gdal, "0 red\n", "line 1: needs two values at least"},
      {gdal, "0 red\n10 mauve\n", "line 2: \"mauve\" is no colour"},
      {gdal, "0 1 2\n", "line 1: needs a value and three or four parts of a colour"},
      {gdal, "0 red\n50% blue\n", "line 2: mixes values and percentages"},
      {gdal, "0 -1 2 3\n", "line 1: \"-1\" is no share of a colour from 0 to 255"},
      {gdal, "1e999 1 2 3\n", "line 1: \"1E999\" is no value"},
  };
  for (const refused& each : all) {
    try {
      parse_color_table("t.txt", each.text, each.format);
      ADD_FAILURE() << each.text;
    } catch (const failure& why) {
      EXPECT_EQ(why.what(), "t.txt: " + std::string(each.reason)) << each.text;
    }
  }
}

TEST(color_table, is_known_by_its_name_or_its_first_lines) {
  EXPECT_EQ(format_of("a.CPT", "0 1 2 3"), table_format::gmt);
  EXPECT_EQ(format_of("a.txt", "# COLOR_MODEL = RGB\n"), table_format::gmt);
  EXPECT_EQ(format_of("a.txt", "# x\nINTERPOLATION:EXACT\n"), table_format::qgis);
  EXPECT_EQ(format_of("a.txt", "0 1 2 3"), table_format::gdal);
}

TEST(color_names, are_those_of_x_in_any_case) {
  EXPECT_EQ(text_of(color_of_name("DarkOrange")), "#ff8c00");
  EXPECT_EQ(text_of(color_of_name("green")), "#00ff00");
  EXPECT_EQ(text_of(color_of_name("gray50")), "#808080");
  EXPECT_EQ(text_of(color_of_name("gray101")), "none");
  EXPECT_EQ(text_of(color_of_name("")), "none");
}

// --- Scales

struct applied : testing::Test {
  std::unique_ptr<Tzu_stl_mngr, void (*)(Tzu_stl_mngr*)> manager{
      zu_stl_mngr_create("clr_mngr_style"), &zu_stl_mngr_destroy};
  Tzu_rng_scale* ranges() { return zu_stl_mngr_get_rng_scale_ptr(manager.get()); }
  Tzu_color color(std::uint64_t index) {
    return zu_stl_prm_get_color(
        zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(ranges(), index)), 0);
  }
};

TEST_F(applied, a_discrete_table_gives_a_class_for_each_range) {
  apply_color_table(gmt("0 red 10 red ;low\n20 blue 30 blue\nF white\n"), {}, manager.get());
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_range);
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 2U);
  EXPECT_EQ(zu_rng_scale_get_max(ranges(), 0), 10);
  EXPECT_EQ(zu_rng_scale_get_min(ranges(), 1), 20);
  EXPECT_EQ(zu_rng_scale_get_min_value(ranges()), 0);
  EXPECT_EQ(zu_rng_scale_get_max_value(ranges()), 30);
  EXPECT_EQ(text_of(color(1)), "#0000ff");
  EXPECT_FALSE(zu_scale_prm_get_visible(zu_rng_scale_get_min_prm_ptr(ranges())));
  EXPECT_TRUE(zu_scale_prm_get_visible(zu_rng_scale_get_max_prm_ptr(ranges())));
  EXPECT_EQ(host::text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(ranges(), 0, a); }),
            L"low");
}

TEST_F(applied, a_table_that_runs_gives_classes_of_the_colours_in_their_middles) {
  apply_color_table(gdal("0 0 0 0\n8 8 8 8\n"), {}, manager.get());
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 2U);
  EXPECT_EQ(zu_rng_scale_get_max(ranges(), 0), 4);
  EXPECT_EQ(text_of(color(0)), "#020202");
  EXPECT_EQ(text_of(color(1)), "#060606");
}

TEST_F(applied, a_long_table_keeps_to_256_classes_that_touch) {
  std::string text;
  for (int i = 0; i < 50; ++i) text += std::to_string(i) + (i % 2 != 0 ? " white\n" : " black\n");
  apply_color_table(gdal(text), {}, manager.get());
  std::uint64_t size = zu_rng_scale_get_size(ranges());
  EXPECT_LE(size, 256U);
  EXPECT_GE(size, 200U);
  for (std::uint64_t i = 1; i < size; ++i)
    ASSERT_EQ(zu_rng_scale_get_min(ranges(), i), zu_rng_scale_get_max(ranges(), i - 1)) << i;
}

TEST_F(applied, percentages_are_of_the_limits) {
  apply_color_table(gdal("0% red\n50% red\n100% red\n"), {-100, 300}, manager.get());
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 2U);
  EXPECT_EQ(zu_rng_scale_get_min_value(ranges()), -100);
  EXPECT_EQ(zu_rng_scale_get_max(ranges(), 0), 100);
  EXPECT_EQ(zu_rng_scale_get_max_value(ranges()), 300);
}

TEST_F(applied, single_values_give_a_value_scale) {
  apply_color_table(gmt("1 red one\n2.5 blue\nN white\n"), {}, manager.get());
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_value);
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager.get());
  ASSERT_EQ(zu_val_scale_get_size(scale), 2U);
  EXPECT_EQ(host::text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, 1, a); }),
            L"2.5");
  EXPECT_TRUE(zu_scale_prm_get_visible(zu_val_scale_get_other_prm_ptr(scale)));
}

TEST_F(applied, a_scale_comes_back_from_each_format) {
  const char text[] = "0 1/2/3 10 1/2/3\n10 4/5/6 20.5 4/5/6\nB 7/8/9\nF 10/11/12\n";
  for (table_format format : {table_format::gmt, table_format::qgis, table_format::gdal}) {
    apply_color_table(gmt(text), {}, manager.get());
    std::string written = text_of_scale(ranges(), format);
    EXPECT_EQ(format_of("a", written), format);
    apply_color_table(parse_color_table("a", written, format), {}, manager.get());
    ASSERT_EQ(zu_rng_scale_get_size(ranges()), 2U) << written;
    zu_rng_scale_beg_find(ranges());
    for (auto [value, expected] :
         std::initializer_list<std::pair<double, const char*>>{{-1, "#070809"},
                                                               {0.5, "#010203"},
                                                               {10, "#010203"},
                                                               {10.5, "#040506"},
                                                               {20.5, "#040506"},
                                                               {21, "#0a0b0c"}})
      EXPECT_EQ(
          text_of(*zu_stl_prm_get_clr_style_ptr(
              zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_find_scale_prm_ptr(ranges(), value)), 0)),
          expected)
          << value << "\n"
          << written;
    zu_rng_scale_end_find(ranges());
  }
}

TEST_F(applied, a_gap_and_hidden_rows_are_written_clear) {
  apply_color_table(gmt("0 1/2/3 10 1/2/3\n20 4/5/6 30 4/5/6\n"), {}, manager.get());
  EXPECT_EQ(text_of_scale(ranges(), table_format::qgis),
            "# QGIS Generated Color Map Export File\nINTERPOLATION:DISCRETE\n"
            "0,0,0,0,0,0\n10,1,2,3,255,10\n20,0,0,0,0,20\n30,4,5,6,255,30\ninf,0,0,0,0,inf\n");
  EXPECT_EQ(text_of_scale(ranges(), table_format::gmt),
            "# COLOR_MODEL = RGB\n0\t1/2/3\t10\t1/2/3\n20\t4/5/6\t30\t4/5/6\nB\t-\nF\t-\nN\t-\n");
}

TEST_F(applied, a_scale_without_classes_is_no_table) {
  EXPECT_EQ(text_of_scale(ranges(), table_format::gmt), "");
  EXPECT_THROW(write_color_table("/nonexistent/a.cpt", ranges()), failure);
}

TEST(color_table_file, is_written_whole_and_read_again) {
  namespace fs = std::filesystem;
  fs::path folder = fs::path(testing::TempDir()) / ("color_tables" + std::to_string(getpid()));
  fs::create_directories(folder);
  std::unique_ptr<Tzu_stl_mngr, void (*)(Tzu_stl_mngr*)> manager(
      zu_stl_mngr_create("clr_mngr_style"), &zu_stl_mngr_destroy);
  apply_color_table(gmt("0 1/2/3 10 1/2/3\n"), {}, manager.get());
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager.get());
  for (const char* name : {"a.cpt", "a.qgis.txt", "a.clr"}) {
    write_color_table(folder / name, scale);
    EXPECT_EQ(read_color_table(folder / name).parts.size(), 1U) << name;
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 3);
  EXPECT_THROW(write_color_table(folder / "none" / "a.cpt", scale), failure);
  fs::create_symlink("/dev/full", folder / "full.cpt");
  EXPECT_THROW(write_color_table(folder / "full.cpt", scale), failure);
  EXPECT_TRUE(fs::is_character_file("/dev/full")) << "a device is not replaced by a file";
  EXPECT_THROW(read_color_table(folder / "none.cpt"), failure);
  EXPECT_THROW(read_color_table(folder), failure);
  fs::remove_all(folder);
}

}  // namespace
}  // namespace zu::host
