#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/pgrid_source.h"
#include "tests/unit/platform/taken_text.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"
#include "zu/platform/zuk_file_tos4.h"

using namespace test_grids;
using namespace zu;
using tests::text_of;

namespace {

/// Writes a source into a grid file beside it.
bool convert(const source& from, const std::string& path, Tzu_pgrid_options options = {}) {
  return zu_datasource_write_pgrid_w(from.get(), wide(path).c_str(), &options, nullptr, nullptr);
}

std::string converted(const folder& f, const std::string& from, Tzu_pgrid_options options = {}) {
  source s(from);
  EXPECT_TRUE(convert(s, f.at("made.pgrid"), options));
  return f.at("made.pgrid");
}

double hills(int x, int y, int band) { return std::round(100 * std::sin(x * .1) + y + band); }

std::vector<double> numbers(const source& s, std::int64_t field, std::array<std::int64_t, 3> origin,
                            std::array<std::uint64_t, 3> size,
                            std::array<std::uint64_t, 3> sample) {
  block b(s.band(field));
  std::vector<double> out(sample[0] * sample[1] * sample[2], 77);
  EXPECT_EQ(call<&grid_block_impl::read_window_3d>(b.get(), origin.data(), size.data(), out.data(),
                                                   sample.data(), element_float64, nullptr),
            1);
  return out;
}

// --- What a conversion keeps

TEST(pgrid_source, has_the_cells_of_what_it_was_made_of) {
  const GDALDataType types[] = {GDT_Byte,  GDT_Int16,  GDT_UInt16,  GDT_Int32,  GDT_UInt32,
                                GDT_Int64, GDT_UInt64, GDT_Float32, GDT_Float64};
  for (GDALDataType type : types) {
    folder f;
    std::string path = make(f.at("a.tif"), {.nx = 300, .ny = 270, .bands = 2, .type = type}, hills);
    source before(path), after(converted(f, path));
    ASSERT_TRUE(after);
    for (std::int64_t field : {0, 1}) {
      EXPECT_EQ(call<&grid_source_impl::sample_type>(after.grid(), field),
                call<&grid_source_impl::sample_type>(before.grid(), field));
      block one(before.band(field)), two(after.band(field));
      EXPECT_EQ(one.doubles({0, 0}, {300, 270}, {300, 270}),
                two.doubles({0, 0}, {300, 270}, {300, 270}));
    }
  }
}

TEST(pgrid_source, lies_where_what_it_was_made_of_lies) {
  const std::array<double, 6> places[] = {{100, 10, 0, 1000, 0, -10},
                                          {100, 10, 0, 1000, 0, 7},
                                          {5, 3, 4, 7, 4, -3},    // turned
                                          {5, 0, 2, 7, 2, 0},     // a quarter turned
                                          {5, -3, 0, 7, 0, -3}};  // columns run west
  for (const auto& place : places) {
    folder f;
    std::string path = make(f.at("a.tif"), {.geotransform = place}, hills);
    source before(path), after(converted(f, path));
    double one[9] = {}, two[9] = {}, box_one[4] = {}, box_two[4] = {};
    ASSERT_TRUE(call<&grid_source_impl::matrix3x3>(before.grid(), one));
    ASSERT_TRUE(call<&grid_source_impl::matrix3x3>(after.grid(), two));
    for (int i = 0; i < 9; ++i) EXPECT_NEAR(one[i], two[i], 1e-12) << i;
    ASSERT_TRUE(call<&data_source_impl::extent>(before.get(), box_one, true));
    ASSERT_TRUE(call<&data_source_impl::extent>(after.get(), box_two, true));
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(box_one[i], box_two[i], 1e-9) << i;
    EXPECT_EQ(call<&grid_source_impl::grid_type>(after.grid()), 3);
    EXPECT_EQ(call<&grid_source_impl::azimuth>(after.grid()),
              call<&grid_source_impl::azimuth>(before.grid()));
  }
}

TEST(pgrid_source, keeps_names_nodata_roles_palette_and_projection) {
  folder f;
  std::string path =
      make(f.at("a.tif"), {.bands = 2, .type = GDT_Byte}, hills, [](GDALDataset& set) {
        OGRSpatialReference system;
        system.importFromEPSG(32637);
        set.SetSpatialRef(&system);
        set.GetRasterBand(1)->SetDescription("first");
        set.GetRasterBand(1)->SetNoDataValue(3);
        GDALColorTable colors;
        GDALColorEntry entry{10, 20, 30, 255};
        colors.SetColorEntry(1, &entry);
        set.GetRasterBand(1)->SetColorInterpretation(GCI_PaletteIndex);
        set.GetRasterBand(1)->SetColorTable(&colors);
      });
  source before(path), after(converted(f, path));
  Tzu_field_info info{};
  ASSERT_TRUE(zu_datasource_get_field_info(after.get(), 0, &info));
  EXPECT_TRUE(info.has_nodata && info.nodata == 3);
  std::int64_t index = -1;
  EXPECT_TRUE(call<&data_source_impl::find_field>(after.get(), L"first", &index));
  EXPECT_EQ(index, 0);
  EXPECT_TRUE(call<&data_source_impl::find_field>(after.get(), L"Band 2", &index));
  EXPECT_EQ(index, 1);
  EXPECT_EQ(call<&grid_source_impl::color_role>(after.grid(), 0),
            call<&grid_source_impl::color_role>(before.grid(), 0));
  text_taker one, two;
  call<&data_source_impl::get_projection>(before.get(), handle_of<string_visitor_impl>(one));
  call<&data_source_impl::get_projection>(after.get(), handle_of<string_visitor_impl>(two));
  EXPECT_EQ(one.texts, two.texts);
  EXPECT_EQ(two.texts.size(), 1u);
  palette_taker taker;
  ASSERT_TRUE(call<&grid_source_impl::palette>(after.grid(), 0,
                                               handle_of<grid_palette_visitor_impl>(taker)));
  std::uint8_t four[4] = {};
  EXPECT_TRUE(call<&grid_palette_impl::color>(taker.palette, 1, four));
  EXPECT_EQ((std::vector<int>{four[0], four[1], four[2], four[3]}),
            (std::vector<int>{10, 20, 30, 0}));
  EXPECT_FALSE(call<&grid_palette_impl::color>(taker.palette, 256, four));
  call<&grid_palette_impl::release>(taker.palette);
}

TEST(pgrid_source, knows_exact_statistics_without_reading) {
  folder f;
  std::string path = make(
      f.at("a.tif"), {.nx = 3, .ny = 1}, [](int x, int, int) { return x == 1 ? -1 : x + 1; },
      [](GDALDataset& set) { set.GetRasterBand(1)->SetNoDataValue(-1); });
  source s(converted(f, path));
  double minimum = 0, maximum = 0, mean = 0, stddev = 0;
  EXPECT_TRUE(call<&stat_source_impl::minimum>(s.stat(), 0, &minimum));
  EXPECT_TRUE(call<&stat_source_impl::maximum>(s.stat(), 0, &maximum));
  EXPECT_TRUE(call<&stat_source_impl::mean>(s.stat(), 0, &mean));
  EXPECT_TRUE(call<&stat_source_impl::stddev>(s.stat(), 0, &stddev));
  EXPECT_EQ(minimum, 1);
  EXPECT_EQ(maximum, 3);
  EXPECT_EQ(mean, 2);
  EXPECT_DOUBLE_EQ(stddev, std::sqrt(2.0));
  EXPECT_FALSE(call<&stat_source_impl::minimum>(s.stat(), 1, &minimum));
  Tzu_field_stat stat{};
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
  EXPECT_EQ(stat.count, 2u);
  EXPECT_EQ(stat.mean, 2);
  EXPECT_FALSE(stat.estimate);
}

TEST(pgrid_source, statistics_of_empty_tiles_are_those_of_their_cells) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 600, .ny = 10, .type = GDT_Int16},
                          [](int x, int, int) { return x < 512 ? 0 : 6; });
  source s(converted(f, path));
  Tzu_field_stat stat{};
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
  EXPECT_EQ(stat.count, 6000u);
  EXPECT_EQ(stat.minimum, 0);
  EXPECT_DOUBLE_EQ(stat.mean, 0.88);
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 1000, nullptr, nullptr, &stat));
  EXPECT_TRUE(stat.estimate);
  EXPECT_LE(stat.count, 6000u / 4);
  std::int64_t counts[2];
  EXPECT_TRUE(zu_datasource_compute_histogram(s.get(), 0, 2, 0, 6, nullptr, nullptr, counts));
  EXPECT_EQ(counts[0], 5120) << "the empty tiles too";
  EXPECT_EQ(counts[1], 880);
}

