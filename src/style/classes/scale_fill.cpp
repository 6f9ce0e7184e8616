#include "src/data/grid_datasource.h"
#include "src/style/classes/builders.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/style/classes/unique_values.h"

namespace zu::style {
namespace {

constexpr std::uint32_t default_classes = 10;
// Of larger grids a sample of cells is read, so that the first picture need not wait.
constexpr std::int64_t most_cells_read_whole = 16'000'000;
constexpr std::uint64_t cells_of_estimate = 1'000'000;

std::int64_t cells_of(const data::grid_datasource& grid) {
  std::int32_t sizes[3] = {0, 0, 0};
  grid.sizes(sizes);
  return std::int64_t{sizes[0]} * sizes[1] * sizes[2];
}

}  // namespace

bool fill_from_data(Tzu_rng_scale* scale, const data::open_reference& source,
                    const std::wstring& field) {
  data::grid_datasource grid;
  if (scale == nullptr || !grid.open(source, data::open_read_only)) return false;
  std::int64_t index = grid.find_field(field);
  if (index < 0) return false;
  bool large = cells_of(grid) > most_cells_read_whole;
  if (!grid.knows_statistics(index))
    grid.read_statistics(index, large ? cells_of_estimate : 0, nullptr);
  zu_rng_scale_init_opacity_pts(scale);
  set_equal_intervals(scale, {default_classes, grid.field_minimum(index), grid.field_maximum(index),
                              zu_rng_scale_get_round_digits(scale)});
  return true;
}

bool fill_from_data(Tzu_val_scale* scale, const data::open_reference& source,
                    const std::wstring& field) {
  unique_texts values;
  if (scale == nullptr || !read_unique_values(source, field, values, nullptr)) return false;
  rebuild(scale, values);
  return true;
}

}  // namespace zu::style
