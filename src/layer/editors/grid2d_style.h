#pragma once

#include "src/layer/editors/channel_manager.h"
#include "src/layer/grid_layer2d.h"
#include "src/style/page/style_manager.h"
#include "src/style/style_links.h"
#include "src/toolkit/dropdown.h"

namespace zu::element {

/// How a grid layer is coloured.
class grid2d_style : public toolkit::with_element {
 public:
  grid2d_style();
  /// Binds a layer, which is not kept alive; the same one again does nothing. Null leaves an empty
  /// panel: the transparency and the transparent colour stand.
  void set_layer(grid_layer2d* layer);
  /// Shows what the layer says now.
  void reload();
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  enum page : std::uint32_t { page_nothing = 0, page_scale = 1, page_gray = 2, page_rgb = 3 };

  void fill_draw_types();
  void bind_page(std::uint32_t draw_type);
  void clear_pages();
  void show_page(std::uint32_t draw_type);
  data::open_reference source() const;

  grid_layer2d* layer_ = nullptr;
  toolkit::labeled_element<toolkit::dropdownex<grid_draw_type>> draw_type_{21};
  toolkit::label transparent_label_{31};
  style::color_style_input transparent_color_;
  toolkit::grid_layout<2, 1> transparent_line_;
  style::gray_channel_manager<style::color_channel_model> gray_;
  style::rgb_channel_manager<style::color_channel_model> rgb_;
  style::style_manager<style::color_style_traits> styles_;
  toolkit::stack_layout<4> pages_;
  toolkit::labeled_slider<toolkit::integer_input> opacity_{30};
  toolkit::grid_span_layout<2, 5> root_;
};

}  // namespace zu::element
