#include "src/render/tos4_lr2d_render_services.h"

#include <gtest/gtest.h>

#include "src/bundle/strings.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/made_pgrid.h"
#include "tests/unit/src/render/layer_bench.h"
#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace {

using namespace zu;
using tests::layer_bench;
using tests::made_grid;
using tests::page;
using tests::rgba;

template <class service> std::wstring type_of() {
  service object;
  std::wstring type;
  stdwstring_visitor visitor(type);
  object.get_type(string_visitor(handle_of<string_visitor_impl>(visitor)));
  return type;
}

TEST(tos4_render_services, say_their_types) {
  EXPECT_EQ(type_of<tos4_grid1d_lr2d_render_service>(), L"tos_grid_lr1d");
  EXPECT_EQ(type_of<tos4_grid2d_lr2d_render_service>(), L"tos_grid_lr2d");
  EXPECT_EQ(type_of<tos4_grid3d_lr2d_render_service>(), L"tos_slice_lr2d");
}

TEST(tos4_render_services, leave_a_layer_of_another_type_alone_and_its_source_closed) {
  std::wstring missing = L"/no/such/grid.pgrid";
  for (const char* type : {"tos_grid_lr1d", "tos_grid_lr2d", "tos_slice_lr2d", "tos_grid_lr2d_",
                           "tos_grid_lr", "rtr_lr2d", "grid_lr2d", ""}) {
    owned<zu_lr2d_destroy> layer(zu_lr2d_create(type));
    zu_lr2d_set_wsource(layer.get(), missing.c_str());
    Tzu_box_d2 box{0, 0, 1, 1};
    zu_lr2d_set_box(layer.get(), true, &box);
    page shown(1, 1, box);
    auto opened = [&](layer_2d_renderer_extension_service_impl&& service) {
      zu_problems_clear(missing.c_str());
      service.render(shown.render(), layer.get());
      service.render_selection(shown.render(), layer.get());
      return zu_problems_get_count(missing.c_str()) != 0;
    };
    std::string name = type;
    EXPECT_EQ(opened(tos4_grid1d_lr2d_render_service()), name == "tos_grid_lr1d") << type;
    EXPECT_EQ(opened(tos4_grid2d_lr2d_render_service()), name == "tos_grid_lr2d") << type;
    EXPECT_EQ(opened(tos4_grid3d_lr2d_render_service()), name == "tos_slice_lr2d") << type;
  }
}

/// Two cells; as bands 40, 80 and then the colours of a picture.
std::wstring four_bands(const std::string& name) {
  made_grid file(name, 2, 1, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  file.roles({GCI_RedBand, GCI_GreenBand, GCI_BlueBand});
  file.values(1, {40, 80});
  file.values(2, {0, 0});
  file.values(3, {200, 200});
  return file.close();
}

template <class service> struct grid_bench : layer_bench<service> {
  using layer_bench<service>::layer_bench;
  void style() {
    Izu_layer* l = this->layer.get();
    Tzu_stl_mngr* manager = zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(l);
    zu_stl_prm_clr_set_all(zu_stl_mngr_get_simple_sp_ptr(manager), {1, 2, 3, 0}, 0);
    Tzu_rgb_channels* channels = zu_tos_grid_lr2d_get_rgb_channels_ptr(l);
    zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_red(channels), L"Band 3");
    zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_green(channels), L"Band 2");
    zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_blue(channels), L"Band 1");
    zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_gray(channels), L"Band 1");
  }
};
using plane_bench = grid_bench<tos4_grid2d_lr2d_render_service>;
using slice_bench = grid_bench<tos4_grid3d_lr2d_render_service>;

