// What the platform's headers define inline the library exports under the same name, and both do
// the same.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>

#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

namespace {

/// The library's own copy of an operation; null if it has none.
template <class operation> operation* exported(operation*, const char* name) {
  static void* library = dlopen("libzuk_platform.so", RTLD_NOW | RTLD_NOLOAD);
  return library != nullptr ? reinterpret_cast<operation*>(dlsym(library, name)) : nullptr;
}
#define EXPORTED(name) exported(static_cast<decltype(&(name))>(nullptr), #name)

const double values[] = {-HUGE_VAL, -1e300, -7,   -0.0, 0,        1,  2.5,
                         9.999,     10,     10.5, 1e9,  HUGE_VAL, NAN};

TEST(inline_operations, a_matrix_is_applied_alike) {
  auto* apply = EXPORTED(zu_xy_apply_matrix3x3);
  ASSERT_NE(apply, nullptr);
  Tzu_matrix3x3 matrix{{{1.1, -0.2, 3.3}, {0.4, 0.9, -7}, {0, 0, 1}}};
  double x = 0.1, y = 0.7, other_x = x, other_y = y;
  zu_xy_apply_matrix3x3(&x, &y, &matrix);
  apply(&other_x, &other_y, &matrix);
  EXPECT_EQ(x, other_x);
  EXPECT_EQ(y, other_y);
}

TEST(inline_operations, pixels_are_stored_and_read_alike) {
  auto* set = EXPORTED(zu_dib_set_rgba);
  auto* get = EXPORTED(zu_dib_get_rgba);
  ASSERT_NE(set, nullptr);
  ASSERT_NE(get, nullptr);
  Tzu_dib* dib = zu_dib_create();
  zu_dib_set_nxy(dib, 3, 2);
  zu_dib_set_rgba(dib, 1, 1, 1, 2, 3, 4);
  set(dib, 2, 1, 1, 2, 3, 4);
  EXPECT_EQ(zu_dib_get_arr(dib)[4], zu_dib_get_arr(dib)[5]);
  uint8_t a[4], b[4];
  zu_dib_get_rgba(dib, 2, 1, &a[0], &a[1], &a[2], &a[3]);
  get(dib, 1, 1, &b[0], &b[1], &b[2], &b[3]);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(a[i], b[i]);
  zu_dib_destroy(dib);
}

TEST(inline_operations, a_mesh_is_scanned_alike) {
  auto* scan = EXPORTED(zu_trimesh_d2_scan);
  ASSERT_NE(scan, nullptr);
  Tzu_pv_d2 *from = zu_pv_d2_create(), *to = zu_pv_d2_create();
  for (double x : {0, 10, 20})
    for (double y : {0, 10}) {
      Tzu_vtx_d2 source{x, y}, target{x * 1.5 + y, std::sin(x) + y};
      zu_pv_d2_add_vtx(from, &source);
      zu_pv_d2_add_vtx(to, &target);
    }
  Tzu_trimesh_d2 *a = zu_trimesh_d2_create(to, from), *b = zu_trimesh_d2_create(to, from);
  zu_trimesh_d2_init(a, -3, -4);
  zu_trimesh_d2_init(b, -3, -4);
  for (int k = 0; k < 30; ++k) {
    double ax = 0, ay = 0, bx = 0, by = 0;
    EXPECT_EQ(zu_trimesh_d2_scan(a, &ax, &ay), scan(b, &bx, &by)) << k;
    EXPECT_EQ(ax, bx);
    EXPECT_EQ(ay, by);
  }
  for (Tzu_trimesh_d2* mesh : {a, b}) zu_trimesh_d2_destroy(mesh);
  for (Tzu_pv_d2* list : {from, to}) zu_pv_d2_destroy(list);
}

TEST(inline_operations, nodes_are_stored_and_read_alike) {
  auto* set = EXPORTED(zu_mgrid2d_set_dbl);
  auto* get = EXPORTED(zu_mgrid2d_get_dbl);
  ASSERT_NE(set, nullptr);
  ASSERT_NE(get, nullptr);
  Tzu_mgrid2d* grid = zu_dbl_mgrid2d_create();
  Tzu_mgrid2d_topology unit{0, 0, 1, 1, 0};
  ASSERT_TRUE(zu_mgrid2d_init(grid, 3, 2, &unit));
  zu_mgrid2d_set_dbl(grid, 2, 1, 7.5);
  set(grid, 1, 1, -3.25);
  EXPECT_EQ(get(grid, 2, 1), 7.5);
  EXPECT_EQ(zu_mgrid2d_get_dbl(grid, 1, 1), -3.25);
  zu_mgrid2d_destroy(grid);
}

TEST(inline_operations, scales_are_looked_up_alike) {
  auto* find_range = EXPORTED(zu_rng_scale_find_scale_prm_ptr);
  auto* find_value = EXPORTED(zu_val_scale_find_scale_prm_ptr_d);
  auto* visible = EXPORTED(zu_scale_prm_get_visible);
  auto* style = EXPORTED(zu_scale_prm_get_stl_prm_ptr);
  auto* color = EXPORTED(zu_stl_prm_get_clr_style_ptr);
  ASSERT_NE(find_range, nullptr);
  ASSERT_NE(find_value, nullptr);
  ASSERT_NE(visible, nullptr);
  ASSERT_NE(style, nullptr);
  ASSERT_NE(color, nullptr);
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_rng_scale* ranges = zu_stl_mngr_get_rng_scale_ptr(manager);
  zu_rng_scale_set_size(ranges, 1);
  zu_rng_scale_set_max(ranges, 0, 10);
  zu_rng_scale_set_max_value(ranges, 10);
  Tzu_val_scale* numbers = zu_stl_mngr_get_val_scale_ptr(manager);
  zu_val_scale_add(numbers);
  zu_val_scale_set_text_w(numbers, 0, L"10");
  zu_rng_scale_beg_find(ranges);
  zu_val_scale_beg_find(numbers);
  for (double value : values) {
    Tzu_scale_prm* row = zu_rng_scale_find_scale_prm_ptr(ranges, value);
    EXPECT_EQ(row, find_range(ranges, value)) << value;
    EXPECT_EQ(zu_val_scale_find_scale_prm_ptr_d(numbers, value), find_value(numbers, value))
        << value;
    EXPECT_EQ(zu_scale_prm_get_visible(row), visible(row));
    EXPECT_EQ(zu_scale_prm_get_stl_prm_ptr(row), style(row));
    for (int i : {0, 1})
      EXPECT_EQ(zu_stl_prm_get_clr_style_ptr(style(row), i), color(style(row), i));
  }
  zu_rng_scale_end_find(ranges);
  zu_val_scale_end_find(numbers);
  zu_stl_mngr_destroy(manager);
}

TEST(inline_operations, colours_are_packed_alike) {
  auto* pack = EXPORTED(zu_clr_init_rgba);
  ASSERT_NE(pack, nullptr);
  EXPECT_EQ(zu_clr_init_rgba(1, 2, 3, 254), 0xfe030201u);
  EXPECT_EQ(pack(1, 2, 3, 254), 0xfe030201u);
}

TEST(inline_operations, a_channel_spreads_alike) {
  auto* spread = EXPORTED(zu_clr_channel_get255value);
  ASSERT_NE(spread, nullptr);
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(channels);
  zu_clr_channel_set_limits(gray, -7, 10.5);
  for (double value : values)
    EXPECT_EQ(zu_clr_channel_get255value(gray, value), spread(gray, value)) << value;
  zu_rgb_channels_destroy(channels);
}

}  // namespace
