// Drawing of plot layers, and of the axes of a scene.

#include <cmath>
#include <map>
#include <string>
#include <tuple>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_plot_lr2d/plot_layers.h"
#include "zu/platform/zuk_render.h"

using namespace zu::platform;

namespace {

using set_ptr = owned<zu_ov_d2_destroy>;

void add_bar(Tzu_ov_d2* set, const histogram_state::bar& bar) {
  Tzu_pv_d2* ring = zu_ov_d2_add(set);
  const Tzu_vtx_d2 corners[] = {
      {bar.low, 0}, {bar.high, 0}, {bar.high, bar.height}, {bar.low, bar.height}};
  for (const Tzu_vtx_d2& corner : corners) zu_pv_d2_add_vtx(ring, &corner);
}

/// The colour of a bar: of its class, or of the plain style.
Tzu_color color_of(Tzu_stl_mngr* manager, double value) {
  constexpr Tzu_color hidden{200, 200, 200, 128};
  if (zu_stl_mngr_get_mode(manager) != zu_style_range)
    return zu_bpgn_style_get_color(zu_pgn_style_get_bpgn_style_ptr(
        zu_stl_prm_get_pgn_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager), 0)));
  Tzu_scale_prm* row =
      zu_rng_scale_find_scale_prm_ptr(zu_stl_mngr_get_rng_scale_ptr(manager), value);
  if (!zu_scale_prm_get_visible(row)) return hidden;
  return *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
}

/// The line over the bars, from the axis to the axis: a white class would not be seen on paper.
void draw_skyline(Izu_render* render, const histogram_state& state) {
  constexpr Tzu_color gray{96, 96, 96, 128};
  set_ptr set(zu_ov_d2_create());
  Tzu_pv_d2* line = nullptr;
  double end = 0;
  auto to = [&](double x, double y) {
    const Tzu_vtx_d2 at{x, y};
    zu_pv_d2_add_vtx(line, &at);
  };
  auto come_down = [&] {
    if (line != nullptr) to(end, 0);
    line = nullptr;
  };
  for (const histogram_state::bar& bar : state.bars) {
    if (!(bar.height > 0) || bar.low != end) come_down();
    if (!(bar.height > 0)) continue;
    if (line == nullptr) {
      line = zu_ov_d2_add(set.get());
      to(bar.low, 0);
    }
    to(bar.low, bar.height);
    to(bar.high, bar.height);
    end = bar.high;
  }
  come_down();
  owned<zu_pln_style_destroy> style(zu_pln_style_create());
  Tzu_bpln_style* pen = zu_pln_style_get_bpln_style_ptr(style.get());
  zu_bpln_style_set_color(pen, gray);
  zu_bpln_style_set_width(pen, 0.1);
  zu_render_cr_pln(render, set.get(), style.get());
}

void draw_bars(Izu_render* render, histogram_state& state) {
  // Bars of one colour are one polygon: neighbours have no seam.
  std::map<std::tuple<int, int, int, int>, set_ptr> by_color;
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(state.manager.get());
  zu_rng_scale_beg_find(scale);
  for (const histogram_state::bar& bar : state.bars) {
    if (!(bar.height > 0)) continue;
    Tzu_color c = color_of(state.manager.get(), zu_halfway(bar.low, bar.high));
    set_ptr& set = by_color[{c.r, c.g, c.b, c.a}];
    if (!set) set.reset(zu_ov_d2_create());
    add_bar(set.get(), bar);
  }
  zu_rng_scale_end_find(scale);

  owned<zu_pgn_style_destroy> style(zu_pgn_style_create());
  zu_pgn_style_set_pln_visible(style.get(), false);
  for (const auto& [color, set] : by_color) {
    auto [r, g, b, a] = color;
    auto part = [](int value) { return static_cast<uint8_t>(value); };
    zu_bpgn_style_set_color(zu_pgn_style_get_bpgn_style_ptr(style.get()),
                            {part(r), part(g), part(b), part(a)});
    zu_render_cr_pgn(render, set.get(), style.get());
  }
  draw_skyline(render, state);
}

