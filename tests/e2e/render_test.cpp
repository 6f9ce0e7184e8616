// Pictures of small grids, by pixel: where a pixel covers a cell, it shows that cell.

#include "tests/e2e/program.h"

namespace tests {
namespace {

constexpr rgba blue{0, 0, 255, 255}, green{0, 255, 0, 255}, red{255, 0, 0, 255},
    white{255, 255, 255, 255};
using pixels = std::vector<rgba>;

class render : public in_a_folder {
 protected:
  /// The pixels of a run that must succeed in silence.
  pixels drawn(const std::string& source, const std::vector<std::string>& more) {
    outcome result = in_a_folder::render(source, more);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return picture(path("o.png")).all();
  }
};

const std::vector<std::string> two_classes{"--breaks", "0,10,20", "--colors",
                                           "#0000ff,#00ff00,#ff0000,#ffffff"};
std::vector<std::string> with(std::vector<std::string> all, const std::vector<std::string>& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

TEST_F(render, each_pixel_shows_the_class_of_its_cell) {
  std::string source = floats("g.tif", 3, 2, {-5, 0, 0.5, 10, 20, 20.5});
  EXPECT_EQ(drawn(source, with(two_classes, {"--size", "3x2"})),
            (pixels{blue, blue, green, green, red, white}));
}

TEST_F(render, as_many_colours_as_classes_hide_the_tails) {
  std::string source = floats("g.tif", 4, 1, {0, 5, 15, 25});
  EXPECT_EQ(drawn(source, {"--breaks", "0,10,20", "--colors", "#00ff00,#ff0000", "--size", "4x1"}),
            (pixels{clear, green, red, clear}));
}

TEST_F(render, boundaries_may_be_negative_and_scientific) {
  std::string source = floats("g.tif", 2, 1, {-1.5, 150});
  EXPECT_EQ(
      drawn(source, {"--breaks", "-2,-1e0,+2.0e2", "--colors", "#00ff00,#ff0000", "--size", "2x1"}),
      (pixels{green, red}));
}

TEST_F(render, a_value_scale_paints_its_values_and_other_the_rest) {
  std::string source = floats("g.tif", 3, 1, {1, 2, 7});
  EXPECT_EQ(drawn(source, {"--values", "1=#ff0000,2=#00ff00", "--size", "3x1"}),
            (pixels{red, green, clear}));
  EXPECT_EQ(
      drawn(source, {"--values", "1=#ff0000,2=#00ff00", "--other", "#0000ff", "--size", "3x1"}),
      (pixels{red, green, blue}));
}

TEST_F(render, one_colour_fills_the_grid) {
  EXPECT_EQ(drawn(floats("g.tif", 2, 1, {1, 2}), {"--simple", "#00ff00", "--size", "2x1"}),
            (pixels{green, green}));
}

TEST_F(render, a_cell_without_data_shows_the_page) {
  double nodata = -9999;
  std::string source = floats("g.tif", 2, 1, {-9999, 5}, &nodata);
  EXPECT_EQ(drawn(source, with(two_classes, {"--size", "2x1"})), (pixels{clear, green}));
  EXPECT_EQ(drawn(source, with(two_classes, {"--size", "2x1", "--background", "#ffffff"})),
            (pixels{white, green}));
}

TEST_F(render, transparency_is_a_percentage) {
  // (25500 - 50 * 255) / 100, truncated.
  EXPECT_EQ(drawn(floats("g.tif", 1, 1, {5}),
                  {"--simple", "#ff0000", "--transparency", "50", "--size", "1x1"}),
            (pixels{{255, 0, 0, 127}}));
}

TEST_F(render, gray_runs_between_the_limits) {
  std::string source = floats("g.tif", 4, 1, {-10, 0, 100, 200});
  EXPECT_EQ(drawn(source, {"--draw", "gray", "--limits", "0,200", "--size", "4x1"}),
            (pixels{{0, 0, 0, 255}, {0, 0, 0, 255}, {128, 128, 128, 255}, white}));
}

TEST_F(render, interpolation_changes_a_range_scale_and_nothing_else) {
  std::string source = floats("g.tif", 2, 2, {5, 15, 5, 15});
  std::vector<std::string> gray{"--draw", "gray", "--limits", "0,20", "--size", "4x4"};
  EXPECT_EQ(drawn(source, with(gray, {"--interpolate"})), drawn(source, gray));
  std::vector<std::string> classes = with(two_classes, {"--size", "4x4"});
  pixels smooth = drawn(source, with(classes, {"--interpolate"})), plain = drawn(source, classes);
  EXPECT_EQ(plain.front(), green);
  EXPECT_EQ(smooth.front(), clear) << "the outermost half of a cell has no value between cells";
}

TEST_F(render, gray_takes_its_limits_from_the_field) {
  std::string source = floats("g.tif", 3, 1, {100, 150, 200});
  EXPECT_EQ(drawn(source, {"--draw", "gray", "--size", "3x1"}),
            (pixels{{0, 0, 0, 255}, {128, 128, 128, 255}, white}));
}

TEST_F(render, three_fields_are_named_in_any_order) {
  made_grid made = grid("g.tif", 1, 1, GDT_Float32, 3);
  const char* names[] = {"a", "b", "c"};
  for (int i = 1; i <= 3; ++i) {
    made.band(i)->SetDescription(names[i - 1]);
    made.values(i, {i * 51.0});
  }
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), {"--rgb", "c,a,b", "--limits", "0,255", "--size", "1x1"}),
            (pixels{{153, 51, 102, 255}}));
}

