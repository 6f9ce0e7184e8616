// Nodes of a coordinate layer as points.

#include <cmath>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/open_source.h"
#include "platform/zuk_tos_lr2d/coord_layer.h"
#include "zu/platform/zuk_proj4_d2.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_tos_lr2d.h"

using namespace zu::platform;

namespace {

/// The style of a node by the value of the manager's field.
class node_styles {
 public:
  node_styles(Tzu_stl_mngr* manager, zu::data_source source)
      : manager_(manager), mode_(zu_stl_mngr_get_mode(manager)), values_(source, field(source)) {
    zu_rng_scale_beg_find(zu_stl_mngr_get_rng_scale_ptr(manager_));
    zu_val_scale_beg_find(zu_stl_mngr_get_val_scale_ptr(manager_));
  }
  ~node_styles() {
    zu_rng_scale_end_find(zu_stl_mngr_get_rng_scale_ptr(manager_));
    zu_val_scale_end_find(zu_stl_mngr_get_val_scale_ptr(manager_));
  }
  node_styles(const node_styles&) = delete;
  node_styles& operator=(const node_styles&) = delete;

  /// Makes the nodes from `start` ready; false if nothing can be coloured.
  bool read(std::uint64_t start, std::size_t count) {
    if (mode_ == zu_style_simple) return true;
    if (mode_ != zu_style_range && mode_ != zu_style_value) return false;
    run_.resize(count);
    return values_ && values_.read(start, run_);
  }
  /// Null if the node does not show.
  Tzu_stl_prm* at(std::size_t i) const {
    if (mode_ == zu_style_simple) return zu_stl_mngr_get_simple_sp_ptr(manager_);
    Tzu_scale_prm* row =
        mode_ == zu_style_range
            ? zu_rng_scale_find_scale_prm_ptr(zu_stl_mngr_get_rng_scale_ptr(manager_), run_[i])
            : zu_val_scale_find_scale_prm_ptr_d(zu_stl_mngr_get_val_scale_ptr(manager_), run_[i]);
    return zu_scale_prm_get_visible(row) ? zu_scale_prm_get_stl_prm_ptr(row) : nullptr;
  }

 private:
  std::int64_t field(zu::data_source source) const {
    std::wstring name =
        text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_prop_name_w(manager_, a); });
    std::int64_t index = -1;
    bool found = zu::call<&zu::data_source_impl::find_field>(source, name.c_str(), &index);
    return found ? index : -1;
  }

  Tzu_stl_mngr* manager_;
  std::int32_t mode_;
  node_column values_;
  std::vector<double> run_;
};

/// The way from the layer's coordinates to the page.
class node_places {
 public:
  node_places(Izu_render* render, const Izu_layer* layer)
      : rpj_(zu_rpj_fb_d2_create()), to_page_(*zu_render_get_matrix_cr2mm(render)) {
    std::wstring target = text_of([&](Tzu_string_adp* a) { zu_render_get_pj4wstr(render, a); });
    std::wstring source = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(layer, a); });
    zu_rpj_fb_d2_init_w(rpj_.get(), source.c_str(), target.c_str());
    projected_ = zu_rpj_fb_d2_rpj_is_needed(rpj_.get());
    if (zu_render_has_affine_transform(render))
      zu_matrix3x3_mult(&to_page_, &to_page_, zu_render_get_affine_matrix(render));
  }
  /// Places of nodes in millimetres; not finite where a node has none.
  owned<zu_pv_d2_destroy> of(const std::vector<double>& xs, const std::vector<double>& ys) const {
    owned<zu_pv_d2_destroy> places(zu_pv_d2_create());
    for (std::size_t i = 0; i < xs.size(); ++i) {
      Tzu_vtx_d2 node{xs[i], ys[i]};
      zu_pv_d2_add_vtx(places.get(), &node);
    }
    if (projected_) zu_rpj_fb_d2_apply_pv(rpj_.get(), places.get(), 1);
    zu_pv_d2_apply_matrix3x3(places.get(), &to_page_);
    return places;
  }

 private:
  owned<zu_rpj_fb_d2_destroy> rpj_;
  Tzu_matrix3x3 to_page_;
  bool projected_ = false;
};

void draw_nodes(Izu_render* render, Izu_layer* layer, const coord_state& state) {
  std::wstring name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
  open_source source(name);
  if (!source.get()) return;
  Tzu_optional_color scene = zu_scn_2d_get_selected_style_clr(zu_lr2d_get_scn_2d(layer));
  bool own = zu_lr_get_own_selected_style_flag(layer) || zu_lr2d_get_scn_2d(layer) == nullptr;
  const Tzu_table_data* table = zu_lr2d_get_data_ptr(layer);
  double half = state.point_size * 0.5;
  node_styles styles(state.manager.get(), source.get());
  node_places places(render, layer);
  auto draw_run = [&](std::uint64_t start, const auto& xs, const auto& ys) {
    if (!styles.read(start, xs.size())) return;
    owned<zu_pv_d2_destroy> run = places.of(xs, ys);
    if (zu_pv_d2_get_size(run.get()) != xs.size()) return;
    for (std::size_t i = 0; i < xs.size(); ++i) {
      const Tzu_vtx_d2& at = zu_pv_d2_get_arr(run.get())[i];
      Tzu_stl_prm* style = styles.at(i);
      if (style == nullptr || !std::isfinite(at.x) || !std::isfinite(at.y)) continue;
      bool selected = zu_table_data_is_selected_id(table, start + i);
      Tzu_color color =
          selected && !own ? scene.color : *zu_stl_prm_get_clr_style_ptr(style, selected ? 1 : 0);
      Tzu_box_d2 point{at.x - half, at.y - half, at.x + half, at.y + half};
      zu_drwc_fill_box(zu_render_get_drwc(render), &point, color);
    }
  };
  each_node_run(name, source.get(), draw_run);
}

}  // namespace

void zu_tos_2crd_lr2d_draw(Izu_render* render, Izu_layer* layer) {
  if (render == nullptr) return;
  guarded(state_as<coord_state>(layer),
          [&](const coord_state& state) { draw_nodes(render, layer, state); });
}
