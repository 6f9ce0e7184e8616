#include "src/style/page/style_manager.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/style/page/asking_host.h"
#include "tests/unit/src/style/page/shown_tools.h"
#include "tests/unit/src/toolkit/element_tree.h"
#include "zu/platform/zuk_datasource.h"

namespace {

using namespace tests;
using namespace zu::style;
using zu::events::connection;

/// Elements of a composite in the order of their cells; pages of a stack are not entered.
std::vector<handle> inside(handle root) {
  std::vector<handle> all;
  gather(root, all);
  return all;
}
/// A page of the manager's stack; empty for none.
handle page_of(handle stack, std::uint32_t index) {
  element_taker taker;
  call<&stack_layout_impl::visit_page>(stack, index, taker.visitor());
  return taker.only();
}

template <class style_traits> struct made_manager {
  zu::owned<zu_stl_mngr_destroy> styles{zu_stl_mngr_create(style_traits::manager_key)};
  style_manager<style_traits> shown;
  int told = 0;
  connection heard = shown.changed.connect([this] { ++told; });

  of<dropdown_impl> mode() { return find<dropdown_impl>(inside(shown.element())); }
  of<stack_layout_impl> stack() { return find<stack_layout_impl>(inside(shown.element())); }
  std::vector<handle> page(std::uint32_t index) { return inside(page_of(stack(), index)); }
  std::uint32_t current_page() { return call<&stack_layout_impl::current>(stack()); }
};

/// Two fields, "Band 1" from 1 to 4 and "Band 2" from 10 to 40.
zu::data::open_reference two_fields() {
  made_grid grid("style_manager.tif", 2, 2, GDT_Float64, 2);
  grid.values(1, {1, 2, 3, 4});
  grid.values(2, {10, 20, 30, 40});
  zu::data::open_reference source;
  source.name = grid.close();
  source.opener = &zu_datasource_open;
  for (const char* stale : {"style_manager.Band 1._rg", "style_manager.Band 2._rg",
                            "style_manager.Band 1._vl", "style_manager.Band 2._vl"})
    std::filesystem::remove(std::filesystem::path(testing::TempDir()) / stale);
  return source;
}

std::vector<std::wstring> items(of<dropdown_impl> list) {
  std::vector<std::wstring> all;
  for (std::uint32_t i = 0; i < call<&dropdown_impl::count>(list); ++i)
    all.push_back(text([&](auto v) { call<&dropdown_impl::item_text>(list, i, v); }));
  return all;
}

TEST(style_mode, of_colours_offers_no_rules_and_shows_nothing_for_a_manager_that_has_them) {
  base_language base;
  made_manager<color_style_traits> m;
  EXPECT_EQ(items(m.mode()),
            (std::vector<std::wstring>{L"Единый стиль", L"Уникальные значения", L"Диапазоны"}));
  zu_stl_mngr_set_mode(m.styles.get(), zu_style_rule);
  m.shown.set({}, m.styles.get());
  EXPECT_EQ(call<&dropdown_impl::current>(m.mode()), -1);
  EXPECT_EQ(m.current_page(), 3u);
}

TEST(style_mode, of_symbols_and_lines_offers_rules) {
  base_language base;
  made_manager<point_style_traits> points;
  made_manager<line_style_traits> lines;
  EXPECT_EQ(items(points.mode()).back(), L"Правила");
  EXPECT_EQ(items(lines.mode()).size(), 4u);
}

TEST(style_mode, follows_the_manager_and_writes_what_a_person_chooses) {
  made_manager<point_style_traits> m;
  EXPECT_EQ(call<&dropdown_impl::current>(m.mode()), -1);
  zu_stl_mngr_set_mode(m.styles.get(), zu_style_range);
  m.shown.set({}, m.styles.get());
  EXPECT_EQ(call<&dropdown_impl::current>(m.mode()), 2);
  EXPECT_EQ(m.current_page(), 2u);
  EXPECT_EQ(m.told, 0);
  call<&dropdown_impl::set_current>(m.mode(), 3);
  EXPECT_EQ(zu_stl_mngr_get_mode(m.styles.get()), zu_style_rule);
  EXPECT_EQ(m.current_page(), 3u);
  EXPECT_EQ(m.told, 1);
}

TEST(style_manager, pages_stand_in_the_order_of_the_modes) {
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  EXPECT_TRUE(find<button_impl>(m.page(0)));
  EXPECT_FALSE(find<outline_impl>(m.page(0)));
  for (std::uint32_t page : {1u, 2u, 3u}) {
    EXPECT_TRUE(find<toolbar_impl>(m.page(page))) << page;
    EXPECT_TRUE(find<outline_impl>(m.page(page))) << page;
    EXPECT_TRUE(find<input_impl>(m.page(page))) << page;
  }
  EXPECT_TRUE(find<dropdown_impl>(m.page(1)));
  EXPECT_TRUE(find<dropdown_impl>(m.page(2)));
  EXPECT_FALSE(find<dropdown_impl>(m.page(3)));
}

TEST(style_manager, set_tells_of_each_model_in_order_and_shows_the_mode_first) {
  made_manager<color_style_traits> m;
  std::string order;
  auto hear = [&](auto& page, char name) {
    return page.scale().changed.connect([&, name, scale = &page.scale()] {
      order += name;
      order += scale->mngr == m.styles.get() ? '+' : '-';
      order += static_cast<char>('0' + m.current_page());
    });
  };
  connection heard[] = {hear(m.shown.values(), 'v'), hear(m.shown.ranges(), 'r'),
                        hear(m.shown.rules(), 'u')};
  zu_stl_mngr_set_mode(m.styles.get(), zu_style_range);
  m.shown.set({}, m.styles.get());
  EXPECT_EQ(order, "v+2r+2u+2");
  m.shown.set({}, nullptr);
  EXPECT_EQ(order.substr(9), "v-2r-2u-2");
  EXPECT_EQ(m.told, 0);
}

TEST(style_manager, without_a_manager_tables_are_empty_and_nothing_can_be_edited) {
  made_manager<color_style_traits> m;
  zu_val_scale_set_size(zu_stl_mngr_get_val_scale_ptr(m.styles.get()), 2);
  m.shown.set({}, m.styles.get());
  auto table = find<outline_impl>(m.page(1));
  EXPECT_EQ(call<&outline_impl::item_count>(table, outline_item()), 2u);
  EXPECT_TRUE(call<&checkbox_impl::enabled>(find<checkbox_impl>(m.page(1))));
  m.shown.set({}, nullptr);
  EXPECT_EQ(call<&outline_impl::item_count>(table, outline_item()), 0u);
  EXPECT_FALSE(call<&checkbox_impl::enabled>(find<checkbox_impl>(m.page(1))));
  EXPECT_EQ(call<&dropdown_impl::current>(m.mode()), -1);
}

TEST(style_manager, fields_are_the_source_s_and_a_chosen_one_fills_the_scale) {
  made_manager<color_style_traits> m;
  m.shown.set(two_fields(), m.styles.get());
  auto field = find<dropdown_impl>(m.page(2));
  EXPECT_EQ(items(field), (std::vector<std::wstring>{L"Band 1", L"Band 2"}));
  EXPECT_EQ(call<&dropdown_impl::current>(field), -1);
  call<&dropdown_impl::set_current>(field, 1);
  auto& ranges = m.shown.ranges().scale();
  EXPECT_EQ(ranges.field(), L"Band 2");
  ASSERT_EQ(ranges.row_count(), 12);
  EXPECT_EQ(zu_rng_scale_get_min_value(ranges.scale()), 10);
  EXPECT_EQ(zu_rng_scale_get_max_value(ranges.scale()), 40);
  EXPECT_GT(m.told, 0);
}

TEST(style_manager, the_same_field_again_leaves_the_scale_as_it_is) {
  made_manager<color_style_traits> m;
  m.shown.set(two_fields(), m.styles.get());
  auto field = find<dropdown_impl>(m.page(1));
  call<&dropdown_impl::set_current>(field, 0);
  auto& values = m.shown.values().scale();
  ASSERT_EQ(values.row_count(), 4);
  values.set_value(0, L"mine");
  m.told = 0;
  call<&dropdown_impl::set_current>(field, 0);
  EXPECT_EQ(values.get_value(0), L"mine");
  EXPECT_EQ(m.told, 0);
}

TEST(style_manager, a_mode_whose_scale_is_empty_fills_it_by_the_field_of_the_other_one) {
  made_manager<color_style_traits> m;
  m.shown.set(two_fields(), m.styles.get());
  zu_stl_mngr_set_val_prop_name_w(m.styles.get(), L"Band 2");
  call<&dropdown_impl::set_current>(m.mode(), 2);
  EXPECT_EQ(m.shown.ranges().scale().field(), L"Band 2");
  EXPECT_EQ(m.shown.ranges().scale().row_count(), 12);
  m.shown.ranges().scale().set_max(1, L"77");
  call<&dropdown_impl::set_current>(m.mode(), 0);
  call<&dropdown_impl::set_current>(m.mode(), 2);
  EXPECT_EQ(m.shown.ranges().scale().get_max(1), L"77");
}

TEST(style_manager, what_no_row_holds_is_shown_named_and_hidden) {
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  auto& values = m.shown.values().scale();
  auto page = m.page(1);
  auto box = find<checkbox_impl>(page);
  auto name = find<input_impl>(page);
  auto drawn = find<button_impl>(page, 0), selected = find<button_impl>(page, 1);
  EXPECT_FALSE(call<&checkbox_impl::is_checked>(box));
  EXPECT_FALSE(call<&input_impl::enabled>(name));
  EXPECT_FALSE(call<&button_impl::enabled>(drawn));

  call<&checkbox_impl::set_checked>(box, true);
  EXPECT_TRUE(zu_scale_prm_get_visible(values.other_prm()));
  EXPECT_TRUE(call<&input_impl::enabled>(name));
  EXPECT_TRUE(call<&button_impl::enabled>(drawn));
  EXPECT_TRUE(call<&button_impl::enabled>(selected));

  EXPECT_TRUE(call<&input_impl::set_text>(name, L"The rest"));
  call<&input_impl::commit>(name);
  EXPECT_EQ(values.get_other_caption(), L"The rest");

  asking_host host;
  host.color = {9, 8, 7, 0};
  call<&button_impl::press>(selected);
  EXPECT_EQ(zu_stl_prm_get_color(&values.other_prm()->style, 1).r, 9);
  EXPECT_NE(zu_stl_prm_get_color(&values.other_prm()->style, 0).r, 9);
  call<&button_impl::press>(drawn);
  EXPECT_EQ(zu_stl_prm_get_color(&values.other_prm()->style, 0).r, 9);
  EXPECT_EQ(m.told, 4);
}

TEST(style_manager, the_one_style_has_a_link_for_each_of_its_two) {
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  asking_host host;
  host.color = {9, 8, 7, 0};
  Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(m.styles.get());
  call<&button_impl::press>(find<button_impl>(m.page(0), 1));
  EXPECT_NE(zu_stl_prm_get_color(simple, 0).r, 9);
  EXPECT_EQ(zu_stl_prm_get_color(simple, 1).r, 9);
  call<&button_impl::press>(find<button_impl>(m.page(0), 0));
  EXPECT_EQ(zu_stl_prm_get_color(simple, 0).r, 9);
  EXPECT_EQ(m.told, 2);
  host.accepts = false;
  call<&button_impl::press>(find<button_impl>(m.page(0), 0));
  EXPECT_EQ(m.told, 2);
}

TEST(style_manager, interpolation_is_the_owner_s_and_the_same_on_all_pages) {
  made_manager<color_style_traits> without, m;
  without.shown.set({}, without.styles.get());
  auto row_shown = [](auto& made) {
    return call<&grid_layout_impl::row_visible>(cast<grid_layout_impl>(page_of(made.stack(), 1)),
                                                4u);
  };
  EXPECT_FALSE(row_shown(without));
  std::vector<bool> heard;
  m.shown.on_interpolate = [&](bool on) { heard.push_back(on); };
  m.shown.set({}, m.styles.get());
  EXPECT_TRUE(row_shown(m));
  auto box = [&](std::uint32_t page) { return find<checkbox_impl>(m.page(page), 1); };
  call<&checkbox_impl::set_checked>(box(1), true);
  EXPECT_EQ(heard, std::vector<bool>{true});
  EXPECT_TRUE(call<&checkbox_impl::is_checked>(box(2)));
  m.shown.assign_interpolate(false);
  EXPECT_FALSE(call<&checkbox_impl::is_checked>(box(1)));
  EXPECT_EQ(heard.size(), 1u);
}

TEST(style_manager, is_disabled_as_a_whole) {
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  for (std::uint32_t state : {0u, 2u}) {
    m.shown.set_enabled(state);
    EXPECT_EQ(call<&dropdown_impl::enabled>(m.mode()), state != 0);
    EXPECT_EQ(call<&button_impl::enabled>(find<button_impl>(m.page(0))), state != 0);
    for (std::uint32_t page : {1u, 2u, 3u}) {
      EXPECT_EQ(call<&outline_impl::is_disabled>(find<outline_impl>(m.page(page))), state == 0);
      EXPECT_EQ(call<&checkbox_impl::enabled>(find<checkbox_impl>(m.page(page))), state != 0);
    }
  }
}

TEST(style_manager, a_file_that_is_no_legend_is_said_and_changes_nothing) {
  base_language base;
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  asking_host host;
  auto import = find<button_impl>(m.page(0), 2);
  EXPECT_EQ(text([&](auto v) { call<&button_impl::caption>(import, v); }), L"Загрузить из AVL");
  call<&button_impl::press>(import);
  EXPECT_EQ(host.filter, L"Файл легенды ArcView (*.avl)|*.avl");
  EXPECT_EQ(host.message, L"");
  host.path = std::filesystem::path(testing::TempDir() + "/no_legend.avl").wstring();
  std::ofstream(std::filesystem::path(testing::TempDir()) / "no_legend.avl") << "nothing";
  call<&button_impl::press>(import);
  EXPECT_EQ(host.message, L"Не удалось загрузить AVL");
  EXPECT_EQ(m.told, 0);
  EXPECT_FALSE(zu_stl_mngr_get_just_loaded(m.styles.get()));
}

TEST(style_manager, a_legend_sets_the_mode_the_scale_and_the_field) {
  made_manager<color_style_traits> m;
  m.shown.set({}, m.styles.get());
  asking_host host;
  std::filesystem::path file = std::filesystem::path(testing::TempDir()) / "legend.avl";
  host.path = file.wstring();
  std::ofstream(file) << R"(/3.2
(ODB.1000
	FirstRootClassName:	"Legend"
	Roots:	7
	Version:	32
)

(TClr.2
	Red:	0x0a00
	Green:	0x1400
	Blue:	0x1e00
)

(BShSym.3
	Color:	2
)

(SymList.4
	Child:	3
)

(AVStr.5
	S:	"SOIL"
)

(LClass.6
	Label:	"Water"
	MinNum:	1.000000
	MaxNum:	1.000000
)

(Legend.7
	LegType:	0x08
	Symbols:	4
	FieldNames:	5
	Class:	6
)
)";
  call<&button_impl::press>(find<button_impl>(m.page(0), 2));
  EXPECT_EQ(host.message, L"");
  EXPECT_EQ(call<&dropdown_impl::current>(m.mode()), 1);
  EXPECT_EQ(m.current_page(), 1u);
  EXPECT_EQ(call<&outline_impl::item_count>(find<outline_impl>(m.page(1)), outline_item()), 1u);
  EXPECT_EQ(m.shown.values().scale().get_caption(0), L"Water");
  EXPECT_TRUE(zu_stl_mngr_get_just_loaded(m.styles.get()));
  EXPECT_EQ(m.told, 1);
}

}  // namespace
