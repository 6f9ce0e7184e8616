#include "zu/platform/zuk_rtr_lr2d.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/zuk_basic/owned.h"

namespace {

using zu::platform::owned;
using layer_ptr = owned<zu_lr2d_destroy>;

TEST(raster_layer, a_new_one_is_an_opaque_image_without_a_clip) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d"));
  EXPECT_EQ(zu_rtr_lr2d_get_draw_type(layer.get()), zu_rtr_draw_image);
  EXPECT_EQ(zu_rtr_lr2d_get_opacity(layer.get()), 1.0);
  Tzu_color color = zu_rtr_lr2d_get_transparent_clr(layer.get());
  EXPECT_EQ(color.r + color.g + color.b, 0);
  EXPECT_EQ(color.a, 255);
  EXPECT_NE(zu_rtr_lr2d_get_rgb_channels_ptr(layer.get()), nullptr);
  owned<zu_ov_d2_destroy> clip(zu_ov_d2_create());
  zu_ov_d2_add(clip.get());
  zu_rtr_lr2d_get_clip_pgn(layer.get(), clip.get());
  EXPECT_EQ(zu_ov_d2_get_size(clip.get()), 0u);
  EXPECT_EQ(zu_lr_get_style_mngr_ptr(layer.get()), nullptr);
  EXPECT_EQ(zu_lr2d_get_hillshade_style(layer.get()), nullptr);
}

TEST(raster_layer, keeps_what_is_set) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d"));
  zu_rtr_lr2d_set_draw_type(layer.get(), zu_rtr_draw_gray);
  zu_rtr_lr2d_set_transparent_clr(layer.get(), {1, 2, 3, 4});
  owned<zu_ov_d2_destroy> clip(zu_ov_d2_create()), got(zu_ov_d2_create());
  zu_ov_d2_add(clip.get());
  zu_rtr_lr2d_set_clip_pgn(layer.get(), clip.get());
  EXPECT_EQ(zu_rtr_lr2d_get_draw_type(layer.get()), zu_rtr_draw_gray);
  EXPECT_EQ(zu_rtr_lr2d_get_transparent_clr(layer.get()).b, 3);
  zu_rtr_lr2d_get_clip_pgn(layer.get(), got.get());
  EXPECT_EQ(zu_ov_d2_get_size(got.get()), 1u);
  zu_rtr_lr2d_set_clip_pgn(layer.get(), nullptr);
  zu_rtr_lr2d_get_clip_pgn(layer.get(), got.get());
  EXPECT_EQ(zu_ov_d2_get_size(got.get()), 0u);
}

TEST(raster_layer, an_opacity_outside_is_cut_and_no_number_is_ignored) {
  layer_ptr layer(zu_lr2d_create("rtr_lr2d"));
  struct {
    double given, kept;
  } const cases[] = {{0.25, 0.25}, {NAN, 0.25}, {-1, 0}, {7, 1}};
  for (const auto& c : cases) {
    zu_rtr_lr2d_set_opacity(layer.get(), c.given);
    EXPECT_EQ(zu_rtr_lr2d_get_opacity(layer.get()), c.kept);
  }
}

TEST(raster_layer, a_layer_of_another_kind_gives_what_a_new_one_has_and_takes_nothing) {
  layer_ptr grid(zu_lr2d_create("grid_lr2d")), tos(zu_lr2d_create("tos_grid_lr2d"));
  for (Izu_layer* layer : {static_cast<Izu_layer*>(nullptr), grid.get(), tos.get()}) {
    zu_rtr_lr2d_set_draw_type(layer, zu_rtr_draw_rgb);
    zu_rtr_lr2d_set_opacity(layer, 0.5);
    zu_rtr_lr2d_set_transparent_clr(layer, {9, 9, 9, 9});
    zu_rtr_lr2d_set_clip_pgn(layer, nullptr);
    EXPECT_EQ(zu_rtr_lr2d_get_draw_type(layer), zu_rtr_draw_image);
    EXPECT_EQ(zu_rtr_lr2d_get_opacity(layer), 1.0);
    EXPECT_EQ(zu_rtr_lr2d_get_transparent_clr(layer).a, 255);
    EXPECT_EQ(zu_rtr_lr2d_get_rgb_channels_ptr(layer), nullptr);
    EXPECT_EQ(zu_rtr_lr2d_search_prop(layer, L"Band 1"), -1);
  }
}

}  // namespace
