#include "src/style/histogram/histogramm_viewer.h"

#include <algorithm>

#include "zu/platform/zuk_scn_2d.h"

namespace zu::element::detail {
namespace {

constexpr std::int32_t most_ranges = 100;

}  // namespace

histogramm_viewer::histogramm_viewer() {
  prepare_scene();
  extension().add(mode_);
  histogramm_tools& tools = toolbar_.tools();
  viewer_extension_mode shown(handle_of<viewer_extension_mode_impl>(mode_));
  tools.mode.on_execute = [this, shown](bool on) {
    if (on)
      extension().set_current_mode(shown);
    else if (extension().current_mode() == shown)
      extension().set_current_mode({});
  };
  tools.mode.on_update = [this, shown, &tools] {
    tools.mode.assign(extension().current_mode() == shown);
  };
  tools.mode.follow(extension().changed);
  tools.bounds_count.set_range(1, most_ranges);
  tools.bounds_count.on_execute = [this](std::int32_t count) { set_count(count); };
  tools.make_histogramm.on_execute = [this] { make_histogramm(); };
  on_viewer = [this](Tzu_viewer* viewer) {
    mode_.set_viewer(viewer);
    Tzu_viewer2d* window = zu_viewer2d_safe_downcast(viewer);
    zu_viewer2d_set_wheel_mode(window, zu_wheel_zoom_x);
    zu_viewer2d_set_anisotropic(window, true);
    recalc_and_zoom();
  };
  extension().set_current_mode(shown);
  layout_.place(toolbar_).place(content()).set_column_stretch(0).set_row_stretch(1);
}

histogramm_viewer::~histogramm_viewer() {
  zu_scn_2d_remove_layer(scene(), lines_.get());
  zu_scn_2d_remove_layer(scene(), bars_.get());
}

void histogramm_viewer::prepare_scene() {
  constexpr double side = 6, top = 6, bottom = 6;  // millimetres
  zu_scn_begin_update(scene());
  Tzu_prf_data* profile = zu_scn_2d_get_prf_data_ptr(scene());
  zu_prf_data_set_is_profil(profile, true);
  zu_prf_data_set_axes_scale(profile, 0);
  Tzu_margins* margins = zu_scn_2d_get_margins_ptr(scene());
  zu_margins_set_visible(margins, true);
  zu_margins_set_lft(margins, side);
  zu_margins_set_rgt(margins, side);
  zu_margins_set_top(margins, top);
  zu_margins_set_btm(margins, bottom);
  Tzu_axes* axes = zu_scn_2d_get_axes_ptr(scene());
  zu_axes_set_visible(axes, true);
  zu_axis_type_set_visible(zu_axes_get_axis(axes, zu_axis_bottom), true);
  zu_stl_mngr_set_mode(zu_lr_get_style_mngr_ptr(bars_.get()), zu_style_range);
  zu_scn_2d_add_layer(scene(), bars_.get());
  zu_scn_2d_add_layer(scene(), lines_.get());
  zu_scn_end_update(scene());
}

void histogramm_viewer::set_source(const data::open_reference& source, const std::wstring& field) {
  source_ = source;
  field_ = field;
}

void histogramm_viewer::set_stat(Tzu_stat* stat) {
  stat_ = stat;
  bool valid = false;
  const Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat, &valid);
  zu_plot_histogram_lr2d_set_histogramm(bars_.get(), valid ? histogram : nullptr);
  recalc_and_zoom();
}

void histogramm_viewer::make_histogramm() {
  if (stat_ == nullptr) return;
  if (!zu_stat_has_histogramm(stat_)) {
    data::generic_datasource source;
    if (!source.open(source_, data::open_write_if_possible)) return;
    std::int64_t field = source.find_field(field_);
    if (field < 0) return;
    source.fill_histogram(stat_, field);
  }
  set_stat(stat_);
}

Tzu_rng_scale* histogramm_viewer::scale() const {
  return zu_stl_mngr_get_rng_scale_ptr(zu_lr_get_style_mngr_ptr(bars_.get()));
}

void histogramm_viewer::assign(const Tzu_rng_scale* given) {
  zu_rng_scale_assign(scale(), given);
  show_bounds();
}

std::vector<double> histogramm_viewer::bounds() const {
  std::uint64_t count = zu_rng_scale_get_size(scale());
  std::vector<double> all;
  if (count == 0) return all;
  for (std::uint64_t i = 0; i < count; ++i) all.push_back(zu_rng_scale_get_min(scale(), i));
  all.push_back(zu_rng_scale_get_max(scale(), count - 1));
  return all;
}

void histogramm_viewer::set_bound(std::size_t index, double value) {
  std::vector<double> all = bounds();
  if (index >= all.size()) return;
  if (index > 0) value = std::max(value, all[index - 1]);
  if (index + 1 < all.size()) value = std::min(value, all[index + 1]);
  if (value == all[index]) return;
  if (index == 0) zu_rng_scale_set_min_value(scale(), value);
  if (index > 0) zu_rng_scale_set_max(scale(), index - 1, value);
  if (index + 1 < all.size()) zu_rng_scale_set_min(scale(), index, value);
  if (index + 1 == all.size()) zu_rng_scale_set_max_value(scale(), value);
  changed_by_person();
}

void histogramm_viewer::set_count(std::int32_t count) {
  std::vector<double> all = bounds();
  if (all.size() < 2 || count < 1) return;
  double low = all.front(), step = (all.back() - low) / count;
  zu_rng_scale_set_size(scale(), static_cast<std::uint64_t>(count));
  for (std::int32_t i = 0; i < count; ++i) {
    auto row = static_cast<std::uint64_t>(i);
    zu_rng_scale_set_min(scale(), row, low + i * step);
    zu_rng_scale_set_max(scale(), row, i + 1 < count ? low + (i + 1) * step : all.back());
  }
  changed_by_person();
}

histogramm_viewer::display_flags histogramm_viewer::display() const {
  display_flags shown;
  shown.bars = zu_stat_has_histogramm(stat_);
  shown.bounds = zu_rng_scale_get_size(scale()) > 0;
  return shown;
}

void histogramm_viewer::show_bounds() {
  owned<zu_dbls_destroy> places(zu_dbls_create());
  for (double bound : bounds()) zu_dbls_add(places.get(), bound);
  zu_plot_line_lr2d_set_places(lines_.get(), places.get());
  toolbar_.tools().bounds_count.assign(static_cast<std::int32_t>(
      std::clamp<std::uint64_t>(zu_rng_scale_get_size(scale()), 1, most_ranges)));
  zu_viewer2d_redraw_slow(viewer());
}

void histogramm_viewer::changed_by_person() {
  show_bounds();
  if (on_change) on_change();
}

}  // namespace zu::element::detail
