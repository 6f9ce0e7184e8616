#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_io.h"

namespace {

using tests::text_of;
using tests::texts_of;

struct tree : testing::Test {
  Tzu_xnode* root = zu_xnode_create_root_w(L"root");
  ~tree() override { zu_xnode_close(root); }
};

TEST_F(tree, gives_back_what_was_set_and_the_default_of_what_was_not) {
  zu_xnode_set_attr_wstr(root, L"text", L"<Поле> & \"x\"");
  zu_xnode_set_attr_bool_w(root, L"yes", true);
  zu_xnode_set_attr_bool_w(root, L"no", false);
  zu_xnode_set_attr_int_w(root, L"int", std::numeric_limits<std::int64_t>::min());
  zu_xnode_set_attr_dbl_w(root, L"dbl", 0.1);
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_xnode_get_attr_wstr(root, L"text", t); }),
            L"<Поле> & \"x\"");
  EXPECT_TRUE(zu_xnode_get_attr_bool_w(root, L"yes", false));
  EXPECT_FALSE(zu_xnode_get_attr_bool_w(root, L"no", true));
  EXPECT_EQ(zu_xnode_get_attr_int_w(root, L"int", 5), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(root, L"dbl", 5), 0.1);
  EXPECT_TRUE(zu_xnode_get_attr_bool_w(root, L"none", true));
  EXPECT_EQ(zu_xnode_get_attr_int_w(root, L"text", 5), 5);
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(root, L"text", 5), 5);
  EXPECT_TRUE(
      texts_of([&](Tzu_string_adp* t) { zu_xnode_get_attr_wstr(root, L"none", t); }).empty());
}

TEST_F(tree, numbers_keep_every_bit) {
  for (double value : {1.0 / 3, 1e-308, -0.0, 6.02214076e23, HUGE_VAL}) {
    zu_xnode_set_attr_dbl_w(root, L"v", value);
    EXPECT_EQ(zu_xnode_get_attr_dbl_w(root, L"v", 7), value);
  }
}

TEST_F(tree, setting_again_replaces) {
  zu_xnode_set_attr_int_w(root, L"v", 1);
  zu_xnode_set_attr_int_w(root, L"v", 2);
  EXPECT_EQ(zu_xnode_get_attr_int_w(root, L"v", 0), 2);
}

TEST_F(tree, set_adds_a_child_once_and_get_finds_it) {
  EXPECT_EQ(zu_xnode_get_node_w(root, L"child"), nullptr);
  Tzu_xnode* child = zu_xnode_set_node_w(root, L"child");
  zu_xnode_set_attr_int_w(child, L"v", 1);
  zu_xnode_close(child);
  child = zu_xnode_set_node_w(root, L"child");
  EXPECT_EQ(zu_xnode_get_attr_int_w(child, L"v", 0), 1);
  zu_xnode_close(child);
  child = zu_xnode_get_node_w(root, L"child");
  ASSERT_NE(child, nullptr);
  zu_xnode_close(child);
  EXPECT_EQ(zu_xnode_set_node_w(nullptr, L"x"), nullptr);
}

TEST_F(tree, a_colour_group_that_is_absent_or_broken_leaves_the_colour) {
  Tzu_color color{1, 2, 3, 4};
  EXPECT_FALSE(zu_xml_data_load_color(nullptr, root, L"c", &color));
  Tzu_xnode* broken = zu_xnode_set_node_w(root, L"c");
  zu_xnode_set_attr_int_w(broken, L"r", 300);
  zu_xnode_close(broken);
  EXPECT_FALSE(zu_xml_data_load_color(nullptr, root, L"c", &color));
  EXPECT_EQ(color.r, 1);
  zu_xml_data_save_color(nullptr, root, L"c", {9, 8, 7, 6});
  EXPECT_TRUE(zu_xml_data_load_color(nullptr, root, L"c", &color));
  EXPECT_EQ(color.r, 9);
  EXPECT_EQ(color.a, 6);
}

TEST_F(tree, channels_come_back_with_names_and_limits) {
  Tzu_rgb_channels* saved = zu_rgb_channels_create();
  Tzu_rgb_channels* loaded = zu_rgb_channels_create();
  EXPECT_FALSE(zu_xml_save_style_load_rgb_channels(nullptr, root, L"channels", loaded));
  zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_gray(saved), L"Высота");
  zu_clr_channel_set_limits(zu_rgb_channels_get_gray(saved), -0.1, 1e9);
  zu_xml_save_style_save_rgb_channels(nullptr, root, L"channels", saved);
  EXPECT_TRUE(zu_xml_save_style_load_rgb_channels(nullptr, root, L"channels", loaded));
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(loaded);
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_clr_channel_get_prop_name_w(gray, t); }),
            L"Высота");
  EXPECT_EQ(zu_clr_channel_get_minimum(gray), -0.1);
  EXPECT_EQ(zu_clr_channel_get_maximum(gray), 1e9);
  zu_rgb_channels_destroy(saved);
  zu_rgb_channels_destroy(loaded);
}

