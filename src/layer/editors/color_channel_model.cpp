#include "src/layer/editors/color_channel_model.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::style {

void color_channel_model::set_source(const data::open_reference& reference,
                                     Tzu_clr_channel* edited) {
  source = reference;
  channel = edited;
  histogram_ = fetch_histogram();
  if (histogram_ != nullptr) {
    value_range data = range_of(histogram_);
    zu_clr_channel_bound_minmax(channel, data.minimum, data.maximum);
  }
  changed();
}

std::wstring color_channel_model::field() const {
  return text_of([this](Tzu_string_adp* a) { zu_clr_channel_get_prop_name_w(channel, a); });
}

void color_channel_model::set_field(const std::wstring& name) {
  zu_clr_channel_set_prop_name_w(channel, name.c_str());
  reset();
}

void color_channel_model::reset() {
  histogram_ = fetch_histogram();
  value_range data = range_of(histogram_);
  zu_clr_channel_set_min(channel, data.minimum);
  zu_clr_channel_set_max(channel, data.maximum);
  changed();
}

const Tzu_histogramm_data* color_channel_model::fetch_histogram() const {
  std::wstring name = field();
  Tzu_stat* stat = zu_clr_channel_get_stat(channel);
  if (name.empty() || stat == nullptr) return nullptr;
  if (!zu_stat_has_histogramm(stat)) {
    data::generic_datasource opened;
    if (!opened.open(source, data::open_write_if_possible)) return nullptr;
    std::int64_t index = opened.find_field(name);
    owned<zu_progress_destroy> window(zu_progress_create(1));
    // What the classes lie between is read as fast as the classes.
    if (!opened.knows_statistics(index) && !opened.read_statistics(index, 0, window.get()))
      return nullptr;
    opened.read_histogram(stat, index, window.get());
  }
  bool valid = false;
  const Tzu_histogramm_data* found = zu_stat_get_histogramm(stat, &valid);
  return valid ? found : nullptr;
}

value_range range_of(const Tzu_histogramm_data* histogram) {
  value_range data;
  if (histogram == nullptr || !(zu_histogramm_get_max_val(histogram) > 0)) return data;
  std::uint64_t count = 0;
  zu_histogramm_get_params(histogram, &count, &data.minimum, &data.maximum);
  return data;
}

}  // namespace zu::style
