#include "src/style/class_dialogs/range_scale_dialog.h"

#include <cmath>
#include <limits>

#include "src/bundle/texts.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/toolkit/dockers.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/style/classes/made_range_scale.h"
#include "tests/unit/src/style/page/shown_tools.h"
#include "tests/unit/src/toolkit/element_tree.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_palettes.h"

namespace {

using namespace zu;
using list = std::vector<double>;

/// The pages of a stack, each as the elements on it.
std::vector<handle> elements_of_page(of<stack_layout_impl> stack, std::uint32_t page) {
  tests::element_taker taker;
  call<&stack_layout_impl::visit_page>(stack, page, taker.visitor());
  std::vector<handle> all;
  if (taker.only()) tests::gather(taker.only(), all);
  return all;
}

class range_scale_dialog : public tests::made_range_scale {
 protected:
  range_scale_dialog() { style::set_equal_intervals(scale_, {4, 0, 8, -1}); }

  /// Statistics with everything, and a histogram.
  void know_all() {
    zu_stat_set_minimum(stat_.get(), -10), zu_stat_set_maximum(stat_.get(), 30);
    zu_stat_set_average(stat_.get(), 5), zu_stat_set_stddev(stat_.get(), 2.5);
    Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat_.get(), nullptr);
    zu_histogramm_set_limits(histogram, 0, 8);
    zu_histogramm_set_params(histogram, 4);
    for (std::uint64_t i = 0; i < 4; ++i) zu_histogramm_set(histogram, i, i == 0 ? 6 : 2);
    zu_stat_set_histogramm(stat_.get(), true);
  }
  void open() {
    dialog_ = std::make_unique<dialog::range_scale>(scale_, stat_.get(), source_, L"Band 1");
    docker_ = std::make_unique<toolkit::detail::dialog_docker<dialog::range_scale>>(*dialog_);
    shown_ = tests::elements_of(handle_of<docker_impl>(*docker_));
    stack_ = tests::find<stack_layout_impl>(shown_);
    method_ = tests::find<dropdown_impl>(shown_);
  }
  void use_opener() { source_.opener = &zu_datasource_open, source_.name = L"/nowhere.tif"; }
  std::uint32_t page() { return call<&stack_layout_impl::current>(stack_); }
  std::vector<handle> on_page(std::uint32_t number) { return elements_of_page(stack_, number); }
  of<integer_input_impl> count(std::uint32_t page) {
    return tests::find<integer_input_impl>(on_page(page));
  }
  of<floating_input_impl> number(std::uint32_t page, int n) {
    return tests::find<floating_input_impl>(on_page(page), n);
  }
  static double value(of<floating_input_impl> input) {
    return call<&floating_input_impl::value>(input);
  }
  /// As a person types and leaves the field.
  static bool type(of<floating_input_impl> input, double value) {
    bool taken = call<&floating_input_impl::set_value>(input, value);
    call<&floating_input_impl::apply>(input);
    return taken;
  }
  static bool type(of<integer_input_impl> input, std::int32_t value) {
    bool taken = call<&integer_input_impl::set_value>(input, value);
    call<&integer_input_impl::apply>(input);
    return taken;
  }
  static std::int32_t count_of(of<integer_input_impl> input) {
    return call<&integer_input_impl::value>(input);
  }
  void choose_type(std::int32_t type) {
    zu_rng_scale_set_rng_type(scale_, type);
    open();
  }
  bool accept() { return call<&button_box_impl::press>(tests::find<button_box_impl>(shown_), 0); }
  std::vector<std::wstring> methods() {
    std::vector<std::wstring> all;
    for (std::uint32_t i = 0; i < call<&dropdown_impl::count>(method_); ++i)
      all.push_back(
          tests::text([&](string_visitor v) { call<&dropdown_impl::item_text>(method_, i, v); }));
    return all;
  }

  owned<zu_stat_destroy> stat_{zu_stat_create()};
  data::open_reference source_;
  std::unique_ptr<dialog::range_scale> dialog_;
  std::unique_ptr<toolkit::detail::dialog_docker<dialog::range_scale>> docker_;
  std::vector<handle> shown_;
  of<stack_layout_impl> stack_;
  of<dropdown_impl> method_;
};

