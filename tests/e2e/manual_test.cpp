// The manual page and the completion know what the program knows.

#include <set>
#include <sstream>

#include "tests/e2e/program.h"

namespace tests {
namespace {

class manual : public in_a_folder {
 protected:
  std::string printed(const std::vector<std::string>& arguments) {
    outcome result = run(arguments);
    EXPECT_EQ(result.exit, 0) << result.err;
    return result.out;
  }
  /// The long options that a help text names.
  std::set<std::string> options_of(const std::string& help) {
    std::set<std::string> found;
    std::istringstream in(help);
    for (std::string line; std::getline(in, line);) {
      std::size_t at = line.find("--");
      if (at == std::string::npos || line.find_first_not_of(' ') > at) continue;
      found.insert(line.substr(at, line.find_first_of(" ,\n", at) - at));
    }
    return found;
  }
};

TEST_F(manual, names_every_option_of_every_command) {
  std::string page = printed({"manual", "man"}), script = printed({"manual", "bash"});
  for (const char* command : {"render", "info"}) {
    std::set<std::string> options = options_of(printed({command, "--help"}));
    EXPECT_GE(options.size(), 2u);
    for (const std::string& option : options) {
      std::string marked;
      for (char c : option) marked += c == '-' ? "\\-" : std::string(1, c);
      EXPECT_NE(page.find(marked), std::string::npos) << option;
      EXPECT_NE(script.find(option), std::string::npos) << option;
    }
  }
}

TEST_F(manual, completes_commands_and_options) {
  write("zugrid.bash", printed({"manual", "bash"}));
  write("ask.bash", "source " + path("zugrid.bash") +
                        "\nCOMP_WORDS=(\"$@\")\nCOMP_CWORD=$(($# - 1))\n"
                        "compopt() { :; }\n_zugrid\nprintf '%s ' \"${COMPREPLY[@]}\"\n");
  auto completed = [&](const std::string& words) {
    std::string command = "bash " + path("ask.bash") + " " + words + " > " + path("said");
    EXPECT_EQ(std::system(command.c_str()), 0);
    return text_of_file(path("said"));
  };
  EXPECT_EQ(completed("zugrid re"), "render ");
  EXPECT_EQ(completed("zugrid render --simp"), "--simple ");
  EXPECT_EQ(completed("zugrid info --js"), "--json ");
  EXPECT_EQ(completed("zugrid render " + path("zugrid.b")), path("zugrid.bash") + " ");
}

}  // namespace
}  // namespace tests
