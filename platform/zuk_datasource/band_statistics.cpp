#include "platform/zuk_datasource/band_statistics.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <mutex>
#include <thread>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/gdal_messages.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {

namespace {

constexpr double largest = std::numeric_limits<double>::max();
constexpr double infinite = std::numeric_limits<double>::infinity();

bool is_valid(double x, const valid_cells& valid) {
  bool finite = std::fabs(x) <= largest;
  if (!valid.has_nodata) return finite;
  double scale = std::max(std::fabs(x), std::fabs(valid.nodata));
  return finite & (std::fabs(x - valid.nodata) > std::max(1e-6, scale * 1e-5));
}

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

// One thread's way of reading the rows of blocks of a band.
class block_row_scan {
 public:
  block_row_scan(GDALRasterBand& band)
      : band_(band), type_(element_type_of(band)), valid_(valid_cells_of(band)) {
    band.GetBlockSize(&width_, &height_);
    buffer_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) *
                   element_width(type_));
  }
  int rows() const { return (band_.GetYSize() - 1) / height_ + 1; }
  bool complete() const { return complete_; }
  bool any() const { return any_; }

  partial_statistics read(int row) {
    partial_statistics out;
    for (int column = 0; std::int64_t(column) * width_ < band_.GetXSize(); ++column) {
      int nx = std::min(width_, band_.GetXSize() - column * width_);
      int ny = std::min(height_, band_.GetYSize() - row * height_);
      if (!read_block(column, row, nx, ny)) {
        complete_ = false;
        continue;
      }
      any_ = true;
      std::size_t pitch = static_cast<std::size_t>(width_) * element_width(type_);
      auto across = static_cast<std::size_t>(nx), down = static_cast<std::size_t>(ny);
      if (nx == width_) across *= down, down = 1;
      for (std::size_t y = 0; y < down; ++y)
        out.add(statistics_of_run(buffer_.data() + y * pitch, type_, across, valid_));
    }
    return out;
  }

 private:
  // Past the block cache: nothing of a whole grid will be wanted again soon.
  bool read_block(int column, int row, int nx, int ny) {
    if (!GDALDataTypeIsComplex(band_.GetRasterDataType()))
      return band_.ReadBlock(column, row, buffer_.data()) == CE_None;
    auto bytes = static_cast<GSpacing>(element_width(type_));
    return band_.RasterIO(GF_Read, column * width_, row * height_, nx, ny, buffer_.data(), nx, ny,
                          gdal_type_of(type_), bytes, bytes * width_, nullptr) == CE_None;
  }

  GDALRasterBand& band_;
  std::int32_t type_;
  valid_cells valid_;
  int width_ = 0, height_ = 0;
  std::vector<std::byte> buffer_;
  bool complete_ = true, any_ = false;
};

// The dataset for a second thread; null where one thread does the work.
dataset_ptr helper_of(open_dataset& dataset) {
  std::string reason;
  if (!dataset.read_only() || !EQUAL(dataset.gdal().GetDriverName(), "GTiff")) return nullptr;
  return open_by_name(dataset.path(), true, reason);
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
  gdal_messages said;
  GDALRasterBand& own_band = *dataset.gdal().GetRasterBand(band);
  block_row_scan own(own_band);
  std::vector<partial_statistics> parts(static_cast<std::size_t>(own.rows()));
  std::atomic<int> next = 0;
  std::atomic<bool> stopped = false, all_read = true, any = false;
  auto work = [&](block_row_scan& scan, auto after_row) {
    for (int row; !stopped && (row = next++) < own.rows(); after_row())
      parts[static_cast<std::size_t>(row)] = scan.read(row);
    if (!scan.complete()) all_read = false;
    if (scan.any()) any = true;
  };
  std::string helper_said;
  std::jthread second;
  dataset_ptr helper = own.rows() > 1 ? helper_of(dataset) : nullptr;
  if (helper != nullptr)
    second = std::jthread([&] {
      gdal_messages heard;
      try {
        block_row_scan scan(*helper->gdal().GetRasterBand(band));
        work(scan, [] {});
        helper_said = heard.reason(dataset.path(), "");
      } catch (...) {
        stopped = true;
      }
    });
  work(own, [&] {
    double share = std::min(1.0, static_cast<double>(next) / own.rows());
    if (progress != nullptr && !progress(share, user)) stopped = true;
  });
  if (second.joinable()) second.join();
  if (stopped) return false;
  if (!all_read) {
    std::string cut = truncation_of(own_band, dataset.path());
    std::string reason = "a tile cannot be read: " + said.reason(dataset.path(), helper_said);
    bool lost = !cut.empty() || !any;
    zu_problems_add(name.c_str(), lost ? zu_problem_read : zu_problem_part,
                    from_utf8(cut.empty() ? reason : cut).c_str());
    if (lost) return false;
  }
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
