#include "src/layer/editors/channel_manager.h"

#include <algorithm>
#include <cmath>

#include "src/layer/editors/live_slider.h"

namespace zu::style {
namespace {

/// The power of ten of which 100 to 1000 make a range.
double step_of(const value_range& data) {
  double range = data.maximum - data.minimum;
  return range > 0 ? std::pow(10.0, std::floor(std::log10(range / 100))) : 1;
}

}  // namespace

template <class model> channel_manager<model>::channel_manager() {
  constexpr std::uint32_t input_width = 10;
  for (slider* each : {&minimum_, &maximum_}) {
    each->input().set_width(input_width);
    element::take_each_move(*each);
  }
  minimum_.on_change = [this](double value) {
    edited_.set_minimum(value);
    show_limits();
  };
  maximum_.on_change = [this](double value) {
    edited_.set_maximum(value);
    show_limits();
  };
  bars_.on_range = [this](double low, double high) { drag(low, high); };
  root_.place(field_).place(minimum_).place(maximum_).place(bars_, 2);
  root_.set_column_stretch(1).set_row_stretch(3);
  changed_ = edited_.changed.connect([this] { reload(); });
}

template <class model> void channel_manager<model>::reload() {
  const Tzu_histogramm_data* bars = edited_.histogram();
  data_ = range_of(bars);
  step_ = step_of(data_);
  if (edited_.channel != nullptr) {
    // A limit that somebody set beyond the data is one that a slider reaches.
    double low = std::min({data_.minimum, edited_.minimum(), edited_.maximum()});
    double high = std::max({data_.maximum, edited_.minimum(), edited_.maximum()});
    minimum_.set_range(low, high, step_);
    maximum_.set_range(low, high, step_);
  }
  field_.show_current();
  bars_.set_bins(bars);
  show_limits();
}

template <class model> void channel_manager<model>::show_limits() {
  bool bound = edited_.channel != nullptr;
  minimum_.assign(bound ? edited_.minimum() : data_.minimum);
  maximum_.assign(bound ? edited_.maximum() : data_.maximum);
  bars_.assign(share_of(minimum_.value()), share_of(maximum_.value()));
}

template <class model> double channel_manager<model>::share_of(double value) const {
  double range = data_.maximum - data_.minimum;
  return range > 0 ? (value - data_.minimum) / range : value > data_.minimum ? 1 : 0;
}

template <class model> void channel_manager<model>::drag(double low, double high) {
  // The handle that stands where it stood keeps its number, and the other gets one that can be
  // read.
  auto value_of = [this](double share, double stands) {
    if (share == share_of(stands)) return stands;
    double grain = step_ / 10;
    double value = data_.minimum + share * (data_.maximum - data_.minimum);
    double rounded = std::round(value / grain) * grain;
    return std::clamp(rounded, data_.minimum, data_.maximum);
  };
  edited_.set_limits(value_of(low, edited_.minimum()), value_of(high, edited_.maximum()));
  show_limits();
}

template class channel_manager<color_channel_model>;

}  // namespace zu::style
