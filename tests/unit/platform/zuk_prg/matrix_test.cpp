#include <gtest/gtest.h>

#include <cmath>

#include "zu/platform/zuk_prg.h"

namespace {

Tzu_vtx_d2 mapped(const Tzu_matrix3x3& matrix, double x, double y) {
  zu_xy_apply_matrix3x3(&x, &y, &matrix);
  return {x, y};
}

#define EXPECT_POINT(point, expected_x, expected_y) \
  EXPECT_NEAR((point).x, expected_x, 1e-12);        \
  EXPECT_NEAR((point).y, expected_y, 1e-12)

TEST(matrix3x3, maps_box_to_box_corner_to_corner) {
  Tzu_box_d2 from{10, 20, 30, 60}, to{0, 0, 100, -10};
  Tzu_matrix3x3 matrix;
  zu_matrix3x3_init_box2box(&matrix, &from, &to);
  EXPECT_POINT(mapped(matrix, 10, 20), 0, 0);
  EXPECT_POINT(mapped(matrix, 30, 60), 100, -10);
  EXPECT_POINT(mapped(matrix, 20, 30), 50, -2.5);
}

TEST(matrix3x3, a_side_without_length_maps_to_the_low_side) {
  Tzu_box_d2 from{5, 0, 5, 2}, to{7, 0, 9, 4};
  Tzu_matrix3x3 matrix;
  zu_matrix3x3_init_box2box(&matrix, &from, &to);
  EXPECT_POINT(mapped(matrix, 5, 1), 7, 2);
}

TEST(matrix3x3, a_product_applies_the_second_factor_first) {
  Tzu_matrix3x3 doubled{{{2, 0, 0}, {0, 2, 0}, {0, 0, 1}}};
  Tzu_matrix3x3 moved{{{1, 0, 3}, {0, 1, 4}, {0, 0, 1}}};
  Tzu_matrix3x3 product;
  zu_matrix3x3_mult(&product, &doubled, &moved);
  EXPECT_POINT(mapped(product, 1, 1), 8, 10);
  zu_matrix3x3_mult(&doubled, &moved, &doubled);  // the result may be a factor
  EXPECT_POINT(mapped(doubled, 1, 1), 5, 6);
}

TEST(matrix3x3, an_inverse_takes_a_point_back) {
  Tzu_matrix3x3 matrix{{{2, 1, 5}, {-1, 3, 7}, {0, 0, 1}}};
  EXPECT_DOUBLE_EQ(zu_matrix3x3_determinant(&matrix), 7);
  Tzu_matrix3x3 inverse = matrix;
  ASSERT_TRUE(zu_matrix3x3_invert_inplace(&inverse));
  Tzu_vtx_d2 there = mapped(matrix, 11, -13);
  EXPECT_POINT(mapped(inverse, there.x, there.y), 11, -13);
}

TEST(matrix3x3, without_an_inverse_nothing_changes) {
  for (double term : {0.0, std::nan(""), HUGE_VAL}) {
    Tzu_matrix3x3 matrix{{{term, 0, 5}, {0, 1, 7}, {0, 0, 1}}};
    EXPECT_FALSE(zu_matrix3x3_invert_inplace(&matrix)) << term;
    EXPECT_EQ(matrix.m[0][2], 5);
    EXPECT_EQ(matrix.m[1][2], 7);
  }
}

TEST(matrix3x3, a_placement_turns_counter_clockwise_about_its_origin) {
  Tzu_affine_2d placement;
  zu_affine_2d_init_x0y0dxdy_angle(&placement, 100, 200, 10, 20, std::acos(-1.0) / 2);
  Tzu_matrix3x3 matrix;
  zu_matrix3x3_init_affine(&matrix, &placement);
  EXPECT_POINT(mapped(matrix, 0, 0), 100, 200);
  EXPECT_POINT(mapped(matrix, 1, 0), 100, 210);
  EXPECT_POINT(mapped(matrix, 0, 1), 80, 200);
}

TEST(matrix4x4, keeps_the_plane_and_leaves_height_alone) {
  Tzu_matrix3x3 matrix{{{1, 2, 3}, {4, 5, 6}, {0, 0, 1}}};
  Tzu_matrix4x4 spatial;
  zu_matrix4x4_init_matrix3x3(&spatial, &matrix);
  const double expected[4][4] = {{1, 2, 0, 3}, {4, 5, 0, 6}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) EXPECT_EQ(spatial.m[i][j], expected[i][j]) << i << j;
}

TEST(box, keeps_or_orders_its_corners) {
  Tzu_box_d2 box;
  zu_box_d2_init_xy(&box, 3, 4, 1, 2);
  EXPECT_EQ(box.x0, 3);
  EXPECT_EQ(box.y1, 2);
  zu_box_d2_make_xy(&box, 3, 2, 1, 4);
  EXPECT_EQ(box.x0, 1);
  EXPECT_EQ(box.y0, 2);
  EXPECT_EQ(box.x1, 3);
  EXPECT_EQ(box.y1, 4);
}

TEST(box, boxes_that_only_touch_do_not_cross) {
  Tzu_box_d2 a{0, 0, 10, 10}, common;
  struct {
    Tzu_box_d2 other;
    bool crosses;
  } rows[] = {{{5, 5, 15, 15}, true},
              {{10, 0, 20, 10}, false},
              {{11, 11, 12, 12}, false},
              {{2, 2, 3, 3}, true}};
  for (const auto& row : rows)
    EXPECT_EQ(zu_box_d2_cross(&a, &row.other, &common), row.crosses) << row.other.x0;
  ASSERT_TRUE(zu_box_d2_cross(&a, &rows[0].other, &common));
  EXPECT_EQ(common.x0, 5);
  EXPECT_EQ(common.y1, 10);
}

TEST(box, a_turned_box_is_that_of_all_four_corners) {
  Tzu_matrix3x3 turn{{{0.6, -0.8, 0}, {0.8, 0.6, 0}, {0, 0, 1}}};
  Tzu_box_d2 box{0, 0, 10, 5};
  zu_box_d2_apply_matrix3x3(&box, &turn);
  EXPECT_NEAR(box.x0, -4, 1e-12);
  EXPECT_NEAR(box.y0, 0, 1e-12);
  EXPECT_NEAR(box.x1, 6, 1e-12);
  EXPECT_NEAR(box.y1, 11, 1e-12);
}

TEST(affine, is_the_identity_only_if_it_moves_nothing) {
  Tzu_affine_2d identity{0, 0, 1, 1, 0};
  EXPECT_TRUE(zu_affine_2d_is_identity(&identity));
  for (const Tzu_affine_2d& other : {Tzu_affine_2d{1e-9, 0, 1, 1, 0},
                                     {0, 1, 1, 1, 0},
                                     {0, 0, 2, 1, 0},
                                     {0, 0, 1, -1, 0},
                                     {0, 0, 1, 1, 1e-9}})
    EXPECT_FALSE(zu_affine_2d_is_identity(&other));
}

TEST(matrix3x3, turns_counter_clockwise_about_a_centre) {
  Tzu_matrix3x3 turn;
  zu_matrix3x3_init_rotate_center(&turn, 10, 20, zu_grd2rad(90));
  double x = 13, y = 20;
  zu_xy_apply_matrix3x3(&x, &y, &turn);
  EXPECT_NEAR(x, 10, 1e-12);
  EXPECT_NEAR(y, 23, 1e-12);
  x = 10, y = 20;
  zu_xy_apply_matrix3x3(&x, &y, &turn);
  EXPECT_NEAR(x, 10, 1e-12);
  EXPECT_NEAR(y, 20, 1e-12);
}

TEST(box, is_widened_by_a_part_of_itself_about_its_middle) {
  Tzu_box_d2 box{0, 10, 100, 20};
  zu_box_d2_inflate_cf(&box, 0.1);
  EXPECT_EQ(box.x0, -10);
  EXPECT_EQ(box.y0, 9);
  EXPECT_EQ(box.x1, 110);
  EXPECT_EQ(box.y1, 21);
  EXPECT_EQ(zu_halfway(-4, 10), 3);
  zu_box_d2_inflate_cf(nullptr, 1);
}

}  // namespace
