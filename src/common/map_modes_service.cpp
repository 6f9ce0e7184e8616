#include "src/common/map_modes_service.h"

#include "src/toolkit/toolbars.h"
#include "src/viewer/viewer2d_tools.h"

namespace zu {
namespace {

/// Shapes drawn by vertices, beside what every viewer has.
class shape_tools : public element::detail::mode_tools {
 public:
  shape_tools(toolkit::viewer_extension& extension, toolkit::viewer_extension_mode& polygon,
              toolkit::viewer_extension_mode& line)
      : mode_tools(extension,
                   {{L"zu_common_plugin_viewer2d_panel_tool_select_polygon", -124, -5138, polygon},
                    {L"zu_common_plugin_viewer2d_panel_tool_select_line", -125, -5139, line}}) {}
};

/// All tools of a map.
class map_tools {
 public:
  map_tools(toolkit::viewer_extension& extension, element::detail::viewer2d_modes& modes,
            toolkit::viewer_extension_mode& polygon, toolkit::viewer_extension_mode& line)
      : common_(extension, modes), shapes_(extension, polygon, line) {}
  void visit_tools(toolkit::tools_visitor& visitor) {
    common_.visit_tools(visitor);
    shapes_.visit_tools(visitor);
  }

 private:
  element::detail::viewer2d_toolbar common_;
  shape_tools shapes_;
};

/// The extension of a window of the host's, with all that belongs to it.
class map_extension final : public toolkit::viewer_extension {
 public:
  map_extension(toolkit::viewer_activator* activator, handle owner, Tzu_viewer* viewer)
      : viewer_extension(activator, owner) {
    add(polygon_);
    add(line_);
    set_viewer(viewer);
  }
  handle tool_bar() { return handle_of<toolbar_impl>(toolbar_); }

 private:
  element::detail::viewer2d_modes modes_{*this};
  mode::detail::polygon_select2d_mode polygon_;
  mode::detail::polyline_select2d_mode line_;
  toolkit::toolbar<map_tools> toolbar_{*this, modes_, polygon_, line_};
};

}  // namespace

void map_modes_service::create(Tzu_viewer* viewer, viewer_2d_extension_visitor visitor) {
  if (viewer == nullptr || !visitor) return;
  auto* made = new map_extension(&manager_, self(), viewer);
  // It ends here unless the host keeps it.
  strong_ref<viewer_extension_impl> kept(handle_of<viewer_extension_impl>(*made));
  call<&viewer_2d_extension_visitor_impl::visit>(visitor, kept.get(), made->tool_bar());
}

}  // namespace zu
