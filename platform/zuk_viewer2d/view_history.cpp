#include "platform/zuk_viewer2d/view_history.h"

namespace zu::platform {

void view_history::record(const view& v) {
  if (place_ > 0 && steps_[place_ - 1].equals(v)) return;
  steps_.resize(place_);
  steps_.push_back(v);
  if (steps_.size() > capacity) steps_.pop_front();
  place_ = steps_.size();
}

void view_history::replace(const view& v) {
  if (place_ > 0) steps_[place_ - 1] = v;
}

}  // namespace zu::platform
