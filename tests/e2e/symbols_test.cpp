// The sheet of figures and lines.

#include <algorithm>
#include <sstream>

#include "tests/e2e/program.h"
#include "zu/platform/zuk_symbols.h"

namespace tests {
namespace {

using symbols = in_a_folder;

TEST_F(symbols, figures_are_named_by_their_numbers_and_drawn) {
  outcome result = run({"symbols"});
  EXPECT_EQ(result.exit, 0);
  std::istringstream lines(result.out);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    EXPECT_EQ(line.find(std::to_string(count) + ' '), 0u) << line;
  EXPECT_EQ(count, int{zu_figure_count});

  result = run({"symbols", "-o", path("s.png")});
  EXPECT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(result.out, "");
  auto shown = picture(path("s.png")).all();
  const rgba figures{0, 82, 147, 255}, marks{204, 76, 2, 255}, ground{255, 255, 255, 255};
  for (const rgba& ink : {figures, marks})
    EXPECT_GT(std::count(shown.begin(), shown.end(), ink), 300);
  EXPECT_EQ(shown.front(), ground);
  EXPECT_EQ(run({"symbols", "-o", path("s.txt")}).exit, 2);
}

TEST_F(symbols, a_document_holds_them_as_paths) {
  ASSERT_EQ(run({"symbols", "-o", path("s.svg")}).exit, 0);
  std::string svg = text_of_file(path("s.svg"));
  EXPECT_EQ(svg.find("<image"), std::string::npos);
  EXPECT_NE(svg.find("<path"), std::string::npos);
}

}  // namespace
}  // namespace tests
