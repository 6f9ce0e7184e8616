#pragma once
// The figures of points and the marks of lines on a page.

#include "host/core/export.h"

namespace zu::host {

/// English names of the figures, by number; null for a number that is none.
const char* figure_name(std::int32_t figure);

/// All figures with their numbers and names, in three sizes; below them lines with their ends,
/// corners, dashes and marks. Throws `failure`.
drawn_picture draw_symbols(page_kind kind);

}  // namespace zu::host
