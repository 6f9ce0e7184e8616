// Classes of the values of a grid, as lines, as data and as a picture.

#include <nlohmann/json.hpp>

#include "tests/e2e/program.h"

namespace tests {
namespace {

using json = nlohmann::json;

class classify : public in_a_folder {
 protected:
  /// Eight cells: 1 2 3, 10 11 12, 30, 40.
  std::string groups() { return floats("g.tif", 8, 1, {1, 2, 3, 10, 11, 12, 30, 40}); }
  std::string lines(const std::vector<std::string>& more) {
    std::vector<std::string> all{"classify", path("g.tif")};
    all.insert(all.end(), more.begin(), more.end());
    outcome result = run(all);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }
  std::string refused(const std::vector<std::string>& more) {
    std::vector<std::string> all{"classify", path("g.tif")};
    all.insert(all.end(), more.begin(), more.end());
    outcome result = run(all);
    EXPECT_EQ(result.exit, 2) << result.out;
    EXPECT_EQ(result.out, "");
    return result.err;
  }
};

TEST_F(classify, prints_a_boundary_a_line) {
  groups();
  EXPECT_EQ(lines({"--method", "equal", "--count", "3"}), "1\n14\n27\n40\n");
  EXPECT_EQ(lines({"--method", "equal", "--count", "2", "--min", "0", "--max", "5"}),
            "0\n2.5\n5\n");
  EXPECT_EQ(
      lines({"--method", "equal", "--count", "2", "--min", "0", "--max", "5", "--digits", "0"}),
      "0\n3\n5\n");
  EXPECT_EQ(lines({"--method", "geometric", "--count", "2", "--max", "100", "--digits", "0"}),
            "1\n10\n100\n");
}

TEST_F(classify, log_classes_go_by_one_two_five) {
  groups();
  EXPECT_EQ(lines({"--method", "log", "--power", "0"}), "0\n1\n2\n5\n10\n20\n50\n");
  EXPECT_EQ(lines({"--method", "log", "--power", "1", "--start", "2"}), "0\n20\n50\n");
  EXPECT_EQ(lines({"--method", "log", "--power", "1", "--count", "9"}), "0\n10\n20\n50\n")
      << "it has as many classes as it needs";
  EXPECT_EQ(lines({"--method", "log", "--power", "0", "--start", "5", "--two-sided", "--min", "-7",
                   "--max", "9"}),
            "-10\n-5\n5\n10\n");
  EXPECT_EQ(lines({"--method", "log", "--max", "400"}), "0\n1\n2\n5\n10\n20\n50\n100\n200\n500\n")
      << "two powers below the maximum's";
}

TEST_F(classify, deviations_are_counted_from_the_mean) {
  floats("g.tif", 4, 1, {2, 4, 4, 6});  // mean 4, deviation sqrt(8 / 3)
  EXPECT_EQ(lines({"--method", "stddev", "--count", "2", "--digits", "-3"}), "2.367\n4\n5.633\n");
  EXPECT_EQ(lines({"--method", "stddev", "--count", "2", "--coefficient", "2", "--digits", "-3"}),
            "0.734\n4\n7.266\n");
}

TEST_F(classify, quantiles_hold_as_many_cells_each) {
  std::vector<double> cells(1000);
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = static_cast<double>(i * i);
  floats("g.tif", 100, 10, cells);
  json found = json::parse(lines({"--method", "quantile", "--count", "4", "--json"}));
  // A quarter of the cells lies below 250^2, and so on; a class of the histogram is 3,899 wide.
  std::vector<double> boundaries = found.at("boundaries");
  ASSERT_EQ(boundaries.size(), 5u);
  for (int i = 1; i < 4; ++i)
    EXPECT_NEAR(boundaries[static_cast<std::size_t>(i)], 62500.0 * i * i, 3900) << i;
  EXPECT_EQ(boundaries.back(), 998001);
}

TEST_F(classify, natural_breaks_lie_in_the_gaps) {
  groups();
  EXPECT_EQ(lines({"--method", "natural", "--count", "3"}), "1\n3\n12\n40\n");
}

TEST_F(classify, natural_breaks_of_a_seed_are_always_the_same) {
  std::vector<double> cells(20000);
  for (std::size_t i = 0; i < cells.size(); ++i)
    cells[i] = static_cast<double>((i * 7919) % 20000) * 0.37;
  floats("g.tif", 200, 100, cells);
  std::string first = lines({"--method", "natural", "--count", "5", "--seed", "4"});
  EXPECT_EQ(lines({"--method", "natural", "--count", "5", "--seed", "4"}), first);
  EXPECT_NE(lines({"--method", "natural", "--count", "5", "--seed", "5"}), first);
}

TEST_F(classify, data_name_the_field_and_say_what_each_class_is_called) {
  made_grid made = grid("g.tif", 2, 1, GDT_Float32, 2);
  made.values(1, {0, 1});
  made.values(2, {-5, 5});
  made.band(2)->SetDescription("slope");
  made.close();
  json found = json::parse(lines({"--field", "slope", "--method", "equal", "--count", "2",
                                  "--digits", "0", "--json", "--lang", "en"}));
  EXPECT_EQ(found.at("field"), "slope");
  EXPECT_EQ(found.at("method"), "equal");
  EXPECT_EQ(found.at("boundaries"), (json{-5, 0, 5}));
  ASSERT_EQ(found.at("classes").size(), 2u);
  EXPECT_EQ(found["classes"][0]["minimum"], -5);
  EXPECT_EQ(found["classes"][0]["maximum"], 0);
  EXPECT_EQ(found["classes"][0]["caption"], "-5 – 0");
}

TEST_F(classify, refuses_what_does_not_go_together) {
  groups();
  EXPECT_NE(refused({"--method", "equal", "--power", "1"}).find("--power"), std::string::npos);
  EXPECT_NE(refused({"--method", "equal", "--seed", "1"}).find("--seed"), std::string::npos);
  EXPECT_NE(refused({"--method", "stddev", "--min", "1"}).find("--min"), std::string::npos);
  EXPECT_NE(refused({"--method", "equal", "--coefficient", "1"}).find("--coefficient"),
            std::string::npos);
  refused({"--method", "equal", "--count", "0"});
  refused({"--method", "equal", "--min", "low"});
  refused({"--method", "none"});
  refused({});
}

TEST_F(classify, fails_with_a_reason) {
  groups();
  outcome result = run({"classify", path("g.tif"), "--method", "equal", "--field", "depth"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.err, "zugrid: " + path("g.tif") + ": has no field \"depth\"\n");
  const double nodata = 7;
  floats("empty.tif", 2, 1, {7, 7}, &nodata);
  result = run({"classify", path("empty.tif"), "--method", "equal"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.err,
            "zugrid: " + path("empty.tif") + ": \"Band 1\" has no values to make classes of\n");
  result = run({"classify", path("none.tif"), "--method", "equal"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_NE(result.err.find("none.tif"), std::string::npos);
}

class render_of_classes : public in_a_folder {
 protected:
  std::vector<rgba> drawn(const std::string& source, const std::vector<std::string>& more) {
    outcome result = render(source, more);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return picture(path("o.png")).all();
  }
};

TEST_F(render_of_classes, is_a_picture_in_the_colours_that_are_given) {
  std::string source = floats("g.tif", 8, 1, {1, 2, 3, 10, 11, 12, 30, 40});
  const rgba red{255, 0, 0, 255}, green{0, 255, 0, 255}, blue{0, 0, 255, 255};
  const rgba black{0, 0, 0, 255}, white{255, 255, 255, 255};
  // Breaks 1, 3, 12, 40: the least value is the lower tail's.
  EXPECT_EQ(drawn(source, {"--classify", "natural", "--count", "3", "--size", "8x1", "--colors",
                           "#000000,#ff0000,#00ff00,#0000ff,#ffffff"}),
            (std::vector<rgba>{black, red, red, green, green, green, blue, blue}));
  EXPECT_EQ(drawn(source, {"--classify", "equal", "--min", "0", "--max", "20", "--count", "1",
                           "--size", "8x1", "--colors", "#000000,#ff0000,#ffffff"}),
            (std::vector<rgba>{red, red, red, red, red, red, white, white}));
}

TEST_F(render_of_classes, takes_its_colours_from_blue_through_white_to_red) {
  std::string source = floats("g.tif", 3, 1, {0, 5, 20});
  EXPECT_EQ(drawn(source, {"--classify", "equal", "--count", "1", "--max", "10", "--size", "3x1"}),
            (std::vector<rgba>{{0, 0, 255, 255}, {255, 255, 255, 255}, {255, 0, 0, 255}}));
}

TEST_F(render_of_classes, may_have_a_row_for_each_value) {
  std::string source = floats("g.tif", 4, 1, {7, 3, 5, 3});
  EXPECT_EQ(drawn(source, {"--unique", "--size", "4x1"}),
            (std::vector<rgba>{
                {255, 0, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}, {0, 0, 255, 255}}));
}

TEST_F(render_of_classes, says_that_there_are_more_values_than_rows) {
  std::vector<double> cells(1500);
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = static_cast<double>(i);
  outcome result = render(floats("g.tif", 50, 30, cells), {"--unique"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_NE(result.err.find("more than 1000 values"), std::string::npos) << result.err;
}

TEST_F(render_of_classes, refuses_what_does_not_go_together) {
  std::string source = floats("g.tif", 2, 1, {1, 2});
  auto exit_of = [&](const std::vector<std::string>& more) { return render(source, more).exit; };
  EXPECT_EQ(exit_of({"--classify", "equal", "--breaks", "1,2"}), 2);
  EXPECT_EQ(exit_of({"--classify", "equal", "--unique"}), 2);
  EXPECT_EQ(exit_of({"--classify", "equal", "--draw", "gray"}), 2);
  EXPECT_EQ(exit_of({"--unique", "--colors", "#000000"}), 2);
  EXPECT_EQ(exit_of({"--count", "3"}), 2);
  EXPECT_EQ(exit_of({"--classify", "equal", "--count", "3", "--colors", "#000000"}), 1)
      << "how many classes there are is known then only";
}

}  // namespace
}  // namespace tests
