#pragma once

#include "src/layer/editors/color_channel_model.h"
#include "src/style/page/colorby_field.h"
#include "src/toolkit/drawn.h"
#include "src/toolkit/numbers.h"
#include "src/toolkit/tabs.h"

namespace zu::style {

/// One colour channel: its field, its limits, and the distribution of the field under them.
template <class model> class channel_manager : public toolkit::with_element {
 public:
  channel_manager();
  /// Shows a channel of a layer. Neither is kept alive.
  void set_source(const data::open_reference& source, Tzu_clr_channel* channel) {
    edited_.set_source(source, channel);
    field_.reload();
  }
  /// An empty panel.
  void clear() { set_source({}, nullptr); }
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  using slider = toolkit::labeled_slider<toolkit::floating_input>;

  void reload();
  void show_limits();
  void drag(double low, double high);
  double share_of(double value) const;

  model edited_;
  value_range data_;
  double step_ = 1;  // of the sliders
  colorby_field<model> field_{edited_};
  slider minimum_{-662}, maximum_{-663};
  toolkit::histogram bars_;
  toolkit::grid_span_layout<2, 4> root_;
  events::connection changed_;
};

/// The channel of a layer drawn in shades of gray.
template <class model> class gray_channel_manager : public toolkit::with_element {
 public:
  channel_manager<model>& gray() { return gray_; }
  handle element() override { return gray_.element(); }

 private:
  channel_manager<model> gray_;
};

/// Three channels, a tab each.
template <class model> class rgb_channel_manager : public toolkit::tab_layout<3> {
 public:
  rgb_channel_manager() {
    place(L"zu_common_rgb_channel_manager_red", -656, red_);
    place(L"zu_common_rgb_channel_manager_green", -657, green_);
    place(L"zu_common_rgb_channel_manager_blue", -658, blue_);
  }
  void set_source(const data::open_reference& source, Tzu_rgb_channels* channels) {
    red_.set_source(source, zu_rgb_channels_get_red(channels));
    green_.set_source(source, zu_rgb_channels_get_green(channels));
    blue_.set_source(source, zu_rgb_channels_get_blue(channels));
  }
  void clear() { set_source({}, nullptr); }

 private:
  channel_manager<model> red_, green_, blue_;
};

extern template class channel_manager<color_channel_model>;

}  // namespace zu::style
