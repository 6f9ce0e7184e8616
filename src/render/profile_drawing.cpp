#include "src/render/profile_drawing.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/data/block_reader.h"
#include "zu/platform/zuk_attr_data.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu {
namespace {

/// A turn of less than this many degrees is none.
constexpr double least_azimuth = 1e-6;

}  // namespace

profile_drawing::profile_drawing(Izu_render* render, Izu_layer* layer)
    : render_(render),
      drwc_(zu_render_get_drwc(render)),
      layer_(layer),
      selection_(zu_lr2d_get_data_ptr(layer)),
      manager_(zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(layer)),
      affine_(zu_tos_grid_lr1d_get_affine_trnsf(layer)),
      height_(
          text_of([&](Tzu_string_adp* a) { zu_tos_grid_1d_lr2d_get_height_prp_name_w(layer, a); })),
      own_selected_style_(zu_lr_get_own_selected_style_flag(layer)) {
  if (const Tzu_scn_2d* scene = zu_lr2d_get_scn_2d(layer))
    scene_selected_ = zu_scn_2d_get_selected_style_pln(scene);
}

void profile_drawing::draw() {
  if (manager_ == nullptr || !on_screen()) return;
  data::open_reference reference;
  reference.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer_, a); });
  reference.opener = &zu_datasource_open;
  data::grid_datasource source;
  if (!source.open(reference, data::open_read_only)) return;
  for (const pass& each : passes()) {
    pass_ = each;
    draw_chosen(source);
  }
}

std::vector<profile_drawing::pass> profile_drawing::passes() const {
  owned<zu_ints_destroy> levels(zu_ints_create());
  zu_stl_mngr_get_render_levels(manager_, levels.get());
  if (zu_ints_get_size(levels.get()) == 0) return {pass()};
  std::vector<pass> all;
  for (bool selected : {false, true})
    for (std::uint64_t i = 0; i < zu_ints_get_size(levels.get()); ++i)
      all.push_back({static_cast<std::int32_t>(zu_ints_get(levels.get(), i)), !selected, selected});
  return all;
}

bool profile_drawing::on_screen() const {
  Tzu_box_d2 box, visible;
  if (!zu_lr2d_get_box(layer_, &box)) return false;
  if (zu_render_has_affine_transform(render_))
    zu_box_d2_apply_matrix3x3(&box, zu_render_get_affine_matrix(render_));
  return zu_box_d2_cross(&box, zu_render_get_map_box_cr(render_), &visible);
}

void profile_drawing::draw_chosen(data::grid_datasource& source) {
  Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(manager_);
  std::int32_t mode = zu_stl_mngr_get_mode(manager_);
  if (!height_.empty()) {
    std::int64_t band = source.find_field(height_);
    if (band != -1) draw_band(source, band, simple);
  } else if (mode == zu_style_simple) {
    std::int64_t count = source.number_of_fields();
    for (std::int64_t band = 0; band < count; ++band) draw_band(source, band, simple);
  } else if (mode == zu_style_value) {
    draw_by_values(source);
  }
}

void profile_drawing::draw_by_values(data::grid_datasource& source) {
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager_);
  std::int64_t count = source.number_of_fields();
  for (std::int64_t band = 0; band < count; ++band) {
    std::uint64_t row = 0;
    bool known = zu_val_scale_find_item_no_w(scale, source.field_name(band).c_str(), &row);
    Tzu_scale_prm* prm =
        known ? zu_val_scale_get_scale_prm_ptr(scale, row) : zu_val_scale_get_other_prm_ptr(scale);
    if (prm != nullptr && zu_scale_prm_get_visible(prm))
      draw_band(source, band, zu_scale_prm_get_stl_prm_ptr(prm));
  }
}

void profile_drawing::draw_band(data::grid_datasource& source, std::int64_t band,
                                Tzu_stl_prm* style) {
  data::owned_block block;
  std::int32_t sizes[3] = {0, 0, 0};
  double origin[3], spacing[3] = {1.0, 1.0, 1.0};
  if (!source.sizes(sizes) || sizes[0] <= 0 || !source.get_origin(origin) ||
      !source.get_block(band, block))
    return;
  source.get_spacing(spacing);
  profile_curve curve(origin[0], spacing[0], data::nodata_test::of(block.get(), element_float64));
  trace(source, block, static_cast<std::uint64_t>(sizes[0]), curve);
  place(curve, origin, source.azimuth());
  std::wstring name = source.field_name(band);
  if (pass_.unselected)
    show_level(name, curve.unselected(), zu_stl_prm_get_pln_style_ptr(style, 0));
  if (!pass_.selected) return;
  if (own_selected_style_ || scene_selected_ == nullptr)
    show_level(name, curve.selected(), zu_stl_prm_get_pln_style_ptr(style, 1));
  else if (pass_.level.value_or(0) == 0)
    show(name, curve.selected(), scene_selected_);
}

/// Samples that cannot be read end the curve.
void profile_drawing::trace(data::grid_datasource& source, const data::owned_block& block,
                            std::uint64_t count, profile_curve& curve) const {
  std::uint64_t tile[3] = {0, 0, 0};
  call<&grid_block_impl::tile_size>(block.get(), tile);
  std::vector<double> samples(std::min(tile[0] * tile[1], count));
  for (std::uint64_t start = 0; start < count; start += samples.size()) {
    std::uint64_t length = std::min<std::uint64_t>(samples.size(), count - start);
    if (length == 0 ||
        data::read_linear(source, block.get(), start, length, samples.data(), element_float64) != 1)
      return;
    for (std::uint64_t i = 0; i < length; ++i)
      curve.add(samples[i], zu_table_data_is_selected_id(selection_, start + i));
  }
}

void profile_drawing::place(profile_curve& curve, const double* origin, double azimuth) const {
  Tzu_matrix3x3 matrix, step;
  zu_matrix3x3_init_single(&matrix);
  bool moved = false;
  auto then = [&](const Tzu_matrix3x3& next) {
    zu_matrix3x3_mult(&matrix, &next, &matrix);
    moved = true;
  };
  if (affine_ != nullptr && !zu_affine_2d_is_identity(affine_)) {
    zu_matrix3x3_init_affine(&step, affine_);
    then(step);
  }
  if (zu_render_has_affine_transform(render_)) then(*zu_render_get_affine_matrix(render_));
  if (std::abs(azimuth) > least_azimuth) {
    zu_matrix3x3_init_rotate_center(&step, origin[0], origin[1], zu_grd2rad(azimuth));
    then(step);
  }
  if (moved) curve.apply(matrix);
}

void profile_drawing::show_level(const std::wstring& name, const Tzu_ov_d2* lines,
                                 Tzu_pln_style* style) const {
  if (!pass_.level) return show(name, lines, style);
  owned<zu_pln_style_destroy> part(zu_pln_style_create());
  if (zu_pln_style_assign_level(part.get(), style, *pass_.level)) show(name, lines, part.get());
}

void profile_drawing::show(const std::wstring& name, const Tzu_ov_d2* lines,
                           const Tzu_pln_style* style) const {
  if (zu_ov_d2_get_size(lines) == 0) return;
  zu_drwc_beg_object_w(drwc_, name.c_str());
  zu_render_cr_pln(render_, lines, style);
  zu_drwc_end_object_w(drwc_, name.c_str());
}

}  // namespace zu
