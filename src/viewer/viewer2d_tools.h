#pragma once
// The tools that choose a mode of a 2D viewer, and the modes themselves.

#include <list>

#include "src/toolkit/tools.h"
#include "src/viewer/select2d_modes.h"
#include "src/viewer/viewer_extension.h"
#include "src/viewer/zoom2d_modes.h"

namespace zu::element::detail {

/// Modes for one extension, which they enter.
struct viewer2d_modes {
  explicit viewer2d_modes(toolkit::viewer_extension& extension);

  mode::zoom2d_inside zoom_in;
  mode::zoom2d_outside zoom_out;
  mode::zoom2d_pan pan;
  mode::zoom2d_inside_h zoom_in_h;
  mode::zoom2d_inside_v zoom_in_v;
  mode::zoom2d_outside_h zoom_out_h;
  mode::zoom2d_outside_v zoom_out_v;
  mode::zoom2d_pan_h pan_h;
  mode::zoom2d_pan_v pan_v;
  mode::select2d_append select_append;
  mode::select2d_remove select_remove;
};

struct mode_tool_row {
  const wchar_t* id;
  std::int32_t caption, hint;
  toolkit::viewer_extension_mode& mode;
};

/// A row of tools, each of which puts its mode in force while it is checked.
class mode_tools {
 public:
  void visit_tools(toolkit::tools_visitor& visitor);

 protected:
  mode_tools(toolkit::viewer_extension& extension, std::initializer_list<mode_tool_row> rows);
  void set_visible(bool visible);

 private:
  struct named {
    named(toolkit::viewer_extension& extension, const mode_tool_row& row);
    const wchar_t* id;
    toolkit::mode_tool tool;
  };
  std::list<named> tools_;
};

class viewer2d_zoom_tools : public mode_tools {
 public:
  viewer2d_zoom_tools(toolkit::viewer_extension& extension, viewer2d_modes& modes);
  void visit_tools(toolkit::tools_visitor& visitor);

 private:
  toolkit::action_tool zoom_all_{-112, -5112, -5112};
};

/// Show while the viewer's axes have scales of their own.
class viewer2d_anizotrope_tools : public mode_tools {
 public:
  viewer2d_anizotrope_tools(toolkit::viewer_extension& extension, viewer2d_modes& modes);

 private:
  events::connection connection_;
};

class viewer2d_select_tools : public mode_tools {
 public:
  viewer2d_select_tools(toolkit::viewer_extension& extension, viewer2d_modes& modes);
};

/// The three sets, for a tool bar.
class viewer2d_toolbar {
 public:
  viewer2d_toolbar(toolkit::viewer_extension& extension, viewer2d_modes& modes)
      : zoom_(extension, modes), anizotrope_(extension, modes), select_(extension, modes) {}
  void visit_tools(toolkit::tools_visitor& visitor) {
    zoom_.visit_tools(visitor);
    anizotrope_.visit_tools(visitor);
    select_.visit_tools(visitor);
  }

 private:
  viewer2d_zoom_tools zoom_;
  viewer2d_anizotrope_tools anizotrope_;
  viewer2d_select_tools select_;
};

}  // namespace zu::element::detail