TEST_F(range_scale_dialog, offers_methods_that_need_data_only_with_an_opener) {
  open();
  EXPECT_EQ(methods().size(), 4u);
  use_opener();
  open();
  ASSERT_EQ(methods().size(), 6u);
  EXPECT_EQ(methods()[1], load_text(10421)) << "natural breaks stand second";
  EXPECT_EQ(methods()[2], load_text(10419));
}

TEST_F(range_scale_dialog, opens_a_quantile_scale_on_its_page_with_no_method_chosen) {
  know_all();
  choose_type(zu_range_quantile);
  EXPECT_EQ(page(), 3u);
  EXPECT_EQ(call<&dropdown_impl::current>(method_), -1);
  type(count(3), 2);
  EXPECT_TRUE(accept());
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_quantile);
  EXPECT_EQ(cuts(), (list{2})) << "12 values, 6 of them below 2";
}

TEST_F(range_scale_dialog, without_a_histogram_leaves_a_quantile_scale_alone) {
  list before = boundaries();
  choose_type(zu_range_quantile);
  type(count(3), 2);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), before);
}

TEST_F(range_scale_dialog, shows_statistics_with_six_decimals_and_zero_where_there_are_none) {
  know_all();
  open();
  list expected{-10, 30, 5, 2.5};
  for (int i = 0; i < 4; ++i) {
    auto output = tests::find<floating_output_impl>(shown_, i);
    EXPECT_EQ(call<&floating_output_impl::value>(output), expected[static_cast<std::size_t>(i)]);
    EXPECT_EQ(call<&floating_output_impl::decimals>(output), 6u);
  }
  stat_.reset(zu_stat_create());
  zu_stat_set_minimum(stat_.get(), 7);
  open();
  EXPECT_EQ(call<&floating_output_impl::value>(tests::find<floating_output_impl>(shown_, 0)), 7);
  EXPECT_EQ(call<&floating_output_impl::value>(tests::find<floating_output_impl>(shown_, 1)), 0);
}

TEST_F(range_scale_dialog, says_that_there_are_no_statistics) {
  auto says_so = [&] {
    for (handle element : shown_)
      if (auto label = cast<label_impl>(element); label && tests::text([&](string_visitor v) {
                                                             call<&label_impl::text>(label, v);
                                                           }) == load_text(10439))
        return true;
    return false;
  };
  open();
  EXPECT_TRUE(says_so());
  know_all();
  open();
  EXPECT_FALSE(says_so());
}

TEST_F(range_scale_dialog, begins_with_what_the_scale_holds) {
  know_all();
  open();
  EXPECT_EQ(page(), 0u);
  EXPECT_EQ(count_of(count(0)), 4);
  EXPECT_EQ(value(number(0, 0)), 2) << "the step";
  EXPECT_EQ(value(number(0, 1)), 0);
  EXPECT_EQ(value(number(0, 2)), 8);
  EXPECT_EQ(count_of(count(5)), 4) << "each page";
  EXPECT_EQ(call<&dropdown_impl::current>(tests::find<dropdown_impl>(on_page(0))), 9) << "0.d";
  zu_rng_scale_set_size(scale_, 0);
  open();
  EXPECT_EQ(count_of(count(0)), 0);
  EXPECT_EQ(value(number(0, 1)), -10) << "the field's, of a scale without classes";
  EXPECT_EQ(value(number(0, 2)), 30);
}

TEST_F(range_scale_dialog, ties_count_step_and_limits) {
  open();
  type(count(0), 16);
  EXPECT_EQ(value(number(0, 0)), 0.5);
  type(number(0, 0), 3);
  EXPECT_EQ(count_of(count(0)), 3) << "8 / 3, upwards";
  type(number(0, 2), 9);
  EXPECT_EQ(value(number(0, 0)), 3);
  type(number(0, 1), 6);
  EXPECT_EQ(value(number(0, 0)), 1);
  type(number(0, 0), -1);
  EXPECT_EQ(count_of(count(0)), 3) << "the sign of a step does not matter";
}

