#pragma once

#include "src/toolkit/inputs.h"
#include "src/toolkit/numbers.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::element {

/// What a layer of nodes with coordinates has besides its styles: the size of a point; and which
/// fields hold x and y, to be read only.
class coord_params : public toolkit::with_element {
 public:
  coord_params();
  /// Null for none. It is not kept alive.
  void set_layer(Izu_layer* layer);
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show_fields();

  Izu_layer* layer_ = nullptr;
  toolkit::labeled_slider<toolkit::floating_input> size_{14805};
  toolkit::labeled_element<toolkit::output> x_{14806}, y_{14807};
  toolkit::grid_layout<2, 4> root_;
};

}  // namespace zu::element
