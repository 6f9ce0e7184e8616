#include "src/style/classes/builders.h"

#include <cmath>
#include <limits>
#include <vector>

#include "src/style/classes/scale_dialogs.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/style/classes/made_range_scale.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using list = std::vector<double>;

constexpr std::int32_t unrounded = zu_no_rounding;

class english {
 public:
  english() : before_(zu_res_get_lng()) { zu_res_set_lng(50000); }
  ~english() { zu_res_set_lng(before_); }

 private:
  std::int32_t before_;
};

class equal_intervals : public tests::made_range_scale {};

TEST_F(equal_intervals, share_their_boundaries) {
  style::set_equal_intervals(scale_, {4, 0, 10, unrounded});
  EXPECT_EQ(boundaries(), (list{0, 0, 2.5, 2.5, 5, 5, 7.5, 7.5, 10, 10}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_equal);
}

TEST_F(equal_intervals, are_one_for_a_count_of_none) {
  style::set_equal_intervals(scale_, {0, 3, 8, unrounded});
  EXPECT_EQ(boundaries(), (list{3, 3, 8, 8}));
}

TEST_F(equal_intervals, keep_limits_that_fall) {
  style::set_equal_intervals(scale_, {2, 10, 0, unrounded});
  EXPECT_EQ(boundaries(), (list{10, 10, 5, 5, 0, 0}));
}

TEST_F(equal_intervals, have_no_width_where_it_is_no_finite_number) {
  const double most = std::numeric_limits<double>::max();
  style::set_equal_intervals(scale_, {2, -most, most, unrounded});
  EXPECT_EQ(boundaries(), (list{-most, -most, -most, -most, -most, -most}));
  style::set_equal_intervals(scale_, {2, 5, std::nan(""), unrounded});
  EXPECT_EQ(boundaries(), (list{5, 5, 5, 5, 5, 5}));
}

class deviation_classes : public tests::made_range_scale {};

TEST_F(deviation_classes, lie_evenly_about_the_mean) {
  style::set_deviation_classes(scale_, {4, 100, 10, 2, unrounded});
  EXPECT_EQ(boundaries(), (list{80, 80, 90, 90, 100, 100, 110, 110, 120, 120}));
}

TEST_F(deviation_classes, are_rounded_and_keep_how_they_were_made) {
  style::set_deviation_classes(scale_, {2, 101, 12, 1, 1});
  EXPECT_EQ(boundaries(), (list{90, 90, 100, 100, 110, 110}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_deviation);
  EXPECT_EQ(zu_rng_scale_get_round_digits(scale_), 1);
  EXPECT_EQ(zu_rng_scale_get_deviation_coeff(scale_), 1);
  EXPECT_NE(highest_caption().find(L"110"), std::wstring::npos);
}

TEST_F(deviation_classes, none_leave_two_tails_that_meet_at_the_mean) {
  style::set_deviation_classes(scale_, {0, 5, 3, 2, unrounded});
  EXPECT_EQ(boundaries(), (list{5, 5}));
}

TEST_F(deviation_classes, without_a_deviation_have_equal_boundaries) {
  style::set_deviation_classes(scale_, {2, 0, 0, 2, unrounded});
  EXPECT_EQ(boundaries(), (list{0, 0, 0, 0, 0, 0}));
}

class quantiles : public tests::made_range_scale {
 protected:
  quantiles() { fill(0, 10, {1, 3, 0, 4, 2}); }  // heights 0 1 4 4 8 10 at 0 2 4 6 8 10
  void fill(double low, double high, const list& counts) {
    zu_histogramm_set_limits(histogram_.get(), low, high);
    zu_histogramm_set_params(histogram_.get(), counts.size());
    for (std::size_t i = 0; i < counts.size(); ++i)
      zu_histogramm_set(histogram_.get(), i, counts[i]);
  }
  owned<zu_histogramm_destroy> histogram_{zu_histogramm_create()};
};

TEST_F(quantiles, hold_as_many_values_each) {
  style::set_quantiles(scale_, {histogram_.get(), 4, 0, 10, unrounded});
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_quantile);
  // Heights 2.5, 5, 7.5: a half of the way from 2 to 4, a quarter from 6 to 8, seven eighths.
  EXPECT_EQ(cuts(), (list{3, 6.5, 7.75}));
  EXPECT_EQ(boundaries().front(), 0);
  EXPECT_EQ(boundaries().back(), 10);
}

TEST_F(quantiles, take_the_end_of_a_run_without_values) {
  style::set_quantiles(scale_, {histogram_.get(), 5, 0, 10, unrounded});
  EXPECT_EQ(cuts()[1], 6) << "the height 4 stands at 4 and at 6";
}

TEST_F(quantiles, leave_the_height_at_the_minimum_out_but_in_the_step) {
  // From 4 to 8 the curve climbs from 4 to 8: a step of 2, and heights 2 and 4 instead of 6 and 8.
  style::set_quantiles(scale_, {histogram_.get(), 2, 4, 8, unrounded});
  ASSERT_EQ(cuts().size(), 1u);
  EXPECT_NEAR(cuts()[0], 2 + 2.0 / 3, 1e-12) << "height 2";
  EXPECT_EQ(boundaries().back(), 8);
}

TEST_F(quantiles, swap_limits_that_fall) {
  style::set_quantiles(scale_, {histogram_.get(), 4, 10, 0, unrounded});
  EXPECT_EQ(cuts(), (list{3, 6.5, 7.75}));
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), 0);
}

