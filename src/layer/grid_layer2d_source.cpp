// The operations of the grid layer that reach its data.

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/layer/grid_layer2d.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_proj4_d2.h"
#include "zu/platform/zuk_stat.h"

namespace zu {
namespace {

bool shows_itself_as_image(data::grid_datasource& source) {
  std::int64_t count = source.number_of_fields();
  for (std::int64_t field = 0; field < count; ++field)
    if (source.color_role(field) == role_none || source.sample_type(field) != element_uint8)
      return false;
  return count > 0;
}

/// Of the channels: they are those of the data that was there.
void forget_histograms(Tzu_rgb_channels* channels) {
  for (Tzu_clr_channel* channel :
       {zu_rgb_channels_get_red(channels), zu_rgb_channels_get_green(channels),
        zu_rgb_channels_get_blue(channels), zu_rgb_channels_get_gray(channels)})
    zu_stat_set_histogramm(zu_clr_channel_get_stat(channel), false);
}

}  // namespace

bool grid_layer2d::open_source(data::grid_datasource& source) const {
  data::open_reference reference;
  reference.name = wsource();
  reference.opener = &zu_datasource_open;
  return source.open(reference, 0);
}

void grid_layer2d::source_changed() {
  zu_table_data_set_wsource(table_data_.get(), wsource().c_str());
  forget_histograms(rgb_channels());
  data::grid_datasource source;
  if (!open_source(source)) return;
  if (proj4_.empty()) proj4_ = source.projection();
  if (draw_type_ == grid_draw_image) draw_type_ = grid_draw_scale;
  if (shows_itself_as_image(source)) draw_type_ = grid_draw_image;
}

void grid_layer2d::update_box() {
  Tzu_box_d2 box{};
  data::grid_datasource source;
  bool ok = open_source(source) && source.extent(box, true);
  if (ok) {
    std::wstring target = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(layer, a); });
    owned<zu_rpj_fb_d2_destroy> rpj(zu_rpj_fb_d2_create());
    zu_rpj_fb_d2_init_w(rpj.get(), proj4_.c_str(), target.c_str());
    if (zu_rpj_fb_d2_rpj_is_needed(rpj.get())) ok = zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1);
  }
  zu_lr2d_set_box(layer, ok, &box);
}

void grid_layer2d::set_proj4(const wchar_t* text) {
  proj4_ = text != nullptr ? text : L"";
  data::open_reference reference;
  reference.name = wsource();
  reference.opener = &zu_datasource_open;
  data::grid_datasource source;
  if (source.open(reference, 2)) source.set_projection(proj4_);
}

bool grid_layer2d::is_image_source() const {
  data::grid_datasource source;
  return open_source(source) && shows_itself_as_image(source);
}

bool grid_layer2d::has_slices() const {
  data::grid_datasource source;
  std::int32_t sizes[3];
  return open_source(source) && source.sizes(sizes) && sizes[2] > 1;
}

std::int64_t grid_layer2d::slice_count() const {
  data::grid_datasource source;
  std::int32_t sizes[3];
  if (!open_source(source) || !source.sizes(sizes)) return 1;
  return slice_axis_ == 0 ? sizes[0] : slice_axis_ == 1 ? sizes[1] : sizes[2];
}

std::int64_t grid_layer2d::field_count() const {
  data::grid_datasource source;
  return open_source(source) ? source.number_of_fields() : 0;
}

std::wstring grid_layer2d::field_name(std::int64_t index) const {
  data::grid_datasource source;
  return open_source(source) ? source.field_name(index) : std::wstring();
}

void grid_layer2d::write_info(Tzu_json_obj* info) {
  data::grid_datasource source;
  if (!open_source(source)) return;
  // Texts of the grid types 0 to 6.
  static constexpr std::int32_t type_texts[] = {10171, 10172, 10175, 10173, 10176, 10174, 10177};
  static constexpr std::int32_t size_texts[] = {68, 69, 70};
  static constexpr std::int32_t spacing_texts[] = {65, 66, 67};
  static constexpr std::int32_t structure_text = 300, type_text = 10170, azimuth_text = 72;

  Tzu_json_obj* group = zu_json_obj_add_obj(info, load_text(structure_text).c_str());
  std::int32_t type = source.grid_type();
  std::int32_t named = type >= 0 && type <= 6 ? type_texts[type] : 0;
  zu_json_obj_add_str(group, load_text(type_text).c_str(), load_text(named).c_str());
  std::int32_t sizes[3] = {0, 0, 0};
  source.sizes(sizes);
  double spacing[3] = {1.0, 1.0, 1.0};
  source.get_spacing(spacing);
  for (int axis = 0; axis < 3; ++axis)
    zu_json_obj_add_int(group, load_text(size_texts[axis]).c_str(), sizes[axis]);
  for (int axis = 0; axis < 3; ++axis)
    zu_json_obj_add_dbl(group, load_text(spacing_texts[axis]).c_str(), spacing[axis]);
  zu_json_obj_add_dbl(group, load_text(azimuth_text).c_str(), source.azimuth());
}

}  // namespace zu
