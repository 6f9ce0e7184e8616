#include "src/style/palettes/marked_table.h"

#include <algorithm>

namespace zu::style::detail {

marked_table::rows marked_table::chosen() const {
  return marked_.empty() && current_ >= 0 ? rows{current_} : marked_;
}

void marked_table::choose(rows marked) {
  marked_ = std::move(marked);
  current_ = marked_.empty() ? -1 : *marked_.begin();
  redraw();
  tell_current();
  tell_choice();
}

void marked_table::set_current_row(std::int64_t row) {
  current_ = row < row_count() ? row : -1;
  tell_choice();
}

void marked_table::set_marked(outline_item item, bool marked) {
  marked ? void(marked_.insert(toolkit::row_of(item))) : void(marked_.erase(toolkit::row_of(item)));
  tell_choice();
}

void marked_table::move_marked(outline_item target, bool behind) {
  std::int64_t index =
      target ? std::int64_t{toolkit::row_of(target)} + behind : std::int64_t{row_count()};
  const rows moved = chosen();
  if (moved.empty()) return;
  owned<zu_int_set_destroy> set(zu_int_set_create());
  for (std::int64_t row : moved) zu_int_set_add(set.get(), row);
  move(set.get(), static_cast<std::uint64_t>(index));
  std::int64_t first = index - std::count_if(moved.begin(), moved.end(),
                                             [&](std::int64_t row) { return row < index; });
  rows now;
  for (std::size_t i = 0; i < moved.size(); ++i) now.insert(first + static_cast<std::int64_t>(i));
  choose(std::move(now));
  edited();
}

void marked_table::edited() {
  redraw();
  if (on_edit) on_edit();
}

void marked_table::tell_choice() {
  if (on_choice) on_choice();
}

}  // namespace zu::style::detail
