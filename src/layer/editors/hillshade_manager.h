#pragma once

#include "src/layer/editors/layer_fields.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/numbers.h"

namespace zu::style {

/// The light that a relief of a layer's field is shaded by.
class hillshade_manager : public toolkit::with_element {
 public:
  hillshade_manager();
  /// Shows the style of a layer; nulls leave an empty panel. Neither is kept alive.
  void set(Izu_layer* layer, Tzu_hillshade_style* style);
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void reload(Izu_layer* layer);
  void enable();

  Tzu_hillshade_style* style_ = nullptr;
  toolkit::checkbox use_{10650};
  element::overlay_field field_;
  toolkit::labeled_element<toolkit::floating_input> z_factor_{10652};
  toolkit::labeled_slider<toolkit::floating_input> altitude_{10653}, azimuth_{10654};
  toolkit::labeled_element<toolkit::slider> blend_{10656};
  toolkit::checkbox multidirectional_{10657};
  toolkit::grid_span_layout<2, 8> root_;
};

}  // namespace zu::style
