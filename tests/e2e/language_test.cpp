// In which language grids speak: --lang, else the setting, else the system's.

#include "tests/e2e/program.h"

namespace tests {
namespace {

class language : public in_a_folder {
 protected:
  /// The title of what a probe says, with a system's language and a folder of settings.
  std::string probed(const std::vector<std::string>& before, const std::string& system,
                     const std::vector<std::string>& after = {}) {
    if (source_.empty()) source_ = floats("a.tif", 2, 2, {1, 2, 3, 4});
    std::vector<std::string> arguments = before;
    arguments.insert(arguments.end(), {"probe", source_, "0.5", "0.5"});
    arguments.insert(arguments.end(), after.begin(), after.end());
    outcome result = spoken(arguments, system);
    EXPECT_EQ(result.exit, 0) << result.err;
    return result.out;
  }
  outcome spoken(const std::vector<std::string>& arguments, const std::string& system = "C.UTF-8") {
    return run(arguments, [&] { setenv("LC_ALL", system.c_str(), 1); });
  }
  static bool russian(const std::string& text) { return text.find("Пикет") != std::string::npos; }
  static bool english(const std::string& text) { return text.find("Picket") != std::string::npos; }

 private:
  std::string source_;
};

TEST_F(language, is_the_systems_unless_another_is_chosen) {
  EXPECT_TRUE(english(probed({}, "C.UTF-8")));
  EXPECT_TRUE(english(probed({}, "de_DE.UTF-8")));
  EXPECT_TRUE(russian(probed({}, "ru_RU.UTF-8")));
  EXPECT_TRUE(english(probed({"--lang", "en"}, "ru_RU.UTF-8")));
  EXPECT_TRUE(russian(probed({"--lang", "ru"}, "C.UTF-8")));
  EXPECT_TRUE(russian(probed({}, "C.UTF-8", {"--lang", "ru"})));
}

TEST_F(language, that_is_set_holds_until_an_option_says_otherwise) {
  EXPECT_EQ(spoken({"config", "lang"}).out, "\n");
  EXPECT_EQ(spoken({"config", "lang", "ru"}).exit, 0);
  EXPECT_EQ(spoken({"config", "lang"}).out, "ru\n");
  EXPECT_TRUE(russian(probed({}, "C.UTF-8")));
  EXPECT_TRUE(english(probed({"--lang", "en"}, "C.UTF-8")));
  EXPECT_EQ(spoken({"config", "lang", "en"}).exit, 0);
  EXPECT_TRUE(english(probed({}, "ru_RU.UTF-8")));
}

TEST_F(language, that_nobody_speaks_is_refused) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--lang", "de", "config", "lang"},
        {"config", "lang", "de"},
        {"config", "colour"},
        {"config"}}) {
    outcome result = spoken(arguments);
    EXPECT_EQ(result.exit, 2);
    EXPECT_EQ(result.out, "");
  }
}

TEST_F(language, settings_that_are_broken_are_said_and_stop_no_drawing) {
  std::filesystem::create_directories(path("config/zugrid"));
  write("config/zugrid/settings.xml", "<zugrid_settings");
  EXPECT_TRUE(english(probed({}, "C.UTF-8")));
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"config", "lang"}, {"config", "lang", "ru"}}) {
    outcome result = spoken(arguments);
    EXPECT_EQ(result.exit, 1);
    EXPECT_NE(result.err.find("settings.xml: is no XML"), std::string::npos) << result.err;
  }
  EXPECT_EQ(text_of_file(path("config/zugrid/settings.xml")), "<zugrid_settings");
}

}  // namespace
}  // namespace tests
