// The legends that a project offers, as whoever asks the platform for them sees them.

#include "host/core/map_legends.h"

#include <gtest/gtest.h>

#include "host/core/failure.h"
#include "host/core/project.h"
#include "host/core/texts.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using zu::host::layer;

class map_legends : public in_a_folder {
 protected:
  map_legends() {
    setenv("ZU_BUNDLE",
           (fs::path(program_path()).parent_path().parent_path() / "lib" / "zuk_grid_layer2d.so")
               .c_str(),
           0);
    floats("soil.tif", 3, 1, {1, 2, 3});
    services_ = std::make_unique<zu::host::bundle>();
  }

  /// A layer of a project that is styled by values: one row of that text.
  static layer& styled(zu::host::project& project, const std::string& source,
                       const wchar_t* caption, const wchar_t* text) {
    layer& added = *project.add(project.scenes()[0], source).at(0);
    added.set_caption(zu::host::narrow(caption));
    zu_stl_mngr_set_mode(added.style_manager(), zu_style_value);
    Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(added.style_manager());
    zu_val_scale_set_size(scale, 1);
    zu_val_scale_set_text_w(scale, 0, text);
    return added;
  }
  static std::vector<std::wstring> titles() {
    Tzu_maplegs* legends = zu_prj_get_maplegs_ptr(zu_prj_get_instance());
    std::vector<std::wstring> all;
    for (std::uint64_t i = 0; i < zu_maplegs_get_size(legends); ++i)
      all.push_back(zu::host::text_of([&](Tzu_string_adp* adapter) {
        zu_mapleg_get_title(zu_maplegs_get_ptr(legends, i), adapter);
      }));
    return all;
  }
  static std::wstring first_text(std::uint64_t legend) {
    Tzu_maplegs* legends = zu_prj_get_maplegs_ptr(zu_prj_get_instance());
    Tzu_val_scale* scale = zu_mapleg_get_val_scale_ptr(zu_maplegs_get_ptr(legends, legend));
    return zu::host::text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, 0, a); });
  }

  std::unique_ptr<zu::host::bundle> services_;
};
using texts = std::vector<std::wstring>;

TEST_F(map_legends, are_those_of_the_layers_styled_by_value) {
  zu::host::project project(*services_);
  EXPECT_EQ(titles(), texts());
  styled(project, path("soil.tif"), L"Soils", L"1");
  layer& ranges = styled(project, path("soil.tif"), L"Heights", L"2");
  zu_stl_mngr_set_mode(ranges.style_manager(), zu_style_range);
  styled(project, path("soil.tif"), L"Rocks", L"3");
  EXPECT_EQ(titles(), (texts{L"Soils", L"Rocks"}));
  EXPECT_EQ(first_text(1), L"3");
}

TEST_F(map_legends, follow_every_change_of_layers_and_styles) {
  zu::host::project project(*services_);
  layer& soils = styled(project, path("soil.tif"), L"Soils", L"1");
  EXPECT_EQ(first_text(0), L"1");
  zu_val_scale_set_text_w(zu_stl_mngr_get_val_scale_ptr(soils.style_manager()), 0, L"7");
  soils.set_caption("Earths");
  EXPECT_EQ(titles(), texts{L"Earths"});
  EXPECT_EQ(first_text(0), L"7");
  styled(project, path("soil.tif"), L"Rocks", L"3");
  project.move(project.scenes()[0], 0, 1);
  EXPECT_EQ(titles(), (texts{L"Rocks", L"Earths"}));
  project.remove(project.scenes()[0], 0);
  EXPECT_EQ(titles(), texts{L"Earths"});
}

TEST_F(map_legends, the_last_project_that_was_opened_is_the_current_one) {
  auto first = std::make_unique<zu::host::project>(*services_);
  styled(*first, path("soil.tif"), L"First", L"1");
  first->save(path("first.zgp"));
  auto second = std::make_unique<zu::host::project>(*services_);
  EXPECT_EQ(titles(), texts());
  auto again = std::make_unique<zu::host::project>(*services_, path("first.zgp"));
  EXPECT_EQ(titles(), texts{L"First"});
  first.reset();
  second.reset();
  EXPECT_EQ(titles(), texts{L"First"});
  write("broken.zgp", "<zugrid_project version='1'/>");
  EXPECT_THROW(zu::host::project(*services_, path("broken.zgp")), zu::host::failure);
  EXPECT_EQ(titles(), texts{L"First"});
  again.reset();
  EXPECT_EQ(zu_prj_get_instance(), nullptr);
}

}  // namespace
}  // namespace tests
