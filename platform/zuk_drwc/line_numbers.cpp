#include "platform/zuk_drwc/line_numbers.h"

#include <charconv>
#include <cmath>

#include "platform/zuk_styles/symbols.h"

namespace zu::platform {
namespace {

constexpr double spacing = 100;  // millimetres

/// The shortest text of a number with up to 15 digits.
std::string number_text(double value) {
  char text[32];
  auto end = std::to_chars(text, text + sizeof text, value == 0 ? 0.0 : value,
                           std::chars_format::general, 15)
                 .ptr;
  return {text, end};
}

}  // namespace

line_numbers::line_numbers(cairo_t* cairo, double per_mm, const Tzu_box_d2& shown,
                           std::vector<Tzu_box_d2>& taken, const Tzu_ov_d2& lines,
                           const Tzu_bnum_style* style)
    : taken_(taken) {
  double level;
  if (style == nullptr || !zu_ov_d2_get_level(&lines, &level) || !std::isfinite(level)) return;
  text_.emplace(cairo, number_text(level), zu_bnum_style_get_size(style) * per_mm);
  request_ = {text_->width(), text_->capital_height(), spacing * per_mm, shown};
}

std::vector<line_piece> line_numbers::parted(const line_piece& piece) {
  if (!text_) return {piece};
  std::vector<line_label> places = place_labels(piece.vertices, request_, taken_);
  places_.insert(places_.end(), places.begin(), places.end());
  return without_labels(piece, places);
}

void line_numbers::draw() const {
  for (const line_label& place : places_) {
    double c = std::cos(place.angle), s = std::sin(place.angle);
    double back = request_.width / 2, down = request_.height / 2;
    text_->draw(place.middle.x - c * back - s * down, place.middle.y - s * back + c * down,
                place.angle);
  }
}

}  // namespace zu::platform
