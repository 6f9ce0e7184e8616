#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/unit/platform/zuk_drwc/made_picture.h"

namespace zu::test {
namespace {

namespace fs = std::filesystem;

struct saved {
  bool done;
  std::wstring reason;
};

/// A folder of its own for each test.
class save_picture : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "zu_pictures_XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override {
    fs::permissions(folder_, fs::perms::owner_all);
    fs::remove_all(folder_);
  }

  saved save(const drwc_ptr& drwc, const fs::path& path, const Tzu_box_d2* box = nullptr,
             const wchar_t* projection = nullptr) {
    saved result{};
    auto sink = [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; };
    Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &result.reason);
    result.done = zu_drwc_save_w(drwc.get(), path.wstring().c_str(), box, projection, adapter);
    zu_string_adp_destroy(adapter);
    return result;
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& entry : fs::directory_iterator(folder_))
      all.push_back(entry.path().filename().string());
    return all;
  }
  static std::string content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  fs::path folder_;
};

/// Three colours, one half clear, one clear.
drwc_ptr four_pixels() {
  drwc_ptr drwc = made_picture(2, 2);
  const Tzu_color colors[] = {{255, 0, 0, 0}, {0, 255, 0, 127}, {0, 0, 255, 0}, {0, 0, 0, 255}};
  draw(drwc, {0, 0, 2, 2}, made_dib(2, 2, [&](auto x, auto y) { return colors[y * 2 + x]; }));
  return drwc;
}

TEST_F(save_picture, writes_straight_red_green_blue_and_opacity_the_top_row_first) {
  drwc_ptr drwc = four_pixels();
  for (const char* name : {"a.png", "a.tif", "B.TIFF"}) {
    ASSERT_TRUE(save(drwc, folder_ / name).done) << name;
    GDALAllRegister();
    std::unique_ptr<GDALDataset> set(GDALDataset::Open((folder_ / name).c_str()));
    ASSERT_NE(set, nullptr);
    ASSERT_EQ(set->GetRasterCount(), 4);
    EXPECT_EQ(set->GetRasterBand(4)->GetColorInterpretation(), GCI_AlphaBand);
    const std::uint8_t expected[4][4] = {
        {0, 0, 255, 0}, {0, 0, 0, 255}, {255, 0, 0, 0}, {255, 0, 255, 128}};
    for (int band = 1; band <= 4; ++band) {
      std::uint8_t bytes[4];
      ASSERT_EQ(set->GetRasterBand(band)->RasterIO(GF_Read, 0, 0, 2, 2, bytes, 2, 2, GDT_Byte, 0, 0,
                                                   nullptr),
                CE_None);
      for (int i = 0; i < 4; ++i) EXPECT_EQ(bytes[i], expected[band - 1][i]) << name << band << i;
    }
  }
  EXPECT_EQ(names().size(), 3u);  // and nothing beside them
}

TEST_F(save_picture, a_tif_carries_the_box_and_the_projection) {
  Tzu_box_d2 box{400000, 600000, 400200, 600100};
  ASSERT_TRUE(save(four_pixels(), folder_ / "g.tif", &box, L"EPSG:32637").done);
  std::unique_ptr<GDALDataset> set(GDALDataset::Open((folder_ / "g.tif").c_str()));
  ASSERT_NE(set, nullptr);
  double transform[6];
  ASSERT_EQ(set->GetGeoTransform(transform), CE_None);
  const double expected[6] = {400000, 100, 0, 600100, 0, -50};
  for (int i = 0; i < 6; ++i) EXPECT_DOUBLE_EQ(transform[i], expected[i]) << i;
  ASSERT_NE(set->GetSpatialRef(), nullptr);
  EXPECT_STREQ(set->GetSpatialRef()->GetAuthorityCode(nullptr), "32637");
  set.reset();
  EXPECT_EQ(names(), std::vector<std::string>{"g.tif"});
}

TEST_F(save_picture, an_older_file_is_replaced_and_keeps_its_access) {
  fs::path path = folder_ / "a.png";
  std::ofstream(path) << "old";
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_TRUE(save(four_pixels(), path).done);
  EXPECT_EQ(content(path).substr(1, 3), "PNG");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(save_picture, a_link_stays_and_what_it_leads_to_is_replaced) {
  std::ofstream(folder_ / "real.png") << "old";
  fs::create_symlink("real.png", folder_ / "link.png");
  ASSERT_TRUE(save(four_pixels(), folder_ / "link.png").done);
  EXPECT_TRUE(fs::is_symlink(folder_ / "link.png"));
  EXPECT_EQ(content(folder_ / "real.png").substr(1, 3), "PNG");
}

TEST_F(save_picture, failures_give_their_reason_and_leave_nothing) {
  fs::create_directory(folder_ / "folder.png");
  ASSERT_EQ(mkfifo((folder_ / "pipe.png").c_str(), 0600), 0);
  drwc_ptr drwc = four_pixels();
  struct {
    fs::path path;
    const wchar_t* reason;
  } rows[] = {{folder_ / "missing" / "a.png", L"no such folder"},
              {folder_ / "a.bmp", L"unknown kind of picture: .bmp"},
              {folder_ / "a", L"unknown kind of picture: no ending"},
              {folder_ / "folder.png", L"is a folder"},
              {folder_ / "pipe.png", L"is not a regular file"}};
  for (const auto& row : rows) {
    saved result = save(drwc, row.path);
    EXPECT_FALSE(result.done) << row.path;
    EXPECT_EQ(result.reason, row.reason) << row.path;
  }
  EXPECT_EQ(names().size(), 2u);
}

TEST_F(save_picture, a_folder_without_permission_says_so) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may write anywhere";
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec);
  saved result = save(four_pixels(), folder_ / "a.png");
  EXPECT_FALSE(result.done);
  EXPECT_EQ(result.reason, L"no permission to write");
}

// A limit on the size of files stands for a full disk: writes fail in the same way.
TEST_F(save_picture, when_the_disk_is_full_the_older_file_stays) {
  drwc_ptr drwc = made_picture(300, 300);
  std::uint32_t noise = 1;
  draw(drwc, {0, 0, 300, 300}, made_dib(300, 300, [&](auto, auto) {
         noise = noise * 1664525u + 1013904223u;
         auto byte = [&](int shift) { return static_cast<std::uint8_t>(noise >> shift); };
         return Tzu_color{byte(8), byte(16), byte(24), 0};
       }));
  for (const char* name : {"a.png", "a.tif"}) {
    fs::path path = folder_ / name;
    std::ofstream(path) << "old";
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit tight = before;
    tight.rlim_cur = 100000;
    auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    saved result = save(drwc, path);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(result.done) << name;
    EXPECT_EQ(result.reason, L"no space left on the device") << name;
    EXPECT_EQ(content(path), "old") << name;
  }
  EXPECT_EQ(names().size(), 2u);
  EXPECT_TRUE(save(drwc, folder_ / "a.png").done);
}

}  // namespace
}  // namespace zu::test
