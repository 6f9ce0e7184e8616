#include "platform/zuk_datasource/segy_source.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_file_segy/side_file.h"
#include "tests/unit/platform/taken_text.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/platform/zuk_file_segy.h"

namespace {

using namespace zu;
using namespace zu::platform;
using tests::section_folder;

struct taken_block : grid_block_visitor_impl {
  void visit(grid_block block) override { taken = block; }
  ~taken_block() { call<&grid_block_impl::release>(taken); }
  grid_block taken;
};

class segy_source_test : public testing::Test {
 protected:
  ~segy_source_test() override { call<&data_source_impl::release>(source_); }

  void open(const std::string& name = "a.sgy") {
    call<&data_source_impl::release>(source_);
    source_ = {};
    path_ = from_utf8(folder_ / name);
    zu_datasource_open(path_.c_str(), 1, nullptr, &source_);
  }
  /// The window's samples as 16-bit numbers.
  std::vector<std::int16_t> read(std::int64_t x, std::int64_t y, std::uint64_t nx, std::uint64_t ny,
                                 std::uint64_t sx, std::uint64_t sy) {
    taken_block visitor;
    EXPECT_TRUE(call<&grid_source_impl::block>(cast<grid_source_impl>(source_), 0,
                                               handle_of<grid_block_visitor_impl>(visitor)));
    std::int64_t origin[] = {x, y};
    std::uint64_t size[] = {nx, ny}, sample[] = {sx, sy};
    std::vector<std::int16_t> out(sx * sy);
    last_ = call<&grid_block_impl::read_window>(visitor.taken, origin, size, out.data(), sample,
                                                std::int32_t(element_int16), nullptr);
    return out;
  }

