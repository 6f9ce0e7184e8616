#pragma once
// A table whose marked rows are moved and deleted together.

#include <functional>
#include <set>

#include "src/bundle/owned.h"
#include "src/toolkit/outline.h"
#include "zu/platform/zuk_basic.h"

namespace zu::style::detail {

class marked_table : public toolkit::outline_table {
 public:
  using rows = std::set<std::int64_t>;

  /// What a command takes: the marked rows, or the current one where none is marked.
  rows chosen() const;
  /// Marks these rows alone; the first becomes the current one.
  void choose(rows marked);

  std::uint32_t selection_mode() override { return outline_chooses_many; }
  std::int64_t current_row() override { return current_; }
  void set_current_row(std::int64_t row) override;
  bool is_marked(outline_item item) override { return marked_.count(toolkit::row_of(item)) != 0; }
  void set_marked(outline_item item, bool marked) override;
  bool can_move_marked() override { return true; }
  void move_marked(outline_item target, bool behind) override;

  std::function<void()> on_choice;  ///< the current row or the marks are others
  std::function<void()> on_edit;    ///< the content is another

 protected:
  /// The current row, else the first marked one; -1 if there is none.
  std::int64_t leading_row() const {
    return current_ >= 0 || marked_.empty() ? current_ : *marked_.begin();
  }
  void edited();  ///< redraws, then tells
  virtual void move(const Tzu_int_set* marked, std::uint64_t index) = 0;

 private:
  void tell_choice();

  rows marked_;
  std::int64_t current_ = -1;
};

}  // namespace zu::style::detail
