#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "platform/zuk_prg/vertices.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace {

struct ended {
  void operator()(Tzu_rpj_fb_d2* rpj) const { zu_rpj_fb_d2_destroy(rpj); }
};
using rpj_ptr = std::unique_ptr<Tzu_rpj_fb_d2, ended>;

rpj_ptr between(const wchar_t* source, const wchar_t* target) {
  rpj_ptr rpj(zu_rpj_fb_d2_create());
  zu_rpj_fb_d2_init_w(rpj.get(), source, target);
  return rpj;
}

Tzu_vtx_d2 moved(const rpj_ptr& rpj, double x, double y, int direction = 1) {
  Tzu_pv_d2 list;
  list.vertices = {{x, y}};
  zu_rpj_fb_d2_apply_pv(rpj.get(), &list, direction);
  return list.vertices[0];
}

std::wstring told(void (*ask)(const wchar_t*, Tzu_string_adp*), const wchar_t* text) {
  std::wstring out;
  auto sink = [](const wchar_t* words, void* user) { *static_cast<std::wstring*>(user) += words; };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &out);
  ask(text, adapter);
  zu_string_adp_destroy(adapter);
  return out;
}

struct reprojection_case {
  const wchar_t* source;
  const wchar_t* target;
  double x, y, to_x, to_y;
};

// Expected: GDAL 3.6.2's CoordinateTransformation on PROJ 9.1, axes in the order x east, y north.
const reprojection_case cases[] = {
    {L"EPSG:4326", L"EPSG:32637", 37.6173, 55.7558, 413224.137659, 6179766.953877},
    {L"EPSG:32637", L"EPSG:3857", 413000, 6179000, 4187168.439718, 7508584.441410},
    {L"EPSG:4326", L"EPSG:3857", 37.6173, 55.7558, 4187538.681018, 7509955.142338},
    {L"EPSG:4326", L"EPSG:2180", 19, 52, 500000.0, 459309.209402},
    {L"+proj=longlat +datum=WGS84 +no_defs", L"EPSG:32637", 37.6173, 55.7558, 413224.137659,
     6179766.953877},
    {L"+init=epsg:4326", L"+init=epsg:32637", 37.6173, 55.7558, 413224.137659, 6179766.953877},
};

TEST(reprojector, x_is_east_and_y_north_whatever_the_registry_says_of_axes) {
  for (const auto& c : cases) {
    rpj_ptr rpj = between(c.source, c.target);
    ASSERT_TRUE(zu_rpj_fb_d2_rpj_is_needed(rpj.get())) << std::string(c.target, c.target + 10);
    Tzu_vtx_d2 there = moved(rpj, c.x, c.y);
    EXPECT_NEAR(there.x, c.to_x, 1e-3);
    EXPECT_NEAR(there.y, c.to_y, 1e-3);
    Tzu_vtx_d2 back = moved(rpj, there.x, there.y, 0);
    EXPECT_NEAR(back.x, c.x, 1e-6);
    EXPECT_NEAR(back.y, c.y, 1e-6);
  }
}

TEST(reprojector, a_point_goes_as_a_list_of_one_does) {
  for (const auto& c : cases) {
    rpj_ptr rpj = between(c.source, c.target);
    double x = c.x, y = c.y;
    EXPECT_TRUE(zu_rpj_fb_d2_apply_xy(rpj.get(), &x, &y, 1));
    Tzu_vtx_d2 there = moved(rpj, c.x, c.y);
    EXPECT_EQ(x, there.x);
    EXPECT_EQ(y, there.y);
    EXPECT_TRUE(zu_rpj_fb_d2_apply_xy(rpj.get(), &x, &y, 0));
    EXPECT_NEAR(x, c.x, 1e-6);
  }
  rpj_ptr rpj = between(L"EPSG:4326", L"EPSG:3857");
  double x = 3, y = 4;
  EXPECT_FALSE(zu_rpj_fb_d2_apply_xy(nullptr, &x, &y, 1));
  EXPECT_FALSE(zu_rpj_fb_d2_apply_xy(rpj.get(), nullptr, &y, 1));
  EXPECT_EQ(x, 3);
  x = HUGE_VAL;
  EXPECT_FALSE(zu_rpj_fb_d2_apply_xy(rpj.get(), &x, &y, 1));
  EXPECT_TRUE(std::isinf(x) && std::isinf(y));
}

