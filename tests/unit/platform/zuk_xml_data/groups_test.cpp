#include <gtest/gtest.h>

#include "tests/unit/platform/zuk_xml_data/made_styles.h"

namespace {

using namespace tests;

constexpr char colors[] = "clr_mngr_style";
constexpr char lines[] = "pln_mngr_style";

auto saving(const Tzu_stl_mngr* manager) {
  return [manager](Tzu_xnode* node) {
    zu_xml_save_style_save_mngr_style(nullptr, node, L"styles", zu_stl_mngr_get_style_type(manager),
                                      manager);
  };
}
auto saving(const Tzu_hillshade_style* style) {
  return [style](Tzu_xnode* node) {
    zu_xml_save_style_save_hillshade_style(nullptr, node, L"hillshade", style);
  };
}
auto saving(const Tzu_isoline_style* style) {
  return [style](Tzu_xnode* node) {
    zu_xml_save_style_save_isoline_style(nullptr, node, L"isoline", style);
  };
}

bool load(Tzu_xnode* node, const char* type, Tzu_stl_mngr* manager) {
  return zu_xml_save_style_load_mngr_style(nullptr, node, L"styles", type, manager);
}

node_ptr tree_of(const std::string& text) {
  return node_ptr(zu_xnode_read(text.data(), text.size(), nullptr));
}

TEST(style_groups, levels_are_written_where_they_are_not_0) {
  manager_ptr manager(zu_stl_mngr_create(lines));
  EXPECT_EQ(written_by(saving(manager.get())).find(L"level"), std::wstring::npos);
  Tzu_pln_style* line =
      zu_stl_prm_get_pln_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0);
  zu_bpln_style_set_render_level(zu_pln_style_get_bpln_style_ptr(line), 3);
  zu_stl_mngr_set_use_render_levels(manager.get(), true);
  std::wstring text = written_by(saving(manager.get()));
  EXPECT_NE(text.find(L"render_level=\"3\""), std::wstring::npos);
  EXPECT_NE(text.find(L"use_render_levels=\""), std::wstring::npos);
}

TEST(style_groups, a_level_that_is_no_number_of_32_bits_is_0) {
  for (const char* level : {"3000000000", "x", ""}) {
    node_ptr tree = tree_of(std::string("<styles><styles type=\"pnt_mngr_style\"><simple><point "
                                        "render_level=\"") +
                            level + "\"/></simple></styles></styles>");
    manager_ptr manager(zu_stl_mngr_create("pnt_mngr_style"));
    ASSERT_TRUE(load(tree.get(), "pnt_mngr_style", manager.get())) << level;
    EXPECT_EQ(zu_bpnt_style_get_render_level(zu_pnt_style_get_bpnt_style_ptr(
                  zu_stl_prm_get_pnt_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0))),
              0)
        << level;
  }
}

TEST(style_groups, any_settings_come_back) {
  for (unsigned seed = 0; seed < 80; ++seed) {
    style_maker make(seed);
    for (const char* type : manager_types) {
      manager_ptr saved = make.manager(type), loaded = make.manager(type);
      node_ptr tree = read_back(saving(saved.get()));
      ASSERT_TRUE(load(tree.get(), type, loaded.get())) << seed;
      ASSERT_EQ(facts(loaded.get()), facts(saved.get())) << seed;
      ASSERT_EQ(written_by(saving(loaded.get())), written_by(saving(saved.get()))) << seed;
    }
    hillshade_ptr shade = make.hillshade(), other_shade = make.hillshade();
    node_ptr tree = read_back(saving(shade.get()));
    ASSERT_TRUE(zu_xml_save_style_load_hillshade_style(nullptr, tree.get(), L"hillshade",
                                                       other_shade.get()));
    ASSERT_EQ(facts(other_shade.get()), facts(shade.get())) << seed;
    ASSERT_EQ(written_by(saving(other_shade.get())), written_by(saving(shade.get()))) << seed;
    isoline_ptr isolines = make.isolines(), others = make.isolines();
    tree = read_back(saving(isolines.get()));
    ASSERT_TRUE(
        zu_xml_save_style_load_isoline_style(nullptr, tree.get(), L"isoline", others.get()));
    ASSERT_EQ(facts(others.get()), facts(isolines.get())) << seed;
    ASSERT_EQ(written_by(saving(others.get())), written_by(saving(isolines.get()))) << seed;
  }
}

