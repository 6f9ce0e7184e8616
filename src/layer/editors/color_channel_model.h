#pragma once

#include "src/data/generic_datasource.h"
#include "src/toolkit/events.h"
#include "zu/platform/zuk_basic.h"

namespace zu::style {

/// A colour channel of a layer as a panel edits it: the field that it takes and the limits between
/// which the field's values spread over the colour. Nothing of it is kept here: the histogram, too,
/// is the channel's, made once for a field. Without a channel everything is empty.
class color_channel_model {
 public:
  data::open_reference source;
  Tzu_clr_channel* channel = nullptr;
  event<void()> changed;

  /// Binds a channel; its limits are cut to what the field holds.
  void set_source(const data::open_reference& reference, Tzu_clr_channel* edited);
  std::wstring field() const;
  /// Takes another field, between the limits of its data.
  void set_field(const std::wstring& name);
  /// Spreads the field's data over the whole colour.
  void reset();

  double minimum() const { return zu_clr_channel_get_minimum(channel); }
  double maximum() const { return zu_clr_channel_get_maximum(channel); }
  // Written as they are: a minimum above the maximum stands.
  void set_minimum(double value) { zu_clr_channel_set_min(channel, value); }
  void set_maximum(double value) { zu_clr_channel_set_max(channel, value); }
  void set_limits(double minimum, double maximum) {
    zu_clr_channel_set_limits(channel, minimum, maximum);
  }

  /// Of the field; null without a field, where it cannot be read and where a person did not want to
  /// wait for it.
  const Tzu_histogramm_data* histogram() const { return histogram_; }

 private:
  /// By reading all of the field, where nobody has yet.
  const Tzu_histogramm_data* fetch_histogram() const;

  const Tzu_histogramm_data* histogram_ = nullptr;
};

/// Between which values a histogram lies; 0 and 255 where it counts nothing.
struct value_range {
  double minimum = 0, maximum = 255;
};
value_range range_of(const Tzu_histogramm_data* histogram);

}  // namespace zu::style
