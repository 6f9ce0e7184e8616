// Project files from anybody: refused with a reason, or read, and what was saved reads again and is
// saved the same.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "host/core/failure.h"
#include "host/core/project.h"

namespace {

/// A folder in memory, gone at the end.
struct folder {
  std::string path = "/dev/shm/project_fuzz." + std::to_string(getpid());
  folder() { std::filesystem::create_directories(path); }
  ~folder() { std::filesystem::remove_all(path); }
};

std::string content_of(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const zu::host::bundle services;
  static const folder made;
  std::string given = made.path + "/given.zgp", saved = made.path + "/saved.zgp";
  std::ofstream(given, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  try {
    zu::host::project(services, given).save(saved);
  } catch (const zu::host::failure&) {
    return 0;  // refused, with its reason
  }
  std::string first = content_of(saved);
  zu::host::project(services, saved).save(saved);
  if (content_of(saved) != first) std::abort();
  return 0;
}
