#pragma once
// A picture in memory: Cairo's premultiplied pixels, the top row first.

#include "platform/zuk_drwc/drawing_context.h"

namespace zu::platform {

class image_context : public drawing_context {
 public:
  static constexpr std::uint64_t largest_picture = 32767;  ///< pixels a side

  /// Throws std::bad_alloc if there is no memory.
  image_context(std::uint64_t nx, std::uint64_t ny, double dots_per_inch, bool accurate);

  void fill(Tzu_color color) override;
  void draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) override;
  bool has_ink() const override;
  void copy_pixels(std::uint8_t* rgba) const override;
  const std::uint32_t* words(std::uint64_t& row_bytes) const override;
  /// PNG or TIFF.
  void save(const std::string& path, const Tzu_box_d2* georeference,
            const std::string& projection) override;

 protected:
  void stroke_lines(const strokes& lines) override;
  void put_marks(const mark& drawn, const std::vector<mark_place>& places) override;
  bool has_pixels() const override { return true; }

 private:
  void draw_clipped(const pixel_box& place, const Tzu_dib& dib, std::uint8_t alpha);

  std::uint64_t nx_, ny_;
  surface_ptr surface_;
};

}  // namespace zu::platform
