#pragma once
// A small scene in a dialog, with a tool bar of its own.

#include "src/toolkit/layouts.h"
#include "src/toolkit/toolbars.h"
#include "src/viewer/viewer2d_panel.h"
#include "src/viewer/viewer2d_tools.h"
#include "src/viewer/viewer_manager.h"

namespace zu::element {

/// The host's controls must be gone before it is. Without a viewer its commands do nothing.
class viewer2d : public toolkit::with_element {
 public:
  viewer2d();
  viewer2d(const viewer2d&) = delete;
  viewer2d& operator=(const viewer2d&) = delete;

  Tzu_scn_2d* scene() const { return panel_.scene(); }
  Tzu_viewer2d* viewer() const { return panel_.viewer(); }
  toolkit::viewer2d_panel& panel() { return panel_; }
  toolkit::viewer_extension& extension() { return extension_; }
  /// Hears when the host brings a viewer, or null when it takes it.
  std::function<void(Tzu_viewer*)> on_viewer;

  void zoom_to_scene();
  /// The same with the scene's box calculated anew.
  void recalc_and_zoom();
  void zoom_box(const Tzu_box_d2& box);
  /// To a box from data, which may be a point.
  void zoom_to_data(const Tzu_box_d2& box);

  handle element() override { return handle_of<grid_layout_impl>(layout_); }

 protected:
  /// The tool bar above the panel.
  toolkit::grid_layout<1, 2>& content() { return layout_; }

 private:
  toolkit::viewer_manager manager_;
  toolkit::viewer2d_panel panel_;
  toolkit::viewer_extension extension_{&manager_};
  detail::viewer2d_modes modes_{extension_};
  toolkit::toolbar<detail::viewer2d_toolbar> toolbar_{extension_, modes_};
  toolkit::grid_layout<1, 2> layout_;
};

}  // namespace zu::element