TEST(pgrid_source, statistics_of_a_grid_that_is_almost_empty_come_at_once) {
  folder f;
  platform::grid_property p;
  p.name = "p", p.type = element_int32;
  platform::grid_head head;
  head.type = zu_tos4_plane, head.size = {100000000, 100000000, 1};
  const std::int32_t value = -5;
  {
    platform::pgrid_file file(f.at("a.pgrid"), head);
    file.add_property(p);
    file.write(0, {7, 7, 1, 1, 0}, reinterpret_cast<const std::byte*>(&value));
    file.commit();
  }
  source s(f.at("a.pgrid"));
  Tzu_field_stat stat{};
  EXPECT_TRUE(zu_datasource_compute_stat(s.get(), 0, 0, nullptr, nullptr, &stat));
  EXPECT_EQ(stat.count, 10000000000000000u);
  EXPECT_EQ(stat.minimum, -5);
  EXPECT_EQ(stat.maximum, 0);
}

// --- Volumes, profiles, fields

TEST(pgrid_source, bands_become_slices) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 4, .ny = 3, .bands = 5},
                          [](int x, int y, int band) { return 100 * band + 10 * y + x; });
  source s(converted(f, path, {nullptr, 0, true, L"v", false}));
  std::int32_t sizes[3] = {};
  ASSERT_TRUE(call<&grid_source_impl::sizes>(s.grid(), sizes));
  EXPECT_EQ(sizes[2], 5);
  EXPECT_EQ(call<&grid_source_impl::grid_type>(s.grid()), 5);
  EXPECT_EQ(call<&data_source_impl::field_count>(s.get()), 1);
  // The lowest row of slice 3, then every second slice of one node.
  EXPECT_EQ(numbers(s, 0, {0, 0, 3}, {4, 1, 1}, {4, 1, 1}),
            (std::vector<double>{320, 321, 322, 323}));
  EXPECT_EQ(numbers(s, 0, {1, 2, 0}, {1, 1, 4}, {1, 1, 2}), (std::vector<double>{101, 301}));
  block b(s.band(0));
  double run[3] = {};
  EXPECT_EQ(call<&grid_block_impl::read_linear>(b.get(), 11, 3, run, element_float64), 1);
  EXPECT_EQ(run[0], 3);  // the last node of slice 0, then the first two of slice 1
  EXPECT_EQ(run[1], 120);
  EXPECT_EQ(run[2], 121);
  const std::int64_t beyond[] = {0, 0, 5};
  const std::uint64_t one[] = {1, 1, 1};
  EXPECT_EQ(call<&grid_block_impl::read_window_3d>(b.get(), beyond, one, run, one, element_float64,
                                                   nullptr),
            2);
  double minimum = 0, maximum = 0;
  EXPECT_TRUE(call<&stat_source_impl::minimum>(s.stat(), 0, &minimum));
  EXPECT_TRUE(call<&stat_source_impl::maximum>(s.stat(), 0, &maximum));
  EXPECT_EQ(minimum, 0);
  EXPECT_EQ(maximum, 423);
}

