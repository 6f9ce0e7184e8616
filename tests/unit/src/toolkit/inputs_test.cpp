#include "src/toolkit/inputs.h"

#include <gtest/gtest.h>

#include "src/toolkit/drawn.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/numbers.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::text;
using tests::told;
using tests::viewing;

TEST(numeric_input, starts_as_a_whole_number_of_any_size) {
  integer_input number;
  EXPECT_EQ(number.value(), 0);
  EXPECT_EQ(number.step(), 1);
  EXPECT_EQ(number.minimum(), -2147483647);
  EXPECT_EQ(number.maximum(), 2147483647);
  EXPECT_TRUE(number.enabled());
  EXPECT_FALSE(number.read_only());
}

TEST(numeric_input, keeps_its_value_when_the_candidate_is_refused) {
  integer_input number;
  number.assign(3);
  int applied = 0;
  number.validate = [&](std::int32_t v) {
    EXPECT_EQ(number.value(), v) << "the candidate stands while it is judged";
    return v % 2 == 1;
  };
  number.on_change = [&](std::int32_t v) { applied = v; };
  EXPECT_FALSE(number.set_value(4));
  EXPECT_EQ(number.value(), 3);
  EXPECT_TRUE(number.set_value(5));
  EXPECT_EQ(number.value(), 5);
  EXPECT_EQ(applied, 0) << "a candidate is no acceptance";
  number.apply();
  EXPECT_EQ(applied, 5);
  number.assign(8);
  EXPECT_EQ(number.value(), 8) << "the program is not judged";
}

TEST(slider_input, the_slider_follows_the_number_and_the_number_the_slider) {
  slider_input<floating_input> both;
  std::vector<double> changes;
  both.on_change = [&](double v) { changes.push_back(v); };
  both.set_range(-1, 1, 0.1);
  EXPECT_EQ(both.slider().maximum(), 20);
  EXPECT_EQ(both.slider().value(), 10);
  EXPECT_EQ(both.slider().tick(), 10);
  EXPECT_EQ(both.slider().page(), 10);

  viewing number(both.input());
  viewing slider(both.slider());
  EXPECT_TRUE(both.input().set_value(0.55));
  EXPECT_EQ(both.slider().value(), 15);
  EXPECT_EQ(slider.last(), 15);
  EXPECT_EQ(number.calls(), told()) << "the host knows what was typed";
  both.input().apply();

  both.slider().set_value(3);
  EXPECT_NEAR(both.value(), -0.7, 1e-12);
  EXPECT_EQ(both.slider().value(), 3);
  EXPECT_EQ(number.calls(), (told{0, 1, 0}));
  both.slider().apply();
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[0], 0.55);
  EXPECT_NEAR(changes[1], -0.7, 1e-12);
}

TEST(slider_input, every_position_of_the_slider_stays_where_it_was_put) {
  for (double minimum : {0.0, -1.0, 1e6}) {
    slider_input<floating_input> both;
    both.set_range(minimum, minimum + 10, 0.1);
    EXPECT_EQ(both.slider().maximum(), 100);
    for (int position = 0; position <= 100; ++position) {
      both.slider().set_value(position);
      EXPECT_EQ(both.slider().value(), position);
    }
  }
}

TEST(slider_input, goes_back_to_the_number_when_that_refuses) {
  slider_input<integer_input> both;
  both.set_range(10, 20, 5);
  both.assign(15);
  both.validate = [](std::int32_t v) { return v < 20; };
  both.slider().set_value(2);
  EXPECT_EQ(both.value(), 15);
  EXPECT_EQ(both.slider().value(), 1);
}

TEST(slider_input, a_number_outside_stands_and_the_slider_at_its_end) {
  slider_input<integer_input> both;
  both.set_range(0, 100, 1);
  both.assign(150);
  EXPECT_EQ(both.value(), 150);
  EXPECT_EQ(both.slider().value(), 100);
  both.assign(-5);
  EXPECT_EQ(both.slider().value(), 0);
  both.set_range(0, 0, 0);
  EXPECT_EQ(both.slider().maximum(), 0);
}

TEST(slider_input, takes_one_cell_by_its_layout_and_a_label_says_value) {
  tests::base_language base;
  labeled_slider<floating_input> labelled;
  EXPECT_EQ(text([&](auto v) { labelled.label().text(v); }), L"Значение");
  EXPECT_TRUE(cast<grid_layout_impl>(handle_of_element(labelled)));
  labelled.set_enabled(false);
  EXPECT_FALSE(labelled.label().enabled());
  EXPECT_FALSE(labelled.input().enabled());
  EXPECT_FALSE(labelled.slider().enabled());
}

TEST(input, keeps_its_text_when_the_candidate_is_refused) {
  input line;
  line.assign(L"abc");
  std::wstring committed;
  line.validate = [](const std::wstring& t) { return t.size() < 5; };
  line.on_commit = [&](const std::wstring& t) { committed = t; };
  EXPECT_FALSE(line.set_text(L"abcde"));
  EXPECT_EQ(line.value(), L"abc");
  EXPECT_TRUE(line.set_text(L"ab"));
  EXPECT_EQ(text([&](auto v) { line.text(v); }), L"ab");
  EXPECT_EQ(committed, L"");
  line.commit();
  EXPECT_EQ(committed, L"ab");
  EXPECT_TRUE(line.set_text(nullptr));
  EXPECT_EQ(line.value(), L"");
  EXPECT_TRUE(cast<text_selection_impl>(line.cursor()));
}

