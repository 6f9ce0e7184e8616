#include "src/style/page/scale_toolbar.h"

#include <filesystem>

#include "tests/unit/src/style/made_scale.h"
#include "tests/unit/src/style/page/asking_host.h"
#include "tests/unit/src/style/page/shown_tools.h"
#include "tests/unit/src/toolkit/fake_views.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using namespace tests;
using namespace zu::style::detail;

/// A scale with its tool bar and the menu of its rows.
template <class model> struct page_tools : made_scale<model> {
  using bar_type = zu::toolkit::toolbar<scale_toolset<model>>;
  using menu_type = style_context_menu<model>;

  page_tools() {
    std::filesystem::remove_all(libraries);
    std::filesystem::create_directories(libraries);
    zu_options_set_style_libs_path(libraries.wstring().c_str());
  }
  ~page_tools() override {
    zu_options_set_style_libs_path(nullptr);
    std::filesystem::remove_all(libraries);
  }
  std::vector<std::vector<shown_tool>> bar_sets() { return sets_of(bar); }
  std::vector<std::vector<shown_tool>> menu_sets() { return sets_of(menu); }
  void act(const std::wstring& id) {
    execute(tool_named(bar_sets(), id) ? bar_sets() : menu_sets(), id);
  }

  const std::filesystem::path libraries =
      std::filesystem::path(testing::TempDir()) / "page_tools_libraries";
  bar_type bar{this->m};
  menu_type menu{this->m};
};

struct value_page_tools : page_tools<color_values> {};
struct range_page_tools : page_tools<color_ranges> {};
struct rule_page_tools : page_tools<color_rules> {};

/// Short for the ids, which all begin so.
std::wstring short_ids(std::wstring text) {
  for (std::wstring start : {L"zu_common_style_tool_", L"zu_common_scale_tool_"})
    for (std::size_t at; (at = text.find(start)) != std::wstring::npos;)
      text.erase(at, start.size());
  return text;
}

constexpr wchar_t actions[] =
    L"edit_style invert_scale color_graident size_graident opacity_graident "
    L"gradients { white_gray_grad white_red_grad white_yellow_grad white_green_grad "
    L"white_blue_grad blue_white_red_grad red_white_blue_grad green_white_brown_grad "
    L"vinous_white_black_grad fresh_grad calm_grad red_grad orange_yellow_grad green_grad "
    L"turquoise_grad blue_grad violet_grad rainbow_grad gentle_rainbow_grad height_light_grad "
    L"height_dark_grad height_depth_grad height_depth_grad_2 dyn_gradients } "
    L"palettes { mineral_palette fresh_palette calm_palette red_palette orange_yellow_palette "
    L"green_palette turquoise_palette blue_palette violet_palette rainbow_palette "
    L"gentle_rainbow_palette dyn_palettes user_palettes_setting }";
constexpr wchar_t caption_sorts[] =
    L"caption_sort_strings { caption_sort_strings_asc caption_sort_strings_dsc } "
    L"caption_sort_numbers { caption_sort_numbers_asc caption_sort_numbers_dsc }";
constexpr wchar_t visibility[] = L"visible_show visible_hide visible_flip";

TEST_F(value_page_tools, stand_in_their_order_with_separators) {
  EXPECT_EQ(short_ids(ids_of(bar_sets(), m.tool_prefix())),
            std::wstring(L"settings | save load | append remove | style { ") + actions +
                L" maplegs style_libs {  } }");
  EXPECT_EQ(
      short_ids(ids_of(menu_sets(), m.tool_prefix())),
      std::wstring(L"value_sort_strings { value_sort_strings_asc value_sort_strings_dsc } "
                   L"value_sort_numbers { value_sort_numbers_asc value_sort_numbers_dsc } | ") +
          caption_sorts + L" | " + visibility);
}