  section_folder folder_;
  std::wstring path_;
  Tzu_handle source_{};
  std::int32_t last_ = 0;
};

TEST_F(segy_source_test, traces_run_along_x_and_time_runs_down) {
  tests::numbered_section(3, 4).field(109, 2, 0).save(folder_ / "a.sgy");
  open();
  std::int32_t sizes[3];
  ASSERT_TRUE(call<&grid_source_impl::sizes>(cast<grid_source_impl>(source_), sizes));
  EXPECT_EQ(sizes[0], 3);
  EXPECT_EQ(sizes[1], 4);
  double m[9], box[4];
  ASSERT_TRUE(call<&grid_source_impl::matrix3x3>(cast<grid_source_impl>(source_), m));
  EXPECT_EQ(m[2], 1) << "the first trace";
  EXPECT_EQ(m[5], -12) << "the last of four samples of 4 ms";
  EXPECT_EQ(m[4], 4);
  ASSERT_TRUE(call<&data_source_impl::extent>(cast<data_source_impl>(source_), box, true));
  EXPECT_EQ(box[0], 0.5);
  EXPECT_EQ(box[1], -14);
  EXPECT_EQ(box[2], 3.5);
  EXPECT_EQ(box[3], 2);
  EXPECT_EQ(read(0, 0, 3, 4, 3, 4),
            (std::vector<std::int16_t>{3, 103, 203, 2, 102, 202, 1, 101, 201, 0, 100, 200}));
}

TEST_F(segy_source_test, has_one_field_of_that_name) {
  tests::numbered_section(1, 1).save(folder_ / "a.sgy");
  open();
  auto source = cast<data_source_impl>(source_);
  EXPECT_EQ(call<&data_source_impl::field_count>(source), 1);
  std::int64_t index = -1;
  EXPECT_TRUE(call<&data_source_impl::find_field>(source, L"Values", &index));
  EXPECT_EQ(index, 0);
  EXPECT_FALSE(call<&data_source_impl::find_field>(source, L"values", &index));
  EXPECT_EQ(tests::text_of([&](Tzu_string_adp* a) { zu_datasource_get_driver_w(source_, a); }),
            L"SEG-Y");
}

TEST_F(segy_source_test, reads_windows_lines_and_tiles_alike) {
  tests::numbered_section(40, 7).save(folder_ / "a.sgy");
  open();
  taken_block visitor;
  call<&grid_source_impl::block>(cast<grid_source_impl>(source_), 0,
                                 handle_of<grid_block_visitor_impl>(visitor));
  std::vector<std::int16_t> whole = read(0, 0, 40, 7, 40, 7);
  std::vector<std::int16_t> line(100);
  EXPECT_EQ(call<&grid_block_impl::read_linear>(visitor.taken, 30, 100, line.data(),
                                                std::int32_t(element_int16)),
            1);
  EXPECT_TRUE(std::equal(line.begin(), line.end(), whole.begin() + 30));
  std::uint64_t tile[3];
  ASSERT_TRUE(call<&grid_block_impl::tile_size>(visitor.taken, tile));
  ASSERT_EQ(tile[0], 40U);
  ASSERT_EQ(tile[1], 7U);
  std::vector<std::int16_t> cells(tile[0] * tile[1], -1);
  EXPECT_EQ(call<&grid_block_impl::read_tile>(visitor.taken, 0, 0, cells.data()), 1);
  EXPECT_EQ(cells, whole);
  EXPECT_NE(call<&grid_block_impl::read_tile>(visitor.taken, 1, 0, cells.data()), 1);
  EXPECT_NE(call<&grid_block_impl::read_tile>(visitor.taken, 0, 1, cells.data()), 1);
}

TEST_F(segy_source_test, a_tile_over_the_last_row_is_filled_up) {
  tests::numbered_section(1000, 5000).save(folder_ / "a.sgy");
  open();
  taken_block visitor;
  call<&grid_source_impl::block>(cast<grid_source_impl>(source_), 0,
                                 handle_of<grid_block_visitor_impl>(visitor));
  std::uint64_t tile[3];
  ASSERT_TRUE(call<&grid_block_impl::tile_size>(visitor.taken, tile));
  ASSERT_EQ(tile[0], 1000U);
  ASSERT_EQ(tile[1], 4194U) << "as many rows as make four million samples";
  std::vector<std::int16_t> cells(tile[0] * tile[1], -1);
  ASSERT_EQ(call<&grid_block_impl::read_tile>(visitor.taken, 0, 1, cells.data()), 1);
  EXPECT_EQ(cells[3], 300 + 5000 - 1 - 4194) << "row 4194 from below";
  EXPECT_EQ(cells[806 * 1000 + 3], 0) << "beyond row 4999";
}

TEST_F(segy_source_test, a_decimated_read_takes_the_middle_samples) {
  tests::numbered_section(4, 6).save(folder_ / "a.sgy");
  open();
  // Columns 1 and 3; rows 1 and 4 from below are samples 4 and 1.
  EXPECT_EQ(read(0, 0, 4, 6, 2, 2), (std::vector<std::int16_t>{104, 304, 101, 301}));
  EXPECT_EQ(read(1, 0, 1, 1, 2, 2), (std::vector<std::int16_t>{105, 105, 105, 105}));
}

TEST_F(segy_source_test, refuses_windows_outside_and_keeps_reasons) {
  tests::numbered_section(4, 6).save(folder_ / "a.sgy");
  open();
  read(-1, 0, 2, 2, 2, 2);
  EXPECT_EQ(last_, read_impossible);
  read(3, 0, 2, 2, 2, 2);
  EXPECT_EQ(last_, read_impossible);
  std::filesystem::resize_file(folder_ / "a.sgy", 3700);
  read(0, 0, 4, 6, 4, 6);
  EXPECT_EQ(last_, read_failed);
  EXPECT_GT(zu_problems_get_count(path_.c_str()), 0);
}

TEST_F(segy_source_test, a_broken_file_does_not_open_and_says_why) {
  std::ofstream(folder_ / "b.SGY") << "short";
  open("b.SGY");
  EXPECT_EQ(source_.instance, nullptr);
  EXPECT_NE(tests::text_of([&](Tzu_string_adp* a) {
              zu_problems_get(path_.c_str(), 0, a);
            }).find(L"too short"),
            std::wstring::npos);
}

TEST_F(segy_source_test, names_are_known_by_their_extension) {
  for (const wchar_t* name : {L"a.sgy", L"a.SEGY", L"/x.y/a.Seg"}) EXPECT_TRUE(is_segy_name(name));
  for (const wchar_t* name : {L"sgy", L"a.sgy.tif", L"a.sg", L""}) EXPECT_FALSE(is_segy_name(name));
}

TEST_F(segy_source_test, statistics_are_those_of_all_samples) {
  tests::numbered_section(3, 2).save(folder_ / "a.sgy");  // 0 1 100 101 200 201
  open();
  Tzu_field_stat stat;
  ASSERT_TRUE(zu_datasource_compute_stat(source_, 0, 0, nullptr, nullptr, &stat));
  EXPECT_EQ(stat.minimum, 0);
  EXPECT_EQ(stat.maximum, 201);
  EXPECT_EQ(stat.mean, 100.5);
  // Squares about the mean: 2 * (100.5^2 + 99.5^2 + 0.5^2) = 40001.5, over 5.
  EXPECT_NEAR(stat.stddev, std::sqrt(8000.3), 1e-9);
  EXPECT_EQ(stat.count, 6U);
  EXPECT_FALSE(stat.estimate);
  ASSERT_TRUE(zu_datasource_compute_stat(source_, 0, 3, nullptr, nullptr, &stat));
  EXPECT_LE(stat.count, 3U);
  EXPECT_TRUE(stat.estimate);
  std::int64_t counts[3];
  EXPECT_TRUE(zu_datasource_compute_histogram(source_, 0, 3, 0, 201, nullptr, nullptr, counts));
  EXPECT_EQ(counts[0], 2);
  EXPECT_EQ(counts[1], 2);
  EXPECT_EQ(counts[2], 2);
}

class segy_pyramid_test : public segy_source_test {
 protected:
  bool build(const std::vector<std::uint64_t>& levels) {
    return zu_segy_file_build_overviews(path_.c_str(), levels.data(), levels.size(), nullptr);
  }
  void make() {
    tests::numbered_section(64, 64).save(folder_ / "a.sgy");
    path_ = from_utf8(folder_ / "a.sgy");
    auto past = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(folder_ / "a.sgy", past);
  }
};

TEST_F(segy_pyramid_test, a_reduced_read_takes_the_samples_of_the_level) {
  make();
  ASSERT_TRUE(build({2, 4}));
  section_file file(folder_ / "a.sgy");
  auto pyramid = segy_pyramid::open(folder_ / "a.sgy", file);
  ASSERT_NE(pyramid, nullptr);
  EXPECT_EQ(pyramid->best(1.9), nullptr);
  EXPECT_EQ(pyramid->best(3)->factor, 2U);
  EXPECT_EQ(pyramid->best(100)->factor, 4U);
  open();
  // Level 4, element (i, j) is sample 4 j + 2 of trace 4 i + 2; rows from below.
  std::vector<std::int16_t> got = read(0, 0, 64, 64, 16, 16);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x)
      EXPECT_EQ(got[static_cast<std::size_t>(y * 16 + x)], 100 * (4 * x + 2) + 4 * (15 - y) + 2);
}

