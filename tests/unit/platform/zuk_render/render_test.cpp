#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_render.h"

namespace {

class render : public testing::Test {
 protected:
  render()
      : drwc_(zu_drwc_create_image(100, 50, 25.4, false)),
        render_(zu_render_create(drwc_, &box_)) {}
  ~render() override {
    zu_render_destroy(render_);
    zu_drwc_destroy(drwc_);
  }

  const Tzu_box_d2 box_{1000, 2000, 1200, 2100};
  Tzu_drwc* drwc_;
  Izu_render* render_;
};

TEST_F(render, its_page_shows_the_map_box_with_y_upwards) {
  EXPECT_EQ(zu_render_get_drwc(render_), drwc_);
  EXPECT_EQ(zu_render_get_map_box_cr(render_)->x1, 1200);
  double x = 1000, y = 2000;
  zu_xy_apply_matrix3x3(&x, &y, zu_render_get_matrix_cr2mm(render_));
  EXPECT_NEAR(x, 0, 1e-9);
  EXPECT_NEAR(y, 0, 1e-9);
  x = 1200, y = 2100;
  zu_xy_apply_matrix3x3(&x, &y, zu_render_get_matrix_cr2mm(render_));
  EXPECT_NEAR(x, 100, 1e-9);
  EXPECT_NEAR(y, 50, 1e-9);
}

TEST_F(render, keeps_a_projection) {
  std::wstring text;
  auto sink = [](const wchar_t* t, void* user) { *static_cast<std::wstring*>(user) = t; };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &text);
  zu_render_set_pj4wstr(render_, L"EPSG:3857");
  zu_render_get_pj4wstr(render_, adapter);
  EXPECT_EQ(text, L"EPSG:3857");
  zu_render_set_pj4wstr(render_, nullptr);
  zu_render_get_pj4wstr(render_, adapter);
  EXPECT_EQ(text, L"");
  zu_string_adp_destroy(adapter);
}

TEST_F(render, an_affine_step_is_copied_and_null_switches_it_off) {
  EXPECT_FALSE(zu_render_has_affine_transform(render_));
  EXPECT_EQ(zu_render_get_affine_matrix(render_), nullptr);
  Tzu_matrix3x3 matrix{{{2, 0, 1}, {0, 2, 1}, {0, 0, 1}}};
  zu_render_set_affine_matrix(render_, &matrix);
  matrix.m[0][0] = 0;
  ASSERT_TRUE(zu_render_has_affine_transform(render_));
  EXPECT_EQ(zu_render_get_affine_matrix(render_)->m[0][0], 2);
  zu_render_set_affine_matrix(render_, nullptr);
  EXPECT_FALSE(zu_render_has_affine_transform(render_));
}

TEST_F(render, draws_lines_given_in_its_own_coordinates_and_leaves_them_as_they_are) {
  Tzu_ov_d2* set = zu_ov_d2_create();
  Tzu_pv_d2* line = zu_ov_d2_add(set);
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{1020, 2020}, {1100, 2020}}) zu_pv_d2_add_vtx(line, &v);
  Tzu_pln_style style;
  style.line.width = 2, style.line.cap = zu_cap_butt;
  zu_render_cr_pln(render_, set, &style);
  EXPECT_EQ(zu_pv_d2_get_arr(line)[1].x, 1100);
  zu_ov_d2_destroy(set);
  std::vector<std::uint8_t> rgba(100 * 50 * 4);
  zu_drwc_get_pixels(drwc_, rgba.data());
  // Two units of the map a pixel: from (10, 10) to (50, 10), a pixel to each side.
  auto opacity = [&](std::size_t x, std::size_t y) { return rgba[((49 - y) * 100 + x) * 4 + 3]; };
  EXPECT_EQ(opacity(10, 10), 255);
  EXPECT_EQ(opacity(49, 9), 255);
  EXPECT_EQ(opacity(30, 11), 0);
  EXPECT_EQ(opacity(30, 8), 0);
  EXPECT_EQ(opacity(9, 10), 0);
  EXPECT_EQ(opacity(50, 10), 0);
}

TEST_F(render, fills_a_polygon_and_its_hole_stays_empty) {
  Tzu_ov_d2* set = zu_ov_d2_create();
  auto ring = [&](double x0, double y0, double x1, double y1) {
    Tzu_pv_d2* list = zu_ov_d2_add(set);
    for (Tzu_vtx_d2 v : {Tzu_vtx_d2{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}})
      zu_pv_d2_add_vtx(list, &v);
  };
  ring(1020, 2020, 1100, 2080);
  ring(1040, 2040, 1060, 2060);
  Tzu_pgn_style* style = zu_pgn_style_create();
  zu_bpgn_style_set_color(zu_pgn_style_get_bpgn_style_ptr(style), {10, 20, 30, 0});
  zu_pgn_style_set_pln_visible(style, false);
  zu_render_cr_pgn(render_, set, style);
  zu_pgn_style_destroy(style);
  zu_ov_d2_destroy(set);
  std::vector<std::uint8_t> rgba(100 * 50 * 4);
  zu_drwc_get_pixels(drwc_, rgba.data());
  // Two units of the map a pixel.
  auto pixel = [&](std::size_t x, std::size_t y) { return &rgba[((49 - y) * 100 + x) * 4]; };
  EXPECT_EQ(pixel(12, 12)[3], 255);
  EXPECT_EQ(pixel(12, 12)[2], 30);
  EXPECT_EQ(pixel(25, 25)[3], 0);
  EXPECT_EQ(pixel(60, 20)[3], 0);
}

TEST_F(render, a_piece_of_the_map_lies_where_it_lies_in_the_whole) {
  const Tzu_box_d2 piece{1100, 2000, 1150, 2050};
  zu_render_set_map_box_cr(render_, &piece);
  EXPECT_EQ(zu_render_get_map_box_cr(render_)->x0, 1100);
  double x = 1100, y = 2050;
  zu_xy_apply_matrix3x3(&x, &y, zu_render_get_matrix_cr2mm(render_));
  EXPECT_NEAR(x, 50, 1e-9);
  EXPECT_NEAR(y, 25, 1e-9);
  zu_render_set_map_box_cr(render_, nullptr);
  zu_render_set_map_box_cr(nullptr, &piece);
  EXPECT_EQ(zu_render_get_map_box_cr(render_)->x0, 1100);
}

TEST_F(render, keeps_the_plane) {
  EXPECT_EQ(zu_render_get_plane(render_), 0);
  zu_render_set_plane(render_, 3);
  EXPECT_EQ(zu_render_get_plane(render_), 3);
}

TEST_F(render, null_has_nothing) {
  EXPECT_EQ(zu_render_create(drwc_, nullptr), nullptr);
  EXPECT_EQ(zu_render_get_drwc(nullptr), nullptr);
  EXPECT_EQ(zu_render_get_map_box_cr(nullptr), nullptr);
  EXPECT_EQ(zu_render_get_matrix_cr2mm(nullptr), nullptr);
  EXPECT_FALSE(zu_render_has_affine_transform(nullptr));
  EXPECT_EQ(zu_render_get_plane(nullptr), 0);
  zu_render_set_plane(nullptr, 1);
  zu_render_cr_pln(render_, nullptr, nullptr);
  zu_render_destroy(nullptr);
}

}  // namespace
