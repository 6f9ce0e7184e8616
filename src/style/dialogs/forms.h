#pragma once
// Forms over the base styles of symbols, lines, fills and numbers. A form writes into the part that
// it was given, which lives longer, and then tells.

#include <functional>

#include "src/style/pickers/figure_input.h"
#include "src/style/pickers/symbol_input.h"
#include "src/style/style_links.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/numbers.h"

namespace zu::style::detail {

/// A number of millimetres, or of degrees, with its unit behind it.
class measure_input : public toolkit::labelex_element<toolkit::floating_input> {
 public:
  enum unit : std::int32_t { millimetres = 14912, degrees = 14913 };
  measure_input(std::int32_t caption, unit shown);
};

class point_form : public toolkit::with_element {
 public:
  using style = Tzu_bpnt_style;

  point_form();
  /// Edits this part from now on, which may have changed.
  void set(Tzu_bpnt_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show();
  void show_symbol();

  Tzu_bpnt_style* edited_ = nullptr;
  toolkit::checkbox use_figure_{14901};
  toolkit::label figure_label_{10337}, symbol_label_{10337};
  figure_input figure_;
  symbol_input symbol_;
  toolkit::labeled_element<color_style_input> color_{10338, 10338};
  measure_input size_{10339, measure_input::millimetres};
  toolkit::checkbox use_complex_{14902};
  measure_input dx_{10502, measure_input::millimetres};
  measure_input dy_{10503, measure_input::millimetres};
  measure_input angle_{10504, measure_input::degrees};
  toolkit::grid_span_layout<3, 9> root_;
};

class line_form : public toolkit::with_element {
 public:
  using style = Tzu_bpln_style;

  line_form();
  void set(Tzu_bpln_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show();

  Tzu_bpln_style* edited_ = nullptr;
  toolkit::labeled_element<color_style_input> color_{10354, 10354};
  measure_input width_{10355, measure_input::millimetres};
  toolkit::labeled_element<toolkit::dropdownex<std::int32_t>> cap_{13501}, join_{13502};
  toolkit::checkbox use_complex_{14902};
  toolkit::grid_span_layout<3, 5> root_;
};

class fill_form : public toolkit::with_element {
 public:
  using style = Tzu_bpgn_style;

  fill_form();
  void set(Tzu_bpgn_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show();

  Tzu_bpgn_style* edited_ = nullptr;
  toolkit::labeled_element<color_style_input> color_{10353, 10353};
  toolkit::checkbox use_complex_{14902};
  toolkit::grid_span_layout<3, 2> root_;
};

class number_form : public toolkit::with_element {
 public:
  using style = Tzu_bnum_style;

  number_form();
  void set(Tzu_bnum_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  Tzu_bnum_style* edited_ = nullptr;
  toolkit::labeled_element<color_style_input> color_{10338, 10338};
  measure_input size_{10339, measure_input::millimetres};
  toolkit::grid_span_layout<3, 2> root_;
};

}  // namespace zu::style::detail