TEST_F(tree, keys_that_are_no_xml_names_work) {
  for (const wchar_t* key : {L"two words", L"1st", L"a=\"b\"", L"\x0412\x044B\x0441"}) {
    zu_xnode_set_attr_wstr(root, key, L"here");
    EXPECT_TRUE(text_of([&](auto* a) { zu_xnode_get_attr_wstr(root, key, a); }) == L"here");
    zu_xnode_close(zu_xnode_set_node_w(root, key));
    Tzu_xnode* child = zu_xnode_get_node_w(root, key);
    EXPECT_NE(child, nullptr);
    zu_xnode_close(child);
  }
}

TEST_F(tree, what_is_no_value_gives_the_default) {
  for (const wchar_t* bad : {L"", L"x", L"1,5", L"12 ", L"99999999999999999999", L"yes"}) {
    zu_xnode_set_attr_wstr(root, L"v", bad);
    EXPECT_EQ(zu_xnode_get_attr_int_w(root, L"v", 42), 42);
    EXPECT_TRUE(zu_xnode_get_attr_bool_w(root, L"v", true));
    EXPECT_FALSE(zu_xnode_get_attr_bool_w(root, L"v", false));
  }
  zu_xnode_set_attr_wstr(root, L"v", L"1,5");
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(root, L"v", 42), 42.0);
  EXPECT_EQ(zu_xnode_get_attr_dbl_w(root, L"absent", 42), 42.0);
}

TEST_F(tree, bools_are_read_as_digits_and_as_words) {
  struct {
    const wchar_t* text;
    bool value;
  } const rows[] = {{L"1", true}, {L"0", false}, {L"true", true}, {L"false", false}};
  for (const auto& row : rows) {
    zu_xnode_set_attr_wstr(root, L"b", row.text);
    EXPECT_EQ(zu_xnode_get_attr_bool_w(root, L"b", !row.value), row.value);
  }
}

TEST_F(tree, a_missing_or_empty_key_holds_nothing) {
  for (const wchar_t* key : {static_cast<const wchar_t*>(nullptr), L""}) {
    zu_xnode_set_attr_int_w(root, key, 1);
    EXPECT_EQ(zu_xnode_get_attr_int_w(root, key, 5), 5);
    EXPECT_EQ(zu_xnode_set_node_w(root, key), nullptr);
    EXPECT_EQ(zu_xnode_get_node_w(root, key), nullptr);
  }
}

TEST_F(tree, a_channel_keeps_what_its_group_does_not_say) {
  Tzu_rgb_channels* channels = zu_rgb_channels_create();
  Tzu_clr_channel* green = zu_rgb_channels_get_green(channels);
  zu_clr_channel_set_prop_name_w(green, L"Band 2");
  zu_clr_channel_set_limits(green, -1.5, 3);
  Tzu_xnode* group = zu_xnode_set_node_w(root, L"channels");
  Tzu_xnode* child = zu_xnode_set_node_w(group, L"green");
  zu_xnode_set_attr_dbl_w(child, L"max", 9);
  EXPECT_TRUE(zu_xml_save_style_load_rgb_channels(nullptr, root, L"channels", channels));
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_clr_channel_get_prop_name_w(green, t); }),
            L"Band 2");
  EXPECT_EQ(zu_clr_channel_get_minimum(green), -1.5);
  EXPECT_EQ(zu_clr_channel_get_maximum(green), 9);
  zu_xnode_close(child);
  zu_xnode_close(group);
  zu_rgb_channels_destroy(channels);
}

TEST(json, keeps_the_order_and_writes_numbers_with_a_point) {
  Tzu_json_obj* root = zu_json_obj_create();
  zu_json_obj_add_str(root, L"я", L"\"кавычки\"");
  Tzu_json_obj* child = zu_json_obj_add_obj(root, L"group");
  zu_json_obj_add_int(root, L"a", -5);
  zu_json_obj_add_dbl(child, L"d", 0.5);
  zu_json_obj_add_dbl(child, L"nan", std::nan(""));
  EXPECT_EQ(
      text_of([&](Tzu_string_adp* t) { zu_json_obj_get_text_w(root, t); }),
      L"{\n  \"я\": \"\\\"кавычки\\\"\",\n  \"group\": {\n    \"d\": 0.5,\n    \"nan\": null\n"
      L"  },\n  \"a\": -5\n}");
  zu_json_obj_destroy(root);
}

TEST(json, a_missing_key_counts_as_empty) {
  Tzu_json_obj* root = zu_json_obj_create();
  zu_json_obj_add_str(root, nullptr, nullptr);
  EXPECT_EQ(text_of([&](Tzu_string_adp* t) { zu_json_obj_get_text_w(root, t); }),
            L"{\n  \"\": \"\"\n}");
  zu_json_obj_destroy(root);
}

}  // namespace
