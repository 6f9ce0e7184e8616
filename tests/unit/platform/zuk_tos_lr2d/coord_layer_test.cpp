// Layers of nodes with coordinate columns: their box, their state and how they are drawn.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <iterator>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_file_tos4.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_tos_lr2d.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using zu::platform::owned;
using rgba = std::array<int, 4>;

constexpr double none = -9999;

/// Four nodes; the last has no x.
std::wstring nodes(const std::string& name) {
  std::wstring path = (std::filesystem::path(testing::TempDir()) / name).wstring();
  std::filesystem::remove(path);
  Tzu_tos4_grid grid{zu_tos4_two_columns, {4, 1, 1}, {0, 0, 0}, {1, 1, 1}, 0.0, nullptr};
  owned<zu_tos4_file_close> file(zu_tos4_file_create_w(path.c_str(), &grid));
  struct {
    const wchar_t* name;
    std::array<double, 4> values;
  } const columns[] = {{L"v", {1, 2, 3, 4}}, {L"x", {5, 15, 25, none}}, {L"y", {5, 15, 5, 5}}};
  for (const auto& c : columns) {
    Tzu_tos4_prop property{c.name, nullptr, 10, 0, true, none};
    std::int32_t index = zu_tos4_file_add_prop(file.get(), &property);
    EXPECT_TRUE(
        zu_tos4_file_write(file.get(), static_cast<std::uint32_t>(index), 0, 4, c.values.data()));
  }
  EXPECT_TRUE(zu_tos4_file_set_coord_prop(file.get(), 0, 1));
  EXPECT_TRUE(zu_tos4_file_set_coord_prop(file.get(), 1, 2));
  EXPECT_TRUE(zu_tos4_file_commit(file.get()));
  return path;
}

struct coord_bench {
  owned<zu_lr2d_destroy> layer{zu_lr2d_create("tos_2crd_lr2d")};
  owned<zu_scn_2d_destroy> scene{zu_scn_2d_create()};
  owned<zu_drwc_destroy> page{zu_drwc_create_image(30, 20, 25.4, false)};  // a pixel a millimetre
  owned<zu_render_destroy> render;

  explicit coord_bench(const std::wstring& source) {
    Tzu_box_d2 box{0, 0, 30, 20};
    render.reset(zu_render_create(page.get(), &box));
    zu_scn_2d_add_layer(scene.get(), layer.get());
    zu_lr2d_set_wsource(layer.get(), source.c_str());
    zu_tos_2crd_lr2d_set_point_size(layer.get(), 4);
    Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(manager());
    zu_stl_prm_clr_set_all(simple, {200, 0, 0, 0}, 0);
    zu_stl_prm_clr_set_all(simple, {0, 200, 0, 0}, 1);
  }
  ~coord_bench() { zu_scn_2d_remove_layer(scene.get(), layer.get()); }
  Tzu_stl_mngr* manager() { return zu_tos_2crd_lr2d_get_clr_stl_mngr_ptr(layer.get()); }
  void draw() { zu_tos_2crd_lr2d_draw(render.get(), layer.get()); }
  /// The pixel at a point of the map.
  rgba at(std::size_t x, std::size_t y) {
    std::vector<std::uint8_t> all(30 * 20 * 4);
    zu_drwc_get_pixels(page.get(), all.data());
    const std::uint8_t* p = &all[((19 - y) * 30 + x) * 4];
    return {p[0], p[1], p[2], p[3]};
  }
};

constexpr rgba red{200, 0, 0, 255}, nothing{0, 0, 0, 0};

TEST(coord_layer, its_nodes_are_points_where_their_columns_say) {
  coord_bench b(nodes("coord_points.pgrid"));
  b.draw();
  EXPECT_EQ(b.at(5, 5), red);
  EXPECT_EQ(b.at(15, 15), red);
  EXPECT_EQ(b.at(25, 5), red);
  EXPECT_EQ(b.at(15, 5), nothing);
  EXPECT_EQ(b.at(0, 5), nothing);
}

