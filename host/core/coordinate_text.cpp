#include "host/core/coordinate_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "host/core/texts.h"

namespace zu::host {
namespace {

constexpr int usual_decimals = 5, most_decimals = 8;  // of degrees

/// Decimals whose last is not above a step.
int decimals_of(double step) { return static_cast<int>(std::ceil(-std::log10(step))); }

std::int64_t power_of_10(int exponent) {
  std::int64_t power = 1;
  for (int i = 0; i < exponent; ++i) power *= 10;
  return power;
}

std::string padded(std::int64_t value, std::size_t digits) {
  std::string text = std::to_string(value);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

/// `count` parts, of which `parts` make a whole; they have `decimals` digits.
std::string fraction(std::int64_t count, std::int64_t parts, int decimals, std::size_t whole) {
  std::string text = padded(count / parts, whole);
  if (decimals > 0) text += "." + padded(count % parts, static_cast<std::size_t>(decimals));
  return text;
}

/// In whole steps of the last digit: 59.96 seconds are a minute, and the letter is of what is seen.
std::string angle(double degrees, int decimals, bool in_seconds, const std::string& positive,
                  const std::string& negative) {
  if (in_seconds) decimals -= 4;
  std::int64_t parts = power_of_10(decimals);
  double steps = static_cast<double>(in_seconds ? 3600 * parts : parts);
  std::int64_t count = std::llround(degrees * steps);
  const std::string& letters = count < 0 ? negative : positive;
  count = std::abs(count);
  if (!in_seconds) return fraction(count, parts, decimals, 1) + "°" + letters;
  std::int64_t minutes = count / (60 * parts);
  return std::to_string(minutes / 60) + "°" + padded(minutes % 60, 2) + "′" +
         fraction(count % (60 * parts), parts, decimals, 2) + "″" + letters;
}

}  // namespace

void coordinate_text::set_projection(const std::string& projection) {
  if (projection == projection_) return;
  projection_ = projection;
  way_.reset(zu_rpj_fb_d2_create());
  if (!zu_rpj_fb_d2_init_w(way_.get(), wide(projection).c_str(), L"EPSG:4326")) way_.reset();
}

std::optional<coordinate_text::place> coordinate_text::place_of(double x, double y) const {
  if (!way_) return {};
  if (zu_rpj_fb_d2_rpj_is_needed(way_.get()) && !zu_rpj_fb_d2_apply_xy(way_.get(), &x, &y, 1))
    return {};
  if (!std::isfinite(x) || !(std::abs(y) <= 90)) return {};
  return place{std::remainder(x, 360), y};
}

std::string coordinate_text::text(double x, double y, double pixel, coordinate_units units,
                                  const compass_letters& letters) const {
  std::optional<place> found;
  if (units != coordinate_units::map) found = place_of(x, y);
  if (!found) return map_coordinate(x, pixel) + "; " + map_coordinate(y, pixel);
  int decimals = usual_decimals;
  // Northwards: there a step is as long everywhere.
  if (std::optional<place> next = place_of(x, y + pixel); next && next->latitude != found->latitude)
    decimals = std::clamp(decimals_of(std::abs(next->latitude - found->latitude)), usual_decimals,
                          most_decimals);
  bool in_seconds = units == coordinate_units::dms;
  return angle(found->longitude, decimals, in_seconds, letters.east, letters.west) + " " +
         angle(found->latitude, decimals, in_seconds, letters.north, letters.south);
}

std::string map_coordinate(double value, double pixel) {
  int decimals = pixel > 0 ? std::clamp(decimals_of(pixel) + 1, 0, 8) : 2;
  std::array<char, 400> text{};  // the largest number has 309 digits before its point
  auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed,
                           decimals);
  return {text.data(), end.ptr};
}

}  // namespace zu::host