TEST_F(range_page_tools, rescale_too_and_have_no_legends) {
  EXPECT_EQ(short_ids(ids_of(bar_sets(), m.tool_prefix())),
            std::wstring(L"settings rescale | save load | append remove | style { ") + actions +
                L" style_libs {  } }");
  EXPECT_EQ(short_ids(ids_of(menu_sets(), m.tool_prefix())),
            std::wstring(L"minimum_sort_number { minimum_sort_number_asc minimum_sort_number_dsc } "
                         L"| maximum_sort_number { maximum_sort_number_asc "
                         L"maximum_sort_number_dsc } | ") +
                caption_sorts + L" | " + visibility);
}

TEST_F(rule_page_tools, import_the_other_scales) {
  EXPECT_EQ(short_ids(ids_of(bar_sets(), m.tool_prefix())),
            std::wstring(L"settings | save load | append remove | style { ") + actions +
                L" maplegs style_libs {  } }");
  EXPECT_EQ(short_ids(ids_of(menu_sets(), m.tool_prefix())),
            std::wstring(L"build_value_rules build_range_rules_range | ") + caption_sorts + L" | " +
                visibility);
}

TEST(scale_tool_keys, are_shared_by_layers_of_one_type_and_by_nobody_else) {
  auto key = []<class model>(model*, const wchar_t* context) {
    model m;
    m.context = context;
    zu::toolkit::toolbar<scale_toolset<model>> bar(m);
    return sets_of(bar)[0][0].key;
  };
  color_values* values = nullptr;
  color_ranges* ranges = nullptr;
  point_values* points = nullptr;
  EXPECT_EQ(key(values, L"grid_layer2d"), key(values, L"grid_layer2d"));
  EXPECT_NE(key(values, L"grid_layer2d"), key(ranges, L"grid_layer2d"));
  EXPECT_NE(key(values, L"grid_layer2d"), key(points, L"grid_layer2d"));
  EXPECT_NE(key(values, L"grid_layer2d"), key(values, L"other_layer"));
  EXPECT_TRUE(key(values, L"grid_layer2d").starts_with(L"zu_common_scale_tool_settings"));
}

TEST_F(value_page_tools, have_a_text_in_both_languages) {
  for (std::int32_t language : {0, 1}) {
    zu_res_set_lng(language);
    auto check = [](auto& self, const std::vector<shown_tool>& tools) -> void {
      for (const shown_tool& t : tools) {
        EXPECT_NE(text([&](auto v) { call<&action_tool_impl::caption>(t.tool, v); }), L"")
            << std::string(t.key.begin(), t.key.end());
        self(self, menu_of(t.tool));
      }
    };
    for (const auto& sets : {bar_sets(), menu_sets()})
      for (const auto& set : sets) check(check, set);
  }
  zu_res_set_lng(0);
}

TEST_F(value_page_tools, show_hide_and_flip_all_rows_or_the_marked_ones_if_they_are_several) {
  set_size(3);
  mark({1});
  act(L"zu_common_style_tool_visible_hide");
  EXPECT_EQ(visible(), (std::vector<bool>{false, false, false}));
  mark({0, 2});
  act(L"zu_common_style_tool_visible_show");
  EXPECT_EQ(visible(), (std::vector<bool>{true, false, true}));
  act(L"zu_common_style_tool_visible_flip");
  EXPECT_EQ(visible(), (std::vector<bool>{false, false, false}));
  EXPECT_EQ(told, 3);
}

TEST_F(value_page_tools, tell_of_visibility_on_an_empty_scale_too) {
  act(L"zu_common_style_tool_visible_show");
  act(L"zu_common_style_tool_visible_hide");
  act(L"zu_common_style_tool_visible_flip");
  EXPECT_EQ(told, 3);
}

TEST_F(range_page_tools, show_and_hide_the_tails_as_other_rows) {
  set_size(1);
  act(L"zu_common_style_tool_visible_hide");
  EXPECT_EQ(visible(), (std::vector<bool>{false, false, false}));
  mark({0, 2});
  act(L"zu_common_style_tool_visible_show");
  EXPECT_EQ(visible(), (std::vector<bool>{true, false, true}));
}