TEST(style_groups, what_was_written_is_what_the_settings_were) {
  manager_ptr saved(zu_stl_mngr_create(lines)), loaded(zu_stl_mngr_create(lines));
  zu_stl_mngr_set_mode(saved.get(), zu_style_range);
  Tzu_rng_scale* ranges = zu_stl_mngr_get_rng_scale_ptr(saved.get());
  zu_rng_scale_set_size(ranges, 2);
  zu_rng_scale_set_max(ranges, 1, 12.5);
  zu_rng_scale_set_caption_w(ranges, 1, L"high");
  zu_rng_scale_set_max_value(ranges, NAN);
  zu_rng_scale_set_round_digits(ranges, -2);
  Tzu_scale_prm* row = zu_rng_scale_get_scale_prm_ptr(ranges, 1);
  zu_scale_prm_set_visible(row, false);
  row->style.colors[1] = {1, 2, 3, 4};
  zu_stl_prm_get_pln_style_ptr(&row->style, 0)->line.width = 0.7;
  Tzu_val_scale* values = zu_stl_mngr_get_val_scale_ptr(saved.get());
  zu_val_scale_set_size(values, 1);
  zu_val_scale_set_text_w(values, 0, L"sand");
  node_ptr tree = read_back(saving(saved.get()));
  ASSERT_TRUE(load(tree.get(), lines, loaded.get()));

  EXPECT_EQ(zu_stl_mngr_get_mode(loaded.get()), zu_style_range);
  ranges = zu_stl_mngr_get_rng_scale_ptr(loaded.get());
  ASSERT_EQ(zu_rng_scale_get_size(ranges), 2u);
  EXPECT_EQ(zu_rng_scale_get_max(ranges, 1), 12.5);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(ranges, 1, a); }), L"high");
  EXPECT_TRUE(std::isnan(zu_rng_scale_get_max_value(ranges)));
  EXPECT_EQ(zu_rng_scale_get_round_digits(ranges), -2);
  row = zu_rng_scale_get_scale_prm_ptr(ranges, 1);
  EXPECT_FALSE(zu_scale_prm_get_visible(row));
  EXPECT_EQ(row->style.colors[1].b, 3);
  EXPECT_EQ(zu_stl_prm_get_pln_style_ptr(&row->style, 0)->line.width, 0.7);
  values = zu_stl_mngr_get_val_scale_ptr(loaded.get());
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(values, 0, a); }), L"sand");
}

TEST(style_groups, a_manager_is_read_under_its_own_type_name_only) {
  style_maker make(1);
  manager_ptr saved = make.manager(colors), other = make.manager(lines);
  std::wstring before = written_by(saving(other.get()));
  node_ptr tree = read_back(saving(saved.get()));
  EXPECT_FALSE(load(tree.get(), lines, other.get()));
  EXPECT_FALSE(load(tree.get(), colors, other.get()));
  EXPECT_FALSE(load(tree.get(), nullptr, other.get()));
  EXPECT_FALSE(load(tree.get(), "pnt_mngr_style", other.get()));
  EXPECT_EQ(written_by(saving(other.get())), before);
}

TEST(style_groups, a_group_of_the_time_before_marks_and_rules_is_read) {
  node_ptr tree = tree_of(R"(<r>
    <styles type="pln_mngr_style" mode="1">
      <simple color="1 2 3 0" selected="255 255 0 0">
        <line width="0.5" dashes="2 1" cap="0" join="2" color="9 8 7 6" visible="0" label="1"/>
      </simple>
      <values field="z"><row text="1" visible="1" color="4 5 6 7"/></values>
    </styles></r>)");
  manager_ptr loaded = style_maker(4).manager(lines), fresh(zu_stl_mngr_create(lines));
  ASSERT_TRUE(load(tree.get(), lines, loaded.get()));
  const Tzu_pln_style expected;
  const Tzu_pln_style& line =
      *zu_stl_prm_get_pln_style_ptr(zu_stl_mngr_get_simple_sp_ptr(loaded.get()), 0);
  EXPECT_EQ(line.line.width, 0.5);
  EXPECT_EQ(line.line.dashes, (std::vector<double>{2, 1}));
  EXPECT_EQ(line.line.join, zu_join_bevel);
  EXPECT_EQ(line.line.color.a, 6);
  EXPECT_FALSE(line.line_visible);
  EXPECT_TRUE(line.number_visible);
  EXPECT_EQ(line.end.figure, expected.end.figure);
  EXPECT_FALSE(line.end_visible);
  EXPECT_EQ(zu_val_scale_get_size(zu_stl_mngr_get_rule_scale_ptr(loaded.get())), 0u);
}

TEST(style_groups, layers_of_unknown_types_and_too_many_are_left_out) {
  std::string layers = "<layer type='pnt_new_slr'/><layer type='pln_line_slr'/><layer/>";
  for (int i = 0; i < 1500; ++i) layers += "<layer type='pnt_figr_slr' figure='3' size='-1'/>";
  node_ptr tree = tree_of(
      "<r><styles type='pnt_mngr_style'><simple><point use_complex='1'>"
      "<complex>" +
      layers + "</complex></point></simple></styles></r>");
  manager_ptr loaded(zu_stl_mngr_create("pnt_mngr_style"));
  ASSERT_TRUE(load(tree.get(), "pnt_mngr_style", loaded.get()));
  const Tzu_bpnt_style& point =
      zu_stl_prm_get_pnt_style_ptr(zu_stl_mngr_get_simple_sp_ptr(loaded.get()), 0)->point;
  ASSERT_NE(point.drawn_complex(), nullptr);
  EXPECT_EQ(point.drawn_complex()->layers.size(), 1000u);
  EXPECT_EQ(std::get<Tzu_bpnt_style>(point.drawn_complex()->layers[0].style).figure, 3);
  EXPECT_EQ(std::get<Tzu_bpnt_style>(point.drawn_complex()->layers[0].style).size, 2.0);
}

