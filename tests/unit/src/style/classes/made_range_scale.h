#pragma once
// A range scale of its own, and what it holds.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "zu/platform/zuk_styles.h"

namespace tests {

using namespace zu;

class made_range_scale : public testing::Test {
 protected:
  /// The outer minimum, minimum and maximum of each class, the outer maximum.
  static std::vector<double> boundaries(const Tzu_rng_scale* scale) {
    std::vector<double> all{zu_rng_scale_get_min_value(scale)};
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
      all.push_back(zu_rng_scale_get_min(scale, i));
      all.push_back(zu_rng_scale_get_max(scale, i));
    }
    all.push_back(zu_rng_scale_get_max_value(scale));
    return all;
  }
  std::vector<double> boundaries() const { return boundaries(scale_); }
  /// The inner boundaries, each once; fails if neighbours do not meet.
  std::vector<double> cuts() const {
    std::vector<double> all;
    for (std::uint64_t i = 0; i + 1 < zu_rng_scale_get_size(scale_); ++i) {
      all.push_back(zu_rng_scale_get_max(scale_, i));
      EXPECT_EQ(all.back(), zu_rng_scale_get_min(scale_, i + 1)) << "class " << i;
    }
    return all;
  }
  std::wstring caption(std::uint64_t index) const {
    return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale_, index, a); });
  }
  std::wstring lowest_caption() const {
    return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_min_caption_w(scale_, a); });
  }
  std::wstring highest_caption() const {
    return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_max_caption_w(scale_, a); });
  }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_rng_scale* scale_ = zu_stl_mngr_get_rng_scale_ptr(manager_.get());
};

}  // namespace tests