TEST(coord_layer, its_points_have_the_colours_of_a_scale_and_the_hidden_ones_none) {
  coord_bench b(nodes("coord_scale.pgrid"));
  zu_stl_mngr_set_mode(b.manager(), zu_style_value);
  zu_stl_mngr_set_val_prop_name_w(b.manager(), L"v");
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(b.manager());
  zu_val_scale_set_size(scale, 1);
  zu_val_scale_set_text_w(scale, 0, L"2");
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale, 0)),
                         {1, 2, 3, 0}, 0);
  zu_scale_prm_set_visible(zu_val_scale_get_other_prm_ptr(scale), false);
  zu_tos_2crd_lr2d_set_point_size(b.layer.get(), 4);
  b.draw();
  EXPECT_EQ(b.at(15, 15), (rgba{1, 2, 3, 255}));
  EXPECT_EQ(b.at(5, 5), nothing);
}

TEST(coord_layer, selected_nodes_have_the_scenes_colour_or_their_own) {
  for (bool own : {false, true}) {
    coord_bench b(nodes("coord_selected.pgrid"));
    zu_scn_2d_set_selected_style_clr(b.scene.get(), {{250, 240, 0, 0}, 1});
    zu_lr_set_own_selected_style_flag(b.layer.get(), own);
    zu_table_data_set_selected_id(zu_lr2d_get_data_ptr(b.layer.get()), 1, true);
    b.draw();
    EXPECT_EQ(b.at(15, 15), own ? (rgba{0, 200, 0, 255}) : (rgba{250, 240, 0, 255}));
    EXPECT_EQ(b.at(5, 5), red);
  }
}

TEST(coord_layer, its_points_are_the_symbols_of_their_rows) {
  coord_bench b(nodes("coord_symbols.pgrid"));
  zu_stl_mngr_set_mode(b.manager(), zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(b.manager(), L"v");
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(b.manager());
  zu_rng_scale_set_size(scale, 2);
  for (int i = 0; i < 2; ++i) {
    zu_rng_scale_set_min(scale, i, i + 0.5);
    zu_rng_scale_set_max(scale, i, i + 1.5);
    Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(
        zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale, i)), 0));
    zu_bpnt_style_set_figure(point, i == 0 ? zu_figure_square : zu_figure_square_frame);
    zu_bpnt_style_set_color(point, {200, 0, 0, 0});
    zu_bpnt_style_set_size(point, 6);
  }
  zu_rng_scale_set_min_value(scale, 0.5);
  zu_rng_scale_set_max_value(scale, 2.5);
  zu_scale_prm_set_visible(zu_rng_scale_get_max_prm_ptr(scale), false);
  b.draw();
  EXPECT_EQ(b.at(5, 5), red);        // 1: a square
  EXPECT_EQ(b.at(15, 15), nothing);  // 2: a frame
  EXPECT_EQ(b.at(12, 15), red);
  EXPECT_EQ(b.at(25, 5), nothing);  // 3: the hidden tail
}

/// The nodes 1 and 3 in symbols so large that they meet at (15, 5); 2 does not show.
struct two_symbols : coord_bench {
  explicit two_symbols(const std::string& name) : coord_bench(nodes(name)) {
    zu_stl_mngr_set_mode(manager(), zu_style_value);
    zu_stl_mngr_set_val_prop_name_w(manager(), L"v");
    zu_val_scale_set_size(scale(), 2);
    zu_val_scale_set_text_w(scale(), 0, L"1");
    zu_val_scale_set_text_w(scale(), 1, L"3");
    zu_scale_prm_set_visible(zu_val_scale_get_other_prm_ptr(scale()), false);
    for (int selected : {0, 1}) {
      set(0, selected, {200, 0, 0, 0});
      set(1, selected, {0, 0, 200, 0});
    }
  }
  Tzu_val_scale* scale() { return zu_stl_mngr_get_val_scale_ptr(manager()); }
  Tzu_bpnt_style* part(std::uint64_t row, int selected) {
    return zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(
        zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale(), row)), selected));
  }
  void set(std::uint64_t row, int selected, Tzu_color color) {
    zu_bpnt_style_set_figure(part(row, selected), zu_figure_square);
    zu_bpnt_style_set_size(part(row, selected), 24);
    zu_bpnt_style_set_color(part(row, selected), color);
  }
  rgba drawn(bool use_levels) {
    zu_stl_mngr_set_use_render_levels(manager(), use_levels);
    draw();
    return at(15, 5);
  }
};
constexpr rgba blue{0, 0, 200, 255};

