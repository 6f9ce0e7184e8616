#include "src/sources/segy_layer_setup.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "src/bundle/owned.h"
#include "src/data/ui_monitor.h"
#include "src/layer/grid_layer2d.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/platform/zuk_palettes.h"
#include "zu/platform/zuk_scn_2d.h"

namespace {

using namespace zu;

/// What a host saw of a progress window.
struct seen_progress {
  int begun = 0, ended = 0;
  std::vector<std::int64_t> shown;
  std::vector<std::wstring> captions;
  bool stop = false;

  seen_progress() {
    Tzu_progress_hooks hooks{};
    hooks.user = this;
    hooks.begin = [](int32_t can_stop, void* user) -> void* {
      self(user).begun += can_stop;
      return user;
    };
    hooks.caption = [](void*, const wchar_t* text, void* user) {
      self(user).captions.emplace_back(text);
    };
    hooks.show = [](void*, int64_t done, int64_t total, void* user) {
      EXPECT_EQ(total, 100);
      self(user).shown.push_back(done);
    };
    hooks.stopped = [](void*, void* user) { return self(user).stop; };
    hooks.end = [](void*, void* user) { ++self(user).ended; };
    zu_progress_set_hooks(&hooks);
  }
  ~seen_progress() { zu_progress_set_hooks(nullptr); }
  static seen_progress& self(void* user) { return *static_cast<seen_progress*>(user); }
};

class segy_layer_setup : public testing::Test {
 protected:
  void SetUp() override {
    tests::made_section section(3, 40);
    for (int i = 0; i < 40; ++i) {
      std::vector<std::string> trace;
      for (int j = 0; j < 40; ++j) trace.push_back(tests::big(2, j % 2 == 0 ? 10 : -10));
      section.trace(trace).field(181, 4, 10 * i).field(185, 4, i == 20 ? 1 : 0);
    }
    section.save(folder_ / "a.sgy");
    auto past = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(folder_ / "a.sgy", past);
    std::string narrow = folder_ / "a.sgy";
    path_.assign(narrow.begin(), narrow.end());
    zu_segy_prms_set_coord_type(record_.get(), 2);
    layer_ = make_layer(object_);
    zu_scn_2d_add_layer(scene_.get(), layer_.get());
    object_.update_box();
    zu_options_set_build_overviews(true);
  }
  void TearDown() override { zu_options_set_build_overviews(false); }
  owned<zu_lr2d_destroy> make_layer(grid_layer2d& object) {
    owned<zu_lr2d_destroy> layer(zu_lr2d_create("grid_lr2d"));
    zu_lr2d_set_wsource(layer.get(), path_.c_str());
    zu_lr2d_set_plugin_interface(layer.get(), handle_of<layer_2d_impl>(object));
    object.bind_entity(layer.get());
    return layer;
  }
  Tzu_prf_data* profile() { return zu_scn_2d_get_prf_data_ptr(scene_.get()); }
  bool has_overviews() { return std::filesystem::exists(folder_ / "a.sgy.ovr"); }

  tests::section_folder folder_;
  std::wstring path_;
  owned<zu_segy_prms_destroy> record_{zu_segy_prms_create()};
  grid_layer2d object_;
  owned<zu_scn_2d_destroy> scene_{zu_scn_2d_create()};
  owned<zu_lr2d_destroy> layer_;
  seen_progress progress_;
};

TEST_F(segy_layer_setup, the_first_layer_of_a_scene_sets_its_profile) {
  set_up_profile(layer_.get(), record_.get());
  EXPECT_TRUE(zu_prf_data_get_is_profil(profile()));
  EXPECT_EQ(zu_prf_data_get_axes_scale(profile()), 0);
  // The first trace has no coordinates: both words are 0.
  EXPECT_EQ(zu_pv_d2_get_size(zu_prf_data_get_pv(profile())), 39U);
  EXPECT_EQ(zu_prf_data_get_xmin(profile()), 0.5);
  EXPECT_EQ(zu_prf_data_get_xmax(profile()), 40.5);
  EXPECT_EQ(zu_prf_data_get_ymin(profile()), -158);
  EXPECT_EQ(zu_prf_data_get_zmin(profile()), -158);
  EXPECT_EQ(zu_prf_data_get_ymax(profile()), 2);
  EXPECT_EQ(zu_prf_data_get_zmax(profile()), 2);
}

TEST_F(segy_layer_setup, a_simplified_line_keeps_within_two_metres) {
  zu_segy_prms_set_pln_simplify_flag(record_.get(), true);
  set_up_profile(layer_.get(), record_.get());
  EXPECT_EQ(zu_pv_d2_get_size(zu_prf_data_get_pv(profile())), 2U);
}

TEST_F(segy_layer_setup, a_second_layer_of_a_scene_leaves_the_profile_alone) {
  grid_layer2d second;
  owned<zu_lr2d_destroy> layer = make_layer(second);
  zu_scn_2d_add_layer(scene_.get(), layer.get());
  set_up_profile(layer.get(), record_.get());
  EXPECT_FALSE(zu_prf_data_get_is_profil(profile()));
}

TEST_F(segy_layer_setup, a_line_without_points_leaves_the_profile_alone) {
  zu_segy_prms_set_coord_type(record_.get(), 0);
  set_up_profile(layer_.get(), record_.get());
  EXPECT_FALSE(zu_prf_data_get_is_profil(profile()));
  zu_scn_2d_remove_layer(scene_.get(), layer_.get());
  zu_segy_prms_set_coord_type(record_.get(), 2);
  set_up_profile(layer_.get(), record_.get());
  EXPECT_FALSE(zu_prf_data_get_is_profil(profile())) << "a layer without a scene";
}

TEST_F(segy_layer_setup, the_default_scale_spreads_about_the_mean) {
  set_default_scale(layer_.get());
  Tzu_stl_mngr* manager = object_.get_style_manager();
  EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_range);
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  ASSERT_EQ(zu_rng_scale_get_size(scale), 11U);
  // 800 times 10 and 800 times -10: the mean is 0, the deviation sqrt(160000 / 1599).
  double reach = 2 * std::sqrt(160000.0 / 1599);
  EXPECT_NEAR(zu_rng_scale_get_min_value(scale), -reach, 1e-9);
  EXPECT_NEAR(zu_rng_scale_get_max_value(scale), reach, 1e-9);
  EXPECT_NEAR(zu_rng_scale_get_max(scale, 0), -reach * 9 / 11, 1e-9);
  EXPECT_EQ(zu_rng_scale_get_rng_type(scale), zu_range_deviation);
  EXPECT_EQ(zu_rng_scale_get_deviation_coeff(scale), 2.0);
  Tzu_color ends[13] = {};
  ASSERT_TRUE(zu_clr_arrays_generate_ex(25, 13, ends, 0));
  auto color = [](Tzu_scale_prm* row) {
    return *zu_stl_prm_get_clr_style_ptr(zu_scale_prm_get_stl_prm_ptr(row), 0);
  };
  Tzu_color low = color(zu_rng_scale_get_min_prm_ptr(scale));
  Tzu_color high = color(zu_rng_scale_get_max_prm_ptr(scale));
  Tzu_color middle = color(zu_rng_scale_get_scale_prm_ptr(scale, 5));
  EXPECT_EQ(low.r, ends[0].r);
  EXPECT_EQ(high.r, ends[12].r);
  EXPECT_EQ(middle.r, ends[6].r);
  EXPECT_EQ(middle.g, 255);
}

