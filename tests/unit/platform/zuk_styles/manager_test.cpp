#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "platform/zuk_styles/parameters.h"
#include "zu/platform/zuk_styles.h"

namespace {

struct destroyed {
  void operator()(Tzu_stl_mngr* manager) const { zu_stl_mngr_destroy(manager); }
};
using manager_ptr = std::unique_ptr<Tzu_stl_mngr, destroyed>;

std::wstring field_in_use(const Tzu_stl_mngr* manager) {
  std::wstring text;
  auto sink = [](const wchar_t* t, void* user) { *static_cast<std::wstring*>(user) = t; };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &text);
  zu_stl_mngr_get_prop_name_w(manager, adapter);
  zu_string_adp_destroy(adapter);
  return text;
}

TEST(style_manager, a_new_one_is_simple_and_gray) {
  manager_ptr manager(zu_clr_stl_mngr_create());
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_simple);
  Tzu_color* color = zu_stl_prm_get_clr_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0);
  EXPECT_EQ(color->r, color->g);
  EXPECT_EQ(color->g, color->b);
  EXPECT_EQ(color->a, 0);
  EXPECT_FALSE(zu_stl_mngr_get_rotate_flag(manager.get()));
}

TEST(style_manager, its_field_is_that_of_the_scale_in_use) {
  manager_ptr manager(zu_clr_stl_mngr_create());
  zu_stl_mngr_set_val_prop_name_w(manager.get(), L"soil");
  zu_stl_mngr_set_rng_prop_name_w(manager.get(), L"height");
  EXPECT_EQ(field_in_use(manager.get()), L"");
  zu_stl_mngr_set_mode(manager.get(), zu_style_value);
  EXPECT_EQ(field_in_use(manager.get()), L"soil");
  zu_stl_mngr_set_mode(manager.get(), zu_style_range);
  EXPECT_EQ(field_in_use(manager.get()), L"height");
}

TEST(style_manager, a_copy_shares_nothing) {
  manager_ptr from(zu_clr_stl_mngr_create()), to(zu_clr_stl_mngr_create());
  zu_stl_mngr_set_mode(from.get(), zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(from.get(), L"height");
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(from.get());
  zu_rng_scale_set_size(scale, 1);
  zu_rng_scale_set_max(scale, 0, 10);
  zu_rng_scale_set_max_value(scale, 10);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale, 0)),
                         {1, 2, 3, 4}, 0);
  zu_rng_scale_beg_find(scale);

  zu_stl_mngr_assign(to.get(), from.get());
  from.reset();
  EXPECT_EQ(zu_stl_mngr_get_mode(to.get()), zu_style_range);
  EXPECT_EQ(field_in_use(to.get()), L"height");
  Tzu_rng_scale* copy = zu_stl_mngr_get_rng_scale_ptr(to.get());
  zu_rng_scale_beg_find(copy);
  Tzu_scale_prm* row = zu_rng_scale_find_scale_prm_ptr(copy, 5);
  EXPECT_EQ(row, zu_rng_scale_get_scale_prm_ptr(copy, 0));
  EXPECT_EQ(zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0)->b, 3);
  zu_rng_scale_end_find(copy);
  zu_stl_mngr_assign(to.get(), to.get());
  EXPECT_EQ(zu_rng_scale_get_size(copy), 1u);
}

TEST(style_manager, a_row_has_a_colour_to_draw_and_one_for_what_is_selected) {
  Tzu_stl_prm style{};
  zu_stl_prm_clr_set_all(&style, {1, 2, 3, 4}, 0);
  zu_stl_prm_clr_set_all(&style, {5, 6, 7, 8}, 1);
  EXPECT_EQ(zu_stl_prm_get_clr_style_ptr(&style, 0)->r, 1);
  EXPECT_EQ(zu_stl_prm_get_clr_style_ptr(&style, 1)->r, 5);
  EXPECT_EQ(zu_scale_prm_get_stl_prm_ptr(nullptr), nullptr);
}

TEST(style_manager, a_row_is_not_copied_as_a_record) {
  static_assert(!std::is_copy_constructible_v<Tzu_stl_prm> &&
                !std::is_copy_assignable_v<Tzu_stl_prm>);
  static_assert(!std::is_copy_constructible_v<Tzu_scale_prm> &&
                !std::is_copy_assignable_v<Tzu_scale_prm>);
  static_assert(std::is_standard_layout_v<Tzu_scale_prm>, "C sees the same record");
  zu::platform::style_parameters first;
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(zu_stl_prm_get_pln_style_ptr(&first, 0)),
                          2);
  const zu::platform::style_parameters second(first);
  EXPECT_NE(second.more, first.more) << "a copy has its own";
}

TEST(style_manager, null_is_harmless) {
  zu_stl_mngr_set_mode(nullptr, zu_style_range);
  EXPECT_EQ(zu_stl_mngr_get_mode(nullptr), zu_style_simple);
  EXPECT_EQ(zu_stl_mngr_get_rng_scale_ptr(nullptr), nullptr);
  EXPECT_EQ(zu_rng_scale_get_size(nullptr), 0u);
  zu_rng_scale_set_size(nullptr, 3);
  zu_rng_scale_beg_find(nullptr);
  zu_val_scale_end_find(nullptr);
  EXPECT_EQ(field_in_use(nullptr), L"");
}

TEST(overlay_styles, are_off_until_switched_on) {
  Tzu_hillshade_style* shade = zu_hillshade_style_create();
  EXPECT_FALSE(zu_hillshade_style_get_use(shade));
  zu_hillshade_style_destroy(shade);
  Tzu_isoline_style* lines = zu_isoline_style_create();
  EXPECT_FALSE(zu_isoline_style_get_use(lines));
  zu_isoline_style_destroy(lines);
}

}  // namespace
