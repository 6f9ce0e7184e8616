#pragma once
// The two scales. Changing a scale ends its look-up.

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/zuk_styles/parameters.h"
#include "platform/zuk_styles/scale_lookup.h"

namespace zu::platform {

/// A row that keeps its address wherever its holder goes. A copy is a row of its own.
class held_row {
 public:
  held_row() : row_(std::make_unique<scale_row>()) {}
  held_row(const held_row& other) : row_(std::make_unique<scale_row>(*other.row_)) {}
  held_row(held_row&&) noexcept = default;
  held_row& operator=(const held_row& other) {
    if (this != &other) *row_ = *other.row_;
    return *this;
  }
  held_row& operator=(held_row&&) noexcept = default;
  ~held_row() = default;
  scale_row* get() const { return row_.get(); }

 private:
  std::unique_ptr<scale_row> row_;
};

/// What both scales share: their classes, and look-ups that `scale::prepare` makes ready. `head` is
/// the public record, `one_class` what the scale holds in a row.
template <class scale, class head, class one_class> class searched_scale : public head {
 public:
  searched_scale() : head{} {
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
    active = from.active;
    std::copy_n(from.new_opacity, 2, new_opacity);
    return *this;
  }
  void resize(std::size_t size) {
    forget();
    classes.reserve(size);
    while (classes.size() < size) classes.push_back(new_class());
    classes.erase(classes.begin() + static_cast<std::ptrdiff_t>(size), classes.end());
  }
  /// At `index`, or at the end if that is beyond.
  std::size_t insert(std::size_t index) {
    forget();
    index = std::min(index, classes.size());
    classes.insert(classes.begin() + static_cast<std::ptrdiff_t>(index), new_class());
    return index;
  }
  void erase(std::size_t index) {
    forget();
    classes.erase(classes.begin() + static_cast<std::ptrdiff_t>(index));
  }
  void erase_marked() {
    forget();
    std::erase_if(classes, [](const one_class& c) { return c.marked; });
  }
  /// Marked classes go before what is at `index` now.
  void move_marked(std::size_t index) {
    if (index > classes.size()) return;
    forget();
    auto marked = [](const one_class& c) { return c.marked; };
    auto unmarked = [](const one_class& c) { return !c.marked; };
    auto place = classes.begin() + static_cast<std::ptrdiff_t>(index);
    std::stable_partition(classes.begin(), place, unmarked);
    std::stable_partition(place, classes.end(), marked);
  }
  /// False, and nothing done, if it is no permutation.
  bool reorder(const std::vector<std::size_t>& order) {
    std::vector<bool> taken(classes.size());
    if (order.size() != classes.size()) return false;
    for (std::size_t from : order) {
      if (from >= classes.size() || taken[from]) return false;
      taken[from] = true;
    }
    forget();
    std::vector<one_class> sorted;
    sorted.reserve(order.size());
    for (std::size_t from : order) sorted.push_back(std::move(classes[from]));
    classes = std::move(sorted);
    return true;
  }
  /// New classes are as transparent as `row` is.
  void keep_opacity(const Tzu_stl_prm& row) {
    for (int i = 0; i < 2; ++i) new_opacity[i] = color_of(row, i).a;
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
  scale_row other;
  std::wstring other_caption;
  int32_t active = -1;              // the current row of a list
  uint8_t new_opacity[2] = {0, 0};  // the transparency of new classes, drawn and selected

 protected:
  ~searched_scale() = default;
  scale_lookup prepared_;

 private:
  one_class new_class() const {
    one_class made;
    for (int i = 0; i < 2; ++i) made.row.get()->style.colors[i].a = new_opacity[i];
    return made;
  }

  int runs_ = 0;  // begun and not ended
};

struct range_class {
  double minimum = 0.0, maximum = 0.0;
  std::wstring caption;
  held_row row;
  bool marked = false;
};

struct range_scale : searched_scale<range_scale, Tzu_rng_scale, range_class> {
  void prepare();
  double minimum = 0.0, maximum = 0.0;  // of the tails
  scale_row lower, upper;
  std::wstring lower_caption, upper_caption;
  bool lower_marked = false, upper_marked = false;
  int32_t type = 0, digits = zu_no_rounding;
  double deviation_coefficient = 1.0;
};

struct value_class {
  std::wstring text, caption;
  held_row row;
  bool marked = false;
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
