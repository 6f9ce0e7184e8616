#pragma once
// The pages of the gallery: every kind of element in every state, for whoever builds the controls
// and wants to see all of them at once.

#include <functional>
#include <string>

#include "src/common/gallery_texts.h"
#include "src/toolkit/buttons.h"
#include "src/toolkit/drawn.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/inputs.h"
#include "src/toolkit/numbers.h"
#include "src/toolkit/toolbars.h"

namespace zu::gallery {

using toolkit::labeled_element;

/// Hears what a person did, in a line.
using listener = std::function<void(const std::wstring&)>;

class texts_page : public toolkit::with_element {
 public:
  explicit texts_page(const listener& heard);
  void change();
  void set_enabled(bool enabled);
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  toolkit::label long_label_{text::long_label};
  toolkit::label disabled_label_{text::disabled};
  labeled_element<toolkit::input> plain_{text::plain}, digits_{text::refuses_letters},
      disabled_{text::disabled}, read_only_{text::read_only}, hidden_{text::plain};
  toolkit::checkbox show_hidden_{text::hidden};
  labeled_element<toolkit::assisted_input> assisted_{text::suggestions};
  labeled_element<toolkit::multiline_input> lines_{text::several_lines};
  labeled_element<toolkit::multiline_input> monospaced_{text::monospaced};
  labeled_element<toolkit::output> output_{text::output};
  labeled_element<toolkit::multiline_output> lines_output_{text::output};
  toolkit::grid_span_layout<4, 7> root_;
};

class numbers_page : public toolkit::with_element {
 public:
  explicit numbers_page(const listener& heard);
  void change();
  void set_enabled(bool enabled);
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  labeled_element<toolkit::integer_input> whole_{text::whole}, even_{text::refuses_odd},
      disabled_{text::disabled}, read_only_{text::read_only};
  labeled_element<toolkit::floating_input> real_{text::real}, two_decimals_{text::two_decimals};
  toolkit::labelex_element<toolkit::integer_input> percent_{text::opacity, text::percent};
  toolkit::labeled_slider<toolkit::integer_input> slider_{text::opacity};
  toolkit::labeled_slider<toolkit::floating_input> real_slider_{text::position};
  labeled_element<toolkit::slider> bare_slider_{text::position};
  labeled_element<toolkit::integer_output> whole_output_{text::output};
  labeled_element<toolkit::floating_output> real_output_{text::output};
  toolkit::grid_layout<3, 12> root_;
};

class choices_page : public toolkit::with_element {
 public:
  explicit choices_page(const listener& heard);
  void change();
  void set_enabled(bool enabled);
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  toolkit::checkbox mark_{text::mark, text::hint}, undecided_{text::undecided},
      disabled_mark_{text::disabled};
  toolkit::radiogroup<1, 3> group_{text::group};
  toolkit::groupbox<2, 1> checkable_{text::checkable_group};
  labeled_element<toolkit::input> inside_{text::plain};
  labeled_element<toolkit::dropdownex<int>> dropdown_{text::dropdown}, pictures_{text::picture},
      disabled_dropdown_{text::disabled};
  toolkit::label_ex page_one_{text::first}, page_two_{text::second}, page_three_{text::third};
  toolkit::stack_layout<3> pages_;
  toolkit::button button_{text::button, text::hint}, picture_{text::picture_button, 0, -62},
      toggle_{text::toggle_button}, disabled_button_{text::disabled};
  toolkit::button_link link_{text::link};
  toolkit::button_layout row_of_buttons_;
  toolkit::grid_layout<5, 1> buttons_;
  toolkit::grid_layout<3, 1> marks_;
  toolkit::grid_layout<2, 4> dropdowns_;
  toolkit::grid_layout<1, 6> root_;
};

}  // namespace zu::gallery