TEST(pgrid_source, a_volume_is_converted_again_with_its_slices) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 4, .ny = 3, .bands = 5}, hills);
  source volume(converted(f, path, {nullptr, 0, true, L"v", false}));
  ASSERT_TRUE(convert(volume, f.at("again.pgrid")));
  source again(f.at("again.pgrid"));
  EXPECT_EQ(numbers(volume, 0, {0, 0, 0}, {4, 3, 5}, {4, 3, 5}),
            numbers(again, 0, {0, 0, 0}, {4, 3, 5}, {4, 3, 5}));
}

TEST(pgrid_source, one_row_becomes_a_profile) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 9, .ny = 1}, hills);
  source s(converted(f, path, {nullptr, 0, false, nullptr, true}));
  EXPECT_EQ(call<&grid_source_impl::grid_type>(s.grid()), 1);
  block b(s.band(0));
  double run[9] = {};
  EXPECT_EQ(call<&grid_block_impl::read_linear>(b.get(), 0, 9, run, element_float64), 1);
  EXPECT_EQ(run[8], hills(8, 0, 0));
  EXPECT_EQ(call<&grid_block_impl::read_linear>(b.get(), 1, 9, run, element_float64), 2);
}

TEST(pgrid_source, chosen_fields_stand_in_the_order_given) {
  folder f;
  std::string path =
      make(f.at("a.tif"), {.nx = 2, .ny = 1, .bands = 3}, [](int, int, int band) { return band; });
  const std::int64_t fields[] = {2, 0};
  source s(converted(f, path, {fields, 2, false, nullptr, false}));
  EXPECT_EQ(call<&data_source_impl::field_count>(s.get()), 2);
  EXPECT_EQ(numbers(s, 0, {0, 0, 0}, {1, 1, 1}, {1, 1, 1})[0], 2);
  EXPECT_EQ(numbers(s, 1, {0, 0, 0}, {1, 1, 1}, {1, 1, 1})[0], 0);
}

