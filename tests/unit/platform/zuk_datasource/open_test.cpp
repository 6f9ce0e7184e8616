#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <thread>

#include <cpl_vsi.h>

#include "platform/zuk_datasource/open_dataset.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;
using zu::platform::dataset_pool;

namespace {

double ramp(int x, int y, int) { return x + 10 * y; }

std::wstring why_not(const std::string& name) {
  zu_problems_clear(nullptr);
  source s(name);
  EXPECT_FALSE(s);
  auto kept = reasons(name);
  return kept.empty() ? L"" : kept.back();
}

TEST(gdal_open, a_name_that_cannot_be_opened_says_why) {
  folder f;
  std::ofstream(f.at("empty.tif")).flush();
  std::ofstream(f.at("text.tif")) << "not a picture at all, but a letter to a friend";
  EXPECT_EQ(why_not(f.at("none.tif")), L"no such file");
  EXPECT_EQ(why_not(f.at("")), L"is a directory");
  EXPECT_EQ(why_not(f.at("empty.tif")), L"is empty");
  EXPECT_EQ(why_not(f.at("text.tif")), L"not a grid that any driver knows");
  EXPECT_EQ(why_not(""), L"no name is given");
  ASSERT_EQ(mkfifo(f.at("pipe.tif").c_str(), 0600), 0);
  EXPECT_EQ(why_not(f.at("pipe.tif")), L"is not a regular file");
  if (geteuid() != 0) {
    make(f.at("closed.tif"), {}, ramp);
    chmod(f.at("closed.tif").c_str(), 0);
    EXPECT_EQ(why_not(f.at("closed.tif")), L"no permission to read");
  }
}

TEST(gdal_open, a_reason_does_not_repeat_the_name_of_the_file) {
  folder f;
  make(f.at("whole.tif"), {}, ramp);
  std::filesystem::copy(f.at("whole.tif"), f.at("short_head.tif"));
  std::filesystem::resize_file(f.at("short_head.tif"), 12);
  std::wstring reason = why_not(f.at("short_head.tif"));
  EXPECT_FALSE(reason.empty());
  EXPECT_EQ(reason.find(L"short_head"), std::wstring::npos)
      << std::string(reason.begin(), reason.end());
}

TEST(gdal_open, null_and_missing_outputs_are_no_crash) {
  Tzu_handle out;
  zu_datasource_open(nullptr, 1, nullptr, &out);
  EXPECT_FALSE(out);
  zu_datasource_open(L"x", 1, nullptr, nullptr);
  Tzu_field_info info;
  EXPECT_FALSE(zu_datasource_get_field_info(Tzu_handle(), 0, &info));
}

void zip(const std::string& archive, const std::vector<std::string>& files) {
  GDALAllRegister();
  for (const std::string& file : files) {
    std::string inside = "/vsizip/" + archive + "/" + file.substr(file.rfind('/') + 1);
    VSILFILE* to = VSIFOpenL(inside.c_str(), "wb");
    std::ifstream from(file, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(from)), {});
    VSIFWriteL(bytes.data(), 1, bytes.size(), to);
    VSIFCloseL(to);
  }
}

TEST(gdal_open, an_archive_of_one_grid_opens_by_its_own_name) {
  folder f;
  make(f.at("a.tif"), {}, ramp);
  std::ofstream(f.at("read me.txt")) << "hello";
  zip(f.at("one.zip"), {f.at("a.tif"), f.at("read me.txt")});
  EXPECT_TRUE(source("/vsizip/" + f.at("one.zip")));
  source s(f.at("one.zip"));
  ASSERT_TRUE(s);
  block b(s.band(0));
  EXPECT_EQ(b.doubles({6, 0}, {1, 1}, {1, 1})[0], 46);
}

TEST(gdal_open, an_archive_of_several_grids_says_how_to_name_one) {
  folder f;
  make(f.at("a.tif"), {}, ramp);
  make(f.at("b.tif"), {}, ramp);
  zip(f.at("two.zip"), {f.at("a.tif"), f.at("b.tif")});
  std::wstring reason = why_not(f.at("two.zip"));
  EXPECT_EQ(reason.find(L"holds 2 parts, name one of them: /vsizip/"), 0u);
  EXPECT_TRUE(source("/vsizip/{" + f.at("two.zip") + "}/b.tif"));
}

TEST(gdal_open, nothing_is_written_beside_a_file_that_is_looked_at) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 64, .ny = 64}, ramp);
  GDALDataset* tif = GDALDataset::FromHandle(GDALOpen(path.c_str(), GA_ReadOnly));
  GDALClose(GetGDALDriverManager()->GetDriverByName("AAIGrid")->CreateCopy(
      f.at("b.asc").c_str(), tif, 0, nullptr, nullptr, nullptr));
  GDALClose(tif);
  std::vector<std::string> before = f.names();
  for (const char* name : {"a.tif", "b.asc"}) {
    source s(f.at(name));
    ASSERT_TRUE(s);
    block b(s.band(0));
    b.doubles({0, 0}, {64, 64}, {8, 8});
    Tzu_field_info info;
    Tzu_field_stat stat;
    EXPECT_TRUE(zu_datasource_get_field_info(s.get(), 0, &info));
    EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
    EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 100, nullptr, nullptr, &stat));
  }
  zu_datasource_set_pool_size(0);
  zu_datasource_set_pool_size(16);
  EXPECT_EQ(f.names(), before);
}

TEST(gdal_open, what_gdal_works_out_about_a_file_is_not_saved) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp), reason;
  {
    auto opened = zu::platform::open_by_name(path, true, reason);
    ASSERT_NE(opened, nullptr);
    double out[4];
    ASSERT_EQ(opened->gdal().GetRasterBand(1)->ComputeStatistics(FALSE, out, out + 1, out + 2,
                                                                 out + 3, nullptr, nullptr),
              CE_None);
  }
  EXPECT_EQ(f.names(), std::vector<std::string>{"a.tif"});
}