TEST_F(value_page_tools, sort_values_and_captions_as_texts_and_as_numbers) {
  struct {
    const wchar_t* id;
    std::wstring values;
  } cases[] = {
      {L"zu_common_style_tool_value_sort_strings_asc", L"10,2,a"},
      {L"zu_common_style_tool_value_sort_strings_dsc", L"a,2,10"},
      {L"zu_common_style_tool_value_sort_numbers_asc", L"2,10,a"},
      {L"zu_common_style_tool_value_sort_numbers_dsc", L"a,10,2"},
      {L"zu_common_style_tool_caption_sort_strings_asc", L"a,10,2"},
      {L"zu_common_style_tool_caption_sort_strings_dsc", L"2,10,a"},
      {L"zu_common_style_tool_caption_sort_numbers_asc", L"2,a,10"},
      {L"zu_common_style_tool_caption_sort_numbers_dsc", L"10,a,2"},
  };
  for (const auto& c : cases) {
    set_size(3);
    const wchar_t* rows[][2] = {{L"10", L"20"}, {L"a", L"100"}, {L"2", L"3"}};
    // As texts "100" < "20" < "3", as numbers 3 < 20 < 100.
    for (int i = 0; i < 3; ++i) m.set_value(i, rows[i][0]), m.set_caption(i, rows[i][1]);
    act(c.id);
    std::wstring values = m.get_value(0) + L"," + m.get_value(1) + L"," + m.get_value(2);
    if (std::wstring(c.id).ends_with(L"caption_sort_numbers_asc")) {
      EXPECT_EQ(values, L"2,10,a");
    } else if (std::wstring(c.id).ends_with(L"caption_sort_numbers_dsc")) {
      EXPECT_EQ(values, L"a,10,2");
    } else {
      EXPECT_EQ(values, c.values) << std::string(c.id, c.id + wcslen(c.id));
    }
  }
  EXPECT_EQ(told, 8);
}

TEST_F(range_page_tools, sort_classes_by_their_limits) {
  set_size(2);
  m.set_min(1, L"5"), m.set_max(1, L"6"), m.set_min(2, L"1"), m.set_max(2, L"9");
  act(L"zu_common_style_tool_minimum_sort_number_asc");
  EXPECT_EQ(m.get_min(1), L"1");
  act(L"zu_common_style_tool_minimum_sort_number_dsc");
  EXPECT_EQ(m.get_min(1), L"5");
  act(L"zu_common_style_tool_maximum_sort_number_dsc");
  EXPECT_EQ(m.get_max(1), L"9");
  act(L"zu_common_style_tool_maximum_sort_number_asc");
  EXPECT_EQ(m.get_max(1), L"6");
}

TEST_F(value_page_tools, spread_an_array_over_the_rows_as_a_ramp_or_colour_by_colour) {
  set_size(3);
  std::vector<Tzu_color> ramp(3), turns(3);
  ASSERT_TRUE(zu_clr_arrays_generate_ex(8, 3, ramp.data(), 0));
  ASSERT_TRUE(zu_clr_arrays_generate_ex(8, 3, turns.data(), 1));
  ASSERT_NE(ramp[1].g, turns[1].g);
  act(L"zu_common_style_tool_rainbow_grad");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(color(i)[1], ramp[static_cast<std::size_t>(i)].g);
  act(L"zu_common_style_tool_rainbow_palette");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(color(i)[1], turns[static_cast<std::size_t>(i)].g);
  EXPECT_EQ(told, 2);
}

