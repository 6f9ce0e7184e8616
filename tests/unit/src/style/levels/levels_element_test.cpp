#include "src/style/levels/levels_element.h"

#include <gtest/gtest.h>

#include "tests/unit/src/style/levels/shown_levels.h"

namespace {

using namespace zu;
using lines = std::vector<std::wstring>;
using owned_manager = owned<zu_stl_mngr_destroy>;

/// A manager in the tree of an element.
struct shown_manager {
  explicit shown_manager(const char* type) : manager(zu_stl_mngr_create(type)) {}
  Tzu_stl_prm* simple() { return zu_stl_mngr_get_simple_sp_ptr(manager.get()); }
  Tzu_pln_style* line() { return zu_stl_prm_get_pln_style_ptr(simple(), 0); }
  Tzu_bpnt_style* point() {
    return zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(simple(), 0));
  }
  tests::shown_levels show() {
    element.set(manager.get());
    return tests::shown_levels(element.element());
  }

  tests::base_language language;
  owned_manager manager;
  style::levels_element element;
};

TEST(levels_element, a_single_point_style_has_its_vertex) {
  shown_manager m("pnt_mngr_style");
  zu_bpnt_style_set_render_level(m.point(), 4);
  EXPECT_EQ(m.show().lines(), (lines{L"Единый", L"  Вершины", L"    Простой стиль = 4"}));
}

TEST(levels_element, a_line_style_has_five_parts_and_those_not_drawn_are_disabled) {
  shown_manager m("pln_mngr_style");
  zu_pln_style_set_end_visible(m.line(), true);
  EXPECT_EQ(m.show().lines(),
            (lines{L"Единый", L"  Линия", L"    Простой стиль = 0", L"  (Вершины)",
                   L"    (Простой стиль = 0)", L"  (Начало)", L"    (Простой стиль = 0)",
                   L"  Конец", L"    Простой стиль = 0", L"  (Номер точки = 0)"}));
}

TEST(levels_element, a_polygon_style_has_four_parts) {
  shown_manager m("pgn_mngr_style");
  EXPECT_EQ(m.show().lines(), (lines{L"Единый", L"  Заливка", L"    Простой стиль = 0", L"  Контур",
                                     L"    Простой стиль = 0", L"  (Вершины)",
                                     L"    (Простой стиль = 0)", L"  (Номер точки = 0)"}));
}

TEST(levels_element, the_layers_of_a_complex_style_are_the_rows_under_its_part) {
  shown_manager m("pnt_mngr_style");
  zu_bpnt_style_set_use_complex(m.point(), true);
  EXPECT_EQ(m.show().lines(), (lines{L"Единый", L"  Вершины"}));  // without layers
  Tzu_style_lrs* layers =
      zu_cpx_style_get_style_lrs_ptr(zu_bpnt_style_get_complex_style(m.point()));
  zu_style_lrs_add_lr(layers, "pnt_figr_slr");
  zu_style_lr_set_render_level(zu_style_lrs_add_lr(layers, "pnt_symb_slr"), 2);
  auto shown = m.show();
  EXPECT_EQ(shown.lines(),
            (lines{L"Единый", L"  Вершины", L"    Простая фигура = 0", L"    Простой символ = 2"}));
  EXPECT_TRUE(shown.set({0, 0, 0}, 7));
  EXPECT_EQ(zu_style_lr_get_render_level(zu_style_lrs_get_lr_ptr(layers, 0)), 7);
  EXPECT_EQ(zu_bpnt_style_get_render_level(m.point()), 0);
}

TEST(levels_element, a_value_scale_shows_its_rows_by_caption_and_what_has_none_by_its_value) {
  for (bool by_rules : {false, true}) {
    shown_manager m("pnt_mngr_style");
    zu_stl_mngr_set_mode(m.manager.get(), by_rules ? zu_style_rule : zu_style_value);
    Tzu_val_scale* scale = by_rules ? zu_stl_mngr_get_rule_scale_ptr(m.manager.get())
                                    : zu_stl_mngr_get_val_scale_ptr(m.manager.get());
    zu_val_scale_set_size(scale, 2);
    zu_val_scale_set_caption_w(scale, 0, L"песок");
    zu_val_scale_set_text_w(scale, 1, L"17");
    EXPECT_EQ(m.show().lines(),
              (lines{L"песок", L"  Вершины", L"    Простой стиль = 0", L"17", L"  Вершины",
                     L"    Простой стиль = 0", L"Прочие", L"  Вершины", L"    Простой стиль = 0"}));
    zu_val_scale_set_other_caption_w(scale, L"иное");
    EXPECT_EQ(m.show().lines()[6], L"иное");
  }
}

