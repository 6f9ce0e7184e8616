#pragma once
// The contract between a render service and the pipeline.

#include <cstdint>

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

namespace zu {

enum grid_draw_type : std::uint32_t {
  grid_draw_scale = 0,  ///< one field through the style manager
  grid_draw_image = 1,  ///< the source's own bands
  grid_draw_gray = 2,   ///< one field through the gray channel
  grid_draw_rgb = 3,    ///< three fields through three channels
};

using optional_color = Tzu_optional_color;

/// How a layer wants to be drawn. The handles stay the layer's. The pipeline takes it by value.
struct grid_render_params {
  Tzu_stl_mngr* stl_mngr = nullptr;
  Tzu_rgb_channels* rgb_channels = nullptr;
  Tzu_hillshade_style* hillshade_style = nullptr;
  Tzu_isoline_style* isoline_style = nullptr;
  std::uint32_t draw_type = grid_draw_scale;
  std::uint32_t read_mode = 0;         ///< given to every block before it is read
  Tzu_ov_d2* clip_polygon = nullptr;   ///< in source coordinates; null or empty: no clip
  optional_color selected_color{};     ///< set: the selection shows, in this colour
  optional_color transparent_color{};  ///< set: punched out of the finished picture
  std::uint32_t alpha = 255;           ///< opacity of the layer, low byte; 255 is opaque
  bool interpolate = false;            ///< bilinear sampling where the colouring allows it
  bool own_selected_style = false;
  std::int64_t gray_field = -1;  ///< -1: the field that the channel names
  std::int64_t red_field = -1;
  std::int64_t green_field = -1;
  std::int64_t blue_field = -1;
  std::uint64_t layer_word = 0;
  std::int64_t slice_index = -1;  ///< -1: a two-dimensional read
};

}  // namespace zu