void draw_uprights(Izu_render* render, upright_lines_state& state) {
  set_ptr set(zu_ov_d2_create());
  for (double x : state.places) {
    Tzu_pv_d2* line = zu_ov_d2_add(set.get());
    const Tzu_vtx_d2 ends[] = {{x, 0}, {x, 1}};
    for (const Tzu_vtx_d2& end : ends) zu_pv_d2_add_vtx(line, &end);
  }
  Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(state.manager.get());
  zu_render_cr_pln(render, set.get(), zu_stl_prm_get_pln_style_ptr(simple, 0));
}

// --- Axes

/// The least step of 1, 2 or 5 times a power of ten that is not below `least`.
double round_step(double least) {
  double power = std::pow(10.0, std::floor(std::log10(least)));
  for (double times : {1.0, 2.0, 5.0})
    if (times * power >= least) return times * power;
  return 10 * power;
}

std::wstring number_at(double value, double step) {
  int digits = static_cast<int>(std::floor(std::log10(step)));
  return text_of([&](Tzu_string_adp* adapter) {
    zu_round_digits_format_number(digits < 0 ? digits : 0, value, adapter);
  });
}

/// Ticks and numbers along one side of the page.
class axis_drawing {
 public:
  axis_drawing(Izu_render* render, bool upright) : render_(render), upright_(upright) {}

  void draw() {
    const Tzu_box_d2& box = *zu_render_get_map_box_cr(render_);
    double low = upright_ ? box.y0 : box.x0, high = upright_ ? box.y1 : box.x1;
    Tzu_box_d2 page{};
    zu_drwc_get_page(drwc(), &page);
    length_ = upright_ ? page.y1 - page.y0 : page.x1 - page.x0;
    if (!(high > low) || !(length_ > 0) || !std::isfinite(high - low)) return;
    double step = round_step((high - low) / length_ * least_distance);
    double first = std::ceil(low / step), last = std::floor(high / step);
    if (!(last - first < most_ticks)) return;
    const int count = static_cast<int>(last - first);
    for (int k = 0; k <= count; ++k) tick((first + k) * step, step);
  }

 private:
  static constexpr double least_distance = 18, mark = 1.2, height = 2.4, most_ticks = 1000;

  Tzu_drwc* drwc() const { return zu_render_get_drwc(render_); }
  void tick(double value, double step) {
    Tzu_vtx_d2 at{upright_ ? 0 : value, upright_ ? value : 0};
    zu_vtx_d2_apply_matrix3x3(&at, zu_render_get_matrix_cr2mm(render_));
    constexpr double half = 0.06;
    Tzu_box_d2 line = upright_ ? Tzu_box_d2{0, at.y - half, mark, at.y + half}
                               : Tzu_box_d2{at.x - half, 0, at.x + half, mark};
    constexpr Tzu_color ink{70, 70, 70, 0};
    zu_drwc_fill_box(drwc(), &line, ink);
    std::wstring number = number_at(value, step);
    // A number that the edge of the page would cut stays away.
    constexpr double of_a_digit = 0.7 * height;
    double reach = (upright_ ? height : of_a_digit * static_cast<double>(number.size())) / 2;
    double along = upright_ ? at.y : at.x;
    if (along < reach || along > length_ - reach) return;
    double x = upright_ ? mark + 0.5 : at.x, y = upright_ ? at.y : mark + 0.5;
    zu_drwc_draw_text_w(drwc(), x, y, height,
                        upright_ ? zu_anchor_middle_left : zu_anchor_low_center, ink,
                        number.c_str());
  }

  Izu_render* render_;
  bool upright_;
  double length_ = 0;  // of the page along the axis, mm
};

}  // namespace

bool zu_plot_lr2d_draw(Izu_render* render, Izu_layer* layer) {
  return guarded(layer, false, [&](Izu_layer& l) {
    if (auto* bars = state_as<histogram_state>(&l))
      draw_bars(render, *bars);
    else if (auto* lines = state_as<upright_lines_state>(&l))
      draw_uprights(render, *lines);
    else
      return false;
    return true;
  });
}

void zu_scn_2d_draw_axes(Izu_render* render, Tzu_scn_2d* scene) {
  Tzu_axes* axes = zu_scn_2d_get_axes_ptr(scene);
  if (render == nullptr || !zu_axes_get_visible(axes)) return;
  guarded(render, [&](Izu_render& r) {
    for (int32_t side : {zu_axis_bottom, zu_axis_left})
      if (zu_axis_type_get_visible(zu_axes_get_axis(axes, side)))
        axis_drawing(&r, side == zu_axis_left).draw();
  });
}
