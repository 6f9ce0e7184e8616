#include "src/style/scale_file.h"

#include <cpl_conv.h>

#include <cstdlib>
#include <fstream>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using zu::style::range_scale_extension;
using zu::style::scale_file_path;
using zu::style::value_scale_extension;

TEST(scale_file, stands_beside_the_source_with_the_field_in_its_name) {
  const struct {
    const wchar_t *source, *field, *path;
  } cases[] = {
      {L"a.grd", L"z", L"a.z._rg"},
      {L"/data/a.grd", L"z", L"/data/a.z._rg"},
      {L"/a.grd", L"z", L"/a.z._rg"},
      {L"C:\\a.grd", L"z", L"C:\\a.z._rg"},
      {L"/data.v2/grid", L"z", L"/data.v2/grid.z._rg"},
      {L"/data/a.b.grd", L"z", L"/data/a.b.z._rg"},
      {L"/data/a.grd", L"z.1", L"/data/a.z.1._rg"},
      {L"/data/.grd", L"z", L"/data/.grd.z._rg"},
      {L"/data/a.grd", L"Высота", L"/data/a.Высота._rg"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(scale_file_path(c.source, c.field, range_scale_extension), c.path);
  EXPECT_EQ(scale_file_path(L"a.grd", L"z", value_scale_extension), L"a.z._vl");
}

TEST(scale_file, is_none_without_source_or_field_or_for_a_source_in_memory) {
  EXPECT_EQ(scale_file_path(L"", L"z", range_scale_extension), L"");
  EXPECT_EQ(scale_file_path(L"a.grd", L"", range_scale_extension), L"");
  EXPECT_EQ(scale_file_path(L"*memory.grd", L"z", range_scale_extension), L"");
}

TEST(scale_file, stays_in_the_folder_whatever_the_field_is_called) {
  EXPECT_EQ(scale_file_path(L"/data/a.grd", L"../../x", range_scale_extension),
            L"/data/a..._.._x._rg");
  EXPECT_EQ(scale_file_path(L"/data/a.grd", L"m\\s", range_scale_extension), L"/data/a.m_s._rg");
}

namespace fs = std::filesystem;

/// A manager and a grid of a folder of its own; the user's data folder is there too.
class scale_beside_data : public testing::Test {
 protected:
  void SetUp() override {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    const char* before = std::getenv("XDG_DATA_HOME");
    kept_ = before != nullptr ? before : "";
    setenv("XDG_DATA_HOME", (folder_ / "user").c_str(), 1);
    tests::made_grid grid("scale_file/a.tif", 2, 2, GDT_Float64, 1);
    grid.values(1, {0, 10, 5, 2});
    grid.band(1)->SetDescription("z");
    source_.name = grid.close();
    source_.opener = &zu_datasource_open;
  }
  void TearDown() override {
    if (kept_.empty())
      unsetenv("XDG_DATA_HOME");
    else
      setenv("XDG_DATA_HOME", kept_.c_str(), 1);
    fs::remove_all(folder_);
  }
  static Tzu_rng_scale* scale(const zu::owned<zu_stl_mngr_destroy>& manager) {
    return zu_stl_mngr_get_rng_scale_ptr(manager.get());
  }
  bool set_up(const wchar_t* field = L"z") {
    return zu::style::set_up_range_scale(manager_.get(), source_, field);
  }
  static std::string content(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  fs::path folder_ = fs::path(testing::TempDir()) / "scale_file";
  fs::path beside_ = folder_ / "a.z._rg";
  std::string kept_;
  zu::data::open_reference source_;
  zu::owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
};

TEST_F(scale_beside_data, is_made_from_the_field_and_written) {
  EXPECT_TRUE(set_up());
  EXPECT_EQ(zu_rng_scale_get_size(scale(manager_)), 10u);
  EXPECT_EQ(zu_rng_scale_get_max_value(scale(manager_)), 10);
  EXPECT_TRUE(fs::exists(beside_));
  EXPECT_FALSE(fs::exists(folder_ / "user"));
}

TEST_F(scale_beside_data, is_read_where_there_is_one) {
  EXPECT_TRUE(set_up());
  zu_rng_scale_set_max_value(scale(manager_), 77);
  zu::owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml.get(), beside_.wstring().c_str(), manager_.get(),
                                           "clr_mngr_style"));
  std::string before = content(beside_);
  manager_.reset(zu_clr_stl_mngr_create());
  EXPECT_TRUE(set_up());
  EXPECT_EQ(zu_rng_scale_get_max_value(scale(manager_)), 77);
  EXPECT_EQ(
      zu::text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(manager_.get(), a); }),
      L"z");
  EXPECT_EQ(content(beside_), before);
}

TEST_F(scale_beside_data, is_made_anew_in_the_place_of_one_that_does_not_load) {
  std::ofstream(beside_) << "<range_scale manager='pln_mngr_style'";
  EXPECT_TRUE(set_up());
  EXPECT_EQ(zu_rng_scale_get_max_value(scale(manager_)), 10);
  manager_.reset(zu_clr_stl_mngr_create());
  EXPECT_NE(content(beside_).find("clr_mngr_style"), std::string::npos);
}

TEST_F(scale_beside_data, goes_to_the_user_where_the_datas_folder_cannot_be_written) {
  std::string archive = "/vsizip/" + (folder_ / "a.zip").string();
  ASSERT_EQ(CPLCopyFile((archive + "/a.tif").c_str(), (folder_ / "a.tif").c_str()), 0);
  source_.name = fs::path(archive + "/a.tif").wstring();
  EXPECT_TRUE(set_up());
  EXPECT_FALSE(fs::exists(beside_));
  fs::path place;
  for (const auto& entry : fs::recursive_directory_iterator(folder_ / "user"))
    if (entry.path().filename() == "a.z._rg") place = entry.path();
  ASSERT_FALSE(place.empty());

  zu_rng_scale_set_max_value(scale(manager_), 77);
  zu::owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  ASSERT_TRUE(zu_xml_data_save_rng_scale_w(xml.get(), place.wstring().c_str(), manager_.get(),
                                           "clr_mngr_style"));
  manager_.reset(zu_clr_stl_mngr_create());
  EXPECT_TRUE(set_up());
  EXPECT_EQ(zu_rng_scale_get_max_value(scale(manager_)), 77);
}

TEST_F(scale_beside_data, is_none_of_a_field_that_is_not_there) {
  EXPECT_FALSE(set_up(L"other"));
  EXPECT_EQ(zu_rng_scale_get_size(scale(manager_)), 0u);
  EXPECT_FALSE(fs::exists(folder_ / "a.other._rg"));
}

}  // namespace
