#pragma once
// The number of a set of lines, drawn on them.

#include <optional>
#include <vector>

#include "platform/zuk_drwc/line_labels.h"
#include "platform/zuk_drwc/text_line.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::platform {

class line_numbers {
 public:
  /// Nothing is numbered without a style or if the set has no level. The numbers stay inside
  /// `shown`, in the user space of the context, and clear of the `taken` boxes.
  line_numbers(cairo_t* cairo, double per_mm, const Tzu_box_d2& shown,
               std::vector<Tzu_box_d2>& taken, const Tzu_ov_d2& lines, const Tzu_bnum_style* style);

  /// Parts of a piece between the numbers that it gets.
  std::vector<line_piece> parted(const line_piece& piece);
  /// Draws all numbers in the colour that is set.
  void draw() const;

 private:
  std::vector<Tzu_box_d2>& taken_;
  std::optional<text_line> text_;
  label_request request_{};
  std::vector<line_label> places_;
};

}  // namespace zu::platform
