// What the legend of a layer says of its classes and values.

#include "host/core/legend.h"

#include "host/core/layer_look.h"
#include "host/core/texts.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using namespace zu::host;

class legends : public in_a_folder {
 protected:
  legends() {
    fs::path bin = fs::absolute(program_path()).parent_path();
    setenv("ZU_BUNDLE", (bin.parent_path() / "lib" / "zuk_grid_layer2d.so").c_str(), 0);
  }
  void SetUp() override {
    services_ = std::make_unique<zu::host::bundle>();
    scene_ = std::make_unique<scene>(*services_);
    scene_->add(floats("a.tif", 3, 1, {0, 1, 2}));
  }
  std::vector<std::wstring> texts(const layer_look& look) {
    dress(*scene_, look);
    return texts();
  }
  std::vector<std::wstring> texts() {
    std::vector<std::wstring> all;
    for (const legend_row& row : legend_of(shown()).rows) all.push_back(row.text);
    return all;
  }
  const layer& shown() { return *scene_->layers().front(); }
  Tzu_stl_mngr* styles() { return shown().style_manager(); }
  using rows = std::vector<std::wstring>;

  std::unique_ptr<zu::host::bundle> services_;
  std::unique_ptr<scene> scene_;
};

TEST_F(legends, classes_without_captions_are_named_by_their_limits) {
  layer_look look;
  look.breaks = {0, 1, 2.5};
  EXPECT_EQ(texts(look), (rows{L"> 2.5", L"1 – 2.5", L"0 – 1", L"≤ 0"}));
}

TEST_F(legends, a_caption_stands_for_the_limits) {
  layer_look look;
  look.breaks = {0, 1, 2.5};
  look.other = Tzu_color{1, 2, 3, 0};
  dress(*scene_, look);
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(styles());
  zu_rng_scale_set_max_caption_w(scale, L"peaks");
  zu_rng_scale_set_caption_w(scale, 0, L"plain");
  zu_rng_scale_set_min_caption_w(scale, L"sea");
  zu_rng_scale_set_other_caption_w(scale, L"unknown");
  EXPECT_EQ(texts(), (rows{L"peaks", L"1 – 2.5", L"plain", L"sea", L"unknown"}));
}

TEST_F(legends, a_value_has_its_caption_or_else_its_text) {
  layer_look look;
  look.values = {{"0", {255, 0, 0, 0}}, {"1", {0, 255, 0, 0}}};
  dress(*scene_, look);
  zu_val_scale_set_caption_w(zu_stl_mngr_get_val_scale_ptr(styles()), 1, L"granite");
  EXPECT_EQ(texts(), (rows{L"0", L"granite"}));
}

TEST_F(legends, default_classes_have_captions_unless_their_limits_have_many_digits) {
  dress(*scene_, {});
  auto first = [&] {
    Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(styles());
    return text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, 0, a); });
  };
  EXPECT_EQ(first(), L"0 – 0.2");
  scene_ = std::make_unique<scene>(*services_);
  scene_->add(floats("long.tif", 2, 1, {0, 1.0f / 3}));
  rows all = texts({});
  EXPECT_EQ(first(), L"");
  ASSERT_EQ(all.size(), default_classes + 2);
  EXPECT_EQ(all[0], L"> 0.333333");
}

}  // namespace
}  // namespace tests
