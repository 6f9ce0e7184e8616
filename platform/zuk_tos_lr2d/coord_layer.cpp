#include "platform/zuk_tos_lr2d/coord_layer.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "zu/platform/zuk_file_tos4.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace zu::platform {
namespace {

const layer_kind kind("tos_2crd_lr2d", []() -> std::unique_ptr<own_state> {
  return std::make_unique<coord_state>();
});

namespace key {
constexpr wchar_t params[] = L"coord_params";
constexpr wchar_t point_size[] = L"point_size";
constexpr wchar_t styles[] = L"styles";
}  // namespace key

struct block_taker final : grid_block_visitor_impl {
  void visit(grid_block given) override { block = given; }
  grid_block block;
};

/// Largest point, millimetres: more is no point.
constexpr double largest_point = 100.0;

void set_size(Tzu_stl_prm* style, double millimetres) {
  for (std::int32_t index : {0, 1}) {
    Tzu_bpnt_style* point =
        zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(style, index));
    zu_bpnt_style_set_size(point, millimetres);
    if (zu_bpnt_style_get_use_complex(point))
      zu_cpx_pnt_style_set_point_size(zu_bpnt_style_get_complex_style(point), millimetres);
  }
}

/// Calls `use` with the style of each row of a scale, the tails and "other" among them.
template <class function> void each_style(Tzu_stl_mngr* manager, const function& use) {
  auto row = [&](Tzu_scale_prm* prm) { use(zu_scale_prm_get_stl_prm_ptr(prm)); };
  Tzu_rng_scale* ranges = zu_stl_mngr_get_rng_scale_ptr(manager);
  for (std::uint64_t i = 0; i < zu_rng_scale_get_size(ranges); ++i)
    row(zu_rng_scale_get_scale_prm_ptr(ranges, i));
  row(zu_rng_scale_get_min_prm_ptr(ranges));
  row(zu_rng_scale_get_max_prm_ptr(ranges));
  row(zu_rng_scale_get_other_prm_ptr(ranges));
  for (Tzu_val_scale* scale :
       {zu_stl_mngr_get_val_scale_ptr(manager), zu_stl_mngr_get_rule_scale_ptr(manager)}) {
    for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i)
      row(zu_val_scale_get_scale_prm_ptr(scale, i));
    row(zu_val_scale_get_other_prm_ptr(scale));
  }
}

}  // namespace

node_column::node_column(data_source source, std::int64_t field) {
  block_taker taker;
  call<&grid_source_impl::block>(cast<grid_source_impl>(source), field,
                                 grid_block_visitor(handle_of<grid_block_visitor_impl>(taker)));
  block_ = taker.block;
  has_nodata_ = call<&grid_block_impl::nodata>(block_, element_float64, &nodata_);
}

node_column::~node_column() { call<&grid_block_impl::release>(block_); }

bool node_column::read(std::uint64_t start, std::vector<double>& values) const {
  if (call<&grid_block_impl::read_linear>(block_, start, values.size(),
                                          static_cast<void*>(values.data()), element_float64) != 1)
    return false;
  if (has_nodata_) std::replace(values.begin(), values.end(), nodata_, static_cast<double>(NAN));
  return true;
}

coord_properties coord_properties_of(const std::wstring& name) {
  owned<zu_tos4_file_close> file(zu_tos4_file_open_w(name.c_str(), 1));
  return {zu_tos4_get_coord_prop(file.get(), 0), zu_tos4_get_coord_prop(file.get(), 1)};
}

coord_state::coord_state() {
  constexpr double size = 1.0;
  Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(manager.get());
  for (std::int32_t index : {0, 1}) {
    Tzu_bpnt_style* point =
        zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(simple, index));
    zu_bpnt_style_set_figure(point, zu_figure_square);
    zu_bpnt_style_set_size(point, size);
  }
}

double coord_state::point_size() const {
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(
      zu_stl_prm_get_pnt_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0));
  if (zu_bpnt_style_get_use_complex(point))
    return zu_cpx_pnt_style_get_point_size(zu_bpnt_style_get_complex_style(point));
  return zu_bpnt_style_get_size(point);
}

void coord_state::set_point_size(double millimetres) {
  if (std::isnan(millimetres)) return;
  double size = std::clamp(millimetres, 0.0, largest_point);
  set_size(zu_stl_mngr_get_simple_sp_ptr(manager.get()), size);
  each_style(manager.get(), [&](Tzu_stl_prm* style) { set_size(style, size); });
}

