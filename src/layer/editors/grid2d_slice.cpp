#include "src/layer/editors/grid2d_slice.h"

#include <algorithm>

#include "src/layer/editors/live_slider.h"

namespace zu::element {

grid2d_slice::grid2d_slice() {
  position_.set_range(1, 1, 1);
  position_.assign(1);
  position_.on_change = [this](std::int32_t position) {
    if (layer_ != nullptr) layer_->set_slice_index(std::int64_t{position} - 1);
  };
  take_each_move(position_);
  root_.place(position_).set_column_stretch(1).set_row_stretch(1);
}

void grid2d_slice::set_layer(grid_layer2d* layer) {
  if (layer == layer_) return;
  layer_ = layer;
  if (layer == nullptr) return;
  constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
  auto counted = [&](std::int64_t n) {
    return static_cast<std::int32_t>(std::clamp(n, -most, most));
  };
  position_.set_range(1, counted(layer->slice_count()), 1);
  position_.assign(counted(layer->slice_index() + 1));
}

}  // namespace zu::element