TEST_F(range_scale_dialog, refuses_a_step_of_zero) {
  open();
  EXPECT_FALSE(type(number(0, 0), 0));
  EXPECT_EQ(value(number(0, 0)), 2);
  EXPECT_EQ(count_of(count(0)), 4);
}

TEST_F(range_scale_dialog, with_no_classes_between_equal_limits_has_a_step_that_is_no_number) {
  open();
  type(number(0, 2), 0);
  type(count(0), 0);
  EXPECT_TRUE(std::isnan(value(number(0, 0))));
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0, 0, 0}));
}

TEST_F(range_scale_dialog, does_not_swap_limits_of_equal_intervals) {
  open();
  type(number(0, 1), 8);
  type(number(0, 2), 0);
  type(count(0), 2);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{8, 8, 4, 4, 0, 0}));
}

TEST_F(range_scale_dialog, changes_nothing_before_it_is_accepted) {
  use_opener();
  list before = boundaries();
  open();
  type(count(0), 7);
  call<&dropdown_impl::set_current>(method_, 4);
  EXPECT_EQ(page(), 5u);
  EXPECT_EQ(boundaries(), before);
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_equal);
}

TEST_F(range_scale_dialog, builds_by_the_method_that_was_chosen) {
  use_opener();
  know_all();
  open();
  call<&dropdown_impl::set_current>(method_, 2);
  EXPECT_EQ(page(), 1u);
  type(count(1), 2);
  auto coefficient = tests::find<dropdown_impl>(on_page(1));
  EXPECT_EQ(call<&dropdown_impl::current>(coefficient), 1) << "1, as the scale has it";
  call<&dropdown_impl::set_current>(coefficient, 2);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0, 5, 5, 10, 10}));
  EXPECT_EQ(zu_rng_scale_get_deviation_coeff(scale_), 2);
}

TEST_F(range_scale_dialog, keeps_a_coefficient_that_it_does_not_offer) {
  use_opener();
  know_all();
  zu_rng_scale_set_deviation_coeff(scale_, 1.5);
  choose_type(zu_range_deviation);
  EXPECT_EQ(call<&dropdown_impl::current>(tests::find<dropdown_impl>(on_page(1))), -1);
  EXPECT_TRUE(accept());
  EXPECT_EQ(zu_rng_scale_get_deviation_coeff(scale_), 1.5);
}

TEST_F(range_scale_dialog, without_statistics_has_deviation_classes_of_equal_boundaries) {
  use_opener();
  choose_type(zu_range_deviation);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(range_scale_dialog, counts_logarithmic_classes_as_they_are_chosen) {
  know_all();
  choose_type(zu_range_logarithmic);
  auto elements = on_page(2);
  auto start = tests::find<dropdown_impl>(elements, 0);
  auto power = tests::find<dropdown_impl>(elements, 1);
  auto two_sided = tests::find<checkbox_impl>(elements);
  auto count = tests::find<integer_output_impl>(elements);
  call<&dropdown_impl::set_current>(power, 10);  // "d": 1, 2, 5, 10, 20, 50 and 0
  EXPECT_EQ(call<&integer_output_impl::value>(count), 6);
  call<&dropdown_impl::set_current>(start, 2);  // 5, 10, 20, 50 and 0
  EXPECT_EQ(call<&integer_output_impl::value>(count), 4);
  call<&checkbox_impl::set_checked>(two_sided, true);  // -10, -5, 5, 10, 20, 50
  EXPECT_EQ(call<&integer_output_impl::value>(count), 5);
  EXPECT_TRUE(accept());
  EXPECT_EQ(cuts(), (list{-5, 5, 10, 20}));
  EXPECT_EQ(zu_rng_scale_get_round_digits(scale_), 0);
  open();
  EXPECT_EQ(call<&dropdown_impl::current>(tests::find<dropdown_impl>(on_page(2), 0)), 2);
  EXPECT_TRUE(call<&checkbox_impl::is_checked>(tests::find<checkbox_impl>(on_page(2))));
}

TEST_F(range_scale_dialog, builds_the_natural_breaks_that_it_shows) {
  tests::made_grid grid("range_dialog.tif", 100, 80, GDT_Float64, 1);
  list cells(8000);
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = std::sqrt(static_cast<double>(i)) / 10;
  grid.values(1, cells);
  source_.name = grid.close();
  source_.opener = &zu_datasource_open;
  zu_rng_scale_set_round_digits(scale_, -5);
  open();
  call<&dropdown_impl::set_current>(method_, 1);
  EXPECT_EQ(page(), 4u);
  EXPECT_TRUE(accept());
  list first = cuts();
  EXPECT_EQ(first.size(), 3u);
  EXPECT_TRUE(accept());
  EXPECT_EQ(cuts(), first) << "of the one sample";
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_natural);
}

