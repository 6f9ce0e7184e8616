#include "platform/zuk_prg/hillshade.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <numbers>
#include <thread>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_prg/double_grid.h"

namespace zu::platform {
namespace {

double radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

/// From the two sums of Horn's differences to the gradient of the map: p falls to the east, q rises
/// to the north.
struct slope {
  double p_of_x, p_of_y, q_of_x, q_of_y;

  slope(const Tzu_mgrid2d_topology& t, double z_factor) {
    double turn = radians(t.azimuth), c = std::cos(turn), s = std::sin(turn);
    double x = z_factor / (8.0 * t.dx), y = z_factor / (8.0 * t.dy);
    p_of_x = x * c, p_of_y = y * s, q_of_x = -x * s, q_of_y = y * c;
  }
};

/// Light from one place.
struct one_sun {
  double level, along_p, along_q;

  explicit one_sun(const Tzu_hillshade_params& params) {
    double h = radians(params.altitude), a = radians(params.azimuth);
    level = 254.0 * std::sin(h);
    along_p = 254.0 * std::cos(h) * std::sin(a);
    along_q = 254.0 * std::cos(h) * std::cos(a);
  }
  double operator()(double p, double q) const {
    double light = (level - (q * along_q - p * along_p)) / std::sqrt(1.0 + p * p + q * q);
    return light <= 0.0 ? 0.0 : light;  // NaN stays
  }
};

/// Light from four places, whose weights sum to 2.
struct four_suns {
  double level, straight, diagonal;