TEST_F(quantiles, without_a_histogram_leave_the_scale_alone) {
  style::set_equal_intervals(scale_, {2, 0, 4, unrounded});
  style::set_quantiles(scale_, {nullptr, 5, 0, 10, 0});
  EXPECT_EQ(boundaries(), (list{0, 0, 2, 2, 4, 4}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_equal);
}

TEST_F(quantiles, of_an_empty_histogram_have_their_outer_boundaries_alone) {
  zu_histogramm_clear(histogram_.get());
  style::set_quantiles(scale_, {histogram_.get(), 2, 0.6, 9.6, 0});
  EXPECT_EQ(zu_rng_scale_get_size(scale_), 2u);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), 1) << "rounded as all methods";
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 10);
  style::set_quantiles(scale_, {histogram_.get(), 0, 1, 9, unrounded});
  EXPECT_EQ(boundaries(), (list{1, 9}));
}

class logarithmic : public tests::made_range_scale {
 protected:
  list built(const style::logarithmic_params& params) {
    style::set_logarithmic(scale_, params);
    list all{zu_rng_scale_get_min_value(scale_)};
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale_); ++i) {
      EXPECT_EQ(zu_rng_scale_get_min(scale_, i), all.back());
      all.push_back(zu_rng_scale_get_max(scale_, i));
    }
    EXPECT_EQ(zu_rng_scale_get_max_value(scale_), all.back());
    return all;
  }
};

TEST_F(logarithmic, boundaries_go_by_one_two_five_to_the_first_not_below_the_maximum) {
  struct {
    style::logarithmic_params params;
    list expected;
  } rows[] = {
      {{0, 0, 0, 40, 0}, {0, 1, 2, 5, 10, 20, 50}},
      {{0, 0, 0, 50, 0}, {0, 1, 2, 5, 10, 20, 50}},
      {{1, 1, 0, 300, 0}, {0, 20, 50, 100, 200, 500}},
      {{2, 0, 0, 6, 0}, {0, 5, 10}},
      {{0, 0, -3, 7, 1}, {-5, -2, -1, 1, 2, 5, 10}},
      {{0, 0, 4, 2, 1}, {-1, 1, 2}},  // nothing below zero: the first one alone
      {{0, 0, -9, 0, 0}, {0, 1}},     // nothing above zero
      {{0, 2, 0, 50, 0}, {0, 100}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(built(row.params), row.expected);
    EXPECT_EQ(zu_rng_scale_get_round_digits(scale_), row.params.power);
  }
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_logarithmic);
}

