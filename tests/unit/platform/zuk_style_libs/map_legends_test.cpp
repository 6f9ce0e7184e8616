#include <gtest/gtest.h>

#include "platform/zuk_basic/owned.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_style_libs.h"

namespace {

using tests::text_of;
using project_ptr = zu::platform::owned<zu_prj_destroy>;
using manager_ptr = zu::platform::owned<zu_stl_mngr_destroy>;

/// A row of a value scale: its text, caption and colour.
void add_row(Tzu_val_scale* scale, const wchar_t* text, const wchar_t* caption, std::uint8_t red) {
  std::uint64_t row = zu_val_scale_add(scale) - 1;
  zu_val_scale_set_text_w(scale, row, text);
  zu_val_scale_set_caption_w(scale, row, caption);
  Tzu_stl_prm* style = &zu_val_scale_get_scale_prm_ptr(scale, row)->style;
  zu_stl_prm_clr_set_all(style, {red, 0, 0, 0}, 0);
  zu_stl_prm_clr_set_all(style, {0, red, 0, 0}, 1);
}
std::wstring caption(const Tzu_val_scale* scale, std::uint64_t row) {
  return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale, row, a); });
}
int red(Tzu_val_scale* scale, std::uint64_t row) {
  return zu_val_scale_get_scale_prm_ptr(scale, row)->style.colors[0].r;
}

struct map_legends : testing::Test {
  map_legends() {
    Tzu_val_scale* from = zu_mapleg_get_val_scale_ptr(legend);
    add_row(from, L"1", L"sand", 11);
    add_row(from, L"2", L"clay", 22);
    add_row(from, L"1", L"never", 99);
    for (const wchar_t* text : {L"2", L"3", L"1"}) add_row(scale, text, L"mine", 50);
  }
  project_ptr project{zu_prj_create()};
  Tzu_maplegs* legends = zu_prj_get_maplegs_ptr(project.get());
  Tzu_mapleg* legend = zu_maplegs_add(legends, L"Soils");
  manager_ptr manager{zu_clr_stl_mngr_create()};
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager.get());
};

TEST_F(map_legends, rows_of_the_same_text_get_caption_and_drawn_style) {
  zu_val_scale_style_by_mapleg(scale, legend, false, 0);
  EXPECT_EQ(caption(scale, 0), L"clay");
  EXPECT_EQ(caption(scale, 1), L"mine");
  EXPECT_EQ(caption(scale, 2), L"sand");
  EXPECT_EQ(red(scale, 0), 22);
  EXPECT_EQ(red(scale, 1), 50);
  EXPECT_EQ(red(scale, 2), 11);
  EXPECT_EQ(zu_val_scale_get_scale_prm_ptr(scale, 0)->style.colors[1].g, 50);
}

TEST_F(map_legends, only_marked_rows_change_if_that_is_wanted) {
  zu_val_scale_set_marked(scale, 2, true);
  zu_val_scale_style_by_mapleg(scale, legend, true, 0);
  EXPECT_EQ(caption(scale, 0), L"mine");
  EXPECT_EQ(caption(scale, 2), L"sand");
}

TEST_F(map_legends, symbols_come_along) {
  Tzu_stl_prm* from =
      &zu_val_scale_get_scale_prm_ptr(zu_mapleg_get_val_scale_ptr(legend), 1)->style;
  zu_bpln_style_set_width(zu_pln_style_get_bpln_style_ptr(zu_stl_prm_get_pln_style_ptr(from, 0)),
                          3.5);
  zu_val_scale_style_by_mapleg(scale, legend, false, 0);
  Tzu_stl_prm* row = &zu_val_scale_get_scale_prm_ptr(scale, 0)->style;
  EXPECT_EQ(zu_bpln_style_get_width(
                zu_pln_style_get_bpln_style_ptr(zu_stl_prm_get_pln_style_ptr(row, 0))),
            3.5);
}

TEST_F(map_legends, a_project_is_the_current_one_until_it_ends) {
  EXPECT_EQ(zu_prj_get_instance(), nullptr);
  zu_prj_set_instance(project.get());
  EXPECT_EQ(zu_prj_get_instance(), project.get());
  project.reset();
  EXPECT_EQ(zu_prj_get_instance(), nullptr);
}

TEST_F(map_legends, legends_stand_in_the_order_in_which_they_were_added) {
  zu_maplegs_add(legends, L"Rocks");
  ASSERT_EQ(zu_maplegs_get_size(legends), 2u);
  EXPECT_EQ(
      text_of([&](Tzu_string_adp* a) { zu_mapleg_get_title(zu_maplegs_get_ptr(legends, 1), a); }),
      L"Rocks");
  EXPECT_EQ(zu_maplegs_get_ptr(legends, 2), nullptr);
  zu_maplegs_clear(legends);
  EXPECT_EQ(zu_maplegs_get_size(legends), 0u);
}

TEST_F(map_legends, are_filled_anew_each_time_they_are_asked_for) {
  int asked = 0;
  zu_prj_set_refresh(
      project.get(),
      [](Tzu_maplegs* all, void* user) {
        zu_maplegs_clear(all);
        for (int i = ++*static_cast<int*>(user); i > 0; --i) zu_maplegs_add(all, L"");
      },
      &asked);
  EXPECT_EQ(zu_maplegs_get_size(zu_prj_get_maplegs_ptr(project.get())), 1u);
  EXPECT_EQ(zu_maplegs_get_size(zu_prj_get_maplegs_ptr(project.get())), 2u);
  zu_prj_set_refresh(project.get(), nullptr, nullptr);
  EXPECT_EQ(zu_maplegs_get_size(zu_prj_get_maplegs_ptr(project.get())), 2u);
}

TEST_F(map_legends, nothing_given_does_nothing) {
  zu_val_scale_style_by_mapleg(nullptr, legend, false, 0);
  zu_val_scale_style_by_mapleg(scale, nullptr, false, 0);
  EXPECT_EQ(zu_maplegs_add(nullptr, L""), nullptr);
  EXPECT_EQ(zu_mapleg_get_val_scale_ptr(nullptr), nullptr);
  EXPECT_EQ(zu_prj_get_maplegs_ptr(nullptr), nullptr);
  EXPECT_EQ(caption(scale, 0), L"mine");
}

}  // namespace
