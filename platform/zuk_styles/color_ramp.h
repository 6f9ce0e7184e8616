#pragma once
// Colours that run on between a few.

#include <cstdint>
#include <span>
#include <vector>

#include "platform/zuk_styles/oklab.h"

namespace zu::platform {

/// How the colours of an array lie along its ramp.
enum class ramp_form {
  even,    ///< steps of equal length look equally long, over the whole
  ring,    ///< as `even`, and on from the last colour to the first
  halves,  ///< the middle colour stands in the middle, each half is even for itself
  broken,  ///< two even halves of as many colours each, that do not run into each other
  spread,  ///< each colour at an equal distance from the next, whatever it looks like
  bytes,   ///< as `spread`, mixed in the bytes
};

class color_ramp {
 public:
  /// One colour at least; `halves` takes an odd number and `broken` an even one.
  color_ramp(std::span<const Tzu_color> colors, ramp_form form);
  /// 0 is the first colour, 1 the last. Where a ramp is broken the lower half holds the middle.
  Tzu_color at(double place) const;

 private:
  struct node {
    double place;
    Tzu_color color;
    oklab look;
  };
  void append(std::span<const Tzu_color> colors, double from, double to, bool even);

  std::vector<node> nodes_;
  bool in_bytes_;
};

/// Spreads a ramp over `count` colours, whose transparencies stay; a single one is the first.
void spread(const color_ramp& ramp, std::uint64_t count, Tzu_color* colors);
/// Takes colours in turn, from the first again where they end; transparencies stay. None change
/// nothing.
void repeat(std::span<const Tzu_color> from, std::uint64_t count, Tzu_color* colors);

}  // namespace zu::platform
