#include "src/layer/editors/hillshade_manager.h"

#include "src/bundle/strings.h"
#include "src/layer/editors/live_slider.h"

namespace zu::style {

hillshade_manager::hillshade_manager() {
  use_.on_state = [this](bool on) {
    zu_hillshade_style_set_use(style_, on);
    enable();
  };
  field_.on_change = [this](const std::wstring& name) {
    zu_hillshade_style_set_propname(style_, name.c_str());
  };
  z_factor_.set_step(0.1);
  z_factor_.on_change = [this](double factor) { zu_hillshade_style_set_z_coeff(style_, factor); };
  altitude_.set_range(0, 90, 5);
  altitude_.on_change = [this](double degrees) {
    zu_hillshade_style_set_sun_slope_degree(style_, degrees);
  };
  azimuth_.set_range(0, 360, 1);
  azimuth_.on_change = [this](double degrees) {
    zu_hillshade_style_set_sun_aspect_degree(style_, degrees);
  };
  altitude_.slider().set_steps(1, 3, 3);
  azimuth_.slider().set_steps(1, 45, 15);
  element::take_each_move(altitude_);
  element::take_each_move(azimuth_);
  blend_.assign(50);
  blend_.on_move = [this](std::int32_t percent) {
    zu_hillshade_style_set_part(style_, percent / 100.0);
  };
  multidirectional_.on_state = [this](bool on) {
    zu_hillshade_style_set_multidir(style_, on);
    enable();
  };
  root_.place(use_, 2).place(field_).place(z_factor_).place(altitude_).place(azimuth_);
  root_.place(blend_).place(multidirectional_, 2);
  root_.set_column_stretch(1).set_row_stretch(7);
  use_.assign(false);
  multidirectional_.assign(false);
  enable();
}

void hillshade_manager::set(Izu_layer* layer, Tzu_hillshade_style* style) {
  style_ = style;
  // Without a layer the panel is not seen: what it shows stands, and with it a person's place in
  // it.
  if (style == nullptr) return;
  use_.assign(zu_hillshade_style_get_use(style));
  multidirectional_.assign(zu_hillshade_style_get_multidir(style));
  reload(layer);
  enable();
}

void hillshade_manager::reload(Izu_layer* layer) {
  field_.assign_field(element::source_of(layer), text_of([&](Tzu_string_adp* a) {
                        zu_hillshade_style_get_propname(style_, a);
                      }));
  z_factor_.assign(zu_hillshade_style_get_z_coeff(style_));
  altitude_.assign(zu_hillshade_style_get_sun_slope_degree(style_));
  azimuth_.assign(zu_hillshade_style_get_sun_aspect_degree(style_));
  blend_.assign(static_cast<std::int32_t>(zu_hillshade_style_get_part(style_) * 100.0 + 0.5));
}

void hillshade_manager::enable() {
  bool on = use_.is_checked();
  field_.set_enabled(on);
  z_factor_.set_enabled(on);
  altitude_.set_enabled(on);
  azimuth_.set_enabled(on && !multidirectional_.is_checked());
  blend_.set_enabled(on);
  multidirectional_.set_enabled(on);
}

}  // namespace zu::style
