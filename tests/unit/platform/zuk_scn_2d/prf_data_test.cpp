#include <gtest/gtest.h>

#include "zu/platform/zuk_scn_2d.h"

namespace {

TEST(profile_data, of_a_new_scene_are_no_profile) {
  Tzu_scn_2d* scene = zu_scn_2d_create();
  Tzu_prf_data* data = zu_scn_2d_get_prf_data_ptr(scene);
  ASSERT_NE(data, nullptr);
  EXPECT_FALSE(zu_prf_data_get_is_profil(data));
  EXPECT_EQ(zu_prf_data_get_axes_scale(data), 1);
  EXPECT_EQ(zu_pv_d2_get_size(zu_prf_data_get_pv(data)), 0U);
  EXPECT_EQ(zu_scn_get_count(scene), 0U);
  zu_scn_2d_destroy(scene);
  EXPECT_EQ(zu_scn_2d_get_prf_data_ptr(nullptr), nullptr);
  EXPECT_EQ(zu_scn_get_count(nullptr), 0U);
}

TEST(profile_data, give_back_what_they_were_given) {
  Tzu_scn_2d* scene = zu_scn_2d_create();
  Tzu_prf_data* data = zu_scn_2d_get_prf_data_ptr(scene);
  zu_prf_data_set_is_profil(data, true);
  zu_prf_data_set_axes_scale(data, 0);
  zu_prf_data_set_xmin(data, 1);
  zu_prf_data_set_ymin(data, 2);
  zu_prf_data_set_zmin(data, 3);
  zu_prf_data_set_xmax(data, 4);
  zu_prf_data_set_ymax(data, 5);
  zu_prf_data_set_zmax(data, 6);
  Tzu_pv_d2* line = zu_pv_d2_create();
  Tzu_vtx_d2 vertex{7, 8};
  zu_pv_d2_add_vtx(line, &vertex);
  zu_prf_data_set_pv(data, line);
  zu_pv_d2_destroy(line);

  data = zu_scn_2d_get_prf_data_ptr(scene);
  EXPECT_TRUE(zu_prf_data_get_is_profil(data));
  EXPECT_EQ(zu_prf_data_get_axes_scale(data), 0);
  EXPECT_EQ(zu_prf_data_get_xmin(data), 1);
  EXPECT_EQ(zu_prf_data_get_ymin(data), 2);
  EXPECT_EQ(zu_prf_data_get_zmin(data), 3);
  EXPECT_EQ(zu_prf_data_get_xmax(data), 4);
  EXPECT_EQ(zu_prf_data_get_ymax(data), 5);
  EXPECT_EQ(zu_prf_data_get_zmax(data), 6);
  ASSERT_EQ(zu_pv_d2_get_size(zu_prf_data_get_pv(data)), 1U);
  EXPECT_EQ(zu_pv_d2_get_arr(zu_prf_data_get_pv(data))[0].y, 8);
  zu_scn_2d_destroy(scene);
}

}  // namespace
