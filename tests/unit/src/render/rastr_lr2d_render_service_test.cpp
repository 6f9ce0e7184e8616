#include "src/render/rastr_lr2d_render_service.h"

#include <gtest/gtest.h>

#include "src/bundle/strings.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/render/page.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_rtr_lr2d.h"

namespace {

using namespace zu;
using tests::made_grid;
using tests::page;
using tests::rgba;

/// Three by one cells: red, green, blue, as bands with their roles.
std::wstring picture(const std::string& name) {
  made_grid file(name, 3, 1, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  file.roles({GCI_RedBand, GCI_GreenBand, GCI_BlueBand});
  file.values(1, {200, 0, 0});
  file.values(2, {0, 100, 0});
  file.values(3, {0, 0, 50});
  return file.close();
}

struct raster_bench {
  owned<zu_lr2d_destroy> layer;
  strong_ref<layer_2d_renderer_extension_service_impl> service{
      handle_of<layer_2d_renderer_extension_service_impl>(*new rastr_lr2d_render_service)};
  page shown{3, 1, {0, 0, 3, 1}};

  explicit raster_bench(const std::wstring& source, const char* type = "rtr_lr2d")
      : layer(zu_lr2d_create(type)) {
    zu_lr2d_set_wsource(layer.get(), source.c_str());
  }
  void draw() {
    call<&layer_2d_renderer_extension_service_impl::render>(service.get(), shown.render(),
                                                            layer.get());
  }
  Tzu_rgb_channels* channels() { return zu_rtr_lr2d_get_rgb_channels_ptr(layer.get()); }
};

TEST(rastr_lr2d_render_service, says_its_type_and_is_not_dynamic) {
  rastr_lr2d_render_service service;
  std::wstring type;
  stdwstring_visitor visitor(type);
  service.get_type(string_visitor(handle_of<string_visitor_impl>(visitor)));
  EXPECT_EQ(type, L"rtr_lr2d");
  EXPECT_FALSE(service.is_dynamic());
}

TEST(rastr_lr2d_render_service, a_new_layer_shows_its_own_bands_and_needs_no_channels) {
  raster_bench b(picture("raster_image.tif"));
  b.draw();
  EXPECT_EQ(b.shown.pixel(0, 0), (rgba{200, 0, 0, 255}));
  EXPECT_EQ(b.shown.pixel(1, 0), (rgba{0, 100, 0, 255}));
  EXPECT_EQ(b.shown.pixel(2, 0), (rgba{0, 0, 50, 255}));
}

TEST(rastr_lr2d_render_service, its_draw_type_1_is_rgb_2_is_gray_and_any_other_the_image) {
  struct {
    int type;
    rgba first;
  } const cases[] = {{0, {200, 0, 0, 255}},
                     {1, {0, 0, 255, 255}},
                     {2, {255, 255, 255, 255}},
                     {3, {200, 0, 0, 255}},
                     {-1, {200, 0, 0, 255}}};
  for (const auto& c : cases) {
    raster_bench b(picture("raster_types.tif"));
    zu_rtr_lr2d_set_draw_type(b.layer.get(), c.type);
    auto name = [](Tzu_clr_channel* channel, const wchar_t* field) {
      zu_clr_channel_set_prop_name_w(channel, field);
      zu_clr_channel_set_limits(channel, 0, 200);
    };
    name(zu_rgb_channels_get_red(b.channels()), L"Band 3");
    name(zu_rgb_channels_get_green(b.channels()), L"Band 2");
    name(zu_rgb_channels_get_blue(b.channels()), L"Band 1");
    name(zu_rgb_channels_get_gray(b.channels()), L"Band 1");
    b.draw();
    EXPECT_EQ(b.shown.pixel(0, 0), c.first) << c.type;
  }
}

TEST(rastr_lr2d_render_service, a_channel_without_a_field_draws_nothing) {
  raster_bench b(picture("raster_nofield.tif"));
  zu_rtr_lr2d_set_draw_type(b.layer.get(), zu_rtr_draw_gray);
  zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_gray(b.channels()), L"no such");
  b.draw();
  EXPECT_TRUE(b.shown.is_empty());
}

TEST(rastr_lr2d_render_service, the_opacity_is_cut_to_whole_steps_of_255) {
  struct {
    double opacity;
    int alpha;
  } const cases[] = {{1.0, 255}, {0.5, 127}, {0.0, 0}, {0.999, 254}};
  for (const auto& c : cases) {
    raster_bench b(picture("raster_opacity.tif"));
    zu_rtr_lr2d_set_opacity(b.layer.get(), c.opacity);
    b.draw();
    EXPECT_EQ(b.shown.pixel(0, 0)[3], c.alpha) << c.opacity;
  }
}

TEST(rastr_lr2d_render_service, the_transparent_colour_is_always_punched_out) {
  raster_bench b(picture("raster_punch.tif"));
  zu_rtr_lr2d_set_transparent_clr(b.layer.get(), {0, 100, 0, 0});
  b.draw();
  EXPECT_EQ(b.shown.pixel(0, 0)[3], 255);
  EXPECT_EQ(b.shown.pixel(1, 0)[3], 0);
}

TEST(rastr_lr2d_render_service, a_new_layers_transparent_colour_takes_nothing_away) {
  made_grid file("raster_black.tif", 3, 1, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  raster_bench b(file.close());
  b.draw();
  for (std::uint64_t x : {0, 1, 2}) EXPECT_EQ(b.shown.pixel(x, 0), (rgba{0, 0, 0, 255}));
}

TEST(rastr_lr2d_render_service, drawing_is_clipped_to_the_layers_polygon) {
  raster_bench b(picture("raster_clip.tif"));
  owned<zu_ov_d2_destroy> polygon(zu_ov_d2_create());
  Tzu_pv_d2* ring = zu_ov_d2_add(polygon.get());
  for (Tzu_vtx_d2 corner : {Tzu_vtx_d2{1, 0}, {2, 0}, {2, 1}, {1, 1}})
    zu_pv_d2_add_vtx(ring, &corner);
  zu_rtr_lr2d_set_clip_pgn(b.layer.get(), polygon.get());
  b.draw();
  EXPECT_EQ(b.shown.pixel(0, 0)[3], 0);
  EXPECT_EQ(b.shown.pixel(1, 0), (rgba{0, 100, 0, 255}));
  EXPECT_EQ(b.shown.pixel(2, 0)[3], 0);
}

TEST(rastr_lr2d_render_service, a_layer_of_another_type_is_left_alone_and_its_source_not_opened) {
  std::wstring missing = L"/no/such/picture.tif";
  zu_problems_clear(missing.c_str());
  for (const char* type : {"grid_lr2d", "rtr_lr2", "rtr_lr2d_", "", "tos_grid_lr2d"}) {
    raster_bench b(missing, type);
    b.draw();
    EXPECT_EQ(zu_problems_get_count(missing.c_str()), 0) << type;
  }
  raster_bench b(missing);
  b.draw();
  EXPECT_EQ(zu_problems_get_count(missing.c_str()), 1);
}

}  // namespace
