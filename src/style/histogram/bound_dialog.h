#pragma once
// Asks for the value of one boundary.

#include <cstddef>
#include <optional>
#include <vector>

namespace zu::element::detail {

/// A value between the neighbours of a boundary, as the person typed it; nothing if they declined.
std::optional<double> ask_for_bound(const std::vector<double>& bounds, std::size_t index);

}  // namespace zu::element::detail
