// Points, lines and polygons, drawn part by part of their styles.

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_drwc/drawing_context.h"
#include "platform/zuk_drwc/line_numbers.h"
#include "platform/zuk_drwc/mark.h"
#include "platform/zuk_drwc/stroke.h"
#include "platform/zuk_styles/symbols.h"

namespace zu::platform {
namespace {

constexpr double turned_reach = 1.42;  // of a mark's reach along an axis, in any direction

/// The simple styles that a base style is drawn with, the lowest first.
template <class base> std::vector<const base*> layers_of(const base& style) {
  const Tzu_cpx_style* complex = style.drawn_complex();
  if (complex == nullptr) return {&style};
  std::vector<const base*> found;
  for (const style_layer& layer : complex->layers)
    if (const base* simple = std::get_if<base>(&layer.style)) found.push_back(simple);
  return found;
}

bool is_finite(const Tzu_vtx_d2& v) { return std::isfinite(v.x) && std::isfinite(v.y); }

bool is_closed(const std::vector<Tzu_vtx_d2>& line) {
  return line.size() > 2 && line.front().x == line.back().x && line.front().y == line.back().y;
}

/// Where the marks of lines stand.
struct line_marks {
  std::vector<mark_place> vertices, beginnings, ends;

  void add(std::vector<Tzu_vtx_d2> line) {
    bool closed = is_closed(line);
    if (closed) line.pop_back();
    line.erase(std::remove_if(line.begin(), line.end(), [](auto& v) { return !is_finite(v); }),
               line.end());
    for (const Tzu_vtx_d2& v : line) vertices.push_back({v.x, v.y, 0});
    if (closed || line.empty()) return;
    beginnings.push_back(directed(line.front(), line.begin(), line.end(), 1));
    ends.push_back(directed(line.back(), line.rbegin(), line.rend(), -1));
  }

 private:
  /// At a vertex, turned as the line runs to the next place; `along` is -1 against the line.
  template <class walk>
  static mark_place directed(const Tzu_vtx_d2& at, walk from, walk to, double along) {
    auto next = std::find_if(from, to, [&](auto& v) { return v.x != at.x || v.y != at.y; });
    if (next == to) return {at.x, at.y, 0};
    return {at.x, at.y, std::atan2(along * (next->y - at.y), along * (next->x - at.x))};
  }
};

std::vector<mark_place> unturned(std::vector<mark_place> places) {
  for (mark_place& place : places) place.turn = 0;
  return places;
}

/// The rings with their first vertex at the end again.
owned<zu_ov_d2_destroy> closed(const Tzu_ov_d2& rings) {
  owned<zu_ov_d2_destroy> copy(zu_ov_d2_create());
  zu_ov_d2_assign(copy.get(), &rings);
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(copy.get()); ++i) {
    Tzu_pv_d2* ring = zu_ov_d2_get_pv_ptr(copy.get(), i);
    std::uint64_t size = zu_pv_d2_get_size(ring);
    if (size < 2) continue;
    const Tzu_vtx_d2 first = zu_pv_d2_get_arr(ring)[0], last = zu_pv_d2_get_arr(ring)[size - 1];
    if (first.x != last.x || first.y != last.y) zu_pv_d2_add_vtx(ring, &first);
  }
  return copy;
}

}  // namespace

void drawing_context::draw_points(std::uint64_t count, const double* x, const double* y,
                                  const Tzu_pnt_style& style) {
  if (!style.visible) return;
  std::vector<mark_place> places;
  places.reserve(count);
  for (std::uint64_t i = 0; i < count; ++i)
    if (std::isfinite(x[i]) && std::isfinite(y[i]))
      places.push_back({x[i] * per_mm_, height_ - y[i] * per_mm_, 0});
  put_styled(places, style.point);
}

void drawing_context::draw_lines(const Tzu_ov_d2& lines, const Tzu_pln_style& style) {
  if (region().is_empty()) return;
  bool numbered = style.number_visible && style.number.size > 0 && style.number.color.a != 255;
  if (style.line_visible) stroke_styled(lines, style.line, numbered ? &style.number : nullptr);
  if (!style.vertex_visible && !style.begin_visible && !style.end_visible) return;
  auto& set = const_cast<Tzu_ov_d2&>(lines);  // read only; the getters give what may be edited
  line_marks marks;
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(&set); ++i)
    marks.add(in_pixels(zu_ov_d2_get_pv_ptr(&set, i)));
  if (style.vertex_visible) put_styled(marks.vertices, style.vertex);
  if (style.begin_visible)
    put_styled(style.begin_turns ? marks.beginnings : unturned(marks.beginnings), style.begin);
  if (style.end_visible) put_styled(style.end_turns ? marks.ends : unturned(marks.ends), style.end);
}