TEST(coord_layer, a_symbol_of_a_higher_level_lies_over_those_of_lower_ones) {
  struct {
    std::int32_t first, second;
    bool use;
    rgba on_top;
  } const cases[] = {{0, 0, true, blue},  {1, 0, true, red},    {0, 1, true, blue},
                     {-1, -2, true, red}, {-2, -1, true, blue}, {1, 0, false, blue}};
  for (const auto& c : cases) {
    two_symbols b("coord_levels.pgrid");
    zu_bpnt_style_set_render_level(b.part(0, 0), c.first);
    zu_bpnt_style_set_render_level(b.part(1, 0), c.second);
    EXPECT_EQ(b.drawn(c.use), c.on_top) << c.first << ' ' << c.second << ' ' << c.use;
  }
}

TEST(coord_layer, layers_of_complex_symbols_are_drawn_by_their_own_levels) {
  for (int level : {-1, 1}) {
    two_symbols b("coord_layers.pgrid");
    Tzu_bpnt_style* first = b.part(0, 0);
    Tzu_style_lr* layer = zu_style_lrs_add_lr(
        zu_cpx_style_get_style_lrs_ptr(zu_bpnt_style_get_complex_style(first)), "pnt_symb_slr");
    zu_style_lr_set_render_level(layer, 0);
    layer = zu_style_lrs_add_lr(
        zu_cpx_style_get_style_lrs_ptr(zu_bpnt_style_get_complex_style(first)), "pnt_figr_slr");
    zu_style_lr_set_render_level(layer, level);
    zu_cpx_pnt_style_set_point_size(zu_bpnt_style_get_complex_style(first), 40);
    zu_bpnt_style_set_render_level(first, 5);  // that of the plain symbol, which is not drawn
    zu_bpnt_style_set_use_complex(first, true);
    EXPECT_EQ(b.drawn(true), level > 0 ? (rgba{128, 128, 128, 255}) : blue) << level;
  }
}

TEST(coord_layer, what_is_selected_lies_over_every_level) {
  for (bool own : {false, true}) {
    two_symbols b("coord_levels_selected.pgrid");
    zu_scn_2d_set_selected_style_clr(b.scene.get(), {{250, 240, 0, 0}, 1});
    zu_lr_set_own_selected_style_flag(b.layer.get(), own);
    zu_table_data_set_selected_id(zu_lr2d_get_data_ptr(b.layer.get()), 0, true);
    zu_bpnt_style_set_render_level(b.part(0, 0), 2);
    zu_bpnt_style_set_render_level(b.part(0, 1), 2);
    zu_bpnt_style_set_render_level(b.part(1, 0), 3);
    EXPECT_EQ(b.drawn(true), own ? red : (rgba{250, 240, 0, 255}));
  }
}

TEST(coord_layer, its_points_show_by_the_first_rule_that_holds) {
  coord_bench b(nodes("coord_rules.pgrid"));
  zu_stl_mngr_set_mode(b.manager(), zu_style_rule);
  Tzu_val_scale* scale = zu_stl_mngr_get_rule_scale_ptr(b.manager());
  const wchar_t* rules[] = {L"no rule", L"and \"v\" greater number \"2\"",
                            L"and \"v\" equal text \"2\"; or \"x\" less number \"0\"",
                            L"and \"none\" less number \"5\""};
  zu_val_scale_set_size(scale, std::size(rules));
  for (std::uint64_t i = 0; i < std::size(rules); ++i) {
    zu_val_scale_set_text_w(scale, i, rules[i]);
    zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale, i)),
                           {static_cast<std::uint8_t>(i), 0, 0, 0}, 0);
  }
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_other_prm_ptr(scale)),
                         {9, 0, 0, 0}, 0);
  zu_scale_prm_set_visible(zu_val_scale_get_other_prm_ptr(scale), true);
  zu_tos_2crd_lr2d_set_point_size(b.layer.get(), 4);
  b.draw();
  EXPECT_EQ(b.at(25, 5), (rgba{1, 0, 0, 255}));
  EXPECT_EQ(b.at(15, 15), (rgba{2, 0, 0, 255}));
  EXPECT_EQ(b.at(5, 5), (rgba{9, 0, 0, 255}));
}

TEST(coord_layer, selected_points_lie_above_the_others) {
  coord_bench b(nodes("coord_above.pgrid"));
  zu_tos_2crd_lr2d_set_point_size(b.layer.get(), 30);
  zu_lr_set_own_selected_style_flag(b.layer.get(), true);
  zu_table_data_set_selected_id(zu_lr2d_get_data_ptr(b.layer.get()), 0, true);
  b.draw();
  EXPECT_EQ(b.at(14, 14), (rgba{0, 200, 0, 255}));
}

