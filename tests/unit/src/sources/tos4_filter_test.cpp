// The filter that looks inside a grid file to know what layer it is.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/sources/source_filters.h"
#include "tests/unit/src/sources/builder_host.h"
#include "zu/platform/zuk_file_tos4.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_styles.h"

namespace {

using namespace zu;
namespace fs = std::filesystem;

class tos4_filter : public testing::Test {
 protected:
  void SetUp() override {
    language_ = zu_res_get_lng();
    zu_res_set_lng(50000);
    folder_ = fs::path(testing::TempDir()) / "tos4_filter";
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override {
    zu_res_set_lng(language_);
    fs::remove_all(folder_);
  }

  /// A grid with nodes of 0, 1, 2, … in its properties.
  std::wstring made_grid(std::int32_t type, std::vector<const wchar_t*> properties) {
    bool volume = type == zu_tos4_volume, plane = type == zu_tos4_plane || volume;
    Tzu_tos4_grid grid{type, {5, plane ? 4 : 1, volume ? 2 : 1}, {0, 0, 0}, {1, 1, 1}, 0, nullptr};
    std::wstring path = (folder_ / ("type_" + std::to_string(type) + ".pgrid")).wstring();
    owned<zu_tos4_file_close> file(zu_tos4_file_create_w(path.c_str(), &grid));
    EXPECT_TRUE(file);
    std::vector<double> nodes(static_cast<std::size_t>(grid.size[0]) *
                              static_cast<std::size_t>(grid.size[1] * grid.size[2]));
    for (std::size_t i = 0; i < nodes.size(); ++i) nodes[i] = static_cast<double>(i);
    for (const wchar_t* name : properties) {
      Tzu_tos4_prop property{name, nullptr, 10, 0, false, 0};
      std::int32_t index = zu_tos4_file_add_prop(file.get(), &property);
      EXPECT_TRUE(zu_tos4_file_write(file.get(), static_cast<std::uint32_t>(index), 0, nodes.size(),
                                     nodes.data()));
    }
    EXPECT_TRUE(zu_tos4_file_commit(file.get()));
    return path;
  }
  static std::wstring field_of(Tzu_stl_mngr* manager) {
    return text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(manager, a); });
  }

  fs::path folder_;
  tos4_grid_source_filter_adder filter_;
  std::int32_t language_ = 0;
};

TEST_F(tos4_filter, takes_files_of_exactly_its_extension) {
  EXPECT_TRUE(filter_.accepts(L"/a/b.pgrid"));
  EXPECT_TRUE(filter_.accepts(L"/a/b.PGRID"));
  EXPECT_FALSE(filter_.accepts(L"/a/b.pgri"));
  EXPECT_FALSE(filter_.accepts(L"/a/b.pgrids"));
  EXPECT_FALSE(filter_.accepts(L"/a/b."));
  EXPECT_FALSE(filter_.accepts(L"/a/b"));
}

TEST_F(tos4_filter, makes_the_layer_that_the_type_of_the_grid_asks_for) {
  const struct {
    std::int32_t grid;
    const char* layer;
  } cases[] = {{zu_tos4_profile, "tos_grid_lr1d"},
               {zu_tos4_plane, "tos_grid_lr2d"},
               {zu_tos4_two_columns, "tos_2crd_lr2d"},
               {zu_tos4_volume, "tos_slice_lr2d"}};
  for (const auto& c : cases) {
    tests::builder_host host;
    filter_.add(host.builder(), made_grid(c.grid, {L"z"}).c_str());
    EXPECT_EQ(host.types, std::vector<std::string>{c.layer});
    EXPECT_TRUE(host.errors.empty());
    ASSERT_EQ(host.layers.size(), 1u);
    EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wcaption(host.layers[0], a); }),
              L"type_" + std::to_wstring(c.grid) + L".pgrid");
  }
}

TEST_F(tos4_filter, makes_no_layer_of_a_grid_of_another_type_or_of_what_does_not_open) {
  std::wstring broken = (folder_ / "broken.pgrid").wstring();
  std::ofstream(fs::path(folder_ / "broken.pgrid")) << "no grid at all";
  for (const std::wstring& path :
       {made_grid(zu_tos4_not_placed, {L"z"}), made_grid(zu_tos4_one_column, {L"z"}),
        made_grid(zu_tos4_three_columns, {L"z"}), broken, broken + L".not_there"}) {
    tests::builder_host host;
    filter_.add(host.builder(), path.c_str());
    EXPECT_TRUE(host.types.empty()) << host.types[0];
    EXPECT_EQ(host.errors, std::vector<std::wstring>{L"OAT file has wrong type."});
  }
}

TEST_F(tos4_filter, reports_a_layer_that_the_host_cannot_make) {
  tests::builder_host host;
  host.refuses = true;
  filter_.add(host.builder(), made_grid(zu_tos4_plane, {L"z"}).c_str());
  EXPECT_EQ(host.types, std::vector<std::string>{"tos_grid_lr2d"});
  EXPECT_EQ(host.errors, std::vector<std::wstring>{L"OAT files are not supported."});
}

TEST_F(tos4_filter, colours_planes_and_volumes_by_their_first_property) {
  for (std::int32_t type : {zu_tos4_plane, zu_tos4_volume}) {
    tests::builder_host host;
    filter_.add(host.builder(), made_grid(type, {L"depth", L"z"}).c_str());
    ASSERT_EQ(host.layers.size(), 1u);
    Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(host.layers[0]);
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_range);
    EXPECT_EQ(field_of(manager), L"depth");
    Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
    EXPECT_EQ(zu_rng_scale_get_size(scale), 10u);
    EXPECT_EQ(zu_rng_scale_get_min_value(scale), 0);
    EXPECT_EQ(zu_rng_scale_get_max_value(scale), type == zu_tos4_plane ? 19 : 39);
  }
}

TEST_F(tos4_filter, leaves_the_styles_of_profiles_alone) {
  tests::builder_host host;
  filter_.add(host.builder(), made_grid(zu_tos4_profile, {L"z"}).c_str());
  ASSERT_EQ(host.layers.size(), 1u);
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(host.layers[0]);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_simple);
  EXPECT_EQ(field_of(manager), L"");
}

}  // namespace