TEST_F(segy_pyramid_test, is_read_instead_of_the_section) {
  make();
  ASSERT_TRUE(build({4}));
  std::string bytes = tests::numbered_section(64, 64).bytes();
  std::fill(bytes.begin() + 3600, bytes.end(), '\0');
  std::ofstream(folder_ / "a.sgy", std::ios::binary) << bytes;
  auto past = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time(folder_ / "a.sgy", past);
  open();
  EXPECT_EQ(read(0, 0, 64, 64, 16, 16)[0], 100 * 2 + 62);
  EXPECT_EQ(read(0, 0, 64, 64, 64, 64)[0], 0) << "a full read takes the section";
}

TEST_F(segy_pyramid_test, that_is_older_or_of_another_section_is_not_used) {
  make();
  ASSERT_TRUE(build({4}));
  section_file file(folder_ / "a.sgy");
  ASSERT_NE(segy_pyramid::open(folder_ / "a.sgy", file), nullptr);
  auto future = std::filesystem::file_time_type::clock::now() + std::chrono::hours(1);
  std::filesystem::last_write_time(folder_ / "a.sgy", future);
  EXPECT_EQ(segy_pyramid::open(folder_ / "a.sgy", file), nullptr);

  make();
  tests::numbered_section(63, 64).save(folder_ / "b.sgy");
  section_file other(folder_ / "b.sgy");
  EXPECT_EQ(segy_pyramid::open(folder_ / "a.sgy", other), nullptr);
}

TEST_F(segy_pyramid_test, that_is_damaged_is_not_used) {
  make();
  ASSERT_TRUE(build({2, 4}));
  std::string path = folder_ / "a.sgy.ovr";
  std::string good;
  {
    std::ifstream in(path, std::ios::binary);
    good.assign(std::istreambuf_iterator<char>(in), {});
  }
  section_file file(folder_ / "a.sgy");
  for (std::size_t at :
       {std::size_t(0), std::size_t(8), std::size_t(16), std::size_t(24), std::size_t(32),
        std::size_t(40), std::size_t(48), std::size_t(56), std::size_t(64), std::size_t(72)}) {
    std::string bad = good;
    bad[at] = static_cast<char>(bad[at] + 1);
    std::ofstream(path, std::ios::binary) << bad;
    EXPECT_EQ(segy_pyramid::open(folder_ / "a.sgy", file), nullptr) << at;
  }
  std::ofstream(path, std::ios::binary) << good.substr(0, good.size() - 1);
  EXPECT_EQ(segy_pyramid::open(folder_ / "a.sgy", file), nullptr);
  std::ofstream(path, std::ios::binary) << good;
  EXPECT_NE(segy_pyramid::open(folder_ / "a.sgy", file), nullptr);
}

TEST_F(segy_pyramid_test, a_stopped_build_leaves_nothing) {
  make();
  int calls = 0;
  EXPECT_FALSE(build_segy_pyramid(folder_ / "a.sgy", {2}, [&](double) { return ++calls < 5; }));
  EXPECT_EQ(calls, 5);
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder_ / ""))
    files += entry.is_regular_file();
  EXPECT_EQ(files, 1U) << "the section alone";
}

TEST_F(segy_pyramid_test, factors_below_two_are_refused) {
  make();
  EXPECT_FALSE(build({1}));
  EXPECT_FALSE(build({2, 0}));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "a.sgy.ovr"));
}

}  // namespace
