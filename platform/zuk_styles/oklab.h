#pragma once
// Colours in OKLab, where equal steps look equal (B. Ottosson 2020, "A perceptual color space for
// image processing").

#include "zu/platform/zuk_basic.h"

namespace zu::platform {

/// Lightness 0 black to 1 white; a runs from green to red, b from blue to yellow.
struct oklab {
  double l = 0, a = 0, b = 0;
};

oklab to_oklab(Tzu_color color);
/// The nearest bytes, opaque; what no screen shows is cut channel by channel.
Tzu_color from_oklab(const oklab& color);
/// How different two colours look: 0.02 is hardly seen, black and white are 1 apart.
double distance(const oklab& a, const oklab& b);
/// What lies between two colours at `share`, 0 to 1.
oklab mixed(const oklab& from, const oklab& to, double share);

}  // namespace zu::platform