TEST(style_groups, broken_fields_of_symbols_are_those_of_a_new_one) {
  node_ptr tree = tree_of(R"(<r><styles type="pnt_mngr_style"><simple color="7 7 7 7">
      <point figure="16" symbol="55296" color="1 2 3" size="-1" dx="nan" dy="inf" angle="x"/>
    </simple></styles></r>)");
  manager_ptr loaded(zu_stl_mngr_create("pnt_mngr_style"));
  ASSERT_TRUE(load(tree.get(), "pnt_mngr_style", loaded.get()));
  Tzu_pnt_style expected;
  expected.point.color = {7, 7, 7, 7};  // as that of the parameters
  EXPECT_EQ(facts(*zu_stl_prm_get_pnt_style_ptr(zu_stl_mngr_get_simple_sp_ptr(loaded.get()), 0)),
            facts(expected));
}

TEST(style_groups, an_absent_group_leaves_the_object) {
  style_maker make(2);
  manager_ptr manager = make.manager(colors);
  hillshade_ptr shade = make.hillshade();
  isoline_ptr isolines = make.isolines();
  std::wstring before = written_by(saving(manager.get()));
  node_ptr empty = tree_of("<r/>");
  EXPECT_FALSE(load(empty.get(), colors, manager.get()));
  EXPECT_FALSE(
      zu_xml_save_style_load_hillshade_style(nullptr, empty.get(), L"hillshade", shade.get()));
  EXPECT_FALSE(
      zu_xml_save_style_load_isoline_style(nullptr, empty.get(), L"isoline", isolines.get()));
  EXPECT_FALSE(load(nullptr, colors, manager.get()));
  EXPECT_FALSE(load(empty.get(), colors, nullptr));
  EXPECT_EQ(written_by(saving(manager.get())), before);
}

TEST(style_groups, broken_values_are_those_of_a_new_object) {
  node_ptr tree = tree_of(R"(<r>
    <styles type="clr_mngr_style" mode="77">
      <simple color="300 0 0 0" selected="1 2 3"/>
      <ranges type="-5" digits="1000000000000">
        <lower value="1e999"/>
        <row min="x" max="1,5" color="1 2 3 4 5" visible="perhaps"/>
      </ranges>
    </styles>
    <isoline use="2" thin_step="1e999">
      <thin width="-1" dashes="1 2 3 4 5 6 7 8 9" cap="3" join="-1" color="red"/>
      <bold width="inf" dashes="1 nan"/>
    </isoline></r>)");
  manager_ptr loaded = style_maker(3).manager(colors), expected(zu_stl_mngr_create(colors));
  zu_rng_scale_set_size(zu_stl_mngr_get_rng_scale_ptr(expected.get()), 1);
  EXPECT_TRUE(load(tree.get(), colors, loaded.get()));
  EXPECT_EQ(written_by(saving(loaded.get())), written_by(saving(expected.get())));
  isoline_ptr isolines = style_maker(3).isolines(), fresh(zu_isoline_style_create());
  EXPECT_TRUE(
      zu_xml_save_style_load_isoline_style(nullptr, tree.get(), L"isoline", isolines.get()));
  EXPECT_EQ(written_by(saving(isolines.get())), written_by(saving(fresh.get())));
}

TEST(style_groups, a_shorter_scale_replaces_a_longer_one_in_the_tree) {
  manager_ptr manager(zu_stl_mngr_create(colors)), loaded(zu_stl_mngr_create(colors));
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager.get());
  node_ptr root(zu_xnode_create_root_w(L"r"));
  for (std::uint64_t size : {7u, 2u}) {
    zu_rng_scale_set_size(scale, size);
    saving(manager.get())(root.get());
    ASSERT_TRUE(load(root.get(), colors, loaded.get()));
    EXPECT_EQ(zu_rng_scale_get_size(zu_stl_mngr_get_rng_scale_ptr(loaded.get())), size);
  }
}

TEST(style_groups, more_than_a_million_rows_are_refused) {
  std::string rows;
  for (int i = 0; i < 1000001; ++i) rows += "<row/>";
  for (const char* scale : {"values", "ranges", "rules"}) {
    std::string name = scale;
    node_ptr tree = tree_of("<r><styles type=\"clr_mngr_style\" mode=\"1\"><" + name + ">" + rows +
                            "</" + name + "></styles></r>");
    ASSERT_TRUE(tree);
    manager_ptr manager(zu_stl_mngr_create(colors));
    EXPECT_FALSE(load(tree.get(), colors, manager.get()));
    EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_simple);
  }
}

}  // namespace
