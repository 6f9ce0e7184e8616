#pragma once
// The boxes that a viewer showed, oldest first, and which of them is in force.

#include <cstddef>
#include <deque>

#include "platform/zuk_viewer2d/view.h"

namespace zu::platform {

class view_history {
 public:
  static constexpr std::size_t capacity = 100;

  /// A step after the one in force; what lay ahead of it is forgotten. The view in force again is
  /// no step.
  void record(const view& v);
  /// Puts a view in place of the one in force.
  void replace(const view& v);
  bool has_prev() const { return place_ > 1; }
  bool has_next() const { return place_ < steps_.size(); }
  // The steps must be there.
  const view& prev() { return steps_[--place_ - 1]; }
  const view& next() { return steps_[place_++]; }

 private:
  std::deque<view> steps_;
  std::size_t place_ = 0;  // steps up to the one in force
};

}  // namespace zu::platform
