#include "platform/zuk_drwc/mark.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <numbers>
#include <string>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_drwc/figures.h"
#include "platform/zuk_drwc/text_line.h"
#include "platform/zuk_styles/symbols.h"

namespace zu::platform {
namespace {

constexpr double largest = 20000;  // pixels; a symbol of such a size covers the page
constexpr double steps = 4;        // places of a mark within a pixel
constexpr double quarter_turn = 90;

bool is_character(std::uint32_t c) {
  return c > ' ' && c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
}

/// A character with the middle of its ink at the origin.
void add_character(cairo_t* cairo, const Tzu_bpnt_style& style, double size) {
  if (!is_character(style.symbol)) return;
  std::wstring text(1, static_cast<wchar_t>(style.symbol));
  text_line line(cairo, to_utf8(text), size, to_utf8(style.font.family));
  Tzu_box_d2 ink = line.ink();
  line.add_path(-(ink.x0 + ink.x1) / 2, -(ink.y0 + ink.y1) / 2);
}

/// The largest distance of a path from the origin along an axis.
double reach_of(const cairo_path_t& path) {
  double most = 0;
  for (int i = 0; i < path.num_data; i += path.data[i].header.length)
    for (int k = 1; k < path.data[i].header.length; ++k) {
      const cairo_path_data_t& at = path.data[i + k];
      most = std::max({most, std::abs(at.point.x), std::abs(at.point.y)});
    }
  return most;
}

}  // namespace

mark::mark(cairo_t* cairo, const Tzu_bpnt_style& style, double per_mm, bool on_pixels)
    : color_(style.color),
      right_(style.dx * per_mm),
      down_(-style.dy * per_mm),
      size_(std::min(style.size * per_mm, largest)),
      on_pixels_(on_pixels) {
  bool sensible = size_ > 0 && std::isfinite(right_) && std::isfinite(down_) &&
                  std::isfinite(style.angle) && color_.a != 255;
  if (!sensible) return;
  square_cut_ = on_pixels_ && style.use_figure && is_square_cut(style.figure) &&
                std::fmod(style.angle, quarter_turn) == 0;
  if (square_cut_) size_ = std::max(1.0, std::round(size_));
  cairo_save(cairo);
  cairo_new_path(cairo);
  build(cairo, style);
  cairo_restore(cairo);
}

void mark::build(cairo_t* cairo, const Tzu_bpnt_style& style) {
  cairo_matrix_t page;
  cairo_get_matrix(cairo, &page);
  cairo_rotate(cairo, -style.angle / 180 * std::numbers::pi);
  if (style.use_figure)
    add_figure(cairo, style.figure, size_, square_cut_);
  else
    add_character(cairo, style, size_);
  cairo_set_matrix(cairo, &page);
  outline_.reset(cairo_copy_path(cairo));
  cairo_new_path(cairo);
  if (!outline_ || outline_->status != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  reach_ = reach_of(*outline_);
}

Tzu_vtx_d2 mark::middle(const mark_place& place) const {
  double c = std::cos(place.turn), s = std::sin(place.turn);
  double x = place.x + c * right_ - s * down_, y = place.y + s * right_ + c * down_;
  if (!on_pixels_ || place.turn != 0) return {x, y};
  double half = size_ / 2;
  if (square_cut_) return {std::floor(x - half + 0.5) + half, std::floor(y - half + 0.5) + half};
  return {std::floor(x * steps + 0.5) / steps, std::floor(y * steps + 0.5) / steps};
}

void mark::add_path(cairo_t* cairo, const Tzu_vtx_d2& middle, double turn) const {
  cairo_matrix_t page;
  cairo_get_matrix(cairo, &page);
  cairo_translate(cairo, middle.x, middle.y);
  cairo_rotate(cairo, turn);
  cairo_append_path(cairo, outline_.get());
  cairo_set_matrix(cairo, &page);
}

}  // namespace zu::platform