struct impossible {
  shape what;
  Tzu_pgrid_options options;
  const wchar_t* reason;
};

TEST(pgrid_source, what_does_not_fit_is_refused_and_leaves_nothing) {
  const std::int64_t wrong[] = {7};
  const impossible cases[] = {
      {{.geotransform = {5, 3, 1, 7, 0, -3}}, {}, L"its axes are not at right angles"},
      {{}, {nullptr, 0, false, nullptr, true}, L"a profile has one row of nodes"},
      {{}, {wrong, 1, false, nullptr, false}, L"there is no such field"},
      {{}, {wrong, 0, false, nullptr, false}, L"there is no field to write"},
  };
  for (const impossible& each : cases) {
    folder f;
    source s(make(f.at("a.tif"), each.what, hills));
    EXPECT_FALSE(convert(s, f.at("b.pgrid"), each.options));
    EXPECT_EQ(reasons(f.at("b.pgrid")), std::vector<std::wstring>{each.reason});
    EXPECT_EQ(f.names(), std::vector<std::string>{"a.tif"});
  }
}

TEST(pgrid_source, slices_of_different_types_or_nodata_make_no_volume) {
  folder f;
  platform::grid_property p, q;
  p.name = "p", q.name = "q", p.type = q.type = 9;
  for (int round = 0; round < 3; ++round) {
    platform::grid_head head;
    head.type = zu_tos4_plane, head.size = {4, 3, 1};
    if (round == 1) q.type = 10;
    if (round == 2) q.type = 9, q.has_nodata = true;
    {
      platform::pgrid_file file(f.at("a.pgrid"), head);
      file.add_property(p), file.add_property(q);
      file.commit();
    }
    source s(f.at("a.pgrid"));
    EXPECT_EQ(convert(s, f.at("b.pgrid"), {nullptr, 0, true, nullptr, false}), round == 0);
  }
  EXPECT_EQ(
      reasons(f.at("b.pgrid")),
      std::vector<std::wstring>{L"slices of different types or NoData cannot stand in one volume"});
}

