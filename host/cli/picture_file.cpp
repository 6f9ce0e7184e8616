#include "host/cli/picture_file.h"

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "host/cli/commands.h"
#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::cli {
namespace {

using host::failure;

void save(const host::drawn_picture& picture, const std::string& output,
          const std::string& projection) {
  undisturbed whole;
  bool saved = false;
  std::wstring reason = host::text_of([&](Tzu_string_adp* adapter) {
    saved = zu_drwc_save_w(picture.page.get(), host::wide_name(output).c_str(),
                           picture.box ? &*picture.box : nullptr, host::wide(projection).c_str(),
                           adapter);
  });
  if (!saved) throw failure(output, host::narrow(reason));
}

}  // namespace

undisturbed::undisturbed() {
  sigset_t signals;
  sigemptyset(&signals);
  for (int each : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, each);
  pthread_sigmask(SIG_BLOCK, &signals, &before_);
}
undisturbed::~undisturbed() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

std::string ending_of(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  for (char& c : ending)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return ending;
}

void check_output(const std::string& output, const std::vector<std::string>& sources) {
  std::string ending = ending_of(output);
  bool known = false;
  for (const char* each : {".png", ".tif", ".tiff", ".pdf", ".svg"})
    known = known || ending == each;
  if (!known) throw usage_error("-o: \"" + output + "\" must end in .png, .tif, .pdf or .svg");
  std::error_code none;
  for (const std::string& source : sources)
    if (std::filesystem::equivalent(output, source, none) && !none)
      throw failure(output, "is one of the sources");
}

int write_picture(const host::drawn_picture& picture, const std::string& output,
                  const std::string& projection) {
  save(picture, output, projection);
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
