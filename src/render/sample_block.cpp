#include "src/render/sample_block.h"

#include "src/data/block_reader.h"

namespace zu {

bool read_samples(const grid_draw_job& job, grid_block block, const sample_window& window,
                  std::int32_t type, void* buffer) {
  bool slice = job.context.params.slice_index != -1;
  std::int32_t result = slice ? data::read_window_3d(block, window.origin, window.size, buffer,
                                                     window.samples, type, nullptr)
                              : data::read_window(job.source, block, window.origin, window.size,
                                                  buffer, window.samples, type, nullptr);
  return result == 1;
}

}  // namespace zu
