#include "src/sources/segy_layer_setup.h"

#include <algorithm>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/data/ui_monitor.h"
#include "src/style/classes/builders.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_scn_2d.h"

namespace zu {
namespace {

constexpr wchar_t values_field[] = L"Values";
constexpr double line_tolerance = 2.0;
constexpr std::uint32_t class_count = 11;
constexpr double deviations = 2.0;
constexpr std::int32_t class_colors = 25;
constexpr std::int64_t most_samples_read_whole = 16'000'000;
constexpr std::uint64_t samples_of_estimate = 1'000'000;

std::wstring source_of(const Izu_layer* layer) {
  return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
}

bool open(const Izu_layer* layer, data::grid_datasource& source) {
  data::open_reference reference;
  reference.name = source_of(layer);
  reference.opener = &zu_datasource_open;
  return source.open(reference, data::open_write_if_possible);
}

/// Mean and deviation of the field: exact, or, of a section that a picture should not wait for,
/// from a part of its samples.
void fill_stat(Tzu_stat* stat, data::grid_datasource& source, const std::wstring& name,
               std::int64_t field) {
  std::int32_t sizes[3] = {0, 0, 0};
  source.sizes(sizes);
  if (std::int64_t(sizes[0]) * sizes[1] <= most_samples_read_whole)
    return source.fill_stat(stat, field);
  Tzu_handle opened{};
  zu_datasource_open(name.c_str(), 1, nullptr, &opened);
  Tzu_field_stat part;
  if (zu_datasource_compute_stat(opened, field, samples_of_estimate, nullptr, nullptr, &part)) {
    zu_stat_set_minimum(stat, part.minimum);
    zu_stat_set_maximum(stat, part.maximum);
    zu_stat_set_average(stat, part.mean);
    zu_stat_set_stddev(stat, part.stddev);
  }
  call<&data_source_impl::release>(opened);
}

bool has_overviews(const std::wstring& source) {
  std::wstring overviews =
      text_of([&](Tzu_string_adp* a) { zu_segy_file_get_overviews_w(source.c_str(), a); });
  return zu_os_file_exists(overviews.c_str()) &&
         zu_os_get_file_time(source.c_str()) < zu_os_get_file_time(overviews.c_str());
}

}  // namespace

void set_up_segy_layer(Izu_layer* layer, Tzu_segy_prms* record) {
  set_up_profile(layer, record);
  set_default_scale(layer);
  make_overviews(layer);
}

void set_up_profile(Izu_layer* layer, const Tzu_segy_prms* record) {
  Tzu_scn_2d* scene = zu_lr_get_scene(layer);
  if (scene == nullptr || zu_scn_get_count(scene) != 1) return;
  owned<zu_pv_d2_destroy> line(zu_pv_d2_create());
  zu_segy_reader_get_xy_pln(source_of(layer).c_str(), zu_segy_prms_get_coord_type(record),
                            zu_segy_prms_get_coord_coeff_type(record),
                            zu_segy_prms_get_coord_coeff(record), line.get());
  if (zu_pv_d2_get_size(line.get()) == 0) return;
  Tzu_prf_data* profile = zu_scn_2d_get_prf_data_ptr(scene);
  zu_prf_data_set_is_profil(profile, true);
  zu_prf_data_set_axes_scale(profile, 0);
  if (zu_segy_prms_get_pln_simplify_flag(record))
    line.reset(zu_pv_d2_chord_simplify(line.get(), line_tolerance));
  zu_prf_data_set_pv(profile, line.get());
  Tzu_box_d2 box;
  if (!zu_lr2d_get_box(layer, &box)) return;
  zu_prf_data_set_xmin(profile, box.x0);
  zu_prf_data_set_ymin(profile, box.y0);
  zu_prf_data_set_zmin(profile, box.y0);
  zu_prf_data_set_xmax(profile, box.x1);
  zu_prf_data_set_ymax(profile, box.y1);
  zu_prf_data_set_zmax(profile, box.y1);
}

void set_default_scale(Izu_layer* layer) {
  owned<zu_stat_destroy> stat(zu_stat_create());
  data::grid_datasource source;
  if (!open(layer, source)) return;
  std::int64_t field = source.find_field(values_field);
  if (field < 0) return;
  fill_stat(stat.get(), source, source_of(layer), field);
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(layer);
  zu_stl_mngr_set_mode(manager, zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(manager, values_field);
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  if (scale == nullptr) return;
  bool has_mean = false, has_deviation = false;
  double mean = zu_stat_get_average(stat.get(), &has_mean);
  double deviation = zu_stat_get_stddev(stat.get(), &has_deviation);
  if (!has_mean || !has_deviation) return;
  style::set_deviation_classes(
      scale, {class_count, mean, deviation, deviations, zu_rng_scale_get_round_digits(scale)});
  style::spread_colors(scale, class_colors);
}

void make_overviews(Izu_layer* layer) {
  std::wstring name = source_of(layer);
  if (!zu_options_get_build_overviews() || has_overviews(name)) return;
  data::ui_monitor monitor;
  data::grid_datasource source;
  std::int32_t sizes[3];
  if (!open(layer, source) || !source.sizes(sizes)) return;
  build_overviews({2, 4, 8, 16, 32, 64}, {values_field}, handle_of<monitor_impl>(monitor), source,
                  name, sizes);
}

bool build_overviews(const std::vector<std::uint64_t>& levels,
                     const std::vector<std::wstring>& fields, handle monitor,
                     const data::grid_datasource& source, const std::wstring& name,
                     const std::int32_t* sizes) {
  for (const std::wstring& field : fields)
    if (source.find_field(field) < 0) return false;
  std::vector<std::uint64_t> useful;
  auto longest = static_cast<std::uint64_t>(std::max({sizes[0], sizes[1], 0}));
  std::copy_if(levels.begin(), levels.end(), std::back_inserter(useful),
               [&](std::uint64_t level) { return level < longest; });
  if (useful.empty()) return true;
  return zu_segy_file_build_overviews(name.c_str(), useful.data(), useful.size(), &monitor);
}

}  // namespace zu
