#pragma once
// The cells of a plain GeoTIFF, without its decoder: for a decimated read only the rows of tiles
// that are sampled need to be read, and two threads can share the work.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class GDALDataset;
class GDALRasterBand;

namespace zu::platform {

/// One band of a GeoTIFF of this machine's byte order, or an overview of it in the same file, whose
/// blocks are stored as they are. Offsets
/// are learnt from GDAL as they are needed. A file that ends too soon makes a read fail; nothing is
/// mapped into memory.
class plain_tiff_band {
 public:
  ~plain_tiff_band();
  plain_tiff_band(const plain_tiff_band&) = delete;
  plain_tiff_band& operator=(const plain_tiff_band&) = delete;

  /// Band `band` from 1, overview `level` from 0, -1 for the band itself. Null if the file is
  /// anything else (compressed, packed, of the other byte order, overviews beside it, …).
  static std::unique_ptr<plain_tiff_band> make(GDALDataset& dataset, const std::string& path,
                                               int band, int level);

  /// Reads the cells at `columns` x `rows` of the file, both rising and inside it, to
  /// out[k * columns + i]; `width` is the width of a cell in bytes. Two threads share the work.
  /// False if a block is missing or cut off: then GDAL knows better.
  bool sample(const std::vector<std::int64_t>& columns, const std::vector<std::int64_t>& rows,
              void* out, std::size_t width);

 private:
  struct block_run;
  plain_tiff_band(GDALRasterBand& band, int file, int interleaved, int place);
  bool find_offsets(const std::vector<block_run>& across, const std::vector<block_run>& down);
  bool sample_runs(const std::vector<block_run>& across, const block_run* down,
                   const block_run* down_end, const std::int64_t* columns, const std::int64_t* rows,
                   std::size_t column_count, void* out, std::size_t width) const;
  std::vector<block_run> runs_of(const std::vector<std::int64_t>& cells, int block) const;

  GDALRasterBand& band_;
  int file_;
  int interleaved_, place_;  // cells of a pixel side by side, and which of them is ours
  int block_width_ = 0, block_height_ = 0;
  std::size_t blocks_across_;
  std::vector<std::uint64_t> offsets_;  // by block; 0 not asked yet
};

}  // namespace zu::platform
