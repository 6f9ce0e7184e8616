#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <limits>
#include <string>
#include <vector>

#include "zu/platform/zuk_styles.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Index of the row that a number meets, -1 for "other".
int row_of(const std::vector<const wchar_t*>& texts, double value) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(zu_val_scale_add(scale), i + 1);
    zu_val_scale_set_text_w(scale, i, texts[i]);
  }
  zu_val_scale_beg_find(scale);
  Tzu_scale_prm* row = zu_val_scale_find_scale_prm_ptr_d(scale, value);
  zu_val_scale_end_find(scale);
  int found = row == zu_val_scale_get_other_prm_ptr(scale) ? -1 : -2;
  for (std::size_t i = 0; i < texts.size(); ++i)
    if (row == zu_val_scale_get_scale_prm_ptr(scale, i)) found = static_cast<int>(i);
  zu_stl_mngr_destroy(manager);
  return found;
}

TEST(value_scale, a_number_meets_the_row_whose_text_it_is) {
  struct {
    std::vector<const wchar_t*> texts;
    double value;
    int row;
  } rows[] = {
      {{L"1", L"2", L"3"}, 2, 1},
      {{L"1", L"2", L"3"}, 2.5, -1},
      {{L"1", L"2", L"3"}, 0, -1},
      {{L" 7.0 ", L"x"}, 7, 0},
      {{L"+5", L"-5"}, -5, 1},
      {{L"+5", L"-5"}, 5, 0},
      {{L"1e3"}, 1000, 0},
      {{L"1,5"}, 1.5, -1},     // a comma is no decimal sign in any locale
      {{L"5 m", L"5"}, 5, 1},  // the text as a whole
      {{L"+-5"}, -5, -1},
      {{L"", L"0"}, 0, 1},
      {{L"0"}, -0.0, 0},
      {{L"0"}, std::numeric_limits<double>::denorm_min(), -1},
      {{L"4", L"4"}, 4, 0},  // the first of two
      {{L"inf", L"-inf"}, infinity, 0},
      {{L"inf", L"-inf"}, -infinity, 1},
      {{L"inf"}, 1e308, -1},
      {{L"1", L"nan"}, std::nan(""), 1},
      {{L"1"}, std::nan(""), -1},
      {{}, 1, -1},
  };
  for (const auto& row : rows) EXPECT_EQ(row_of(row.texts, row.value), row.row) << row.value;
}

TEST(value_scale, numbers_agree_within_a_billionth_of_the_larger_one) {
  for (double number : {1.0, -1.0, 123456.789, -3e-200}) {
    wchar_t text[64];
    swprintf(text, 64, L"%.17g", number);
    for (wchar_t* c = text; *c != 0; ++c)
      if (*c == L',') *c = L'.';
    for (double off : {-1.1e-9, -0.9e-9, 0.0, 0.9e-9, 1.1e-9})
      EXPECT_EQ(row_of({text}, number * (1 + off)), std::abs(off) < 1e-9 ? 0 : -1)
          << number << " " << off;
  }
}

TEST(value_scale, where_rows_overlap_the_first_wins) {
  // 1 and 1 + 1.5e-9 both agree with what lies between.
  const wchar_t *low = L"1", *high = L"1.0000000015";
  EXPECT_EQ(row_of({low, high}, 1 + 0.75e-9), 0);
  EXPECT_EQ(row_of({high, low}, 1 + 0.75e-9), 0);
  EXPECT_EQ(row_of({low, high}, 1 + 2e-9), 1);
  EXPECT_EQ(row_of({high, low}, 1 - 0.5e-9), 1);
}

TEST(value_scale, a_change_ends_the_look_ups) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  zu_val_scale_set_size(scale, 2);
  zu_val_scale_set_text_w(scale, 1, L"9");
  zu_val_scale_beg_find(scale);
  EXPECT_EQ(zu_val_scale_find_scale_prm_ptr_d(scale, 9), zu_val_scale_get_scale_prm_ptr(scale, 1));
  zu_val_scale_set_size(scale, 1);
  EXPECT_EQ(zu_val_scale_find_scale_prm_ptr_d(scale, 9), zu_val_scale_get_other_prm_ptr(scale));
  zu_stl_mngr_destroy(manager);
}

TEST(value_scale, gives_back_its_texts) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  zu_val_scale_add(scale);
  zu_val_scale_set_text_w(scale, 0, L"песок");
  std::wstring text = L"untouched";
  auto sink = [](const wchar_t* t, void* user) { *static_cast<std::wstring*>(user) = t; };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &text);
  zu_val_scale_get_text_w(scale, 1, adapter);
  EXPECT_EQ(text, L"untouched");
  zu_val_scale_get_text_w(scale, 0, adapter);
  EXPECT_EQ(text, L"песок");
  zu_string_adp_destroy(adapter);
  zu_stl_mngr_destroy(manager);
}

TEST(value_scale, finds_the_first_row_of_an_exact_text) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  zu_val_scale_set_size(scale, 3);
  for (std::uint64_t i : {1, 2}) zu_val_scale_set_text_w(scale, i, L"Vp");
  std::uint64_t index = 77;
  EXPECT_FALSE(zu_val_scale_find_item_no_w(scale, L"vp", &index));
  EXPECT_FALSE(zu_val_scale_find_item_no_w(scale, L"Vp ", &index));
  EXPECT_FALSE(zu_val_scale_find_item_no_w(scale, nullptr, &index));
  EXPECT_FALSE(zu_val_scale_find_item_no_w(nullptr, L"Vp", &index));
  EXPECT_EQ(index, 77u);
  EXPECT_TRUE(zu_val_scale_find_item_no_w(scale, L"Vp", &index));
  EXPECT_EQ(index, 1u);
  zu_stl_mngr_destroy(manager);
}

}  // namespace
