#include "platform/zuk_drwc/figures.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <vector>

#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::platform {
namespace {

constexpr double pi = std::numbers::pi;
constexpr double bar_part = 0.25, frame_part = 0.125;  // thickness, of the size
// Of a five-pointed star whose sides go on in each other.
constexpr double star_waist = 0.38196601125010515;

using outline = std::vector<Tzu_vtx_d2>;

/// Corners on a circle about the origin, the first at the top.
outline regular(int corners, double radius) {
  outline ring;
  for (int i = 0; i < corners; ++i) {
    double turn = 2 * pi * i / corners;
    ring.push_back({radius * std::sin(turn), -radius * std::cos(turn)});
  }
  return ring;
}

outline star(double radius) {
  constexpr int points = 5;
  outline outer = regular(points, radius), inner = regular(points, -radius * star_waist), ring;
  for (std::size_t i = 0; i < points; ++i) {
    ring.push_back(outer[i]);
    ring.push_back(inner[(i + 3) % points]);
  }
  return ring;
}

/// Two bars that cross, `length` by `thick`.
outline bars(double length, double thick) {
  double l = length / 2, t = thick / 2;
  return {{-t, -l}, {t, -l}, {t, -t}, {l, -t}, {l, t},   {t, t},
          {t, l},   {-t, l}, {-t, t}, {-l, t}, {-l, -t}, {-t, -t}};
}

outline turned_by_eighth(outline ring) {
  const double c = std::sqrt(0.5);
  for (Tzu_vtx_d2& v : ring) v = {c * (v.x - v.y), c * (v.x + v.y)};
  return ring;
}

outline square(double half) { return {{-half, -half}, {half, -half}, {half, half}, {-half, half}}; }

outline triangle(double half) { return {{0, -half}, {half, half}, {-half, half}}; }

/// The triangle inside another one whose sides are a distance away.
outline triangle_within(double half, double distance) {
  double radius = 2 * half / (1 + std::sqrt(5.0));  // of the inner circle: area by half the rim
  outline ring = triangle(half);
  double shrink = (radius - distance) / radius, middle = half - radius;
  for (Tzu_vtx_d2& v : ring) v = {v.x * shrink, middle + (v.y - middle) * shrink};
  return ring;
}

void add(cairo_t* cairo, const outline& ring) {
  cairo_new_sub_path(cairo);
  for (const Tzu_vtx_d2& v : ring) cairo_line_to(cairo, v.x, v.y);
  cairo_close_path(cairo);
}

void add_hole(cairo_t* cairo, outline ring) {
  std::reverse(ring.begin(), ring.end());
  add(cairo, ring);
}

void add_circle(cairo_t* cairo, double radius) {
  cairo_new_sub_path(cairo);
  cairo_arc(cairo, 0, 0, radius, 0, 2 * pi);
  cairo_close_path(cairo);
}

void add_round_hole(cairo_t* cairo, double radius) {
  cairo_new_sub_path(cairo);
  cairo_arc_negative(cairo, 0, 0, radius, 2 * pi, 0);
  cairo_close_path(cairo);
}

/// As many whole units as the size leaves even on both sides.
double whole_bar(double size) {
  double thick = std::max(1.0, std::round(size * bar_part));
  return std::fmod(size - thick, 2.0) == 0.0 ? thick : thick + 1;
}

}  // namespace

bool is_square_cut(std::int32_t figure) {
  return figure == zu_figure_square || figure == zu_figure_plus || figure == zu_figure_square_frame;
}

void add_figure(cairo_t* cairo, std::int32_t figure, double size, bool on_pixels) {
  double half = size / 2, frame = size * frame_part, bar = size * bar_part;
  if (on_pixels) frame = std::max(1.0, std::round(frame)), bar = whole_bar(size);
  switch (figure) {
    case zu_figure_circle:
      return add_circle(cairo, half);
    case zu_figure_square:
      return add(cairo, square(half));
    case zu_figure_diamond:
      return add(cairo, regular(4, half));
    case zu_figure_triangle_up:
      return add(cairo, triangle(half));
    case zu_figure_triangle_down:
      return add(cairo, {{half, -half}, {0, half}, {-half, -half}});
    case zu_figure_pentagon:
      return add(cairo, regular(5, half));
    case zu_figure_hexagon:
      return add(cairo, regular(6, half));
    case zu_figure_star:
      return add(cairo, star(half));
    case zu_figure_plus:
      return add(cairo, bars(size, bar));
    case zu_figure_cross:
      return add(cairo, turned_by_eighth(bars(size * std::numbers::sqrt2 - bar, bar)));
    case zu_figure_ring:
      add_circle(cairo, half);
      return add_round_hole(cairo, half - frame);
    case zu_figure_square_frame:
      add(cairo, square(half));
      if (frame < half) add_hole(cairo, square(half - frame));
      return;
    case zu_figure_diamond_frame:
      add(cairo, regular(4, half));
      return add_hole(cairo, regular(4, half - frame * std::numbers::sqrt2));
    case zu_figure_triangle_frame:
      add(cairo, triangle(half));
      return add_hole(cairo, triangle_within(half, frame));
    case zu_figure_arrow:
      return add(cairo, {{half, 0}, {-half, half}, {-half / 2, 0}, {-half, -half}});
    case zu_figure_half_circle:
      cairo_new_sub_path(cairo);
      cairo_arc(cairo, 0, half / 2, half, pi, 2 * pi);
      return cairo_close_path(cairo);
    default:
      return;
  }
}

}  // namespace zu::platform
