#include "src/style/scale_model.h"

#include <set>

#include "src/style/classes/builders.h"
#include "tests/unit/src/style/made_scale.h"
#include "zu/platform/zuk_msgs.h"

namespace {

using namespace tests;

template <class model_type> struct scale_models : made_scale<model_type> {};
TYPED_TEST_SUITE(scale_models, all_models);

TYPED_TEST(scale_models, rows_are_the_entries_and_the_two_tails_of_a_range_scale) {
  auto& m = this->m;
  const std::int64_t tails = 2 * TestFixture::traits::first_entry;
  EXPECT_EQ(m.row_count(), tails);
  this->set_size(3);
  EXPECT_EQ(m.row_count(), 3 + tails);
  EXPECT_EQ(m.get_style_prm(-1), nullptr);
  EXPECT_EQ(m.get_style_prm(3 + tails), nullptr);
  std::set<Tzu_stl_prm*> distinct;
  for (std::int64_t row = 0; row < m.row_count(); ++row) distinct.insert(m.get_style_prm(row));
  EXPECT_EQ(distinct.size(), 3u + tails);
  EXPECT_EQ(distinct.count(nullptr), 0u);
}

TYPED_TEST(scale_models, a_row_has_a_style_that_draws_and_one_for_selected_objects) {
  auto& m = this->m;
  this->set_size(1);
  EXPECT_NE(m.get_style(0, primary), nullptr);
  EXPECT_NE(m.get_style(0, primary), m.get_style(0, selection));
  EXPECT_EQ(m.get_style(0, 7), m.get_style(0, primary));
  EXPECT_EQ(m.get_style(99, primary), nullptr);
}

TYPED_TEST(scale_models, without_a_manager_nothing_happens_and_nobody_is_told) {
  auto& m = this->m;
  m.mngr = nullptr;
  EXPECT_EQ(m.scale(), nullptr);
  EXPECT_EQ(m.row_count(), 0);
  EXPECT_EQ(m.get_style_prm(0), nullptr);
  EXPECT_EQ(m.get_style(0, primary), nullptr);
  EXPECT_FALSE(m.get_visible(0));
  EXPECT_FALSE(m.several_marked());
  EXPECT_FALSE(m.is_marked(0));
  m.set_visible(0, false);
  m.set_marked(0, true);
  m.set_visible_marked(false);
  m.show_all(false);
  m.flip_visible();
  m.assign_marked_style(nullptr, primary);
  m.edit_style(0, primary);
  m.edit_style_for_marked(0, primary);
  EXPECT_EQ(m.get_value(0), L"");
  EXPECT_EQ(m.get_caption(0), L"");
  EXPECT_EQ(m.get_row_text(0), L"");
  EXPECT_EQ(m.get_min(0), L"");
  EXPECT_EQ(m.get_max(0), L"");
  m.set_value(0, L"1");
  m.set_caption(0, L"1");
  m.set_min(0, L"1");
  m.set_max(0, L"1");
  EXPECT_EQ(m.append(), -1);
  m.remove_marked();
  m.move_marked(0);
  EXPECT_EQ(m.active_row(), -1);
  m.set_active_row(1);
  EXPECT_EQ(m.other_prm(), nullptr);
  EXPECT_EQ(m.get_other_caption(), L"");
  m.set_other_caption(L"1");
  EXPECT_EQ(m.field(), L"");
  m.set_field(L"z");
  EXPECT_EQ(this->told, 0);
}

TYPED_TEST(scale_models, marked_rows_are_several_from_two_on) {
  auto& m = this->m;
  this->set_size(3);
  EXPECT_FALSE(m.several_marked());
  std::int64_t last = m.row_count() - 1;
  for (std::int64_t row = 0; row <= last; ++row) {
    this->mark({row});
    EXPECT_TRUE(m.is_marked(row));
    EXPECT_FALSE(m.several_marked());
  }
  this->mark({0, last});
  EXPECT_TRUE(m.several_marked());
  EXPECT_FALSE(m.is_marked(1));
  EXPECT_FALSE(m.is_marked(-1));
  EXPECT_FALSE(m.is_marked(last + 1));
  m.set_marked(last + 1, true);
  m.set_marked(-1, true);
  EXPECT_EQ(this->told, 0);
}

TYPED_TEST(scale_models, visibility_is_of_all_rows_unless_several_are_marked) {
  auto& m = this->m;
  this->set_size(3);
  std::int64_t last = m.row_count() - 1;
  this->mark({1});
  m.show_all(false);
  EXPECT_EQ(this->visible(), std::vector<bool>(last + 1, false));
  this->mark({0, last});
  m.show_all(true);
  std::vector<bool> ends(last + 1, false);
  ends.front() = ends.back() = true;
  EXPECT_EQ(this->visible(), ends);
  m.flip_visible();
  EXPECT_EQ(this->visible(), std::vector<bool>(last + 1, false));
  this->mark({});
  m.set_visible(0, true);
  EXPECT_EQ(this->told, 3);
  m.flip_visible();
  std::vector<bool> all_but_first(last + 1, true);
  all_but_first.front() = false;
  EXPECT_EQ(this->visible(), all_but_first);
  EXPECT_EQ(this->told, 4);
}

TYPED_TEST(scale_models, visibility_of_marked_rows_is_told_also_where_there_are_none) {
  auto& m = this->m;
  this->set_size(2);
  m.set_visible_marked(false);
  EXPECT_EQ(this->visible(), std::vector<bool>(m.row_count(), true));
  EXPECT_EQ(this->told, 1);
  this->mark({1});
  m.set_visible_marked(false);
  EXPECT_FALSE(m.get_visible(1));
  EXPECT_TRUE(m.get_visible(0));
  this->set_size(0);
  m.set_visible_marked(true);
  m.show_all(false);
  m.flip_visible();
  EXPECT_EQ(this->told, 5);
}

TYPED_TEST(scale_models, a_style_goes_to_every_marked_row) {
  auto& m = this->m;
  this->set_size(3);
  this->paint();
  std::int64_t last = m.row_count() - 1;
  zu::owned<zu_stl_prm_destroy> green(zu_stl_prm_clone(m.get_style_prm(0)));
  zu_stl_prm_clr_set_all(green.get(), {0, 200, 0, 0}, 0);
  this->mark({0, last});
  m.assign_marked_style(green.get(), primary);
  EXPECT_EQ(this->color(0)[1], 200);
  EXPECT_EQ(this->color(last)[1], 200);
  EXPECT_EQ(this->color(1), this->numbers(this->painted(1)));
  Tzu_color selected = zu_stl_prm_get_color(m.get_style_prm(0), 1);
  EXPECT_NE(selected.g, 200);
}

TYPED_TEST(scale_models, captions_are_of_each_row_and_of_what_no_row_holds) {
  auto& m = this->m;
  this->set_size(2);
  this->paint();
  for (std::int64_t row = 0; row < m.row_count(); ++row)
    EXPECT_EQ(m.get_caption(row), L"row " + std::to_wstring(row));
  m.set_other_caption(L"the rest");
  EXPECT_EQ(m.get_other_caption(), L"the rest");
  EXPECT_NE(m.other_prm(), nullptr);
  m.set_caption(-1, L"none");
  EXPECT_EQ(m.get_caption(-1), L"");
  EXPECT_EQ(m.get_caption(0), L"row 0");
  EXPECT_EQ(this->told, 0);
}

TYPED_TEST(scale_models, no_current_row_is_stored_as_the_first) {
  auto& m = this->m;
  this->set_size(5);
  EXPECT_EQ(m.active_row(), -1);
  m.set_active_row(4);
  EXPECT_EQ(m.active_row(), 4);
  m.set_active_row(-1);
  EXPECT_EQ(m.active_row(), 0);
}

TYPED_TEST(scale_models, marked_entries_are_removed_and_tails_stay) {
  auto& m = this->m;
  this->set_size(3);
  this->paint();
  std::vector<std::int64_t> all;
  for (std::int64_t row = 0; row < m.row_count(); ++row)
    if (row != 2) all.push_back(row);
  this->mark(all);
  m.remove_marked();
  std::int64_t tails = 2 * TestFixture::traits::first_entry;
  ASSERT_EQ(m.row_count(), 1 + tails);
  EXPECT_EQ(m.get_caption(TestFixture::traits::first_entry), L"row 2");
  EXPECT_EQ(this->told, 1);
}

TYPED_TEST(scale_models, the_field_is_that_of_the_scale_and_rules_have_none) {
  auto& m = this->m;
  m.set_field(L"z");
  bool has_field = std::wstring(TestFixture::traits::name) != L"rule_scale";
  EXPECT_EQ(m.field(), has_field ? L"z" : L"");
}

TYPED_TEST(scale_models, a_handler_may_end_its_own_connection) {
  auto& m = this->m;
  this->set_size(1);
  zu::events::connection once;
  int times = 0;
  once = m.changed.connect([&] {
    ++times;
    once.reset();
  });
  m.show_all(true);
  m.show_all(true);
  EXPECT_EQ(times, 1);
  EXPECT_EQ(this->told, 2);
}

TEST(scale_model, tool_names_begin_with_the_kind_of_model_and_the_type_of_layer) {
  std::set<std::wstring> prefixes;
  auto add = [&](auto m) {
    m->context = L"grid_layer2d";
    prefixes.insert(m->tool_prefix());
  };
  add(std::make_unique<color_values>());
  add(std::make_unique<color_ranges>());
  add(std::make_unique<color_rules>());
  add(std::make_unique<point_values>());
  add(std::make_unique<line_values>());
  add(std::make_unique<line_values>());
  EXPECT_EQ(prefixes.size(), 5u);
  EXPECT_EQ(prefixes.count(L"zu::style::scale_model<zu::style::color_style_traits, "
                           L"zu::style::range_scale_traits>_grid_layer2d"),
            1u);
}

// --- Value and rule scales

template <class model_type> struct text_scales : made_scale<model_type> {};
using text_models = testing::Types<color_values, color_rules, point_values, line_rules>;
TYPED_TEST_SUITE(text_scales, text_models);

TYPED_TEST(text_scales, a_row_is_added_after_the_active_one_else_at_the_end) {
  auto& m = this->m;
  this->set_size(3);
  this->paint();
  EXPECT_EQ(m.append(), 3);  // no active row
  m.set_active_row(0);
  EXPECT_EQ(m.append(), 1);
  m.set_active_row(5);  // a stale one
  EXPECT_EQ(m.append(), 5);
  EXPECT_EQ(this->captions(),
            (std::vector<std::wstring>{L"row 0", L"", L"row 1", L"row 2", L"", L""}));
  EXPECT_EQ(this->told, 3);
}

TYPED_TEST(text_scales, marked_rows_move_before_a_row_or_to_the_end) {
  auto& m = this->m;
  this->set_size(4);
  this->paint();
  this->mark({0, 1});
  m.move_marked(3);
  EXPECT_EQ(this->captions(), (std::vector<std::wstring>{L"row 2", L"row 0", L"row 1", L"row 3"}));
  m.move_marked(4);
  EXPECT_EQ(this->captions(), (std::vector<std::wstring>{L"row 2", L"row 3", L"row 0", L"row 1"}));
  m.move_marked(5);
  m.move_marked(-1);
  EXPECT_EQ(this->captions(), (std::vector<std::wstring>{L"row 2", L"row 3", L"row 0", L"row 1"}));
  m.move_marked(0);
  EXPECT_EQ(this->captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2", L"row 3"}));
  EXPECT_EQ(this->told, 5);
}

TYPED_TEST(text_scales, a_row_reads_as_value_and_caption) {
  auto& m = this->m;
  this->set_size(1);
  m.set_value(0, L"12.5");
  m.set_caption(0, L"tuff");
  EXPECT_EQ(m.get_value(0), L"12.5");
  EXPECT_EQ(m.get_row_text(0), L"12.5 : tuff");
  EXPECT_EQ(m.get_min(0), L"");
  EXPECT_EQ(m.get_max(0), L"");
  m.set_min(0, L"1");
  m.set_max(0, L"1");
  EXPECT_EQ(m.get_value(0), L"12.5");
}

using rules = made_scale<color_rules>;
TEST_F(rules, are_shown_as_people_read_them) {
  set_size(2);
  m.set_value(0, L"and \"z\" less number \"5\"; or \"z\" greater number \"9\"");
  m.set_caption(0, L"outside");
  m.set_value(1, L"z is high");
  EXPECT_EQ(m.get_value(0), L"z < 5 or z > 9");
  EXPECT_EQ(m.get_row_text(0), L"z < 5 or z > 9 : outside");
  EXPECT_EQ(m.get_stored_value(0), L"and \"z\" less number \"5\"; or \"z\" greater number \"9\"");
  EXPECT_EQ(m.get_value(1), L"z is high");
}

// --- Styles that a person edits

struct asked_color {
  bool accepts = true;
  int times = 0;
  asked_color() {
    Tzu_asking_hooks hooks = {};
    hooks.color = [](Tzu_color* color, void* user) {
      auto* self = static_cast<asked_color*>(user);
      ++self->times;
      if (self->accepts) *color = {1, 2, 3, 4};
      return self->accepts;
    };
    hooks.user = this;
    zu_set_asking_hooks(&hooks);
  }
  ~asked_color() { zu_set_asking_hooks(nullptr); }
};

using ranges = made_scale<color_ranges>;
TEST_F(ranges, a_colour_is_edited_in_its_row) {
  asked_color person;
  set_size(1);
  paint();
  m.edit_style(2, selection);
  EXPECT_EQ(numbers(*m.get_style(2, selection)), (rgba{1, 2, 3, 4}));
  EXPECT_EQ(numbers(*m.get_style(2, primary)), numbers(painted(2)));
  m.edit_style(3, primary);  // no row
  EXPECT_EQ(person.times, 1);
  EXPECT_EQ(told, 1);
  person.accepts = false;
  m.edit_style(0, primary);
  EXPECT_EQ(numbers(*m.get_style(0, primary)), numbers(painted(0)));
  EXPECT_EQ(told, 1);
}

TEST_F(ranges, a_colour_for_marked_rows_is_edited_on_a_copy) {
  asked_color person;
  set_size(2);
  paint();
  mark({0, 3});
  person.accepts = false;
  m.edit_style_for_marked(1, primary);
  EXPECT_EQ(reds(), (std::vector<int>{0, 10, 20, 30}));
  EXPECT_EQ(told, 0);
  person.accepts = true;
  m.edit_style_for_marked(1, primary);
  EXPECT_EQ(color(0), (rgba{1, 2, 3, 4}));
  EXPECT_EQ(color(1), numbers(painted(1)));  // clicked, but not marked
  EXPECT_EQ(color(2), numbers(painted(2)));
  EXPECT_EQ(color(3), (rgba{1, 2, 3, 4}));
  EXPECT_EQ(told, 1);
}

// --- Range scales

TEST_F(ranges, an_empty_scale_has_two_rows) {
  EXPECT_EQ(m.row_count(), 2);
  EXPECT_EQ(m.get_min(0), L"-∞");
  EXPECT_EQ(m.get_max(0), L"0");
  EXPECT_EQ(m.get_min(1), L"0");
  EXPECT_EQ(m.get_max(1), L"+∞");
}

struct range_cells : ranges {
  range_cells() {
    set_size(2);
    zu_rng_scale_set_min_value(m.scale(), 10);
    zu_rng_scale_set_min(m.scale(), 0, 10);
    zu_rng_scale_set_max(m.scale(), 0, 20);
    zu_rng_scale_set_min(m.scale(), 1, 20);
    zu_rng_scale_set_max(m.scale(), 1, 30);
    zu_rng_scale_set_max_value(m.scale(), 30);
    zu_rng_scale_set_round_digits(m.scale(), -1);
  }
  std::vector<std::wstring> cells() const {
    std::vector<std::wstring> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(m.get_value(row));
    return all;
  }
};

TEST_F(range_cells, show_the_limits_as_they_are_rounded) {
  EXPECT_EQ(cells(),
            (std::vector<std::wstring>{L"-∞..10.0", L"10.0..20.0", L"20.0..30.0", L"30.0..+∞"}));
  m.set_caption(1, L"low");
  EXPECT_EQ(m.get_row_text(1), L"10.0..20.0 : low");
  EXPECT_EQ(m.get_min(9), L"30.0");  // past the last is the upper tail
  EXPECT_EQ(m.get_max(9), L"+∞");
}

TEST_F(range_cells, a_number_in_a_minimum_cell_of_either_tail_is_the_upper_outer_limit) {
  m.set_min(0, L"40");
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 40);
  EXPECT_EQ(zu_rng_scale_get_min_value(m.scale()), 10);
  m.set_min(3, L"50");
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 50);
  m.set_min(99, L"60");
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 60);
  m.set_min(-1, L"70");
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 60);
}

