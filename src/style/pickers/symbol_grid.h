#pragma once
// A table of symbols, of which a person picks one.

#include <functional>
#include <optional>
#include <string>

#include "src/bundle/owned.h"
#include "src/toolkit/grid.h"
#include "zu/platform/zuk_symbols.h"

namespace zu::style {

class symbol_grid : public toolkit::grid {
 public:
  explicit symbol_grid(std::uint32_t columns);

  /// Symbols are counted from 0; empty for none.
  std::optional<std::uint64_t> picked() const { return picked_; }
  /// Tells no one but the view.
  void assign(std::optional<std::uint64_t> index);
  void pick(std::uint64_t index);
  void set_enabled(bool enabled);
  virtual std::uint64_t count() const = 0;

  std::function<void()> on_pick;

  // The table
  std::uint32_t fixed_columns() override { return 0; }
  std::uint32_t fixed_rows() override { return 0; }
  std::uint32_t column_width(std::uint32_t) override { return 0; }
  bool enabled() override { return enabled_; }
  std::uint32_t data_column_count() override { return columns_; }
  std::uint64_t data_row_count() override { return (count() + columns_ - 1) / columns_; }
  void data_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  void set_current(std::uint32_t column, std::uint64_t row) override;
  bool current(std::uint32_t* column, std::uint64_t* row) override;

  /// Makes a point style show a symbol.
  virtual void put(Tzu_bpnt_style* point, std::uint64_t index) const = 0;
  /// What the tip of a symbol says.
  virtual std::wstring text_of(std::uint64_t index) const = 0;

 private:
  std::uint32_t columns_;
  bool enabled_ = true;
  std::optional<std::uint64_t> picked_;
};

/// A point style in which pickers show a symbol: black and of one size.
owned<zu_pnt_style_destroy> preview_point();

/// Gives a sample of a point style to a view.
void visit_point(const Tzu_pnt_style* style, bitmap_visitor visitor);

}  // namespace zu::style
