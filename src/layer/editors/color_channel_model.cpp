#include "src/layer/editors/color_channel_model.h"

#include "src/bundle/strings.h"

namespace zu::style {

void color_channel_model::set_source(const data::open_reference& reference,
                                     Tzu_clr_channel* edited) {
  source = reference;
  channel = edited;
  if (const Tzu_histogramm_data* bars = histogram()) {
    value_range data = range_of(bars);
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
  value_range data = range_of(histogram());
  zu_clr_channel_set_min(channel, data.minimum);
  zu_clr_channel_set_max(channel, data.maximum);
  changed();
}

const Tzu_histogramm_data* color_channel_model::histogram() const {
  std::wstring name = field();
  Tzu_stat* stat = zu_clr_channel_get_stat(channel);
  if (name.empty() || stat == nullptr) return nullptr;
  if (!zu_stat_has_histogramm(stat)) {
    data::generic_datasource opened;
    if (!opened.open(source, data::open_write_if_possible)) return nullptr;
    opened.fill_histogram(stat, opened.find_field(name));
  }
  bool valid = false;
  const Tzu_histogramm_data* found = zu_stat_get_histogramm(stat, &valid);
  return valid ? found : nullptr;
}

value_range range_of(const Tzu_histogramm_data* histogram) {
  value_range data;
  std::uint64_t count = 0;
  zu_histogramm_get_params(histogram, &count, &data.minimum, &data.maximum);
  return data;
}

}  // namespace zu::style