bool coord_state::box_of(const std::wstring& name, data_source source, Tzu_box_d2& box) {
  constexpr double far = std::numeric_limits<double>::infinity();
  box = {far, far, -far, -far};
  bool read = each_node_run(name, source, [&](std::uint64_t, const auto& xs, const auto& ys) {
    for (std::size_t i = 0; i < xs.size(); ++i) {
      if (!std::isfinite(xs[i]) || !std::isfinite(ys[i])) continue;
      box.x0 = std::min(box.x0, xs[i]), box.x1 = std::max(box.x1, xs[i]);
      box.y0 = std::min(box.y0, ys[i]), box.y1 = std::max(box.y1, ys[i]);
    }
  });
  if (!read || !(box.x0 <= box.x1)) return false;
  // Nodes in a line have a box that can be crossed, too.
  if (box.x0 == box.x1) box.x0 -= 0.5, box.x1 += 0.5;
  if (box.y0 == box.y1) box.y0 -= 0.5, box.y1 += 0.5;
  return true;
}

void coord_state::save(Tzu_xnode* node, void* context) const {
  node_ptr params(zu_xnode_set_node_w(node, key::params));
  save_projection(params.get(), *this);
  zu_xml_save_style_save_mngr_style(context, node, key::styles,
                                    zu_stl_mngr_get_style_type(manager.get()), manager.get());
}

void coord_state::load(Tzu_xnode* node, void* context) {
  node_ptr params(zu_xnode_get_node_w(node, key::params));
  load_projection(params.get(), *this);
  if (zu_xml_save_style_load_mngr_style(context, node, key::styles,
                                        zu_stl_mngr_get_style_type(manager.get()), manager.get()))
    return;
  // Once the points of a layer had colours and one size.
  owned<zu_stl_mngr_destroy> colors(zu_clr_stl_mngr_create());
  if (!zu_xml_save_style_load_mngr_style(context, node, key::styles,
                                         zu_stl_mngr_get_style_type(colors.get()), colors.get()))
    return;
  take_colors(colors.get());
  set_point_size(zu_xnode_get_attr_dbl_w(params.get(), key::point_size, point_size()));
}

void coord_state::take_colors(Tzu_stl_mngr* colors) {
  Tzu_stl_mngr* own = manager.get();
  for (std::int32_t index : {0, 1})
    zu_stl_prm_clr_set_all(zu_stl_mngr_get_simple_sp_ptr(own),
                           zu_stl_prm_get_color(zu_stl_mngr_get_simple_sp_ptr(colors), index),
                           index);
  zu_rng_scale_assign(zu_stl_mngr_get_rng_scale_ptr(own), zu_stl_mngr_get_rng_scale_ptr(colors));
  zu_val_scale_assign(zu_stl_mngr_get_val_scale_ptr(own), zu_stl_mngr_get_val_scale_ptr(colors));
  auto field = [&](auto get) { return text_of([&](Tzu_string_adp* a) { get(colors, a); }); };
  zu_stl_mngr_set_rng_prop_name_w(own, field(&zu_stl_mngr_get_rng_prop_name_w).c_str());
  zu_stl_mngr_set_val_prop_name_w(own, field(&zu_stl_mngr_get_val_prop_name_w).c_str());
  zu_stl_mngr_set_mode(own, zu_stl_mngr_get_mode(colors));
  each_style(own, [](Tzu_stl_prm* style) {
    for (std::int32_t index : {0, 1})
      zu_bpnt_style_set_figure(
          zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(style, index)),
          zu_figure_square);
  });
}

}  // namespace zu::platform

using zu::platform::coord_state;
using zu::platform::state_as;

Tzu_stl_mngr* zu_tos_2crd_lr2d_get_clr_stl_mngr_ptr(const Izu_layer* layer) {
  const coord_state* state = state_as<coord_state>(layer);
  return state != nullptr ? state->manager.get() : nullptr;
}
double zu_tos_2crd_lr2d_get_point_size(const Izu_layer* layer) {
  const coord_state* state = state_as<coord_state>(layer);
  return state != nullptr ? state->point_size() : 1.0;
}
void zu_tos_2crd_lr2d_set_point_size(Izu_layer* layer, double millimetres) {
  zu::platform::guarded(state_as<coord_state>(layer),
                        [&](coord_state& s) { s.set_point_size(millimetres); });
}
