// Profiles on a page, through their service.

#include <gtest/gtest.h>

#include <cmath>

#include "src/render/tos4_lr2d_render_services.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/render/layer_bench.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace {

using namespace zu;
using tests::layer_bench;
using tests::made_grid;
using tests::page;
using tests::rgba;

constexpr rgba nothing{0, 0, 0, 0};
constexpr rgba line{200, 0, 0, 255}, selected_line{0, 0, 200, 255}, scene_line{0, 200, 0, 255};

using owned_line = owned<zu_pln_style_destroy>;

owned_line line_of(const rgba& c) {
  owned_line style(zu_pln_style_create());
  Tzu_bpln_style* line = zu_pln_style_get_bpln_style_ptr(style.get());
  zu_bpln_style_set_width(line, 1.0);
  zu_bpln_style_set_color(line, {static_cast<std::uint8_t>(c[0]), static_cast<std::uint8_t>(c[1]),
                                 static_cast<std::uint8_t>(c[2]), 0});
  return style;
}

void style(Tzu_stl_prm* prm) {
  owned_line normal = line_of(line), selected = line_of(selected_line);
  zu_pln_style_assign(zu_stl_prm_get_pln_style_ptr(prm, 0), normal.get());
  zu_pln_style_assign(zu_stl_prm_get_pln_style_ptr(prm, 1), selected.get());
}

/// Forty samples, at x = 0.5 to 39.5; one level curve a band, at these heights.
std::wstring curves(const std::string& name, const std::vector<double>& heights,
                    double azimuth = 0.0) {
  made_grid file(name, 40, 1, GDT_Float64, static_cast<int>(heights.size()));
  double radians = azimuth * std::acos(-1.0) / 180.0;
  if (azimuth != 0.0) file.transform({0, std::cos(radians), 0, 0.5, std::sin(radians), -1});
  for (std::size_t i = 0; i < heights.size(); ++i)
    file.values(static_cast<int>(i) + 1, std::vector<double>(40, heights[i]));
  return file.close();
}

struct profile_bench : layer_bench<tos4_grid1d_lr2d_render_service> {
  explicit profile_bench(const std::wstring& source) : layer_bench("tos_grid_lr1d", source) {
    style(zu_stl_mngr_get_simple_sp_ptr(manager()));
    Tzu_box_d2 all{-1e12, -1e12, 1e12, 1e12};
    zu_lr2d_set_box(layer.get(), true, &all);
  }
  Tzu_stl_mngr* manager() { return zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(layer.get()); }
  /// A page of a pixel a unit, x and y from 0 to 40.
  page drawn() {
    page shown(40, 40, {0, 0, 40, 40});
    draw(shown);
    return shown;
  }
};

/// The pixel whose lower left corner is (x, y) of the map.
rgba at(page& shown, std::uint64_t x, std::uint64_t y) { return shown.pixel(x, 39 - y); }

TEST(profile, every_band_is_a_curve_in_the_simple_style) {
  profile_bench b(curves("profile_simple.tif", {10.5, 30.5}));
  page shown = b.drawn();
  EXPECT_EQ(at(shown, 20, 10), line);
  EXPECT_EQ(at(shown, 20, 30), line);
  EXPECT_EQ(at(shown, 20, 20), nothing);
}

TEST(profile, a_height_property_leaves_one_band) {
  profile_bench b(curves("profile_height.tif", {10.5, 30.5}));
  zu_tos_grid_1d_lr2d_set_height_prp_name_w(b.layer.get(), L"Band 2");
  page shown = b.drawn();
  EXPECT_EQ(at(shown, 20, 10), nothing);
  EXPECT_EQ(at(shown, 20, 30), line);
  zu_tos_grid_1d_lr2d_set_height_prp_name_w(b.layer.get(), L"no such band");
  EXPECT_TRUE(b.drawn().is_empty());
}