TEST(levels_element, a_range_scale_shows_its_classes_between_the_tails_and_what_none_holds) {
  shown_manager m("pnt_mngr_style");
  zu_stl_mngr_set_mode(m.manager.get(), zu_style_range);
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(m.manager.get());
  zu_rng_scale_set_size(scale, 1);
  zu_rng_scale_set_min_caption_w(scale, L"мало");
  zu_rng_scale_set_caption_w(scale, 0, L"средне");
  zu_rng_scale_set_max_caption_w(scale, L"много");
  auto shown = m.show();
  lines all = shown.lines(), rows;
  for (std::size_t i = 0; i < all.size(); i += 3) rows.push_back(all[i]);
  EXPECT_EQ(rows, (lines{L"мало", L"средне", L"много", L"Прочие"}));
  EXPECT_TRUE(shown.set({2, 0, 0}, 5));
  Tzu_stl_prm* upper = zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_max_prm_ptr(scale));
  EXPECT_EQ(zu_bpnt_style_get_render_level(
                zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(upper, 0))),
            5);
}

TEST(levels_element, colours_have_no_parts_and_no_manager_no_rows) {
  shown_manager m("clr_mngr_style");
  for (std::int32_t mode : {0, 1, 2, 3, 4}) {
    zu_stl_mngr_set_mode(m.manager.get(), mode);
    EXPECT_EQ(m.show().lines(), lines{}) << mode;
  }
  m.element.set(nullptr);
  EXPECT_EQ(tests::shown_levels(m.element.element()).lines(), lines{});
}

TEST(levels_element, a_level_is_typed_where_something_is_drawn_at_it) {
  shown_manager m("pln_mngr_style");
  auto shown = m.show();
  EXPECT_FALSE(shown.editable({0}));
  EXPECT_FALSE(shown.editable({0, 0}));
  EXPECT_TRUE(shown.editable({0, 0, 0}));
  EXPECT_FALSE(shown.editable({0, 1, 0}));  // vertices are not drawn
  EXPECT_FALSE(shown.set({0, 0}, 3));
  EXPECT_FALSE(shown.set({0, 0, 0, 0}, 3));
  EXPECT_FALSE(shown.set({0, 0, 0}, 1001));
  EXPECT_TRUE(shown.set({0, 0, 0}, -3));
  EXPECT_EQ(zu_bpln_style_get_render_level(zu_pln_style_get_bpln_style_ptr(m.line())), -3);
  EXPECT_TRUE(shown.set({0, 4}, 9));
  EXPECT_EQ(zu_bnum_style_get_render_level(zu_pln_style_get_bnum_style_ptr(m.line())), 9);
}

TEST(levels_element, rows_have_samples_but_numbers) {
  shown_manager m("pln_mngr_style");
  auto shown = m.show();
  EXPECT_TRUE(shown.has_picture({0}));
  EXPECT_TRUE(shown.has_picture({0, 0}));
  EXPECT_TRUE(shown.has_picture({0, 0, 0}));
  EXPECT_TRUE(shown.has_picture({0, 1, 0}));
  EXPECT_FALSE(shown.has_picture({0, 4}));
  EXPECT_FALSE(shown.has_picture({3}));
  EXPECT_EQ(shown.captions(), (lines{L"Стиль", L"Слой"}));
}

TEST(levels_element, the_current_row_is_kept_by_its_way_and_many_rows_start_closed) {
  shown_manager m("pnt_mngr_style");
  auto shown = m.show();
  struct : outline_item_visitor_impl {
    void visit(outline_item item) override {
      way.clear();
      for (handle at = item; at; at = call<&outline_item_impl::parent>(at))
        way.push_back(call<&outline_item_impl::row>(at));
    }
    std::vector<std::uint32_t> way{99};  // from the item up
  } taker;
  auto ask = [&] {
    call<&outline_impl::current>(shown.outline(),
                                 outline_item_visitor(handle_of<outline_item_visitor_impl>(taker)));
    return taker.way;
  };
  EXPECT_EQ(ask(), (std::vector<std::uint32_t>{}));
  shown.at({0, 0}, [&](outline_item item) {
    EXPECT_FALSE(call<&outline_impl::is_marked>(shown.outline(), item));
    call<&outline_impl::set_current>(shown.outline(), item);
    EXPECT_TRUE(call<&outline_impl::is_marked>(shown.outline(), item));
  });
  EXPECT_EQ(ask(), (std::vector<std::uint32_t>{0, 0}));
  auto open = [&](const std::vector<std::uint32_t>& way) {
    bool is = false;
    shown.at(way, [&](outline_item i) { is = call<&outline_impl::is_open>(shown.outline(), i); });
    return is;
  };
  EXPECT_TRUE(open({0}));
  EXPECT_TRUE(open({0, 0}));
  zu_stl_mngr_set_mode(m.manager.get(), zu_style_range);
  shown = m.show();
  EXPECT_FALSE(open({0}));
  EXPECT_TRUE(open({0, 0}));
}

}  // namespace
