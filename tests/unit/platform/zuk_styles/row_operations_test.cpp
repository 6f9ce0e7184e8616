#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_styles/parameters.h"
#include "zu/platform/zuk_os.h"

namespace zu::test {
namespace {

using platform::owned;
using platform::text_of;

/// A value scale whose rows bear the letters of a text; a capital letter is marked.
class row_operations : public testing::Test {
 protected:
  void set_rows(const std::string& letters) {
    zu_val_scale_set_size(scale_, letters.size());
    for (std::uint64_t i = 0; i < letters.size(); ++i) {
      auto lower = static_cast<wchar_t>(std::tolower(letters[i]));
      zu_val_scale_set_text_w(scale_, i, std::wstring(1, lower).c_str());
      zu_val_scale_set_marked(scale_, i, letters[i] != static_cast<char>(lower));
      // The style goes with its row.
      color(i)->r = static_cast<std::uint8_t>(lower);
    }
  }
  std::string rows() {
    std::string all;
    for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale_); ++i) {
      auto letter = static_cast<char>(color(i)->r);
      EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale_, i, a); }),
                std::wstring(1, static_cast<wchar_t>(letter)));
      bool marked = zu_val_scale_get_marked(scale_, i);
      all += static_cast<char>(marked ? std::toupper(letter) : letter);
    }
    return all;
  }
  Tzu_color* color(std::uint64_t row) {
    return zu_stl_prm_get_clr_style_ptr(
        zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale_, row)), 0);
  }
  void order(const std::vector<std::int64_t>& indexes) {
    owned<zu_ints_destroy> list(zu_ints_create());
    for (std::int64_t i : indexes) zu_ints_add(list.get(), i);
    zu_val_scale_set_order(scale_, list.get());
  }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_val_scale* scale_ = zu_stl_mngr_get_val_scale_ptr(manager_.get());
  Tzu_rng_scale* ranges_ = zu_stl_mngr_get_rng_scale_ptr(manager_.get());
};

TEST_F(row_operations, marked_rows_go_before_a_place_in_their_order) {
  struct {
    const char* before;
    std::uint64_t place;
    const char* after;
  } const table[] = {{"aBcDe", 0, "BDace"}, {"aBcDe", 1, "aBDce"}, {"aBcDe", 2, "aBDce"},
                     {"aBcDe", 3, "acBDe"}, {"aBcDe", 5, "aceBD"}, {"aBcDe", 6, "aBcDe"},
                     {"ABCDE", 2, "ABCDE"}, {"abcde", 2, "abcde"}};
  for (const auto& t : table) {
    set_rows(t.before);
    zu_val_scale_move_marked(scale_, t.place);
    EXPECT_EQ(rows(), t.after) << t.before << ' ' << t.place;
  }
}

TEST_F(row_operations, marked_rows_are_removed_and_others_stay) {
  set_rows("aBcDe");
  zu_val_scale_del_marked(scale_);
  EXPECT_EQ(rows(), "ace");
  zu_val_scale_del_marked(scale_);
  EXPECT_EQ(rows(), "ace");
  zu_val_scale_del(scale_, 1);
  zu_val_scale_del(scale_, 2);
  EXPECT_EQ(rows(), "ae");
}

TEST_F(row_operations, a_row_is_inserted_at_a_place_or_at_the_end) {
  set_rows("aB");
  EXPECT_EQ(zu_val_scale_ins(scale_, 1), 1u);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale_, 1, a); }), L"");
  EXPECT_FALSE(zu_val_scale_get_marked(scale_, 1));
  EXPECT_TRUE(zu_val_scale_get_marked(scale_, 2));
  EXPECT_EQ(zu_val_scale_ins(scale_, 99), 3u);
  EXPECT_EQ(zu_val_scale_get_size(scale_), 4u);
}

TEST_F(row_operations, an_order_and_its_inverse_give_back_the_rows) {
  std::mt19937 chance(7);
  for (int run = 0; run < 50; ++run) {
    const std::string before = "aBcdEFghiJ";
    set_rows(before);
    std::vector<std::int64_t> forth(before.size()), back(before.size());
    std::iota(forth.begin(), forth.end(), 0);
    std::shuffle(forth.begin(), forth.end(), chance);
    for (std::size_t i = 0; i < forth.size(); ++i)
      back[static_cast<std::size_t>(forth[i])] = static_cast<std::int64_t>(i);
    order(forth);
    std::string between = rows();
    for (std::size_t i = 0; i < forth.size(); ++i)
      EXPECT_EQ(between[i], before[static_cast<std::size_t>(forth[i])]);
    order(back);
    EXPECT_EQ(rows(), before);
  }
}

TEST_F(row_operations, what_is_no_order_changes_nothing) {
  set_rows("aBc");
  for (const std::vector<std::int64_t>& wrong :
       {std::vector<std::int64_t>{}, {0, 1}, {0, 1, 1}, {0, 1, 3}, {-1, 1, 2}, {0, 1, 2, 2}}) {
    order(wrong);
    EXPECT_EQ(rows(), "aBc");
  }
  zu_val_scale_set_order(scale_, nullptr);
  EXPECT_EQ(rows(), "aBc");
}

