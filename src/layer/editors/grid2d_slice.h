#pragma once

#include "src/layer/grid_layer2d.h"
#include "src/toolkit/numbers.h"

namespace zu::element {

/// Which slice of a volume a layer means. A person counts them from 1.
class grid2d_slice : public toolkit::with_element {
 public:
  grid2d_slice();
  /// Null for a layer without slices. It is not kept alive.
  void set_layer(grid_layer2d* layer);
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  grid_layer2d* layer_ = nullptr;
  toolkit::labeled_slider<toolkit::integer_input> position_{14801};
  toolkit::grid_layout<2, 2> root_;
};

}  // namespace zu::element
