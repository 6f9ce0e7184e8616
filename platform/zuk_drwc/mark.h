#pragma once
// A symbol made ready to be drawn at many places.

#include <cairo.h>

#include <memory>
#include <vector>

#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::platform {

/// Where a symbol stands, in pixels of a page, y downwards, and how it is turned besides its own
/// angle (radians, as Cairo turns).
struct mark_place {
  double x, y, turn;
};

class mark {
 public:
  /// What the plain fields of a style say. `on_pixels`: sides along the axes are to lie on whole
  /// pixels, and other marks stand on quarters of a pixel. Throws std::bad_alloc.
  mark(cairo_t* cairo, const Tzu_bpnt_style& style, double per_mm, bool on_pixels);

  bool is_empty() const { return reach_ == 0; }  ///< draws nothing
  Tzu_color color() const { return color_; }
  /// No ink is further from the middle along an axis, unless the mark is turned.
  double reach() const { return reach_; }
  /// Where the middle of the mark gets.
  Tzu_vtx_d2 middle(const mark_place& place) const;
  /// Adds the outline, to be filled by the winding rule, with the middle at a point.
  void add_path(cairo_t* cairo, const Tzu_vtx_d2& middle, double turn) const;

 private:
  struct path_ended {
    void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
  };

  void build(cairo_t* cairo, const Tzu_bpnt_style& style);

  std::unique_ptr<cairo_path_t, path_ended> outline_;
  Tzu_color color_;
  double right_, down_, size_, reach_ = 0;
  bool on_pixels_, square_cut_ = false;
};

}  // namespace zu::platform
