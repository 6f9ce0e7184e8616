#include "src/layer/editors/coord_params.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/layer/editors/layer_fields.h"
#include "src/layer/editors/live_slider.h"
#include "zu/platform/zuk_file_tos4.h"

namespace zu::element {

coord_params::coord_params() {
  constexpr double largest = 100, step = 0.5;  // millimetres
  size_.set_range(0, largest, step);
  size_.on_change = [this](double millimetres) {
    zu_tos_2crd_lr2d_set_point_size(layer_, millimetres);
  };
  take_each_move(size_);
  root_.place(size_).place(x_).place(y_).set_column_stretch(1).set_row_stretch(3);
}

void coord_params::set_layer(Izu_layer* layer) {
  if (layer == layer_) return;
  layer_ = layer;
  size_.assign(zu_tos_2crd_lr2d_get_point_size(layer));
  show_fields();
}

void coord_params::show_fields() {
  data::open_reference source = source_of(layer_);
  owned<zu_tos4_file_close> file(zu_tos4_file_open_w(source.name.c_str(), 1));
  auto name = [&](std::int32_t axis) {
    std::int32_t field = zu_tos4_get_coord_prop(file.get(), axis);
    if (field < 0) return std::wstring();
    return text_of([&](Tzu_string_adp* a) {
      zu_tos4_get_prop_name_w(file.get(), static_cast<std::uint32_t>(field), a);
    });
  };
  x_.assign(name(0));
  y_.assign(name(1));
}

}  // namespace zu::element
