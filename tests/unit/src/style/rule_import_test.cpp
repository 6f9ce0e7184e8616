#include "src/style/scale_operations.h"
#include "tests/unit/src/style/made_scale.h"

namespace {

using namespace tests;

struct rule_import : made_scale<color_rules> {
  rule_import() {
    values.mngr = ranges.mngr = m.mngr;
    zu_rng_scale_set_round_digits(ranges.scale(), -1);
  }
  std::vector<std::wstring> texts() const {
    std::vector<std::wstring> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(m.get_row_text(row));
    return all;
  }
  color_values values;
  color_ranges ranges;
};

TEST_F(rule_import, makes_a_rule_of_each_value) {
  values.set_field(L"rock type");
  zu_val_scale_set_size(values.scale(), 2);
  values.set_value(0, L"7");
  values.set_caption(0, L"seven");
  values.set_value(1, L"tuff \"A\"");
  values.set_visible(1, false);
  zu_stl_prm_clr_set_all(values.get_style_prm(1), {1, 2, 3, 4}, 0);
  values.set_other_caption(L"the rest");
  zu_scale_prm_set_visible(values.other_prm(), true);
  set_size(9);
  import_value_rules(m);
  EXPECT_EQ(texts(), (std::vector<std::wstring>{L"rock type = 7 : seven",
                                                L"rock type = \"tuff \"A\"\" : "}));
  EXPECT_TRUE(m.get_visible(0));
  EXPECT_FALSE(m.get_visible(1));
  EXPECT_EQ(color(1), (rgba{1, 2, 3, 4}));
  EXPECT_EQ(m.get_other_caption(), L"the rest");
  EXPECT_TRUE(zu_scale_prm_get_visible(m.other_prm()));
  EXPECT_EQ(told, 1);
}

TEST_F(rule_import, does_nothing_with_values_of_no_field) {
  zu_val_scale_set_size(values.scale(), 2);
  set_size(3);
  import_value_rules(m);
  EXPECT_EQ(m.row_count(), 3);
  EXPECT_EQ(told, 0);
  EXPECT_FALSE(import_value_rules(nullptr));
  EXPECT_FALSE(import_range_rules(nullptr));
}

TEST_F(rule_import, makes_a_rule_of_each_class_and_tail) {
  ranges.set_field(L"z");
  zu_rng_scale_set_size(ranges.scale(), 2);
  const wchar_t* limits[] = {L"10", L"20.04", L"30"};
  ranges.set_max(0, limits[0]);
  for (std::int64_t row : {1, 2}) {
    ranges.set_min(row, limits[row - 1]);
    ranges.set_max(row, limits[row]);
  }
  ranges.set_min(3, limits[2]);
  for (std::int64_t row = 0; row < 4; ++row) {
    ranges.set_caption(row, L"row " + std::to_wstring(row));
    zu_stl_prm_clr_set_all(ranges.get_style_prm(row), painted(row), 0);
  }
  ranges.set_visible(3, false);
  ranges.set_other_caption(L"no data");
  import_range_rules(m);
  EXPECT_EQ(texts(),
            (std::vector<std::wstring>{L"z <= 10.0 : row 0", L"z > 10.0 and z <= 20.0 : row 1",
                                       L"z > 20.0 and z <= 30.0 : row 2", L"z > 30.0 : row 3"}));
  EXPECT_EQ(reds(), (std::vector<int>{0, 10, 20, 30}));
  EXPECT_EQ(visible(), (std::vector<bool>{true, true, true, false}));
  EXPECT_EQ(m.get_other_caption(), L"no data");
  EXPECT_EQ(told, 1);
}

TEST_F(rule_import, makes_two_rules_of_no_classes) {
  ranges.set_field(L"z");
  import_range_rules(m);
  EXPECT_EQ(texts(), (std::vector<std::wstring>{L"z <= 0.0 : ", L"z > 0.0 : "}));
}

}  // namespace