TEST_F(logarithmic, boundaries_below_one_are_of_the_power) {
  list all = built({0, -2, 0, 0.15, 0});
  list expected{0, 0.01, 0.02, 0.05, 0.1, 0.2};
  ASSERT_EQ(all.size(), expected.size());
  for (std::size_t i = 0; i < all.size(); ++i) EXPECT_NEAR(all[i], expected[i], 1e-15);
}

TEST_F(logarithmic, boundaries_end_where_numbers_do) {
  double infinite = std::numeric_limits<double>::infinity();
  EXPECT_LT(style::logarithmic_boundaries({0, 300, 0, infinite, 0}).size(), 40u);
  EXPECT_EQ(style::logarithmic_boundaries({0, 0, 0, std::nan(""), 0}), (list{0, 1}));
}

class geometrical : public tests::made_range_scale {};

TEST_F(geometrical, boundaries_grow_by_one_factor) {
  style::set_geometrical(scale_, {3, 1, 1000, 0});
  EXPECT_EQ(boundaries(), (list{1, 1, 10, 10, 100, 100, 1000, 1000}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_geometrical);
}

TEST_F(geometrical, boundaries_of_values_not_above_zero_are_moved_to_begin_at_one) {
  style::set_geometrical(scale_, {2, -5, 94, 6});  // 1 to 100: 10 in the middle, moved back by 6
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_geometrical);
  style::set_geometrical(scale_, {2, -5, 94, 0});
  EXPECT_EQ(boundaries(), (list{-5, -5, 4, 4, 94, 94}));
  style::set_geometrical(scale_, {2, 0, 8, 0});  // 1 to 9
  EXPECT_EQ(boundaries(), (list{0, 0, 2, 2, 8, 8}));
}

TEST_F(geometrical, boundaries_swap_limits_that_fall_and_are_none_for_no_classes) {
  style::set_geometrical(scale_, {2, 100, 1, 0});
  EXPECT_EQ(boundaries(), (list{1, 1, 10, 10, 100, 100}));
  style::set_geometrical(scale_, {0, 1, 100, unrounded});
  EXPECT_EQ(boundaries(), (list{0, 0}));
}

class manual : public tests::made_range_scale {};

TEST_F(manual, classes_are_taken_as_they_are) {
  style::set_manual(scale_, {{1, 2}, {5, 7}}, unrounded);
  EXPECT_EQ(boundaries(), (list{1, 1, 2, 5, 7, 7}));
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_manual);
  style::set_manual(scale_, {}, unrounded);
  EXPECT_EQ(boundaries(), (list{0, 0}));
}

TEST_F(manual, captions_are_of_the_numbers_before_they_are_rounded) {
  english words;
  zu_rng_scale_set_round_digits(scale_, -2);
  style::set_manual(scale_, {{1.25, 2.75}}, 0);
  EXPECT_EQ(boundaries(), (list{1, 1, 3, 3}));
  EXPECT_EQ(caption(0), L"1.25 – 2.75");
  EXPECT_EQ(lowest_caption(), L"up to 1.25");
}

class rounding : public tests::made_range_scale {
 protected:
  list rounded(std::int32_t digits, double low, double high) {
    style::set_equal_intervals(scale_, {1, low, high, unrounded});
    style::round_boundaries(scale_, digits);
    return boundaries();
  }
};

TEST_F(rounding, is_to_multiples_of_a_power_of_ten) {
  EXPECT_EQ(rounded(0, -12.345, 87.655), (list{-12, -12, 88, 88}));
  EXPECT_EQ(rounded(1, -12.345, 87.655), (list{-10, -10, 90, 90}));
  EXPECT_EQ(rounded(-1, -12.345, 87.655), (list{-12.3, -12.3, 87.7, 87.7}));
  EXPECT_EQ(rounded(3, -12.345, 87.655), (list{0, 0, 0, 0}));
  EXPECT_EQ(rounded(zu_no_rounding, -12.345, 87.655), (list{-12.345, -12.345, 87.655, 87.655}));
  EXPECT_EQ(rounded(30, -1e30, 1.6e30), (list{-1e30, -1e30, 2e30, 2e30}));
}

