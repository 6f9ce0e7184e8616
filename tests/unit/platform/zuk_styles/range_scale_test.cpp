#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "zu/platform/zuk_styles.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct range {
  double minimum, maximum;
};

/// A range scale of a manager, whose rows are told by name.
class made_scale {
 public:
  made_scale(const std::vector<range>& classes, double minimum, double maximum)
      : manager_(zu_clr_stl_mngr_create()), scale_(zu_stl_mngr_get_rng_scale_ptr(manager_)) {
    zu_rng_scale_set_size(scale_, classes.size());
    for (std::size_t i = 0; i < classes.size(); ++i) {
      zu_rng_scale_set_min(scale_, i, classes[i].minimum);
      zu_rng_scale_set_max(scale_, i, classes[i].maximum);
    }
    zu_rng_scale_set_min_value(scale_, minimum);
    zu_rng_scale_set_max_value(scale_, maximum);
  }
  ~made_scale() { zu_stl_mngr_destroy(manager_); }
  made_scale(const made_scale&) = delete;
  made_scale& operator=(const made_scale&) = delete;

  Tzu_rng_scale* get() { return scale_; }
  std::string row_of(double value) {
    Tzu_scale_prm* row = zu_rng_scale_find_scale_prm_ptr(scale_, value);
    if (row == zu_rng_scale_get_min_prm_ptr(scale_)) return "lower";
    if (row == zu_rng_scale_get_max_prm_ptr(scale_)) return "upper";
    if (row == zu_rng_scale_get_other_prm_ptr(scale_)) return "other";
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale_); ++i)
      if (row == zu_rng_scale_get_scale_prm_ptr(scale_, i)) return std::to_string(i);
    return "none of the scale's";
  }
  std::string found(double value) {
    zu_rng_scale_beg_find(scale_);
    std::string row = row_of(value);
    zu_rng_scale_end_find(scale_);
    return row;
  }

 private:
  Tzu_stl_mngr* manager_;
  Tzu_rng_scale* scale_;
};

TEST(range_scale, a_value_on_a_boundary_belongs_to_the_class_below) {
  made_scale scale({{0, 10}, {10, 20}}, 0, 20);
  struct {
    double value;
    const char* row;
  } rows[] = {{-5, "lower"},
              {0, "lower"},
              {std::nextafter(0.0, 1.0), "0"},
              {10, "0"},
              {10.001, "1"},
              {20, "1"},
              {20.001, "upper"},
              {1e300, "upper"},
              {infinity, "upper"},
              {-infinity, "lower"},
              {-0.0, "lower"},
              {std::nan(""), "other"}};
  for (const auto& row : rows) EXPECT_EQ(scale.found(row.value), row.row) << row.value;
}

TEST(range_scale, what_no_class_holds_is_other) {
  made_scale scale({{0, 10}, {20, 30}}, -5, 40);
  EXPECT_EQ(scale.found(-5), "lower");
  EXPECT_EQ(scale.found(-1), "other");
  EXPECT_EQ(scale.found(0), "other");
  EXPECT_EQ(scale.found(15), "other");
  EXPECT_EQ(scale.found(20), "other");
  EXPECT_EQ(scale.found(35), "other");
  EXPECT_EQ(scale.found(41), "upper");
}

TEST(range_scale, the_lower_tail_comes_first_then_classes_in_order_then_the_upper_tail) {
  made_scale scale({{0, 10}, {5, 20}, {-10, 100}}, -3, 8);
  EXPECT_EQ(scale.found(-3), "lower");
  EXPECT_EQ(scale.found(-2), "2");
  EXPECT_EQ(scale.found(7), "0");
  EXPECT_EQ(scale.found(15), "1");
  EXPECT_EQ(scale.found(50), "2");
  EXPECT_EQ(scale.found(101), "upper");
}

TEST(range_scale, infinities_are_ordinary_boundaries) {
  made_scale open({{-infinity, 0}, {0, infinity}}, -infinity, infinity);
  EXPECT_EQ(open.found(-infinity), "lower");
  EXPECT_EQ(open.found(-1e308), "0");
  EXPECT_EQ(open.found(0), "0");
  EXPECT_EQ(open.found(1), "1");
  EXPECT_EQ(open.found(infinity), "1");
}

TEST(range_scale, a_boundary_that_is_no_number_holds_nothing) {
  double nan = std::nan("");
  made_scale scale({{nan, 5}, {0, nan}, {0, 10}}, nan, nan);
  EXPECT_EQ(scale.found(-1), "other");
  EXPECT_EQ(scale.found(3), "2");
  EXPECT_EQ(scale.found(11), "other");
}

