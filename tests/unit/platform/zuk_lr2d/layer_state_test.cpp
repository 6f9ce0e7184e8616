// Settings of layers without a plug-in object, in the project tree.

#include <gtest/gtest.h>

#include <cmath>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_styles/parameters.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_rtr_lr2d.h"
#include "zu/platform/zuk_tos_lr2d.h"

namespace {

using zu::platform::owned;
using zu::platform::text_of;
using layer_ptr = owned<zu_lr2d_destroy>;
using node_ptr = owned<zu_xnode_close>;

node_ptr tree() { return node_ptr(zu_xnode_create_root_w(L"layer")); }

/// A new layer of the type with what another one saved.
layer_ptr reread(const char* type, const Izu_layer* saved) {
  node_ptr node = tree();
  zu_lr2d_save_state(saved, node.get(), nullptr);
  layer_ptr layer(zu_lr2d_create(type));
  zu_lr2d_load_state(layer.get(), node.get(), nullptr);
  return layer;
}

std::wstring projection_of(const layer_ptr& layer) {
  return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(layer.get(), a); });
}

TEST(layer_state, a_raster_comes_back_as_it_was) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d"));
  zu_lr2d_set_pj4wstr(layer.get(), L"EPSG:28407");
  zu_rtr_lr2d_set_draw_type(layer.get(), zu_rtr_draw_gray);
  zu_rtr_lr2d_set_opacity(layer.get(), 0.1);
  zu_rtr_lr2d_set_transparent_clr(layer.get(), {1, 2, 3, 4});
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(zu_rtr_lr2d_get_rgb_channels_ptr(layer.get()));
  zu_clr_channel_set_limits(gray, -3, 7);
  owned<zu_ov_d2_destroy> clip(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(clip.get());
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{0.1, 1e-300}, {5e6, -2.5}, {1, 1}}) zu_pv_d2_add_vtx(ring, &v);
  zu_ov_d2_add(clip.get());
  zu_rtr_lr2d_set_clip_pgn(layer.get(), clip.get());

  layer_ptr read = reread("rtr_lr2d", layer.get());
  EXPECT_EQ(projection_of(read), L"EPSG:28407");
  EXPECT_EQ(zu_rtr_lr2d_get_draw_type(read.get()), zu_rtr_draw_gray);
  EXPECT_EQ(zu_rtr_lr2d_get_opacity(read.get()), 0.1);
  EXPECT_EQ(zu_rtr_lr2d_get_transparent_clr(read.get()).a, 4);
  gray = zu_rgb_channels_get_gray(zu_rtr_lr2d_get_rgb_channels_ptr(read.get()));
  EXPECT_EQ(zu_clr_channel_get_minimum(gray), -3);
  zu_rtr_lr2d_get_clip_pgn(read.get(), clip.get());
  ASSERT_EQ(zu_ov_d2_get_size(clip.get()), 2u);
  ring = zu_ov_d2_get_pv_ptr(clip.get(), 0);
  ASSERT_EQ(zu_pv_d2_get_size(ring), 3u);
  EXPECT_EQ(zu_pv_d2_get_arr(ring)[0].x, 0.1);
  EXPECT_EQ(zu_pv_d2_get_arr(ring)[0].y, 1e-300);
  EXPECT_EQ(zu_pv_d2_get_arr(ring)[1].y, -2.5);
}

TEST(layer_state, a_grid_and_its_slice_come_back_as_they_were) {
  layer_ptr layer(zu_lr2d_create("tos_slice_lr2d"));
  zu_tos_grid_lr2d_set_draw_type(layer.get(), zu_tos_draw_rgb);
  zu_tos_grid_lr2d_set_opacity(layer.get(), 0.75);
  zu_tos_grid_lr2d_set_interpolate(layer.get(), true);
  zu_tos_slice_lr2d_set_zslice(layer.get(), 41);
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(layer.get());
  zu_stl_mngr_set_mode(manager, zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(manager, L"пористость");
  zu_hillshade_style_set_use(zu_lr2d_get_hillshade_style(layer.get()), true);
  zu_isoline_style_set_thin_step(zu_lr2d_get_isoline_style(layer.get()), 12.5);

  layer_ptr read = reread("tos_slice_lr2d", layer.get());
  EXPECT_EQ(zu_tos_grid_lr2d_get_draw_type(read.get()), zu_tos_draw_rgb);
  EXPECT_EQ(zu_tos_grid_lr2d_get_opacity(read.get()), 0.75);
  EXPECT_TRUE(zu_tos_grid_lr2d_get_interpolate(read.get()));
  EXPECT_EQ(zu_tos_slice_lr2d_get_zslice(read.get()), 41);
  manager = zu_lr_get_style_mngr_ptr(read.get());
  EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_range);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(manager, a); }),
            L"пористость");
  EXPECT_TRUE(zu_hillshade_style_get_use(zu_lr2d_get_hillshade_style(read.get())));
  EXPECT_EQ(zu_isoline_style_get_thin_step(zu_lr2d_get_isoline_style(read.get())), 12.5);
}

