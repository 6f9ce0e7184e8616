// Pictures in files, as a window exports them.

#include "host/core/export.h"

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using namespace zu::host;

class exported : public in_a_folder {
 protected:
  exported() {
    fs::path bin = fs::absolute(program_path()).parent_path();
    setenv("ZU_BUNDLE", (bin.parent_path() / "lib" / "zuk_grid_layer2d.so").c_str(), 0);
    request_.picture.nx = 40;
    request_.picture.ny = 20;
  }
  void SetUp() override {
    services_ = std::make_unique<zu::host::bundle>();
    scene_ = std::make_unique<scene>(*services_);
    scene_->add(floats("a.tif", 2, 1, {1, 2}));
    dress(*scene_, {});
  }
  std::unique_ptr<zu::host::bundle> services_;
  std::unique_ptr<scene> scene_;
  page_request request_;
};

TEST_F(exported, the_ending_says_what_is_drawn_on) {
  EXPECT_EQ(page_kind_of("a.PNG", false), page_kind::screen);
  EXPECT_EQ(page_kind_of("a.tif", true), page_kind::print);
  EXPECT_EQ(page_kind_of("a.tiff", false), page_kind::screen);
  EXPECT_EQ(page_kind_of("a.pdf", false), page_kind::pdf);
  EXPECT_EQ(page_kind_of("a.svg", true), page_kind::svg);
  EXPECT_EQ(page_kind_of("a.jpg", false), std::nullopt);
  EXPECT_EQ(page_kind_of("png", false), std::nullopt);
}

TEST_F(exported, every_format_is_written) {
  for (const char* name : {"o.png", "o.tif", "o.pdf", "o.svg"}) {
    request_.picture.kind = *page_kind_of(name, false);
    EXPECT_TRUE(export_picture(*scene_, request_, path(name)).empty());
    EXPECT_GT(fs::file_size(path(name)), 100u) << name;
  }
}

TEST_F(exported, a_picture_keeps_its_place_on_the_map) {
  request_.picture.extent = Tzu_box_d2{0, 0, 2, 1};
  export_picture(*scene_, request_, path("o.tif"));
  std::unique_ptr<GDALDataset> made(GDALDataset::Open(path("o.tif").c_str(), GDAL_OF_RASTER));
  double t[6];
  ASSERT_EQ(made->GetGeoTransform(t), CE_None);
  EXPECT_DOUBLE_EQ(t[0], 0);
  EXPECT_DOUBLE_EQ(t[1], 0.05);
  EXPECT_DOUBLE_EQ(t[3], 1);
}

TEST_F(exported, a_source_is_not_replaced_by_its_picture) {
  std::string before = text_of_file(path("a.tif"));
  EXPECT_THROW(export_picture(*scene_, request_, path("a.tif")), failure);
  EXPECT_EQ(text_of_file(path("a.tif")), before);
}

TEST_F(exported, what_cannot_be_written_leaves_nothing) {
  EXPECT_THROW(export_picture(*scene_, request_, path("nowhere/o.png")), failure);
  EXPECT_FALSE(exists("nowhere"));
}

TEST_F(exported, a_missing_layer_is_told_and_the_rest_is_drawn) {
  scene_->add_layer("grid_lr2d", path("gone.tif"));
  std::vector<std::string> lacks = export_picture(*scene_, request_, path("o.png"));
  ASSERT_EQ(lacks.size(), 1u);
  EXPECT_NE(lacks[0].find("gone.tif"), std::string::npos);
  EXPECT_TRUE(exists("o.png"));
}

TEST_F(exported, a_legend_stands_in_its_corner) {
  request_.picture.nx = request_.picture.ny = 300;
  request_.picture.extent = Tzu_box_d2{10, 10, 20, 20};  // nothing of the map itself
  request_.legend = corner::bottom_right;
  export_picture(*scene_, request_, path("o.png"));
  picture made(path("o.png"));
  EXPECT_EQ(made.at(5, 5), clear);
  EXPECT_NE(made.at(290, 285), clear);
}

}  // namespace
}  // namespace tests
