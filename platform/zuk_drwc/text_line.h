#pragma once
// Texts of one line, by Pango.

#include <pango/pangocairo.h>

#include <memory>
#include <string>

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

/// A text laid out without hints: its width follows its size exactly, whatever the
/// context. Lengths are in the user space of the context.
class text_line {
 public:
  /// `size` is that of the font. Throws std::bad_alloc if the text cannot be laid out.
  text_line(cairo_t* cairo, const std::string& utf8, double size,
            const std::string& family = "DejaVu Sans");

  double width() const;
  double capital_height() const;  ///< of the font, above the base line
  /// Around what is black, about the beginning of the base line, y downwards.
  Tzu_box_d2 ink() const;
  /// Draws in the colour that is set; the base line begins at the point and is turned by `angle`
  /// (radians, as Cairo turns).
  void draw(double x, double y, double angle) const;
  /// Adds the outlines of the letters to the path.
  void add_path(double x, double y) const;

 private:
  struct released {
    void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  };

  cairo_t* cairo_;
  std::unique_ptr<PangoLayout, released> layout_;
};

}  // namespace zu::platform
