#pragma once
// The blocks and palettes that a GDAL source gives out.

#include <array>
#include <vector>

#include "platform/zuk_datasource/band_reader.h"
#include "zu/data_source.h"
#include "zu/polymorphic.h"

namespace zu::platform {

/// One band. Deletes itself on release.
class gdal_block final : public polymorphic<grid_block_impl> {
 public:
  explicit gdal_block(band_reader reader);

  void release() override { delete this; }
  std::int32_t type() override { return reader_.type(); }
  bool tile_size(std::uint64_t* three) override;
  bool nodata(std::int32_t type, double* out) override;
  std::int32_t read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                           std::int32_t type) override;
  std::int32_t read_window(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                           const std::uint64_t* sample, std::int32_t type,
                           const std::uint64_t* strides) override;
  std::int32_t read_window_3d(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                              const std::uint64_t* sample, std::int32_t type,
                              const std::uint64_t* strides) override;
  std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override;

 private:
  band_reader reader_;
  std::uint64_t tile_x_, tile_y_;
};

/// The ids of the cells, (z * ny + y) * nx + x; reads no file.
class row_id_block final : public polymorphic<grid_block_impl> {
 public:
  row_id_block(std::uint64_t columns, std::uint64_t rows, std::uint64_t slices = 1)
      : columns_(columns), rows_(rows), slices_(slices) {}

  void release() override { delete this; }
  std::int32_t type() override { return element_uint64; }
  bool tile_size(std::uint64_t* three) override;
  std::int32_t read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                           std::int32_t type) override;
  std::int32_t read_window(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                           const std::uint64_t* sample, std::int32_t type,
                           const std::uint64_t* strides) override;
  std::int32_t read_window_3d(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                              const std::uint64_t* sample, std::int32_t type,
                              const std::uint64_t* strides) override;
  std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override;

 private:
  /// A window of one slice.
  std::int32_t read_slice(std::uint64_t slice, const std::int64_t* origin,
                          const std::uint64_t* size, void* buffer, const std::uint64_t* sample,
                          std::int32_t type, const std::uint64_t* strides) const;

  std::uint64_t columns_, rows_, slices_;
};

class gdal_palette final : public polymorphic<grid_palette_impl> {
 public:
  explicit gdal_palette(GDALRasterBand& band);  ///< the entry of NoData becomes transparent

  void release() override { delete this; }
  std::int64_t size() override { return static_cast<std::int64_t>(colors_.size()); }
  bool color(std::int64_t index, std::uint8_t* four) override;

 private:
  std::vector<std::array<std::uint8_t, 4>> colors_;
};

}  // namespace zu::platform