TEST_F(range_scale_dialog, shows_digits_that_it_does_not_offer_as_two_decimals) {
  zu_rng_scale_set_round_digits(scale_, 30);
  open();
  auto digits = tests::find<dropdown_impl>(on_page(0));
  EXPECT_EQ(call<&dropdown_impl::count>(digits), 21u);
  EXPECT_EQ(call<&dropdown_impl::current>(digits), 8);
  auto text = [&](std::uint32_t i) {
    return tests::text([&](string_visitor v) { call<&dropdown_impl::item_text>(digits, i, v); });
  };
  EXPECT_EQ(text(0), L"0.dddddddddd");
  EXPECT_EQ(text(8), L"0.dd");
  EXPECT_EQ(text(10), L"d");
  EXPECT_EQ(text(20), L"ddddddddddd");
  EXPECT_TRUE(accept());
  EXPECT_EQ(zu_rng_scale_get_round_digits(scale_), -2);
}

TEST_F(range_scale_dialog, takes_classes_that_a_person_writes) {
  choose_type(zu_range_manual);
  auto elements = on_page(6);
  auto table = tests::find<outline_impl>(elements);
  EXPECT_EQ(call<&outline_impl::item_count>(table, outline_item()), 4u);
  struct taker final : outline_column_visitor_impl {
    void visit(handle given) override { column = given; }
    handle column;
  } taken;
  auto visitor = outline_column_visitor(handle_of<outline_column_visitor_impl>(taken));
  call<&outline_impl::visit_column>(table, 1u, visitor);
  auto maximum = cast<floating_outline_column_impl>(taken.column);
  toolkit::outline_table_item_index last(3);
  EXPECT_EQ(call<&floating_outline_column_impl::value>(maximum, last.item()), 8);
  EXPECT_TRUE(call<&floating_outline_column_impl::set_value>(maximum, last.item(), 12.0));
  toolkit::outline_table_item_index first(0);
  call<&outline_impl::set_current>(table, first.item());
  auto remove = tests::find<button_impl>(elements, 1);
  EXPECT_TRUE(call<&button_impl::enabled>(remove));
  call<&button_impl::press>(remove);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{2, 2, 4, 4, 6, 6, 12, 12}));
}

TEST_F(range_scale_dialog, adds_a_class_behind_the_current_one) {
  know_all();
  style::set_manual(scale_, {{0, 2}, {6, 8}}, zu_no_rounding);
  open();
  auto elements = on_page(6);
  toolkit::outline_table_item_index first(0);
  call<&outline_impl::set_current>(tests::find<outline_impl>(elements), first.item());
  auto add = tests::find<button_impl>(elements, 0);
  call<&button_impl::press>(add);
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0, 2, 2, 6, 6, 8, 8}));
}

TEST_F(range_scale_dialog, without_rows_leaves_tails_that_meet_at_zero) {
  style::set_manual(scale_, {}, zu_no_rounding);
  open();
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0}));
}