TEST(pgrid_source, bands_of_one_name_are_told_apart) {
  folder f;
  std::string path = make(f.at("a.tif"), {.bands = 3}, hills, [](GDALDataset& set) {
    for (int i = 1; i <= 3; ++i) set.GetRasterBand(i)->SetDescription("same");
  });
  source s(converted(f, path));
  text_taker names;
  for (std::int64_t i = 0; i < 3; ++i)
    call<&data_source_impl::field_name>(s.get(), i, handle_of<string_visitor_impl>(names));
  EXPECT_EQ(names.texts, (std::vector<std::wstring>{L"same", L"same (2)", L"same (3)"}));
}

TEST(pgrid_source, a_conversion_that_is_stopped_leaves_nothing) {
  folder f;
  source s(make(f.at("a.tif"), {.nx = 50, .ny = 900}, hills));
  Tzu_pgrid_options options{};
  int calls = 0;
  auto stop = [](double share, void* user) {
    EXPECT_GT(share, 0);
    EXPECT_LE(share, 1);
    return ++*static_cast<int*>(user) < 3;
  };
  EXPECT_FALSE(
      zu_datasource_write_pgrid_w(s.get(), wide(f.at("b.pgrid")).c_str(), &options, stop, &calls));
  EXPECT_EQ(calls, 3);
  EXPECT_EQ(f.names(), std::vector<std::string>{"a.tif"});
}

// --- Windows

TEST(pgrid_source, a_window_that_is_not_thinned_out_has_the_cells_of_the_file) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 700, .ny = 600}, hills);
  source before(path), after(converted(f, path));
  block one(before.band(0)), two(after.band(0));
  std::mt19937 random(5);
  for (int i = 0; i < 200; ++i) {
    const std::uint64_t x = random() % 700, y = random() % 600;
    std::array<std::int64_t, 2> origin{static_cast<std::int64_t>(x), static_cast<std::int64_t>(y)};
    std::array<std::uint64_t, 2> size{random() % (700 - x) + 1, random() % (600 - y) + 1};
    // From somewhat fewer samples than cells to several for each.
    std::array<std::uint64_t, 2> sample{size[0] - size[0] / 3, size[1] * (random() % 3 + 1)};
    ASSERT_EQ(one.doubles(origin, size, sample), two.doubles(origin, size, sample)) << i;
  }
}

TEST(pgrid_source, a_thinned_window_stays_within_half_a_sample_of_its_cells) {
  folder f;
  std::string path =
      make(f.at("a.tif"), {.nx = 2000, .ny = 900}, [](int x, int, int) { return x; });
  source s(converted(f, path));
  block b(s.band(0));
  for (std::uint64_t samples : {500, 333, 125, 100, 7, 1}) {
    std::vector<double> got = b.doubles({40, 100}, {1900, 700}, {samples, 3});
    double step = 1900.0 / static_cast<double>(samples);
    for (std::uint64_t i = 0; i < samples; ++i)
      EXPECT_NEAR(got[i] + 0.5, 40 + (static_cast<double>(i) + 0.5) * step, step / 2 + 0.5)
          << samples << ", " << i;
  }
}

TEST(pgrid_source, converts_as_plain_casts_and_honours_strides) {
  folder f;
  source s(converted(f, make(f.at("a.tif"), {.nx = 3, .ny = 2},
                             [](int x, int y, int) { return x + 10 * y + 0.75; })));
  block b(s.band(0));
  std::vector<std::int16_t> out(16, -7);
  const std::int64_t origin[] = {0, 0};
  const std::uint64_t size[] = {3, 2}, strides[] = {2, 8};
  EXPECT_EQ(call<&grid_block_impl::read_window>(b.get(), origin, size, out.data(), size,
                                                element_int16, strides),
            1);
  EXPECT_EQ(out, (std::vector<std::int16_t>{10, -7, 11, -7, 12, -7, -7, -7, 0, -7, 1, -7, 2, -7, -7,
                                            -7}));
}