TEST(reprojector, the_same_system_in_other_words_needs_no_reprojection) {
  std::wstring wkt =
      told([](const wchar_t* text, Tzu_string_adp* adapter) { zu_pj_get_wkt_w(text, adapter); },
           L"EPSG:32637");
  const wchar_t* same[] = {L"EPSG:32637", wkt.c_str(), L"+proj=utm +zone=37 +datum=WGS84"};
  for (const wchar_t* text : same) {
    rpj_ptr rpj(zu_rpj_fb_d2_create());
    EXPECT_TRUE(zu_rpj_fb_d2_init_w(rpj.get(), text, L"EPSG:32637"));
    EXPECT_FALSE(zu_rpj_fb_d2_rpj_is_needed(rpj.get()));
  }
}

TEST(reprojector, a_text_that_is_empty_or_not_understood_leaves_nothing_to_reproject) {
  rpj_ptr rpj = between(L"EPSG:4326", L"EPSG:3857");
  for (const wchar_t* text : {L"", L"EPSG:999999", L"sideways", L"+proj=nonsense"}) {
    EXPECT_FALSE(zu_rpj_fb_d2_init_w(rpj.get(), L"EPSG:4326", text));
    EXPECT_FALSE(zu_rpj_fb_d2_rpj_is_needed(rpj.get()));
  }
  EXPECT_FALSE(zu_rpj_fb_d2_init_w(rpj.get(), nullptr, L"EPSG:4326"));
  EXPECT_DOUBLE_EQ(moved(rpj, 3, 4).x, 3);
}

TEST(reprojector, a_vertex_without_an_image_becomes_infinite_and_the_others_stand) {
  rpj_ptr rpj = between(L"EPSG:4326", L"+proj=ortho +lat_0=0 +lon_0=0 +datum=WGS84");
  Tzu_pv_d2 list;
  list.vertices = {{180, 0}, {0, 0}};
  EXPECT_TRUE(zu_rpj_fb_d2_apply_pv(rpj.get(), &list, 1));
  EXPECT_TRUE(std::isinf(list.vertices[0].x));
  EXPECT_TRUE(std::isinf(list.vertices[0].y));
  EXPECT_NEAR(list.vertices[1].x, 0, 1e-9);
  list.vertices = {{180, 0}};
  EXPECT_FALSE(zu_rpj_fb_d2_apply_pv(rpj.get(), &list, 1));
}

TEST(reprojector, the_affine_step_follows_the_projection_and_precedes_the_way_back) {
  rpj_ptr rpj = between(L"EPSG:4326", L"EPSG:3857");
  Tzu_matrix3x3 halves_and_moves{{{0.5, 0, 100}, {0, 0.5, -200}, {0, 0, 1}}};
  zu_rpj_fb_d2_set_affine_after(rpj.get(), &halves_and_moves);
  zu_rpj_fb_d2_set_use_affine_after(rpj.get(), true);
  Tzu_vtx_d2 there = moved(rpj, 37.6173, 55.7558);
  EXPECT_NEAR(there.x, 4187538.681018 / 2 + 100, 1e-3);
  EXPECT_NEAR(there.y, 7509955.142338 / 2 - 200, 1e-3);
  Tzu_vtx_d2 back = moved(rpj, there.x, there.y, 0);
  EXPECT_NEAR(back.x, 37.6173, 1e-9);
}

TEST(reprojector, the_affine_step_works_without_a_projection) {
  rpj_ptr rpj(zu_rpj_fb_d2_create());
  Tzu_matrix3x3 doubles{{{2, 0, 0}, {0, 2, 0}, {0, 0, 1}}};
  zu_rpj_fb_d2_set_affine_after(rpj.get(), &doubles);
  zu_rpj_fb_d2_set_use_affine_after(rpj.get(), true);
  Tzu_box_d2 box{1, 2, 3, 4};
  EXPECT_TRUE(zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1));
  EXPECT_DOUBLE_EQ(box.x1, 6);
  EXPECT_DOUBLE_EQ(box.y0, 4);
  EXPECT_FALSE(zu_rpj_fb_d2_rpj_is_needed(rpj.get()));
}

TEST(reprojector, a_step_without_an_inverse_has_no_way_back) {
  rpj_ptr rpj(zu_rpj_fb_d2_create());
  Tzu_matrix3x3 flat{{{1, 0, 0}, {0, 0, 0}, {0, 0, 1}}};
  zu_rpj_fb_d2_set_affine_after(rpj.get(), &flat);
  zu_rpj_fb_d2_set_use_affine_after(rpj.get(), true);
  Tzu_box_d2 box{1, 2, 3, 4};
  EXPECT_FALSE(zu_rpj_fb_d2_apply_box(rpj.get(), &box, 0));
  EXPECT_TRUE(std::isinf(moved(rpj, 1, 1, 0).x));
}

