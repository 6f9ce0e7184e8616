#include "src/sources/source_filters.h"

#include <filesystem>

#include "src/bundle/strings.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/sources/builder_host.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;

/// Restores the language that a test changes.
class source_filters : public testing::Test {
 protected:
  void SetUp() override {
    language_ = zu_res_get_lng();
    zu_res_set_lng(50000);
  }
  void TearDown() override { zu_res_set_lng(language_); }

  static std::wstring description(scene_editor_filter_impl& filter) {
    std::wstring text;
    stdwstring_visitor visitor(text);
    filter.get_description(handle_of<string_visitor_impl>(visitor));
    return text;
  }
  static std::wstring mask(scene_editor_filter_impl& filter) {
    std::wstring text;
    stdwstring_visitor visitor(text);
    filter.get_mask(handle_of<string_visitor_impl>(visitor));
    return text;
  }
  static std::wstring caption(Izu_layer* layer) {
    return text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wcaption(layer, a); });
  }

  gdal_source_filter_adder gdal_;
  rastr_source_filter_adder rastr_;
  tos4_coord_source_filter_adder tos4_coord_;
  std::int32_t language_ = 0;
};

TEST_F(source_filters, describe_themselves_in_the_language_in_force) {
  EXPECT_EQ(description(gdal_), L"Grid Files");
  EXPECT_EQ(description(rastr_), L"Raster Files");
  EXPECT_EQ(description(tos4_coord_), L"OAT XY Coordinates");
  zu_res_set_lng(0);
  EXPECT_EQ(description(gdal_), L"Сеточные файлы");
  EXPECT_EQ(description(rastr_), L"Растровые файлы");
  EXPECT_EQ(description(tos4_coord_), L"TOС Два столбца координат");
}

TEST_F(source_filters, have_masks) {
  EXPECT_EQ(mask(rastr_), L"*.tif;*.tiff;*.jpg;*.jpeg;*.png;*.gif;*.bmp");
  EXPECT_EQ(mask(gdal_),
            L"*.adf;*.asc;*.dem;*.flt;*.gpkg;*.grd;*.gxf;*.img;*.jp2;*.mbtiles;*.prf;*.sid;"
            L"*.x-dem;*.zmap");
  EXPECT_EQ(mask(tos4_coord_), L"*.pgrid");
}

TEST_F(source_filters, accept_by_the_mask_without_regard_to_case) {
  const struct {
    const wchar_t* path;
    bool gdal, rastr, tos4;
  } cases[] = {
      {L"/a/x.grd", true, false, false},
      {L"/a/X.GRD", true, false, false},
      {L"/a/x.asc", true, false, false},
      {L"/a/x.x-dem", true, false, false},
      {L"/a/x.TIFF", false, true, false},
      {L"c:\\a\\x.Png", false, true, false},
      {L"/a/x.pgrid", false, false, true},
      {L"/a/x.PGrid", false, false, true},
      {L"/a/x.pgrids", false, false, false},
      {L"/a/x.pgri", false, false, false},
      {L"/a/x.gi", false, true, false},  // ".gif" holds it
      {L"/a/x.", true, true, false},
      {L"/a/x.sgy", false, false, false},
      {L"/a.tif/x", false, false, false},
      {L"/a.pgrid/x", false, false, false},
      {L"", false, false, false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(gdal_.accepts(c.path), c.gdal) << c.path;
    EXPECT_EQ(rastr_.accepts(c.path), c.rastr) << c.path;
    EXPECT_EQ(tos4_coord_.accepts(c.path), c.tos4) << c.path;
  }
}

TEST_F(source_filters, of_grids_open_what_has_no_extension_to_see) {
  tests::made_grid grid("filters.tif", 2, 2, GDT_Float32, 1);
  std::filesystem::path made = grid.close();
  std::filesystem::path bare = made.parent_path() / "filters_without_extension";
  std::filesystem::copy_file(made, bare, std::filesystem::copy_options::overwrite_existing);
  EXPECT_TRUE(gdal_.accepts(bare.wstring().c_str()));
  EXPECT_FALSE(rastr_.accepts(bare.wstring().c_str()));
  EXPECT_FALSE(tos4_coord_.accepts(bare.wstring().c_str()));
  std::filesystem::resize_file(bare, 3);
  EXPECT_FALSE(gdal_.accepts(bare.wstring().c_str()));
}

TEST_F(source_filters, make_layers_of_their_type_with_the_file_name_for_a_caption) {
  tests::builder_host host;
  gdal_.add(host.builder(), L"/data/relief.grd");
  rastr_.add(host.builder(), L"c:\\data\\map.png");
  tos4_coord_.add(host.builder(), L"points.pgrid");
  EXPECT_EQ(host.types, (std::vector<std::string>{"grid_lr2d", "rtr_lr2d", "tos_2crd_lr2d"}));
  ASSERT_EQ(host.layers.size(), 3u);
  EXPECT_EQ(caption(host.layers[0]), L"relief.grd");
  EXPECT_EQ(caption(host.layers[1]), L"map.png");
  EXPECT_EQ(caption(host.layers[2]), L"points.pgrid");
  EXPECT_TRUE(host.errors.empty());
}

TEST_F(source_filters, report_to_the_builder_when_there_is_no_layer) {
  tests::builder_host host;
  host.refuses = true;
  gdal_.add(host.builder(), L"a.grd");
  rastr_.add(host.builder(), L"a.png");
  tos4_coord_.add(host.builder(), L"a.pgrid");
  EXPECT_EQ(host.errors, (std::vector<std::wstring>{L"Grid files are not supported.",
                                                    L"Raster files are not supported.",
                                                    L"OAT files are not supported."}));
  zu_res_set_lng(0);
  gdal_.add(host.builder(), L"a.grd");
  EXPECT_EQ(host.errors.back(), L"Сеточные файлы не поддерживаются");
}

}  // namespace
