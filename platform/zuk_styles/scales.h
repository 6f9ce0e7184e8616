#pragma once
// The two scales. Changing a scale ends its look-up.

#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_styles/scale_lookup.h"

namespace zu::platform {

/// A row of new scales: visible, a middle gray, selected in yellow.
Tzu_scale_prm new_row();

/// A row that keeps its address wherever its holder goes. A copy is a row of its own.
class held_row {
 public:
  held_row() : row_(std::make_unique<Tzu_scale_prm>(new_row())) {}
  held_row(const held_row& other) : row_(std::make_unique<Tzu_scale_prm>(*other.row_)) {}
  held_row(held_row&&) noexcept = default;
  held_row& operator=(const held_row& other) {
    if (this != &other) *row_ = *other.row_;
    return *this;
  }
  held_row& operator=(held_row&&) noexcept = default;
  ~held_row() = default;
  Tzu_scale_prm* get() const { return row_.get(); }

 private:
  std::unique_ptr<Tzu_scale_prm> row_;
};

/// What both scales share: their classes, and look-ups that `scale::prepare` makes ready. `head` is
/// the public record, `one_class` what the scale holds in a row.
template <class scale, class head, class one_class> class searched_scale : public head {
 public:
  searched_scale() : head{}, other(new_row()) {
    other.visible = false;
    forget();
  }
  searched_scale(const searched_scale&) = delete;
  searched_scale& operator=(const searched_scale& from) {
    if (this == &from) return *this;
    forget();
    classes = from.classes;
    other = from.other;
    other_caption = from.other_caption;
    return *this;
  }
  void resize(std::size_t size) {
    forget();
    classes.resize(size);
  }
  void begin_find() {
    if (runs_ == 0) static_cast<scale*>(this)->prepare();
    ++runs_;
  }
  void end_find() {
    if (runs_ > 0 && --runs_ == 0) forget();
  }
  /// Ends all look-ups; called before a change.
  void forget() {
    answer_other(&other, this->lookup);
    runs_ = 0;
  }

  std::vector<one_class> classes;
  Tzu_scale_prm other;
  std::wstring other_caption;

 protected:
  ~searched_scale() = default;
  scale_lookup prepared_;

 private:
  int runs_ = 0;  // begun and not ended
};

struct range_class {
  double minimum = 0.0, maximum = 0.0;
  std::wstring caption;
  held_row row;
};

struct range_scale : searched_scale<range_scale, Tzu_rng_scale, range_class> {
  void prepare();
  double minimum = 0.0, maximum = 0.0;  // of the tails
  Tzu_scale_prm lower = new_row(), upper = new_row();
  std::wstring lower_caption, upper_caption;
  int32_t type = 0, digits = zu_no_rounding;
  double deviation_coefficient = 1.0;
};

struct value_class {
  std::wstring text, caption;
  held_row row;
};

struct value_scale : searched_scale<value_scale, Tzu_val_scale, value_class> {
  void prepare();
};

// Scales behind the public records, and their rows; null if there is no such row.
inline range_scale& whole(Tzu_rng_scale& head) { return static_cast<range_scale&>(head); }
inline const range_scale& whole(const Tzu_rng_scale& head) {
  return static_cast<const range_scale&>(head);
}
inline value_scale& whole(Tzu_val_scale& head) { return static_cast<value_scale&>(head); }
inline const value_scale& whole(const Tzu_val_scale& head) {
  return static_cast<const value_scale&>(head);
}
inline range_class* class_at(Tzu_rng_scale* scale, uint64_t index) {
  return index < zu_rng_scale_get_size(scale) ? &whole(*scale).classes[index] : nullptr;
}
inline value_class* class_at(Tzu_val_scale* scale, uint64_t index) {
  return index < zu_val_scale_get_size(scale) ? &whole(*scale).classes[index] : nullptr;
}

}  // namespace zu::platform