TEST_F(row_operations, addresses_of_rows_survive_moves) {
  set_rows("aBc");
  Tzu_scale_prm* b = zu_val_scale_get_scale_prm_ptr(scale_, 1);
  zu_val_scale_move_marked(scale_, 3);
  EXPECT_EQ(zu_val_scale_get_scale_prm_ptr(scale_, 2), b);
}

TEST_F(row_operations, every_one_of_them_ends_the_look_up) {
  auto found = [&] { return zu_val_scale_find_scale_prm_ptr_d(scale_, 5); };
  Tzu_scale_prm* other = zu_val_scale_get_other_prm_ptr(scale_);
  const std::function<void()> changes[] = {[&] { zu_val_scale_ins(scale_, 0); },
                                           [&] { zu_val_scale_del(scale_, 1); },
                                           [&] { zu_val_scale_del_marked(scale_); },
                                           [&] { zu_val_scale_move_marked(scale_, 0); },
                                           [&] {
                                             order({1, 0});
                                           },
                                           [&] { zu_val_scale_add(scale_); }};
  for (const auto& change : changes) {
    zu_val_scale_set_size(scale_, 0);
    zu_val_scale_set_size(scale_, 2);
    zu_val_scale_set_text_w(scale_, 0, L"5");
    zu_val_scale_beg_find(scale_);
    ASSERT_EQ(found(), zu_val_scale_get_scale_prm_ptr(scale_, 0));
    change();
    EXPECT_EQ(found(), other);
  }
}

TEST_F(row_operations, tails_have_marks_and_stay) {
  zu_rng_scale_set_size(ranges_, 3);
  zu_rng_scale_set_min_marked(ranges_, true);
  zu_rng_scale_set_max_marked(ranges_, true);
  zu_rng_scale_set_marked(ranges_, 1, true);
  zu_rng_scale_set_marked(ranges_, 9, true);
  zu_rng_scale_del_marked(ranges_);
  EXPECT_EQ(zu_rng_scale_get_size(ranges_), 2u);
  EXPECT_TRUE(zu_rng_scale_get_min_marked(ranges_));
  EXPECT_TRUE(zu_rng_scale_get_max_marked(ranges_));
  EXPECT_FALSE(zu_rng_scale_get_marked(ranges_, 0));
  EXPECT_FALSE(zu_rng_scale_get_marked(ranges_, 9));
}

TEST_F(row_operations, boundaries_and_captions_go_with_their_class) {
  zu_rng_scale_set_size(ranges_, 2);
  zu_rng_scale_set_min(ranges_, 0, 1);
  zu_rng_scale_set_max(ranges_, 0, 2);
  zu_rng_scale_set_caption_w(ranges_, 0, L"low");
  zu_rng_scale_set_marked(ranges_, 0, true);
  zu_rng_scale_move_marked(ranges_, 2);
  EXPECT_EQ(zu_rng_scale_get_max(ranges_, 1), 2);
  EXPECT_TRUE(zu_rng_scale_get_marked(ranges_, 1));
  EXPECT_EQ(zu_rng_scale_ins(ranges_, 1), 1u);
  EXPECT_EQ(zu_rng_scale_get_max(ranges_, 1), 0);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(ranges_, 2, a); }), L"low");
}

TEST_F(row_operations, the_active_row_is_kept_as_it_is_given) {
  EXPECT_EQ(zu_rng_scale_get_active_idx(ranges_), -1);
  EXPECT_EQ(zu_val_scale_get_active_idx(scale_), -1);
  zu_rng_scale_set_active_idx(ranges_, 77);
  zu_val_scale_set_active_idx(scale_, 3);
  EXPECT_EQ(zu_rng_scale_get_active_idx(ranges_), 77);
  EXPECT_EQ(zu_val_scale_get_active_idx(scale_), 3);
  EXPECT_EQ(zu_val_scale_get_active_idx(nullptr), -1);
}

TEST_F(row_operations, one_of_two_styles_is_assigned) {
  set_rows("a");
  platform::style_parameters from;
  from.colors[0] = {1, 1, 1, 1}, from.colors[1] = {2, 2, 2, 2};
  zu_stl_prm_get_pnt_style_ptr(&from, 1)->point.size = 9;
  zu_val_scale_set_stl_prm(scale_, 0, &from, 1);
  Tzu_stl_prm* row = zu_scale_prm_get_stl_prm_ptr(zu_val_scale_get_scale_prm_ptr(scale_, 0));
  EXPECT_EQ(row->colors[0].r, 'a');
  EXPECT_EQ(row->colors[1].r, 2);
  EXPECT_EQ(zu_stl_prm_get_pnt_style_ptr(row, 1)->point.size, 9);
  EXPECT_EQ(zu_stl_prm_get_pnt_style_ptr(row, 0)->point.size, 2);
  zu_val_scale_set_stl_prm(scale_, 0, row, 0);
  zu_val_scale_set_stl_prm(scale_, 0, nullptr, 0);
  zu_val_scale_set_stl_prm(scale_, 5, &from, 0);
  zu_rng_scale_set_min_style_prm(ranges_, &from, 0);
  zu_rng_scale_set_max_style_prm(ranges_, &from, 1);
  auto color = [](Tzu_scale_prm* prm, int i) {
    return zu_stl_prm_get_color(zu_scale_prm_get_stl_prm_ptr(prm), i).r;
  };
  EXPECT_EQ(color(zu_rng_scale_get_min_prm_ptr(ranges_), 0), 1);
  EXPECT_EQ(color(zu_rng_scale_get_min_prm_ptr(ranges_), 1), 255);
  EXPECT_EQ(color(zu_rng_scale_get_max_prm_ptr(ranges_), 1), 2);
}

