#include "platform/zuk_drwc/stroke.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/zuk_drwc/cut_line.h"
#include "platform/zuk_drwc/line_labels.h"
#include "platform/zuk_drwc/text_line.h"

namespace zu::platform {
namespace {

constexpr double miter_limit = 10;
/// Vertices after which an opaque set is stroked: Cairo sorts the edges of a path, and several
/// paths are done sooner than a long one. On a screen each line is a path of its own.
constexpr std::size_t opaque_at_once = 200;

/// Dashes in pixels; empty for a solid line. A pattern Cairo would refuse is a solid line.
std::vector<double> dashes_of(const Tzu_pln_style& style, double per_mm) {
  auto count = std::clamp<std::int32_t>(style.dash_count, 0, zu_line_dashes);
  std::vector<double> dashes;
  double sum = 0;
  for (std::int32_t i = 0; i < count; ++i) {
    double length = style.dashes[i] * per_mm;
    if (!(length >= 0) || !std::isfinite(length)) return {};
    dashes.push_back(length);
    sum += length;
  }
  // Finer dashes than these are a gray line and many strokes.
  constexpr double finest = 0.05;
  return sum > finest * static_cast<double>(count) ? dashes : std::vector<double>();
}

void set_pen(cairo_t* cairo, const Tzu_pln_style& style, double width) {
  constexpr cairo_line_cap_t caps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND,
                                       CAIRO_LINE_CAP_SQUARE};
  constexpr cairo_line_join_t joins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND,
                                         CAIRO_LINE_JOIN_BEVEL};
  cairo_set_line_width(cairo, width);
  cairo_set_line_cap(cairo, caps[std::clamp<std::int32_t>(style.cap, 0, 2)]);
  cairo_set_line_join(cairo, joins[std::clamp<std::int32_t>(style.join, 0, 2)]);
  cairo_set_miter_limit(cairo, miter_limit);
}

void add_path(const stroke_page& page, const line_piece& piece) {
  constexpr double nearest = 0.1;  // pixels
  const std::vector<Tzu_vtx_d2>& v = piece.vertices;
  std::size_t count = piece.closed ? v.size() - 1 : v.size();
  Tzu_vtx_d2 last = v[0];
  cairo_move_to(page.cairo, last.x, last.y);
  for (std::size_t i = 1; i < count; ++i) {
    bool close_by = std::abs(v[i].x - last.x) < nearest && std::abs(v[i].y - last.y) < nearest;
    if (page.thinned && close_by && i + 1 < count) continue;
    last = v[i];
    cairo_line_to(page.cairo, last.x, last.y);
  }
  if (piece.closed) cairo_close_path(page.cairo);
}

void stroke_dashed(const stroke_page& page, const line_piece& piece,
                   const std::vector<double>& dashes) {
  double period = 0;
  for (double length : dashes) period += length;
  if (dashes.size() % 2 == 1) period *= 2;
  double phase = std::fmod(piece.start, period);
  cairo_set_dash(page.cairo, dashes.data(), static_cast<int>(dashes.size()),
                 std::isfinite(phase) ? phase : 0.0);
  add_path(page, piece);
  cairo_stroke(page.cairo);
}

/// The shortest text of a number with up to 15 digits.
std::string number_text(double value) {
  char text[32];
  auto end = std::to_chars(text, text + sizeof text, value == 0 ? 0.0 : value,
                           std::chars_format::general, 15)
                 .ptr;
  return {text, end};
}

/// The number of a set of lines, on them.
class numbers {
 public:
  /// Nothing is numbered if the style does not ask for it or the set has no level.
  numbers(const stroke_page& page, const Tzu_ov_d2& lines, const Tzu_pln_style& style)
      : page_(page) {
    double level;
    if (!style.label || !zu_ov_d2_get_level(&lines, &level) || !std::isfinite(level)) return;
    text_.emplace(page.cairo, number_text(level), font_size * page.per_mm);
    request_ = {text_->width(), text_->capital_height(), spacing * page.per_mm, page.shown};
  }

  /// Parts of a piece between the numbers that it gets.
  std::vector<line_piece> parted(const line_piece& piece) {
    if (!text_) return {piece};
    std::vector<line_label> places = place_labels(piece.vertices, request_, page_.labels);
    places_.insert(places_.end(), places.begin(), places.end());
    return without_labels(piece, places);
  }
  void draw() const {
    for (const line_label& place : places_) {
      double c = std::cos(place.angle), s = std::sin(place.angle);
      double back = request_.width / 2, down = request_.height / 2;
      text_->draw(place.middle.x - c * back - s * down, place.middle.y - s * back + c * down,
                  place.angle);
    }
  }

 private:
  static constexpr double font_size = 2.5, spacing = 100;  // millimetres

  const stroke_page& page_;
  std::optional<text_line> text_;
  label_request request_{};
  std::vector<line_label> places_;
};

}  // namespace

bool stroke(const stroke_page& page, const Tzu_ov_d2& lines, const Tzu_pln_style& style) {
  double most = 2 * (page.width + page.height);
  double width = std::min(style.width * page.per_mm, most);
  set_pen(page.cairo, style, width);
  std::vector<double> dashes = dashes_of(style, page.per_mm);
  if (dashes.empty()) cairo_set_dash(page.cairo, nullptr, 0, 0);
  // Far enough outside that neither caps nor corners of what was cut off are missed.
  double margin = width / 2 * miter_limit + 2;
  const Tzu_box_d2 near_the_page{-margin, -margin, page.width + margin, page.height + margin};

  numbers level(page, lines, style);
  cairo_new_path(page.cairo);
  bool any = false;
  std::size_t waiting = 0, at_once = SIZE_MAX;
  if (style.color.a == 0) at_once = page.thinned ? 0 : opaque_at_once;
  auto& set = const_cast<Tzu_ov_d2&>(lines);  // read only; the getters give what may be edited
  std::vector<Tzu_vtx_d2> line;
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(&set); ++i) {
    Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(&set, i);
    const Tzu_vtx_d2* vertices = zu_pv_d2_get_arr(list);
    line.assign(vertices, vertices + zu_pv_d2_get_size(list));
    for (Tzu_vtx_d2& v : line) v = {v.x * page.per_mm, page.height - v.y * page.per_mm};
    for (const line_piece& piece : cut_line(line.data(), line.size(), near_the_page)) {
      any = true;
      for (const line_piece& part : level.parted(piece)) {
        if (!dashes.empty()) {
          stroke_dashed(page, part, dashes);
          continue;
        }
        add_path(page, part);
        waiting += part.vertices.size();
        if (waiting > at_once) cairo_stroke(page.cairo), waiting = 0;
      }
    }
  }
  if (dashes.empty()) cairo_stroke(page.cairo);
  level.draw();
  return any;
}

}  // namespace zu::platform