TEST(pgrid_source, windows_and_tiles_outside_are_refused) {
  folder f;
  source s(converted(f, make(f.at("a.tif"), {.nx = 3, .ny = 2}, hills)));
  block b(s.band(0));
  std::vector<double> out;
  EXPECT_EQ(b.window(element_float64, {-1, 0}, {2, 2}, {2, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {2, 0}, {2, 2}, {2, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {0, 0}, {3, 3}, {2, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {0, 0}, {0, 1}, {1, 1}, out), 2);
  EXPECT_EQ(b.window(0, {0, 0}, {1, 1}, {1, 1}, out), 2);
  double tile[6];
  EXPECT_EQ(call<&grid_block_impl::read_tile>(b.get(), 1, 0, tile), 2);
  EXPECT_EQ(call<&grid_block_impl::read_tile>(b.get(), ~std::uint64_t(0), 0, tile), 2);
}

TEST(pgrid_source, tiles_hold_the_cells_in_the_own_type) {
  folder f;
  source s(converted(f, make(f.at("a.tif"), {.nx = 258, .ny = 2},
                             [](int x, int y, int) { return x + 1000 * (1 - y); })));
  block b(s.band(0));
  std::uint64_t size[3] = {};
  ASSERT_TRUE(call<&grid_block_impl::tile_size>(b.get(), size));
  EXPECT_EQ((std::vector<std::uint64_t>{size[0], size[1], size[2]}),
            (std::vector<std::uint64_t>{256, 2, 1}));
  EXPECT_EQ(call<&grid_block_impl::type>(b.get()), element_float32);
  std::vector<float> tile(512);
  EXPECT_EQ(call<&grid_block_impl::read_tile>(b.get(), 1, 0, tile.data()), 1);
  EXPECT_EQ(tile[0], 256);
  EXPECT_EQ(tile[1], 257);
  EXPECT_EQ(tile[257], 1257);
}

// --- Edits

TEST(pgrid_source, is_edited_in_place_from_any_type) {
  folder f;
  std::string path = converted(f, make(f.at("a.tif"), {.nx = 5, .ny = 4, .type = GDT_Int16},
                                       [](int, int, int) { return 1; }));
  source s(path, 0);
  block b(s.band(0));
  const double values[] = {7.9, -8, 9};
  EXPECT_EQ(call<&grid_block_impl::write_linear>(b.get(), 4, 3, values, 3, element_float64, 0), 1);
  EXPECT_EQ(call<&grid_block_impl::write_linear>(b.get(), 18, 3, values, 3, element_float64, 0), 2);
  EXPECT_EQ(call<&grid_block_impl::write_linear>(b.get(), 0, 3, values, 2, element_float64, 0), 2);
  source again(path);
  block read(again.band(0));
  EXPECT_EQ(read.doubles({0, 0}, {5, 2}, {5, 2}),
            (std::vector<double>{1, 1, 1, 1, 7, -8, 9, 1, 1, 1}));
  Tzu_field_info info{};
  EXPECT_TRUE(zu_datasource_get_field_info(again.get(), 0, &info));
  EXPECT_FALSE(info.has_stat);
}

TEST(pgrid_source, opened_for_reading_refuses_edits_with_a_reason) {
  folder f;
  std::string path = converted(f, make(f.at("a.tif"), {}, hills));
  source s(path);
  block b(s.band(0));
  const float value = 1;
  const double three[] = {1, 2, 3};
  EXPECT_EQ(call<&grid_block_impl::write_linear>(b.get(), 0, 1, &value, 1, element_float32, 0), 3);
  EXPECT_FALSE(call<&grid_source_impl::set_origin>(s.grid(), three));
  EXPECT_EQ(reasons(path), std::vector<std::wstring>{L"is open for reading alone"});
  zu_problems_clear(nullptr);
}

TEST(pgrid_source, place_and_projection_are_stored) {
  folder f;
  std::string path = converted(f, make(f.at("a.tif"), {}, hills));
  const double origin[] = {1, 2, 3}, spacing[] = {4, -5, 6}, bad[] = {0, 1, 1};
  {
    source s(path, 0);
    EXPECT_TRUE(call<&grid_source_impl::set_origin>(s.grid(), origin));
    EXPECT_TRUE(call<&grid_source_impl::set_spacing>(s.grid(), spacing));
    EXPECT_FALSE(call<&grid_source_impl::set_spacing>(s.grid(), bad));
    EXPECT_TRUE(call<&data_source_impl::set_projection>(s.get(), L"EPSG:3857"));
  }
  source s(path);
  double got[3] = {};
  EXPECT_TRUE(call<&grid_source_impl::get_origin>(s.grid(), got));
  EXPECT_EQ(std::vector<double>(got, got + 3), std::vector<double>(origin, origin + 3));
  EXPECT_TRUE(call<&grid_source_impl::get_spacing>(s.grid(), got));
  EXPECT_EQ(std::vector<double>(got, got + 3), std::vector<double>(spacing, spacing + 3));
  text_taker taker;
  call<&data_source_impl::get_projection>(s.get(), handle_of<string_visitor_impl>(taker));
  EXPECT_EQ(taker.texts, std::vector<std::wstring>{L"EPSG:3857"});
  zu_problems_clear(nullptr);
}

// --- Opening

TEST(pgrid_source, is_known_by_its_content_or_its_ending) {
  folder f;
  std::string path = converted(f, make(f.at("a.tif"), {}, hills));
  std::filesystem::copy_file(path, f.at("b.bin"));
  std::filesystem::copy_file(f.at("a.tif"), f.at("c.PGRID"));
  source by_content(f.at("b.bin")), wrong(f.at("c.PGRID"));
  ASSERT_TRUE(by_content);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_datasource_get_driver_w(by_content.get(), a); }),
            L"pgrid");
  EXPECT_EQ(
      text_of([&](Tzu_string_adp* a) { zu_datasource_get_georeference_w(by_content.get(), a); }),
      L"geotransform");
  EXPECT_FALSE(zu_datasource_rows_run_south(by_content.get()));
  EXPECT_FALSE(wrong);
  EXPECT_EQ(reasons(f.at("c.PGRID")), std::vector<std::wstring>{L"is no grid file"});
}

TEST(pgrid_source, row_ids_count_along_the_rows) {
  folder f;
  source s(converted(f, make(f.at("a.tif"), {.nx = 4, .ny = 3}, hills)));
  block ids(s.ids());
  std::vector<std::int64_t> out;
  EXPECT_EQ(ids.window(element_int64, {1, 1}, {2, 2}, {2, 2}, out), 1);
  EXPECT_EQ(out, (std::vector<std::int64_t>{5, 6, 9, 10}));
}

TEST(pgrid_source, a_broken_tile_fails_the_read_with_a_reason) {
  folder f;
  std::string path = converted(f, make(f.at("a.tif"), {}, hills));
  {
    platform::database base(path, platform::access::edit);
    base.run("UPDATE tile SET samples = x'00'");
  }
  source s(path);
  ASSERT_TRUE(s);
  block b(s.band(0));
  std::vector<double> out;
  EXPECT_EQ(b.window(element_float64, {0, 0}, {1, 1}, {1, 1}, out), 3);
  EXPECT_EQ(reasons(path), std::vector<std::wstring>{L"has a tile of a wrong size"});
}

}  // namespace
