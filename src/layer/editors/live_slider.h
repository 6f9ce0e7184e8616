#pragma once

#include "src/toolkit/numbers.h"

namespace zu::element {

/// Has each move of a slider taken at once, not only where it is let go.
template <class I> void take_each_move(toolkit::slider_input<I>& number) {
  number.slider().on_move = [&number, move = number.slider().on_move](std::int32_t position) {
    move(position);
    number.input().apply();
  };
}

}  // namespace zu::element
