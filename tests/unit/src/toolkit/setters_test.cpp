// What every setter tells the host's view: once for a change, nothing for the same again.

#include <gtest/gtest.h>

#include <span>

#include "src/toolkit/buttons.h"
#include "src/toolkit/dockers.h"
#include "src/toolkit/drawn.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/inputs.h"
#include "src/toolkit/numbers.h"
#include "src/toolkit/tabs.h"
#include "src/toolkit/tools.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::told;
using tests::viewing;

struct setter_case {
  std::string name;
  std::function<told()> calls;
};

/// Calls of the view when the setter is given the same twice.
template <class T, class... args> auto twice(void (*act)(T&), args... given) {
  return [=] {
    T element(given...);
    viewing view(element);
    act(element);
    act(element);
    return view.calls();
  };
}
#define ZU_CASE(type, expression, ...)                                                             \
  {                                                                                                \
#type " " #expression, twice < type>([](type& e) { e.expression; } __VA_OPT__(, ) __VA_ARGS__) \
  }

using grid = grid_layout<2, 2>;
using frame = groupbox<1, 1>;
using tabs = tab_layout<2>;
using items = dropdownex<int>;
using content_docker = docker<grid>;

const setter_case looks[] = {
    ZU_CASE(label, set_enabled(false)),
    ZU_CASE(label, set_text(5)),
    ZU_CASE(label_ex, set_format(L"a")),
    ZU_CASE(image, set_picture(5)),
    ZU_CASE(image, set_visible(false)),
    ZU_CASE(button, set_enabled(false)),
    ZU_CASE(button, set_visible(false)),
    ZU_CASE(button, set_caption(5)),
    ZU_CASE(button, set_hint(5)),
    ZU_CASE(button, set_picture(5)),
    ZU_CASE(button, set_toggle(true)),
    ZU_CASE(radiobutton, set_enabled(false)),
    ZU_CASE(checkbox, set_enabled(false)),
    ZU_CASE(checkbox, set_caption(5)),
    ZU_CASE(grid, set_column_visible(1, false)),
    ZU_CASE(grid, set_row_visible(1, false)),
    ZU_CASE(grid, set_column_size(1, 5)),
    ZU_CASE(grid, set_spacing(5)),
    ZU_CASE(frame, set_checkable(true)),
    ZU_CASE(frame, set_caption(5)),
    ZU_CASE(content_docker, set_caption(5), 1),
    ZU_CASE(integer_input, set_enabled(false)),
    ZU_CASE(integer_input, set_read_only(true)),
    ZU_CASE(integer_input, set_width(5)),
    ZU_CASE(floating_input, set_decimals(5)),
    ZU_CASE(floating_output, set_decimals(5)),
    ZU_CASE(slider, set_enabled(false)),
    ZU_CASE(input, set_visible(false)),
    ZU_CASE(input, set_read_only(true)),
    ZU_CASE(assisted_input, set_width(5)),
    ZU_CASE(multiline_input, set_lines(5)),
    ZU_CASE(multiline_output, set_monospaced(true)),
    ZU_CASE(output, set_enabled(false)),
    ZU_CASE(items, set_enabled(false)),
    ZU_CASE(canvas, set_extent(5, 5)),
    ZU_CASE(histogram, set_show(0)),
    ZU_CASE(action_tool, set_enabled(false), 1),
    ZU_CASE(boolean_tool, set_visible(false), 1),
};
const setter_case values[] = {
    ZU_CASE(button, assign(true)),
    ZU_CASE(checkbox, assign(false)),
    ZU_CASE(checkbox, assign_state(checkbox::undecided)),
    ZU_CASE(frame, assign(false)),
    ZU_CASE(tabs, assign(1)),
    ZU_CASE(integer_input, assign(5)),
    ZU_CASE(floating_input, assign(0.5)),
    ZU_CASE(integer_output, assign(5)),
    ZU_CASE(floating_output, assign(0.5)),
    ZU_CASE(slider, assign(5)),
    ZU_CASE(input, assign(L"a")),
    ZU_CASE(multiline_input, assign(L"a")),
    ZU_CASE(output, assign(L"a")),
    ZU_CASE(multiline_output, assign(L"a")),
    ZU_CASE(items, assign(1)),
    ZU_CASE(histogram, assign(0, 5)),
    ZU_CASE(boolean_tool, assign(true), 1),
    ZU_CASE(integer_tool, assign(5), 1),
    ZU_CASE(list_tool, assign(5), 1),
};
const setter_case ranges[] = {
    ZU_CASE(integer_input, set_minimum(5)),    ZU_CASE(integer_input, set_maximum(5)),
    ZU_CASE(floating_input, set_step(5)),      ZU_CASE(floating_input, set_range(0, 5, 0.5)),
    ZU_CASE(slider, set_maximum(5)),           ZU_CASE(slider, set_steps(2, 5, 20)),
    ZU_CASE(integer_tool, set_range(1, 5), 1),
};

void expect_all(std::span<const setter_case> cases, told expected) {
  for (const setter_case& c : cases) EXPECT_EQ(c.calls(), expected) << c.name;
}

TEST(setters, of_the_look_ask_once_for_a_redraw) { expect_all(looks, {0, 1, 0}); }
TEST(setters, of_a_value_tell_it_once) { expect_all(values, {1, 0, 0}); }
TEST(setters, of_a_range_tell_it_once) { expect_all(ranges, {0, 0, 1}); }

TEST(setters, of_lists_tell_of_each_change) {
  items dropdown;
  viewing view(dropdown);
  dropdown.add(1, 0, 10).add(std::wstring(L"b"), 0, 20);
  EXPECT_EQ(view.calls(), (told{0, 0, 2}));
  dropdown.clear();
  dropdown.clear();
  EXPECT_EQ(view.calls(), (told{0, 0, 3}));
}

// What the host sets it knows already.
const setter_case inputs[] = {
    ZU_CASE(button, press()),
    ZU_CASE(radiobutton, press()),
    ZU_CASE(checkbox, set_checked(false)),
    ZU_CASE(frame, set_checked(false)),
    ZU_CASE(tabs, set_current(1)),
    ZU_CASE(integer_input, set_value(5)),
    ZU_CASE(integer_input, apply()),
    ZU_CASE(floating_input, set_value(0.5)),
    ZU_CASE(slider, set_value(5)),
    ZU_CASE(input, set_text(L"a")),
    ZU_CASE(input, commit()),
    ZU_CASE(multiline_input, set_text(L"a")),
    ZU_CASE(histogram, set_range(0, 5)),
    ZU_CASE(boolean_tool, set_checked(true), 1),
    ZU_CASE(integer_tool, set_value(5), 1),
};
TEST(setters, that_the_host_calls_tell_nobody) { expect_all(inputs, {0, 0, 0}); }

TEST(setters, tell_the_number_to_views_of_numbers) {
  integer_input whole;
  floating_input real;
  viewing whole_view(whole);
  viewing real_view(real);
  whole.assign(7), real.assign(-0.25);
  EXPECT_EQ(whole_view.last(), 7);
  EXPECT_EQ(real_view.last(), -0.25);
}

TEST(setters, tell_nobody_after_the_view_was_taken_away) {
  button b;
  { viewing view(b); }
  b.set_enabled(false);
  EXPECT_FALSE(b.enabled());
}

}  // namespace
}  // namespace zu::toolkit
