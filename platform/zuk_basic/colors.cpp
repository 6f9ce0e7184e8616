#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_palettes.h"

namespace {

struct rgb {
  double r, g, b;
};

constexpr rgb white{255, 255, 255};
constexpr rgb white_gray[] = {white, {64, 64, 64}};
constexpr rgb white_blue[] = {white, {0, 0, 255}};
constexpr rgb white_red[] = {white, {255, 0, 0}};
constexpr rgb white_green[] = {white, {0, 128, 0}};
constexpr rgb white_yellow[] = {white, {255, 255, 0}};
constexpr rgb blue_white_red[] = {{0, 0, 255}, white, {255, 0, 0}};
constexpr rgb red_white_blue[] = {{255, 0, 0}, white, {0, 0, 255}};
constexpr rgb green_white_brown[] = {{0, 128, 0}, white, {139, 69, 19}};
constexpr rgb rainbow[] = {{0, 0, 255}, {0, 255, 255}, {0, 255, 0}, {255, 255, 0}, {255, 0, 0}};
constexpr rgb vinous_white_black[] = {{128, 0, 32}, white, {0, 0, 0}};

/// By id: the stops of a ramp, evenly spread, mixed in linear steps of the bytes.
constexpr std::span<const rgb> arrays[] = {white_gray,     white_blue,        white_red,
                                           white_green,    white_yellow,      blue_white_red,
                                           red_white_blue, green_white_brown, rainbow};

constexpr int32_t vinous_white_black_id = 25;

/// Empty if there is no such array.
std::span<const rgb> stops_of(int32_t id) {
  if (id == vinous_white_black_id) return vinous_white_black;
  if (id < 0 || id >= static_cast<int32_t>(std::size(arrays))) return {};
  return arrays[id];
}

rgb at(std::span<const rgb> stops, double share) {
  double place = share * static_cast<double>(stops.size() - 1);
  auto low = std::min(static_cast<std::size_t>(place), stops.size() - 2);
  double t = place - static_cast<double>(low);
  const rgb &a = stops[low], &b = stops[low + 1];
  return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

std::uint8_t byte(double value) { return static_cast<std::uint8_t>(std::floor(value + 0.5)); }

}  // namespace

bool zu_clr_arrays_generate_ex(int32_t id, uint64_t count, Tzu_color* colors, int32_t flag) {
  std::span<const rgb> stops = stops_of(id);
  if (stops.empty() || colors == nullptr) return false;
  for (uint64_t i = 0; i < count; ++i) {
    double share = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0.0;
    rgb c = flag == 0 ? at(stops, share) : stops[i % stops.size()];
    colors[i] = {byte(c.r), byte(c.g), byte(c.b), colors[i].a};
  }
  return true;
}

Tzu_color zu_clr_init_int(uint32_t word) {
  auto byte_at = [&](int n) { return static_cast<uint8_t>(word >> (8 * n)); };
  return {byte_at(0), byte_at(1), byte_at(2), byte_at(3)};
}

// Keeps the library's own copy of what the header defines.
[[gnu::used]] static const auto exported_pack = &zu_clr_init_rgba;