TEST_F(value_page_tools, draw_a_strip_of_their_array) {
  struct strip final : bitmap_visitor_impl, bytes_visitor_impl {
    void visit(zu::bitmap picture) override {
      call<&bitmap_impl::pixels>(picture, bytes_visitor(handle_of<bytes_visitor_impl>(*this)));
    }
    void visit(std::uint64_t height, std::uint64_t, std::uint64_t width, std::uint64_t,
               std::uint64_t, std::uint64_t, const std::uint8_t* bytes) override {
      size = {width, height};
      pixels.assign(bytes, bytes + width * height * 4);
    }
    std::pair<std::uint64_t, std::uint64_t> size;
    std::vector<std::uint8_t> pixels;
  };
  auto drawn = [&](const wchar_t* id) {
    strip taken;
    call<&tool_pictures_impl::visit>(cast<tool_pictures_impl>(tool_named(bar_sets(), id)), -1, 12u,
                                     4u, bitmap_visitor(handle_of<bitmap_visitor_impl>(taken)));
    return taken;
  };
  strip gray = drawn(L"zu_common_style_tool_white_gray_grad");
  EXPECT_EQ(gray.size, (std::pair<std::uint64_t, std::uint64_t>{12, 4}));
  std::vector<Tzu_color> ramp(12);
  ASSERT_TRUE(zu_clr_arrays_generate_ex(0, 12, ramp.data(), 0));
  EXPECT_EQ(gray.pixels[0], ramp[0].r);
  EXPECT_EQ(gray.pixels[3], 255);
  EXPECT_EQ(gray.pixels[11 * 4], ramp[11].r);
  EXPECT_NE(drawn(L"zu_common_style_tool_rainbow_grad").pixels,
            drawn(L"zu_common_style_tool_rainbow_palette").pixels);
  EXPECT_TRUE(drawn(L"zu_common_style_tool_edit_style").pixels.empty());
}

TEST_F(value_page_tools, offer_the_palettes_of_the_person_as_they_are_now) {
  owned<zu_clr_palettes_destroy> before(zu_clr_palettes_create());
  zu_clr_palettes_assign(before.get(), zu_get_user_palettes());
  while (zu_clr_palettes_get_size(zu_get_user_palettes()) > 0)
    zu_clr_palettes_del(zu_get_user_palettes(), 0);

  handle menu =
      cast<multiaction_tool_impl>(tool_named(bar_sets(), L"zu_common_style_tool_dyn_palettes"));
  EXPECT_EQ(call<&multiaction_tool_impl::count>(menu), 0u);
  EXPECT_FALSE(call<&multiaction_tool_impl::enabled>(menu));
  Tzu_clr_palette* own = zu_clr_palettes_add(zu_get_user_palettes());
  zu_clr_palette_set_wcaption(own, L"Rocks");
  zu_clr_palette_add_color(own, {1, 2, 3, 0});
  zu_clr_palette_add_color(own, {4, 5, 6, 0});
  EXPECT_EQ(call<&multiaction_tool_impl::count>(menu), 1u);
  EXPECT_TRUE(call<&multiaction_tool_impl::enabled>(menu));
  EXPECT_EQ(text([&](auto v) { call<&multiaction_tool_impl::item_text>(menu, 0u, v); }), L"Rocks");
  set_size(3);
  call<&multiaction_tool_impl::execute>(menu, 0u);
  EXPECT_EQ(reds(), (std::vector<int>{1, 4, 1}));
  call<&multiaction_tool_impl::execute>(menu, 1u);
  EXPECT_EQ(told, 1);

  zu_clr_palettes_assign(zu_get_user_palettes(), before.get());
}

TEST_F(value_page_tools, offer_the_legends_of_the_project) {
  handle menu =
      cast<multiaction_tool_impl>(tool_named(bar_sets(), L"zu_common_style_tool_maplegs"));
  Tzu_prj* before = zu_prj_get_instance();
  zu_prj_set_instance(nullptr);
  EXPECT_EQ(call<&multiaction_tool_impl::count>(menu), 0u);
  owned<zu_prj_destroy> project(zu_prj_create());
  zu_prj_set_instance(project.get());
  Tzu_mapleg* legend = zu_maplegs_add(zu_prj_get_maplegs_ptr(project.get()), L"Ages");
  Tzu_val_scale* rows = zu_mapleg_get_val_scale_ptr(legend);
  zu_val_scale_set_size(rows, 1);
  zu_val_scale_set_text_w(rows, 0, L"J");
  zu_val_scale_set_caption_w(rows, 0, L"Jurassic");
  EXPECT_EQ(call<&multiaction_tool_impl::count>(menu), 1u);
  EXPECT_EQ(text([&](auto v) { call<&multiaction_tool_impl::item_text>(menu, 0u, v); }), L"Ages");
  set_size(1);
  m.set_value(0, L"J");
  call<&multiaction_tool_impl::execute>(menu, 0u);
  EXPECT_EQ(m.get_caption(0), L"Jurassic");
  EXPECT_EQ(told, 1);
  zu_prj_set_instance(before);
}

