// A person presses Ctrl-C, or the machine kills: what is on disk is whole.

#include <chrono>
#include <thread>

#include "tests/e2e/program.h"

namespace tests {
namespace {

class interrupted : public in_a_folder {
 protected:
  /// Runs the program and sends it a signal after a while. Gives its wait status.
  int run_for(std::chrono::microseconds while_running, int signal,
              std::vector<std::string> arguments) const {
    pid_t child = fork();
    if (child == 0) {
      if (std::freopen("/dev/null", "w", stderr) == nullptr) _exit(126);
      std::string program = program_path();
      std::vector<char*> all{program.data()};
      for (std::string& each : arguments) all.push_back(each.data());
      all.push_back(nullptr);
      execv(program.c_str(), all.data());
      _exit(127);
    }
    std::this_thread::sleep_for(while_running);
    kill(child, signal);
    int status = 0;
    waitpid(child, &status, 0);
    return status;
  }
};

TEST_F(interrupted, a_picture_is_the_old_one_or_the_new_one) {
  std::string source = floats("g.tif", 2, 2, {1, 2, 3, 4});
  const std::vector<std::string> old_look{"--size", "16x16", "--simple", "#ff0000"};
  const std::vector<std::string> line{"render", source,    "-o",       path("o.png"),
                                      "--size", "800x800", "--simple", "#00ff00"};
  int ended_by_signal = 0, whole = 0;
  auto started = std::chrono::steady_clock::now();
  ASSERT_EQ(run(line).exit, 0);
  auto once = std::chrono::steady_clock::now() - started;
  for (int signal : {SIGINT, SIGKILL}) {
    for (int i = 0; i < 20; ++i) {
      ASSERT_EQ(render(source, old_look).exit, 0);
      auto after = std::chrono::duration_cast<std::chrono::microseconds>(once) * i / 8;
      int status = run_for(after, signal, line);
      ended_by_signal += WIFSIGNALED(status) ? 1 : 0;
      picture shown(path("o.png"));
      bool is_new = shown.nx() == 800;
      whole += is_new ? 1 : 0;
      EXPECT_EQ(shown.nx(), is_new ? 800 : 16);
      EXPECT_EQ(shown.at(shown.nx() - 1, shown.ny() - 1),
                is_new ? (rgba{0, 255, 0, 255}) : (rgba{255, 0, 0, 255}));
      if (signal == SIGINT) {
        EXPECT_EQ(file_count(), 2u) << "something was left behind";
      }
    }
  }
  EXPECT_GT(ended_by_signal, 0);
  EXPECT_GT(whole, 0);
}

}  // namespace
}  // namespace tests