TEST_F(row_operations, new_rows_are_as_transparent_as_the_first_was) {
  set_rows("a");
  color(0)->a = 77;
  zu_val_scale_add(scale_);
  EXPECT_EQ(color(1)->a, 0);
  zu_val_scale_init_opacity_pts(scale_);
  zu_val_scale_set_size(scale_, 0);
  zu_val_scale_set_size(scale_, 2);
  EXPECT_EQ(color(0)->a, 77);
  EXPECT_EQ(color(1)->a, 77);
  zu_val_scale_set_size(scale_, 0);
  zu_val_scale_init_opacity_pts(scale_);  // no row to take it from: as before
  zu_val_scale_add(scale_);
  EXPECT_EQ(color(0)->a, 77);

  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_min_prm_ptr(ranges_)),
                         {0, 0, 0, 40}, 0);
  zu_rng_scale_init_opacity_pts(ranges_);
  zu_rng_scale_set_size(ranges_, 1);
  EXPECT_EQ(zu_stl_prm_get_color(
                zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(ranges_, 0)), 0)
                .a,
            40);
}

TEST_F(row_operations, a_default_caption_says_the_boundaries_in_their_digits) {
  zu_rng_scale_set_size(ranges_, 1);
  zu_rng_scale_set_min(ranges_, 0, 0.25);
  zu_rng_scale_set_max(ranges_, 0, 1200);
  auto caption = [&] {
    zu_rng_scale_set_default_caption(ranges_, 0);
    return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(ranges_, 0, a); });
  };
  EXPECT_EQ(caption(), L"0.25 – 1200");
  zu_rng_scale_set_round_digits(ranges_, -1);
  EXPECT_EQ(caption(), L"0.2 – 1200.0");
  zu_rng_scale_set_default_caption(ranges_, 1);
  zu_rng_scale_set_default_caption(nullptr, 0);
}

TEST_F(row_operations, a_manager_has_a_scale_of_rules_of_its_own) {
  Tzu_val_scale* rules = zu_stl_mngr_get_rule_scale_ptr(manager_.get());
  ASSERT_NE(rules, nullptr);
  EXPECT_NE(rules, scale_);
  zu_val_scale_add(rules);
  zu_val_scale_set_marked(rules, 0, true);
  owned<zu_stl_mngr_destroy> copy(zu_clr_stl_mngr_create());
  zu_stl_mngr_assign(copy.get(), manager_.get());
  EXPECT_EQ(zu_val_scale_get_size(zu_stl_mngr_get_rule_scale_ptr(copy.get())), 1u);
  EXPECT_TRUE(zu_val_scale_get_marked(zu_stl_mngr_get_rule_scale_ptr(copy.get()), 0));
  EXPECT_EQ(zu_val_scale_get_size(zu_stl_mngr_get_val_scale_ptr(copy.get())), 0u);
  EXPECT_EQ(zu_stl_mngr_get_rule_scale_ptr(nullptr), nullptr);
}

TEST(style_managers, are_made_of_four_types) {
  for (const char* type :
       {"clr_mngr_style", "pnt_mngr_style", "pln_mngr_style", "pgn_mngr_style"}) {
    owned<zu_stl_mngr_destroy> manager(zu_stl_mngr_create(type));
    ASSERT_NE(manager, nullptr) << type;
    EXPECT_STREQ(zu_stl_mngr_get_style_type(manager.get()), type);
  }
  EXPECT_EQ(zu_stl_mngr_create("txt_mngr_style"), nullptr);
  EXPECT_EQ(zu_stl_mngr_create(nullptr), nullptr);
  owned<zu_stl_mngr_destroy> polygons(zu_pgn_stl_mngr_create());
  EXPECT_STREQ(zu_stl_mngr_get_style_type(polygons.get()), "pgn_mngr_style");
  EXPECT_FALSE(zu_stl_mngr_get_just_loaded(polygons.get()));
  zu_stl_mngr_set_just_loaded(polygons.get(), true);
  EXPECT_TRUE(zu_stl_mngr_get_just_loaded(polygons.get()));
  EXPECT_FALSE(zu_stl_mngr_get_just_loaded(nullptr));
}

}  // namespace
}  // namespace zu::test
