// Times the platform's shading of a grid of 1920 x 1080 nodes and prints it as a line of JSON, with
// the mean shade inside the frame. The hills are those of the peer.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <vector>

#include "zu/platform/zuk_prg.h"

namespace {

constexpr std::uint64_t nx = 1920, ny = 1080;
constexpr int runs = 15;

double mean_inside(const Tzu_mgrid2d* shade) {
  double sum = 0;
  for (std::uint64_t y = 1; y + 1 < ny; ++y)
    for (std::uint64_t x = 1; x + 1 < nx; ++x) sum += zu_mgrid2d_get_dbl(shade, x, y);
  return sum / static_cast<double>((nx - 2) * (ny - 2));
}

}  // namespace

int main() {
  Tzu_mgrid2d *heights = zu_dbl_mgrid2d_create(), *shade = zu_dbl_mgrid2d_create();
  Tzu_hillshade_params* light = zu_hillshade_params_create();
  Tzu_mgrid2d_topology topology{0, 0, 10, 10, 0};
  if (!zu_mgrid2d_init(heights, nx, ny, &topology)) return 1;
  for (std::uint64_t y = 0; y < ny; ++y)
    for (std::uint64_t x = 0; x < nx; ++x) {
      auto px = static_cast<double>(x), py = static_cast<double>(y);
      zu_mgrid2d_set_dbl(heights, x, y, 200 * std::sin(px / 70) * std::cos(py / 50) + px);
    }
  if (!zu_mgrid2d_hillshade(heights, light, shade)) {
    std::fprintf(stderr, "there is no shade\n");
    return 1;
  }
  double mean = mean_inside(shade);
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) {
    auto start = std::chrono::steady_clock::now();
    zu_mgrid2d_hillshade(heights, light, shade);
    std::chrono::duration<double, std::milli> span = std::chrono::steady_clock::now() - start;
    times.push_back(span.count());
  }
  std::sort(times.begin(), times.end());
  std::printf("{\"ms\": %.3f, \"min\": %.3f, \"max\": %.3f, \"check\": %.6f}\n",
              times[times.size() / 2], times.front(), times.back(), mean);
  zu_hillshade_params_destroy(light);
  for (Tzu_mgrid2d* grid : {heights, shade}) zu_mgrid2d_destroy(grid);
  return 0;
}