TEST_F(rounding, takes_halves_away_from_zero) {
  EXPECT_EQ(rounded(0, -2.5, 2.5), (list{-3, -3, 3, 3}));
  EXPECT_EQ(rounded(1, -5, 15), (list{-10, -10, 20, 20}));
}

class captions : public tests::made_range_scale {
 protected:
  captions() { style::set_equal_intervals(scale_, {2, 0, 5, -1}); }
  english words_;
};

TEST_F(captions, follow_every_builder_and_name_rounded_numbers) {
  style::set_equal_intervals(scale_, {2, 0.04, 5, -1});
  EXPECT_EQ(lowest_caption(), L"up to 0.0");
  EXPECT_EQ(highest_caption(), L"above 5.0");
  EXPECT_EQ(caption(0), L"0.0 – 2.5");
  EXPECT_EQ(caption(1), L"2.5 – 5.0");
}

TEST_F(captions, may_be_one_number_of_each_class) {
  style::captions(scale_, style::caption_form::minimum);
  EXPECT_EQ(caption(1), L"2.5");
  style::captions(scale_, style::caption_form::maximum);
  EXPECT_EQ(caption(1), L"5.0");
  EXPECT_EQ(highest_caption(), L"above 5.0");
}

class colours_of_classes : public tests::made_range_scale {
 protected:
  static void expect_color(Tzu_scale_prm* row, int r, int g, int b, int a = 0) {
    Tzu_color c = *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
    EXPECT_EQ((std::vector<int>{c.r, c.g, c.b, c.a}), (std::vector<int>{r, g, b, a}));
  }
};

TEST_F(colours_of_classes, are_those_of_an_array_from_tail_to_tail) {
  style::set_equal_intervals(scale_, {1, 0, 1, unrounded});
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale_, 0)),
                         {1, 2, 3, 40}, 0);
  EXPECT_TRUE(style::spread_colors(scale_, 5));
  expect_color(zu_rng_scale_get_min_prm_ptr(scale_), 0, 0, 255);
  expect_color(zu_rng_scale_get_scale_prm_ptr(scale_, 0), 255, 255, 255, 40);
  expect_color(zu_rng_scale_get_max_prm_ptr(scale_), 255, 0, 0);
  EXPECT_FALSE(style::spread_colors(scale_, 999));
  expect_color(zu_rng_scale_get_max_prm_ptr(scale_), 255, 0, 0);
}

class filled_from_data : public tests::made_range_scale {};

TEST_F(filled_from_data, a_range_scale_has_ten_classes_between_the_limits_of_a_field) {
  tests::made_grid grid("classes.tif", 2, 2, GDT_Float64, 2);
  grid.values(1, {0, 0, 0, 0});
  grid.values(2, {-5, 95, 0, 1});
  grid.band(2)->SetDescription("depth");
  data::open_reference source;
  source.name = grid.close();
  source.opener = &zu_datasource_open;
  zu_rng_scale_set_rng_type(scale_, zu_range_manual);
  EXPECT_TRUE(style::fill_from_data(scale_, source, L"depth"));
  ASSERT_EQ(zu_rng_scale_get_size(scale_), 10u);
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale_), zu_range_equal);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), -5);
  EXPECT_EQ(zu_rng_scale_get_max(scale_, 0), 5);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 95);

  EXPECT_FALSE(style::fill_from_data(scale_, source, L"no such field"));
  EXPECT_FALSE(style::fill_from_data(static_cast<Tzu_rng_scale*>(nullptr), source, L"depth"));
  source.name += L".not_there";
  EXPECT_FALSE(style::fill_from_data(scale_, source, L"depth"));
  EXPECT_EQ(zu_rng_scale_get_size(scale_), 10u);
}

}  // namespace
