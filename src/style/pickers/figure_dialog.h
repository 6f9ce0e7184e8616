#pragma once
// The dialog in which a person chooses the figure of a point.

#include "src/style/pickers/symbol_grid.h"
#include "src/toolkit/buttons.h"

namespace zu::style {

/// All figures, in the order of their numbers.
class figure_grid : public symbol_grid {
 public:
  figure_grid();
  std::uint64_t count() const override { return zu_figure_count; }
  void put(Tzu_bpnt_style* point, std::uint64_t index) const override;
  std::wstring text_of(std::uint64_t index) const override;
};

}  // namespace zu::style

namespace zu::dialog {

class figure : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_common_figure_dialog";
  static constexpr std::int32_t caption = 15301;

  explicit figure(std::int32_t chosen);
  /// Shows the dialog; false, and the number as it was, if the person did not accept.
  static bool run(std::int32_t* number);

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  style::figure_grid figures_;
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace zu::dialog