TEST_F(range_cells, a_number_in_a_maximum_cell_of_the_upper_tail_is_ignored) {
  m.set_max(0, L"5");
  EXPECT_EQ(zu_rng_scale_get_min_value(m.scale()), 5);
  m.set_max(3, L"50");
  m.set_max(99, L"50");
  EXPECT_EQ(cells(),
            (std::vector<std::wstring>{L"-∞..5.0", L"10.0..20.0", L"20.0..30.0", L"30.0..+∞"}));
}

TEST_F(range_cells, a_made_caption_follows_its_limits_and_one_of_a_person_stays) {
  zu::style::captions(m.scale());
  m.set_caption(2, L"high");
  m.set_max(1, L"15");
  m.set_min(2, L"15");
  m.set_max(0, L"5");
  m.set_min(3, L"40");
  auto ends = [&](std::int64_t row, const std::wstring& text) {
    std::wstring caption = m.get_caption(row);
    return caption.size() > text.size() &&
           caption.compare(caption.size() - text.size(), text.size(), text) == 0;
  };
  EXPECT_TRUE(ends(1, L"15.0"));
  EXPECT_EQ(m.get_caption(2), L"high");
  EXPECT_TRUE(ends(0, L" 5.0"));
  EXPECT_TRUE(ends(3, L"40.0"));
  m.set_caption(1, L"");
  m.set_max(1, L"16");
  EXPECT_EQ(m.get_caption(1), L"") << "no caption is a caption too";
}

