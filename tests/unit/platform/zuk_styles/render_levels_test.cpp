#include "platform/zuk_styles/render_levels.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_styles.h"

namespace zu::test {
namespace {

using platform::owned;

std::vector<std::int64_t> levels_of(const Tzu_stl_mngr* manager) {
  owned<zu_ints_destroy> list(zu_ints_create());
  zu_stl_mngr_get_render_levels(manager, list.get());
  std::vector<std::int64_t> all;
  for (std::uint64_t i = 0; i < zu_ints_get_size(list.get()); ++i)
    all.push_back(zu_ints_get(list.get(), i));
  return all;
}
using levels = std::vector<std::int64_t>;

TEST(render_levels, are_0_until_set_and_null_says_the_same) {
  Tzu_bpnt_style point;
  Tzu_bpln_style line;
  Tzu_bpgn_style fill;
  Tzu_bnum_style number;
  auto check = [](auto get, auto set, auto* part) {
    EXPECT_EQ(get(part), 0);
    set(part, -7);
    EXPECT_EQ(get(part), -7);
    set(nullptr, 5);
    EXPECT_EQ(get(nullptr), 0);
  };
  check(zu_bpnt_style_get_render_level, zu_bpnt_style_set_render_level, &point);
  check(zu_bpln_style_get_render_level, zu_bpln_style_set_render_level, &line);
  check(zu_bpgn_style_get_render_level, zu_bpgn_style_set_render_level, &fill);
  check(zu_bnum_style_get_render_level, zu_bnum_style_set_render_level, &number);
}

TEST(render_levels, each_layer_of_a_complex_style_has_one) {
  owned<zu_cpx_style_destroy> style(zu_cpx_style_create("pln"));
  Tzu_style_lrs* layers = zu_cpx_style_get_style_lrs_ptr(style.get());
  EXPECT_EQ(zu_style_lrs_get_size(layers), 0u);
  EXPECT_EQ(zu_style_lrs_add_lr(layers, "pgn_fill_slr"), nullptr);
  EXPECT_EQ(zu_style_lrs_add_lr(layers, nullptr), nullptr);
  EXPECT_NE(zu_style_lrs_add_lr(layers, "pln_line_slr"), nullptr);
  zu_style_lr_set_render_level(zu_style_lrs_add_lr(layers, "pln_line_slr"), 3);
  EXPECT_EQ(zu_style_lrs_get_size(layers), 2u);
  EXPECT_EQ(zu_style_lr_get_render_level(zu_style_lrs_get_lr_ptr(layers, 0)), 0);
  EXPECT_EQ(zu_style_lr_get_render_level(zu_style_lrs_get_lr_ptr(layers, 1)), 3);
  EXPECT_STREQ(zu_style_lr_get_type(zu_style_lrs_get_lr_ptr(layers, 1)), "pln_line_slr");
  EXPECT_EQ(zu_style_lrs_get_lr_ptr(layers, 2), nullptr);
  EXPECT_STREQ(zu_style_lr_get_type(nullptr), "");
  zu_style_lr_assign(zu_style_lrs_get_lr_ptr(layers, 0), zu_style_lrs_get_lr_ptr(layers, 1));
  EXPECT_EQ(zu_style_lr_get_render_level(zu_style_lrs_get_lr_ptr(layers, 0)), 3);
}

TEST(render_levels, a_layer_becomes_a_copy_of_its_own_type_only) {
  owned<zu_cpx_style_destroy> style(zu_cpx_style_create("pnt"));
  Tzu_style_lrs* layers = zu_cpx_style_get_style_lrs_ptr(style.get());
  zu_style_lrs_add_lr(layers, "pnt_figr_slr");
  zu_style_lr_set_render_level(zu_style_lrs_add_lr(layers, "pnt_symb_slr"), 3);
  zu_style_lr_assign(zu_style_lrs_get_lr_ptr(layers, 0), zu_style_lrs_get_lr_ptr(layers, 1));
  EXPECT_STREQ(zu_style_lr_get_type(zu_style_lrs_get_lr_ptr(layers, 0)), "pnt_figr_slr");
  EXPECT_EQ(zu_style_lr_get_render_level(zu_style_lrs_get_lr_ptr(layers, 0)), 0);
}

TEST(render_levels, a_style_shows_the_parts_of_one_level) {
  Tzu_pln_style line, part;
  line.begin_visible = true;
  line.begin.render_level = 2;
  ASSERT_TRUE(zu_pln_style_assign_level(&part, &line, 0));
  EXPECT_TRUE(part.line_visible);
  EXPECT_FALSE(part.begin_visible);
  ASSERT_TRUE(zu_pln_style_assign_level(&part, &line, 2));
  EXPECT_FALSE(part.line_visible);
  EXPECT_TRUE(part.begin_visible);
  EXPECT_FALSE(zu_pln_style_assign_level(&part, &line, 1));
  EXPECT_TRUE(part.begin_visible);  // as it was
  EXPECT_FALSE(zu_pln_style_assign_level(nullptr, &line, 0));
  EXPECT_FALSE(zu_pln_style_assign_level(&part, nullptr, 0));
}

TEST(render_levels, a_complex_part_shows_its_layers_of_one_level_and_its_own_level_is_none) {
  Tzu_pgn_style polygon, part;
  polygon.contour_visible = false;
  polygon.fill.use_complex = true;
  polygon.fill.render_level = 9;
  for (int level : {1, 2, 1})
    zu_style_lr_set_render_level(polygon.fill.complex.made()->add_layer("pgn_fill_slr"), level);
  ASSERT_TRUE(zu_pgn_style_assign_level(&part, &polygon, 1));
  EXPECT_EQ(part.fill.complex.get()->layers.size(), 2u);
  ASSERT_TRUE(zu_pgn_style_assign_level(&part, &polygon, 2));
  EXPECT_EQ(part.fill.complex.get()->layers.size(), 1u);
  EXPECT_FALSE(zu_pgn_style_assign_level(&part, &polygon, 9));
  EXPECT_EQ(polygon.fill.complex.get()->layers.size(), 3u);
}

TEST(render_levels, a_manager_draws_those_of_the_styles_in_use_and_0) {
  owned<zu_stl_mngr_destroy> manager(zu_stl_mngr_create("pnt_mngr_style"));
  auto set = [](Tzu_stl_prm* prm, int selected, int level) {
    zu_bpnt_style_set_render_level(
        zu_pnt_style_get_bpnt_style_ptr(zu_stl_prm_get_pnt_style_ptr(prm, selected)), level);
  };
  set(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0, 5);
  set(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 1, -5);
  Tzu_rng_scale* ranges = zu_stl_mngr_get_rng_scale_ptr(manager.get());
  zu_rng_scale_set_size(ranges, 1);
  set(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(ranges, 0)), 0, 1);
  set(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_min_prm_ptr(ranges)), 0, 2);
  set(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_max_prm_ptr(ranges)), 0, 3);
  set(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_other_prm_ptr(ranges)), 0, 4);
  Tzu_val_scale* rules = zu_stl_mngr_get_rule_scale_ptr(manager.get());
  zu_val_scale_set_size(rules, 1);
  set(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(rules, 0)), 0, 7);

  EXPECT_FALSE(zu_stl_mngr_get_use_render_levels(manager.get()));
  EXPECT_EQ(levels_of(manager.get()), levels{});
  zu_stl_mngr_set_use_render_levels(manager.get(), true);
  EXPECT_EQ(levels_of(manager.get()), (levels{-5, 0, 5}));
  zu_stl_mngr_set_mode(manager.get(), zu_style_range);
  EXPECT_EQ(levels_of(manager.get()), (levels{0, 1, 2, 3, 4}));
  zu_stl_mngr_set_mode(manager.get(), zu_style_rule);
  EXPECT_EQ(levels_of(manager.get()), (levels{0, 7}));
  zu_stl_mngr_set_mode(manager.get(), zu_style_value);
  EXPECT_EQ(levels_of(manager.get()), levels{0});

  owned<zu_stl_mngr_destroy> copy(zu_stl_mngr_create("pnt_mngr_style"));
  zu_stl_mngr_assign(copy.get(), manager.get());
  zu_stl_mngr_set_mode(copy.get(), zu_style_simple);
  EXPECT_EQ(levels_of(copy.get()), (levels{-5, 0, 5}));
  EXPECT_FALSE(zu_stl_mngr_get_use_render_levels(nullptr));
  EXPECT_EQ(levels_of(nullptr), levels{});
}

}  // namespace
}  // namespace zu::test
