#include "src/style/classes/boundaries.h"

#include <algorithm>

#include "zu/platform/zuk_prg.h"

namespace zu::style {
namespace {

/// `y` over the rising `x` at `at`: the first one below them, the last one from their end on.
double interpolated(const std::vector<double>& x, const std::vector<double>& y, double at) {
  if (x.front() > at) return y.front();
  if (at >= x.back()) return y.back();
  std::size_t i = static_cast<std::size_t>(std::upper_bound(x.begin(), x.end(), at) - x.begin());
  if (i == 0 || i == x.size()) return y.front();  // `at` is no number
  double from = x[i - 1], to = x[i];
  if (from == to) return zu_halfway(y[i - 1], y[i]);
  return y[i - 1] + (at - from) / (to - from) * (y[i] - y[i - 1]);
}

}  // namespace

std::vector<double> quantile_boundaries(const Tzu_histogramm_data* histogram, std::uint32_t count,
                                        double minimum, double maximum) {
  std::uint64_t bins = 0;
  double low = 0.0, sum = 0.0;
  zu_histogramm_get_params(histogram, &bins, &low, nullptr);
  std::vector<double> places{low}, heights{0.0};
  for (std::uint64_t i = 0; i < bins; ++i) {
    places.push_back(zu_histogramm_get_bnd_max(histogram, i));
    heights.push_back(sum += zu_histogramm_get(histogram, i));
  }
  double from = interpolated(places, heights, minimum), to = interpolated(places, heights, maximum);
  double step = (to - from) / count;
  std::vector<double> all{minimum};
  // The height at the minimum is not added: it enters through the step alone.
  for (std::uint32_t i = 0; i < count; ++i)
    all.push_back(interpolated(heights, places, (i + 1.0) * step));
  return all;
}

}  // namespace zu::style
