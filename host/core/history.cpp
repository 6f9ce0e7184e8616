#include "host/core/history.h"

#include <utility>

namespace zu::host {

history::history(project& content) : content_(content) {
  steps_.push_back({{}, {}, memento_of(content_, {})});
  saved_ = steps_.front().after;
}

bool history::record(const std::string& name, const std::string& key) {
  project_memento now = memento_of(content_, steps_[position_].after);
  if (now == steps_[position_].after) return false;
  bool joins = may_join_ && !key.empty() && position_ > 0 && steps_[position_].key == key;
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(position_) + 1, steps_.end());
  may_join_ = true;
  if (!joins) {
    steps_.push_back({name, key, std::move(now)});
    ++position_;
  } else if (now == steps_[position_ - 1].after) {  // back where the step began: it is none
    steps_.pop_back();
    --position_;
    may_join_ = false;
  } else {
    steps_[position_].after = std::move(now);
  }
  if (steps_.size() > most_steps + 1) {
    steps_.pop_front();
    --position_;
  }
  return true;
}

bool history::undo() {
  record({});
  return can_undo() && go_to(position_ - 1);
}

bool history::redo() {
  record({});
  return can_redo() && go_to(position_ + 1);
}

bool history::go_to(std::size_t position) {
  restore(content_, steps_[position].after, before_change);
  position_ = position;
  may_join_ = false;
  return true;
}

void history::mark_saved() {
  record({});
  saved_ = steps_[position_].after;
  may_join_ = false;
}

bool history::is_changed() const { return !(steps_[position_].after == saved_); }

}  // namespace zu::host