TEST(profile, by_values_a_band_has_the_class_of_its_name_and_else_the_other_one) {
  profile_bench b(curves("profile_values.tif", {10.5, 20.5, 30.5}));
  zu_stl_mngr_set_mode(b.manager(), zu_style_value);
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(b.manager());
  zu_val_scale_set_size(scale, 2);
  zu_val_scale_set_text_w(scale, 0, L"Band 1");
  zu_val_scale_set_text_w(scale, 1, L"Band 3");
  for (std::uint64_t i : {0, 1})
    style(zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale, i)));
  zu_scale_prm_set_visible(zu_val_scale_get_scale_prm_ptr(scale, 1), false);
  Tzu_scale_prm* other = zu_val_scale_get_other_prm_ptr(scale);
  owned_line green = line_of({0, 99, 0, 255});
  zu_pln_style_assign(zu_stl_prm_get_pln_style_ptr(zu_scale_prm_get_stl_prm_ptr(other), 0),
                      green.get());
  for (bool visible : {true, false}) {
    zu_scale_prm_set_visible(other, visible);
    page shown = b.drawn();
    EXPECT_EQ(at(shown, 20, 10), line);
    EXPECT_EQ(at(shown, 20, 20), visible ? (rgba{0, 99, 0, 255}) : nothing);
    EXPECT_EQ(at(shown, 20, 30), nothing);
  }
}

TEST(profile, of_two_crossing_curves_that_of_the_higher_level_lies_over_the_other) {
  struct {
    std::int32_t first, second;
    bool use;
    rgba on_top;
  } const cases[] = {{0, 0, true, selected_line}, {1, 0, true, line},
                     {0, 1, true, selected_line}, {-1, 3, true, selected_line},
                     {5, -7, true, line},         {1, 0, false, selected_line}};
  made_grid file("profile_levels.tif", 40, 1, GDT_Float64, 2);
  file.values(1, std::vector<double>(40, 20.5));
  std::vector<double> rising(40);
  for (std::size_t i = 0; i < rising.size(); ++i) rising[i] = static_cast<double>(i) + 0.5;
  file.values(2, rising);
  std::wstring path = file.close();
  for (const auto& c : cases) {
    profile_bench b(path);
    zu_stl_mngr_set_mode(b.manager(), zu_style_value);
    zu_stl_mngr_set_use_render_levels(b.manager(), c.use);
    Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(b.manager());
    zu_val_scale_set_size(scale, 2);
    for (std::uint64_t i : {0, 1}) {
      zu_val_scale_set_text_w(scale, i, i == 0 ? L"Band 1" : L"Band 2");
      owned_line look = line_of(i == 0 ? line : selected_line);
      zu_bpln_style_set_render_level(zu_pln_style_get_bpln_style_ptr(look.get()),
                                     i == 0 ? c.first : c.second);
      zu_pln_style_assign(
          zu_stl_prm_get_pln_style_ptr(
              zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale, i)), 0),
          look.get());
    }
    page shown = b.drawn();
    EXPECT_EQ(at(shown, 20, 20), c.on_top) << c.first << ' ' << c.second << ' ' << c.use;
    EXPECT_EQ(at(shown, 5, 20), line);
    EXPECT_EQ(at(shown, 5, 5), selected_line);
  }
}

TEST(profile, other_modes_draw_nothing) {
  profile_bench b(curves("profile_modes.tif", {10.5}));
  for (std::int32_t mode : {zu_style_range, zu_style_rule, zu_style_simple}) {
    zu_stl_mngr_set_mode(b.manager(), mode);
    EXPECT_EQ(b.drawn().is_empty(), mode != zu_style_simple) << mode;
  }
}

TEST(profile, selected_samples_show_in_the_scenes_line_or_in_their_own) {
  struct {
    bool of_scene, own;
    rgba expected;
  } const cases[] = {{false, false, selected_line},
                     {true, false, scene_line},
                     {true, true, selected_line},
                     {false, true, selected_line}};
  for (const auto& c : cases) {
    profile_bench b(curves("profile_selected.tif", {10.5}));
    owned_line of_scene = line_of(scene_line);
    if (c.of_scene) zu_scn_2d_set_selected_style_pln(b.scene.get(), of_scene.get());
    zu_lr_set_own_selected_style_flag(b.layer.get(), c.own);
    b.select({18, 19, 20, 21, 22});
    page shown = b.drawn();
    EXPECT_EQ(at(shown, 20, 10), c.expected);
    EXPECT_EQ(at(shown, 10, 10), line);
  }
}