TEST_F(range_scale_dialog, takes_what_a_person_does_in_the_preview_as_classes_of_their_own) {
  know_all();
  zu_rng_scale_set_round_digits(scale_, 0);
  open();
  tests::tool_set_taker taker;
  call<&toolbar_impl::visit>(tests::find<toolbar_impl>(shown_), taker.visitor());
  auto count = cast<integer_tool_impl>(
      tests::tool_named(taker.sets, L"zuk_histogramm_element_bounds_count_tool"));
  EXPECT_EQ(call<&integer_tool_impl::value>(count), 4) << "what the scale has";
  EXPECT_TRUE(call<&integer_tool_impl::set_value>(count, 2));
  EXPECT_EQ(page(), 6u) << "the classes are the person's own now";
  EXPECT_EQ(call<&dropdown_impl::current>(method_), 3);
  EXPECT_EQ(zu_rng_scale_get_size(scale_), 4u) << "not before it is accepted";
  EXPECT_TRUE(accept());
  EXPECT_EQ(boundaries(), (list{0, 0, 4, 4, 8, 8}));
}

TEST_F(range_scale_dialog, shows_in_the_preview_what_would_be_built) {
  know_all();
  open();
  tests::tool_set_taker taker;
  call<&toolbar_impl::visit>(tests::find<toolbar_impl>(shown_), taker.visitor());
  auto count_tool = cast<integer_tool_impl>(
      tests::tool_named(taker.sets, L"zuk_histogramm_element_bounds_count_tool"));
  type(count(0), 7);
  EXPECT_EQ(call<&integer_tool_impl::value>(count_tool), 7);
  call<&dropdown_impl::set_current>(method_, 1);
  EXPECT_EQ(call<&integer_tool_impl::value>(count_tool), 9) << "0.1 to 50, and 0";
}

TEST_F(range_scale_dialog, asks_for_the_number_of_classes_in_one_place) {
  know_all();
  open();
  tests::tool_set_taker taker;
  call<&toolbar_impl::visit>(tests::find<toolbar_impl>(shown_), taker.visitor());
  auto count_tool = cast<integer_tool_impl>(
      tests::tool_named(taker.sets, L"zuk_histogramm_element_bounds_count_tool"));
  for (int method : {0, 1, 2}) {
    call<&dropdown_impl::set_current>(method_, method);
    EXPECT_FALSE(call<&integer_tool_impl::visible>(count_tool))
        << "the page has a number: " << method;
  }
  call<&dropdown_impl::set_current>(method_, 3);
  EXPECT_TRUE(call<&integer_tool_impl::visible>(count_tool)) << "the table of boundaries has none";
}

/// Colours of the rows, from tail to tail.
class range_scale_colors : public range_scale_dialog {
 protected:
  using colors = std::vector<std::uint32_t>;

  static Tzu_stl_prm* style_in(Tzu_rng_scale* scale, std::size_t row) {
    std::uint64_t size = zu_rng_scale_get_size(scale);
    Tzu_scale_prm* of = row == 0      ? zu_rng_scale_get_min_prm_ptr(scale)
                        : row <= size ? zu_rng_scale_get_scale_prm_ptr(scale, row - 1)
                                      : zu_rng_scale_get_max_prm_ptr(scale);
    return zu_scale_prm_get_stl_prm_ptr(of);
  }
  Tzu_stl_prm* style(std::size_t row) { return style_in(scale_, row); }
  static std::uint32_t number(Tzu_color c) { return (c.r * 256u + c.g) * 256u + c.b; }
  static Tzu_color color(std::uint32_t rgb, std::uint8_t a = 0) {
    return {static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
            static_cast<std::uint8_t>(rgb), a};
  }
  static colors of(Tzu_rng_scale* scale) {
    colors all;
    for (std::size_t i = 0; i < zu_rng_scale_get_size(scale) + 2; ++i)
      all.push_back(number(zu_stl_prm_get_color(style_in(scale, i), 0)));
    return all;
  }
  colors shown() { return of(scale_); }
  void paint(const colors& with) {
    ASSERT_EQ(with.size(), zu_rng_scale_get_size(scale_) + 2);
    for (std::size_t i = 0; i < with.size(); ++i)
      zu_stl_prm_clr_set_all(style(i), color(with[i]), 0);
  }
  static colors array(const char* name, std::size_t count, std::int32_t flag) {
    std::vector<Tzu_color> made(count);
    EXPECT_TRUE(zu_clr_arrays_generate_ex(zu_clr_arrays_find(name), count, made.data(), flag));
    colors all;
    for (Tzu_color c : made) all.push_back(number(c));
    return all;
  }
  void build(std::int32_t classes) {
    open();
    type(count(0), classes);
    EXPECT_TRUE(accept());
  }
};

