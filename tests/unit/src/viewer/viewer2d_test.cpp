// The element with a scene of its own, as a host meets it.

#include "src/viewer/viewer2d.h"

#include <gtest/gtest.h>

#include <map>

#include "src/bundle/strings.h"
#include "tests/unit/src/viewer/counting_window.h"

namespace zu::element {
namespace {

/// What stands in a cell of the element's layout.
handle cell_of(viewer2d& element, std::uint32_t row) {
  struct receiver final : element_visitor_impl {
    handle taken;
    void visit(handle given) override { taken = given; }
  } r;
  call<&grid_layout_impl::visit_cell>(element.element(), 0u, row,
                                      element_visitor(handle_of<element_visitor_impl>(r)));
  return r.taken;
}

struct tools final : tool_set_visitor_impl, tool_visitor_impl {
  std::vector<std::vector<std::wstring>> ids;
  std::map<std::wstring, handle> all;
  void visit(tool_set set) override {
    ids.emplace_back();
    call<&tool_set_impl::visit>(set, tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  void visit(const wchar_t* id, handle tool) override {
    ids.back().emplace_back(id);
    all[id] = tool;
  }
};
tools tools_of(viewer2d& element) {
  tools t;
  call<&toolbar_impl::visit>(cell_of(element, 0),
                             tool_set_visitor(handle_of<tool_set_visitor_impl>(t)));
  return t;
}
std::wstring named(const std::wstring& name) {
  return L"zu_common_plugin_viewer2d_panel_tool_" + name;
}
bool checked(handle tool) { return call<&mode_tool_impl::checked>(tool); }

TEST(viewer2d_element, commands_before_a_viewer_came_do_nothing) {
  viewer2d element;
  element.zoom_to_scene();
  element.recalc_and_zoom();
  element.zoom_box({0, 0, 1, 1});
  element.zoom_to_data({0, 0, 1, 1});
  EXPECT_EQ(element.viewer(), nullptr);
  EXPECT_NE(element.scene(), nullptr);
}
TEST(viewer2d_element, the_tool_bar_stands_above_the_panel) {
  viewer2d element;
  EXPECT_EQ(cell_of(element, 1), handle_of<viewer_2d_panel_impl>(element.panel()));
  EXPECT_TRUE(call<&grid_layout_impl::row_stretch>(element.element(), 1u));
  EXPECT_FALSE(call<&grid_layout_impl::row_stretch>(element.element(), 0u));
}
TEST(viewer2d_element, commands_zoom_the_viewer_and_draw) {
  tests::counting_window window;
  viewer2d element;
  call<&viewer_2d_panel_impl::attach_viewer>(cell_of(element, 1), window.viewer());
  owned<zu_lr2d_destroy> layer(zu_lr2d_create("a"));
  zu_scn_2d_add_layer(element.scene(), layer.get());
  Tzu_box_d2 box{0, 0, 1000, 500};
  zu_lr2d_set_box(layer.get(), true, &box);
  element.zoom_to_scene();
  EXPECT_BOX(window.box(), -20, -10, 1020, 510);
  EXPECT_EQ(window.redraws, 1);
  element.zoom_box({0, 0, 20, 10});
  EXPECT_BOX(window.box(), 0, 0, 20, 10);
  element.recalc_and_zoom();
  EXPECT_BOX(window.box(), -20, -10, 1020, 510);
  EXPECT_EQ(window.redraws, 3);
}
TEST(viewer2d_element, the_tools_stand_in_three_sets_under_their_ids) {
  viewer2d element;
  tools t = tools_of(element);
  auto set = [](std::initializer_list<const wchar_t*> names) {
    std::vector<std::wstring> ids;
    for (const wchar_t* name : names) ids.push_back(named(name));
    return ids;
  };
  ASSERT_EQ(t.ids.size(), 4u);  // the action stands apart from the modes
  EXPECT_EQ(t.ids[0], set({L"zoom_all"}));
  EXPECT_EQ(t.ids[1], set({L"zoom_in", L"zoom_out", L"zoom_pan"}));
  EXPECT_EQ(t.ids[2], set({L"zoom_in_h", L"zoom_in_v", L"zoom_out_h", L"zoom_out_v", L"zoom_pan_h",
                           L"zoom_pan_v"}));
  EXPECT_EQ(t.ids[3], set({L"select_append", L"select_remove"}));
}
TEST(viewer2d_element, every_tool_has_a_caption_and_a_hint) {
  viewer2d element;
  struct text final : string_visitor_impl {
    std::wstring taken;
    void visit(const wchar_t* given) override { taken = given; }
  };
  for (const auto& [id, tool] : tools_of(element).all) {
    text caption, hint;
    call<&mode_tool_impl::caption>(tool, string_visitor(handle_of<string_visitor_impl>(caption)));
    call<&mode_tool_impl::hint>(tool, string_visitor(handle_of<string_visitor_impl>(hint)));
    EXPECT_GT(caption.taken.size(), 3u) << std::string(id.begin(), id.end());
    EXPECT_GT(hint.taken.size(), 3u) << std::string(id.begin(), id.end());
  }
}
TEST(viewer2d_element, checking_a_tool_puts_its_mode_in_force_and_unchecks_the_others) {
  tests::counting_window window;
  viewer2d element;
  element.panel().attach_viewer(window.viewer());
  tools t = tools_of(element);
  handle in = t.all[named(L"zoom_in")], pan = t.all[named(L"zoom_pan")];
  call<&mode_tool_impl::set_checked>(in, true);
  EXPECT_TRUE(checked(in));
  EXPECT_TRUE(element.extension().current_mode() == call<&mode_tool_impl::mode>(in));
  call<&mode_tool_impl::set_checked>(pan, true);
  EXPECT_FALSE(checked(in));
  EXPECT_TRUE(checked(pan));
  // The mode works in the panel's viewer.
  viewer_extension_mode mode = element.extension().current_mode();
  call<&viewer_extension_mode_impl::press>(mode, 8u, point_2d{10, 10});
  call<&viewer_extension_mode_impl::release>(mode, 0u, point_2d{30, 10});
  EXPECT_BOX(window.box(), -20, 0, 180, 100);
  call<&mode_tool_impl::set_checked>(pan, false);
  EXPECT_FALSE(element.extension().current_mode());
}
TEST(viewer2d_element, tools_of_single_axes_show_where_axes_have_their_own_scales) {
  tests::counting_window map, section(true);
  viewer2d element;
  tools t = tools_of(element);
  auto visible = [&](const wchar_t* name) {
    return call<&mode_tool_impl::visible>(t.all[named(name)]);
  };
  element.panel().attach_viewer(map.viewer());
  EXPECT_FALSE(visible(L"zoom_in_h"));
  EXPECT_TRUE(visible(L"zoom_in"));
  element.panel().attach_viewer(section.viewer());
  EXPECT_TRUE(visible(L"zoom_in_h"));
  EXPECT_TRUE(visible(L"zoom_pan_v"));
}
TEST(viewer2d_element, a_host_may_hold_and_let_go_of_the_extension) {
  viewer2d element;
  viewer_extension extension = call<&viewer_2d_panel_impl::extension>(cell_of(element, 1));
  { strong_ref<viewer_extension_impl> held(extension); }
  EXPECT_FALSE(call<&viewer_extension_impl::current_mode>(extension));
}
TEST(viewer2d_element, the_viewer_is_taken_from_the_modes) {
  viewer2d element;
  std::vector<Tzu_viewer*> told;
  element.on_viewer = [&](Tzu_viewer* viewer) { told.push_back(viewer); };
  {
    tests::counting_window window;
    element.panel().attach_viewer(window.viewer());
    element.panel().attach_viewer(nullptr);
  }
  tools t = tools_of(element);
  call<&mode_tool_impl::set_checked>(t.all[named(L"zoom_in")], true);
  viewer_extension_mode mode = element.extension().current_mode();
  call<&viewer_extension_mode_impl::press>(mode, 8u, point_2d{10, 10});
  call<&viewer_extension_mode_impl::release>(mode, 0u, point_2d{30, 10});
  call<&action_tool_impl::execute>(t.all[named(L"zoom_all")]);
  EXPECT_EQ(told.size(), 2u);
}

}  // namespace
}  // namespace zu::element
