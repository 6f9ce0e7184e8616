#include "platform/zuk_drwc/drawing_context.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/zuk_drwc/cut_ring.h"
#include "platform/zuk_drwc/text_line.h"

namespace zu::platform {
namespace {

constexpr double mm_per_inch = 25.4;
constexpr double far_off = 4e6;  // pixels
constexpr double hair = 1e-6;    // pixels; what rounding may have moved a side

/// Nearest whole number, half up. What misses a half by the rounding of millimetres alone counts as
/// one: both sides of a box that lies on halves must go the same way, or it would grow by a pixel.
std::int64_t rounded(double pixels) {
  return static_cast<std::int64_t>(std::floor(pixels + 0.5 + hair));
}

/// The pixel that holds the low side of a box narrower than a pixel.
std::int64_t pixel_at(double side) { return static_cast<std::int64_t>(std::floor(side + hair)); }

}  // namespace

drawing_context::drawing_context(double width, double height, double dots_per_inch, bool accurate,
                                 std::uint64_t largest_side)
    : width_(width),
      height_(height),
      per_mm_(dots_per_inch / mm_per_inch),
      accurate_(accurate),
      largest_side_(largest_side) {}

Tzu_box_d2 drawing_context::page() const { return {0, 0, width_ / per_mm_, height_ / per_mm_}; }

pixel_box drawing_context::pixels_of(const Tzu_box_d2& mm) const {
  constexpr double far = 1e9;
  double sides[4] = {mm.x0 * per_mm_, mm.y0 * per_mm_, mm.x1 * per_mm_, mm.y1 * per_mm_};
  bool sensible = sides[0] < sides[2] && sides[1] < sides[3] &&
                  std::all_of(sides, sides + 4, [](double s) { return std::abs(s) < far; });
  if (!sensible) return {0, 0, 0, 0};
  pixel_box box{rounded(sides[0]), rounded(sides[1]), rounded(sides[2]), rounded(sides[3])};
  // What has an area shows, be it one pixel.
  if (box.x1 == box.x0) box.x0 = pixel_at(sides[0]), box.x1 = box.x0 + 1;
  if (box.y1 == box.y0) box.y0 = pixel_at(sides[1]), box.y1 = box.y0 + 1;
  auto most = static_cast<std::int64_t>(largest_side_);
  if (box.x1 - box.x0 > most || box.y1 - box.y0 > most) return {0, 0, 0, 0};
  return box;
}

pixel_box drawing_context::region() const {
  pixel_box page{0, 0, static_cast<std::int64_t>(std::ceil(width_)),
                 static_cast<std::int64_t>(std::ceil(height_))};
  return region_ ? common(page, *region_) : page;
}

pixel_box drawing_context::bled_region() const {
  pixel_box box = region();
  if (region_) box.x1 += bleed_, box.y1 += bleed_;
  return box;
}

drawing_context::saved_state drawing_context::clipped_to(const pixel_box& box) {
  cairo_save(cairo_.get());
  saved_state saved(cairo_.get());
  if (!region_) return saved;
  cairo_new_path(cairo_.get());
  cairo_rectangle(cairo_.get(), static_cast<double>(box.x0), height_ - static_cast<double>(box.y1),
                  static_cast<double>(std::max<std::int64_t>(0, box.x1 - box.x0)),
                  static_cast<double>(std::max<std::int64_t>(0, box.y1 - box.y0)));
  cairo_clip(cairo_.get());
  return saved;
}

void drawing_context::set_color(Tzu_color color) {
  cairo_set_source_rgba(cairo_.get(), color.r / 255.0, color.g / 255.0, color.b / 255.0,
                        (255 - color.a) / 255.0);
}

void drawing_context::fill_box(const Tzu_box_d2& mm, Tzu_color color) {
  Tzu_box_d2 all = page(), shown;
  if (color.a == 255 || !zu_box_d2_cross(&mm, &all, &shown)) return;
  saved_state saved = clipped_to(region());
  set_color(color);
  cairo_new_path(cairo_.get());
  cairo_rectangle(cairo_.get(), shown.x0 * per_mm_, height_ - shown.y1 * per_mm_,
                  (shown.x1 - shown.x0) * per_mm_, (shown.y1 - shown.y0) * per_mm_);
  cairo_fill(cairo_.get());
  inked();
}

void drawing_context::draw_text(double x_mm, double y_mm, double height_mm, int anchor,
                                Tzu_color color, const std::string& utf8) {
  bool sensible = std::isfinite(x_mm) && std::isfinite(y_mm) && anchor >= zu_anchor_low_left &&
                  anchor <= zu_anchor_high_right;
  if (!sensible || color.a == 255 || utf8.empty() || region().is_empty()) return;
  text_line text(cairo_.get(), utf8, height_mm * per_mm_);
  int column = anchor % 3, row = anchor / 3;
  double x = x_mm * per_mm_ - column * text.width() / 2;
  double y = height_ - y_mm * per_mm_ + row * text.capital_height() / 2;
  // Cairo counts pixels in 24 bits.
  if (std::abs(x) > far_off || std::abs(y) > far_off) return;
  saved_state saved = clipped_to(region());
  set_color(color);
  text.draw(x, y, 0);
  inked();
}

double drawing_context::text_width(double height_mm, const std::string& utf8) const {
  return text_line(cairo_.get(), utf8, height_mm * per_mm_).width() / per_mm_;
}

void drawing_context::add_rings(const Tzu_ov_d2& polygon) {
  auto* rings = const_cast<Tzu_ov_d2*>(&polygon);  // read only; the getters give what may be edited
  // Cairo keeps 24 bits of whole pixels: what lies far outside would come back on the other side.
  const Tzu_box_d2 near_the_page{-width_, -height_, 2 * width_, 2 * height_};
  cairo_new_path(cairo_.get());
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(rings); ++i) {
    std::vector<Tzu_vtx_d2> ring = in_pixels(zu_ov_d2_get_pv_ptr(rings, i));
    for (const Tzu_vtx_d2& v : cut_ring(ring, near_the_page)) cairo_line_to(cairo_.get(), v.x, v.y);
    cairo_close_path(cairo_.get());
    cairo_new_sub_path(cairo_.get());
  }
  cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_EVEN_ODD);
}

std::vector<Tzu_vtx_d2> drawing_context::in_pixels(Tzu_pv_d2* list) const {
  const Tzu_vtx_d2* vertices = zu_pv_d2_get_arr(list);
  std::vector<Tzu_vtx_d2> found(vertices, vertices + zu_pv_d2_get_size(list));
  for (Tzu_vtx_d2& v : found) v = {v.x * per_mm_, height_ - v.y * per_mm_};
  return found;
}

void drawing_context::set_clip(const Tzu_ov_d2* polygon) {
  clear_clip();
  add_rings(*polygon);
  cairo_clip(cairo_.get());
  clipped_ = true;
}

void drawing_context::clear_clip() {
  cairo_reset_clip(cairo_.get());
  clipped_ = false;
}

void drawing_context::begin_object(const std::wstring& name) {
  int outer = objects_.empty() ? 0 : objects_.back().noted;
  objects_.push_back({name, note_object(outer, name)});
}

bool drawing_context::end_object(const std::wstring& name) {
  if (objects_.empty() || objects_.back().name != name) return false;
  objects_.pop_back();
  return true;
}

void drawing_context::set_region(const Tzu_box_d2* millimetres) {
  region_.reset();
  if (millimetres != nullptr) region_ = pixels_of(*millimetres);
}

}  // namespace zu::platform
