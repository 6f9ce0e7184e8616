#pragma once
// The blocks and palettes that a grid file gives out.

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_file_tos4/pgrid_file.h"
#include "zu/data_source.h"
#include "zu/polymorphic.h"

namespace zu::platform {

/// A grid file shared by a source and what it gave out.
using pgrid_ptr = std::shared_ptr<pgrid_file>;

/// One property. Deletes itself on release. Reasons of failures are kept for `name`.
class pgrid_block final : public polymorphic<grid_block_impl> {
 public:
  pgrid_block(pgrid_ptr file, std::size_t property, std::wstring name);

  void release() override { delete this; }
  std::int32_t type() override { return type_; }
  bool tile_size(std::uint64_t* three) override;
  bool nodata(std::int32_t type, double* out) override;
  std::int32_t read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                           std::int32_t type) override;
  std::int32_t write_linear(std::uint64_t start, std::uint64_t count, const void* buffer,
                            std::uint64_t buffer_count, std::int32_t type,
                            std::int32_t zero) override;
  std::int32_t read_window(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                           const std::uint64_t* sample, std::int32_t type,
                           const std::uint64_t* strides) override;
  std::int32_t read_window_3d(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                              const std::uint64_t* sample, std::int32_t type,
                              const std::uint64_t* strides) override;
  std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override;

 private:
  struct slice_window;
  void read_slice(const slice_window& window);
  template <class work> std::int32_t kept(std::int32_t kind, work w);

  pgrid_ptr file_;
  std::size_t property_;
  std::wstring name_;
  std::int32_t type_;
};

class pgrid_palette final : public polymorphic<grid_palette_impl> {
 public:
  explicit pgrid_palette(std::vector<std::byte> colors) : colors_(std::move(colors)) {}

  void release() override { delete this; }
  std::int64_t size() override { return static_cast<std::int64_t>(colors_.size() / 4); }
  bool color(std::int64_t index, std::uint8_t* four) override;

 private:
  std::vector<std::byte> colors_;
};

}  // namespace zu::platform