  explicit four_suns(const Tzu_hillshade_params& params) {
    double h = radians(params.altitude);
    level = 127.0 * std::sin(h);
    straight = 127.0 * std::cos(h);
    diagonal = straight * std::numbers::sqrt2 / 2.0;
  }
  double operator()(double p, double q) const {
    double steep = p * p + q * q, across = p * q;
    auto lit = [](double light) { return light <= 0.0 ? 0.0 : light; };
    double light = (0.5 * steep - across) * lit(level - (p - q) * diagonal) +
                   p * p * lit(level - p * straight) +
                   (0.5 * steep + across) * lit(level - (p + q) * diagonal) +
                   q * q * lit(level - q * straight);
    double flat = 2.0 * level;
    double mixed = light / steep / std::sqrt(1.0 + steep);
    return steep == 0.0 ? flat : mixed;
  }
};

/// Shades of `count` nodes from the one at `row[0]`; the rows below and above may be made up. Reads
/// one node to the left and one to the right.
template <class sun>
void shade_run(const double* below, const double* row, const double* above, std::uint64_t count,
               const slope& gradient, const sun& light, double* out) {
  const slope g = gradient;
  const sun l = light;
  const double *b = below - 1, *r = row - 1, *a = above - 1;
  for (std::uint64_t i = 0; i < count; ++i) {
    double x = (b[i] + 2.0 * r[i] + a[i]) - (b[i + 2] + 2.0 * r[i + 2] + a[i + 2]);
    double y = (a[i] + 2.0 * a[i + 1] + a[i + 2]) - (b[i] + 2.0 * b[i + 1] + b[i + 2]);
    double p = x * g.p_of_x + y * g.p_of_y, q = x * g.q_of_x + y * g.q_of_y;
    // The gradient does not see the node itself, whose want of a value counts too.
    out[i] = 1.0 + l(p, q) + 0.0 * r[i + 1];
  }
}

/// What stands beyond the frame goes on as the last two do: there the gradient is one-sided.
double beyond(double last, double inner) { return 2.0 * last - inner; }

template <class sun>
void shade_row(const double* below, const double* row, const double* above, std::uint64_t nx,
               const slope& gradient, const sun& light, double* out) {
  shade_run(below + 1, row + 1, above + 1, nx - 2, gradient, light, out + 1);
  const double* rows[3] = {below, row, above};
  double left[3][3], right[3][3];
  for (int i = 0; i < 3; ++i) {
    const double* v = rows[i];
    left[i][0] = beyond(v[0], v[1]), left[i][1] = v[0], left[i][2] = v[1];
    right[i][0] = v[nx - 2], right[i][1] = v[nx - 1], right[i][2] = beyond(v[nx - 1], v[nx - 2]);
  }
  shade_run(left[0] + 1, left[1] + 1, left[2] + 1, 1, gradient, light, out);
  shade_run(right[0] + 1, right[1] + 1, right[2] + 1, 1, gradient, light, out + nx - 1);
}

std::vector<double> row_beyond(const double* last, const double* inner, std::uint64_t nx) {
  std::vector<double> row(nx);
  for (std::uint64_t x = 0; x < nx; ++x) row[x] = beyond(last[x], inner[x]);
  return row;
}

/// Calls `work(first, end)` for parts of `count` rows, side by side; below `least` rows a part is
/// not worth its thread.
template <class part>
void side_by_side(std::uint64_t count, std::uint64_t least, const part& work) {
  std::uint64_t cores = std::max(1u, std::thread::hardware_concurrency());
  std::uint64_t parts = std::clamp(count / least, std::uint64_t(1), cores);
  std::vector<std::jthread> others;
  for (std::uint64_t i = 1; i < parts; ++i)
    others.emplace_back([&, i] { work(count * i / parts, count * (i + 1) / parts); });
  work(0, count / parts);
}

template <class sun>
void shade_all(const Tzu_mgrid2d& grid, const slope& gradient, const sun& light, Tzu_mgrid2d& out) {
  constexpr std::uint64_t nodes_of_a_part = 50000;  // about 0.1 ms
  std::uint64_t nx = grid.nx, ny = grid.ny;
  auto row = [&](std::uint64_t y) { return grid.nodes + y * nx; };
  std::vector<double> first = row_beyond(row(0), row(1), nx);
  std::vector<double> last = row_beyond(row(ny - 1), row(ny - 2), nx);
  side_by_side(ny, nodes_of_a_part / nx + 1, [&](std::uint64_t y, std::uint64_t end) {
    for (; y < end; ++y)
      shade_row(y > 0 ? row(y - 1) : first.data(), row(y), y + 1 < ny ? row(y + 1) : last.data(),
                nx, gradient, light, out.nodes + y * nx);
  });
}

}  // namespace

void shade_grid(const Tzu_mgrid2d& grid, const Tzu_hillshade_params& params, Tzu_mgrid2d& out) {
  if (grid.nx < 2 || grid.ny < 2) {  // without a slope there is no shade
    std::fill_n(out.nodes, out.nx * out.ny, std::numeric_limits<double>::quiet_NaN());
    return;
  }
  slope gradient(whole(grid).topology, params.z_factor);
  if (params.multidirectional)
    shade_all(grid, gradient, four_suns(params), out);
  else
    shade_all(grid, gradient, one_sun(params), out);
}

}  // namespace zu::platform

Tzu_hillshade_params* zu_hillshade_params_create() {
  return new (std::nothrow) Tzu_hillshade_params;
}
void zu_hillshade_params_destroy(Tzu_hillshade_params* params) { delete params; }
void zu_hillshade_params_set_z_factor(Tzu_hillshade_params* params, double factor) {
  if (params != nullptr) params->z_factor = factor;
}
void zu_hillshade_params_set_sun(Tzu_hillshade_params* params, double altitude, double azimuth) {
  if (params != nullptr) params->altitude = altitude, params->azimuth = azimuth;
}
void zu_hillshade_params_set_multidirectional(Tzu_hillshade_params* params, bool use) {
  if (params != nullptr) params->multidirectional = use;
}

bool zu_mgrid2d_hillshade(const Tzu_mgrid2d* grid, const Tzu_hillshade_params* params,
                          Tzu_mgrid2d* out) {
  if (!zu::platform::has_nodes(grid) || params == nullptr || out == grid) return false;
  for (double number : {params->z_factor, params->altitude, params->azimuth})
    if (!std::isfinite(number)) return false;
  return zu::platform::guarded(out, false, [&](Tzu_mgrid2d& o) {
    if (!zu_mgrid2d_init(&o, grid->nx, grid->ny, &zu::platform::whole(*grid).topology))
      return false;
    zu::platform::shade_grid(*grid, *params, o);
    return true;
  });
}
