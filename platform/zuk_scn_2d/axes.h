#pragma once
// The records of a scene's margins and axes.

#include <array>

struct Tzu_margins {
  bool visible = false;
  double left = 0, right = 0, top = 0, bottom = 0;  // millimetres
};
struct Tzu_axis_type {
  bool visible = false;
};
struct Tzu_axes {
  bool visible = false;
  std::array<Tzu_axis_type, 2> sides;  // as of Tzu_axis_side
};
