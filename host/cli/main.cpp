// zugrid: the command line.

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "host/cli/commands.h"
#include "host/cli/manual.h"
#include "host/cli/option_texts.h"
#include "host/core/failure.h"
#include "host/core/settings.h"

namespace {

using namespace zu::cli;

struct entry {
  const char* name;
  const char* summary;
  command (*add)(CLI::App&);
};

constexpr entry commands[] = {
    {"render", "draw grids into a picture", &add_render},
    {"info", "say what a grid holds", &add_info},
    {"convert", "put a grid into a .pgrid file", &add_convert},
    {"probe", "say what a grid has at a point", &add_probe},
    {"classify", "make classes of the values of a grid", &add_classify},
    {"project", "keep scenes of layers in a file and draw them", &add_project},
    {"gradients", "name the arrays of colours and draw them", &add_gradients},
    {"symbols", "name the figures of points and draw them", &add_symbols},
    {"config", "choose what holds for all projects", &add_config},
};

std::string names() {
  std::string all;
  for (const entry& each : commands) all += (all.empty() ? "" : ", ") + std::string(each.name);
  return all;
}

int refuse(const std::string& reason, const std::string& command) {
  std::fprintf(stderr, "zugrid: %s; see zugrid %s--help\n", reason.c_str(),
               command.empty() ? "" : (command + " ").c_str());
  return exit_usage;
}

int fail(const char* reason) {
  std::fprintf(stderr, "zugrid: %s\n", reason);
  return exit_failure;
}

/// One line of what the parser says.
std::string one_line(const std::string& text) { return text.substr(0, text.find('\n')); }

}  // namespace

int main(int argc, char** argv) {
  CLI::App parser("Draws and describes 2D grids: GeoTIFF, ASCII grids and whatever GDAL opens.",
                  "zugrid");
  parser.require_subcommand(0, 1);
  parser.set_version_flag("--version", "zugrid " ZU_VERSION);
  int result = exit_success;
  std::string running, language;
  parser.add_option("--lang", language, "language of what grids say of themselves: ru or en")
      ->type_name("LANG")
      ->check(CLI::IsMember({"ru", "en"}));
  for (const entry& each : commands) {
    CLI::App* part = parser.add_subcommand(each.name, each.summary);
    command run = each.add(*part);
    part->fallthrough();  // so that --lang may stand behind the command too
    part->callback([&result, &running, &language, run, name = each.name] {
      running = name;
      zu::host::choose_language(language);
      zu::host::apply_settings();
      result = run();
    });
  }
  CLI::App* manual = parser.add_subcommand("manual", "print the manual page or a completion");
  std::string kind;
  manual->group("");  // for those who package the program
  manual->add_option("KIND", kind)->required()->check(CLI::IsMember({"man", "bash"}));
  manual->callback([&] {
    running = "manual";
    std::string text = kind == "man" ? man_page(parser, ZU_VERSION) : bash_completion(parser);
    std::fputs(text.c_str(), stdout);
  });
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failed write, with its reason
  try {
    std::vector<std::string> arguments = with_settings({argv + 1, argv + argc});
    std::reverse(arguments.begin(), arguments.end());  // as the parser takes them
    parser.parse(arguments);
    if (running.empty()) return refuse("a command is required: " + names(), "");
    bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    return written ? result : fail("standard output: cannot be written");
  } catch (const CLI::Success& asked) {  // help and version
    return parser.exit(asked);
  } catch (const CLI::ParseError& error) {
    for (const CLI::App* part : parser.get_subcommands()) running = part->get_name();
    return refuse(one_line(error.what()), running);
  } catch (const usage_error& error) {
    return refuse(error.what(), running);
  } catch (const zu::host::failure& error) {
    return fail(error.what());
  } catch (const std::bad_alloc&) {
    return fail("not enough memory");
  } catch (const std::exception& error) {
    return fail(error.what());
  }
}
