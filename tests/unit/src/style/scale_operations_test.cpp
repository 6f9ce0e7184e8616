#include "src/style/scale_operations.h"

#include <algorithm>
#include <filesystem>

#include "tests/unit/src/style/made_scale.h"

namespace {

using namespace tests;

template <class model_type> struct scale_tools : made_scale<model_type> {
  using rows = std::vector<std::int64_t>;
  static constexpr std::int64_t tails = 2 * model_type::scale_traits::first_entry;
  /// So many rows, tails included, painted; of them these are marked.
  void set_rows(std::int64_t count, const rows& marked) {
    this->set_size(static_cast<std::uint64_t>(count - tails));
    this->paint();
    this->mark(marked);
    this->told = 0;
  }
  std::vector<std::array<int, 4>> colors() const {
    std::vector<std::array<int, 4>> all;
    for (std::int64_t row = 0; row < this->m.row_count(); ++row) all.push_back(this->color(row));
    return all;
  }
};
TYPED_TEST_SUITE(scale_tools, all_models);

/// Which rows are marked, and which ones a tool then works on.
struct marking {
  std::vector<std::int64_t> marked, taken;
};
const marking markings_of_five[] = {{{}, {0, 1, 2, 3, 4}},  {{2}, {0, 1, 2, 3, 4}},
                                    {{0}, {0, 1, 2, 3, 4}}, {{1, 3}, {1, 3}},
                                    {{0, 2, 4}, {0, 2, 4}}, {{0, 1, 3, 4}, {0, 1, 3, 4}}};

TYPED_TEST(scale_tools, a_ramp_goes_over_all_rows_or_the_marked_ones_if_they_are_several) {
  for (const marking& c : markings_of_five) {
    this->set_rows(5, c.marked);
    auto expected = this->colors();
    std::vector<Tzu_color> ramp;
    for (std::int64_t row : c.taken) ramp.push_back(this->painted(row));
    ASSERT_TRUE(zu_clr_arrays_generate_ex(8, ramp.size(), ramp.data(), 0));
    for (std::size_t i = 0; i < ramp.size(); ++i)
      expected[static_cast<std::size_t>(c.taken[i])] = this->numbers(ramp[i]);
    apply_colours(this->m, 8, nullptr, 0);
    EXPECT_EQ(this->colors(), expected);
    EXPECT_EQ(this->told, 1);
    Tzu_color selected = zu_stl_prm_get_color(this->m.get_style_prm(1), 1);
    EXPECT_NE(this->numbers(selected), expected[1]);
  }
}

TYPED_TEST(scale_tools, a_palette_is_taken_in_turn_and_transparencies_stay) {
  zu::owned<zu_clr_palettes_destroy> palettes(zu_clr_palettes_create());
  Tzu_clr_palette* palette = zu_clr_palettes_add(palettes.get());
  zu_clr_palette_add_color(palette, {100, 1, 1, 0});
  zu_clr_palette_add_color(palette, {200, 2, 2, 0});
  this->set_rows(5, {});
  apply_colours(this->m, 8, palette, 1);
  EXPECT_EQ(this->reds(), (std::vector<int>{100, 200, 100, 200, 100}));
  EXPECT_EQ(this->color(4)[3], 4);
  this->set_rows(5, {1, 4});
  apply_colours(this->m, 8, palette, 1);
  EXPECT_EQ(this->reds(), (std::vector<int>{0, 100, 20, 30, 200}));
}

TYPED_TEST(scale_tools, a_palette_colours_a_single_row) {
  zu::owned<zu_clr_palettes_destroy> palettes(zu_clr_palettes_create());
  Tzu_clr_palette* palette = zu_clr_palettes_add(palettes.get());
  zu_clr_palette_add_color(palette, {100, 1, 1, 0});
  this->set_rows(TestFixture::tails + 1, {});
  apply_colours(this->m, 8, palette, 1);
  EXPECT_EQ(this->reds(), std::vector<int>(TestFixture::tails + 1, 100));
}

TYPED_TEST(scale_tools, an_array_that_there_is_not_changes_no_colour) {
  this->set_rows(5, {});
  apply_colours(this->m, 10000, nullptr, 0);
  EXPECT_EQ(this->reds(), (std::vector<int>{0, 10, 20, 30, 40}));
}

TYPED_TEST(scale_tools, styles_of_the_rows_are_turned_and_nothing_else) {
  for (const marking& c : markings_of_five) {
    this->set_rows(5, c.marked);
    this->m.set_visible(c.taken.front(), false);
    auto expected = this->colors();
    for (std::size_t i = 0; i < c.taken.size(); ++i)
      expected[static_cast<std::size_t>(c.taken[i])] =
          this->numbers(this->painted(c.taken[c.taken.size() - 1 - i]));
    auto captions = this->captions();
    auto visible = this->visible();
    invert_scale(this->m);
    EXPECT_EQ(this->colors(), expected);
    EXPECT_EQ(this->captions(), captions);
    EXPECT_EQ(this->visible(), visible);
    EXPECT_EQ(this->told, 1);
    this->m.set_visible(c.taken.front(), true);
  }
}

TYPED_TEST(scale_tools, styles_of_selected_objects_are_not_turned) {
  this->set_rows(4, {});
  zu_stl_prm_clr_set_all(this->m.get_style_prm(0), {9, 9, 9, 9}, 1);
  invert_scale(this->m);
  EXPECT_EQ(this->numbers(zu_stl_prm_get_color(this->m.get_style_prm(0), 1)),
            (std::array<int, 4>{9, 9, 9, 9}));
  EXPECT_EQ(this->reds(), (std::vector<int>{30, 20, 10, 0}));
}

TYPED_TEST(scale_tools, a_gradient_fills_in_between_the_first_and_the_last_entry) {
  this->set_rows(TestFixture::tails + 3, {});
  const std::int64_t first = TestFixture::traits::first_entry;
  zu_stl_prm_clr_set_all(this->m.get_style_prm(first), {0, 0, 0, 7}, 0);
  zu_stl_prm_clr_set_all(this->m.get_style_prm(first + 2), {200, 0, 0, 9}, 0);
  gradient(this->m, gradient_kind::color);
  EXPECT_NEAR(this->color(first + 1)[0], 100, 1);
  EXPECT_EQ(this->color(first + 1)[3], first + 1);
  gradient(this->m, gradient_kind::opacity);
  EXPECT_EQ(this->color(first + 1)[3], 8);
  EXPECT_EQ(this->color(first)[0], 0);
  EXPECT_EQ(this->color(first + 2)[0], 200);
  gradient(this->m, gradient_kind::size);
  EXPECT_EQ(this->told, 3);
}

TYPED_TEST(scale_tools, a_gradient_fills_in_between_marked_rows) {
  // Rows 1 to 4 are entries in every kind of scale.
  this->set_rows(6, {1, 2, 4});
  zu_stl_prm_clr_set_all(this->m.get_style_prm(1), {0, 0, 0, 0}, 0);
  zu_stl_prm_clr_set_all(this->m.get_style_prm(4), {200, 0, 0, 0}, 0);
  gradient(this->m, gradient_kind::color);
  EXPECT_NEAR(this->color(2)[0], 100, 1);
  EXPECT_EQ(this->color(3)[0], 30);
  this->set_rows(6, {2});  // one counts as none
  gradient(this->m, gradient_kind::color);
  EXPECT_NEAR(this->color(3)[0], 30, 1);
}

TYPED_TEST(scale_tools, a_gradient_of_one_entry_or_none_does_nothing) {
  for (std::int64_t entries : {0, 1}) {
    this->set_rows(TestFixture::tails + entries, {});
    auto before = this->colors();
    for (auto which : {gradient_kind::color, gradient_kind::size, gradient_kind::opacity})
      gradient(this->m, which);
    EXPECT_EQ(this->colors(), before);
  }
}

TYPED_TEST(scale_tools, sizes_of_a_gradient_are_those_of_symbols_and_lines) {
  this->set_rows(TestFixture::tails + 3, {});
  const std::int64_t first = TestFixture::traits::first_entry;
  auto symbol = [&](std::int64_t entry) {
    return zu_pnt_style_get_bpnt_style_ptr(
        zu_stl_prm_get_pnt_style_ptr(this->m.get_style_prm(first + entry), 0));
  };
  if (std::string(TypeParam::style_traits::manager_key) != "pnt_mngr_style") return;
  zu_bpnt_style_set_size(symbol(0), 2);
  zu_bpnt_style_set_size(symbol(2), 6);
  gradient(this->m, gradient_kind::size);
  EXPECT_DOUBLE_EQ(zu_bpnt_style_get_size(symbol(1)), 4);
}

TYPED_TEST(scale_tools, captions_sort_and_tails_stay) {
  const std::int64_t first = TestFixture::traits::first_entry;
  const struct {
    bool as_text, descending;
    std::vector<std::wstring> order;
  } cases[] = {{true, false, {L"10", L"9", L"alpha", L"Beta", L"beta"}},
               {true, true, {L"beta", L"Beta", L"alpha", L"9", L"10"}},
               {false, false, {L"9", L"10", L"Beta", L"beta", L"alpha"}},
               {false, true, {L"alpha", L"beta", L"Beta", L"10", L"9"}}};
  for (const auto& c : cases) {
    this->set_rows(TestFixture::tails + 5, {});
    std::int64_t row = first;
    for (const wchar_t* text : {L"Beta", L"10", L"beta", L"9", L"alpha"})
      this->m.set_caption(row++, text);
    sort_scale(this->m, sort_key::caption, c.as_text, c.descending);
    std::vector<std::wstring> expected = c.order;
    if (first == 1) {
      expected.insert(expected.begin(), L"row 0");
      expected.push_back(L"row 6");
    }
    EXPECT_EQ(this->captions(), expected);
    EXPECT_EQ(this->told, 1);
  }
}

TYPED_TEST(scale_tools, sorting_takes_the_styles_along_whatever_is_marked) {
  this->set_rows(TestFixture::tails + 2, {0, 1});
  const std::int64_t first = TestFixture::traits::first_entry;
  this->m.set_caption(first, L"b");
  this->m.set_caption(first + 1, L"a");
  sort_scale(this->m, sort_key::caption, true, false);
  EXPECT_EQ(this->color(first), this->numbers(this->painted(first + 1)));
  EXPECT_EQ(this->color(first + 1), this->numbers(this->painted(first)));
}

TYPED_TEST(scale_tools, an_empty_scale_bears_every_tool_and_is_told_of) {
  this->set_rows(TestFixture::tails, {});
  apply_colours(this->m, 8, nullptr, 0);
  invert_scale(this->m);
  gradient(this->m, gradient_kind::color);
  sort_scale(this->m, sort_key::caption, true, true);
  EXPECT_EQ(this->m.row_count(), TestFixture::tails);
  EXPECT_EQ(this->told, 4);
}

TYPED_TEST(scale_tools, without_a_manager_nobody_is_told) {
  this->m.mngr = nullptr;
  apply_colours(this->m, 8, nullptr, 0);
  invert_scale(this->m);
  gradient(this->m, gradient_kind::color);
  sort_scale(this->m, sort_key::caption, true, true);
  import_value_rules(this->m);
  import_range_rules(this->m);
  insert_class(this->m);
  rescale(this->m);
  apply_library(this->m, 0);
  apply_map_legend(this->m, 0);
  load_default_scale(this->m);
  EXPECT_EQ(this->told, 0);
}

TYPED_TEST(scale_tools, a_library_or_legend_that_there_is_not_changes_nothing) {
  this->set_rows(3, {});
  for (std::int32_t index : {-1, 100000}) {
    apply_library(this->m, index);
    apply_map_legend(this->m, index);
  }
  EXPECT_EQ(this->captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2"}));
  EXPECT_EQ(this->told, 0);
}

// --- Values

template <class model_type> struct value_tools : scale_tools<model_type> {
  void set_values(const std::vector<const wchar_t*>& texts) {
    this->set_rows(static_cast<std::int64_t>(texts.size()), {});
    for (std::size_t i = 0; i < texts.size(); ++i)
      this->m.set_value(static_cast<std::int64_t>(i), texts[i]);
  }
  std::vector<std::wstring> values() const {
    std::vector<std::wstring> all;
    for (std::int64_t row = 0; row < this->m.row_count(); ++row)
      all.push_back(this->m.get_stored_value(row));
    return all;
  }
};
using text_models = testing::Types<color_values, point_values, line_rules>;
TYPED_TEST_SUITE(value_tools, text_models);

TYPED_TEST(value_tools, values_sort_as_texts_and_as_numbers) {
  using texts = std::vector<std::wstring>;
  this->set_values({L"10", L"2", L"x", L"1,5", L"2"});
  sort_scale(this->m, sort_key::value, false, false);
  EXPECT_EQ(this->values(), (texts{L"1,5", L"2", L"2", L"10", L"x"}));
  EXPECT_EQ(this->reds(), (std::vector<int>{30, 10, 40, 0, 20}));  // ties as they stood
  sort_scale(this->m, sort_key::value, false, true);
  EXPECT_EQ(this->values(), (texts{L"x", L"10", L"2", L"2", L"1,5"}));
  EXPECT_EQ(this->reds(), (std::vector<int>{20, 0, 40, 10, 30}));
  sort_scale(this->m, sort_key::value, true, false);
  EXPECT_EQ(this->values(), (texts{L"1,5", L"10", L"2", L"2", L"x"}));
}

// --- Ranges

struct range_tools : scale_tools<color_ranges> {
  void set_classes(const std::vector<double>& bounds) {
    set_size(bounds.size() - 1);
    zu_rng_scale_set_min_value(m.scale(), bounds.front());
    zu_rng_scale_set_max_value(m.scale(), bounds.back());
    for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
      zu_rng_scale_set_min(m.scale(), i, bounds[i]);
      zu_rng_scale_set_max(m.scale(), i, bounds[i + 1]);
    }
    paint();
    told = 0;
  }
  std::vector<std::wstring> cells() const {
    std::vector<std::wstring> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(m.get_value(row));
    return all;
  }
  using texts = std::vector<std::wstring>;
};

TEST_F(range_tools, classes_sort_by_either_limit) {
  set_size(3);
  paint();
  const double low[] = {9, -1, 10}, high[] = {10, 100, 11};
  for (std::uint64_t i = 0; i < 3; ++i) {
    zu_rng_scale_set_min(m.scale(), i, low[i]);
    zu_rng_scale_set_max(m.scale(), i, high[i]);
  }
  const struct {
    sort_key key;
    bool as_text, descending;
    texts order;
  } cases[] = {{sort_key::minimum, false, false, {L"row 2", L"row 1", L"row 3"}},
               {sort_key::minimum, false, true, {L"row 3", L"row 1", L"row 2"}},
               {sort_key::maximum, false, false, {L"row 1", L"row 3", L"row 2"}},
               {sort_key::maximum, false, true, {L"row 2", L"row 3", L"row 1"}},
               {sort_key::maximum, true, false, {L"row 1", L"row 2", L"row 3"}}};
  for (const auto& c : cases) {
    sort_scale(m, c.key, c.as_text, c.descending);
    EXPECT_EQ(captions(), (texts{L"row 0", c.order[0], c.order[1], c.order[2], L"row 4"}));
  }
}

TEST_F(range_tools, a_class_inserted_in_a_gap_takes_the_gap) {
  set_classes({0, 10, 20});
  zu_rng_scale_set_min(m.scale(), 1, 14);
  m.set_active_row(1);
  insert_class(m);
  EXPECT_EQ(cells(), (texts{L"-∞..0", L"0..10", L"10..14", L"14..20", L"20..+∞"}));
  EXPECT_EQ(told, 1);
}

TEST_F(range_tools, a_class_inserted_without_room_halves_the_next_one) {
  set_classes({0, 10, 20});
  insert_class(m);  // no active row: before all
  EXPECT_EQ(cells(), (texts{L"-∞..0", L"0..5", L"5..10", L"10..20", L"20..+∞"}));
  m.set_active_row(2);
  insert_class(m);
  EXPECT_EQ(cells(), (texts{L"-∞..0", L"0..5", L"5..10", L"10..15", L"15..20", L"20..+∞"}));
}

TEST_F(range_tools, a_class_inserted_at_the_end_halves_the_one_before) {
  for (std::int64_t active : {2, 3, 4, 77}) {
    set_classes({0, 10, 20});
    m.set_active_row(active);
    EXPECT_EQ(m.append(), 3);
    EXPECT_EQ(cells(), (texts{L"-∞..0", L"0..10", L"10..15", L"15..20", L"20..+∞"})) << active;
  }
}

TEST_F(range_tools, a_class_inserted_into_an_empty_scale_lies_between_the_outer_limits) {
  zu_rng_scale_set_min_value(m.scale(), 3);
  zu_rng_scale_set_max_value(m.scale(), 8);
  insert_class(m);
  EXPECT_EQ(cells(), (texts{L"-∞..3", L"3..8", L"8..+∞"}));
  zu_rng_scale_set_size(m.scale(), 0);
  zu_rng_scale_set_max_value(m.scale(), 3);
  insert_class(m);
  EXPECT_EQ(cells(), (texts{L"-∞..3", L"3..3", L"3..+∞"}));
}

TEST_F(range_tools, an_inserted_class_lies_between_its_neighbours_in_style) {
  for (std::int64_t active : {0, 1, 2}) {
    set_classes({0, 10, 20});
    const Tzu_color colors[] = {{40, 0, 0, 0}, {80, 0, 0, 20}, {120, 0, 0, 40}, {160, 0, 0, 60}};
    for (std::int64_t row = 0; row < 4; ++row)
      zu_stl_prm_clr_set_all(m.get_style_prm(row), colors[row], 0);
    m.set_active_row(active);
    insert_class(m);
    std::vector<int> expected = {40, 80, 120, 160};
    expected.insert(expected.begin() + active + 1, 60 + 40 * static_cast<int>(active));
    EXPECT_EQ(reds(), expected);
    EXPECT_EQ(color(active + 1)[3], 10 + 20 * active);
  }
}

TEST_F(range_tools, an_inserted_class_is_captioned_by_its_limits) {
  set_classes({0, 10, 20});
  m.set_active_row(1);
  insert_class(m);
  EXPECT_EQ(m.get_caption(1), L"row 1");
  EXPECT_NE(m.get_caption(2).find(L"10"), std::wstring::npos);
  EXPECT_NE(m.get_caption(2).find(L"15"), std::wstring::npos);
}

}  // namespace