TEST(profile, a_layer_without_a_box_or_off_the_screen_is_not_drawn_and_not_opened) {
  std::wstring missing = L"/no/such/profile.pgrid";
  Tzu_box_d2 on{0, 0, 40, 40}, off{50, 0, 60, 40};
  struct {
    bool known;
    Tzu_box_d2 box;
    int problems;
  } const cases[] = {{true, on, 1}, {true, off, 0}, {false, on, 0}};
  for (const auto& c : cases) {
    profile_bench b(missing);
    zu_lr2d_set_box(b.layer.get(), c.known, &c.box);
    zu_problems_clear(missing.c_str());
    EXPECT_TRUE(b.drawn().is_empty());
    EXPECT_EQ(zu_problems_get_count(missing.c_str()), c.problems);
  }
}

TEST(profile, the_affine_transform_of_the_layer_and_then_that_of_the_render_place_the_curve) {
  profile_bench b(curves("profile_affine.tif", {2.5}));
  Tzu_affine_2d affine{0, 10, 1, 4, 0};  // 2.5 becomes 20
  zu_tos_grid_lr1d_set_affine_trnsf(b.layer.get(), &affine);
  page shown = b.drawn();
  EXPECT_EQ(at(shown, 20, 20), line);

  page shifted(40, 40, {0, 0, 40, 40});
  Tzu_matrix3x3 half{{{1, 0, 0}, {0, 0.5, 0}, {0, 0, 1}}};
  zu_render_set_affine_matrix(shifted.render(), &half);
  b.draw(shifted);
  EXPECT_EQ(at(shifted, 20, 20), nothing);
  EXPECT_EQ(at(shifted, 20, 10), line);
}

TEST(profile, the_azimuth_turns_the_curve_about_the_grids_origin) {
  // The origin is the middle of the first cell; a quarter turn takes the curve at height 0 above it
  // upwards.
  profile_bench b(curves("profile_turned.tif", {0}, 90));
  page shown(40, 40, {-20, 0, 20, 40});
  b.draw(shown);
  int coloured = 0;
  for (std::uint64_t y = 5; y < 35; ++y)
    for (std::uint64_t x = 0; x < 40; ++x) coloured += shown.pixel(x, y) == line;
  EXPECT_GE(coloured, 60);  // thirty rows, some pixels each
  EXPECT_EQ(shown.pixel(0, 20), nothing);
  EXPECT_EQ(shown.pixel(39, 20), nothing);
}

TEST(profile, an_azimuth_of_a_ten_millionth_of_a_degree_turns_nothing) {
  // At this height a turn by 1e-7 degrees would move the curve by 17 units, one by 2e-6 by 349.
  constexpr double far = 1e10;
  struct {
    double azimuth;
    bool moved;
  } const cases[] = {{0, false}, {1e-7, false}, {2e-6, true}};
  for (const auto& c : cases) {
    profile_bench b(curves("profile_azimuth.tif", {far}, c.azimuth));
    page shown(40, 40, {0, far - 20, 40, far + 20});
    b.draw(shown);
    EXPECT_EQ(at(shown, 35, 20), c.moved ? nothing : line) << c.azimuth;
    EXPECT_EQ(shown.is_empty(), c.moved) << c.azimuth;
  }
}

TEST(profile, a_render_that_is_reprojected_leaves_it_where_it_is) {
  profile_bench b(curves("profile_projected.tif", {10.5}));
  zu_lr2d_set_pj4wstr(b.layer.get(), L"EPSG:4326");
  page shown(40, 40, {0, 0, 40, 40});
  zu_render_set_pj4wstr(shown.render(), L"EPSG:3857");
  b.draw(shown);
  EXPECT_EQ(at(shown, 20, 10), line);
}

}  // namespace