TEST_F(render, the_field_is_chosen_by_name) {
  made_grid made = grid("g.tif", 1, 1, GDT_Float32, 2);
  made.values(1, {5});
  made.values(2, {15});
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), with(two_classes, {"--field", "Band 2", "--size", "1x1"})),
            (pixels{red}));
}

TEST_F(render, byte_bands_with_colour_roles_show_as_the_image_they_are) {
  made_grid made = grid("g.tif", 2, 1, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  for (int i = 1; i <= 3; ++i) {
    made.band(i)->SetNoDataValue(0);
    made.values(i, {i * 60.0, 0});
  }
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), {"--size", "2x1"}), (pixels{{60, 120, 180, 255}, clear}));
}

TEST_F(render, a_palette_gives_the_colours) {
  made_grid made = grid("g.tif", 2, 1, GDT_Byte);
  GDALColorTable table;
  GDALColorEntry first{10, 20, 30, 255}, second{200, 100, 50, 255};
  table.SetColorEntry(0, &first);
  table.SetColorEntry(1, &second);
  made.band(1)->SetColorTable(&table);
  made.values(1, {1, 0});
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), {"--size", "2x1"}),
            (pixels{{200, 100, 50, 255}, {10, 20, 30, 255}}));
}

TEST_F(render, without_options_a_grid_has_ten_equal_classes_between_its_limits) {
  std::vector<double> values;
  for (int i = 0; i <= 10; ++i) values.push_back(i);
  pixels shown = drawn(floats("g.tif", 11, 1, values), {"--size", "11x1"});
  ASSERT_EQ(shown.size(), 11u);
  // 0 is the lower tail and 1 to 10 are one class each: eleven colours, none twice.
  for (std::size_t i = 0; i < shown.size(); ++i) {
    EXPECT_EQ(shown[i][3], 255);
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(shown[i], shown[j]) << i << " " << j;
  }
  EXPECT_EQ(shown[0][2], 255) << "blue at the low end";
  EXPECT_EQ(shown[10][0], 255) << "red at the high end";
}

TEST_F(render, the_last_source_lies_on_top) {
  double nodata = -1;
  std::string low = floats("low.tif", 2, 1, {5, 5});
  std::string high = floats("high.tif", 2, 1, {-1, 15}, &nodata);
  outcome result =
      run(with({"render", low, high, "-o", path("o.png"), "--size", "2x1"}, two_classes));
  ASSERT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(picture(path("o.png")).all(), (pixels{green, red}));
}

