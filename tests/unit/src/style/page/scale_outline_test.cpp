#include "src/style/page/scale_outline.h"

#include "tests/unit/src/style/made_scale.h"
#include "tests/unit/src/style/page/asking_host.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace {

using namespace tests;
using namespace zu::style::detail;

struct column_taker final : outline_column_visitor_impl {
  void visit(handle column) override { found = column; }
  handle found;
};
struct item_taker final : outline_item_visitor_impl {
  void visit(outline_item item) override {
    has_item = static_cast<bool>(item);
    row = zu::toolkit::row_of(item);
  }
  bool has_item = false;
  std::uint32_t row = 99;
};

/// The table of a model as a host sees it: by handles of columns and items.
template <class model> struct scale_table : made_scale<model> {
  scale_outline<model> table{this->m};

  handle column(std::uint32_t index) {
    column_taker taker;
    table.visit_column(index,
                       outline_column_visitor(handle_of<outline_column_visitor_impl>(taker)));
    return taker.found;
  }
  /// Columns of the kinds that have texts and marks.
  std::wstring cell(std::uint32_t at, std::uint32_t row) {
    zu::toolkit::outline_table_item_index item(row);
    handle h = cast<string_outline_column_impl>(column(at));
    return text([&](auto v) { call<&string_outline_column_impl::text>(h, item.item(), v); });
  }
  bool type(std::uint32_t at, std::uint32_t row, const wchar_t* typed) {
    zu::toolkit::outline_table_item_index item(row);
    handle h = cast<string_outline_column_impl>(column(at));
    return call<&string_outline_column_impl::set_text>(h, item.item(), typed);
  }
  bool is_editable(std::uint32_t at, std::uint32_t row) {
    zu::toolkit::outline_table_item_index item(row);
    handle h = cast<string_outline_column_impl>(column(at));
    return call<&string_outline_column_impl::is_editable>(h, item.item());
  }
  void tick(std::uint32_t at, std::uint32_t row, bool on) {
    zu::toolkit::outline_table_item_index item(row);
    handle h = cast<boolean_outline_column_impl>(column(at));
    call<&boolean_outline_column_impl::set_checked>(h, item.item(), on);
  }
  void click(std::uint32_t at, std::uint32_t row) {
    zu::toolkit::outline_table_item_index item(row);
    handle h = cast<bitmap_outline_column_impl>(column(at));
    call<&bitmap_outline_column_impl::click>(h, item.item());
  }
  item_taker current() {
    item_taker taker;
    table.current(outline_item_visitor(handle_of<outline_item_visitor_impl>(taker)));
    return taker;
  }
  /// Ids and captions of the columns.
  std::vector<std::wstring> ids() {
    std::vector<std::wstring> all;
    for (std::uint32_t i = 0; i < table.column_count(); ++i)
      all.push_back(text([&](auto v) { call<&string_outline_column_impl::id>(column(i), v); }));
    return all;
  }
  std::vector<std::wstring> headers() {
    std::vector<std::wstring> all;
    for (std::uint32_t i = 0; i < table.column_count(); ++i)
      all.push_back(
          text([&](auto v) { call<&string_outline_column_impl::caption>(column(i), v); }));
    return all;
  }
};

struct value_table : scale_table<color_values> {
  enum { value, caption, visible_box, drawn, selected };
};
struct range_table : scale_table<color_ranges> {
  enum { minimum, maximum, caption, visible_box, drawn, selected };
};
struct rule_table : scale_table<color_rules> {
  enum { rule, caption, visible_box, drawn, selected };
};
struct line_table : scale_table<line_ranges> {};

std::vector<std::wstring> with_kind(const std::wstring& kind, std::vector<std::wstring> names) {
  for (std::wstring& name : names)
    name = L"zu_common_scale_outline_" + kind + L"_" + name + L"_column";
  return names;
}

TEST_F(value_table, has_its_columns_in_order) {
  base_language base;
  EXPECT_EQ(ids(),
            with_kind(L"value", {L"value", L"caption", L"visible", L"prim_style", L"sel_style"}));
  EXPECT_EQ(headers(),
            (std::vector<std::wstring>{L"Значение", L"Название", L"Видимость", L"Стиль", L"Выд."}));
}
TEST_F(range_table, has_its_columns_in_order) {
  base_language base;
  EXPECT_EQ(ids(), with_kind(L"range", {L"min", L"max", L"caption", L"visible", L"prim_style",
                                        L"sel_style"}));
  EXPECT_EQ(headers()[0], L"Мин.");
  EXPECT_EQ(headers()[1], L"Макс.");
}
TEST_F(rule_table, has_its_columns_in_order) {
  base_language base;
  EXPECT_EQ(ids(),
            with_kind(L"rule", {L"rule", L"caption", L"visible", L"prim_style", L"sel_style"}));
  EXPECT_EQ(headers()[0], L"Правило");
}

