// The modes that the second module gives to the viewers of a host.

#include <gtest/gtest.h>

#include <vector>

#include "host/core/bundle.h"
#include "zu/platform/zuk_viewer2d.h"
#include "zu/tools.h"
#include "zu/viewer.h"

namespace zu::host {
namespace {

/// Keeps what the service gives.
struct map_window final : viewer_2d_extension_visitor_impl {
  strong_ref<viewer_extension_impl> extension;
  handle tool_bar;
  bool keep = true;
  int made = 0;
  Tzu_viewer2d* viewer = zu_viewer2d_create(nullptr);

  map_window() {
    zu_viewer2d_set_size(viewer, 200, 100, 254);
    Tzu_box_d2 box{0, 0, 200, 100};
    zu_viewer2d_set_zoom_box(viewer, &box);
  }
  ~map_window() {
    extension.reset();
    zu_viewer2d_destroy(viewer);
  }
  void take(const bundle& services, Tzu_viewer* of) {
    ASSERT_EQ(services.viewer_extensions().size(), 1u);
    call<&viewer_2d_extension_service_impl::create>(
        services.viewer_extensions().front().service.get(), of,
        viewer_2d_extension_visitor(handle_of<viewer_2d_extension_visitor_impl>(*this)));
  }
  void visit(viewer_extension given, handle bar) override {
    ++made;
    if (keep) extension.reset(given);
    tool_bar = bar;
  }
};

struct mode_list final : viewer_extension_mode_visitor_impl {
  std::vector<viewer_extension_mode> all;
  void visit(viewer_extension_mode mode) override { all.push_back(mode); }
};
struct tool_list final : tool_set_visitor_impl, tool_visitor_impl {
  std::vector<std::wstring> ids;
  std::vector<handle> tools;
  void visit(tool_set set) override {
    call<&tool_set_impl::visit>(set, tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  void visit(const wchar_t* id, handle tool) override {
    ids.emplace_back(id);
    tools.push_back(tool);
  }
};

TEST(map_modes, are_the_windows_as_long_as_it_keeps_them) {
  bundle services({"zuk_common.so"});
  map_window window;
  window.take(services, nullptr);
  EXPECT_EQ(window.made, 0);
  window.keep = false;
  window.take(services, zu_viewer2d_safe_upcast(window.viewer));
  EXPECT_EQ(window.made, 1);
  window.keep = true;
  window.take(services, zu_viewer2d_safe_upcast(window.viewer));
  mode_list modes;
  call<&viewer_extension_impl::visit_modes>(
      window.extension.get(),
      viewer_extension_mode_visitor(handle_of<viewer_extension_mode_visitor_impl>(modes)));
  EXPECT_EQ(modes.all.size(), 13u);
}
TEST(map_modes, are_chosen_by_the_tool_bar_and_zoom_the_windows_viewer) {
  bundle services({"zuk_common.so"});
  map_window window;
  window.take(services, zu_viewer2d_safe_upcast(window.viewer));
  tool_list tools;
  call<&toolbar_impl::visit>(of<toolbar_impl>(window.tool_bar),
                             tool_set_visitor(handle_of<tool_set_visitor_impl>(tools)));
  ASSERT_EQ(tools.ids.size(), 14u);
  EXPECT_EQ(tools.ids[1], L"zu_common_plugin_viewer2d_panel_tool_zoom_in");
  EXPECT_EQ(tools.ids[13], L"zu_common_plugin_viewer2d_panel_tool_select_line");
  call<&mode_tool_impl::set_checked>(of<mode_tool_impl>(tools.tools[1]), true);
  viewer_extension_mode mode = call<&viewer_extension_impl::current_mode>(window.extension.get());
  ASSERT_TRUE(mode);
  call<&viewer_extension_mode_impl::press>(mode, 8u, point_2d{100, 40});
  call<&viewer_extension_mode_impl::release>(mode, 0u, point_2d{140, 60});
  Tzu_box_d2 box{};
  zu_viewer2d_get_box_cr_sml(window.viewer, &box);
  EXPECT_NEAR(box.x0, 100, 1e-9);
  EXPECT_NEAR(box.y1, 60, 1e-9);
}
}  // namespace
}  // namespace zu::host
