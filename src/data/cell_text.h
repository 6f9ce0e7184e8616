#pragma once
// One cell as a person reads it.

#include <string>

#include "src/data/grid_datasource.h"

namespace zu::data {

/// The value of a field at column `i` and row `j`, counted from 0, as `number_text` has it; empty
/// if the cell has none or cannot be read.
std::wstring cell_text(grid_datasource& source, std::int64_t field, std::int32_t i, std::int32_t j);

}  // namespace zu::data