TEST_F(value_table, takes_values_and_captions_and_tells_of_each) {
  set_size(2);
  EXPECT_TRUE(type(value, 1, L"clay"));
  EXPECT_TRUE(type(caption, 1, L"Clay"));
  EXPECT_EQ(m.get_value(1), L"clay");
  EXPECT_EQ(cell(value, 1), L"clay");
  EXPECT_EQ(cell(caption, 1), L"Clay");
  EXPECT_EQ(cell(value, 0), L"");
  EXPECT_EQ(told, 2);
}

TEST_F(value_table, says_value_and_caption_over_a_caption) {
  set_size(1);
  type(value, 0, L"12");
  type(caption, 0, L"Clay");
  zu::toolkit::outline_table_item_index item(0);
  EXPECT_EQ(text([&](auto v) {
              call<&string_outline_column_impl::item_hint>(column(caption), item.item(), v);
            }),
            L"12 : Clay");
}

TEST_F(range_table, takes_limits_with_a_point_or_a_comma_and_refuses_what_is_no_number) {
  set_size(2);
  EXPECT_TRUE(type(minimum, 1, L"1,5e3"));
  EXPECT_TRUE(type(maximum, 1, L"2500.5"));
  EXPECT_EQ(cell(minimum, 1), L"1500");
  EXPECT_EQ(cell(maximum, 1), L"2500.5");
  EXPECT_EQ(told, 2);
  for (const wchar_t* bad : {L"", L"1 2", L"1,5,2", L"1e999", L"x"})
    EXPECT_FALSE(type(maximum, 1, bad));
  EXPECT_EQ(cell(maximum, 1), L"2500.5");
  EXPECT_EQ(told, 2);
}

TEST_F(range_table, has_infinite_ends_and_sets_the_outer_limits_in_the_tails) {
  set_size(1);
  EXPECT_EQ(table.row_count(), 3u);
  EXPECT_EQ(cell(minimum, 0), L"-∞");
  EXPECT_EQ(cell(maximum, 2), L"+∞");
  EXPECT_TRUE(type(maximum, 0, L"10"));
  EXPECT_TRUE(type(minimum, 2, L"20"));
  EXPECT_EQ(zu_rng_scale_get_min_value(m.scale()), 10);
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 20);
  EXPECT_TRUE(type(minimum, 0, L"30"));
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 30);
  EXPECT_TRUE(is_editable(maximum, 1));
  EXPECT_FALSE(is_editable(maximum, 2));
  type(maximum, 2, L"40");
  EXPECT_EQ(cell(maximum, 2), L"+∞");
}

TEST_F(range_table, shows_two_rows_of_an_empty_scale) {
  set_size(0);
  EXPECT_EQ(table.row_count(), 2u);
  EXPECT_EQ(cell(minimum, 0), L"-∞");
  EXPECT_EQ(cell(maximum, 1), L"+∞");
}

TEST_F(rule_table, shows_rules_and_takes_none) {
  set_size(1);
  m.set_value(0, L"no rule");
  EXPECT_EQ(cell(rule, 0), L"no rule");
  EXPECT_FALSE(is_editable(rule, 0));
  EXPECT_FALSE(type(rule, 0, L"z > 1"));
  EXPECT_EQ(cell(rule, 0), L"no rule");
}

TEST_F(value_table, a_box_of_an_unmarked_row_holds_for_several_marked_ones) {
  set_size(4);
  mark({1, 2});
  tick(visible_box, 3, false);
  EXPECT_EQ(visible(), (std::vector<bool>{true, false, false, true}));
  EXPECT_EQ(told, 1);
}

TEST_F(value_table, a_box_holds_for_its_own_row_where_one_or_none_is_marked) {
  set_size(3);
  mark({1});
  tick(visible_box, 2, false);
  EXPECT_EQ(visible(), (std::vector<bool>{true, true, false}));
  EXPECT_EQ(told, 1);
}

TEST_F(value_table, a_click_on_a_sample_edits_that_style_of_the_row) {
  asking_host host;
  host.color = {77, 0, 0, 0};
  set_size(2);
  paint();
  click(drawn, 1);
  EXPECT_EQ(reds(), (std::vector<int>{0, 77}));
  click(selected, 0);
  EXPECT_EQ(m.get_style(0, selection)->r, 77);
  EXPECT_EQ(color(0)[0], 0);
  EXPECT_EQ(told, 2);
}

TEST_F(value_table, a_click_on_a_sample_edits_all_marked_rows_if_they_are_several) {
  asking_host host;
  host.color = {77, 0, 0, 0};
  set_size(4);
  paint();
  mark({0, 3});
  click(drawn, 1);
  EXPECT_EQ(reds(), (std::vector<int>{77, 10, 20, 77}));
  host.accepts = false;
  click(drawn, 1);
  EXPECT_EQ(told, 1);
}

/// Keeps the size and the first pixel of what it is shown.
struct picture_taker final : bitmap_visitor_impl, bytes_visitor_impl {
  void visit(zu::bitmap picture) override {
    call<&bitmap_impl::pixels>(picture, bytes_visitor(handle_of<bytes_visitor_impl>(*this)));
  }
  void visit(std::uint64_t h, std::uint64_t row_bytes, std::uint64_t w, std::uint64_t,
             std::uint64_t, std::uint64_t, const std::uint8_t* pixels) override {
    width = w, height = h;
    const std::uint8_t* middle = pixels + h / 2 * row_bytes + w / 2 * 4;
    first.assign(middle, middle + 4);
  }
  std::uint64_t width = 0, height = 0;
  std::vector<int> first;
};

