#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "src/style/scale_operations.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/style/made_scale.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;

/// A grid of 2 x 2 cells with the values 0, 10, 5 and 2 in a folder of its own, where the user's
/// data folder is too.
template <class model_type> struct default_scale : made_scale<model_type> {
  default_scale() {
    fs::remove_all(folder);
    fs::create_directories(folder);
    const char* before = std::getenv("XDG_DATA_HOME");
    kept = before != nullptr ? before : "";
    setenv("XDG_DATA_HOME", (folder / "user").c_str(), 1);
    made_grid grid("default_scale/a.tif", 2, 2, GDT_Float64, 1);
    grid.values(1, {0, 10, 5, 2});
    grid.band(1)->SetDescription("z");
    this->m.source.name = grid.close();
    this->m.source.opener = &zu_datasource_open;
    this->m.set_field(L"z");
  }
  ~default_scale() override {
    if (kept.empty())
      unsetenv("XDG_DATA_HOME");
    else
      setenv("XDG_DATA_HOME", kept.c_str(), 1);
    fs::remove_all(folder);
  }
  fs::path beside(const wchar_t* extension) const {
    return folder / (std::wstring(L"a.z") + extension);
  }
  /// What array 5 makes of so many colours.
  static std::vector<int> spread(std::size_t count) {
    std::vector<Tzu_color> colors(count, Tzu_color{0, 0, 0, 0});
    zu_clr_arrays_generate_ex(5, count, colors.data(), 0);
    std::vector<int> reds;
    for (Tzu_color c : colors) reds.push_back(c.r);
    return reds;
  }

  const fs::path folder = fs::path(testing::TempDir()) / "default_scale";
  std::string kept;
};

using default_ranges = default_scale<color_ranges>;
using default_values = default_scale<color_values>;
using default_rules = default_scale<color_rules>;

TEST_F(default_ranges, are_ten_classes_of_the_data_from_blue_through_white_to_red) {
  load_default_scale(m);
  ASSERT_EQ(m.row_count(), 12);
  EXPECT_EQ(m.get_value(0), L"-∞..0");
  EXPECT_EQ(m.get_value(1), L"0..1");
  EXPECT_EQ(m.get_value(11), L"10..+∞");
  EXPECT_EQ(reds(), spread(12));
  EXPECT_EQ(told, 1);
  EXPECT_FALSE(fs::exists(beside(L"._rg")));
}

TEST_F(default_values, are_the_values_of_the_data) {
  load_default_scale(m);
  ASSERT_EQ(m.row_count(), 4);
  std::vector<std::wstring> texts;
  for (std::int64_t row = 0; row < 4; ++row) texts.push_back(m.get_value(row));
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(texts, (std::vector<std::wstring>{L"0", L"10", L"2", L"5"}));
  EXPECT_EQ(m.get_caption(0), m.get_value(0));
  EXPECT_EQ(reds(), spread(4));
  EXPECT_EQ(told, 1);
}

TEST_F(default_ranges, come_from_the_file_beside_the_data) {
  set_size(2);
  paint();
  m.set_field(L"another");
  ASSERT_TRUE(range_scale_traits::save(beside(L"._rg").wstring(), m.mngr, "clr_mngr_style"));
  set_size(0);
  m.set_field(L"z");
  load_default_scale(m);
  EXPECT_EQ(captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2", L"row 3"}));
  EXPECT_EQ(reds(), (std::vector<int>{0, 10, 20, 30}));
  EXPECT_EQ(m.field(), L"z");
  EXPECT_EQ(told, 1);
}

TEST_F(default_values, come_from_the_file_of_their_kind) {
  set_size(2);
  paint();
  ASSERT_TRUE(value_scale_traits::save(beside(L"._vl").wstring(), m.mngr, "clr_mngr_style"));
  set_size(0);
  load_default_scale(m);
  EXPECT_EQ(captions(), (std::vector<std::wstring>{L"row 0", L"row 1"}));
}

TEST_F(default_ranges, are_filled_from_data_where_the_file_does_not_load) {
  std::ofstream(beside(L"._rg")) << "no scale";
  load_default_scale(m);
  EXPECT_EQ(m.row_count(), 12);
  EXPECT_EQ(told, 1);
}

TEST_F(default_ranges, of_a_field_that_there_is_not_keep_their_classes_and_get_colours) {
  set_size(1);
  paint();
  m.set_field(L"no such field");
  load_default_scale(m);
  EXPECT_EQ(captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2"}));
  EXPECT_EQ(reds(), spread(3));
  EXPECT_EQ(told, 1);
}

TEST_F(default_rules, get_colours_and_nothing_else) {
  std::ofstream(beside(L"._rl")) << "no scale";
  set_size(3);
  paint();
  load_default_scale(m);
  EXPECT_EQ(captions(), (std::vector<std::wstring>{L"row 0", L"row 1", L"row 2"}));
  EXPECT_EQ(reds(), spread(3));
  EXPECT_EQ(told, 1);
  set_size(0);
  load_default_scale(m);
  EXPECT_EQ(m.row_count(), 0);
}

// --- Boundaries anew

TEST_F(default_ranges, are_made_anew_by_the_method_that_made_them) {
  const struct {
    std::int32_t type, digits;
    double boundary;
  } cases[] = {{zu_range_equal, 0, 5}, {zu_range_geometrical, -3, 2.317}};
  for (const auto& c : cases) {
    set_size(2);
    zu_rng_scale_set_rng_type(m.scale(), c.type);
    zu_rng_scale_set_round_digits(m.scale(), c.digits);
    told = 0;
    rescale(m);
    ASSERT_EQ(m.row_count(), 4);
    EXPECT_EQ(zu_rng_scale_get_min_value(m.scale()), 0);
    EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 10);
    EXPECT_NEAR(zu_rng_scale_get_max(m.scale(), 0), c.boundary, 1e-9);
    EXPECT_EQ(zu_rng_scale_get_rng_type(m.scale()), c.type);
    EXPECT_EQ(told, 1);
  }
  set_size(2);
  zu_rng_scale_set_rng_type(m.scale(), zu_range_natural);
  rescale(m);
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 10);
  EXPECT_EQ(zu_rng_scale_get_rng_type(m.scale()), zu_range_natural);
}

TEST_F(default_ranges, of_other_methods_and_of_no_field_are_not_made_anew) {
  set_size(2);
  for (std::int32_t type :
       {zu_range_deviation, zu_range_logarithmic, zu_range_quantile, zu_range_manual}) {
    zu_rng_scale_set_rng_type(m.scale(), type);
    rescale(m);
  }
  zu_rng_scale_set_rng_type(m.scale(), zu_range_equal);
  m.set_field(L"no such field");
  rescale(m);
  m.set_field(L"z");
  m.source.name = L"/no/such/file.tif";
  rescale(m);
  EXPECT_EQ(zu_rng_scale_get_max_value(m.scale()), 0);
  EXPECT_EQ(m.row_count(), 4);
}

}  // namespace
