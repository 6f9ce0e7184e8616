#include "src/style/class_dialogs/boundaries_preview.h"

#include <algorithm>
#include <cmath>

#include "zu/platform/zuk_drwc.h"

namespace zu::style::detail {
namespace {

constexpr Tzu_color paper{255, 255, 255, 0}, bar{140, 170, 205, 0}, line{190, 50, 40, 0};
constexpr double line_mm = 0.35, margin_mm = 0.6;

}  // namespace

boundaries_preview::boundaries_preview() {
  canvas_.on_draw = [this](Tzu_drwc* page) { draw(page); };
}

void boundaries_preview::assign(const Tzu_histogramm_data* histogram,
                                std::vector<double> boundaries) {
  histogram_ = histogram;
  boundaries_ = std::move(boundaries);
  canvas_.redraw();
}

void boundaries_preview::draw(Tzu_drwc* page) const {
  Tzu_box_d2 area;
  zu_drwc_get_page(page, &area);
  zu_drwc_fill_box(page, &area, paper);
  std::uint64_t bins = 0;
  double low = INFINITY, high = -INFINITY;
  zu_histogramm_get_params(histogram_, &bins, &low, &high);
  for (double boundary : boundaries_)
    if (std::isfinite(boundary)) low = std::min(low, boundary), high = std::max(high, boundary);
  if (!(low <= high)) return;
  const double left = area.x0 + margin_mm, width = area.x1 - area.x0 - 2 * margin_mm;
  const double per_unit = high > low ? width / (high - low) : 0.0;
  auto fill = [&](double from, double to, double height, Tzu_color color) {
    Tzu_box_d2 box;
    zu_box_d2_init_xy(&box, from, area.y0, to, area.y0 + height);
    zu_drwc_fill_box(page, &box, color);
  };
  const double highest = zu_histogramm_get_max_val(histogram_);
  const double room = area.y1 - area.y0 - margin_mm;
  for (std::uint64_t i = 0; highest > 0.0 && i < bins; ++i)
    fill(left + (zu_histogramm_get_bnd_min(histogram_, i) - low) * per_unit,
         left + (zu_histogramm_get_bnd_max(histogram_, i) - low) * per_unit,
         room * zu_histogramm_get(histogram_, i) / highest, bar);
  for (double boundary : boundaries_) {
    if (!std::isfinite(boundary)) continue;
    double x = left + (boundary - low) * per_unit;
    fill(x - line_mm / 2, x + line_mm / 2, area.y1 - area.y0, line);
  }
}

}  // namespace zu::style::detail