TEST_F(value_table, samples_come_in_the_size_that_is_wanted) {
  set_size(1);
  zu_stl_prm_clr_set_all(m.get_style_prm(0), {200, 100, 50, 0}, 0);
  zu::toolkit::outline_table_item_index item(0);
  picture_taker taker;
  call<&sized_pictures_impl::picture_of>(cast<sized_pictures_impl>(column(drawn)), item.item(), 30u,
                                         9u, 4.0,
                                         bitmap_visitor(handle_of<bitmap_visitor_impl>(taker)));
  EXPECT_EQ(taker.width, 30u);
  EXPECT_EQ(taker.height, 9u);
  EXPECT_EQ(taker.first, (std::vector<int>{200, 100, 50, 255}));
  picture_taker usual;
  call<&bitmap_outline_column_impl::picture>(cast<bitmap_outline_column_impl>(column(drawn)),
                                             item.item(),
                                             bitmap_visitor(handle_of<bitmap_visitor_impl>(usual)));
  EXPECT_EQ(usual.first, (std::vector<int>{200, 100, 50, 255}));
}

TEST_F(line_table, samples_are_lines) {
  set_size(1);
  zu::toolkit::outline_table_item_index item(1);
  picture_taker taker;
  call<&sized_pictures_impl::picture_of>(cast<sized_pictures_impl>(column(4)), item.item(), 40u,
                                         16u, 4.0,
                                         bitmap_visitor(handle_of<bitmap_visitor_impl>(taker)));
  EXPECT_EQ(taker.width, 40u);
}

TEST_F(range_table, marks_and_the_current_row_are_the_scale_s) {
  set_size(2);
  EXPECT_EQ(table.selection_mode(), outline_chooses_many);
  zu::toolkit::outline_table_item_index low(0), high(3);
  table.set_marked(low.item(), true);
  table.set_marked(high.item(), true);
  EXPECT_TRUE(zu_rng_scale_get_min_marked(m.scale()));
  EXPECT_TRUE(zu_rng_scale_get_max_marked(m.scale()));
  EXPECT_TRUE(table.is_marked(low.item()));
  table.set_current(high.item());
  EXPECT_EQ(zu_rng_scale_get_active_idx(m.scale()), 3);
  EXPECT_EQ(current().row, 3u);
  table.set_current(outline_item());
  EXPECT_EQ(zu_rng_scale_get_active_idx(m.scale()), 0);
  zu_rng_scale_set_active_idx(m.scale(), 9);
  EXPECT_FALSE(current().has_item);
  EXPECT_EQ(told, 0);
}

TEST_F(value_table, marked_rows_are_dropped_before_or_behind_another) {
  set_size(3);
  for (int i = 0; i < 3; ++i) m.set_value(i, std::to_wstring(i));
  mark({0});
  zu::toolkit::outline_table_item_index target(2);
  EXPECT_TRUE(table.can_move_marked());
  table.move_marked(target.item(), false);
  EXPECT_EQ(cell(value, 0) + cell(value, 1) + cell(value, 2), L"102");
  table.move_marked(target.item(), true);
  EXPECT_EQ(cell(value, 0) + cell(value, 1) + cell(value, 2), L"120");
  EXPECT_EQ(told, 2);
}

TEST_F(range_table, tails_stay_where_they_are) {
  set_size(2);
  m.set_caption(1, L"a"), m.set_caption(2, L"b");
  mark({0, 2});
  zu::toolkit::outline_table_item_index first(0), second(1);
  table.move_marked(first.item(), false);
  EXPECT_EQ(cell(caption, 1), L"a");
  table.move_marked(second.item(), false);
  EXPECT_EQ(cell(caption, 1), L"b");
  EXPECT_EQ(cell(minimum, 0), L"-∞");
}

TEST_F(value_table, is_empty_without_a_manager) {
  set_size(2);
  m.set_active_row(1);
  EXPECT_EQ(current().row, 1u);
  m.mngr = nullptr;
  EXPECT_EQ(table.row_count(), 0u);
  EXPECT_FALSE(current().has_item);
}

TEST_F(value_table, is_shown_anew_when_the_scale_has_changed) {
  viewing<zu::toolkit::outline_table> view(table);
  set_size(2);
  EXPECT_EQ(view.calls(), tests::told());
  m.changed();
  EXPECT_EQ(view.calls(), (tests::told{0, 1, 0}));
}

TEST_F(value_table, says_what_to_do_where_there_is_no_field_yet) {
  auto said = [this] { return text([this](auto v) { table.visit_empty_text(v); }); };
  EXPECT_EQ(said(), L"");
  m.source.name = L"hills.tif";
  EXPECT_NE(said(), L"");
  m.set_field(L"z");
  EXPECT_EQ(said(), L"");
}

}  // namespace
