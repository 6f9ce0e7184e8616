#include "src/style/levels/style_adavanced_dialog.h"

#include <gtest/gtest.h>

#include "tests/unit/src/style/dialogs/style_form.h"
#include "tests/unit/src/style/levels/shown_levels.h"

namespace {

using namespace zu;

constexpr std::int32_t use_text = 13601;

class style_adavanced_dialog : public testing::Test {
 protected:
  style_adavanced_dialog() {
    tests::element_taker cell;
    auto root = cast<grid_layout_impl>(shown_.element());
    call<&grid_layout_impl::visit_cell>(root, 0u, 1u, cell.visitor());
    frame_ = cast<groupbox_impl>(cell.only());
  }
  std::int32_t level() {
    return zu_bpln_style_get_render_level(zu_pln_style_get_bpln_style_ptr(
        zu_stl_prm_get_pln_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager_.get()), 0)));
  }
  bool used() { return zu_stl_mngr_get_use_render_levels(manager_.get()); }
  bool frame_checked() { return call<&groupbox_impl::checked>(frame_); }

  tests::base_language language_;
  owned<zu_stl_mngr_destroy> manager_{zu_stl_mngr_create("pln_mngr_style")};
  dialog::style_adavanced_dialog shown_{manager_.get()};
  tests::style_form form_{shown_.element()};
  tests::shown_levels levels_{shown_.element()};
  of<groupbox_impl> frame_;
};

TEST_F(style_adavanced_dialog, ok_gives_the_copy_back_with_the_use_of_levels) {
  EXPECT_FALSE(form_.checked(use_text));
  EXPECT_TRUE(levels_.set({0, 0, 0}, 6));
  form_.check(use_text, true);
  EXPECT_EQ(level(), 0);
  EXPECT_FALSE(used());
  EXPECT_TRUE(form_.accept());
  EXPECT_EQ(level(), 6);
  EXPECT_TRUE(used());
}

TEST_F(style_adavanced_dialog, cancel_changes_nothing) {
  levels_.set({0, 0, 0}, 6);
  form_.check(use_text, true);
  form_.refuse();
  EXPECT_EQ(level(), 0);
  EXPECT_FALSE(used());
}

TEST_F(style_adavanced_dialog, the_mark_of_the_frame_and_that_of_the_dialog_say_the_same) {
  EXPECT_TRUE(call<&groupbox_impl::checkable>(frame_));
  EXPECT_EQ(tests::text([&](auto v) { call<&groupbox_impl::caption>(frame_, v); }),
            L"Использовать");
  EXPECT_FALSE(frame_checked());
  form_.check(use_text, true);
  EXPECT_TRUE(frame_checked());
  call<&groupbox_impl::set_checked>(frame_, false);
  EXPECT_FALSE(form_.checked(use_text));
  call<&groupbox_impl::set_checked>(frame_, true);
  form_.accept();
  EXPECT_TRUE(used());
}

TEST_F(style_adavanced_dialog, it_starts_with_what_the_manager_uses) {
  zu_stl_mngr_set_use_render_levels(manager_.get(), true);
  dialog::style_adavanced_dialog again(manager_.get());
  tests::style_form form(again.element());
  EXPECT_TRUE(form.checked(use_text));
  form.check(use_text, false);
  form.accept();
  EXPECT_FALSE(used());
}

TEST_F(style_adavanced_dialog, it_is_not_run_without_a_manager_or_a_host) {
  EXPECT_FALSE(dialog::style_adavanced_dialog::run(nullptr));
  EXPECT_FALSE(dialog::style_adavanced_dialog::run(manager_.get()));
}

}  // namespace
