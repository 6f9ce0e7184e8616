#include <gtest/gtest.h>

#include "tests/unit/platform/taken_text.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_lr2d.h"

namespace {

using tests::text_of;
using tests::texts_of;

struct scene : testing::Test {
  ~scene() override {
    zu_lr2d_destroy(low);
    zu_lr2d_destroy(high);
    zu_scn_2d_destroy(first);
    zu_scn_2d_destroy(second);
  }
  Tzu_scn_2d *first = zu_scn_2d_create(), *second = zu_scn_2d_create();
  Izu_layer *low = zu_lr2d_create("grid_lr2d"), *high = zu_lr2d_create("image_lr2d");
};

TEST_F(scene, holds_its_layers_the_lowest_first) {
  zu_scn_2d_add_layer(first, low);
  zu_scn_2d_add_layer(first, high);
  ASSERT_EQ(zu_scn_2d_get_layer_count(first), 2u);
  EXPECT_EQ(zu_scn_2d_get_layer(first, 0), low);
  EXPECT_EQ(zu_scn_2d_get_layer(first, 1), high);
  EXPECT_EQ(zu_scn_2d_get_layer(first, 2), nullptr);
  EXPECT_EQ(zu_lr_get_scene(low), first);
  EXPECT_EQ(zu_lr2d_get_scn_2d(high), first);
}

TEST_F(scene, a_layer_stands_in_one_alone) {
  zu_scn_2d_add_layer(first, low);
  zu_scn_2d_add_layer(second, low);
  EXPECT_EQ(zu_scn_2d_get_layer_count(first), 0u);
  EXPECT_EQ(zu_lr_get_scene(low), second);
  zu_scn_2d_remove_layer(first, low);  // stands elsewhere
  EXPECT_EQ(zu_lr_get_scene(low), second);
}

TEST_F(scene, a_layer_that_ends_leaves_it) {
  zu_scn_2d_add_layer(first, low);
  zu_scn_2d_add_layer(first, high);
  zu_lr2d_destroy(low);
  low = nullptr;
  ASSERT_EQ(zu_scn_2d_get_layer_count(first), 1u);
  EXPECT_EQ(zu_scn_2d_get_layer(first, 0), high);
}

TEST_F(scene, its_layers_outlive_it) {
  zu_scn_2d_add_layer(first, low);
  zu_scn_2d_destroy(first);
  first = nullptr;
  EXPECT_EQ(zu_lr_get_scene(low), nullptr);
}

TEST_F(scene, its_projection_is_the_target_of_its_layers) {
  auto target = [&] { return texts_of([&](auto* a) { zu_lr2d_get_dst_pj4wstr(low, a); }); };
  zu_scn_2d_set_pj4wstr(first, L"EPSG:32637");
  for (const std::wstring& text : target()) EXPECT_TRUE(text.empty());
  zu_scn_2d_add_layer(first, low);
  ASSERT_EQ(target().size(), 1u);
  EXPECT_TRUE(target()[0] == L"EPSG:32637");
}

TEST_F(scene, a_new_one_has_no_colour_of_selection) {
  EXPECT_FALSE(zu_scn_2d_get_selected_style_clr(first).is_set);
  zu_scn_2d_set_selected_style_clr(first, {{1, 2, 3, 4}, 1});
  EXPECT_TRUE(zu_scn_2d_get_selected_style_clr(first).is_set);
  EXPECT_EQ(zu_scn_2d_get_selected_style_clr(first).color.b, 3);
  EXPECT_FALSE(zu_scn_2d_get_selected_style_clr(nullptr).is_set);
}

TEST_F(scene, an_entity_keeps_what_it_is_told) {
  EXPECT_STREQ(zu_lr2d_get_lr_type(high), "image_lr2d");
  zu_lr2d_set_wsource(low, L"a.tif");
  zu_lr_set_wcaption(low, L"Depth");
  EXPECT_TRUE(text_of([&](auto* a) { zu_lr2d_get_wsource(low, a); }) == L"a.tif");
  EXPECT_TRUE(text_of([&](auto* a) { zu_lr2d_get_wcaption(low, a); }) == L"Depth");
  EXPECT_FALSE(zu_lr2d_is_missing(low));
  zu_lr2d_set_valid(low, true);
  EXPECT_TRUE(zu_lr2d_is_missing(low));
  zu_lr2d_data_changed(low);
  EXPECT_EQ(zu_lr2d_get_change_count(low), 1u);
  zu_lr_set_own_selected_style_flag(low, true);
  EXPECT_TRUE(zu_lr_get_own_selected_style_flag(low));
  EXPECT_FALSE(zu_lr_get_own_selected_style_flag(high));
}

TEST_F(scene, a_box_is_known_until_it_is_taken_back) {
  Tzu_box_d2 box{}, got{};
  EXPECT_FALSE(zu_lr2d_get_box(low, &got));
  zu_lr2d_set_box(low, true, &box);
  EXPECT_TRUE(zu_lr2d_get_box(low, &got));
  zu_lr2d_set_box(low, false, &box);
  EXPECT_FALSE(zu_lr2d_get_box(low, &got));
}

TEST_F(scene, an_entity_is_tied_to_its_table) {
  Tzu_table_data* table = zu_table_data_create();
  EXPECT_EQ(zu_lr2d_get_data_ptr(low), nullptr);
  zu_plugin_lr2d_bind_entity(low, zu_table_data_safe_upcast(table));
  EXPECT_EQ(zu_lr2d_get_data_ptr(low), table);
  zu_table_data_destroy(table);
}

/// A plug-in object that may take part in reprojection.
struct projected_layer final : zu::layer_2d_impl {
  bool projected = true;
  bool has_projection() override { return projected; }
  void get_proj4(zu::string_visitor visitor) override {
    zu::call<&zu::string_visitor_impl::visit>(visitor, L"+proj=utm");
  }
};

TEST_F(scene, the_projection_of_a_layer_is_what_its_plug_in_says) {
  auto own = [&] { return texts_of([&](auto* a) { zu_lr2d_get_pj4wstr(low, a); }); };
  EXPECT_TRUE(own().empty());  // no plug-in
  EXPECT_EQ(zu_lr2d_get_plugin_interface(low), nullptr);
  projected_layer plugin;
  zu_lr2d_set_plugin_interface(low, zu::handle_of<zu::layer_2d_impl>(plugin));
  ASSERT_NE(zu_lr2d_get_plugin_interface(low), nullptr);
  ASSERT_EQ(own().size(), 1u);
  EXPECT_TRUE(own()[0] == L"+proj=utm");
  plugin.projected = false;
  EXPECT_TRUE(own().empty());
}

TEST_F(scene, missing_entities_and_scenes_do_no_harm) {
  zu_scn_2d_add_layer(nullptr, low);
  zu_scn_2d_add_layer(first, nullptr);
  EXPECT_EQ(zu_scn_2d_get_layer_count(first), 0u);
  EXPECT_EQ(zu_lr_get_scene(nullptr), nullptr);
  EXPECT_STREQ(zu_lr2d_get_lr_type(nullptr), "");
  zu_lr2d_destroy(nullptr);
  zu_scn_2d_destroy(nullptr);
}

}  // namespace