TEST(tos4_grid2d_lr2d_render_service, translates_the_layers_draw_types) {
  const rgba by_scale{1, 2, 3, 255};
  struct {
    int type;
    rgba first;
  } const cases[] = {{0, by_scale},          {1, {200, 0, 40, 255}}, {2, by_scale},
                     {3, {40, 40, 40, 255}}, {4, {40, 0, 200, 255}}, {5, by_scale},
                     {-1, by_scale}};
  for (const auto& c : cases) {
    plane_bench b("tos_grid_lr2d", four_bands("tos_types.tif"));
    b.style();
    zu_tos_grid_lr2d_set_draw_type(b.layer.get(), c.type);
    page shown(2, 1, {0, 0, 2, 1});
    b.draw(shown);
    EXPECT_EQ(shown.pixel(0, 0), c.first) << c.type;
  }
}

TEST(tos4_grid2d_lr2d_render_service, the_opacity_is_cut_to_whole_steps_of_255) {
  plane_bench b("tos_grid_lr2d", four_bands("tos_opacity.tif"));
  zu_tos_grid_lr2d_set_opacity(b.layer.get(), 0.5);
  page shown(2, 1, {0, 0, 2, 1});
  b.draw(shown);
  EXPECT_EQ(shown.pixel(0, 0)[3], 127);
}

TEST(tos4_grid2d_lr2d_render_service, the_selection_of_its_own_table_lies_above_the_grid) {
  plane_bench b("tos_grid_lr2d", four_bands("tos_selection.tif"));
  b.style();
  zu_scn_2d_set_selected_style_clr(b.scene.get(), {{250, 240, 0, 0}, 0});
  b.select({1});
  page shown(2, 1, {0, 0, 2, 1}), overlay(2, 1, {0, 0, 2, 1});
  b.draw(shown);
  EXPECT_EQ(shown.pixel(0, 0), (rgba{1, 2, 3, 255}));
  EXPECT_EQ(shown.pixel(1, 0), (rgba{250, 240, 0, 255}));
  b.draw_selection(overlay);
  EXPECT_EQ(overlay.pixel(0, 0)[3], 0);
  EXPECT_EQ(overlay.pixel(1, 0), (rgba{250, 240, 0, 255}));
}

TEST(tos4_grid2d_lr2d_render_service, selection_alone_with_nothing_selected_makes_no_dib) {
  plane_bench b("tos_grid_lr2d", four_bands("tos_unselected.tif"));
  page shown(2, 1, {0, 0, 2, 1});
  std::uint64_t before = zu_dib_get_made_count();
  b.draw_selection(shown);
  EXPECT_EQ(zu_dib_get_made_count(), before);
}

TEST(tos4_grid2d_lr2d_render_service, without_a_scene_no_selection_shows) {
  plane_bench b("tos_grid_lr2d", four_bands("tos_no_scene.tif"));
  b.style();
  b.select({0});
  zu_scn_2d_remove_layer(b.scene.get(), b.layer.get());
  page shown(2, 1, {0, 0, 2, 1});
  b.draw(shown);
  EXPECT_EQ(shown.pixel(0, 0), (rgba{1, 2, 3, 255}));
}

TEST(tos4_grid2d_lr2d_render_service, values_between_the_nodes_are_bilinear_if_the_layer_says_so) {
  made_grid file("tos_interpolate.tif", 2, 2, GDT_Float64, 1);
  file.values(1, {0, 100, 0, 100});
  plane_bench b("tos_grid_lr2d", file.close());
  Tzu_stl_mngr* manager = zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(b.layer.get());
  zu_stl_mngr_set_mode(manager, zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(manager, L"Band 1");
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  zu_rng_scale_set_size(scale, 1);  // 20 to 90: no node lies in it
  zu_rng_scale_set_min_value(scale, 20);
  zu_rng_scale_set_max_value(scale, 90);
  zu_rng_scale_set_min(scale, 0, 20);
  zu_rng_scale_set_max(scale, 0, 90);
  Tzu_scale_prm* row = zu_rng_scale_get_scale_prm_ptr(scale, 0);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(row), {9, 9, 9, 0}, 0);
  for (bool interpolate : {false, true}) {
    zu_tos_grid_lr2d_set_interpolate(b.layer.get(), interpolate);
    page shown(4, 4, {0.5, 0.5, 1.5, 1.5});
    b.draw(shown);
    EXPECT_EQ(shown.pixel(2, 2) == (rgba{9, 9, 9, 255}), interpolate);
  }
}

