#pragma once
// Draws layers of pictures, of the type "rtr_lr2d".

#include "zu/layer2d.h"

namespace zu {

class rastr_lr2d_render_service : public referent<layer_2d_renderer_extension_service_impl> {
 public:
  using referent::referent;
  void get_type(string_visitor visitor) override;
  void render(Izu_render* render, Izu_layer* layer) override;
  /// A picture has no selection: this is the ordinary draw.
  void render_selection(Izu_render* render, Izu_layer* layer) override;
};

}  // namespace zu
