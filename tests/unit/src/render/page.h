#pragma once
// A page of pixels with a render on it.

#include <array>
#include <cstdint>
#include <vector>

#include "src/bundle/owned.h"
#include "zu/platform/zuk_render.h"

namespace tests {

using rgba = std::array<int, 4>;  // as a picture has it: 255 is opaque

class page {
 public:
  page(std::uint64_t nx, std::uint64_t ny, Tzu_box_d2 box)
      : nx_(nx), ny_(ny), drwc_(zu_drwc_create_image(nx, ny, 96, false)) {
    render_.reset(zu_render_create(drwc_.get(), &box));
  }
  Izu_render* render() { return render_.get(); }
  Tzu_drwc* drwc() { return drwc_.get(); }
  bool is_empty() { return !zu_drwc_has_ink(drwc_.get()); }
  /// From the upper left corner.
  rgba pixel(std::uint64_t x, std::uint64_t y) {
    std::vector<std::uint8_t> all(nx_ * ny_ * 4);
    zu_drwc_get_pixels(drwc_.get(), all.data());
    const std::uint8_t* at = &all[(y * nx_ + x) * 4];
    return {at[0], at[1], at[2], at[3]};
  }

 private:
  std::uint64_t nx_, ny_;
  zu::owned<zu_drwc_destroy> drwc_;
  zu::owned<zu_render_destroy> render_;
};

}  // namespace tests