TEST_F(render, options_hold_for_the_sources_that_can_take_them) {
  made_grid image = grid("image.tif", 1, 1, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  for (int i = 1; i <= 3; ++i) image.values(i, {i * 10.0});
  image.close();
  std::string heights = floats("heights.tif", 1, 1, {5});
  outcome result = run({"render", heights, path("image.tif"), "-o", path("o.png"), "--draw",
                        "image", "--size", "1x1"});
  EXPECT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(picture(path("o.png")).all(), (pixels{{10, 20, 30, 255}}));
}

TEST_F(render, a_visible_box_is_widened_about_its_centre) {
  // The 2 by 1 box becomes 2 by 2: half a cell more above and below.
  std::string source = floats("g.tif", 2, 3, {25, 25, 5, 15, 25, 25});
  pixels shown = drawn(source, with(two_classes, {"--extent", "0,1,2,2", "--size", "4x4"}));
  ASSERT_EQ(shown.size(), 16u);
  EXPECT_EQ(shown[0], white);
  EXPECT_EQ(shown[4], green);
  EXPECT_EQ(shown[7], red);
  EXPECT_EQ(shown[8], green);
  EXPECT_EQ(shown[15], white);
}

TEST_F(render, a_negative_box_needs_no_equals_sign) {
  made_grid made = grid("g.tif", 2, 1, GDT_Float32);
  made.transform({-10, 1, 0, -20, 0, -1});
  made.values(1, {5, 15});
  made.close();
  pixels expected{green, red};
  EXPECT_EQ(
      drawn(path("g.tif"), with(two_classes, {"--extent", "-10,-21,-8,-20", "--size", "2x1"})),
      expected);
  EXPECT_EQ(drawn(path("g.tif"), with(two_classes, {"--extent=-10,-21,-8,-20", "--size", "2x1"})),
            expected);
}

TEST_F(render, rows_that_run_north_in_the_file_show_the_right_way_up) {
  made_grid made = grid("g.tif", 1, 2, GDT_Float32);
  made.transform({0, 1, 0, 0, 0, 1});
  made.values(1, {5, 15});  // the first row of the file is the southern one
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), with(two_classes, {"--size", "1x2"})), (pixels{red, green}));
}

TEST_F(render, a_grid_turned_by_a_right_angle_shows_turned) {
  made_grid made = grid("g.tif", 2, 1, GDT_Float32);
  made.transform({0, 0, 1, 0, 1, 0});  // columns run north, rows run east
  made.values(1, {5, 15});
  made.close();
  EXPECT_EQ(drawn(path("g.tif"), with(two_classes, {"--size", "1x2"})), (pixels{red, green}));
}

