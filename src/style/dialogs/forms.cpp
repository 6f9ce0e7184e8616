#include "src/style/dialogs/forms.h"

namespace zu::style::detail {
namespace {

/// Has an input write its value into the part that the form edits then, and the form tell.
template <class value, class form, class part>
std::function<void(value)> writes(form& f, part*& edited, void (*write)(part*, value)) {
  return [&f, &edited, write](value given) {
    if (edited == nullptr) return;
    write(edited, given);
    if (f.on_change) f.on_change();
  };
}

// Sizes and colours are written to the complex style too, where it is what draws.

void write_size(Tzu_bpnt_style* point, double millimetres) {
  zu_bpnt_style_set_size(point, millimetres);
  if (zu_bpnt_style_get_use_complex(point))
    zu_cpx_pnt_style_set_point_size(zu_bpnt_style_get_complex_style(point), millimetres);
}

void write_width(Tzu_bpln_style* line, double millimetres) {
  zu_bpln_style_set_width(line, millimetres);
  if (zu_bpln_style_get_use_complex(line))
    zu_cpx_pln_style_set_line_width(zu_bpln_style_get_complex_style(line), millimetres);
}

void write_fill(Tzu_bpgn_style* fill, Tzu_color color) {
  zu_bpgn_style_set_color(fill, color);
  zu_cpx_pgn_style_set_color(zu_bpgn_style_get_complex_style(fill), color);
}

void write_symbol_or_figure(Tzu_bpnt_style* point, bool figure) {
  zu_bpnt_style_set_use_figure(point, figure);
}

}  // namespace

measure_input::measure_input(std::int32_t caption, unit shown) : labelex_element(caption, shown) {
  constexpr double farthest = 1000, turn = 360;  // no printed symbol is larger than a metre
  if (shown == degrees)
    set_range(-turn, turn, 5);
  else
    set_range(-farthest, farthest, 0.1);
  set_width(8);
}

// --- Points

point_form::point_form() {
  use_figure_.on_state = [this](bool figure) {
    writes<bool>(*this, edited_, &write_symbol_or_figure)(figure);
    show_symbol();
  };
  figure_.on_change = [this] {
    figure_.apply_to(edited_);
    if (on_change) on_change();
  };
  symbol_.on_change = [this] {
    symbol_.apply_to(edited_);
    if (on_change) on_change();
  };
  size_.set_minimum(0);
  color_.on_change = writes<Tzu_color>(*this, edited_, &zu_bpnt_style_set_color);
  size_.on_change = writes<double>(*this, edited_, &write_size);
  dx_.on_change = writes<double>(*this, edited_, &zu_bpnt_style_set_dx);
  dy_.on_change = writes<double>(*this, edited_, &zu_bpnt_style_set_dy);
  angle_.on_change = writes<double>(*this, edited_, &zu_bpnt_style_set_angle);
  use_complex_.on_state = [this](bool complex) {
    writes<bool>(*this, edited_, &zu_bpnt_style_set_use_complex)(complex);
    show();
  };
  root_.place(use_figure_, 3).place(figure_label_).place(figure_).skip();
  root_.place(symbol_label_).place(symbol_, 2);
  root_.place(color_).skip().place(size_).place(use_complex_, 3);
  root_.place(dx_).place(dy_).place(angle_).set_column_stretch(1);
}

void point_form::set(Tzu_bpnt_style* edited) {
  edited_ = edited;
  show();
}

void point_form::show() {
  figure_.assign(edited_);
  symbol_.assign(edited_);
  color_.assign(zu_bpnt_style_get_color(edited_));
  const Tzu_cpx_style* layers = zu_bpnt_style_get_complex_style(edited_);
  double complex_size = zu_cpx_pnt_style_get_point_size(layers);
  bool complex = zu_bpnt_style_get_use_complex(edited_);
  size_.assign(complex ? complex_size : zu_bpnt_style_get_size(edited_));
  use_complex_.assign(complex);
  constexpr int complex_row = 5;
  root_.set_row_visible(complex_row, complex || complex_size > 0);
  dx_.assign(zu_bpnt_style_get_dx(edited_));
  dy_.assign(zu_bpnt_style_get_dy(edited_));
  angle_.assign(zu_bpnt_style_get_angle(edited_));
  show_symbol();
}

void point_form::show_symbol() {
  bool figure = zu_bpnt_style_get_use_figure(edited_);
  use_figure_.assign(figure);
  constexpr int figure_row = 1, symbol_row = 2;
  root_.set_row_visible(figure_row, figure).set_row_visible(symbol_row, !figure);
}

// --- Lines

line_form::line_form() {
  cap_.add(13503, 0, zu_cap_butt).add(13504, 0, zu_cap_square).add(13505, 0, zu_cap_round);
  join_.add(13506, 0, zu_join_miter).add(13507, 0, zu_join_bevel).add(13508, 0, zu_join_round);
  width_.set_minimum(0);
  color_.on_change = writes<Tzu_color>(*this, edited_, &zu_bpln_style_set_color);
  width_.on_change = writes<double>(*this, edited_, &write_width);
  cap_.on_change = writes<std::int32_t>(*this, edited_, &zu_bpln_style_set_cap_style);
  join_.on_change = writes<std::int32_t>(*this, edited_, &zu_bpln_style_set_join_style);
  use_complex_.on_state = [this](bool complex) {
    writes<bool>(*this, edited_, &zu_bpln_style_set_use_complex)(complex);
    show();
  };
  root_.place(color_).skip().place(width_).place(cap_, 2).place(join_, 2).place(use_complex_, 3);
  root_.set_column_stretch(1);
}

void line_form::set(Tzu_bpln_style* edited) {
  edited_ = edited;
  show();
}

void line_form::show() {
  color_.assign(zu_bpln_style_get_color(edited_));
  double complex_width = zu_cpx_pln_style_get_line_width(zu_bpln_style_get_complex_style(edited_));
  bool complex = zu_bpln_style_get_use_complex(edited_);
  width_.assign(complex ? complex_width : zu_bpln_style_get_width(edited_));
  cap_.assign_value(zu_bpln_style_get_cap_style(edited_));
  join_.assign_value(zu_bpln_style_get_join_style(edited_));
  use_complex_.assign(complex);
  constexpr int complex_row = 4;
  root_.set_row_visible(complex_row, complex || complex_width > 0);
}

// --- Fills

fill_form::fill_form() {
  color_.on_change = writes<Tzu_color>(*this, edited_, &write_fill);
  use_complex_.on_state = [this](bool complex) {
    writes<bool>(*this, edited_, &zu_bpgn_style_set_use_complex)(complex);
    show();
  };
  root_.place(color_).skip().place(use_complex_, 3).set_column_stretch(1);
}

void fill_form::set(Tzu_bpgn_style* edited) {
  edited_ = edited;
  show();
}

void fill_form::show() {
  bool complex = zu_bpgn_style_get_use_complex(edited_);
  Tzu_color color = zu_bpgn_style_get_color(edited_), of_layers = color;
  bool has_layers =
      zu_cpx_pgn_style_get_color(zu_bpgn_style_get_complex_style(edited_), &of_layers);
  color_.assign(complex ? of_layers : color);
  use_complex_.assign(complex);
  constexpr int complex_row = 1;
  root_.set_row_visible(complex_row, complex || has_layers);
}

// --- Numbers

number_form::number_form() {
  size_.set_minimum(0);
  color_.on_change = writes<Tzu_color>(*this, edited_, &zu_bnum_style_set_color);
  size_.on_change = writes<double>(*this, edited_, &zu_bnum_style_set_size);
  root_.place(color_).skip().place(size_).set_column_stretch(1);
}

void number_form::set(Tzu_bnum_style* edited) {
  edited_ = edited;
  color_.assign(zu_bnum_style_get_color(edited_));
  size_.assign(zu_bnum_style_get_size(edited_));
}

}  // namespace zu::style::detail
