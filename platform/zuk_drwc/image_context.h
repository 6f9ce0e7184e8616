#pragma once
// A picture in memory: Cairo's premultiplied pixels, the top row first.

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "zu/platform/zuk_drwc.h"

namespace zu::platform {

struct cairo_ended {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using surface_ptr = std::unique_ptr<cairo_surface_t, cairo_ended>;
using cairo_ptr = std::unique_ptr<cairo_t, cairo_ended>;

/// Whole pixels, the row of lowest y first: columns x0 .. x1 - 1, rows y0 .. y1 - 1.
struct pixel_box {
  std::int64_t x0, y0, x1, y1;
};

class image_context {
 public:
  static constexpr std::uint64_t largest_side = 32767;

  /// Throws std::bad_alloc if there is no memory.
  image_context(std::uint64_t nx, std::uint64_t ny, double dots_per_inch, bool accurate);

  std::uint64_t nx() const { return nx_; }
  std::uint64_t ny() const { return ny_; }
  bool is_accurate() const { return accurate_; }
  Tzu_box_d2 page() const;
  /// The box's sides on whole pixels; empty if nothing can be drawn.
  pixel_box pixels_of(const Tzu_box_d2& millimetres) const;

  void fill(Tzu_color color);
  void draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib);
  void set_clip(const Tzu_ov_d2* polygon);
  void clear_clip();

  /// Straight (not premultiplied) r, g, b, opacity, the top row first.
  void copy_pixels(std::uint8_t* rgba) const;
  bool has_ink() const;

 private:
  void draw_clipped(const pixel_box& place, const Tzu_dib& dib, std::uint8_t alpha);

  std::uint64_t nx_, ny_;
  double per_mm_;  // pixels a millimetre
  bool accurate_, clipped_ = false;
  surface_ptr surface_;
  cairo_ptr cairo_;
};

}  // namespace zu::platform
