#include "platform/zuk_datasource/band_scan.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_reader.h"
#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/gdal_messages.h"
#include "zu/platform/zuk_basic.h"

namespace zu::platform {
namespace {

// One thread's way of reading the rows of blocks of a band.
class block_row_scan {
 public:
  explicit block_row_scan(GDALRasterBand& band) : band_(band), type_(element_type_of(band)) {
    band.GetBlockSize(&width_, &height_);
    buffer_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) *
                   element_width(type_));
  }
  bool complete() const { return complete_; }
  bool any() const { return any_; }

  void read(int row, int thread, const cell_taker& take) {
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
      for (std::size_t y = 0; y < down; ++y) take(row, thread, buffer_.data() + y * pitch, across);
    }
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

int block_rows(GDALRasterBand& band) {
  int width = 1, height = 1;
  band.GetBlockSize(&width, &height);
  return (band.GetYSize() - 1) / height + 1;
}

bool scan_band(open_dataset& dataset, int band, const std::wstring& name,
               bool (*progress)(double, void*), void* user, const cell_taker& take) {
  gdal_messages said;
  GDALRasterBand& own_band = *dataset.gdal().GetRasterBand(band);
  block_row_scan own(own_band);
  const int rows = block_rows(own_band);
  // Row 0 is this thread's, so that it asks at least once, however quick the other one is.
  std::atomic<int> next = 1;
  std::atomic<bool> stopped = false, all_read = true, any = false;
  auto work = [&](block_row_scan& scan, int thread, int row, auto after_row) {
    for (; !stopped && row < rows; row = next++) {
      scan.read(row, thread, take);
      after_row();
    }
    if (!scan.complete()) all_read = false;
    if (scan.any()) any = true;
  };
  std::string helper_said;
  std::jthread second;
  dataset_ptr helper = rows > 1 ? helper_of(dataset) : nullptr;
  if (helper != nullptr)
    second = std::jthread([&] {
      gdal_messages heard;
      try {
        block_row_scan scan(*helper->gdal().GetRasterBand(band));
        work(scan, 1, next++, [] {});
        helper_said = heard.reason(dataset.path(), "");
      } catch (...) {
        stopped = true;
      }
    });
  work(own, 0, 0, [&] {
    double share = std::min(1.0, static_cast<double>(next) / rows);
    if (progress != nullptr && !progress(share, user)) stopped = true;
  });
  if (second.joinable()) second.join();
  if (stopped) return false;
  if (all_read) return true;
  std::string cut = truncation_of(own_band, dataset.path());
  std::string reason = "a tile cannot be read: " + said.reason(dataset.path(), helper_said);
  bool lost = !cut.empty() || !any;
  zu_problems_add(name.c_str(), lost ? zu_problem_read : zu_problem_part,
                  from_utf8(cut.empty() ? reason : cut).c_str());
  return !lost;
}

}  // namespace zu::platform
