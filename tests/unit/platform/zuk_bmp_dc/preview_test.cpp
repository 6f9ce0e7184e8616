#include <gtest/gtest.h>

#include <cmath>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_bmp_dc.h"

namespace {

using zu::platform::owned;

struct rgba {
  int r, g, b, opacity;
  bool operator==(const rgba&) const = default;
};

struct preview : testing::Test {
  rgba at(std::uint64_t x, std::uint64_t y) const {
    std::uint8_t r, g, b, a;
    zu_dib_get_rgba(dib.get(), x, y, &r, &g, &b, &a);
    return {r, g, b, a};
  }
  int inked() const {
    int count = 0;
    for (std::uint64_t i = 0; i < dib->nx * dib->ny; ++i) count += dib->pixels[i] >> 24 != 0;
    return count;
  }
  owned<zu_dib_destroy> dib{zu_dib_create()};
};

TEST_F(preview, premultiplied_pixels_have_an_opacity_and_mixed_colours) {
  zu_dib_set_nxy(dib.get(), 3, 1);
  zu_dib_set_rgba(dib.get(), 0, 0, 200, 100, 50, 0);
  zu_dib_set_rgba(dib.get(), 1, 0, 200, 100, 50, 255);
  zu_dib_set_rgba(dib.get(), 2, 0, 200, 100, 50, 155);
  zu_dib_premultiply_alpha(dib.get());
  EXPECT_EQ(at(0, 0), (rgba{200, 100, 50, 255}));
  EXPECT_EQ(at(1, 0), (rgba{0, 0, 0, 0}));
  EXPECT_EQ(at(2, 0), (rgba{78, 39, 20, 100}));  // 200 * 100 / 255 = 78.4, 39.2, 19.6
  zu_dib_premultiply_alpha(nullptr);
  owned<zu_dib_destroy> empty(zu_dib_create());
  zu_dib_premultiply_alpha(empty.get());
}

TEST_F(preview, a_picture_becomes_a_bitmap_with_the_lowest_row_first) {
  owned<zu_bmp_dc_destroy> dc(zu_bmp_dc_create(10, 20, 2));
  const Tzu_box_d2 box{0, 0, 5, 1};
  zu_drwc_fill_box(zu_bmp_dc_get_drwc(dc.get()), &box, {200, 100, 50, 55});
  ASSERT_TRUE(zu_bmp_dc_bmp_to_dib(dc.get(), dib.get()));
  EXPECT_EQ(zu_dib_get_nx(dib.get()), 10u);
  EXPECT_EQ(zu_dib_get_ny(dib.get()), 20u);
  rgba low = at(5, 1);
  EXPECT_NEAR(low.r, 200, 1);
  EXPECT_EQ(low.opacity, 55);  // still a transparency
  EXPECT_EQ(at(5, 2).opacity, 255);
}

TEST_F(preview, a_picture_that_cannot_be_had_is_none) {
  EXPECT_EQ(zu_bmp_dc_create(0, 10, 4), nullptr);
  EXPECT_EQ(zu_bmp_dc_create(10, 40000, 4), nullptr);
  EXPECT_EQ(zu_bmp_dc_create(10, 10, 0), nullptr);
  EXPECT_EQ(zu_bmp_dc_get_drwc(nullptr), nullptr);
  EXPECT_FALSE(zu_bmp_dc_bmp_to_dib(nullptr, dib.get()));
  zu_bmp_dc_destroy(nullptr);
}

TEST_F(preview, a_colour_fills_its_sample_and_a_transparent_one_shows_a_checkerboard) {
  ASSERT_TRUE(zu_preview_color({10, 20, 30, 0}, 16, 8, 4, dib.get()));
  for (std::uint64_t x : {0u, 5u, 15u}) EXPECT_EQ(at(x, 7), (rgba{10, 20, 30, 255}));
  ASSERT_TRUE(zu_preview_color({10, 20, 30, 255}, 16, 8, 4, dib.get()));
  EXPECT_EQ(at(0, 0), (rgba{255, 255, 255, 255}));
  EXPECT_EQ(at(4, 0), (rgba{204, 204, 204, 255}));
  EXPECT_EQ(at(4, 4), (rgba{255, 255, 255, 255}));
  ASSERT_TRUE(zu_preview_color({0, 0, 0, 51}, 16, 8, 4, dib.get()));
  EXPECT_EQ(at(0, 0).r, 51);
  EXPECT_EQ(at(4, 0).r, 41);  // 204 / 5
  EXPECT_FALSE(zu_preview_color({0, 0, 0, 0}, 0, 8, 4, dib.get()));
  EXPECT_FALSE(zu_preview_color({0, 0, 0, 0}, 8, 8, 4, nullptr));
}

TEST_F(preview, a_symbol_stands_in_the_middle_without_its_offset_and_fits) {
  Tzu_pnt_style style;
  style.point.figure = zu_figure_square;
  style.point.color = {200, 0, 0, 0};
  style.point.dx = 100;
  style.point.size = 2;
  ASSERT_TRUE(zu_preview_pnt(&style, 24, 24, 4, dib.get()));
  EXPECT_EQ(inked(), 64);
  EXPECT_EQ(at(12, 12), (rgba{200, 0, 0, 255}));
  style.point.size = 50;
  ASSERT_TRUE(zu_preview_pnt(&style, 24, 24, 4, dib.get()));
  EXPECT_EQ(inked(), 21 * 21);  // an eighth of the sample is margin
  EXPECT_EQ(at(0, 12).opacity, 0);
  EXPECT_EQ(style.point.size, 50);
}

TEST_F(preview, large_layers_are_made_to_fit_too) {
  Tzu_pnt_style style;
  style.point.use_complex = true;
  std::get<Tzu_bpnt_style>(style.point.complex.made()->add_layer("pnt_figr_slr")->style).size = 90;
  ASSERT_TRUE(zu_preview_pnt(&style, 24, 24, 4, dib.get()));
  EXPECT_GT(inked(), 100);
  EXPECT_EQ(at(0, 12).opacity, 0);
  Tzu_pln_style line;
  line.line.use_complex = true;
  std::get<Tzu_bpln_style>(line.line.complex.made()->add_layer("pln_line_slr")->style).width = 90;
  ASSERT_TRUE(zu_preview_pln(&line, 48, 24, 4, dib.get()));
  EXPECT_EQ(at(24, 0).opacity, 0);
  EXPECT_EQ(at(24, 12).opacity, 255);
}

TEST_F(preview, a_line_goes_through_the_middle_with_its_marks) {
  Tzu_pln_style style;
  style.line.width = 0.5;
  ASSERT_TRUE(zu_preview_pln(&style, 48, 24, 4, dib.get()));
  EXPECT_EQ(at(24, 12), (rgba{0, 0, 0, 255}));
  EXPECT_EQ(at(24, 20).opacity, 0);
  style.end_visible = true;
  style.end.size = 90;
  ASSERT_TRUE(zu_preview_pln(&style, 48, 24, 4, dib.get()));
  EXPECT_GT(at(30, 16).opacity, 0);  // the arrow's base
  EXPECT_EQ(at(18, 16).opacity, 0);  // none at the beginning
}

TEST_F(preview, a_polygon_is_a_box_with_its_contour) {
  Tzu_pgn_style style;
  style.fill.color = {0, 0, 200, 0};
  style.contour.color = {200, 0, 0, 0};
  style.contour.width = 0.5;
  ASSERT_TRUE(zu_preview_pgn(&style, 48, 24, 4, dib.get()));
  EXPECT_EQ(at(24, 12), (rgba{0, 0, 200, 255}));
  EXPECT_EQ(at(24, 3), (rgba{200, 0, 0, 255}));
  EXPECT_EQ(at(24, 0).opacity, 0);
}

TEST_F(preview, nothing_is_shown_of_what_is_invisible) {
  zu_dib_set_nxy(dib.get(), 1, 1);
  zu_dib_set_rgba(dib.get(), 0, 0, 1, 2, 3, 4);
  Tzu_pnt_style point;
  Tzu_pln_style line;
  Tzu_pgn_style polygon;
  EXPECT_FALSE(zu_preview_pnt(&point, 0, 24, 4, dib.get()));
  point.visible = line.line_visible = polygon.fill_visible = false;
  line.vertex_visible = polygon.contour_visible = true;
  EXPECT_FALSE(zu_preview_pnt(&point, 24, 24, 4, dib.get()));
  EXPECT_FALSE(zu_preview_pln(&line, 24, 24, 4, dib.get()));
  EXPECT_FALSE(zu_preview_pgn(&polygon, 24, 24, 4, dib.get()));
  EXPECT_FALSE(zu_preview_pnt(nullptr, 24, 24, 4, dib.get()));
  EXPECT_EQ(at(0, 0), (rgba{1, 2, 3, 4}));
}

}  // namespace