TEST_F(value_page_tools, offer_the_libraries_that_there_are_now) {
  handle menu = tool_named(bar_sets(), L"zu_common_style_tool_style_libs");
  EXPECT_TRUE(menu_of(menu).empty());
  EXPECT_FALSE(call<&category_tool_impl::enabled>(menu));
  owned<zu_style_lib_destroy> library(zu_style_lib_create());
  zu_style_lib_set_caption(library.get(), L"Rocks");
  zu_style_item_add(zu_style_lib_get_root_item_ptr(library.get()), 12, L"tuff");
  ASSERT_TRUE(
      zu_xml_data_save_style_lib_file((libraries / "a._ls").wstring().c_str(), library.get()));
  std::vector<shown_tool> shown = menu_of(menu);
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_TRUE(call<&category_tool_impl::enabled>(menu));
  EXPECT_EQ(shown[0].key, L"zu_common_style_tool_style_lib_0" + m.tool_prefix());
  EXPECT_EQ(text([&](auto v) { call<&action_tool_impl::caption>(shown[0].tool, v); }), L"Rocks");
  base_language base;
  EXPECT_EQ(text([&](auto v) { call<&action_tool_impl::hint>(shown[0].tool, v); }),
            L"Применить библиотеку стилей");
  EXPECT_EQ(menu_of(menu)[0].tool.instance, shown[0].tool.instance) << "a host may keep it";
  set_size(1);
  m.set_value(0, L"12.7");
  call<&action_tool_impl::execute>(shown[0].tool);
  EXPECT_EQ(m.get_caption(0), L"tuff");
  EXPECT_EQ(told, 1);
}

TEST_F(value_page_tools, add_a_row_behind_the_active_one_and_remove_the_marked_ones) {
  set_size(2);
  m.set_value(0, L"a"), m.set_value(1, L"b");
  m.set_active_row(0);
  act(L"zu_common_scale_tool_append");
  ASSERT_EQ(m.row_count(), 3);
  EXPECT_EQ(m.get_value(1), L"");
  mark({0, 1});
  act(L"zu_common_scale_tool_remove");
  ASSERT_EQ(m.row_count(), 1);
  EXPECT_EQ(m.get_value(0), L"b");
  EXPECT_EQ(told, 2);
}

TEST_F(range_page_tools, remove_classes_and_never_the_tails) {
  set_size(2);
  mark({0, 1, 3});
  act(L"zu_common_scale_tool_remove");
  EXPECT_EQ(m.row_count(), 3);
  EXPECT_EQ(m.get_min(0), L"-∞");
}

TEST_F(rule_page_tools, add_nothing_without_an_editor_of_rules) {
  act(L"zu_common_scale_tool_append");
  act(L"zu_common_scale_tool_settings");
  EXPECT_EQ(m.row_count(), 0);
  EXPECT_EQ(told, 0);
}

TEST_F(rule_page_tools, make_rules_of_the_value_scale) {
  zu_stl_mngr_set_val_prop_name_w(manager.get(), L"z");
  zu_val_scale_set_size(zu_stl_mngr_get_val_scale_ptr(manager.get()), 2);
  act(L"zu_common_style_tool_build_value_rules");
  EXPECT_EQ(m.row_count(), 2);
  act(L"zu_common_style_tool_build_range_rules_range");
  EXPECT_EQ(m.row_count(), 2);
  EXPECT_EQ(told, 2);
}

