#pragma once
// The arrays of colours on a page.

#include "host/core/export.h"

namespace zu::host {

/// A row for each array: its name, the ramp, the colours of ten classes, and its own colours in
/// turn. Throws `failure`.
drawn_picture draw_gradients(page_kind kind);

}  // namespace zu::host
