#pragma once

#include "src/layer/editors/layer_fields.h"
#include "src/style/style_links.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/numbers.h"

namespace zu::style {

/// The steps and the two lines of the isolines of a layer's field.
class isoline_manager : public toolkit::with_element {
 public:
  isoline_manager();
  /// Shows the style of a layer; nulls leave an empty panel. Neither is kept alive.
  void set(Izu_layer* layer, Tzu_isoline_style* style);
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void reload(Izu_layer* layer);
  void enable();

  Tzu_isoline_style* style_ = nullptr;
  toolkit::checkbox use_{10650};
  element::overlay_field field_;
  toolkit::labeled_element<toolkit::floating_input> thin_step_{10660}, bold_step_{10662};
  line_style_link thin_style_{10661}, bold_style_{10663};
  toolkit::grid_span_layout<2, 7> root_;
};

}  // namespace zu::style
