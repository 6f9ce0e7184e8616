#include "host/cli/picture_file.h"

#include <csignal>
#include <cstdio>

#include "host/cli/commands.h"
#include "host/core/export.h"

namespace zu::cli {

undisturbed::undisturbed() {
  sigset_t signals;
  sigemptyset(&signals);
  for (int each : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, each);
  pthread_sigmask(SIG_BLOCK, &signals, &before_);
}
undisturbed::~undisturbed() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

void check_output(const std::string& output, const std::vector<std::string>& sources) {
  if (!host::page_kind_of(output, false))
    throw usage_error("-o: \"" + output + "\" must end in .png, .tif, .pdf or .svg");
  host::check_not_source(output, sources);
}

int write_picture(const host::drawn_picture& picture, const std::string& output,
                  const std::string& projection) {
  {
    undisturbed whole;
    host::save_picture(picture, output, projection);
  }
  for (const std::string& line : picture.shortfalls)
    std::fprintf(stderr, "zugrid: %s\n", line.c_str());
  for (const std::string& source : picture.unplaced)
    std::fprintf(stderr, "zugrid: warning: %s: has no projection, drawn as if it had the scene's\n",
                 source.c_str());
  if (picture.empty)
    std::fprintf(stderr, "zugrid: warning: %s: nothing of the data shows in this picture\n",
                 output.c_str());
  return picture.shortfalls.empty() ? exit_success : exit_failure;
}

}  // namespace zu::cli
