#include "src/layer/editors/grid2d_style.h"

#include "src/layer/editors/layer_fields.h"
#include "src/layer/editors/live_slider.h"

namespace zu::element {
namespace {

constexpr int row_of_pages = 2, row_below = 4;

}  // namespace

grid2d_style::grid2d_style() {
  draw_type_.on_change = [this](grid_draw_type chosen) {
    if (layer_ == nullptr) return;
    layer_->set_draw_type(chosen);
    bind_page(chosen);
    show_page(chosen);
  };
  transparent_color_.on_change = [this](Tzu_color color) {
    if (layer_ != nullptr) layer_->set_transp_clr(color);
  };
  styles_.on_interpolate = [this](bool on) {
    if (layer_ != nullptr) layer_->set_interpolate(on);
  };
  opacity_.set_range(0, 100, 1);
  opacity_.on_change = [this](std::int32_t percent) {
    if (layer_ != nullptr) layer_->set_opacity(static_cast<std::uint32_t>(percent));
  };
  take_each_move(opacity_);
  pages_.skip().place(styles_).place(gray_).place(rgb_);
  constexpr std::uint32_t width_of_choice = 21;
  transparent_line_.place(transparent_color_).set_column_stretch(1);
  root_.place(draw_type_).place(transparent_label_).place(transparent_line_);
  root_.place(pages_, 2).place(opacity_);
  root_.set_column_size(1, width_of_choice).set_column_stretch(1);
  fill_draw_types();
  show_page(grid_draw_image);
}

void grid2d_style::set_layer(grid_layer2d* layer) {
  if (layer == layer_) return;
  layer_ = layer;
  if (layer != nullptr) {
    reload();
    return;
  }
  clear_pages();
  show_page(grid_draw_image);
}

void grid2d_style::reload() {
  if (layer_ == nullptr) return;
  auto type = static_cast<grid_draw_type>(layer_->draw_type());
  fill_draw_types();
  draw_type_.assign_value(type);
  bind_page(type);
  show_page(type);
  opacity_.assign(static_cast<std::int32_t>(layer_->opacity()));
  transparent_color_.assign(layer_->transp_clr());
}

void grid2d_style::fill_draw_types() {
  draw_type_.clear();
  if (layer_ != nullptr && layer_->is_image_source()) draw_type_.add(22, 0, grid_draw_image);
  draw_type_.add(23, 0, grid_draw_scale).add(25, 0, grid_draw_gray).add(24, 0, grid_draw_rgb);
}

void grid2d_style::bind_page(std::uint32_t draw_type) {
  clear_pages();
  switch (draw_type) {
    case grid_draw_scale:
      styles_.set_enabled(layer_->field_count() > 0 ? 2 : 0);
      styles_.set(source(), layer_->get_style_manager());
      styles_.assign_interpolate(layer_->interpolate());
      break;
    case grid_draw_gray:
      gray_.gray().set_source(source(), zu_rgb_channels_get_gray(layer_->rgb_channels()));
      break;
    case grid_draw_rgb:
      rgb_.set_source(source(), layer_->rgb_channels());
      break;
    default:
      break;
  }
}

void grid2d_style::clear_pages() {
  styles_.set({}, nullptr);
  gray_.gray().clear();
  rgb_.clear();
}

void grid2d_style::show_page(std::uint32_t draw_type) {
  std::uint32_t shown = draw_type == grid_draw_scale  ? page_scale
                        : draw_type == grid_draw_gray ? page_gray
                        : draw_type == grid_draw_rgb  ? page_rgb
                                                      : page_nothing;
  pages_.assign(shown);
  // Without a page the other rows keep together at the top.
  root_.set_row_visible(row_of_pages, shown != page_nothing);
  root_.set_row_stretch(row_of_pages, shown != page_nothing);
  root_.set_row_stretch(row_below, shown == page_nothing);
}

data::open_reference grid2d_style::source() const { return source_of(layer_->layer); }

}  // namespace zu::element
