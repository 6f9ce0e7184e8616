#include "src/style/pickers/figure_input.h"

#include "src/style/pickers/figure_dialog.h"

namespace zu::style {

figure_input::figure_input() {
  zu_bpnt_style_set_use_figure(image_.point(), true);
  button_.set_image(image_);
  button_.on_click = [this] { ask(); };
}

void figure_input::assign(const Tzu_bpnt_style* from) { show(zu_bpnt_style_get_figure(from)); }

void figure_input::apply_to(Tzu_bpnt_style* to) {
  zu_bpnt_style_set_use_figure(to, true);
  zu_bpnt_style_set_figure(to, figure());
}

void figure_input::show(std::int32_t figure) {
  zu_bpnt_style_set_figure(image_.point(), figure);
  image_.redraw();
}

void figure_input::ask() {
  std::int32_t chosen = figure();
  if (!dialog::figure::run(&chosen) || chosen == figure()) return;
  show(chosen);
  if (on_change) on_change();
}

}  // namespace zu::style
