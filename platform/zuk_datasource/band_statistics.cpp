#include "platform/zuk_datasource/band_statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/zuk_datasource/band_scan.h"
#include "platform/zuk_datasource/elements.h"

namespace zu::platform {

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

// Sums are taken about the first valid cell, so that no digits are lost where the mean is large,
// and in four lanes that do not wait for each other.
template <class cell>
partial_statistics run_of(const cell* cells, std::size_t count, const valid_cells& valid) {
  constexpr std::size_t lanes = 4;
  std::size_t first = 0;
  while (first < count && !is_valid(static_cast<double>(cells[first]), valid)) ++first;
  if (first == count) return {};
  const double about = static_cast<double>(cells[first]);
  double low[lanes], high[lanes], sum[lanes] = {}, squares[lanes] = {}, counted[lanes] = {};
  std::fill_n(low, lanes, infinite), std::fill_n(high, lanes, -infinite);
  auto take = [&](std::size_t lane, double x) {
    bool good = is_valid(x, valid);
    double d = good ? x - about : 0.0;
    sum[lane] += d;
    squares[lane] += d * d;
    counted[lane] += good ? 1.0 : 0.0;
    low[lane] = std::min(low[lane], good ? x : infinite);
    high[lane] = std::max(high[lane], good ? x : -infinite);
  };
  std::size_t i = first;
  for (; i + lanes <= count; i += lanes)
    for (std::size_t lane = 0; lane < lanes; ++lane)
      take(lane, static_cast<double>(cells[i + lane]));
  for (; i < count; ++i) take(0, static_cast<double>(cells[i]));
  for (std::size_t lane = 1; lane < lanes; ++lane) {
    sum[0] += sum[lane], squares[0] += squares[lane], counted[0] += counted[lane];
    low[0] = std::min(low[0], low[lane]), high[0] = std::max(high[0], high[lane]);
  }
  return {static_cast<std::uint64_t>(counted[0]), low[0], high[0], about + sum[0] / counted[0],
          std::max(0.0, squares[0] - sum[0] * sum[0] / counted[0])};
}

}  // namespace

valid_cells valid_cells_of(GDALRasterBand& band) {
  valid_cells out;
  double value = 0;
  out.has_nodata = nodata_of(band, value) && std::isfinite(value);
  out.nodata = out.has_nodata ? value : 0;
  return out;
}

void partial_statistics::add(const partial_statistics& other) {
  if (other.count == 0) return;
  if (count == 0) {
    *this = other;
    return;
  }
  double ours = static_cast<double>(count), theirs = static_cast<double>(other.count);
  double apart = other.mean - mean, all = ours + theirs;
  minimum = std::min(minimum, other.minimum), maximum = std::max(maximum, other.maximum);
  squares += other.squares + apart * apart * ours * theirs / all;
  mean += apart * theirs / all;
  count += other.count;
}

partial_statistics statistics_of_run(const void* cells, std::int32_t type, std::size_t count,
                                     const valid_cells& valid) {
  partial_statistics out;
  with_element_type(type, [&](auto cell) {
    out = run_of(static_cast<const decltype(cell)*>(cells), count, valid);
  });
  return out;
}

Tzu_field_stat summary(const partial_statistics& all, bool estimate) {
  if (all.count == 0) return {0, 0, 0, 0, 0, estimate};
  double freedom = all.count > 1 ? static_cast<double>(all.count - 1) : 1;
  return {all.minimum, all.maximum, all.mean, std::sqrt(all.squares / freedom),
          all.count,   estimate};
}

bool exact_statistics(open_dataset& dataset, int band, const std::wstring& name,
                      bool (*progress)(double, void*), void* user, Tzu_field_stat& out) {
  GDALRasterBand& cells_of = *dataset.gdal().GetRasterBand(band);
  const std::int32_t type = element_type_of(cells_of);
  const valid_cells valid = valid_cells_of(cells_of);
  // One sum a row, so that the result does not hang on which thread read what.
  std::vector<partial_statistics> parts(static_cast<std::size_t>(block_rows(cells_of)));
  auto take = [&](int row, int, const void* cells, std::size_t count) {
    parts[static_cast<std::size_t>(row)].add(statistics_of_run(cells, type, count, valid));
  };
  if (!scan_band(dataset, band, name, progress, user, take)) return false;
  partial_statistics all;
  for (const partial_statistics& part : parts) all.add(part);
  out = summary(all, false);
  return true;
}

bool sample_statistics(band_reader& reader, std::uint64_t most, Tzu_field_stat& out) {
  double share = std::sqrt(static_cast<double>(most) / (static_cast<double>(reader.columns()) *
                                                        static_cast<double>(reader.rows())));
  auto part = [&](std::uint64_t cells) {
    return std::clamp(static_cast<std::uint64_t>(static_cast<double>(cells) * share),
                      std::uint64_t(1), std::min(cells, most));
  };
  grid_window window{0, 0, reader.columns(), reader.rows(), part(reader.columns()), 1};
  window.sample_y =
      std::min(part(reader.rows()), std::max(most / window.sample_x, std::uint64_t(1)));
  std::vector<std::byte> cells(window.sample_x * window.sample_y * element_width(reader.type()));
  if (reader.read(window, cells.data(), reader.type(), 0, 0) != read_done) return false;
  out = summary(statistics_of_run(cells.data(), reader.type(), window.sample_x * window.sample_y,
                                  valid_cells_of(reader.band())),
                true);
  return true;
}

}  // namespace zu::platform
