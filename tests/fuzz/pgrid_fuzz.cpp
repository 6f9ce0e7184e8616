// Any bytes as a grid file: opened as a source, and everything in it read a little.

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "platform/zuk_file_tos4/pgrid_file.h"

using namespace zu::platform;

namespace {

constexpr std::int64_t most_tiles = 16;

void read_some(pgrid_file& file) {
  std::vector<std::byte> run;
  for (std::size_t p = 0; p < file.properties().size() && p < 8; ++p) {
    std::int64_t count = std::min<std::int64_t>(file.head().nodes(), 1000);
    run.resize(static_cast<std::size_t>(count) * 8);
    file.read_run(p, 0, count, run.data());
    file.read_run(p, file.head().nodes() - count, count, run.data());
    pgrid_file::reading state(file);
    for (int level = 0; level < file.plan().levels(); ++level) {
      std::int64_t seen = 0;
      file.for_tiles(p, level, [&](const pgrid_file::seen_tile&) { return ++seen < most_tiles; });
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = "/dev/shm/zu_pgrid_fuzz_" + std::to_string(getpid());
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  try {
    pgrid_file opened(path, access::read);
    read_some(opened);
  } catch (const pgrid_failure&) {
    // A refusal with a reason is what most bytes deserve.
  }
  std::remove(path.c_str());
  return 0;
}
