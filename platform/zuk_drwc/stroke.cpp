#include "platform/zuk_drwc/stroke.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/zuk_styles/symbols.h"

namespace zu::platform {
namespace {

constexpr double miter_limit = 10;
constexpr double shortest_dot = 0.01;  // pixels
/// Vertices after which opaque lines are stroked: Cairo sorts the edges of a path, and several
/// paths are done sooner than a long one. On a screen each line is a path of its own.
constexpr std::size_t opaque_at_once = 200;

/// Dashes in pixels; empty for a solid line. A pattern Cairo would refuse is a solid line.
std::vector<double> dashes_of(const Tzu_bpln_style& style, double per_mm) {
  std::vector<double> dashes;
  double sum = 0;
  for (double millimetres : style.dashes) {
    double length = millimetres * per_mm;
    // Cairo leaves out dots without a length.
    if (length == 0 && dashes.size() % 2 == 0) length = shortest_dot;
    if (!(length >= 0) || !std::isfinite(length)) return {};
    dashes.push_back(length);
    sum += length;
  }
  // Finer dashes than these are a gray line and many strokes.
  constexpr double finest = 0.05;
  return sum > finest * static_cast<double>(dashes.size()) ? dashes : std::vector<double>();
}

void set_pen(cairo_t* cairo, const strokes& lines) {
  constexpr cairo_line_cap_t caps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND,
                                       CAIRO_LINE_CAP_SQUARE};
  constexpr cairo_line_join_t joins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND,
                                         CAIRO_LINE_JOIN_BEVEL};
  Tzu_color c = lines.color;
  cairo_set_source_rgba(cairo, c.r / 255.0, c.g / 255.0, c.b / 255.0, (255 - c.a) / 255.0);
  cairo_set_line_width(cairo, lines.width);
  cairo_set_line_cap(cairo, caps[lines.cap]);
  cairo_set_line_join(cairo, joins[lines.join]);
  cairo_set_miter_limit(cairo, miter_limit);
  cairo_set_dash(cairo, nullptr, 0, 0);
  cairo_new_path(cairo);
}

void add_path(cairo_t* cairo, const line_piece& piece, bool thinned) {
  constexpr double nearest = 0.1;  // pixels
  const std::vector<Tzu_vtx_d2>& v = piece.vertices;
  std::size_t count = piece.closed ? v.size() - 1 : v.size();
  Tzu_vtx_d2 last = v[0];
  cairo_move_to(cairo, last.x, last.y);
  for (std::size_t i = 1; i < count; ++i) {
    bool close_by = std::abs(v[i].x - last.x) < nearest && std::abs(v[i].y - last.y) < nearest;
    if (thinned && close_by && i + 1 < count) continue;
    last = v[i];
    cairo_line_to(cairo, last.x, last.y);
  }
  if (piece.closed) cairo_close_path(cairo);
}

void stroke_dashed(cairo_t* cairo, const line_piece& piece, const strokes& lines) {
  double period = 0;
  for (double length : lines.dashes) period += length;
  if (lines.dashes.size() % 2 == 1) period *= 2;
  double phase = std::fmod(piece.start, period);
  cairo_set_dash(cairo, lines.dashes.data(), static_cast<int>(lines.dashes.size()),
                 std::isfinite(phase) ? phase : 0.0);
  add_path(cairo, piece, lines.thinned);
  cairo_stroke(cairo);
}

}  // namespace

strokes::strokes(const Tzu_bpln_style& style, double per_mm, double most, bool thin)
    : width(std::min(style.width * per_mm, most)),
      dashes(dashes_of(style, per_mm)),
      cap(style.cap),
      join(style.join),
      color(style.color),
      thinned(thin) {}

double strokes::margin() const { return width / 2 * miter_limit + 2; }

void stroke(cairo_t* cairo, const strokes& lines) { stroke(cairo, lines, lines.parts); }

void stroke(cairo_t* cairo, const strokes& lines, const std::vector<line_piece>& parts) {
  set_pen(cairo, lines);
  std::size_t waiting = 0, at_once = SIZE_MAX;
  if (lines.color.a == 0) at_once = lines.thinned ? 0 : opaque_at_once;
  for (const line_piece& part : parts) {
    if (!lines.dashes.empty()) {
      stroke_dashed(cairo, part, lines);
      continue;
    }
    add_path(cairo, part, lines.thinned);
    waiting += part.vertices.size();
    if (waiting > at_once) cairo_stroke(cairo), waiting = 0;
  }
  cairo_stroke(cairo);
}

}  // namespace zu::platform
