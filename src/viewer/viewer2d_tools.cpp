#include "src/viewer/viewer2d_tools.h"

#define ZU_TOOL(name) L"zu_common_plugin_viewer2d_panel_tool_" name

namespace zu::element::detail {

viewer2d_modes::viewer2d_modes(toolkit::viewer_extension& extension) {
  for (toolkit::viewer_extension_mode* mode :
       std::initializer_list<toolkit::viewer_extension_mode*>{
           &zoom_in, &zoom_out, &pan, &zoom_in_h, &zoom_in_v, &zoom_out_h, &zoom_out_v, &pan_h,
           &pan_v, &select_append, &select_remove})
    extension.add(*mode);
}

mode_tools::named::named(toolkit::viewer_extension& extension, const mode_tool_row& row)
    : id(row.id), tool(row.caption, row.hint, row.hint) {
  zu::viewer_extension_mode mode = handle_of<viewer_extension_mode_impl>(row.mode);
  tool.set_mode(mode);
  tool.on_execute = [&extension, mode](bool checked) {
    if (checked)
      extension.set_current_mode(mode);
    else if (extension.current_mode() == mode)
      extension.set_current_mode({});
  };
  tool.on_update = [this, &extension, mode] { tool.assign(extension.current_mode() == mode); };
  tool.follow(extension.changed);
}

mode_tools::mode_tools(toolkit::viewer_extension& extension,
                       std::initializer_list<mode_tool_row> rows) {
  for (const mode_tool_row& row : rows) tools_.emplace_back(extension, row);
}

void mode_tools::visit_tools(toolkit::tools_visitor& visitor) {
  visitor.toolset();
  for (named& t : tools_) visitor.tool(t.id, t.tool);
}

void mode_tools::set_visible(bool visible) {
  for (named& t : tools_) t.tool.set_visible(visible);
}

// The shared texts -101 to -103 are those of buttons: the first three modes are called by what
// their hints say.
viewer2d_zoom_tools::viewer2d_zoom_tools(toolkit::viewer_extension& extension,
                                         viewer2d_modes& modes)
    : mode_tools(extension, {{ZU_TOOL(L"zoom_in"), -5103, -5103, modes.zoom_in},
                             {ZU_TOOL(L"zoom_out"), -5117, -5117, modes.zoom_out},
                             {ZU_TOOL(L"zoom_pan"), -5107, -5107, modes.pan}}) {
  zoom_all_.on_execute = [&extension] {
    Tzu_viewer2d* viewer = zu_viewer2d_safe_downcast(extension.viewer());
    zu_viewer2d_zoom_to_scn(viewer);
    zu_viewer2d_redraw_slow(viewer);
  };
}

void viewer2d_zoom_tools::visit_tools(toolkit::tools_visitor& visitor) {
  visitor.toolset().tool(ZU_TOOL(L"zoom_all"), zoom_all_);
  mode_tools::visit_tools(visitor);
}

viewer2d_anizotrope_tools::viewer2d_anizotrope_tools(toolkit::viewer_extension& extension,
                                                     viewer2d_modes& modes)
    : mode_tools(extension, {{ZU_TOOL(L"zoom_in_h"), -104, -5104, modes.zoom_in_h},
                             {ZU_TOOL(L"zoom_in_v"), -105, -5105, modes.zoom_in_v},
                             {ZU_TOOL(L"zoom_out_h"), -106, -5106, modes.zoom_out_h},
                             {ZU_TOOL(L"zoom_out_v"), -107, -5115, modes.zoom_out_v},
                             {ZU_TOOL(L"zoom_pan_h"), -108, -5108, modes.pan_h},
                             {ZU_TOOL(L"zoom_pan_v"), -109, -5109, modes.pan_v}}) {
  auto update = [this, &extension] {
    set_visible(zu_viewer2d_is_anisotropic(zu_viewer2d_safe_downcast(extension.viewer())));
  };
  connection_ = extension.changed.connect(update);
  update();
}

viewer2d_select_tools::viewer2d_select_tools(toolkit::viewer_extension& extension,
                                             viewer2d_modes& modes)
    : mode_tools(extension, {{ZU_TOOL(L"select_append"), -121, -5136, modes.select_append},
                             {ZU_TOOL(L"select_remove"), -123, -5137, modes.select_remove}}) {}

}  // namespace zu::element::detail
