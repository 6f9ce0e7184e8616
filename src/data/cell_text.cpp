#include "src/data/cell_text.h"

#include "src/data/block_reader.h"
#include "src/data/nodata_test.h"

namespace zu::data {

std::wstring cell_text(grid_datasource& source, std::int64_t field, std::int32_t i,
                       std::int32_t j) {
  std::int32_t grid[3] = {0, 0, 0};
  owned_block block;
  if (!source.sizes(grid) || !source.get_block(field, block)) return {};
  std::uint64_t start = static_cast<std::uint64_t>(j) * static_cast<std::uint64_t>(grid[0]) +
                        static_cast<std::uint64_t>(i);
  double value = 0.0;
  if (read_linear(source, block.get(), start, 1, &value, element_float64) != 1) return {};
  bool valid = nodata_test::of(block.get(), element_float64).valid(value);
  return valid ? number_text(value) : std::wstring();
}

}  // namespace zu::data
