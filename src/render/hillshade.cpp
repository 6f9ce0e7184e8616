#include "src/render/hillshade.h"

#include <cmath>
#include <cstring>

#include "src/bundle/strings.h"
#include "src/render/node_grid.h"
#include "src/render/samplers.h"

namespace zu {
namespace {

/// The nodes of a shade, as the bilinear sampler takes them.
class shade_nodes {
 public:
  explicit shade_nodes(const Tzu_mgrid2d* grid)
      : grid_(grid), nx_(zu_mgrid2d_get_nx(grid)), ny_(zu_mgrid2d_get_ny(grid)) {}
  std::uint64_t nx() const { return nx_; }
  std::uint64_t ny() const { return ny_; }
  double at(std::uint64_t x, std::uint64_t y) const { return zu_mgrid2d_get_dbl(grid_, x, y); }
  bool valid(double shade) const { return std::isfinite(shade); }

 private:
  const Tzu_mgrid2d* grid_;
  std::uint64_t nx_, ny_;
};

/// The low byte of the whole part: 300.5 is 44.
std::uint8_t low_byte(double value) {
  return static_cast<std::uint8_t>(static_cast<std::int64_t>(value));
}

}  // namespace

bool apply_hillshade(const grid_draw_job& job) {
  const Tzu_hillshade_style* style = job.context.params.hillshade_style;
  if (style == nullptr || !zu_hillshade_style_get_use(style)) return false;
  owned_grid heights = make_node_grid(job.box, job.nx, job.ny);
  if (!heights) return false;
  std::wstring field =
      text_of([&](Tzu_string_adp* a) { zu_hillshade_style_get_propname(style, a); });
  if (!resample(job.context, job.source, job.box, field, heights.get())) return false;
  owned<zu_hillshade_params_destroy> light(zu_hillshade_params_create());
  zu_hillshade_style_get_params(style, light.get());
  owned_grid shade(zu_dbl_mgrid2d_create());
  if (!zu_mgrid2d_hillshade(heights.get(), light.get(), shade.get())) return false;
  mix_shade(job.main, shade.get(), zu_hillshade_style_get_part(style));
  return true;
}

void mix_shade(Tzu_dib* dib, const Tzu_mgrid2d* shade, double part) {
  const shade_nodes nodes(shade);
  const double rest = 1.0 - part;
  auto mixed = [&](double gray, std::uint8_t colour) {
    return low_byte(gray * part + colour * rest);
  };
  Tzu_matrix3x3 pixel_to_node;
  zu_matrix3x3_init_single(&pixel_to_node);
  std::uint64_t nx = zu_dib_get_nx(dib), ny = zu_dib_get_ny(dib);
  for (std::uint64_t y = 0; y < ny; ++y)
    for (std::uint64_t x = 0; x < nx; ++x) {
      auto node_x = static_cast<double>(x), node_y = static_cast<double>(y);
      zu_xy_apply_matrix3x3(&node_x, &node_y, &pixel_to_node);
      double value;
      if (!bilinear_value(nodes, node_x, node_y, value)) {
        zu_dib_set_rgba(dib, x, y, 0, 0, 0, 255);
        continue;
      }
      double gray = low_byte(value);
      pixel p;
      zu_dib_get_rgba(dib, x, y, &p.r, &p.g, &p.b, &p.a);
      std::uint32_t word =
          zu_clr_init_rgba(mixed(gray, p.r), mixed(gray, p.g), mixed(gray, p.b), p.a);
      std::memcpy(&p, &word, sizeof p);
      zu_dib_set_rgba(dib, x, y, p.r, p.g, p.b, p.a);
    }
}

}  // namespace zu
