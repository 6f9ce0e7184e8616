#pragma once
// A button that shows the figure of a point and opens the dialog of figures.

#include "src/style/pickers/symbol_grid.h"
#include "src/toolkit/buttons.h"

namespace zu::style {

namespace detail {

/// The symbol of a point style as an image.
class symbol_image : public toolkit::image {
 public:
  void picture(bitmap_visitor visitor) override { visit_point(shown_.get(), visitor); }
  Tzu_bpnt_style* point() { return zu_pnt_style_get_bpnt_style_ptr(shown_.get()); }

 private:
  owned<zu_pnt_style_destroy> shown_ = preview_point();
};

}  // namespace detail

class figure_input : public toolkit::with_element {
 public:
  figure_input();

  std::int32_t figure() { return zu_bpnt_style_get_figure(image_.point()); }
  void assign(const Tzu_bpnt_style* from);
  /// Sets the figure, and that it is used.
  void apply_to(Tzu_bpnt_style* to);
  void set_enabled(bool enabled) { button_.set_enabled(enabled); }

  std::function<void()> on_change;  ///< a person chose another figure

  handle element() override { return toolkit::handle_of_element(button_); }

 private:
  void show(std::int32_t figure);
  void ask();

  detail::symbol_image image_;
  toolkit::button button_{0, 15302};
};

}  // namespace zu::style