void drawing_context::draw_polygon(const Tzu_ov_d2& rings, const Tzu_pgn_style& style) {
  if (region().is_empty()) return;
  if (style.fill_visible)
    for (const Tzu_bpgn_style* layer : layers_of(style.fill)) fill_rings(rings, layer->color);
  if (!style.contour_visible && !style.vertex_visible) return;
  owned<zu_ov_d2_destroy> outline = closed(rings);
  if (style.contour_visible) stroke_styled(*outline, style.contour, nullptr);
  if (!style.vertex_visible) return;
  line_marks marks;
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(outline.get()); ++i)
    marks.add(in_pixels(zu_ov_d2_get_pv_ptr(outline.get(), i)));
  put_styled(marks.vertices, style.vertex);
}

void drawing_context::fill_rings(const Tzu_ov_d2& rings, Tzu_color color) {
  if (color.a == 255) return;
  saved_state saved = clipped_to(region_for(color));
  set_color(color);
  add_rings(rings);
  cairo_fill(cairo_.get());
  inked();
}

void drawing_context::stroke_styled(const Tzu_ov_d2& lines, const Tzu_bpln_style& style,
                                    const Tzu_bnum_style* numbered) {
  std::vector<strokes> pens;
  double margin = 0;
  for (const Tzu_bpln_style* layer : layers_of(style)) {
    strokes pen(*layer, per_mm_, 2 * (width_ + height_), !accurate_);
    if (pen.are_invisible()) continue;
    margin = std::max(margin, pen.margin());
    pens.push_back(std::move(pen));
  }
  if (pens.empty()) return;
  pixel_box box = region();
  const Tzu_box_d2 near_the_page{-margin, -margin, width_ + margin, height_ + margin};
  const Tzu_box_d2 shown{static_cast<double>(box.x0), height_ - static_cast<double>(box.y1),
                         static_cast<double>(box.x1), height_ - static_cast<double>(box.y0)};
  line_numbers numbers(cairo_.get(), per_mm_, shown, labels_, lines, numbered);
  auto& set = const_cast<Tzu_ov_d2&>(lines);  // read only; the getters give what may be edited
  std::vector<line_piece> parts;
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(&set); ++i) {
    std::vector<Tzu_vtx_d2> line = in_pixels(zu_ov_d2_get_pv_ptr(&set, i));
    for (const line_piece& piece : cut_line(line.data(), line.size(), near_the_page))
      for (line_piece& part : numbers.parted(piece)) parts.push_back(std::move(part));
  }
  if (parts.empty()) return;
  for (strokes& pen : pens) {
    saved_state saved = clipped_to(region_for(pen.color));
    std::swap(pen.parts, parts);
    stroke_lines(pen);
    std::swap(pen.parts, parts);
  }
  if (numbered != nullptr) {
    saved_state saved = clipped_to(region());
    set_color(numbered->color);
    numbers.draw();
  }
  inked();
}

void drawing_context::stroke_lines(const strokes& lines) { stroke(cairo_.get(), lines); }

void drawing_context::put_styled(const std::vector<mark_place>& places,
                                 const Tzu_bpnt_style& style) {
  if (places.empty() || region().is_empty()) return;
  for (const Tzu_bpnt_style* layer : layers_of(style)) {
    mark drawn(cairo_.get(), *layer, per_mm_, has_pixels());
    if (drawn.is_empty()) continue;
    put_marks(drawn, places);
    inked();
  }
}

void drawing_context::put_marks(const mark& drawn, const std::vector<mark_place>& places) {
  constexpr int at_once = 100;  // opaque marks of a path: what they share is filled once
  pixel_box box = region_for(drawn.color());
  double reach = drawn.reach() * turned_reach;
  double x0 = static_cast<double>(box.x0) - reach, x1 = static_cast<double>(box.x1) + reach;
  double y0 = height_ - static_cast<double>(box.y1) - reach;
  double y1 = height_ - static_cast<double>(box.y0) + reach;
  saved_state saved = clipped_to(box);
  set_color(drawn.color());
  cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_WINDING);
  cairo_new_path(cairo_.get());
  int waiting = 0;
  for (const mark_place& place : places) {
    Tzu_vtx_d2 middle = drawn.middle(place);
    if (!(middle.x > x0 && middle.x < x1 && middle.y > y0 && middle.y < y1)) continue;
    drawn.add_path(cairo_.get(), middle, place.turn);
    if (++waiting < (drawn.color().a == 0 ? at_once : 1)) continue;
    cairo_fill(cairo_.get());
    waiting = 0;
  }
  cairo_fill(cairo_.get());
}

}  // namespace zu::platform
