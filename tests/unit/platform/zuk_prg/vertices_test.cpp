#include <gtest/gtest.h>

#include "zu/platform/zuk_prg.h"

namespace {

TEST(vertex_list, copies_and_transforms_its_vertices) {
  Tzu_pv_d2 *list = zu_pv_d2_create(), *copy = zu_pv_d2_create();
  Tzu_vtx_d2 vertex;
  zu_vtx_d2_init_xy(&vertex, 1, 2);
  zu_pv_d2_add_vtx(list, &vertex);
  zu_pv_d2_assign(copy, list);
  Tzu_matrix3x3 moved{{{1, 0, 10}, {0, 1, 20}, {0, 0, 1}}};
  zu_pv_d2_apply_matrix3x3(copy, &moved);
  ASSERT_EQ(zu_pv_d2_get_size(copy), 1u);
  EXPECT_EQ(zu_pv_d2_get_arr(copy)[0].x, 11);
  EXPECT_EQ(zu_pv_d2_get_arr(copy)[0].y, 22);
  EXPECT_EQ(zu_pv_d2_get_arr(list)[0].x, 1);
  zu_pv_d2_destroy(list);
  zu_pv_d2_destroy(copy);
}

TEST(vertex_list, null_is_an_empty_list) {
  EXPECT_EQ(zu_pv_d2_get_size(nullptr), 0u);
  EXPECT_EQ(zu_pv_d2_get_arr(nullptr), nullptr);
  zu_pv_d2_destroy(nullptr);
}

TEST(vertex_list, loses_vertices_at_the_place_of_the_one_before) {
  Tzu_pv_d2* list = zu_pv_d2_create();
  for (Tzu_vtx_d2 v : {Tzu_vtx_d2{1, 1}, {1, 1}, {1, 2}, {1, 1}, {1, 1}, {1, 1}})
    zu_pv_d2_add_vtx(list, &v);
  zu_pv_d2_delete_double(list);
  ASSERT_EQ(zu_pv_d2_get_size(list), 3u);
  EXPECT_EQ(zu_pv_d2_get_arr(list)[1].y, 2);
  zu_pv_d2_delete_double(nullptr);
  zu_pv_d2_destroy(list);
}

TEST(set_of_lists, is_copied_list_by_list_and_keeps_its_lists_in_place) {
  Tzu_ov_d2 *set = zu_ov_d2_create(), *copy = zu_ov_d2_create();
  Tzu_pv_d2* first = zu_ov_d2_add(set);
  for (int i = 0; i < 100; ++i) zu_ov_d2_add(set);
  EXPECT_EQ(zu_ov_d2_get_pv_ptr(set, 0), first);
  Tzu_vtx_d2 vertex{1, 2};
  zu_pv_d2_add_vtx(first, &vertex);

  zu_ov_d2_assign(copy, set);
  EXPECT_EQ(zu_ov_d2_get_size(copy), 101u);
  EXPECT_EQ(zu_ov_d2_get_pv_ptr(copy, 101), nullptr);
  Tzu_matrix3x3 doubled{{{2, 0, 0}, {0, 2, 0}, {0, 0, 1}}};
  zu_ov_d2_apply_matrix3x3(copy, &doubled);
  EXPECT_EQ(zu_pv_d2_get_arr(zu_ov_d2_get_pv_ptr(copy, 0))[0].y, 4);
  EXPECT_EQ(zu_pv_d2_get_arr(first)[0].y, 2);
  zu_ov_d2_assign(copy, copy);
  EXPECT_EQ(zu_ov_d2_get_size(copy), 101u);
  zu_ov_d2_clear(copy);
  EXPECT_EQ(zu_ov_d2_get_size(copy), 0u);
  zu_ov_d2_destroy(set);
  zu_ov_d2_destroy(copy);
}

}  // namespace
