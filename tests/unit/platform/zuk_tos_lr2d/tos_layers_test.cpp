#include "zu/platform/zuk_tos_lr2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"

namespace {

using zu::platform::owned;
using zu::platform::text_of;
using layer_ptr = owned<zu_lr2d_destroy>;

TEST(tos_grid_layer, a_new_one_is_opaque_and_coloured_by_its_scale) {
  for (const char* type : {"tos_grid_lr2d", "tos_slice_lr2d"}) {
    layer_ptr layer(zu_lr2d_create(type));
    EXPECT_EQ(zu_tos_grid_lr2d_get_draw_type(layer.get()), zu_tos_draw_scale);
    EXPECT_EQ(zu_tos_grid_lr2d_get_opacity(layer.get()), 1.0);
    EXPECT_FALSE(zu_tos_grid_lr2d_get_interpolate(layer.get()));
    EXPECT_EQ(zu_tos_slice_lr2d_get_zslice(layer.get()), 0);
    Tzu_stl_mngr* manager = zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(layer.get());
    EXPECT_EQ(std::string(zu_stl_mngr_get_style_type(manager)), "clr_mngr_style");
    EXPECT_NE(zu_tos_grid_lr2d_get_rgb_channels_ptr(layer.get()), nullptr);
    // Whoever knows no kinds of layers gets the same objects.
    EXPECT_EQ(zu_lr_get_style_mngr_ptr(layer.get()), manager);
    EXPECT_EQ(zu_lr2d_get_hillshade_style(layer.get()),
              zu_tos_grid_lr2d_get_hillshade_style(layer.get()));
    EXPECT_EQ(zu_lr2d_get_isoline_style(layer.get()),
              zu_tos_grid_lr2d_get_isoline_style(layer.get()));
    EXPECT_NE(zu_lr2d_get_isoline_style(layer.get()), nullptr);
  }
}

TEST(tos_grid_layer, keeps_what_is_set) {
  layer_ptr layer(zu_lr2d_create("tos_slice_lr2d"));
  zu_tos_grid_lr2d_set_draw_type(layer.get(), zu_tos_draw_image);
  zu_tos_grid_lr2d_set_interpolate(layer.get(), true);
  zu_tos_slice_lr2d_set_zslice(layer.get(), 12);
  EXPECT_EQ(zu_tos_grid_lr2d_get_draw_type(layer.get()), zu_tos_draw_image);
  EXPECT_TRUE(zu_tos_grid_lr2d_get_interpolate(layer.get()));
  EXPECT_EQ(zu_tos_slice_lr2d_get_zslice(layer.get()), 12);
  struct {
    double given, kept;
  } const opacities[] = {{0.25, 0.25}, {NAN, 0.25}, {-1, 0}, {7, 1}};
  for (const auto& o : opacities) {
    zu_tos_grid_lr2d_set_opacity(layer.get(), o.given);
    EXPECT_EQ(zu_tos_grid_lr2d_get_opacity(layer.get()), o.kept);
  }
}

TEST(tos_grid_layer, a_plane_has_no_slice_to_set) {
  layer_ptr layer(zu_lr2d_create("tos_grid_lr2d"));
  zu_tos_slice_lr2d_set_zslice(layer.get(), 3);
  EXPECT_EQ(zu_tos_slice_lr2d_get_zslice(layer.get()), 0);
}

TEST(tos_profile_layer, a_new_one_draws_all_bands_as_lines_where_they_are) {
  layer_ptr layer(zu_lr2d_create("tos_grid_lr1d"));
  Tzu_stl_mngr* manager = zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(layer.get());
  EXPECT_EQ(std::string(zu_stl_mngr_get_style_type(manager)), "pln_mngr_style");
  EXPECT_EQ(zu_lr_get_style_mngr_ptr(layer.get()), manager);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) {
              zu_tos_grid_1d_lr2d_get_height_prp_name_w(layer.get(), a);
            }),
            L"");
  EXPECT_TRUE(zu_affine_2d_is_identity(zu_tos_grid_lr1d_get_affine_trnsf(layer.get())));
  EXPECT_EQ(zu_lr2d_get_hillshade_style(layer.get()), nullptr);
}

TEST(tos_profile_layer, keeps_what_is_set) {
  layer_ptr layer(zu_lr2d_create("tos_grid_lr1d"));
  zu_tos_grid_1d_lr2d_set_height_prp_name_w(layer.get(), L"глубина");
  Tzu_affine_2d affine{1, 2, 3, 4, 0.5};
  zu_tos_grid_lr1d_set_affine_trnsf(layer.get(), &affine);
  zu_tos_grid_lr1d_set_affine_trnsf(layer.get(), nullptr);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) {
              zu_tos_grid_1d_lr2d_get_height_prp_name_w(layer.get(), a);
            }),
            L"глубина");
  EXPECT_EQ(zu_tos_grid_lr1d_get_affine_trnsf(layer.get())->dy, 4);
}

TEST(tos_layers, a_layer_of_another_kind_gives_nothing_and_takes_nothing) {
  layer_ptr raster(zu_lr2d_create("rtr_lr2d")), profile(zu_lr2d_create("tos_grid_lr1d"));
  for (Izu_layer* layer : {static_cast<Izu_layer*>(nullptr), raster.get(), profile.get()}) {
    zu_tos_grid_lr2d_set_draw_type(layer, zu_tos_draw_gray);
    zu_tos_grid_lr2d_set_opacity(layer, 0.5);
    zu_tos_grid_lr2d_set_interpolate(layer, true);
    EXPECT_EQ(zu_tos_grid_lr2d_get_draw_type(layer), zu_tos_draw_scale);
    EXPECT_EQ(zu_tos_grid_lr2d_get_opacity(layer), 1.0);
    EXPECT_FALSE(zu_tos_grid_lr2d_get_interpolate(layer));
    EXPECT_EQ(zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(layer), nullptr);
    EXPECT_EQ(zu_tos_grid_lr2d_get_rgb_channels_ptr(layer), nullptr);
  }
  EXPECT_EQ(zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(raster.get()), nullptr);
  EXPECT_EQ(zu_tos_grid_lr1d_get_affine_trnsf(raster.get()), nullptr);
}

}  // namespace
