#include "src/style/pickers/figure_dialog.h"

#include "src/bundle/texts.h"
#include "src/toolkit/dialog.h"

namespace zu::style {
namespace {

constexpr std::uint32_t figures_in_a_row = 8;
constexpr std::int32_t first_name = 15310;  // the names stand in the order of the numbers

}  // namespace

figure_grid::figure_grid() : symbol_grid(figures_in_a_row) {}

void figure_grid::put(Tzu_bpnt_style* point, std::uint64_t index) const {
  zu_bpnt_style_set_use_figure(point, true);
  zu_bpnt_style_set_figure(point, static_cast<std::int32_t>(index));
}

std::wstring figure_grid::text_of(std::uint64_t index) const {
  return load_text(first_name + static_cast<std::int32_t>(index));
}

}  // namespace zu::style

namespace zu::dialog {

figure::figure(std::int32_t chosen) {
  if (chosen >= 0) figures_.assign(static_cast<std::uint64_t>(chosen));
  buttons_.on_accept = [this] { return figures_.picked().has_value(); };
  root_.place(figures_).place(buttons_).set_row_stretch(0);
}

bool figure::run(std::int32_t* number) {
  figure content(*number);
  if (!toolkit::run_dialog(content) || !content.figures_.picked()) return false;
  *number = static_cast<std::int32_t>(*content.figures_.picked());
  return true;
}

}  // namespace zu::dialog
