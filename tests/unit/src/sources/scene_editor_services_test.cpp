#include "src/sources/scene_editor_services.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "src/bundle/bitmaps.h"
#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using texts = std::vector<std::wstring>;

// The pixels of the last picture it gets.
struct picture_taker : bytes_visitor_impl {
  std::vector<std::uint8_t> pixels;
  void visit(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t, std::uint64_t,
             std::uint64_t, std::uint64_t, const std::uint8_t* data) override {
    pixels.assign(data, data + height * row_bytes);
  }
};

class extension_taker : public scene_2d_editor_extension_visitor_impl {
 public:
  void visit(scene_2d_editor_extension extension) override {
    stdwstring_list_visitor visitor(types);
    call<&scene_2d_editor_extension_impl::get_layer_type>(
        extension, string_visitor(handle_of<string_visitor_impl>(visitor)));
    picture_taker picture;
    call<&scene_2d_editor_extension_impl::get_bitmap>(
        extension, bytes_visitor(handle_of<bytes_visitor_impl>(picture)));
    pictures.push_back(picture.pixels);
  }
  texts types;
  std::vector<std::vector<std::uint8_t>> pictures;
};

class filter_taker : public scene_editor_filter_visitor_impl {
 public:
  void visit(scene_editor_filter filter) override {
    stdwstring_list_visitor visitor(descriptions);
    call<&scene_editor_filter_impl::get_description>(
        filter, string_visitor(handle_of<string_visitor_impl>(visitor)));
  }
  texts descriptions;
};

texts types_of(scene_2d_editor_extension_service_impl& service) {
  extension_taker taker;
  service.get_extensions(handle_of<scene_2d_editor_extension_visitor_impl>(taker));
  return taker.types;
}

texts filters_of(scene_2d_editor_extension_service_impl& service) {
  std::int32_t language = zu_res_get_lng();
  zu_res_set_lng(50000);
  filter_taker taker;
  service.get_filters(handle_of<scene_editor_filter_visitor_impl>(taker));
  zu_res_set_lng(language);
  return taker.descriptions;
}

TEST(scene_editor_services, of_the_grid_has_one_extension_and_one_filter) {
  grid_editor2d_extension_service service;
  EXPECT_EQ(types_of(service), texts{L"grid_lr2d"});
  EXPECT_EQ(filters_of(service), texts{L"Grid Files"});
}

TEST(scene_editor_services, of_other_files_has_its_extensions_and_filters_in_order) {
  grids_editor2d_extension_service service;
  EXPECT_EQ(types_of(service), (texts{L"rtr_lr2d", L"tos_grid_lr2d", L"tos_slice_lr2d",
                                      L"tos_2crd_lr2d", L"tos_grid_lr1d"}));
  EXPECT_EQ(filters_of(service),
            (texts{L"Raster Files", L"OAT Uniform Grid", L"OAT XY Coordinates", L"SEG-Y Files"}));
}

TEST(scene_editor_services, show_each_kind_of_layer_by_a_shared_picture) {
  extension_taker taker;
  handle visitor = handle_of<scene_2d_editor_extension_visitor_impl>(taker);
  grid_editor2d_extension_service().get_extensions(scene_2d_editor_extension_visitor(visitor));
  grids_editor2d_extension_service().get_extensions(scene_2d_editor_extension_visitor(visitor));
  const std::int32_t ids[] = {231, 221, 231, 612, 233, 232};
  ASSERT_EQ(taker.pictures.size(), std::size(ids));
  for (std::size_t i = 0; i < std::size(ids); ++i) {
    picture_taker expected;
    get_bitmap_of_basic(ids[i], bytes_visitor(handle_of<bytes_visitor_impl>(expected)));
    EXPECT_FALSE(expected.pixels.empty());
    EXPECT_EQ(taker.pictures[i], expected.pixels) << taker.types[i];
  }
}

TEST(scene_editor_services, have_their_order) {
  EXPECT_EQ(grid_editor2d_extension_service().get_order(), 125);
  EXPECT_EQ(grids_editor2d_extension_service().get_order(), -50);
  EXPECT_EQ(scene_2d_editor_extension_service_impl().get_order(), 1);
}

TEST(scene_editor_services, visit_nobody_through_an_empty_handle) {
  grids_editor2d_extension_service service;
  service.get_extensions({});
  service.get_filters({});
}

}  // namespace