TEST_F(render, a_grid_without_any_value_is_an_empty_picture_with_a_warning) {
  double nodata = 7;
  outcome result = in_a_folder::render(floats("g.tif", 2, 1, {7, 7}, &nodata), {"--size", "2x1"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_NE(result.err.find("zugrid: warning: "), std::string::npos) << result.err;
  EXPECT_EQ(picture(path("o.png")).all(), (pixels{clear, clear}));
}

TEST_F(render, an_extent_beside_the_data_is_an_empty_picture_with_a_warning) {
  outcome result = in_a_folder::render(floats("g.tif", 1, 1, {7}),
                                       {"--size", "2x2", "--extent", "100,100,101,101"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_NE(result.err.find("zugrid: warning: "), std::string::npos) << result.err;
}

TEST_F(render, numbers_have_a_point_in_a_decimal_comma_locale) {
  std::string source = floats("g.tif", 2, 1, {0.25, 0.75});
  outcome result = run({"render", source, "-o", path("o.png"), "--size", "2x1", "--breaks",
                        "0.1,0.5,0.9", "--colors", "#00ff00,#ff0000"},
                       [] { setenv("LC_ALL", "de_DE.UTF-8", 1); });
  ASSERT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(picture(path("o.png")).all(), (pixels{green, red}));
}

TEST_F(render, a_tiff_carries_its_georeference) {
  made_grid made = grid("g.tif", 2, 2, GDT_Float32);
  made.transform({500000, 10, 0, 6000020, 0, -10});
  made.projection("EPSG:32637");
  made.values(1, {1, 2, 3, 4});
  made.close();
  outcome result = run({"render", path("g.tif"), "-o", path("o.tif"), "--size", "4x4"});
  ASSERT_EQ(result.exit, 0) << result.err;
  std::unique_ptr<GDALDataset> set(GDALDataset::Open(path("o.tif").c_str(), GDAL_OF_RASTER));
  ASSERT_TRUE(set);
  std::array<double, 6> t{};
  ASSERT_EQ(set->GetGeoTransform(t.data()), CE_None);
  EXPECT_EQ(t, (std::array<double, 6>{500000, 5, 0, 6000020, 0, -5}));
  ASSERT_NE(set->GetSpatialRef(), nullptr);
  EXPECT_STREQ(set->GetSpatialRef()->GetAuthorityCode(nullptr), "32637");
}

TEST_F(render, a_scene_projection_moves_the_grid) {
  made_grid made = grid("g.tif", 2, 2, GDT_Float32);
  made.transform({-1, 1, 0, 1, 0, -1});  // a box of two degrees about 0, 0
  made.projection("EPSG:4326");
  made.values(1, {5, 15, 15, 5});
  made.close();
  // One degree is 111,319.49 m on the equator of Web Mercator; no low corner of a pixel is at 0.
  pixels shown =
      drawn(path("g.tif"), with(two_classes, {"--crs", "EPSG:3857", "--extent",
                                              "-90000,-90000,110000,110000", "--size", "4x4"}));
  EXPECT_EQ(shown, (pixels{green, green, red, red, green, green, red, red, red, red, green, green,
                           red, red, green, green}));
}

TEST_F(render, a_grid_without_projection_is_drawn_as_it_lies_with_a_warning) {
  std::string source = floats("g.tif", 2, 1, {5, 15});
  outcome result =
      in_a_folder::render(source, with(two_classes, {"--size", "2x1", "--crs", "EPSG:3857"}));
  EXPECT_EQ(result.exit, 0);
  EXPECT_NE(result.err.find("warning: " + source + ": has no projection"), std::string::npos)
      << result.err;
  EXPECT_EQ(picture(path("o.png")).all(), (pixels{green, red}));
}

TEST_F(render, other_formats_open_too) {
  write("g.asc",
        "ncols 2\nnrows 1\nxllcorner 0\nyllcorner 0\ncellsize 1\nNODATA_value -9\n5.5 15.5\n");
  EXPECT_EQ(drawn(path("g.asc"), with(two_classes, {"--size", "2x1"})), (pixels{green, red}));
  for (const char* kind : {"netCDF", "HFA", "PNG"}) {
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(kind);
    if (driver == nullptr) continue;
    std::string name = path(std::string("copy_of_") + kind);
    made_grid made = grid("bytes.tif", 2, 1, GDT_Byte);
    made.values(1, {5, 15});
    made.close();
    std::unique_ptr<GDALDataset> from(GDALDataset::Open(path("bytes.tif").c_str()));
    std::unique_ptr<GDALDataset>(
        driver->CreateCopy(name.c_str(), from.get(), FALSE, nullptr, nullptr, nullptr));
    EXPECT_EQ(drawn(name, with(two_classes, {"--size", "2x1"})), (pixels{green, red})) << kind;
  }
}

TEST_F(render, a_grid_inside_an_archive_opens_by_its_path) {
  std::string source = floats("g.tif", 2, 1, {5, 15});
  std::string zip = "/vsizip/" + path("z.zip") + "/g.tif";
  VSILFILE* inside = VSIFOpenL(zip.c_str(), "wb");
  ASSERT_NE(inside, nullptr);
  std::string bytes = text_of_file(source);
  VSIFWriteL(bytes.data(), 1, bytes.size(), inside);
  VSIFCloseL(inside);
  EXPECT_EQ(drawn(zip, with(two_classes, {"--size", "2x1"})), (pixels{green, red}));
}

TEST_F(render, looking_at_a_file_leaves_nothing_beside_it) {
  std::string source = floats("g.tif", 2, 1, {5, 15});
  drawn(source, {"--size", "2x1"});
  ASSERT_EQ(run({"info", source, "--stats"}).exit, 0);
  EXPECT_EQ(file_count(), 2u) << "the grid and the picture";
}

}  // namespace
}  // namespace tests
