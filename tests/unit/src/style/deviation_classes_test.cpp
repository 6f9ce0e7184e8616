#include "src/style/deviation_classes.h"

#include <gtest/gtest.h>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"

namespace {

using namespace zu;

class deviation_classes : public testing::Test {
 protected:
  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_rng_scale* scale_ = zu_stl_mngr_get_rng_scale_ptr(manager_.get());
};

TEST_F(deviation_classes, lie_evenly_about_the_mean) {
  style::set_deviation_classes(scale_, {4, 100, 10, 2, zu_no_rounding});
  ASSERT_EQ(zu_rng_scale_get_size(scale_), 4U);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), 80);
  for (std::uint64_t i = 0; i < 4; ++i) {
    EXPECT_EQ(zu_rng_scale_get_min(scale_, i), 80 + 10.0 * static_cast<double>(i));
    EXPECT_EQ(zu_rng_scale_get_max(scale_, i), 90 + 10.0 * static_cast<double>(i));
  }
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 120);
}

TEST_F(deviation_classes, are_rounded_and_keep_how_they_were_made) {
  style::set_deviation_classes(scale_, {2, 101, 12, 1, 1});
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), 90);
  EXPECT_EQ(zu_rng_scale_get_max(scale_, 0), 100);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 110);
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_deviation);
  EXPECT_EQ(zu_rng_scale_get_round_digits(scale_), 1);
  EXPECT_EQ(zu_rng_scale_get_deviation_coeff(scale_), 1);
  EXPECT_NE(
      text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_max_caption_w(scale_, a); }).find(L"110"),
      std::wstring::npos);
}

TEST_F(deviation_classes, none_leave_two_tails_that_meet_at_the_mean) {
  style::set_deviation_classes(scale_, {0, 5, 3, 2, zu_no_rounding});
  EXPECT_EQ(zu_rng_scale_get_size(scale_), 0U);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), 5);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 5);
}

TEST_F(deviation_classes, without_a_deviation_have_equal_boundaries) {
  style::set_deviation_classes(scale_, {3, 0, 0, 2, zu_no_rounding});
  ASSERT_EQ(zu_rng_scale_get_size(scale_), 3U);
  for (std::uint64_t i = 0; i < 3; ++i) EXPECT_EQ(zu_rng_scale_get_max(scale_, i), 0);
}

}  // namespace