TEST_F(range_scale_colors, fewer_or_more_classes_show_the_whole_array) {
  for (const char* name : {"blue_white_red", "rainbow", "height_depth"}) {
    build(10);
    paint(array(name, 12, 0));
    for (std::int32_t classes : {3, 7, 10, 1}) {
      build(classes);
      EXPECT_EQ(shown(), array(name, static_cast<std::size_t>(classes) + 2, 0))
          << name << ' ' << classes;
    }
  }
}

TEST_F(range_scale_colors, are_in_the_preview_what_they_will_be) {
  build(10);
  paint(array("rainbow", 12, 0));
  open();
  for (std::int32_t classes : {4, 10, 6}) {
    type(count(0), classes);
    EXPECT_EQ(of(dialog_->trial()), array("rainbow", static_cast<std::size_t>(classes) + 2, 0));
  }
  EXPECT_EQ(shown().size(), 12u) << "not before it is accepted";
  EXPECT_TRUE(accept());
  EXPECT_EQ(shown(), array("rainbow", 8, 0));
}

TEST_F(range_scale_colors, an_array_in_turn_goes_on_in_turn) {
  build(3);
  paint(array("mineral", 5, 1));
  build(14);
  EXPECT_EQ(shown(), array("mineral", 16, 1));
}

TEST_F(range_scale_colors, the_same_number_of_classes_leaves_colours_alone) {
  colors odd{0xff0000, 0x00ff00, 0x123456, 0x0000ff, 0, 0xffffff};
  paint(odd);
  zu_rng_scale_set_max_value(scale_, 9);
  build(4);
  EXPECT_EQ(shown(), odd);
}

TEST_F(range_scale_colors, colours_of_a_persons_own_run_from_the_first_to_the_last) {
  build(1);
  paint({0x102030, 0x80ff00, 0xc0b0a0});
  build(3);
  colors after = shown();
  ASSERT_EQ(after.size(), 5u);
  EXPECT_EQ(after[0], 0x102030u);
  EXPECT_EQ(after[2], 0x80ff00u) << "the middle";
  EXPECT_EQ(after[4], 0xc0b0a0u);
  EXPECT_NE(after[1], after[0]);
  EXPECT_NE(after[1], after[2]) << "between them";
}

TEST_F(range_scale_colors, transparencies_run_along) {
  build(3);
  for (std::size_t i = 0; i < 5; ++i)
    zu_stl_prm_clr_set_all(style(i), color(0x808080, static_cast<std::uint8_t>(i * 40)), 0);
  build(1);
  EXPECT_EQ(zu_stl_prm_get_color(style(0), 0).a, 0);
  EXPECT_EQ(zu_stl_prm_get_color(style(1), 0).a, 80) << "the middle's";
  EXPECT_EQ(zu_stl_prm_get_color(style(2), 0).a, 160);
}

TEST_F(range_scale_colors, the_first_classes_of_a_scale_get_the_colours_of_a_filled_one) {
  zu_rng_scale_set_size(scale_, 0);
  build(5);
  EXPECT_EQ(shown(), array("blue_white_red", 7, 0));
}

TEST_F(range_scale_dialog, is_not_run_without_a_host_or_without_the_field) {
  EXPECT_FALSE(style::run_range_scale_dialog(scale_, stat_.get(), source_, L"z"));
  EXPECT_FALSE(style::run_range_scale_dialog(nullptr, stat_.get(), source_, L"z"));
  use_opener();
  EXPECT_FALSE(style::run_range_scale_dialog(scale_, source_, L"z"));
}

}  // namespace
