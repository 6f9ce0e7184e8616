// Times exact statistics of the first field, the file opened anew each time; prints a line of JSON.
//   statistics FILE

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: statistics FILE\n");
    return 2;
  }
  std::wstring source = std::filesystem::path(argv[1]).wstring();
  std::vector<double> times;
  Tzu_field_stat stat{};
  for (int run = 0; run < 4; ++run) {
    zu_datasource_set_pool_size(0);
    auto start = std::chrono::steady_clock::now();
    zu::handle opened;
    zu_datasource_open(source.c_str(), 1, nullptr, &opened);
    if (!opened || !zu_datasource_compute_stat(opened, 0, 0, nullptr, nullptr, &stat)) {
      std::fprintf(stderr, "cannot be read\n");
      return 1;
    }
    zu::call<&zu::data_source_impl::release>(opened);
    std::chrono::duration<double, std::milli> span = std::chrono::steady_clock::now() - start;
    if (run > 0) times.push_back(span.count());
  }
  std::sort(times.begin(), times.end());
  std::printf("{\"ms\": %.1f, \"check\": [%.6f, %.6f, %.6f, %.6f]}\n", times[times.size() / 2],
              stat.minimum, stat.maximum, stat.mean, stat.stddev);
  return 0;
}