TEST(coord_layer, its_box_is_that_of_its_nodes) {
  coord_bench b(nodes("coord_box.pgrid"));
  zu_lr2d_update_box(b.layer.get());
  Tzu_box_d2 box{};
  ASSERT_TRUE(zu_lr2d_get_box(b.layer.get(), &box));
  EXPECT_EQ(box.x0, 5);
  EXPECT_EQ(box.y0, 5);
  EXPECT_EQ(box.x1, 25);
  EXPECT_EQ(box.y1, 15);
}

TEST(coord_layer, a_source_without_columns_has_no_box_and_no_points) {
  coord_bench b(L"/no/such.pgrid");
  zu_lr2d_update_box(b.layer.get());
  b.draw();
  Tzu_box_d2 box{};
  EXPECT_FALSE(zu_lr2d_get_box(b.layer.get(), &box));
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
}

TEST(coord_layer, a_layer_of_another_type_is_left_alone) {
  coord_bench b(nodes("coord_other.pgrid"));
  owned<zu_lr2d_destroy> other(zu_lr2d_create("tos_grid_lr2d"));
  zu_tos_2crd_lr2d_draw(b.render.get(), other.get());
  zu_tos_2crd_lr2d_draw(b.render.get(), nullptr);
  zu_tos_2crd_lr2d_draw(nullptr, b.layer.get());
  EXPECT_FALSE(zu_drwc_has_ink(b.page.get()));
  EXPECT_EQ(zu_tos_2crd_lr2d_get_clr_stl_mngr_ptr(other.get()), nullptr);
}

TEST(coord_layer, its_settings_come_back_from_the_tree) {
  coord_bench b(L"");
  zu_tos_2crd_lr2d_set_point_size(b.layer.get(), 2.5);
  zu_tos_2crd_lr2d_set_point_size(b.layer.get(), NAN);
  zu_stl_mngr_set_mode(b.manager(), zu_style_range);
  owned<zu_xnode_close> node(zu_xnode_create_root_w(L"layer"));
  zu_lr2d_save_state(b.layer.get(), node.get(), nullptr);
  owned<zu_lr2d_destroy> read(zu_lr2d_create("tos_2crd_lr2d"));
  zu_lr2d_load_state(read.get(), node.get(), nullptr);
  EXPECT_EQ(zu_tos_2crd_lr2d_get_point_size(read.get()), 2.5);
  EXPECT_EQ(zu_stl_mngr_get_mode(zu_lr_get_style_mngr_ptr(read.get())), zu_style_range);
}

TEST(coord_layer, a_tree_that_knows_colours_and_one_size_gives_squares) {
  owned<zu_xnode_close> node(zu_xnode_create_root_w(L"layer"));
  owned<zu_stl_mngr_destroy> colors(zu_clr_stl_mngr_create());
  zu_stl_mngr_set_mode(colors.get(), zu_style_value);
  zu_stl_mngr_set_val_prop_name_w(colors.get(), L"v");
  zu_val_scale_set_size(zu_stl_mngr_get_val_scale_ptr(colors.get()), 1);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(
                             zu_stl_mngr_get_val_scale_ptr(colors.get()), 0)),
                         {1, 2, 3, 0}, 0);
  zu_xml_save_style_save_mngr_style(nullptr, node.get(), L"styles", "clr_mngr_style", colors.get());
  owned<zu_xnode_close> params(zu_xnode_set_node_w(node.get(), L"coord_params"));
  zu_xnode_set_attr_dbl_w(params.get(), L"point_size", 2.5);
  owned<zu_lr2d_destroy> read(zu_lr2d_create("tos_2crd_lr2d"));
  zu_lr2d_load_state(read.get(), node.get(), nullptr);
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(read.get());
  EXPECT_STREQ(zu_stl_mngr_get_style_type(manager), "pnt_mngr_style");
  EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_value);
  EXPECT_EQ(zu_tos_2crd_lr2d_get_point_size(read.get()), 2.5);
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  ASSERT_EQ(zu_val_scale_get_size(scale), 1u);
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(
      zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale, 0)), 0));
  EXPECT_EQ(zu_bpnt_style_get_figure(point), zu_figure_square);
  EXPECT_EQ(zu_bpnt_style_get_size(point), 2.5);
  EXPECT_EQ(zu_bpnt_style_get_color(point).b, 3);
}

}  // namespace
