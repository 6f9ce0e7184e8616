#pragma once
// Reads any window of a band, at any sample size, in any element type. The block's own read comes
// first, as it may know overviews; a block that knows only its tiles is read through them.
//
// Results: 1 success, 0 no block or no source, 2 read impossible; others are the source's own.

#include <cstdint>

#include "src/data/grid_datasource.h"

namespace zu::data {

/// Samples of the window origin[2], size[2] into sample[2] elements of `type`. strides[2]: column
/// and row stride in elements, 0 dense; null is dense.
std::int32_t read_window(grid_datasource& source, grid_block block, const std::int64_t* origin,
                         const std::uint64_t* size, void* buffer, const std::uint64_t* sample,
                         std::int32_t type, const std::uint64_t* strides);
/// The same with three numbers each, of which the third of the origin is the slice. Only the block
/// itself can answer.
std::int32_t read_window_3d(grid_block block, const std::int64_t* origin, const std::uint64_t* size,
                            void* buffer, const std::uint64_t* sample, std::int32_t type,
                            const std::uint64_t* strides);
/// `count` elements from `start` in row order.
std::int32_t read_linear(grid_datasource& source, grid_block block, std::uint64_t start,
                         std::uint64_t count, void* buffer, std::int32_t type);
/// Writes them back, where the block can.
std::int32_t write_linear(grid_block block, std::uint64_t start, std::uint64_t count,
                          const void* buffer, std::int32_t type);

}  // namespace zu::data
