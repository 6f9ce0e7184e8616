#pragma once
// A fair sample of the values of a field.

#include <cstdint>
#include <string>
#include <vector>

#include "src/data/generic_datasource.h"

namespace zu::style {

inline constexpr std::size_t sample_limit = 3000;

/// At most 3,000 values between the limits, inclusive. A field of no more cells is read whole; of a
/// longer one cells are drawn by number, or, where few of them hold such a value, all are read
/// and each has the same chance. `seed` null: another sample each time. False if the source does
/// not open, has no such field or no cell could be read, or if the person stopped it.
bool sample_field(const data::open_reference& source, const std::wstring& field, double minimum,
                  double maximum, const std::uint32_t* seed, std::vector<double>& out);

}  // namespace zu::style
