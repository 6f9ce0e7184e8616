#include <filesystem>
#include <string>

#include "src/style/scale_operations.h"
#include "tests/unit/src/style/made_scale.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;

/// One global library: items 1 and 12 below the root, 5 below 12; styles of the numbers 1 and 12.
template <class model_type> struct with_library : made_scale<model_type> {
  with_library() {
    fs::remove_all(folder);
    fs::create_directories(folder);
    zu::owned<zu_style_lib_destroy> library(zu_style_lib_create());
    Tzu_style_item* root = zu_style_lib_get_root_item_ptr(library.get());
    zu_style_item_add(root, 1, L"granite");
    zu_style_item_add(zu_style_item_add(root, 12, L"tuff"), 5, L"lava");
    std::uint64_t place = 0;
    for (std::int32_t number : {1, 12}) {
      Tzu_idx_style* point =
          zu_style_list_insert(zu_style_lib_get_pnt_list_ptr(library.get()), place, number);
      zu_bpnt_style_set_size(
          zu_pnt_style_get_bpnt_style_ptr(zu_idx_pnt_style_get_pnt_style_ptr(point)), number);
      Tzu_idx_style* line =
          zu_style_list_insert(zu_style_lib_get_pln_list_ptr(library.get()), place, number);
      zu_bpln_style_set_width(
          zu_pln_style_get_bpln_style_ptr(zu_idx_pln_style_get_pln_style_ptr(line)), number);
      ++place;
    }
    EXPECT_TRUE(
        zu_xml_data_save_style_lib_file((folder / "a._ls").wstring().c_str(), library.get()));
    zu_options_set_style_libs_path(folder.wstring().c_str());
  }
  ~with_library() override {
    zu_options_set_style_libs_path(nullptr);
    fs::remove_all(folder);
  }
  void set_values(const std::vector<const wchar_t*>& texts) {
    this->set_size(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
      this->m.set_value(static_cast<std::int64_t>(i), texts[i]);
    this->paint();
  }
  double size(std::int64_t row) {
    return zu_bpnt_style_get_size(zu_pnt_style_get_bpnt_style_ptr(
        zu_stl_prm_get_pnt_style_ptr(this->m.get_style_prm(row), 0)));
  }
  double width(std::int64_t row) {
    return zu_bpln_style_get_width(zu_pln_style_get_bpln_style_ptr(
        zu_stl_prm_get_pln_style_ptr(this->m.get_style_prm(row), 0)));
  }

  const fs::path folder = fs::path(testing::TempDir()) / "apply_library";
  using texts = std::vector<std::wstring>;
};

using point_library = with_library<point_values>;
TEST_F(point_library, is_matched_by_the_whole_part_of_the_value) {
  set_values({L"12.7", L"1,9", L"rock", L"3", L"1e99", L"nan"});
  double before = size(2);
  apply_library(m, 0);
  EXPECT_EQ(captions(), (texts{L"tuff", L"granite", L"row 2", L"row 3", L"row 4", L"row 5"}));
  EXPECT_EQ(size(0), 12);
  EXPECT_EQ(size(1), 1);
  for (std::int64_t row : {2, 3, 4, 5}) EXPECT_EQ(size(row), before);
  EXPECT_EQ(told, 1);
}

TEST_F(point_library, gives_the_caption_alone_where_it_has_no_style) {
  set_values({L"5"});
  double before = size(0);
  apply_library(m, 0);
  EXPECT_EQ(captions(), texts{L"lava"});
  EXPECT_EQ(size(0), before);
}

TEST_F(point_library, is_for_all_rows_unless_several_are_marked) {
  set_values({L"1", L"12", L"1"});
  mark({1});
  apply_library(m, 0);
  EXPECT_EQ(captions(), (texts{L"granite", L"tuff", L"granite"}));
  paint();
  mark({0, 1});
  apply_library(m, 0);
  EXPECT_EQ(captions(), (texts{L"granite", L"tuff", L"row 2"}));
}

TEST_F(point_library, past_the_last_one_changes_nothing) {
  set_values({L"1"});
  apply_library(m, 1);
  apply_library(m, -1);
  EXPECT_EQ(captions(), texts{L"row 0"});
  EXPECT_EQ(told, 0);
}

using line_library = with_library<line_values>;
TEST_F(line_library, gives_lines_to_lines) {
  set_values({L"12"});
  apply_library(m, 0);
  EXPECT_EQ(captions(), texts{L"tuff"});
  EXPECT_EQ(width(0), 12);
}

using color_library = with_library<color_values>;
TEST_F(color_library, gives_cells_captions_and_leaves_their_colours) {
  set_values({L"12"});
  apply_library(m, 0);
  EXPECT_EQ(captions(), texts{L"tuff"});
  EXPECT_EQ(color(0), numbers(painted(0)));
}

using range_library = with_library<point_ranges>;
TEST_F(range_library, has_nothing_for_classes) {
  set_size(1);
  paint();
  apply_library(m, 0);
  EXPECT_EQ(captions(), (texts{L"row 0", L"row 1", L"row 2"}));
}

// --- Legends of the project

struct project : made_scale<color_values> {
  project() {
    zu_prj_set_instance(made.get());
    Tzu_mapleg* legend = zu_maplegs_add(zu_prj_get_maplegs_ptr(made.get()), L"rocks");
    Tzu_val_scale* scale = zu_mapleg_get_val_scale_ptr(legend);
    zu_val_scale_set_size(scale, 1);
    zu_val_scale_set_text_w(scale, 0, L"7");
    zu_val_scale_set_caption_w(scale, 0, L"tuff");
    Tzu_scale_prm* row = zu_val_scale_get_scale_prm_ptr(scale, 0);
    zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(row), {1, 2, 3, 4}, 0);
    set_size(3);
    paint();
    for (std::int64_t row_of : {0, 2}) m.set_value(row_of, L"7");
  }
  ~project() override { zu_prj_set_instance(nullptr); }
  zu::owned<zu_prj_destroy> made{zu_prj_create()};
  using texts = std::vector<std::wstring>;
};

TEST_F(project, legends_style_the_rows_of_their_values) {
  mark({1});  // one counts as none
  apply_map_legend(m, 0);
  EXPECT_EQ(captions(), (texts{L"tuff", L"row 1", L"tuff"}));
  EXPECT_EQ(color(0), (rgba{1, 2, 3, 4}));
  EXPECT_EQ(color(1), numbers(painted(1)));
  EXPECT_EQ(told, 1);
}

TEST_F(project, legends_style_marked_rows_if_they_are_several) {
  mark({0, 1});
  apply_map_legend(m, 0);
  EXPECT_EQ(captions(), (texts{L"tuff", L"row 1", L"row 2"}));
}

TEST_F(project, a_legend_that_there_is_not_changes_nothing) {
  apply_map_legend(m, 1);
  apply_map_legend(m, -1);
  zu_prj_set_instance(nullptr);
  apply_map_legend(m, 0);
  EXPECT_EQ(captions(), (texts{L"row 0", L"row 1", L"row 2"}));
  EXPECT_EQ(told, 0);
}

}  // namespace
