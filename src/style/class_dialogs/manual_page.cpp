#include "src/style/class_dialogs/manual_page.h"

#include <algorithm>

namespace zu::style::detail {

double manual_page::limit_column::value(outline_item item) {
  std::size_t row = toolkit::row_of(item);
  return row < page_.rows_.size() ? page_.rows_[row].*limit_ : 0.0;
}

bool manual_page::limit_column::set_value(outline_item item, double value) {
  std::size_t row = toolkit::row_of(item);
  if (row >= page_.rows_.size()) return false;
  page_.rows_[row].*limit_ = value;
  page_.tell();
  return true;
}

manual_page::manual_page(const known_field& field) : method_page(field) {
  table_.add_column(minimum_).add_column(maximum_);
  table_.on_row_count = [this] { return static_cast<std::uint32_t>(rows_.size()); };
  table_.on_visible_rows = [] { return 6u; };
  table_.on_shows_lines = [] { return true; };
  table_.on_current_row = [this] { return current_; };
  table_.on_set_current_row = [this](std::int64_t row) { choose(row); };
  add_.on_click = [this] { add_row(); };
  remove_.on_click = [this] { remove_row(); };
  remove_.set_enabled(false);
  listen(digits_);
  buttons_.place(add_).place(remove_).set_column_stretch(2);
  rounding_.place(digits_).set_column_size(0, label_width).set_column_stretch(1);
  root_.place(table_).place(buttons_).place(rounding_).set_row_stretch(0);
}

void manual_page::load(const Tzu_rng_scale* scale) {
  load_rows(scale);
  digits_.assign_digits(zu_rng_scale_get_round_digits(scale));
}

void manual_page::load_rows(const Tzu_rng_scale* scale) {
  rows_.clear();
  for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i)
    rows_.push_back({zu_rng_scale_get_min(scale, i), zu_rng_scale_get_max(scale, i)});
  changed_rows(-1);
}

void manual_page::build(Tzu_rng_scale* scale) { set_manual(scale, rows_, digits_.value()); }

void manual_page::choose(std::int64_t row) {
  current_ = row;
  remove_.set_enabled(current_ >= 0 && current_ < std::ssize(rows_));
}

void manual_page::changed_rows(std::int64_t current) {
  choose(current);
  table_.redraw();
  table_.tell_current();
}

void manual_page::add_row() {
  std::int64_t count = std::ssize(rows_);
  std::int64_t at = current_ >= 0 && current_ < count ? current_ + 1 : count;
  auto next = rows_.begin() + at;
  double minimum = at == 0 ? field_.minimum : std::prev(next)->maximum;
  double maximum = next != rows_.end() ? next->minimum : field_.maximum;
  rows_.insert(next, {minimum, std::max(minimum, maximum)});
  changed_rows(at);
  tell();
}

void manual_page::remove_row() {
  if (current_ < 0 || current_ >= std::ssize(rows_)) return;
  rows_.erase(rows_.begin() + current_);
  changed_rows(std::min(current_, std::ssize(rows_) - 1));
  tell();
}

}  // namespace zu::style::detail