TEST(layer_state, a_profile_comes_back_as_it_was) {
  layer_ptr layer(zu_lr2d_create("tos_grid_lr1d"));
  zu_tos_grid_1d_lr2d_set_height_prp_name_w(layer.get(), L"глубина");
  Tzu_affine_2d affine{0.1, -2, 3, 4, 1e-5};
  zu_tos_grid_lr1d_set_affine_trnsf(layer.get(), &affine);
  zu_stl_prm_get_pln_style_ptr(zu_stl_mngr_get_simple_sp_ptr(zu_lr_get_style_mngr_ptr(layer.get())),
                               0)
      ->line.width = 2.5;

  layer_ptr read = reread("tos_grid_lr1d", layer.get());
  EXPECT_EQ(
      text_of([&](Tzu_string_adp* a) { zu_tos_grid_1d_lr2d_get_height_prp_name_w(read.get(), a); }),
      L"глубина");
  const Tzu_affine_2d* got = zu_tos_grid_lr1d_get_affine_trnsf(read.get());
  EXPECT_EQ(got->x0, 0.1);
  EXPECT_EQ(got->y0, -2);
  EXPECT_EQ(got->dx, 3);
  EXPECT_EQ(got->dy, 4);
  EXPECT_EQ(got->angle, 1e-5);
  Tzu_stl_prm* simple = zu_stl_mngr_get_simple_sp_ptr(zu_lr_get_style_mngr_ptr(read.get()));
  EXPECT_EQ(zu_stl_prm_get_pln_style_ptr(simple, 0)->line.width, 2.5);
}

TEST(layer_state, what_an_empty_tree_does_not_say_stays) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d")), slice(zu_lr2d_create("tos_slice_lr2d")),
      profile(zu_lr2d_create("tos_grid_lr1d"));
  zu_rtr_lr2d_set_opacity(layer.get(), 0.5);
  zu_tos_slice_lr2d_set_zslice(slice.get(), 9);
  zu_tos_grid_1d_lr2d_set_height_prp_name_w(profile.get(), L"h");
  node_ptr node = tree();
  for (Izu_layer* l : {layer.get(), slice.get(), profile.get()})
    zu_lr2d_load_state(l, node.get(), nullptr);
  EXPECT_EQ(zu_rtr_lr2d_get_opacity(layer.get()), 0.5);
  EXPECT_EQ(zu_tos_slice_lr2d_get_zslice(slice.get()), 9);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) {
              zu_tos_grid_1d_lr2d_get_height_prp_name_w(profile.get(), a);
            }),
            L"h");
}

TEST(layer_state, numbers_that_cannot_be_are_not_taken) {
  node_ptr node = tree();
  node_ptr raster(zu_xnode_set_node_w(node.get(), L"raster_params"));
  node_ptr profile(zu_xnode_set_node_w(node.get(), L"profile_params"));
  zu_xnode_set_attr_dbl_w(raster.get(), L"opacity", 12);
  zu_xnode_set_attr_dbl_w(profile.get(), L"dx", NAN);
  zu_xnode_set_attr_wstr(profile.get(), L"dy", L"tall");
  layer_ptr layer(zu_lr2d_create("rtr_lr2d")), curve(zu_lr2d_create("tos_grid_lr1d"));
  zu_lr2d_load_state(layer.get(), node.get(), nullptr);
  zu_lr2d_load_state(curve.get(), node.get(), nullptr);
  EXPECT_EQ(zu_rtr_lr2d_get_opacity(layer.get()), 1.0);
  EXPECT_EQ(zu_tos_grid_lr1d_get_affine_trnsf(curve.get())->dx, 1);
  EXPECT_EQ(zu_tos_grid_lr1d_get_affine_trnsf(curve.get())->dy, 1);
}

TEST(layer_state, saved_twice_it_is_there_once) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d"));
  owned<zu_ov_d2_destroy> clip(zu_ov_d2_create());
  zu_ov_d2_add(clip.get());
  zu_rtr_lr2d_set_clip_pgn(layer.get(), clip.get());
  node_ptr node = tree();
  for (int i = 0; i < 2; ++i) zu_lr2d_save_state(layer.get(), node.get(), nullptr);
  layer_ptr read(zu_lr2d_create("rtr_lr2d"));
  zu_lr2d_load_state(read.get(), node.get(), nullptr);
  zu_rtr_lr2d_get_clip_pgn(read.get(), clip.get());
  EXPECT_EQ(zu_ov_d2_get_size(clip.get()), 1u);
}

TEST(layer_state, a_layer_with_a_plug_in_object_and_a_missing_node_do_no_harm) {
  layer_ptr grid(zu_lr2d_create("grid_lr2d")), raster(zu_lr2d_create("rtr_lr2d"));
  node_ptr node = tree();
  zu_lr2d_save_state(grid.get(), node.get(), nullptr);
  zu_lr2d_load_state(grid.get(), node.get(), nullptr);
  zu_lr2d_save_state(raster.get(), nullptr, nullptr);
  zu_lr2d_load_state(raster.get(), nullptr, nullptr);
  zu_lr2d_save_state(nullptr, node.get(), nullptr);
  zu_lr2d_load_state(nullptr, node.get(), nullptr);
  EXPECT_EQ(node_ptr(zu_xnode_get_node_w(node.get(), L"raster_params")), nullptr);
}

}  // namespace
