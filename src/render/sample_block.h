#pragma once
// The samples that a fill reads, in memory of malloc that ends with the fill.

#include <cstdlib>
#include <memory>

#include "src/data/nodata_test.h"
#include "src/render/sample_window.h"

namespace zu {

template <class element> inline constexpr std::int32_t element_code = element_none;
template <> inline constexpr std::int32_t element_code<double> = element_float64;
template <> inline constexpr std::int32_t element_code<std::uint8_t> = element_uint8;
template <> inline constexpr std::int32_t element_code<std::uint64_t> = element_int64;

struct freed {
  void operator()(void* memory) const { std::free(memory); }
};

/// Reads a window of a block; false for whatever reason.
bool read_samples(const grid_draw_job& job, grid_block block, const sample_window& window,
                  std::int32_t type, void* buffer);

/// One band, row-major: sample (x, y) is at y * nx + x.
template <class element> class sample_block {
 public:
  /// Reads a field, with its NoData. False if there is no such block, no memory, or the read fails.
  bool read_field(const grid_draw_job& job, std::int64_t field, const sample_window& window) {
    data::owned_block block;
    if (!job.source.get_block(field, block)) return false;
    call<&grid_block_impl::set_read_mode>(block.get(), job.context.params.read_mode);
    nodata_ = data::nodata_test::of(block.get(), element_code<element>);
    return read(job, block.get(), window);
  }
  /// Reads the row ids, which have no NoData.
  bool read_ids(const grid_draw_job& job, const sample_window& window) {
    data::owned_block block;
    return job.source.get_row_ids(block) && read(job, block.get(), window);
  }

  std::uint64_t nx() const { return nx_; }
  std::uint64_t ny() const { return ny_; }
  element at(std::uint64_t index) const { return samples_.get()[index]; }
  element at(std::uint64_t x, std::uint64_t y) const { return at(y * nx_ + x); }
  bool valid(element sample) const { return nodata_.valid(static_cast<double>(sample)); }

 private:
  bool read(const grid_draw_job& job, grid_block block, const sample_window& window) {
    nx_ = window.samples[0], ny_ = window.samples[1];
    samples_.reset(static_cast<element*>(std::malloc(nx_ * ny_ * sizeof(element))));
    return samples_ && read_samples(job, block, window, element_code<element>, samples_.get());
  }

  data::nodata_test nodata_;
  std::unique_ptr<element[], freed> samples_;
  std::uint64_t nx_ = 0, ny_ = 0;
};

}  // namespace zu