// --- Pool

struct pool_of : testing::Test {
  void SetUp() override { renew(16); }
  void TearDown() override { renew(16); }
  static void renew(std::uint32_t files) {
    zu_datasource_set_pool_size(0);
    zu_datasource_set_pool_size(files);
  }
  static zu::platform::dataset_ptr acquired(const std::string& name) {
    std::string reason;
    return dataset_pool::shared().acquire(name, true, reason);
  }
};

TEST_F(pool_of, datasets_opens_a_file_once_while_it_stays_the_same) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  auto first = acquired(path);
  EXPECT_EQ(acquired(path), first);
  EXPECT_EQ(dataset_pool::shared().held(), 1u);
}

TEST_F(pool_of, datasets_does_not_keep_a_file_that_was_written_this_moment) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now());
  { source s(path); }
  EXPECT_EQ(dataset_pool::shared().held(), 0u);
}

TEST_F(pool_of, datasets_sees_a_file_that_was_replaced) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  { source s(path); }
  make(f.at("b.tif"), {}, [](int, int, int) { return 7; });
  std::filesystem::rename(f.at("b.tif"), path);
  source s(path);
  block b(s.band(0));
  EXPECT_EQ(b.doubles({0, 0}, {1, 1}, {1, 1})[0], 7);
}

TEST_F(pool_of, datasets_sees_overviews_that_appeared) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 64, .ny = 64}, ramp);
  { source s(path); }
  GDALDataset* made = GDALDataset::FromHandle(GDALOpen(path.c_str(), GA_ReadOnly));
  int factor = 4;
  ASSERT_EQ(made->BuildOverviews("NEAREST", 1, &factor, 0, nullptr, nullptr, nullptr), CE_None);
  GDALClose(made);
  ASSERT_TRUE(std::filesystem::exists(path + ".ovr"));
  EXPECT_EQ(acquired(path)->gdal().GetRasterBand(1)->GetOverviewCount(), 1);
}

TEST_F(pool_of, datasets_holds_no_more_than_its_size_and_drops_the_oldest) {
  folder f;
  renew(2);
  std::string a = make(f.at("a.tif"), {}, ramp), b = make(f.at("b.tif"), {}, ramp),
              c = make(f.at("c.tif"), {}, ramp);
  { source s(a); }
  auto kept = acquired(b);
  { source s(c); }
  EXPECT_EQ(dataset_pool::shared().held(), 2u);
  EXPECT_EQ(acquired(b), kept);
}

TEST_F(pool_of, datasets_gives_nothing_that_another_thread_holds) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  auto mine = acquired(path);
  zu::platform::dataset_ptr theirs;
  std::thread([&] { theirs = acquired(path); }).join();
  EXPECT_NE(theirs, mine);
}

TEST_F(pool_of, datasets_forgets_a_file_that_is_opened_for_update) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  { source s(path); }
  ASSERT_EQ(dataset_pool::shared().held(), 1u);
  source s(path, 0);
  ASSERT_TRUE(s);
  EXPECT_EQ(dataset_pool::shared().held(), 0u);
}

TEST_F(pool_of, datasets_may_be_closed_while_a_source_still_reads) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  source s(path);
  zu_datasource_set_pool_size(0);
  block b(s.band(0));
  EXPECT_EQ(b.doubles({0, 0}, {1, 1}, {1, 1})[0], 40);
}

TEST(local_file, is_found_through_archives_and_connection_texts) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, ramp);
  for (const std::string& name :
       {path, "/vsizip/" + path + "/inside/x.tif", "/vsizip/{" + path + "}/x.tif",
        "NETCDF:\"" + path + "\":depth", "HDF5:" + path + "://group/set", "/vsigzip/" + path})
    EXPECT_EQ(zu::platform::local_file_of(name), path) << name;
  EXPECT_EQ(zu::platform::local_file_of("/vsimem/a.tif"), "");
  EXPECT_EQ(zu::platform::local_file_of(f.at("none.tif")), "");
}

TEST(gdal_open, parts_that_lie_on_one_another_are_fields_of_one_grid) {
  GDALDriver* netcdf = GetGDALDriverManager()->GetDriverByName("netCDF");
  if (netcdf == nullptr) GTEST_SKIP() << "this GDAL writes no netCDF";
  folder f;
  std::string path = make(f.at("two.tif"), {.nx = 4, .ny = 3, .bands = 2},
                          [](int x, int y, int band) { return band * 100 + y * 4 + x; });
  GDALDataset* made = GDALDataset::FromHandle(GDALOpen(path.c_str(), GA_ReadOnly));
  GDALClose(netcdf->CreateCopy(f.at("two.nc").c_str(), made, FALSE, nullptr, nullptr, nullptr));
  GDALClose(made);
  source s(f.at("two.nc"));
  ASSERT_TRUE(s);
  EXPECT_EQ(zu::call<&zu::data_source_impl::field_count>(s.get()), 2);
  text_taker names;
  for (std::int64_t i : {0, 1})
    zu::call<&zu::data_source_impl::field_name>(
        s.get(), i, zu::string_visitor(zu::handle_of<zu::string_visitor_impl>(names)));
  EXPECT_EQ(names.texts, (std::vector<std::wstring>{L"Band1", L"Band2"}));
  source plain(path);
  for (std::int64_t i : {0, 1}) {
    block a(s.band(i)), b(plain.band(i));
    EXPECT_EQ(a.doubles({0, 0}, {4, 3}, {4, 3}), b.doubles({0, 0}, {4, 3}, {4, 3}));
  }
}

}  // namespace
