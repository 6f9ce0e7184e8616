#pragma once
// A choice of one among items, each of which stands for a value.

#include <functional>
#include <string>
#include <vector>

#include "src/toolkit/element.h"

namespace zu::toolkit {

class dropdown_base : public mixed<dropdown_impl, with_hint, with_enabled> {
 public:
  /// -1 is no selection.
  void assign(std::int32_t index) {
    if (replace(current_, index)) tell_value();
  }

  std::uint32_t count() override { return static_cast<std::uint32_t>(items_.size()); }
  void item_text(std::uint32_t index, string_visitor visitor) override;
  void item_picture(std::uint32_t index, bitmap_visitor visitor) override;
  std::int32_t current() override { return has(current_) ? current_ : -1; }
  void set_current(std::int32_t index) override {
    if (!has(index)) return;
    current_ = index;
    chosen(index);
  }

 protected:
  bool has(std::int32_t index) const {
    return index >= 0 && static_cast<std::size_t>(index) < items_.size();
  }
  void add_item(std::int32_t id, std::wstring text, std::int32_t picture);
  void clear_items();
  virtual void chosen(std::int32_t /*index*/) {}

 private:
  struct item {
    std::int32_t id;
    std::wstring text;  // without an id
    std::int32_t picture;
  };
  std::vector<item> items_;
  std::int32_t current_ = 0;
};

template <class T> class dropdownex : public dropdown_base {
 public:
  dropdownex& add(std::int32_t text, std::int32_t picture, T value) {
    values_.push_back(std::move(value));
    add_item(text, {}, picture);
    return *this;
  }
  /// For texts that are data, as names of fields.
  dropdownex& add(std::wstring text, std::int32_t picture, T value) {
    values_.push_back(std::move(value));
    add_item(0, std::move(text), picture);
    return *this;
  }
  void clear() {
    values_.clear();
    clear_items();
  }
  /// Of the selected item; a made one where there is none.
  T value() { return current() < 0 ? T() : values_[static_cast<std::size_t>(current())]; }
  /// Selects the item of a value; none if there is no such item.
  void assign_value(const T& value) {
    std::int32_t index = static_cast<std::int32_t>(values_.size()) - 1;
    while (index >= 0 && !(values_[static_cast<std::size_t>(index)] == value)) --index;
    assign(index);
  }

  std::function<void(T)> on_change;

 private:
  void chosen(std::int32_t index) override {
    if (on_change) on_change(values_[static_cast<std::size_t>(index)]);
  }

  std::vector<T> values_;
};

}  // namespace zu::toolkit
