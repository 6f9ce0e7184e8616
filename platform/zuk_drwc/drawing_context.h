#pragma once
// What pictures in memory and pages of documents have in common: a page of pixels, on which Cairo
// draws lines and texts inside a clip and a region.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_drwc/cairo_owned.h"
#include "platform/zuk_drwc/put_dib.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::platform {

class drawing_context {
 public:
  virtual ~drawing_context() = default;
  drawing_context(const drawing_context&) = delete;
  drawing_context& operator=(const drawing_context&) = delete;

  bool is_accurate() const { return accurate_; }
  Tzu_box_d2 page() const;
  /// The box's sides on whole pixels; empty if nothing can be drawn.
  pixel_box pixels_of(const Tzu_box_d2& millimetres) const;

  virtual void fill(Tzu_color color) = 0;
  virtual void draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) = 0;
  void draw_lines(const Tzu_ov_d2& set, const Tzu_pln_style& style);
  void fill_box(const Tzu_box_d2& millimetres, Tzu_color color);
  void set_clip(const Tzu_ov_d2* polygon);
  void clear_clip();
  void set_region(const Tzu_box_d2* millimetres);
  /// Whether anything visible was drawn.
  virtual bool has_ink() const = 0;
  /// Straight (not premultiplied) r, g, b, opacity, the top row first. Only pictures have pixels.
  virtual void copy_pixels(std::uint8_t*) const {}
  /// Throws `write_failure`.
  virtual void save(const std::string& path, const Tzu_box_d2* georeference,
                    const std::string& projection) = 0;

 protected:
  /// A page of so many pixels; its lowest row of pixels begins at the page's lower side.
  drawing_context(double width, double height, double dots_per_inch, bool accurate,
                  std::uint64_t largest_side);

  /// The region in pixels, or the whole page.
  pixel_box region() const;
  /// A clip to the region for what Cairo draws now; lifted by `cairo_restore`.
  void begin_region();
  virtual void inked() {}

  double width_, height_;  ///< of the page in pixels
  double per_mm_;          ///< pixels a millimetre
  bool accurate_, clipped_ = false;
  std::uint64_t largest_side_;  ///< of a DIB
  std::optional<pixel_box> region_;
  cairo_ptr cairo_;  ///< user space: pixels of the page, y downwards
};

}  // namespace zu::platform
