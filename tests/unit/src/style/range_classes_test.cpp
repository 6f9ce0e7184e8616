#include "src/style/range_classes.h"

#include <cmath>
#include <limits>
#include <vector>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using style::set_equal_intervals;

class range_classes : public testing::Test {
 protected:
  std::vector<double> boundaries() {
    std::vector<double> all{zu_rng_scale_get_min_value(scale_)};
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale_); ++i) {
      all.push_back(zu_rng_scale_get_min(scale_, i));
      all.push_back(zu_rng_scale_get_max(scale_, i));
    }
    all.push_back(zu_rng_scale_get_max_value(scale_));
    return all;
  }
  static Tzu_color color(Tzu_scale_prm* row) {
    return *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
  }
  static void expect_color(Tzu_scale_prm* row, int r, int g, int b, int a = 0) {
    Tzu_color c = color(row);
    EXPECT_EQ((std::vector<int>{c.r, c.g, c.b, c.a}), (std::vector<int>{r, g, b, a}));
  }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_rng_scale* scale_ = zu_stl_mngr_get_rng_scale_ptr(manager_.get());
};

TEST_F(range_classes, of_one_width_share_their_boundaries) {
  set_equal_intervals(scale_, 4, 0, 10);
  EXPECT_EQ(boundaries(), (std::vector<double>{0, 0, 2.5, 2.5, 5, 5, 7.5, 7.5, 10, 10}));
}

TEST_F(range_classes, are_one_for_a_count_of_none) {
  set_equal_intervals(scale_, 0, 3, 8);
  EXPECT_EQ(boundaries(), (std::vector<double>{3, 3, 8, 8}));
}

TEST_F(range_classes, keep_limits_that_fall) {
  set_equal_intervals(scale_, 2, 10, 0);
  EXPECT_EQ(boundaries(), (std::vector<double>{10, 10, 5, 5, 0, 0}));
}

TEST_F(range_classes, have_no_width_where_it_is_no_finite_number) {
  const double most = std::numeric_limits<double>::max();
  set_equal_intervals(scale_, 2, -most, most);
  EXPECT_EQ(boundaries(), (std::vector<double>{-most, -most, -most, -most, -most, -most}));
  set_equal_intervals(scale_, 1, 5, std::nan(""));
  EXPECT_EQ(boundaries(), (std::vector<double>{5, 5, 5, 5}));
}

TEST_F(range_classes, are_rounded_to_multiples_of_a_power_of_ten) {
  auto rounded = [&](std::int32_t digits) {
    set_equal_intervals(scale_, 2, -12.345, 87.655);
    style::round_boundaries(scale_, digits);
    return boundaries();
  };
  EXPECT_EQ(rounded(0), (std::vector<double>{-12, -12, 38, 38, 88, 88}));
  EXPECT_EQ(rounded(1), (std::vector<double>{-10, -10, 40, 40, 90, 90}));
  EXPECT_EQ(rounded(-1), (std::vector<double>{-12.3, -12.3, 37.7, 37.7, 87.7, 87.7}));
  EXPECT_EQ(rounded(3), (std::vector<double>{0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rounded(-30), (std::vector<double>{-12.345, -12.345, 37.655, 37.655, 87.655, 87.655}));
  set_equal_intervals(scale_, 1, -2.5, 2.5);
  style::round_boundaries(scale_, 0);
  EXPECT_EQ(boundaries(), (std::vector<double>{-3, -3, 3, 3})) << "halves go away from zero";
}

TEST_F(range_classes, have_captions_of_their_boundaries) {
  std::int32_t language = zu_res_get_lng();
  zu_res_set_lng(50000);
  set_equal_intervals(scale_, 2, 0, 5);
  zu_rng_scale_set_round_digits(scale_, -1);
  style::set_captions(scale_);
  auto caption = [&](auto ask) { return text_of([&](Tzu_string_adp* a) { ask(a); }); };
  EXPECT_EQ(caption([&](auto* a) { zu_rng_scale_get_min_caption_w(scale_, a); }), L"up to 0.0");
  EXPECT_EQ(caption([&](auto* a) { zu_rng_scale_get_max_caption_w(scale_, a); }), L"above 5.0");
  EXPECT_EQ(caption([&](auto* a) { zu_rng_scale_get_caption_w(scale_, 0, a); }), L"0.0 – 2.5");
  EXPECT_EQ(caption([&](auto* a) { zu_rng_scale_get_caption_w(scale_, 1, a); }), L"2.5 – 5.0");
  zu_res_set_lng(language);
}

TEST_F(range_classes, take_the_colours_of_an_array_from_tail_to_tail) {
  set_equal_intervals(scale_, 1, 0, 1);
  zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(zu_rng_scale_get_scale_prm_ptr(scale_, 0)),
                         {1, 2, 3, 40}, 0);
  EXPECT_TRUE(style::spread_colors(scale_, 5));
  expect_color(zu_rng_scale_get_min_prm_ptr(scale_), 0, 0, 255);
  expect_color(zu_rng_scale_get_scale_prm_ptr(scale_, 0), 255, 255, 255, 40);
  expect_color(zu_rng_scale_get_max_prm_ptr(scale_), 255, 0, 0);
  EXPECT_FALSE(style::spread_colors(scale_, 999));
  expect_color(zu_rng_scale_get_max_prm_ptr(scale_), 255, 0, 0);
}

TEST_F(range_classes, are_ten_between_the_limits_of_a_field) {
  tests::made_grid grid("classes.tif", 2, 2, GDT_Float64, 2);
  grid.values(1, {0, 0, 0, 0});
  grid.values(2, {-5, 95, 0, 1});
  grid.band(2)->SetDescription("depth");
  data::open_reference source;
  source.name = grid.close();
  source.opener = &zu_datasource_open;
  EXPECT_TRUE(style::fill_range_scale(scale_, source, L"depth"));
  ASSERT_EQ(zu_rng_scale_get_size(scale_), 10u);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale_), -5);
  EXPECT_EQ(zu_rng_scale_get_max(scale_, 0), 5);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale_), 95);
  expect_color(zu_rng_scale_get_min_prm_ptr(scale_), 0, 0, 255);
  expect_color(zu_rng_scale_get_max_prm_ptr(scale_), 255, 0, 0);

  EXPECT_FALSE(style::fill_range_scale(scale_, source, L"no such field"));
  EXPECT_FALSE(style::fill_range_scale(nullptr, source, L"depth"));
  source.name += L".not_there";
  EXPECT_FALSE(style::fill_range_scale(scale_, source, L"depth"));
  EXPECT_EQ(zu_rng_scale_get_size(scale_), 10u);
}

}  // namespace