// A parallel bends between its ends: 60 N of zone 37 lies lowest on the central meridian, 39 E,
// where northing is 0.9996 times the length of the meridian, 6654072.819 m on WGS 84.
TEST(reprojector, a_box_holds_its_bent_edges) {
  rpj_ptr rpj = between(L"EPSG:4326", L"EPSG:32637");
  Tzu_box_d2 box{36, 60, 42, 61};
  ASSERT_TRUE(zu_rpj_fb_d2_apply_box_approx(rpj.get(), &box, 1));
  EXPECT_NEAR(box.y0, 6654072.819 * 0.9996, 100);
  EXPECT_LT(box.y0, moved(rpj, 36, 60).y);
  EXPECT_NEAR(box.x0 + box.x1, 1000000, 1);
}

TEST(reprojector, a_box_around_the_pole_reaches_it) {
  rpj_ptr rpj = between(L"EPSG:3995", L"EPSG:4326");
  Tzu_box_d2 box{-1000000, -1000000, 1000000, 1000000};
  ASSERT_TRUE(zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1));
  EXPECT_NEAR(box.y1, 90, 1e-9);
  EXPECT_NEAR(box.x0, -180, 1e-9);
  EXPECT_NEAR(box.x1, 180, 1e-9);
}

TEST(reprojector, a_box_over_the_date_line_stays_ordered) {
  rpj_ptr rpj = between(L"EPSG:32601", L"EPSG:4326");
  Tzu_box_d2 box{100000, 6000000, 500000, 6500000};
  ASSERT_TRUE(zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1));
  EXPECT_LE(box.x0, -180 + 1e-9);
  EXPECT_GE(box.x1, 180 - 1e-9);
}

TEST(reprojector, a_box_that_is_partly_without_an_image_keeps_the_rest) {
  rpj_ptr rpj = between(L"EPSG:4326", L"+proj=ortho +lat_0=0 +lon_0=0 +datum=WGS84");
  Tzu_box_d2 box{-170, -10, 170, 10};
  EXPECT_TRUE(zu_rpj_fb_d2_apply_box(rpj.get(), &box, 1));
  EXPECT_GT(box.x1, 6e6);
  Tzu_box_d2 behind{170, -5, 180, 5};
  EXPECT_FALSE(zu_rpj_fb_d2_apply_box(rpj.get(), &behind, 1));
}

TEST(reprojector, null_is_no_crash) {
  Tzu_box_d2 box{};
  EXPECT_FALSE(zu_rpj_fb_d2_init_w(nullptr, L"EPSG:4326", L"EPSG:3857"));
  EXPECT_FALSE(zu_rpj_fb_d2_apply_box(nullptr, &box, 1));
  EXPECT_FALSE(zu_pj_check_w(nullptr, nullptr));
  zu_rpj_fb_d2_destroy(nullptr);
}

TEST(coordinate_system, is_named_for_people_and_for_the_registry) {
  EXPECT_EQ(told(zu_pj_get_name_w, L"EPSG:32637"), L"WGS 84 / UTM zone 37N");
  EXPECT_EQ(told(zu_pj_get_name_w, L"no system"), L"no system");
  EXPECT_EQ(told(zu_pj_get_authority_w, L"+init=epsg:3857"), L"EPSG:3857");
  EXPECT_EQ(told(zu_pj_get_authority_w, L"+proj=tmerc +lon_0=12.34 +ellps=intl"), L"");
}

TEST(coordinate_system, has_axes_of_a_length_or_of_an_angle) {
  bool is_angle = true;
  EXPECT_EQ(zu_pj_get_unit_w(L"EPSG:32637", &is_angle), 1);
  EXPECT_FALSE(is_angle);
  EXPECT_NEAR(zu_pj_get_unit_w(L"EPSG:4326", &is_angle), std::acos(-1.0) / 180, 1e-15);
  EXPECT_TRUE(is_angle);
  EXPECT_GT(zu_pj_get_unit_w(L"EPSG:4326", nullptr), 0);
  EXPECT_EQ(zu_pj_get_unit_w(L"sideways", nullptr), 0);
  EXPECT_EQ(zu_pj_get_unit_w(nullptr, nullptr), 0);
}

TEST(coordinate_system, an_unknown_text_has_a_reason) {
  auto check = [](const wchar_t* text, Tzu_string_adp* reason) { zu_pj_check_w(text, reason); };
  EXPECT_EQ(told(check, L"EPSG:3857"), L"");
  EXPECT_EQ(told(check, L"EPSG:999999"), L"crs not found");
  EXPECT_NE(told(check, L""), L"");
  EXPECT_FALSE(zu_pj_check_w(L"sideways", nullptr));
}

}  // namespace
