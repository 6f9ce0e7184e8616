// zugrid convert: any grid into a .pgrid file.

#include <signal.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <memory>

#include "host/cli/commands.h"
#include "host/core/failure.h"
#include "host/core/source.h"
#include "host/core/texts.h"

namespace zu::cli {
namespace {

struct texts {
  std::string source, output, volume_name;
  std::vector<std::string> fields;
  bool volume = false, profile = false;
};

volatile std::sig_atomic_t asked_to_end = 0;

/// While it lives, a signal that would end the program asks the work to stop and clean up; what was
/// asked for is done when it goes.
class gentle_end {
 public:
  gentle_end() {
    struct sigaction ours {};
    ours.sa_handler = [](int number) { asked_to_end = number; };
    ours.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < std::size(numbers); ++i) {
      sigaction(numbers[i], nullptr, &before_[i]);
      // Who set a signal to be ignored, as nohup does, means it.
      if (before_[i].sa_handler != SIG_IGN) sigaction(numbers[i], &ours, nullptr);
    }
  }
  ~gentle_end() {
    for (std::size_t i = 0; i < std::size(numbers); ++i)
      sigaction(numbers[i], &before_[i], nullptr);
    if (asked_to_end != 0) std::raise(asked_to_end);
  }
  gentle_end(const gentle_end&) = delete;
  gentle_end& operator=(const gentle_end&) = delete;

 private:
  static constexpr int numbers[] = {SIGINT, SIGTERM, SIGHUP};
  struct sigaction before_[std::size(numbers)];
};

/// A bar on a terminal, nothing in a pipe.
struct bar {
  bool terminal = isatty(STDERR_FILENO) != 0;
  int shown = -1;

  void show(double share) {
    constexpr int width = 40;
    int percent = static_cast<int>(share * 100), filled = percent * width / 100;
    if (!terminal || percent == shown) return;
    shown = percent;
    std::fprintf(stderr, "\r[%.*s%.*s] %3d %%", filled, "########################################",
                 width - filled, "                                        ", percent);
  }
  ~bar() {
    if (shown >= 0) std::fprintf(stderr, "\r%*s\r", 50, "");
  }
};

bool show(double share, void* user) {
  static_cast<bar*>(user)->show(share);
  return asked_to_end == 0;
}

std::vector<std::int64_t> chosen(const host::source& source, const texts& given) {
  std::vector<std::int64_t> all;
  for (const std::string& name : given.fields) {
    auto found = source.find(name);
    if (!found) throw host::failure(given.source, "has no field \"" + name + "\"");
    all.push_back(static_cast<std::int64_t>(*found));
  }
  return all;
}

std::string last_of(const std::vector<std::string>& all) { return all.empty() ? "" : all.back(); }

int convert(const texts& given) {
  constexpr std::string_view ending = ".pgrid";
  if (given.output.size() <= ending.size() ||
      given.output.compare(given.output.size() - ending.size(), ending.size(), ending) != 0)
    throw usage_error("the output is a .pgrid file");
  host::source source(given.source);
  std::wstring path = host::wide_name(given.output), name = host::wide(given.source);
  std::wstring volume_name = host::wide(given.volume_name);
  std::vector<std::int64_t> fields = chosen(source, given);
  Tzu_pgrid_options options{};
  options.fields = fields.empty() ? nullptr : fields.data();
  options.field_count = fields.size();
  options.volume = given.volume, options.volume_name = volume_name.c_str();
  options.profile = given.profile;
  zu_problems_clear(path.c_str());
  bool done = false;
  {
    bar progress;
    done = zu_datasource_write_pgrid_w(source.get(), path.c_str(), &options, &show, &progress);
  }
  if (!done && asked_to_end == 0) {
    std::string why = last_of(host::reasons(name, zu_problem_read));
    if (!why.empty()) throw host::failure(given.source, why);
    why = last_of(host::reasons(path, zu_problem_write));
    throw host::failure(given.output, why.empty() ? "cannot be written" : why);
  }
  for (const std::string& part : host::reasons(name, zu_problem_part))
    std::fprintf(stderr, "zugrid: warning: %s: %s\n", given.source.c_str(), part.c_str());
  return done ? exit_success : exit_failure;
}

}  // namespace

command add_convert(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("SOURCE", given->source, "grid to read")->required()->check(filled);
  options.add_option("OUTPUT", given->output, "the .pgrid file; an older one is replaced")
      ->required()
      ->check(filled);
  options
      .add_option("--field", given->fields, "take this field alone; may be given more than once")
      ->check(filled);
  auto* volume = options.add_flag(
      "--volume", given->volume, "the fields become the slices of one field, the first the lowest");
  options.add_option("--name", given->volume_name, "name of that field (default: Value)")
      ->check(filled)
      ->needs(volume);
  options.add_flag("--profile", given->profile, "a grid of one row becomes a profile")
      ->excludes(volume);
  return [given] {
    gentle_end signals;
    return convert(*given);
  };
}

}  // namespace zu::cli
