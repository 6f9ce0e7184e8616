// SEG-Y sections on the command line.

#include <nlohmann/json.hpp>

#include "tests/e2e/program.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"

namespace tests {
namespace {

using section = in_a_folder;

TEST_F(section, is_drawn_with_the_first_trace_at_the_left_and_the_first_sample_on_top) {
  // Two traces of two samples of 1 ms: 1 and 2, then 3 and 4.
  made_section(8, 2)
      .header(3217, 2, 1000)
      .trace({"\x01", "\x02"})
      .trace({"\x03", "\x04"})
      .save(path("a.sgy"));
  ASSERT_EQ(render(path("a.sgy"), {"--size", "2x2", "--breaks", "0,1,2,3,4", "--colors",
                                   "#010000,#020000,#030000,#040000"})
                .exit,
            0);
  picture p(path("o.png"));
  EXPECT_EQ(p.at(0, 0), (rgba{1, 0, 0, 255}));
  EXPECT_EQ(p.at(0, 1), (rgba{2, 0, 0, 255}));
  EXPECT_EQ(p.at(1, 0), (rgba{3, 0, 0, 255}));
  EXPECT_EQ(p.at(1, 1), (rgba{4, 0, 0, 255}));
  EXPECT_FALSE(exists("a.sgy.ovr")) << "a picture does not wait for reduced copies";
}

TEST_F(section, gets_reduced_copies_where_the_settings_of_the_window_want_them) {
  numbered_section(9, 9).save(path("a.sgy"));
  std::filesystem::create_directories(path("config/zugrid"));
  for (bool wanted : {false, true}) {
    write("config/zugrid/settings.xml",
          std::string("<zugrid_settings overviews=\"") + (wanted ? "1" : "0") + "\"/>");
    outcome result = render(path("a.sgy"));
    ASSERT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(exists("a.sgy.ovr"), wanted);
  }
}

TEST_F(section, tells_its_box_in_traces_and_milliseconds) {
  numbered_section(3, 4).save(path("a.segy"));
  outcome result = run({"info", path("a.segy"), "--json"});
  ASSERT_EQ(result.exit, 0) << result.err;
  auto data = nlohmann::json::parse(result.out);
  EXPECT_EQ(data["driver"], "SEG-Y");
  EXPECT_EQ(data["size"], nlohmann::json({3, 4, 1}));
  EXPECT_EQ(data["box"], nlohmann::json({0.5, -14, 3.5, 2}));
  EXPECT_EQ(data["fields"][0]["name"], "Values");
  EXPECT_EQ(data["fields"][0]["type"], "int16");
}

TEST_F(section, that_is_not_whole_is_refused_with_the_reason) {
  write("a.sgy", numbered_section(3, 4).bytes() + "x");
  outcome result = render(path("a.sgy"));
  EXPECT_EQ(result.exit, 1);
  EXPECT_NE(result.err.find("no whole number of traces"), std::string::npos) << result.err;
  EXPECT_FALSE(exists("o.png"));
}

}  // namespace
}  // namespace tests
