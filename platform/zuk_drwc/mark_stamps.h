#pragma once
// Symbols put on the pixels of a picture as masks, which is many times sooner than paths.

#include <cstdint>
#include <vector>

#include "platform/zuk_drwc/mark.h"
#include "platform/zuk_drwc/put_dib.h"

namespace zu::platform {

class mark_stamps {
 public:
  static constexpr double largest_reach = 100;  ///< pixels; larger masks are no gain

  /// Of a mark made for pixels, which must outlive the stamps.
  explicit mark_stamps(const mark& stamped);
  /// Draws the mark over premultiplied words, `stride` to a row, the top row first. `middle` is
  /// what the mark gives for a place without a turn; `bounds` are rows and columns as they stand.
  void put(std::uint32_t* words, std::int64_t stride, const pixel_box& bounds,
           const Tzu_vtx_d2& middle);

 private:
  static constexpr int steps = 4;  ///< places within a pixel, along each axis
  using mask = std::vector<std::uint8_t>;

  const mask& mask_at(int x_step, int y_step);

  const mark& mark_;
  std::int64_t reach_, side_;
  mask masks_[steps * steps];   // empty until they are asked for
  std::uint32_t covered_[256];  // the colour by how much of a pixel is covered
};

}  // namespace zu::platform