TEST(assisted_input, suggests_in_order_and_takes_any_text) {
  tests::base_language base;
  assisted_input line;
  line.suggest(358).suggest(10107);
  EXPECT_EQ(tests::texts([&](auto v) { line.visit_suggestions(v); }),
            (std::vector<std::wstring>{L"Брать из заголовка трассы", L"Метры"}));
  line.set_suggestions({L"a"});
  EXPECT_EQ(tests::texts([&](auto v) { line.visit_suggestions(v); }),
            std::vector<std::wstring>{L"a"});
  EXPECT_TRUE(line.set_text(L"b"));
}

TEST(multiline_input, replaces_the_marked_part_and_stands_behind_it) {
  multiline_input lines;
  EXPECT_EQ(lines.width(), 20U);
  EXPECT_EQ(lines.lines(), 7U);
  lines.assign(L"one two");
  viewing view(lines);
  auto marked = cast<text_selection_impl>(lines.selection());
  call<&text_selection_impl::select>(marked, 7U, 4U);
  EXPECT_EQ(call<&text_selection_impl::begin>(marked), 4U);
  lines.replace_selection(L"three");
  EXPECT_EQ(lines.value(), L"one three");
  EXPECT_EQ(call<&text_selection_impl::begin>(marked), 9U);
  EXPECT_EQ(call<&text_selection_impl::end>(marked), 9U);
  EXPECT_EQ(view.calls(), (told{1, 0, 0}));
  lines.marked().select(100, 200);
  lines.replace_selection(L"!");
  EXPECT_EQ(lines.value(), L"one three!") << "a mark beyond the end is at the end";
}

TEST(dropdownex, gives_the_value_of_the_item) {
  tests::base_language base;
  dropdownex<double> choice;
  EXPECT_EQ(choice.current(), -1) << "nothing to choose";
  EXPECT_EQ(choice.value(), 0);
  choice.add(55, 0, 0.5).add(std::wstring(L"own"), 0, 2.5);
  EXPECT_EQ(choice.count(), 2U);
  EXPECT_EQ(choice.current(), 0);
  EXPECT_EQ(text([&](auto v) { choice.item_text(0, v); }), L"Значение");
  EXPECT_EQ(text([&](auto v) { choice.item_text(1, v); }), L"own");
  EXPECT_TRUE(tests::texts([&](auto v) { choice.item_text(2, v); }).empty());

  std::vector<double> heard;
  choice.on_change = [&](double v) { heard.push_back(v); };
  choice.set_current(1);
  choice.set_current(1);
  choice.set_current(2);
  choice.set_current(-1);
  EXPECT_EQ(heard, (std::vector<double>{2.5, 2.5})) << "the same again is told too";
  EXPECT_EQ(choice.value(), 2.5);
  choice.assign_value(0.5);
  EXPECT_EQ(choice.current(), 0);
  choice.assign_value(7);
  EXPECT_EQ(choice.current(), -1);
  EXPECT_EQ(heard.size(), 2U);
}

TEST(dropdownex, keeps_its_index_when_filled_anew) {
  dropdownex<int> choice;
  choice.add(1, 0, 10).add(2, 0, 20);
  choice.assign(1);
  choice.clear();
  EXPECT_EQ(choice.current(), -1);
  choice.add(1, 0, 30).add(2, 0, 40);
  EXPECT_EQ(choice.value(), 40);
}

TEST(histogram, tells_of_both_limits_and_shows_bars_if_it_has_them) {
  histogram bars;
  EXPECT_EQ(bars.show(), 1);
  EXPECT_EQ(bars.minimum(), 0);
  EXPECT_EQ(bars.maximum(), 1);
  double from = 0, to = 0;
  bars.on_range = [&](double a, double b) { from = a, to = b; };
  bars.set_range(3, 2);
  EXPECT_EQ(from, 3);
  EXPECT_EQ(to, 2);
  EXPECT_EQ(bars.minimum(), 3);

  struct taker : histogram_data_visitor_impl {
    void visit(const Tzu_histogramm_data*) override { ++visits; }
    int visits = 0;
  } visitor;
  auto ask = [&] {
    bars.visit_histogram(histogram_data_visitor(handle_of<histogram_data_visitor_impl>(visitor)));
    return visitor.visits;
  };
  EXPECT_EQ(ask(), 0);
  viewing view(bars);
  bars.set_bins(reinterpret_cast<const Tzu_histogramm_data*>(&bars));
  EXPECT_EQ(view.calls(), (told{0, 0, 1}));
  EXPECT_EQ(ask(), 1);
}

TEST(canvas, hands_on_the_page_and_the_pointer) {
  canvas picture(30, 20);
  EXPECT_EQ(picture.width(), 30);
  picture.press(pointer_left, {1, 2});
  picture.draw(nullptr);
  std::string heard;
  auto note = [&heard](char c) {
    return [&heard, c](std::uint32_t, point_2d at) { heard += c + std::to_string(int(at.x)); };
  };
  picture.on_hover = note('h'), picture.on_press = note('p'), picture.on_drag = note('d');
  picture.on_release = note('r'), picture.on_double_click = note('2');
  picture.on_draw = [&](Tzu_drwc*) { heard += '#'; };
  picture.hover(0, {1, 0});
  picture.press(0, {2, 0});
  picture.drag(0, {3, 0});
  picture.release(0, {4, 0});
  picture.double_click(0, {5, 0});
  picture.draw(nullptr);
  EXPECT_EQ(heard, "h1p2d3r425#");
}

}  // namespace
}  // namespace zu::toolkit
