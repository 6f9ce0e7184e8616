#include "src/render/profile_curve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using namespace zu;

constexpr double none = -9999;

/// Runs as "x,y x,y | x,y …".
std::string text_of(Tzu_ov_d2* lines) {
  std::string text;
  auto number = [](double v) {
    std::string whole = std::to_string(static_cast<long>(std::floor(v)));
    return v == std::floor(v) ? whole : whole + ".5";
  };
  for (std::uint64_t i = 0; i < zu_ov_d2_get_size(lines); ++i) {
    if (i > 0) text += " |";
    Tzu_pv_d2* line = zu_ov_d2_get_pv_ptr(lines, i);
    for (std::uint64_t v = 0; v < zu_pv_d2_get_size(line); ++v) {
      const Tzu_vtx_d2& vertex = zu_pv_d2_get_arr(line)[v];
      if (!text.empty()) text += ' ';
      text += number(vertex.x) + ',' + number(vertex.y);
    }
  }
  return text;
}

/// Samples at x = 10, 12, … ; those of `selected` have a star.
profile_curve traced(const std::vector<double>& values, const std::string& selected,
                     bool with_nodata = true) {
  data::nodata_test test;
  test.enabled = test.numeric = with_nodata;
  if (with_nodata) test.value = none;
  profile_curve curve(10, 2, test);
  for (std::size_t i = 0; i < values.size(); ++i) curve.add(values[i], selected[i] == '*');
  return curve;
}

TEST(profile_curve, nodata_breaks_the_curve) {
  profile_curve curve = traced({none, 1, 2, none, none, 5, none}, ".......");
  EXPECT_EQ(text_of(curve.unselected()), "12,1 14,2 | 20,5");
  EXPECT_EQ(text_of(curve.selected()), "");
}

TEST(profile_curve, selected_samples_stay_in_the_whole_curve) {
  EXPECT_EQ(text_of(traced({0, 2, 4}, "***").unselected()), "10,0 12,2 14,4");
}

TEST(profile_curve, selected_runs) {
  struct {
    const char* what;
    std::vector<double> values;
    const char* selected;
    const char* runs;
  } const cases[] = {
      {"a run begins and ends half a step outside, on the chord",
       {0, 2, 4, 6},
       ".**.",
       "11,1 12,2 14,4 15,5"},
      {"the first sample of a band has nothing before it", {0, 2, 4}, "*..", "10,0 11,1"},
      {"the last one has nothing behind it", {0, 2, 4}, "..*", "13,3 14,4"},
      {"two runs", {0, 2, 4, 6, 8}, ".*.*.", "11,1 12,2 13,3 | 15,5 16,6 17,7"},
      {"a run stays open over a selected sample without a value",
       {0, 2, none, 6, 8},
       ".***.",
       "11,1 12,2 16,6 17,7"},
      {"no chord leads to or from a sample without a value", {none, 2, none}, ".*.", "12,2"},
      {"a selected sample without a value is no run", {none, none, none}, ".*.", ""},
      {"it opens none either: the next vertex is the first", {0, none, 4}, ".**", "14,4"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(text_of(traced(c.values, c.selected).selected()), c.runs) << c.what;
}

TEST(profile_curve, without_nodata_the_sample_before_the_first_counts_as_a_zero) {
  EXPECT_EQ(text_of(traced({4, 6}, "*.", false).selected()), "9,2 10,4 11,5");
}

TEST(profile_curve, both_sets_are_placed) {
  profile_curve curve = traced({1, 2}, "*.");
  Tzu_matrix3x3 shift{{{1, 0, 100}, {0, 1, 200}, {0, 0, 1}}};
  curve.apply(shift);
  EXPECT_EQ(text_of(curve.unselected()), "110,201 112,202");
  EXPECT_EQ(text_of(curve.selected()), "110,201 111,201.5");
}

}  // namespace
