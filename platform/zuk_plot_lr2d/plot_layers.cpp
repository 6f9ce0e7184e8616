#include "platform/zuk_plot_lr2d/plot_layers.h"

#include <algorithm>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_plot_lr2d.h"

using namespace zu::platform;

namespace {

const layer_kind histogram_kind(ZU_PLOT_HISTOGRAM_LR2D, []() -> std::unique_ptr<own_state> {
  return std::make_unique<histogram_state>();
});
const layer_kind line_kind(ZU_PLOT_LINE_LR2D, []() -> std::unique_ptr<own_state> {
  return std::make_unique<upright_lines_state>();
});

void set_extent(Izu_layer* layer, double low, double high) {
  Tzu_box_d2 box{low, 0, high, 1};
  zu_lr2d_set_box(layer, low <= high, &box);
  zu_lr2d_data_changed(layer);
}

}  // namespace

void zu_plot_histogram_lr2d_set_histogramm(Izu_layer* layer, const Tzu_histogramm_data* histogram) {
  guarded(layer, [&](Izu_layer& l) {
    auto* state = state_as<histogram_state>(&l);
    if (state == nullptr) return;
    double tallest = zu_histogramm_get_max_val(histogram);
    state->bars.clear();
    for (uint64_t i = 0; i < zu_histogramm_get_size(histogram); ++i)
      state->bars.push_back({zu_histogramm_get_bnd_min(histogram, i),
                             zu_histogramm_get_bnd_max(histogram, i),
                             tallest > 0 ? zu_histogramm_get(histogram, i) / tallest : 0});
    if (state->bars.empty())
      set_extent(&l, 1, 0);
    else
      set_extent(&l, state->bars.front().low, state->bars.back().high);
  });
}

void zu_plot_line_lr2d_set_places(Izu_layer* layer, const Tzu_dbls* places) {
  guarded(layer, [&](Izu_layer& l) {
    auto* state = state_as<upright_lines_state>(&l);
    if (state == nullptr) return;
    state->places.clear();
    for (uint64_t i = 0; i < zu_dbls_get_size(places); ++i)
      state->places.push_back(zu_dbls_get(places, i));
    auto [low, high] = std::minmax_element(state->places.begin(), state->places.end());
    if (state->places.empty())
      set_extent(&l, 1, 0);
    else
      set_extent(&l, *low, *high);
  });
}