TEST_F(range_cells, a_limit_of_a_class_leaves_its_neighbours_alone) {
  m.set_max(1, L"22,5");
  m.set_min(2, L" 2.1e1");
  EXPECT_EQ(cells(),
            (std::vector<std::wstring>{L"-∞..10.0", L"10.0..22.5", L"21.0..30.0", L"30.0..+∞"}));
  EXPECT_EQ(told, 0);
}

TEST_F(range_cells, a_text_that_is_no_number_changes_nothing) {
  for (const wchar_t* text : {L"", L"2 5", L"1e999", L"1,5,2", L"ten"}) {
    m.set_min(1, text);
    m.set_max(1, text);
  }
  EXPECT_EQ(m.get_value(1), L"10.0..20.0");
}

TEST_F(range_cells, a_caption_past_the_last_row_is_the_upper_tails) {
  paint();
  m.set_caption(9, L"above all");
  EXPECT_EQ(captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2", L"above all"}));
}

TEST_F(range_cells, the_current_row_is_stored_as_it_is_counted_here) {
  m.set_active_row(3);
  EXPECT_EQ(zu_rng_scale_get_active_idx(m.scale()), 3);
}

TEST_F(ranges, classes_move_between_tails_that_stay) {
  set_size(3);
  paint();
  mark({0, 3, 4});
  m.move_marked(1);
  EXPECT_EQ(captions(),
            (std::vector<std::wstring>{L"row 0", L"row 3", L"row 1", L"row 2", L"row 4"}));
  m.move_marked(0);
  m.move_marked(5);
  EXPECT_EQ(captions(),
            (std::vector<std::wstring>{L"row 0", L"row 3", L"row 1", L"row 2", L"row 4"}));
  m.move_marked(4);
  EXPECT_EQ(captions(),
            (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2", L"row 3", L"row 4"}));
}

}  // namespace
