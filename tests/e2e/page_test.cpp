// What is drawn besides colours, and the kinds of page it is drawn on.

#include <algorithm>
#include <cmath>

#include "tests/e2e/program.h"

namespace tests {
namespace {

constexpr rgba red{255, 0, 0, 255}, black{0, 0, 0, 255};
const std::vector<std::string> all_red{"--simple", "#ff0000"};

class page : public in_a_folder {
 protected:
  /// A slope that rises by one from column to column, 60 x 40.
  std::string slope() {
    std::vector<double> values;
    for (int i = 0; i < 60 * 40; ++i) values.push_back(i % 60);
    return floats("slope.tif", 60, 40, values);
  }
  picture drawn(const std::string& source, std::vector<std::string> more) {
    outcome result = render(source, std::move(more));
    EXPECT_EQ(result.exit, 0) << result.err;
    return picture(path("o.png"));
  }
  static bool dark(const rgba& p) { return p[3] > 0 && p[0] + p[1] + p[2] < 250; }
};

TEST_F(page, a_shade_of_part_0_keeps_the_colours_but_clears_the_lowest_row_and_column) {
  picture shown =
      drawn(slope(), {"--size", "60x40", "--simple", "#ff0000", "--hillshade", "part=0"});
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 60; ++x)
      // Samples between cells begin half a cell inside, slopes a node later, shades one more.
      EXPECT_EQ(shown.at(x, y), x > 2 && y < 37 ? red : clear) << x << ' ' << y;
  for (int x = 0; x < 60; ++x) EXPECT_EQ(shown.at(x, 39), clear);
  for (int y = 0; y < 40; ++y) EXPECT_EQ(shown.at(0, y), clear);
}

TEST_F(page, a_shade_of_part_1_is_the_light_on_the_slope) {
  // Horn's law, sun at 45 degrees in the west, a slope of 45 degrees that looks west: full light.
  picture shown = drawn(slope(), {"--size", "60x40", "--simple", "#ff0000", "--hillshade",
                                  "part=1,azimuth=270,altitude=45"});
  EXPECT_GE(shown.at(30, 20)[0], 254);
  // From the east the light only grazes it.
  shown = drawn(slope(), {"--size", "60x40", "--simple", "#ff0000", "--hillshade",
                          "part=1,azimuth=90,altitude=45"});
  EXPECT_LE(shown.at(30, 20)[0], 1);
}

TEST_F(page, isolines_stand_where_the_field_has_their_value) {
  picture shown =
      drawn(slope(), {"--size", "600x400", "--simple", "#ff0000", "--isolines", "thin=20,bold=40"});
  // Values 20 and 40 lie in the middles of columns 20 and 40: at pixels 205 and 405.
  for (int y = 100; y < 300; ++y) {
    int first = 600, last = -1;
    for (int x = 100; x < 300; ++x)
      if (shown.at(x, y) != red) first = std::min(first, x), last = std::max(last, x);
    EXPECT_NEAR(first, 205, 6) << y;
    EXPECT_LE(last - first, 3) << y;
    EXPECT_EQ(shown.at(305, y), red);
  }
  auto ink = [&](int from, int to) {
    int sum = 0;
    for (int x = from; x < to; ++x) sum += 255 - shown.at(x, 200)[0];
    return sum;
  };
  EXPECT_GT(ink(390, 420), 1.8 * ink(190, 220)) << "the bold line is no bolder";
}

TEST_F(page, numbers_stand_on_bold_lines_where_they_are_asked_for) {
  const std::vector<std::string> lines{"--size", "600x400", "--simple", "#ff0000"};
  auto with = [&](const char* settings) {
    std::vector<std::string> all = lines;
    all.insert(all.end(), {"--isolines", settings});
    picture shown = drawn(slope(), all);
    int inked = 0;
    for (int y = 0; y < 400; ++y)
      for (int x = 395; x < 416; ++x) inked += shown.at(x, y) != red ? 1 : 0;
    return inked;
  };
  EXPECT_GT(with("thin=20,bold=40,label"), with("thin=20,bold=40"));
}

TEST_F(page, an_overlay_in_a_picture_of_bands_needs_a_field) {
  made_grid made = grid("rgb.tif", 4, 4, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  for (int band = 1; band <= 3; ++band) made.values(band, std::vector<double>(16, 50.0 * band));
  made.close();
  outcome result = render(path("rgb.tif"), {"--hillshade"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_NE(result.err.find("field=NAME"), std::string::npos) << result.err;
  EXPECT_EQ(render(path("rgb.tif"), {"--hillshade", "field=Band 1"}).exit, 0);
}

TEST_F(page, a_print_shows_what_the_screen_shows) {
  std::string source = slope();
  const std::vector<std::string> look{"--size", "301x200"};
  std::vector<rgba> screen = drawn(source, look).all();
  EXPECT_EQ(drawn(source, {"--size", "301x200", "--print"}).all(), screen);
}

TEST_F(page, a_shaded_print_of_several_tiles_has_no_clear_line_inside) {
  std::vector<double> values;
  for (int i = 0; i < 700 * 8; ++i) values.push_back(std::sin(i % 700 * 0.1) * 10);
  std::string source = floats("long.tif", 700, 8, values);
  picture shown = drawn(
      source, {"--size", "7000x80", "--simple", "#ff0000", "--print", "--hillshade", "part=0.5"});
  for (int x = 20; x < 6980; ++x)
    for (int y : {20, 40, 60}) ASSERT_EQ(shown.at(x, y)[3], 255) << x << ' ' << y;
}

TEST_F(page, documents_hold_lines_as_lines) {
  std::string source = slope();
  for (const char* name : {"o.pdf", "o.svg"}) {
    outcome result = run({"render", source, "-o", path(name), "--simple", "#ff0000", "--isolines",
                          "thin=10,bold=20,label"});
    EXPECT_EQ(result.exit, 0) << result.err;
  }
  EXPECT_EQ(text_of_file(path("o.pdf")).rfind("%PDF-", 0), 0u);
  std::string svg = text_of_file(path("o.svg"));
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_NE(svg.find("<image"), std::string::npos);
  EXPECT_NE(svg.find("<path"), std::string::npos);
}

TEST_F(page, a_legend_stands_in_its_corner_and_changes_nothing_else) {
  std::string source = slope();
  const std::vector<std::string> look{"--size",   "400x300",          "--breaks",
                                      "0,30,60",  "--colors",         "#00ff00,#0000ff",
                                      "--extent", "-200,-130,260,170"};
  auto with = [&](const char* legend) {
    std::vector<std::string> all = look;
    if (legend != nullptr) all.insert(all.end(), {"--legend", legend});
    return drawn(source, all);
  };
  picture bare = with(nullptr), shown = with("bottom-left");
  int changed = 0;
  for (int y = 0; y < 300; ++y)
    for (int x = 0; x < 400; ++x) {
      bool corner = x < 200 && y > 150;
      bool same = shown.at(x, y) == bare.at(x, y);
      if (!corner) {
        EXPECT_TRUE(same) << x << ' ' << y;
      }
      changed += same ? 0 : 1;
    }
  EXPECT_GT(changed, 1000);
  EXPECT_EQ(render(source, {"--legend", "middle"}).exit, 1) << "a word behind it is a source";
  EXPECT_EQ(render(source, {"--legend=middle"}).exit, 2);
}

TEST_F(page, a_legend_alone_shows_the_colours_of_the_classes) {
  picture shown =
      drawn(slope(), {"--breaks", "0,30,60", "--colors", "#00ff00,#0000ff", "--legend", "only"});
  std::vector<rgba> pixels = shown.all();
  EXPECT_LT(shown.nx(), 400);
  for (const rgba& colour : {rgba{0, 255, 0, 255}, rgba{0, 0, 255, 255}})
    EXPECT_GT(std::count(pixels.begin(), pixels.end(), colour), 100);
  EXPECT_TRUE(std::any_of(pixels.begin(), pixels.end(), dark)) << "no text";
}

TEST_F(page, dots_an_inch_make_lines_wider) {
  auto ink = [&](const char* dots) {
    picture shown = drawn(slope(), {"--size", "600x400", "--simple", "#ff0000", "--isolines",
                                    "thin=30,bold=30", "--dpi", dots});
    int sum = 0;
    for (int x = 280; x < 340; ++x) sum += 255 - shown.at(x, 200)[0];
    return sum;
  };
  EXPECT_GT(ink("288"), 2.5 * ink("96"));
}

}  // namespace
}  // namespace tests
