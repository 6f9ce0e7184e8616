// Times one kind of redraw in this process and prints it as a line of JSON.
//   draw FILE classes|shade|isolines|values|image X0,Y0,X1,Y1 CRS|- kept|panned|fresh [B0,B1,…]
// A picture of 1920 x 1080 pixels: one warm-up, then the median of some runs. "kept" repaints one
// layer of a file that stays open; "panned" moves half a box east before each; "fresh" opens,
// draws and closes in the timed span. "shade" and "isolines" lie above classes.

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <vector>

#include "bench/small_host.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_palettes.h"

namespace {

constexpr std::uint64_t nx = 1920, ny = 1080;
constexpr int runs = 9;

std::vector<double> numbers(const std::string& text) {
  std::vector<double> all;
  std::stringstream stream(text);
  stream.imbue(std::locale::classic());
  for (std::string part; std::getline(stream, part, ',');) all.push_back(std::stod(part));
  return all;
}

void style(bench::layer& layer, const std::string& kind, const std::vector<double>& breaks) {
  Tzu_stl_mngr* manager = layer.styles();
  if (kind == "classes" || kind == "shade" || kind == "isolines") {
    zu_stl_mngr_set_mode(manager, zu_style_range);
    zu_stl_mngr_set_rng_prop_name_w(manager, L"Band 1");
    Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
    std::uint64_t classes = breaks.size() - 1;
    zu_rng_scale_set_size(scale, classes);
    zu_rng_scale_set_min_value(scale, breaks.front());
    zu_rng_scale_set_max_value(scale, breaks.back());
    std::vector<Tzu_color> colours(classes + 2);
    zu_clr_arrays_generate_ex(5, colours.size(), colours.data(), 0);
    zu_stl_prm_clr_set_all(&zu_rng_scale_get_min_prm_ptr(scale)->style, colours.front(), 0);
    zu_stl_prm_clr_set_all(&zu_rng_scale_get_max_prm_ptr(scale)->style, colours.back(), 0);
    for (std::uint64_t i = 0; i < classes; ++i) {
      zu_rng_scale_set_min(scale, i, breaks[i]);
      zu_rng_scale_set_max(scale, i, breaks[i + 1]);
      zu_stl_prm_clr_set_all(&zu_rng_scale_get_scale_prm_ptr(scale, i)->style, colours[i + 1], 0);
    }
    layer.set_draw_type(0);
    zu_hillshade_style_set_use(layer.hillshade(), kind == "shade");
    zu_isoline_style_set_use(layer.isolines(), kind == "isolines");
    zu_isoline_style_set_thin_step(layer.isolines(), 50);
    zu_isoline_style_set_bold_step(layer.isolines(), 250);
  } else if (kind == "values") {
    zu_stl_mngr_set_mode(manager, zu_style_value);
    zu_stl_mngr_set_val_prop_name_w(manager, L"Band 1");
    Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
    zu_val_scale_set_size(scale, 40);
    for (unsigned i = 0; i < 40; ++i) {
      zu_val_scale_set_text_w(scale, i, std::to_wstring(i + 1).c_str());
      Tzu_color colour{static_cast<std::uint8_t>(i * 6), static_cast<std::uint8_t>(255 - i * 5),
                       static_cast<std::uint8_t>(i * 97), 0};
      zu_stl_prm_clr_set_all(&zu_val_scale_get_scale_prm_ptr(scale, i)->style, colour, 0);
    }
    layer.set_draw_type(0);
  }
}

/// The box widened about its middle to the picture's shape.
Tzu_box_d2 widened(const std::vector<double>& b) {
  double w = b[2] - b[0], h = b[3] - b[1], mx = (b[0] + b[2]) / 2, my = (b[1] + b[3]) / 2;
  double scale = std::max(w / nx, h / ny);
  w = scale * nx, h = scale * ny;
  return {mx - w / 2, my - h / 2, mx + w / 2, my + h / 2};
}

double peak_mib() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind("VmHWM:", 0) == 0) return std::stod(line.substr(6)) / 1024;
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 6) {
    std::fprintf(stderr, "usage: draw FILE KIND BOX CRS|- kept|panned|fresh [BREAKS]\n");
    return 2;
  }
  std::filesystem::path program = std::filesystem::canonical("/proc/self/exe");
  std::string bundle = program.parent_path().parent_path() / "lib/zuk_grid_layer2d.so";
  bench::small_host host(bundle.c_str());
  std::wstring source = std::filesystem::path(argv[1]).wstring();
  std::string kind = argv[2], crs = argv[4];
  Tzu_box_d2 box = widened(numbers(argv[3]));
  bool fresh = std::strcmp(argv[5], "fresh") == 0, panned = std::strcmp(argv[5], "panned") == 0;
  std::vector<double> breaks = argc > 6 ? numbers(argv[6]) : std::vector<double>();

  Tzu_drwc* page = zu_drwc_create_image(nx, ny, 96, false);
  Izu_render* render = nullptr;
  auto look_at_box = [&] {
    if (render != nullptr) zu_render_destroy(render);
    render = zu_render_create(page, &box);
    if (crs != "-") zu_render_set_pj4wstr(render, std::wstring(crs.begin(), crs.end()).c_str());
  };
  look_at_box();
  std::unique_ptr<bench::layer> kept;
  auto open = [&] {
    kept = std::make_unique<bench::layer>(host, source);
    style(*kept, kind, breaks);
  };
  open();
  kept->draw(render);
  if (!zu_drwc_has_ink(page)) {
    std::fprintf(stderr, "nothing was drawn\n");
    return 1;
  }
  std::vector<double> times;
  for (int run = 0; run <= runs; ++run) {
    if (fresh) {
      kept.reset();
      zu_datasource_set_pool_size(0);
    }
    if (panned) {
      double step = (box.x1 - box.x0) / 2;
      box.x0 += step, box.x1 += step;
      look_at_box();
    }
    auto start = std::chrono::steady_clock::now();
    if (fresh) {
      zu_datasource_set_pool_size(16);
      open();
    }
    kept->draw(render);
    if (fresh) {
      kept.reset();
      zu_datasource_set_pool_size(0);
    }
    std::chrono::duration<double, std::milli> span = std::chrono::steady_clock::now() - start;
    if (run > 0) times.push_back(span.count());
  }
  std::sort(times.begin(), times.end());
  std::printf("{\"ms\": %.3f, \"min\": %.3f, \"max\": %.3f, \"mib\": %.1f}\n",
              times[times.size() / 2], times.front(), times.back(), peak_mib());
  kept.reset();
  zu_render_destroy(render);
  zu_drwc_destroy(page);
  return 0;
}
