// Scales out of files and into them, by the picture.

#include "tests/e2e/program.h"

namespace tests {
namespace {

constexpr rgba blue{0, 0, 255, 255}, green{0, 255, 0, 255}, red{255, 0, 0, 255},
    white{255, 255, 255, 255};
using pixels = std::vector<rgba>;

class scale_files : public in_a_folder {
 protected:
  pixels drawn(const std::string& source, const std::vector<std::string>& more) {
    outcome result = render(source, more);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return picture(path("o.png")).all();
  }
  /// What standard error says of a run that must fail with this code.
  std::string refused(int exit, const std::string& source, const std::vector<std::string>& more) {
    outcome result = render(source, more);
    EXPECT_EQ(result.exit, exit) << result.err;
    return result.err;
  }
};

TEST_F(scale_files, a_scale_that_was_saved_draws_the_same) {
  std::string source = floats("g.tif", 4, 1, {-5, 5, 15, 25});
  pixels expected{blue, green, red, white};
  EXPECT_EQ(drawn(source, {"--breaks", "0,10,20", "--colors", "#0000ff,#00ff00,#ff0000,#ffffff",
                           "--size", "4x1", "--save-scale", path("a._rg")}),
            expected);
  EXPECT_EQ(drawn(source, {"--scale", path("a._rg"), "--size", "4x1"}), expected);

  expected = {clear, green, clear, red};
  EXPECT_EQ(drawn(source, {"--values", "5=#00ff00,25=#ff0000", "--size", "4x1", "--save-scale",
                           path("a._vl")}),
            expected);
  EXPECT_EQ(drawn(source, {"--scale", path("a._vl"), "--size", "4x1"}), expected);
}

TEST_F(scale_files, the_field_is_the_files_own_if_the_grid_has_it) {
  made_grid grid = this->grid("g.tif", 2, 1, GDT_Float32, 2);
  grid.values(1, {1, 1});
  grid.values(2, {5, 15});
  grid.close();
  drawn(path("g.tif"), {"--field", "Band 2", "--breaks", "0,10,20", "--colors", "#00ff00,#ff0000",
                        "--save-scale", path("a._rg")});
  EXPECT_EQ(drawn(path("g.tif"), {"--scale", path("a._rg"), "--size", "2x1"}),
            (pixels{green, red}));
  EXPECT_EQ(drawn(path("g.tif"), {"--scale", path("a._rg"), "--field", "Band 1", "--size", "2x1"}),
            (pixels{green, green}));
  std::string other = floats("h.tif", 2, 1, {15, 5});
  EXPECT_EQ(drawn(other, {"--scale", path("a._rg"), "--size", "2x1"}), (pixels{red, green}));
}

TEST_F(scale_files, a_legend_of_arcview_is_a_scale) {
  write("soil.avl",
        "/3.2\n(ODB.1\n\tRoots:\t2\n)\n"
        "(Legend.2\n\tLegType:\t0x08\n\tSymbols:\t3\n\tClass:\t4\n\tClass:\t5\n)\n"
        "(SymList.3\n\tChild:\t6\n\tChild:\t7\n)\n"
        "(LClass.4\n\tLabel:\t\"Sand\"\n\tMinNum:\t1.0\n\tMaxNum:\t1.0\n)\n"
        "(LClass.5\n\tLabel:\t\"Clay\"\n\tMinNum:\t3.0\n\tMaxNum:\t3.0\n)\n"
        "(BShSym.6\n\tColor:\t8\n)\n(BShSym.7\n\tColor:\t9\n)\n"
        "(TClr.8\n\tRed:\t0xff00\n)\n(TClr.9\n\tBlue:\t0xff00\n)\n");
  EXPECT_EQ(drawn(floats("g.tif", 3, 1, {1, 2, 3}), {"--scale", path("soil.avl"), "--size", "3x1"}),
            (pixels{red, clear, blue}));
}

TEST_F(scale_files, what_is_no_scale_is_refused_with_the_reason) {
  std::string source = floats("g.tif", 2, 1, {1, 2});
  write("broken._rg", "<range_scale");
  write("soil.avl", "no legend");
  EXPECT_NE(refused(1, source, {"--scale", path("none._rg")}).find("no such file"),
            std::string::npos);
  EXPECT_NE(refused(1, source, {"--scale", path("broken._rg")}).find("is no XML"),
            std::string::npos);
  EXPECT_NE(refused(1, source, {"--scale", path("soil.avl")}).find("is no text of ArcView objects"),
            std::string::npos);
  EXPECT_NE(refused(1, source, {"--scale", source}).find("is no scale of a grid"),
            std::string::npos);
  EXPECT_NE(refused(1, source, {"--save-scale", path("a._vl")}).find("end in ._rg"),
            std::string::npos);
  EXPECT_NE(refused(1, source, {"--simple", "#00ff00", "--save-scale", path("a._rg")})
                .find("no layer has a scale"),
            std::string::npos);
  EXPECT_NE(refused(2, source, {"--scale", path("a._rg"), "--breaks", "0,1"}).find("--scale"),
            std::string::npos);
}

}  // namespace
}  // namespace tests