/// Two cells a slice: 1, 2 in the lowest, then 11, 12 and so on.
std::wstring volume(const std::string& name, int slices) {
  tests::made_pgrid file(name);
  file.grid = {zu_tos4_volume, {2, 1, slices}, {0.5, 0.5, 0}, {1, 1, 1}, 0.0, nullptr};
  std::vector<double> nodes;
  for (int z = 0; z < slices; ++z) nodes.insert(nodes.end(), {z * 10 + 1.0, z * 10 + 2.0});
  file.add(L"v", nodes);
  return file.close();
}

struct volume_bench : slice_bench {
  explicit volume_bench(const std::string& name) : slice_bench("tos_slice_lr2d", volume(name, 4)) {
    zu_tos_grid_lr2d_set_draw_type(layer.get(), zu_tos_draw_gray);
    Tzu_clr_channel* gray =
        zu_rgb_channels_get_gray(zu_tos_grid_lr2d_get_rgb_channels_ptr(layer.get()));
    zu_clr_channel_set_prop_name_w(gray, L"v");
    zu_clr_channel_set_limits(gray, 0, 255);
  }
  int first_cell(std::int64_t slice) {
    zu_tos_slice_lr2d_set_zslice(layer.get(), slice);
    page shown(2, 1, {0, 0, 2, 1});
    draw(shown);
    return shown.is_empty() ? -1 : shown.pixel(0, 0)[0];
  }
};

TEST(tos4_grid3d_lr2d_render_service, shows_the_slice_that_the_layer_says) {
  volume_bench b("tos_volume.pgrid");
  EXPECT_EQ(b.first_cell(0), 1);
  EXPECT_EQ(b.first_cell(2), 21);
  EXPECT_EQ(b.first_cell(3), 31);
  EXPECT_EQ(b.first_cell(4), -1);  // there are four
}

TEST(tos4_grid3d_lr2d_render_service, the_slice_is_cut_to_32_bits) {
  volume_bench b("tos_far_slice.pgrid");
  EXPECT_EQ(b.first_cell((std::int64_t{1} << 32) + 2), 21);
}

TEST(tos4_grid3d_lr2d_render_service, the_shade_is_that_of_the_slice) {
  // Level in the lowest slice, a slope in the other.
  tests::made_pgrid file("tos_shade.pgrid");
  file.grid = {zu_tos4_volume, {4, 4, 2}, {0.5, 0.5, 0}, {1, 1, 1}, 0.0, nullptr};
  std::vector<double> nodes(32, 0.0);
  for (std::size_t i = 0; i < 16; ++i) nodes[16 + i] = static_cast<double>(i % 4) * 5;
  file.add(L"v", nodes);
  slice_bench b("tos_slice_lr2d", file.close());
  zu_stl_prm_clr_set_all(
      zu_stl_mngr_get_simple_sp_ptr(zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(b.layer.get())),
      {200, 200, 200, 0}, 0);
  Tzu_hillshade_style* shade = zu_tos_grid_lr2d_get_hillshade_style(b.layer.get());
  zu_hillshade_style_set_use(shade, true);
  zu_hillshade_style_set_propname(shade, L"v");
  rgba middle[2];
  for (std::int64_t slice : {0, 1}) {
    zu_tos_slice_lr2d_set_zslice(b.layer.get(), slice);
    page shown(40, 40, {0, 0, 4, 4});
    b.draw(shown);
    middle[slice] = shown.pixel(20, 20);
  }
  EXPECT_EQ(middle[0][3], 255);
  EXPECT_EQ(middle[1][3], 255);
  EXPECT_NE(middle[0][0], middle[1][0]);
}

}  // namespace