TEST_F(value_page_tools, turn_the_styles_and_spread_them_between_the_ends) {
  set_size(3);
  paint();
  act(L"zu_common_style_tool_invert_scale");
  EXPECT_EQ(reds(), (std::vector<int>{20, 10, 0}));
  zu_stl_prm_clr_set_all(m.get_style_prm(1), {200, 0, 0, 0}, 0);
  act(L"zu_common_style_tool_color_graident");
  EXPECT_EQ(reds(), (std::vector<int>{20, 10, 0}));
  EXPECT_EQ(told, 2);
}

TEST_F(value_page_tools, edit_the_active_row_s_style_or_that_of_all_marked_rows) {
  asking_host host;
  set_size(3);
  paint();
  m.set_active_row(1);
  act(L"zu_common_style_tool_edit_style");
  EXPECT_EQ(reds(), (std::vector<int>{0, 77, 20}));
  mark({0, 2});
  act(L"zu_common_style_tool_edit_style");
  EXPECT_EQ(reds(), (std::vector<int>{77, 77, 77}));
  EXPECT_EQ(told, 2);
  host.accepts = false;
  paint();
  act(L"zu_common_style_tool_edit_style");
  EXPECT_EQ(reds(), (std::vector<int>{0, 10, 20}));
  EXPECT_EQ(told, 2);
}

TEST_F(value_page_tools, save_the_scale_and_load_it_again) {
  base_language base;
  asking_host host;
  set_size(2);
  m.set_value(0, L"a"), m.set_value(1, L"b");
  act(L"zu_common_scale_tool_save");
  EXPECT_EQ(host.filter, L"Файл шкалы значений (*._vl)|*._vl");
  host.filter.clear();

  std::filesystem::path file = std::filesystem::path(testing::TempDir()) / "tools._vl";
  std::filesystem::remove(file);
  host.path = file.wstring();
  act(L"zu_common_scale_tool_save");
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(told, 0);
  m.set_value(0, L"changed");
  act(L"zu_common_scale_tool_load");
  EXPECT_EQ(host.filter, L"Файл шкалы значений (*._vl)|*._vl");
  EXPECT_EQ(m.get_value(0), L"a");
  EXPECT_EQ(told, 1);

  host.path += L".none";
  act(L"zu_common_scale_tool_load");
  EXPECT_EQ(m.get_value(0), L"a");
  EXPECT_EQ(told, 1);
}

TEST_F(value_page_tools, say_which_scale_could_not_be_saved_and_why) {
  asking_host host;
  host.path = (std::filesystem::path(testing::TempDir()) / "no folder" / "a._vl").wstring();
  act(L"zu_common_scale_tool_save");
  EXPECT_EQ(host.warning, host.path + L": no such folder");
  host.path = L"/dev/full";
  act(L"zu_common_scale_tool_save");
  EXPECT_EQ(host.warning, L"/dev/full: is not a regular file");
}

TEST_F(range_page_tools, say_which_scale_could_not_be_saved_and_why) {
  asking_host host;
  host.path = std::filesystem::path(testing::TempDir()).wstring();
  act(L"zu_common_scale_tool_save");
  EXPECT_EQ(host.warning, host.path + L": is a folder");
}

TEST_F(range_page_tools, suggest_the_name_by_which_the_scale_is_found_again) {
  asking_host host;
  m.source.name = L"/data/hills.tif";
  m.set_field(L"z");
  act(L"zu_common_scale_tool_save");
  EXPECT_EQ(host.suggested, L"/data/hills.z._rg");
}

TEST_F(value_page_tools, are_silent_without_a_manager) {
  asking_host host;
  host.path = L"/nowhere";
  m.mngr = nullptr;
  auto press_all = [](auto& self, const std::vector<shown_tool>& tools) -> void {
    for (const shown_tool& t : tools) {
      if (handle action = cast<action_tool_impl>(t.tool);
          action && !t.key.starts_with(L"zu_common_style_tool_user_palettes_setting"))
        call<&action_tool_impl::execute>(action);
      self(self, menu_of(t.tool));
    }
  };
  for (const auto& sets : {bar_sets(), menu_sets()})
    for (const auto& set : sets) press_all(press_all, set);
  EXPECT_EQ(told, 0);
  EXPECT_EQ(host.filter, L"");
}

}  // namespace
