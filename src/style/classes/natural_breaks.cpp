#include "src/style/classes/natural_breaks.h"

#include <algorithm>
#include <limits>

namespace zu::style {
namespace {

constexpr double most = std::numeric_limits<double>::max();

struct best_start {
  double sum = most;
  std::uint32_t start = 0;  // 0: none
};

/// The least of v[i] + before[i] for i from 1 to `last`, and the first i that gives it. Sums that
/// are no number never win.
best_start least_sum(const double* v, const double* before, std::uint32_t last) {
  // Several running minima do not wait for each other; the place is then sought in the one run of
  // values that held the least.
  constexpr std::uint32_t lanes = 8, run = 64;
  best_start best;
  std::uint32_t best_run = 0;
  for (std::uint32_t first = 1; first <= last; first += run) {
    std::uint32_t end = std::min(last + 1, first + run), i = first;
    double least[lanes];
    std::fill_n(least, lanes, most);
    for (; i + lanes <= end; i += lanes)
      for (std::uint32_t lane = 0; lane < lanes; ++lane) {
        double sum = v[i + lane] + before[i + lane];
        least[lane] = sum < least[lane] ? sum : least[lane];
      }
    for (; i < end; ++i) {
      double sum = v[i] + before[i];
      least[0] = sum < least[0] ? sum : least[0];
    }
    double of_run = *std::min_element(least, least + lanes);
    if (of_run < best.sum) best.sum = of_run, best_run = first;
  }
  if (best_run == 0) return best;
  for (best.start = best_run; v[best.start] + before[best.start] != best.sum;) ++best.start;
  return best;
}

}  // namespace

std::vector<double> natural_breaks(std::vector<double>& sample, std::uint32_t classes) {
  if (sample.empty() || classes < 2) return {};
  std::sort(sample.begin(), sample.end());
  const auto n = static_cast<std::uint32_t>(sample.size());
  if (classes >= n) return sample;

  // Rows and values from 1 to n, classes from 1 to k: of row l, the last row of the class below and
  // the sum of squares. Transposed, so that the rows of one class lie side by side.
  const std::size_t rows = n + std::size_t{1};
  std::vector<std::uint32_t> lower((classes + std::size_t{1}) * rows);
  std::vector<double> sums((classes + std::size_t{1}) * rows, most);
  for (std::uint32_t j = 1; j <= classes; ++j) lower[j * rows + 1] = 1, sums[j * rows + 1] = 0.0;
  std::vector<double> v(rows);  // of a class that begins behind row i and ends with row l
  for (std::uint32_t l = 2; l <= n; ++l) {
    double s1 = 0.0, s2 = 0.0;
    for (std::uint32_t m = 1; m <= l; ++m) {
      double value = sample[l - m];
      s1 += value, s2 += value * value;
      v[l - m] = s2 - s1 * s1 / m;
    }
    for (std::uint32_t j = 2; j <= classes; ++j) {
      best_start best = least_sum(v.data(), &sums[(j - 1) * rows], l - 1);
      if (best.start == 0) continue;
      lower[j * rows + l] = best.start, sums[j * rows + l] = best.sum;
    }
    lower[rows + l] = 1, sums[rows + l] = v[0];
  }

  std::vector<double> breaks(classes - 1);
  for (std::uint32_t j = classes, row = n; j >= 2; --j) {
    std::uint32_t end = lower[j * rows + row];
    breaks[j - 2] = sample[end == 0 ? 0 : end - 1];  // where it would leave the sample: the first
    row = end == 0 ? 0 : end - 1;
  }
  return breaks;
}

}  // namespace zu::style
