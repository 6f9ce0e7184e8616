#pragma once
// Panels for the selected layer.

#include "zu/layer2d.h"
#include "zu/toolkit.h"

namespace zu {

/// Told when a panel comes or goes.
struct panel_observer_impl : plain_interface<panel_observer_impl> {
  static constexpr char name[] = "zu_panel_observer_interface_1";
  virtual void unused_1() {}
  virtual void enabled_changed() {}
  using operations =
      in_order<&panel_observer_impl::unused_1, &panel_observer_impl::enabled_changed>;
};
using panel_observer = of<panel_observer_impl>;

/// What a docker of an editor answers besides the docker's own interface.
struct panel_impl : plain_interface<panel_impl> {
  static constexpr char name[] = "zu_panel_interface_1";
  virtual std::uint32_t width() {
    return 0;
  }  ///< that it would like, in units of the host's choice
  virtual std::uint32_t height() { return 0; }
  virtual bool enabled() { return true; }  ///< false hides it: it does not apply to the layer
  virtual void attach_observer(panel_observer) {}
  using operations = in_order<&panel_impl::width, &panel_impl::height, &panel_impl::enabled,
                              &panel_impl::attach_observer>;
};
using panel = of<panel_impl>;

struct layer_2d_editor_extension_service_impl
    : counted_interface<layer_2d_editor_extension_service_impl> {
  static constexpr char name[] = "zu_layer_2d_editor_extension_service_interface_98";
  virtual void get_dockers(docker_visitor) {}  ///< a call each; members of the service
  /// Which layer is selected, null for none. To be called before a selected layer goes.
  virtual void layer_changed(Izu_layer*) {}
  virtual void unused_4() {}
  virtual void unused_5() {}
  virtual void unused_6() {}
  virtual void unused_7() {}
  virtual std::int32_t get_order() { return 1; }
  using operations = in_order<&layer_2d_editor_extension_service_impl::get_dockers,
                              &layer_2d_editor_extension_service_impl::layer_changed,
                              &layer_2d_editor_extension_service_impl::unused_4,
                              &layer_2d_editor_extension_service_impl::unused_5,
                              &layer_2d_editor_extension_service_impl::unused_6,
                              &layer_2d_editor_extension_service_impl::unused_7,
                              &layer_2d_editor_extension_service_impl::get_order>;
};
using layer_2d_editor_extension_service = of<layer_2d_editor_extension_service_impl>;

struct layer_2d_editor_extension_service_visitor_impl
    : plain_interface<layer_2d_editor_extension_service_visitor_impl> {
  static constexpr char name[] = "zu_layer_2d_editor_extension_service_visitor_interface_98";
  virtual void visit(layer_2d_editor_extension_service) {}
  using operations = in_order<&layer_2d_editor_extension_service_visitor_impl::visit>;
};

}  // namespace zu
