#include "platform/zuk_styles/color_ramp.h"

#include <algorithm>
#include <cmath>

namespace zu::platform {
namespace {

std::uint8_t mixed_byte(std::uint8_t a, std::uint8_t b, double share) {
  return static_cast<std::uint8_t>(std::floor(a + (b - a) * share + 0.5));
}

void put(Tzu_color color, Tzu_color& into) { into = {color.r, color.g, color.b, into.a}; }

}  // namespace

color_ramp::color_ramp(std::span<const Tzu_color> colors, ramp_form form)
    : in_bytes_(form == ramp_form::bytes) {
  std::size_t half = colors.size() / 2;
  std::vector<Tzu_color> closed;
  switch (form) {
    case ramp_form::ring:
      closed.assign(colors.begin(), colors.end());
      closed.push_back(colors.front());
      append(closed, 0.0, 1.0, true);
      break;
    case ramp_form::halves:
      append(colors.first(half + 1), 0.0, 0.5, true);
      append(colors.subspan(half), 0.5, 1.0, true);
      break;
    case ramp_form::broken:
      append(colors.first(half), 0.0, 0.5, true);
      append(colors.subspan(half), 0.5, 1.0, true);
      break;
    default:
      append(colors, 0.0, 1.0, form == ramp_form::even);
  }
}

void color_ramp::append(std::span<const Tzu_color> colors, double from, double to, bool even) {
  std::size_t first = nodes_.size();
  double way = 0.0;
  for (std::size_t i = 0; i < colors.size(); ++i) {
    oklab look = to_oklab(colors[i]);
    if (i > 0) way += even ? distance(nodes_.back().look, look) : 1.0;
    nodes_.push_back({way, colors[i], look});
  }
  for (std::size_t i = first; i < nodes_.size(); ++i)
    nodes_[i].place = way > 0.0 ? from + (to - from) * (nodes_[i].place / way) : from;
}

Tzu_color color_ramp::at(double place) const {
  auto right = std::lower_bound(nodes_.begin(), nodes_.end(), place,
                                [](const node& n, double p) { return n.place < p; });
  if (right == nodes_.begin()) return nodes_.front().color;
  if (right == nodes_.end()) return nodes_.back().color;
  const node &a = *(right - 1), &b = *right;
  double share = (place - a.place) / (b.place - a.place);
  if (!in_bytes_) return share < 1.0 ? from_oklab(mixed(a.look, b.look, share)) : b.color;
  return {mixed_byte(a.color.r, b.color.r, share), mixed_byte(a.color.g, b.color.g, share),
          mixed_byte(a.color.b, b.color.b, share), 0};
}

void spread(const color_ramp& ramp, std::uint64_t count, Tzu_color* colors) {
  for (std::uint64_t i = 0; i < count; ++i) {
    double last = static_cast<double>(count - 1);
    put(ramp.at(count > 1 ? static_cast<double>(i) / last : 0.0), colors[i]);
  }
}

void repeat(std::span<const Tzu_color> from, std::uint64_t count, Tzu_color* colors) {
  if (from.empty()) return;
  for (std::uint64_t i = 0; i < count; ++i) put(from[i % from.size()], colors[i]);
}

}  // namespace zu::platform
