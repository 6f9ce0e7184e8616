#pragma once
// Pictures by id: from the host's localizer, else from this module's table; and those that all
// parts of the system share.

#include <cstdint>

#include "zu/strings.h"

namespace zu {

/// A picture of this module. `masked` cuts out the colour of its low left pixel.
struct bitmap_resource {
  std::int32_t id;
  bool masked;
};

/// Gives the picture to the visitor, the bottom row first, four bytes a pixel; no call if there is
/// none. Three channels, or four (the last an opacity) for a masked one.
void get_bitmap(bitmap_resource bitmap, bytes_visitor visitor);
/// The same for a picture of `zuk_basic`, never masked, whatever the localizer has.
void get_bitmap_of_basic(std::int32_t id, bytes_visitor visitor);

namespace detail {

/// Gives a picture in the letters of `zu_res_paint_bitmap` to the visitor.
void visit_letters(const char* letters, std::uint32_t width, std::uint32_t height, bool masked,
                   bytes_visitor visitor);

/// Adds a mask to a picture without one on its way to `receiver`: pixels of the colour of the last
/// row's first become 0, 0, 0, 0, all others opaque. A picture of neither one nor three channels
/// passes unchanged; one that no memory is left for, not at all.
class key_visitor final : public bytes_visitor_impl {
 public:
  explicit key_visitor(bytes_visitor receiver) : receiver_(receiver) {}
  void visit(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t width,
             std::uint64_t bytes_per_pixel, std::uint64_t channels, std::uint64_t interleave,
             const std::uint8_t* pixels) override;

 private:
  bytes_visitor receiver_;
};

}  // namespace detail
}  // namespace zu