TEST_F(segy_layer_setup, overviews_are_built_once_with_a_progress_window) {
  make_overviews(layer_.get());
  EXPECT_TRUE(has_overviews());
  EXPECT_EQ(progress_.begun, 1);
  EXPECT_EQ(progress_.ended, 1);
  ASSERT_FALSE(progress_.shown.empty());
  EXPECT_EQ(progress_.shown.back(), 100);
  make_overviews(layer_.get());
  EXPECT_EQ(progress_.begun, 1) << "those that are newer are left alone";
  auto future = std::filesystem::file_time_type::clock::now() + std::chrono::hours(1);
  std::filesystem::last_write_time(folder_ / "a.sgy", future);
  make_overviews(layer_.get());
  EXPECT_EQ(progress_.begun, 2) << "those that are older are built anew";
}

TEST_F(segy_layer_setup, overviews_are_not_built_where_the_person_does_not_want_them) {
  zu_options_set_build_overviews(false);
  make_overviews(layer_.get());
  EXPECT_FALSE(has_overviews());
  EXPECT_EQ(progress_.begun, 0);
}

TEST_F(segy_layer_setup, a_stopped_build_leaves_no_overviews) {
  progress_.stop = true;
  make_overviews(layer_.get());
  EXPECT_FALSE(has_overviews());
  EXPECT_EQ(progress_.ended, 1);
}

TEST_F(segy_layer_setup, does_all_three) {
  set_up_segy_layer(layer_.get(), record_.get());
  EXPECT_TRUE(zu_prf_data_get_is_profil(profile()));
  EXPECT_EQ(zu_stl_mngr_get_mode(object_.get_style_manager()), zu_style_range);
  EXPECT_TRUE(has_overviews());
}

TEST_F(segy_layer_setup, a_missing_file_changes_nothing) {
  std::filesystem::remove(folder_ / "a.sgy");
  int mode = zu_stl_mngr_get_mode(object_.get_style_manager());
  set_up_segy_layer(layer_.get(), record_.get());
  EXPECT_FALSE(zu_prf_data_get_is_profil(profile()));
  EXPECT_EQ(zu_stl_mngr_get_mode(object_.get_style_manager()), mode);
  EXPECT_FALSE(has_overviews());
}

TEST_F(segy_layer_setup, progress_is_shown_in_whole_percents) {
  {
    data::ui_monitor monitor;
    monitor.set_caption(L"abc");
    monitor.set_progress(0.999);
    monitor.set_progress(1);
    EXPECT_FALSE(monitor.is_stopped());
    progress_.stop = true;
    EXPECT_TRUE(monitor.is_stopped());
  }
  EXPECT_EQ(progress_.shown, (std::vector<std::int64_t>{99, 100}));
  EXPECT_EQ(progress_.captions, std::vector<std::wstring>{L"abc"});
  EXPECT_EQ(progress_.ended, 1);
}

TEST_F(segy_layer_setup, a_monitor_on_a_window_of_somebody_else_does_not_end_it) {
  Tzu_progress* window = zu_progress_create(1);
  { data::ui_monitor monitor(window); }
  EXPECT_EQ(progress_.ended, 0);
  zu_progress_destroy(window);
  EXPECT_EQ(progress_.ended, 1);
}

}  // namespace
