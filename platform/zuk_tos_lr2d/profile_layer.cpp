#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/own_state.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_tos_lr2d.h"

using namespace zu::platform;

namespace {

class profile_state final : public own_state {
 public:
  Tzu_stl_mngr* style_manager() override { return manager.get(); }
  bool box_of(const std::wstring& name, zu::data_source source, Tzu_box_d2& box) override;
  /// Curves are drawn in the layer's own coordinates.
  bool reprojected() const override { return false; }
  void save(Tzu_xnode* node, void* context) const override;
  void load(Tzu_xnode* node, void* context) override;

  owned<zu_stl_mngr_destroy> manager{zu_stl_mngr_create("pln_mngr_style")};
  std::wstring height;
  Tzu_affine_2d affine{0.0, 0.0, 1.0, 1.0, 0.0};
};

const layer_kind kind("tos_grid_lr1d", []() -> std::unique_ptr<own_state> {
  return std::make_unique<profile_state>();
});

/// Least and largest value of all bands; false if none has a value.
bool heights_of(zu::data_source source, double& low, double& high) {
  low = std::numeric_limits<double>::infinity(), high = -low;
  int64_t count = zu::call<&zu::data_source_impl::field_count>(source);
  for (int64_t field = 0; field < count; ++field) {
    Tzu_field_stat stat;
    if (!zu_datasource_compute_stat(source, field, 0, nullptr, nullptr, &stat) || stat.count == 0)
      continue;
    low = std::min(low, stat.minimum);
    high = std::max(high, stat.maximum);
  }
  return std::isfinite(low) && std::isfinite(high);
}

bool profile_state::box_of(const std::wstring& /*name*/, zu::data_source source, Tzu_box_d2& box) {
  zu::grid_source grid = zu::cast<zu::grid_source_impl>(source);
  int32_t sizes[3];
  double origin[3], spacing[3], low, high;
  if (!zu::call<&zu::grid_source_impl::sizes>(grid, sizes) ||
      !zu::call<&zu::grid_source_impl::get_origin>(grid, origin) || !heights_of(source, low, high))
    return false;
  if (!zu::call<&zu::grid_source_impl::get_spacing>(grid, spacing)) spacing[0] = 1.0;
  // A level curve has a box that can be crossed, too.
  if (low == high) low -= 0.5, high += 0.5;
  double first = origin[0] - spacing[0] * 0.5;
  zu_box_d2_make_xy(&box, first, low, first + spacing[0] * sizes[0], high);

  Tzu_matrix3x3 matrix;
  zu_matrix3x3_init_affine(&matrix, &affine);
  zu_box_d2_apply_matrix3x3(&box, &matrix);
  double azimuth = zu::call<&zu::grid_source_impl::azimuth>(grid);
  zu_matrix3x3_init_rotate_center(&matrix, origin[0], origin[1], zu_grd2rad(azimuth));
  zu_box_d2_apply_matrix3x3(&box, &matrix);
  return true;
}

namespace key {
constexpr wchar_t params[] = L"profile_params";
constexpr wchar_t height[] = L"height_prp_name";
constexpr wchar_t styles[] = L"styles";
}  // namespace key

struct affine_attribute {
  const wchar_t* key;
  double Tzu_affine_2d::*term;
};
constexpr affine_attribute affine_attributes[] = {{L"x0", &Tzu_affine_2d::x0},
                                                  {L"y0", &Tzu_affine_2d::y0},
                                                  {L"dx", &Tzu_affine_2d::dx},
                                                  {L"dy", &Tzu_affine_2d::dy},
                                                  {L"angle", &Tzu_affine_2d::angle}};

void profile_state::save(Tzu_xnode* node, void* context) const {
  node_ptr params(zu_xnode_set_node_w(node, key::params));
  save_projection(params.get(), *this);
  zu_xnode_set_attr_wstr(params.get(), key::height, height.c_str());
  for (const affine_attribute& a : affine_attributes)
    zu_xnode_set_attr_dbl_w(params.get(), a.key, affine.*a.term);
  zu_xml_save_style_save_mngr_style(context, node, key::styles,
                                    zu_stl_mngr_get_style_type(manager.get()), manager.get());
}

void profile_state::load(Tzu_xnode* node, void* context) {
  node_ptr params(zu_xnode_get_node_w(node, key::params));
  load_projection(params.get(), *this);
  if (params != nullptr)
    height =
        text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(params.get(), key::height, a); });
  for (const affine_attribute& a : affine_attributes) {
    double term = zu_xnode_get_attr_dbl_w(params.get(), a.key, affine.*a.term);
    if (std::isfinite(term)) affine.*a.term = term;
  }
  zu_xml_save_style_load_mngr_style(context, node, key::styles,
                                    zu_stl_mngr_get_style_type(manager.get()), manager.get());
}

profile_state* profile(const Izu_layer* layer) { return state_as<profile_state>(layer); }

}  // namespace

Tzu_stl_mngr* zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(const Izu_layer* layer) {
  const profile_state* state = profile(layer);
  return state != nullptr ? state->manager.get() : nullptr;
}
void zu_tos_grid_1d_lr2d_get_height_prp_name_w(const Izu_layer* layer, Tzu_string_adp* adp) {
  guarded(profile(layer),
          [&](const profile_state& s) { zu_string_adp_feed(adp, s.height.c_str()); });
}
void zu_tos_grid_1d_lr2d_set_height_prp_name_w(Izu_layer* layer, const wchar_t* name) {
  guarded(profile(layer), [&](profile_state& s) { s.height = name != nullptr ? name : L""; });
}
const Tzu_affine_2d* zu_tos_grid_lr1d_get_affine_trnsf(const Izu_layer* layer) {
  const profile_state* state = profile(layer);
  return state != nullptr ? &state->affine : nullptr;
}
void zu_tos_grid_lr1d_set_affine_trnsf(Izu_layer* layer, const Tzu_affine_2d* affine) {
  if (affine == nullptr) return;
  guarded(profile(layer), [&](profile_state& s) { s.affine = *affine; });
}
