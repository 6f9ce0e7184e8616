#pragma once
// 2D viewers: the panel in which the host shows a scene of the bundle's, the modes that make sense
// of the pointer in any viewer, and the service that gives a viewer its modes.

#include "zu/referent.h"
#include "zu/tools.h"

extern "C" {
typedef struct Izu_render Izu_render;
typedef struct Tzu_viewer Tzu_viewer;
}

namespace zu {

/// Makes sense of the pointer. Points are in scene coordinates; flags are `pointer_flags`. A hover
/// is a move with no button down. Its view draws the mode anew on slot 3.
struct viewer_extension_mode_impl : plain_interface<viewer_extension_mode_impl> {
  static constexpr char name[] = "zu_viewer_extension_mode_interface_2";
  virtual void cursor(bitmap_visitor) {}
  virtual void draw(Izu_render*) {}  ///< over the picture, while the mode is in force
  virtual void hover(std::uint32_t, point_2d) {}
  virtual void press(std::uint32_t, point_2d) {}
  virtual void double_click(std::uint32_t, point_2d) {}
  virtual void drag(std::uint32_t, point_2d) {}
  virtual void release(std::uint32_t, point_2d) {}
  virtual void attach_view(element_view) {}  ///< empty when the mode is left
  using operations =
      in_order<&viewer_extension_mode_impl::cursor, &viewer_extension_mode_impl::draw,
               &viewer_extension_mode_impl::hover, &viewer_extension_mode_impl::press,
               &viewer_extension_mode_impl::double_click, &viewer_extension_mode_impl::drag,
               &viewer_extension_mode_impl::release, &viewer_extension_mode_impl::attach_view>;
};
using viewer_extension_mode = of<viewer_extension_mode_impl>;

struct viewer_extension_mode_visitor_impl : plain_interface<viewer_extension_mode_visitor_impl> {
  static constexpr char name[] = "zu_viewer_extension_mode_visitor_interface_2";
  virtual void visit(viewer_extension_mode) {}
  using operations = in_order<&viewer_extension_mode_visitor_impl::visit>;
};
using viewer_extension_mode_visitor = of<viewer_extension_mode_visitor_impl>;

/// The modes of one viewer, of which one is in force.
struct viewer_extension_impl : counted_interface<viewer_extension_impl> {
  static constexpr char name[] = "zu_viewer_extension_interface_4";
  virtual void activated() {}    ///< the viewer became the one that a person works in
  virtual void deactivated() {}  ///< another one did
  virtual void visit_modes(viewer_extension_mode_visitor) {}
  virtual viewer_extension_mode current_mode() { return {}; }  ///< empty: none
  virtual void set_current_mode(viewer_extension_mode) {}      ///< one of its own, or empty
  virtual void attach_view(element_view) {}  ///< slot 1 tells that another mode is in force
  using operations =
      in_order<&viewer_extension_impl::activated, &viewer_extension_impl::deactivated,
               &viewer_extension_impl::visit_modes, &viewer_extension_impl::current_mode,
               &viewer_extension_impl::set_current_mode, &viewer_extension_impl::attach_view>;
};
using viewer_extension = of<viewer_extension_impl>;

/// An element in which the host shows a scene with a viewer of its own making.
struct viewer_2d_panel_impl : plain_interface<viewer_2d_panel_impl> {
  static constexpr char name[] = "zu_viewer_2d_panel_interface_6";
  virtual double width() { return 0; }  ///< that it would like, in the units of layouts
  virtual double height() { return 0; }
  virtual void visit_title(string_visitor) {}
  /// The viewer once the panel is shown, null before it goes. Not owned.
  virtual void attach_viewer(Tzu_viewer*) {}
  virtual void activate() {}
  virtual viewer_extension extension() { return {}; }
  using operations =
      in_order<&viewer_2d_panel_impl::width, &viewer_2d_panel_impl::height,
               &viewer_2d_panel_impl::visit_title, &viewer_2d_panel_impl::attach_viewer,
               &viewer_2d_panel_impl::activate, &viewer_2d_panel_impl::extension>;
};

/// What a viewer gets of a service: its modes, and the tool bars that choose them.
struct viewer_2d_extension_visitor_impl : plain_interface<viewer_2d_extension_visitor_impl> {
  static constexpr char name[] = "zu_viewer_2d_extension_visitor_interface_0";
  virtual void visit(viewer_extension, handle /*tool bar*/) {}
  using operations = in_order<&viewer_2d_extension_visitor_impl::visit>;
};
using viewer_2d_extension_visitor = of<viewer_2d_extension_visitor_impl>;

/// Gives modes to the viewers of the host's own windows.
struct viewer_2d_extension_service_impl : counted_interface<viewer_2d_extension_service_impl> {
  static constexpr char name[] = "zu_viewer_2d_extension_service_interface_0";
  /// Makes an extension for a viewer, which must outlive it. The tool bar is the extension's.
  virtual void create(Tzu_viewer*, viewer_2d_extension_visitor) {}
  using operations = in_order<&viewer_2d_extension_service_impl::create>;
};
using viewer_2d_extension_service = of<viewer_2d_extension_service_impl>;

struct viewer_2d_extension_service_visitor_impl
    : plain_interface<viewer_2d_extension_service_visitor_impl> {
  static constexpr char name[] = "zu_viewer_2d_extension_service_visitor_interface_0";
  virtual void visit(viewer_2d_extension_service) {}
  using operations = in_order<&viewer_2d_extension_service_visitor_impl::visit>;
};

}  // namespace zu
