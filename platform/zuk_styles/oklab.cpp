#include "platform/zuk_styles/oklab.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zu::platform {
namespace {

/// IEC 61966-2-1: a byte of sRGB as light, 0 to 1, and back.
double light_of(std::uint8_t byte) {
  double c = byte / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}
std::uint8_t byte_of(double light) {
  double c = std::clamp(light, 0.0, 1.0);
  c = c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1 / 2.4) - 0.055;
  return static_cast<std::uint8_t>(std::floor(c * 255.0 + 0.5));
}
double cube(double x) { return x * x * x; }

}  // namespace

oklab to_oklab(Tzu_color color) {
  double r = light_of(color.r), g = light_of(color.g), b = light_of(color.b);
  double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
  double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
  double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
  return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
          1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
          0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

Tzu_color from_oklab(const oklab& color) {
  double l = cube(color.l + 0.3963377774 * color.a + 0.2158037573 * color.b);
  double m = cube(color.l - 0.1055613458 * color.a - 0.0638541728 * color.b);
  double s = cube(color.l - 0.0894841775 * color.a - 1.2914855480 * color.b);
  return {byte_of(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
          byte_of(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
          byte_of(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s), 0};
}

double distance(const oklab& a, const oklab& b) {
  return std::hypot(a.l - b.l, a.a - b.a, a.b - b.b);
}

oklab mixed(const oklab& from, const oklab& to, double share) {
  return {from.l + (to.l - from.l) * share, from.a + (to.a - from.a) * share,
          from.b + (to.b - from.b) * share};
}

}  // namespace zu::platform
