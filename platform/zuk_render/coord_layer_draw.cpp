// Nodes of a coordinate layer as points.

#include <cmath>
#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_lr2d/open_source.h"
#include "platform/zuk_render/node_styles.h"
#include "platform/zuk_tos_lr2d/coord_layer.h"
#include "zu/platform/zuk_proj4_d2.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_tos_lr2d.h"

using namespace zu::platform;

namespace {

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

/// Places of the nodes of each style, in millimetres; styles in the order in which they came.
class places_by_style {
 public:
  void add(Tzu_stl_prm* style, const Tzu_vtx_d2& at) {
    if (last_ == nullptr || last_->style != style) last_ = &group_of(style);
    last_->x.push_back(at.x);
    last_->y.push_back(at.y);
  }
  /// Calls `use(style, x, y)` for each.
  template <class function> void each(const function& use) const {
    for (const group& g : groups_) use(g.style, g.x, g.y);
  }

 private:
  struct group {
    Tzu_stl_prm* style;
    std::vector<double> x, y;
  };

  group& group_of(Tzu_stl_prm* style) {
    auto [known, is_new] = numbers_.try_emplace(style, groups_.size());
    if (is_new) groups_.push_back({style, {}, {}});
    return groups_[known->second];
  }

  std::deque<group> groups_;
  std::map<Tzu_stl_prm*, std::size_t> numbers_;
  group* last_ = nullptr;
};

/// The symbol of a row in another colour, at level 0.
owned<zu_pnt_style_destroy> recolored(Tzu_stl_prm* style, Tzu_color color) {
  owned<zu_pnt_style_destroy> copy(zu_pnt_style_create());
  zu_pnt_style_assign(copy.get(), zu_stl_prm_get_pnt_style_ptr(style, 0));
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(copy.get());
  zu_bpnt_style_set_use_complex(point, false);
  zu_bpnt_style_set_color(point, color);
  zu_bpnt_style_set_render_level(point, 0);
  return copy;
}

/// One walk over the nodes for each render level, or a single one for all that they draw.
using pass = std::optional<std::int32_t>;
std::vector<pass> passes_of(const Tzu_stl_mngr* manager) {
  owned<zu_ints_destroy> levels(zu_ints_create());
  zu_stl_mngr_get_render_levels(manager, levels.get());
  std::vector<pass> all;
  for (std::uint64_t i = 0; i < zu_ints_get_size(levels.get()); ++i)
    all.emplace_back(static_cast<std::int32_t>(zu_ints_get(levels.get(), i)));
  if (all.empty()) all.emplace_back();
  return all;
}

/// Draws what a symbol has in a pass.
void draw_symbols(Tzu_drwc* page, const Tzu_pnt_style* style, const pass& level,
                  const std::vector<double>& x, const std::vector<double>& y) {
  owned<zu_pnt_style_destroy> part(level ? zu_pnt_style_create() : nullptr);
  if (level && !zu_pnt_style_assign_level(part.get(), style, *level)) return;
  zu_drwc_draw_pnt(page, x.size(), x.data(), y.data(), level ? part.get() : style);
}

void draw_nodes(Izu_render* render, Izu_layer* layer, const coord_state& state) {
  std::wstring name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
  open_source source(name);
  if (!source.get()) return;
  Tzu_optional_color scene = zu_scn_2d_get_selected_style_clr(zu_lr2d_get_scn_2d(layer));
  bool own = zu_lr_get_own_selected_style_flag(layer) || zu_lr2d_get_scn_2d(layer) == nullptr;
  const Tzu_table_data* table = zu_lr2d_get_data_ptr(layer);
  Tzu_drwc* page = zu_render_get_drwc(render);
  node_styles styles(state.manager.get(), source.get());
  node_places places(render, layer);
  const std::vector<pass> passes = passes_of(state.manager.get());
  places_by_style selected;
  auto draw_run = [&](const pass& level, std::uint64_t start, const auto& xs, const auto& ys) {
    if (!styles.read(start, xs.size())) return;
    owned<zu_pv_d2_destroy> run = places.of(xs, ys);
    if (zu_pv_d2_get_size(run.get()) != xs.size()) return;
    places_by_style drawn;
    for (std::size_t i = 0; i < xs.size(); ++i) {
      const Tzu_vtx_d2& at = zu_pv_d2_get_arr(run.get())[i];
      Tzu_stl_prm* style = styles.at(i);
      if (style == nullptr || !std::isfinite(at.x) || !std::isfinite(at.y)) continue;
      if (!zu_table_data_is_selected_id(table, start + i))
        drawn.add(style, at);
      else if (level == passes.front())
        selected.add(style, at);
    }
    drawn.each([&](Tzu_stl_prm* style, const auto& x, const auto& y) {
      draw_symbols(page, zu_stl_prm_get_pnt_style_ptr(style, 0), level, x, y);
    });
  };
  for (const pass& level : passes)
    each_node_run(name, source.get(), [&](std::uint64_t start, const auto& xs, const auto& ys) {
      draw_run(level, start, xs, ys);
    });
  for (const pass& level : passes)
    selected.each([&](Tzu_stl_prm* style, const auto& x, const auto& y) {
      auto in_scene_color = recolored(style, scene.color);
      draw_symbols(page, own ? zu_stl_prm_get_pnt_style_ptr(style, 1) : in_scene_color.get(), level,
                   x, y);
    });
}

}  // namespace

void zu_tos_2crd_lr2d_draw(Izu_render* render, Izu_layer* layer) {
  if (render == nullptr) return;
  guarded(state_as<coord_state>(layer),
          [&](const coord_state& state) { draw_nodes(render, layer, state); });
}
