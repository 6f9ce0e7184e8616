#include <cmath>

#include "tests/unit/platform/zuk_datasource/test_grids.h"

using namespace test_grids;
using namespace zu;

namespace {

double zero(int, int, int) { return 0; }

std::wstring name_of(const source& s, std::int64_t field) {
  text_taker taker;
  call<&data_source_impl::field_name>(s.get(), field, handle_of<string_visitor_impl>(taker));
  return taker.texts.empty() ? L"" : taker.texts[0];
}

std::wstring told(void (*ask)(Tzu_handle, Tzu_string_adp*), zu::handle h) {
  std::wstring out;
  auto sink = [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; };
  Tzu_string_adp* adapter = zu_string_adp_create(nullptr, sink, &out);
  ask(h, adapter);
  zu_string_adp_destroy(adapter);
  return out;
}

std::array<double, 2> place_of(const source& s, double column, double row) {
  double m[9] = {};
  EXPECT_TRUE(call<&grid_source_impl::matrix3x3>(s.grid(), m));
  return {m[0] * column + m[1] * row + m[2], m[3] * column + m[4] * row + m[5]};
}

TEST(gdal_source, the_first_cell_is_the_south_western_one) {
  folder f;
  source s(make(f.at("a.tif"), {}, zero));  // 7 x 5 cells of 10 m, north-west corner 100, 1000
  EXPECT_EQ(place_of(s, 0, 0), (std::array<double, 2>{105, 955}));
  EXPECT_EQ(place_of(s, 6, 4), (std::array<double, 2>{165, 995}));
  double box[4] = {}, origin[3] = {}, spacing[3] = {};
  ASSERT_TRUE(call<&data_source_impl::extent>(s.get(), box, true));
  EXPECT_EQ(box[0], 100);
  EXPECT_EQ(box[1], 950);
  EXPECT_EQ(box[2], 170);
  EXPECT_EQ(box[3], 1000);
  ASSERT_TRUE(call<&grid_source_impl::get_origin>(s.grid(), origin));
  ASSERT_TRUE(call<&grid_source_impl::get_spacing>(s.grid(), spacing));
  EXPECT_EQ(origin[1], 955);
  EXPECT_EQ(spacing[1], 10);
  EXPECT_EQ(call<&grid_source_impl::azimuth>(s.grid()), 0);
  EXPECT_EQ(call<&grid_source_impl::grid_type>(s.grid()), 3);
  EXPECT_TRUE(zu_datasource_rows_run_south(s.get()));
  EXPECT_EQ(told(zu_datasource_get_georeference_w, s.get()), L"geotransform");
  EXPECT_EQ(told(zu_datasource_get_driver_w, s.get()), L"GTiff");
}

TEST(gdal_source, the_lifted_matrix_says_the_same) {
  folder f;
  source s(make(f.at("a.tif"), {.geotransform = {100, 10, 1, 1000, 2, -10}}, zero));
  double m[9] = {}, lifted[16] = {};
  ASSERT_TRUE(call<&grid_source_impl::matrix3x3>(s.grid(), m));
  ASSERT_TRUE(call<&grid_source_impl::matrix4x4>(s.grid(), lifted));
  EXPECT_EQ(lifted[0], m[0]);
  EXPECT_EQ(lifted[3], m[2]);
  EXPECT_EQ(lifted[4], m[3]);
  EXPECT_EQ(lifted[7], m[5]);
  EXPECT_EQ(lifted[10], 1);
}

// A turn by 30 degrees: columns go (8.66, 5), rows of the file go (5, -8.66).
TEST(gdal_source, a_turned_grid_keeps_its_cells_where_they_are) {
  folder f;
  double c = 10 * std::cos(std::acos(-1) / 6), s30 = 5;
  source s(make(f.at("a.tif"), {.geotransform = {0, c, s30, 0, s30, -c}}, zero));
  std::array<double, 2> first = place_of(s, 0, 0);  // column 0, last row of the file
  EXPECT_NEAR(first[0], 0.5 * c + 4.5 * s30, 1e-9);
  EXPECT_NEAR(first[1], 0.5 * s30 - 4.5 * c, 1e-9);
  EXPECT_NEAR(call<&grid_source_impl::azimuth>(s.grid()), 30, 1e-9);
  double box[4] = {};
  ASSERT_TRUE(call<&data_source_impl::extent>(s.get(), box, true));
  EXPECT_NEAR(box[0], 0, 1e-9);
  EXPECT_NEAR(box[1], -5 * c, 1e-9);
  EXPECT_NEAR(box[2], 7 * c + 5 * s30, 1e-9);
  EXPECT_NEAR(box[3], 7 * s30, 1e-9);
}

TEST(gdal_source, a_file_without_a_place_has_pixel_coordinates_with_y_up) {
  folder f;
  source s(make(f.at("a.tif"), {.geotransform = {}}, zero));
  EXPECT_EQ(place_of(s, 0, 0), (std::array<double, 2>{0.5, 0.5}));
  EXPECT_EQ(place_of(s, 6, 4), (std::array<double, 2>{6.5, 4.5}));
  EXPECT_EQ(call<&grid_source_impl::grid_type>(s.grid()), 0);
  EXPECT_EQ(told(zu_datasource_get_georeference_w, s.get()), L"none");
  text_taker projection;
  call<&data_source_impl::get_projection>(s.get(), handle_of<string_visitor_impl>(projection));
  EXPECT_TRUE(projection.texts.empty());
}

TEST(gdal_source, control_points_give_the_place) {
  folder f;
  auto set = [](GDALDataset& d) {
    GDAL_GCP points[4];
    GDALInitGCPs(4, points);
    for (int i = 0; i < 4; ++i) {
      points[i].dfGCPPixel = i & 1 ? 7 : 0;
      points[i].dfGCPLine = i & 2 ? 5 : 0;
      points[i].dfGCPX = 30 + points[i].dfGCPPixel * 0.5;
      points[i].dfGCPY = 60 - points[i].dfGCPLine * 0.25;
    }
    OGRSpatialReference system;
    system.importFromEPSG(4326);
    d.SetGCPs(4, points, &system);
    GDALDeinitGCPs(4, points);
  };
  source s(make(f.at("a.tif"), {.geotransform = {}}, zero, set));
  EXPECT_EQ(told(zu_datasource_get_georeference_w, s.get()), L"ground control points");
  EXPECT_NEAR(place_of(s, 0, 0)[0], 30.25, 1e-6);
  EXPECT_NEAR(place_of(s, 0, 0)[1], 58.875, 1e-6);
  text_taker projection;
  call<&data_source_impl::get_projection>(s.get(), handle_of<string_visitor_impl>(projection));
  ASSERT_EQ(projection.texts.size(), 1u);
  EXPECT_NE(projection.texts[0].find(L"WGS 84"), std::wstring::npos);
}

TEST(gdal_source, bands_are_fields_named_by_their_description_or_number) {
  folder f;
  auto set = [](GDALDataset& d) { d.GetRasterBand(2)->SetDescription("Depth"); };
  source s(make(f.at("a.tif"), {.bands = 3}, zero, set));
  EXPECT_EQ(call<&data_source_impl::field_count>(s.get()), 3);
  EXPECT_EQ(name_of(s, 0), L"Band 1");
  EXPECT_EQ(name_of(s, 1), L"Depth");
  EXPECT_EQ(name_of(s, 3), L"");
  std::int64_t index = -1;
  EXPECT_TRUE(call<&data_source_impl::find_field>(s.get(), L"Depth", &index));
  EXPECT_EQ(index, 1);
  EXPECT_FALSE(call<&data_source_impl::find_field>(s.get(), L"depth", &index));
}

TEST(gdal_source, colour_interpretation_gives_the_role) {
  folder f;
  const GDALColorInterp meanings[] = {GCI_RedBand, GCI_GreenBand, GCI_BlueBand, GCI_AlphaBand,
                                      GCI_GrayIndex};
  const int roles[] = {1, 2, 3, 4, 5};
  for (int i = 0; i < 5; ++i) {
    auto set = [&](GDALDataset& d) { d.GetRasterBand(1)->SetColorInterpretation(meanings[i]); };
    source s(make(f.at("a.tif"), {.bands = 2, .type = GDT_Byte}, zero, set));
    EXPECT_EQ(call<&grid_source_impl::color_role>(s.grid(), 0ll), roles[i]);
    EXPECT_EQ(call<&grid_source_impl::color_role>(s.grid(), 1ll), 0);
    EXPECT_EQ(call<&grid_source_impl::color_role>(s.grid(), 2ll), 0);
  }
}

TEST(gdal_source, a_palette_has_transparencies_and_hides_nodata) {
  folder f;
  auto set = [](GDALDataset& d) {
    GDALColorTable table;
    GDALColorEntry red{200, 10, 20, 255}, glass{1, 2, 3, 55};
    table.SetColorEntry(0, &red);
    table.SetColorEntry(1, &glass);
    table.SetColorEntry(2, &red);
    d.GetRasterBand(1)->SetColorTable(&table);
    d.GetRasterBand(1)->SetNoDataValue(2);
  };
  make(f.at("a.tif"), {.type = GDT_Byte}, zero, set);
  source s(f.at("a.tif"));
  EXPECT_EQ(call<&grid_source_impl::color_role>(s.grid(), 0ll), role_palette);
  palette_taker taker;
  ASSERT_TRUE(
      call<&grid_source_impl::palette>(s.grid(), 0ll, handle_of<grid_palette_visitor_impl>(taker)));
  std::uint8_t c[4] = {};
  ASSERT_TRUE(call<&grid_palette_impl::color>(taker.palette, 0ll, c));
  EXPECT_EQ(c[0], 200);
  EXPECT_EQ(c[3], 0);
  ASSERT_TRUE(call<&grid_palette_impl::color>(taker.palette, 2ll, c));
  EXPECT_EQ(c[3], 255);
  EXPECT_GE(call<&grid_palette_impl::size>(taker.palette), 3);
  EXPECT_FALSE(call<&grid_palette_impl::color>(taker.palette, 70000ll, c));
  EXPECT_FALSE(call<&grid_palette_impl::color>(taker.palette, -1ll, c));
  call<&grid_palette_impl::release>(taker.palette);
}

TEST(gdal_source, one_object_answers_to_all_its_names) {
  folder f;
  source s(make(f.at("a.tif"), {}, zero));
  EXPECT_TRUE(s.grid());
  EXPECT_TRUE(s.stat());
  EXPECT_TRUE(cast<data_source_impl>(s.grid()));
  EXPECT_FALSE(cast<grid_block_impl>(s.get()));
}

TEST(gdal_source, a_projection_is_stored_with_the_file_only_when_open_for_writing) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, zero);
  {
    source s(path);
    EXPECT_FALSE(call<&data_source_impl::set_projection>(s.get(), L"EPSG:32637"));
  }
  {
    source s(path, 0);
    EXPECT_FALSE(call<&data_source_impl::set_projection>(s.get(), L"sideways"));
    EXPECT_TRUE(call<&data_source_impl::set_projection>(s.get(), L"EPSG:32637"));
  }
  source s(path);
  text_taker taker;
  call<&data_source_impl::get_projection>(s.get(), handle_of<string_visitor_impl>(taker));
  ASSERT_EQ(taker.texts.size(), 1u);
  EXPECT_NE(taker.texts[0].find(L"UTM zone 37N"), std::wstring::npos);
}

TEST(gdal_source, an_origin_and_spacing_that_are_set_come_back) {
  folder f;
  std::string path = make(f.at("a.tif"), {}, zero);
  const double origin[] = {5, 6, 0}, spacing[] = {2, 3, 1};
  {
    source s(path, 0);
    EXPECT_TRUE(call<&grid_source_impl::set_origin>(s.grid(), origin));
    EXPECT_TRUE(call<&grid_source_impl::set_spacing>(s.grid(), spacing));
  }
  source s(path);
  EXPECT_EQ(place_of(s, 1, 2), (std::array<double, 2>{7, 12}));
  EXPECT_FALSE(call<&grid_source_impl::set_origin>(s.grid(), origin));
}

}  // namespace