TEST(range_scale, a_new_scale_has_no_class_and_hides_only_other) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  EXPECT_EQ(zu_rng_scale_get_size(scale), 0u);
  EXPECT_EQ(zu_rng_scale_get_min_value(scale), 0);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale), 0);
  EXPECT_TRUE(zu_scale_prm_get_visible(zu_rng_scale_get_min_prm_ptr(scale)));
  EXPECT_TRUE(zu_scale_prm_get_visible(zu_rng_scale_get_max_prm_ptr(scale)));
  EXPECT_FALSE(zu_scale_prm_get_visible(zu_rng_scale_get_other_prm_ptr(scale)));
  zu_rng_scale_set_size(scale, 1);
  EXPECT_TRUE(zu_scale_prm_get_visible(zu_rng_scale_get_scale_prm_ptr(scale, 0)));
  EXPECT_EQ(zu_rng_scale_get_scale_prm_ptr(scale, 1), nullptr);
  EXPECT_TRUE(std::isnan(zu_rng_scale_get_min(scale, 1)));
  zu_stl_mngr_destroy(manager);
}

TEST(range_scale, runs_of_look_ups_nest) {
  made_scale scale({{0, 10}}, 0, 10);
  zu_rng_scale_beg_find(scale.get());
  zu_rng_scale_beg_find(scale.get());
  zu_rng_scale_end_find(scale.get());
  EXPECT_EQ(scale.row_of(5), "0");
  zu_rng_scale_end_find(scale.get());
  EXPECT_EQ(scale.row_of(5), "other");
  zu_rng_scale_end_find(scale.get());  // one too many
  EXPECT_EQ(scale.found(5), "0");
}

TEST(range_scale, a_change_ends_the_look_ups) {
  made_scale scale({{0, 10}, {10, 20}}, 0, 20);
  zu_rng_scale_beg_find(scale.get());
  zu_rng_scale_set_size(scale.get(), 1);
  EXPECT_EQ(scale.row_of(15), "other");
  EXPECT_EQ(scale.found(5), "0");
  zu_rng_scale_beg_find(scale.get());
  zu_rng_scale_set_max(scale.get(), 0, 3);
  EXPECT_EQ(scale.row_of(2), "other");
  EXPECT_EQ(scale.found(5), "other");
}

TEST(range_scale, only_boundaries_spread_over_magnitudes_are_cut_by_their_bits) {
  std::vector<range> even, tenfold;
  for (int i = 0; i < 10; ++i) {
    even.push_back({100.0 * i, 100.0 * (i + 1)});
    tenfold.push_back({std::pow(10, i), std::pow(10, i + 1)});
  }
  made_scale a(even, 0, 1000), b(tenfold, 1, 1e10);
  zu_rng_scale_beg_find(a.get());
  zu_rng_scale_beg_find(b.get());
  EXPECT_FALSE(a.get()->lookup.by_bits);
  EXPECT_TRUE(b.get()->lookup.by_bits);
}

// The law written down once more, against prepared look-ups of all shapes.
TEST(range_scale, many_classes_of_any_spread_answer_by_the_law) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> unit(0, 1);
  auto even = [&] { return 1000 * unit(random); };
  auto by_magnitude = [&] {
    return (unit(random) < 0.5 ? -1 : 1) * std::pow(10, 300 * unit(random) - 150);
  };
  auto one_far_off = [&] { return unit(random) < 0.02 ? 1e300 : unit(random); };
  auto whole = [&] { return std::floor(20 * unit(random)); };
  std::vector<std::function<double()>> spreads{even, by_magnitude, one_far_off, whole};
  for (std::size_t s = 0; s < spreads.size(); ++s)
    for (std::size_t count : {1, 3, 40, 700}) {
      std::vector<range> classes(count);
      for (range& c : classes) c = {spreads[s](), spreads[s]()};
      double low = spreads[s](), high = spreads[s]();
      made_scale scale(classes, low, high);
      zu_rng_scale_beg_find(scale.get());
      for (int k = 0; k < 2000; ++k) {
        double v = spreads[s]();
        if (k % 3 == 1) v = classes[random() % count].maximum;
        if (k % 3 == 2) v = std::nextafter(classes[random() % count].minimum, infinity);
        std::string expected = v <= low ? "lower" : v > high ? "upper" : "other";
        if (expected != "lower")
          for (std::size_t i = 0; i < count; ++i)
            if (classes[i].minimum < v && v <= classes[i].maximum) {
              expected = std::to_string(i);
              break;
            }
        ASSERT_EQ(scale.row_of(v), expected) << "spread " << s << ", " << count << ", " << v;
      }
      zu_rng_scale_end_find(scale.get());
    }
}

}  // namespace
