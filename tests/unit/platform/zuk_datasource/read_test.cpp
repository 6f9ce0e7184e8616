#include <cmath>
#include <limits>

#include "platform/zuk_datasource/elements.h"
#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;

namespace {

double row_and_column(int x, int y, int) { return 100 * y + x; }

// Presented rows run from the south: presented row 0 is the file's last.
TEST(gdal_read, rows_are_presented_from_the_south) {
  folder f;
  source s(make(f.at("a.tif"), {}, row_and_column));
  block b(s.band(0));
  EXPECT_EQ(b.doubles({0, 0}, {3, 2}, {3, 2}), (std::vector<double>{400, 401, 402, 300, 301, 302}));
}

TEST(gdal_read, rows_that_run_north_in_the_file_stay_as_they_are) {
  folder f;
  source s(make(f.at("a.tif"), {.geotransform = {100, 10, 0, 1000, 0, 10}}, row_and_column));
  block b(s.band(0));
  EXPECT_FALSE(zu_datasource_rows_run_south(s.get()));
  EXPECT_EQ(b.doubles({1, 0}, {2, 2}, {2, 2}), (std::vector<double>{1, 2, 101, 102}));
}

// Every second cell of 8 x 8: sample i lies at (i + 0.5) * 2 = 2 i + 1, counted from the south.
TEST(gdal_read, a_sample_on_an_edge_takes_the_cell_above_and_ids_agree) {
  folder f;
  for (const char* layout : {"TILED=NO", "TILED=YES", "COMPRESS=DEFLATE"}) {
    source s(make(f.at("a.tif"), {.nx = 8, .ny = 8, .options = {layout}}, row_and_column));
    block b(s.band(0)), ids(s.ids());
    std::vector<double> values = b.doubles({0, 0}, {8, 8}, {4, 4});
    std::vector<std::uint64_t> id;
    ASSERT_EQ(ids.window(element_uint64, {0, 0}, {8, 8}, {4, 4}, id), 1);
    for (std::size_t i = 0; i < 16; ++i) {
      std::uint64_t x = 2 * (i % 4) + 1, y = 2 * (i / 4) + 1;
      EXPECT_EQ(id[i], y * 8 + x);
      EXPECT_EQ(values[i], static_cast<double>(100 * (7 - y) + x)) << layout;
    }
  }
}

// The shortcut into plain files and GDAL's own decoder must give the same cells.
TEST(gdal_read, a_plain_file_is_sampled_at_the_same_cells_as_a_compressed_one) {
  struct layout {
    std::vector<const char*> plain;
    GDALDataType type;
    int bands;
  };
  const layout layouts[] = {
      {{"TILED=YES", "BLOCKXSIZE=32", "BLOCKYSIZE=16"}, GDT_Float32, 1},
      {{"BLOCKYSIZE=3"}, GDT_Int16, 1},
      {{"TILED=YES", "BLOCKXSIZE=16", "BLOCKYSIZE=16", "INTERLEAVE=PIXEL"}, GDT_Byte, 3},
      {{"INTERLEAVE=BAND"}, GDT_Float64, 2},
      {{"ENDIANNESS=BIG"}, GDT_UInt16, 1},
      {{"NBITS=4"}, GDT_Byte, 1},
  };
  auto value = [](int x, int y, int band) { return (x * 7 + y * 3 + band * 5) % 13; };
  for (const layout& l : layouts) {
    folder f;
    shape s{.nx = 203, .ny = 151, .bands = l.bands, .type = l.type, .options = l.plain};
    source plain(make(f.at("plain.tif"), s, value));
    s.options = {"COMPRESS=DEFLATE"};
    source packed(make(f.at("packed.tif"), s, value));
    for (int band = 0; band < l.bands; ++band) {
      block a(plain.band(band)), b(packed.band(band));
      EXPECT_EQ(a.doubles({0, 0}, {203, 151}, {29, 31}), b.doubles({0, 0}, {203, 151}, {29, 31}));
      EXPECT_EQ(a.doubles({13, 7}, {150, 140}, {17, 9}), b.doubles({13, 7}, {150, 140}, {17, 9}));
    }
  }
}

TEST(gdal_read,
     overviews_of_a_plain_file_are_sampled_at_the_same_cells_as_those_of_a_compressed_one) {
  auto with_overviews = [](GDALDataset& made) {
    const int factors[] = {2, 4, 8};
    ASSERT_EQ(made.BuildOverviews("NEAREST", 3, factors, 0, nullptr, nullptr, nullptr), CE_None);
  };
  auto value = [](int x, int y, int band) { return (x * 31 + y * 17 + band * 5) % 251; };
  for (int bands : {1, 3})
    for (double dy : {-10.0, 10.0}) {
      folder f;
      shape s{.nx = 403, .ny = 297, .bands = bands, .type = GDT_Byte};
      s.geotransform = {100, 10, 0, 1000, 0, dy};
      s.options = {"TILED=YES", "BLOCKXSIZE=32", "BLOCKYSIZE=16", "INTERLEAVE=PIXEL"};
      source plain(make(f.at("plain.tif"), s, value, with_overviews));
      s.options = {"COMPRESS=DEFLATE"};
      source packed(make(f.at("packed.tif"), s, value, with_overviews));
      block a(plain.band(bands - 1)), b(packed.band(bands - 1));
      for (std::uint64_t samples : {13u, 40u, 67u, 100u, 101u, 150u})
        for (std::int64_t origin : {0, 1, 7, 50}) {
          std::array<std::uint64_t, 2> size{403 - static_cast<std::uint64_t>(2 * origin),
                                            297 - static_cast<std::uint64_t>(origin)};
          EXPECT_EQ(a.doubles({origin, origin}, size, {samples, samples * 3 / 4}),
                    b.doubles({origin, origin}, size, {samples, samples * 3 / 4}))
              << samples << " from " << origin;
        }
    }
}

TEST(gdal_read, overviews_answer_a_decimated_read) {
  folder f;
  std::string path = make(f.at("a.tif"), {.nx = 64, .ny = 64}, [](int, int, int) { return 1.0; });
  GDALDataset* made = GDALDataset::FromHandle(GDALOpen(path.c_str(), GA_Update));
  int factor = 4;
  ASSERT_EQ(made->BuildOverviews("NEAREST", 1, &factor, 0, nullptr, nullptr, nullptr), CE_None);
  ASSERT_EQ(made->GetRasterBand(1)->GetOverview(0)->Fill(5), CE_None);
  GDALClose(made);
  source s(path);
  block b(s.band(0));
  EXPECT_EQ(b.doubles({0, 0}, {64, 64}, {1, 1})[0], 5);
  EXPECT_EQ(b.doubles({0, 0}, {2, 2}, {2, 2})[0], 1);
}

TEST(gdal_read, strides_place_samples_and_leave_the_rest_alone) {
  folder f;
  source s(make(f.at("a.tif"), {}, row_and_column));
  block b(s.band(0));
  for (int type : {static_cast<int>(element_float32), static_cast<int>(element_float64)}) {
    std::vector<double> out(12, -1);
    std::vector<float> floats(12, -1);
    void* buffer = type == element_float64 ? static_cast<void*>(out.data()) : floats.data();
    const std::int64_t origin[] = {0, 0};
    const std::uint64_t size[] = {2, 2}, strides[] = {2, 6};
    ASSERT_EQ(
        call<&grid_block_impl::read_window>(b.get(), origin, size, buffer, size, type, strides), 1);
    if (type == element_float32) std::copy(floats.begin(), floats.end(), out.begin());
    EXPECT_EQ(out, (std::vector<double>{400, -1, 401, -1, -1, -1, 300, -1, 301, -1, -1, -1}));
  }
}

TEST(gdal_read, a_window_outside_the_grid_is_impossible) {
  folder f;
  source s(make(f.at("a.tif"), {}, row_and_column));
  block b(s.band(0));
  std::vector<double> out;
  EXPECT_EQ(b.window(element_float64, {-1, 0}, {2, 2}, {2, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {6, 0}, {2, 2}, {2, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {0, 4}, {1, 2}, {1, 2}, out), 2);
  EXPECT_EQ(b.window(element_float64, {0, 0}, {0, 1}, {1, 1}, out), 2);
  EXPECT_EQ(b.window(0, {0, 0}, {1, 1}, {1, 1}, out), 2);
  EXPECT_EQ(b.window(11, {0, 0}, {1, 1}, {1, 1}, out), 2);
}

TEST(gdal_read, only_the_first_slice_exists) {
  folder f;
  source s(make(f.at("a.tif"), {}, row_and_column));
  block b(s.band(0));
  double out = 0;
  const std::int64_t first[] = {0, 0, 0}, second[] = {0, 0, 1};
  const std::uint64_t one[] = {1, 1, 1};
  EXPECT_EQ(call<&grid_block_impl::read_window_3d>(b.get(), first, one, &out, one, 10, nullptr), 1);
  EXPECT_EQ(out, 400);
  EXPECT_EQ(call<&grid_block_impl::read_window_3d>(b.get(), second, one, &out, one, 10, nullptr),
            0);
}

TEST(gdal_read, a_run_crosses_rows_in_the_presented_order) {
  folder f;
  for (const char* layout : {"TILED=NO", "TILED=YES"}) {
    source s(make(f.at("a.tif"), {.options = {layout}}, row_and_column));
    block b(s.band(0)), ids(s.ids());
    std::vector<double> out(18);
    ASSERT_EQ(call<&grid_block_impl::read_linear>(b.get(), 5ull, 18ull, out.data(), 10), 1);
    std::vector<std::uint64_t> id(18);
    ASSERT_EQ(call<&grid_block_impl::read_linear>(ids.get(), 5ull, 18ull, id.data(), 8), 1);
    for (std::size_t i = 0; i < 18; ++i) {
      EXPECT_EQ(id[i], i + 5);
      EXPECT_EQ(out[i], static_cast<double>(100 * (4 - (i + 5) / 7) + (i + 5) % 7));
    }
    EXPECT_EQ(call<&grid_block_impl::read_linear>(b.get(), 30ull, 6ull, out.data(), 10), 2);
  }
}

TEST(gdal_read, tiles_start_at_the_south_west_cell_though_blocks_of_the_file_do_not) {
  folder f;
  shape s{.nx = 20, .ny = 21, .options = {"TILED=YES", "BLOCKXSIZE=16", "BLOCKYSIZE=16"}};
  source opened(make(f.at("a.tif"), s, row_and_column));
  block b(opened.band(0));
  std::uint64_t tile[3] = {};
  ASSERT_TRUE(call<&grid_block_impl::tile_size>(b.get(), tile));
  EXPECT_EQ(tile[0], 16u);
  EXPECT_EQ(tile[1], 16u);
  EXPECT_EQ(tile[2], 1u);
  std::vector<float> cells(256, 7);
  ASSERT_EQ(call<&grid_block_impl::read_tile>(b.get(), 1ull, 1ull, cells.data()), 1);
  EXPECT_EQ(cells[0], 100 * (20 - 16) + 16);
  EXPECT_EQ(cells[16 * 4 + 3], 19);  // the north-east cell
  EXPECT_EQ(cells[4], 0);            // padding
  EXPECT_EQ(cells[16 * 5], 0);
  EXPECT_EQ(call<&grid_block_impl::read_tile>(b.get(), 2ull, 0ull, cells.data()), 2);
}

TEST(gdal_read, row_ids_have_no_nodata_and_tiles_of_their_own) {
  folder f;
  source s(make(f.at("a.tif"), {}, row_and_column));
  block ids(s.ids());
  double nodata = 0;
  EXPECT_FALSE(call<&grid_block_impl::nodata>(ids.get(), 8, &nodata));
  EXPECT_EQ(call<&grid_block_impl::type>(ids.get()), element_uint64);
  std::uint64_t tile[3] = {};
  ASSERT_TRUE(call<&grid_block_impl::tile_size>(ids.get(), tile));
  std::vector<std::uint64_t> cells(tile[0] * tile[1]);
  ASSERT_EQ(call<&grid_block_impl::read_tile>(ids.get(), 0ull, 0ull, cells.data()), 1);
  EXPECT_EQ(cells[tile[0] + 2], 9u);
  std::vector<std::int64_t> as_signed;
  EXPECT_EQ(ids.window(element_int64, {0, 4}, {7, 1}, {7, 1}, as_signed), 1);
  EXPECT_EQ(as_signed[6], 34);
}

struct type_case {
  GDALDataType stored;
  std::int32_t element;
  std::vector<const char*> options;
};

TEST(gdal_read, every_type_is_presented_by_its_own_element_type) {
  const type_case cases[] = {
      {GDT_Byte, element_uint8, {}},      {GDT_Byte, element_int8, {"PIXELTYPE=SIGNEDBYTE"}},
      {GDT_Int16, element_int16, {}},     {GDT_UInt16, element_uint16, {}},
      {GDT_Int32, element_int32, {}},     {GDT_UInt32, element_uint32, {}},
      {GDT_Int64, element_int64, {}},     {GDT_UInt64, element_uint64, {}},
      {GDT_Float32, element_float32, {}}, {GDT_Float64, element_float64, {}},
      {GDT_CInt16, element_float32, {}},  {GDT_CFloat64, element_float64, {}}};
  for (const type_case& c : cases) {
    folder f;
    source s(make(f.at("a.tif"), {.type = c.stored, .options = c.options},
                  [](int x, int y, int) { return x + 10 * y; }));
    block b(s.band(0));
    EXPECT_EQ(call<&grid_block_impl::type>(b.get()), c.element);
    EXPECT_EQ(call<&grid_source_impl::sample_type>(s.grid(), 0ll), c.element);
    EXPECT_EQ(b.doubles({6, 0}, {1, 1}, {1, 1})[0], 46) << GDALGetDataTypeName(c.stored);
  }
}

TEST(gdal_read, a_signed_byte_keeps_its_sign) {
  folder f;
  source s(make(f.at("a.tif"), {.type = GDT_Byte, .options = {"PIXELTYPE=SIGNEDBYTE"}},
                [](int, int, int) { return 200; }));
  block b(s.band(0));
  EXPECT_EQ(b.doubles({0, 0}, {1, 1}, {1, 1})[0], 200 - 256);
}

TEST(gdal_read, nodata_is_a_double_whatever_type_is_asked) {
  struct nodata_case {
    GDALDataType type;
    double value;
  };
  for (const nodata_case& c : {nodata_case{GDT_Float32, -9999}, nodata_case{GDT_Byte, 255},
                               nodata_case{GDT_Int64, -5}, nodata_case{GDT_UInt64, 6}}) {
    folder f;
    auto set = [&](GDALDataset& d) {
      GDALRasterBand* band = d.GetRasterBand(1);
      if (c.type == GDT_Int64)
        band->SetNoDataValueAsInt64(static_cast<std::int64_t>(c.value));
      else if (c.type == GDT_UInt64)
        band->SetNoDataValueAsUInt64(static_cast<std::uint64_t>(c.value));
      else
        band->SetNoDataValue(c.value);
    };
    source s(make(f.at("a.tif"), {.type = c.type}, row_and_column, set));
    block b(s.band(0));
    for (int type : {1, 5, 9, 10}) {
      double out = 0;
      EXPECT_TRUE(call<&grid_block_impl::nodata>(b.get(), type, &out));
      EXPECT_EQ(out, c.value);
    }
  }
}

TEST(elements, are_converted_by_a_plain_cast) {
  using zu::platform::convert_elements;
  const double from[] = {-1.9, 2.9, 300};
  std::int16_t to[3] = {};
  convert_elements(from, 10, 1, to, 3, 1, 3);
  EXPECT_EQ(to[0], -1);
  EXPECT_EQ(to[1], 2);
  EXPECT_EQ(to[2], 300);
  std::uint8_t cut[3] = {};
  convert_elements(to, 3, 1, cut, 1, 1, 3);
  EXPECT_EQ(cut[0], 255);
  EXPECT_EQ(cut[2], 44);
  double back[3] = {};
  convert_elements(to + 2, 3, -1, back, 10, 1, 3);
  EXPECT_EQ(back[0], 300);
  EXPECT_EQ(back[2], -1);
}

TEST(elements, widths_follow_the_codes) {
  const std::size_t widths[] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8, 0};
  for (int code = 0; code < 12; ++code) EXPECT_EQ(zu::platform::element_width(code), widths[code]);
  EXPECT_EQ(zu::platform::element_width(-1), 0u);
}

}  // namespace
