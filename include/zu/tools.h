#pragma once
// Commands: tools in sets, the tool bars and menus that they stand in, and the service by which a
// bundle offers its own to the host's menus. The id of a tool is a contract with the host's menus.

#include "zu/referent.h"
#include "zu/toolkit.h"

namespace zu {

/// Takes a tool of any kind under its id.
struct tool_visitor_impl : plain_interface<tool_visitor_impl> {
  static constexpr char name[] = "zu_tool_visitor_interface_5";
  virtual void visit(const wchar_t* /*id*/, handle /*tool*/) {}
  using operations = in_order<&tool_visitor_impl::visit>;
};
using tool_visitor = of<tool_visitor_impl>;

/// What all tools answer first, in these slots. A tool's view is told of enablement and the like by
/// its redraw, of a value by slot 1, of items by slot 3.
template <class x> struct tool_interface : plain_interface<x> {
  using listed_in = x;
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual void description(string_visitor) {}
  virtual void visit_categories(string_visitor) {}  ///< where it stands in menus, outermost first
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual void attach_view(element_view) {}
  template <auto... own>
  using tool_order = typename plain_interface<x>::template in_order<
      &tool_interface::caption, &tool_interface::hint, &tool_interface::description,
      &tool_interface::visit_categories, &tool_interface::enabled, &tool_interface::visible, own...,
      &tool_interface::attach_view>;
};

/// A menu of further tools.
struct category_tool_impl : tool_interface<category_tool_impl> {
  static constexpr char name[] = "zu_category_tool_interface_0";
  virtual void visit_tools(tool_visitor) {}
  using operations = tool_order<&category_tool_impl::visit_tools>;
};

struct action_tool_impl : tool_interface<action_tool_impl> {
  static constexpr char name[] = "zu_action_tool_interface_0";
  virtual void execute() {}
  using operations = tool_order<&action_tool_impl::execute>;
};

struct boolean_tool_impl : tool_interface<boolean_tool_impl> {
  static constexpr char name[] = "zu_boolean_tool_interface_0";
  virtual bool checked() { return false; }
  virtual void set_checked(bool) {}
  using operations = tool_order<&boolean_tool_impl::checked, &boolean_tool_impl::set_checked>;
};

/// One of several modes of a viewer, of which one is in force.
struct mode_tool_impl : tool_interface<mode_tool_impl> {
  static constexpr char name[] = "zu_mode_tool_interface_0";
  virtual bool checked() { return false; }
  virtual void set_checked(bool) {}
  virtual handle mode() { return {}; }  ///< the viewer's extension mode
  using operations =
      tool_order<&mode_tool_impl::checked, &mode_tool_impl::set_checked, &mode_tool_impl::mode>;
};

struct integer_tool_impl : tool_interface<integer_tool_impl> {
  static constexpr char name[] = "zu_integer_tool_interface_2";
  virtual std::int32_t value() { return 0; }
  virtual bool set_value(std::int32_t) { return false; }
  virtual std::int32_t minimum() { return 0; }
  virtual std::int32_t maximum() { return 0; }
  using operations = tool_order<&integer_tool_impl::value, &integer_tool_impl::set_value,
                                &integer_tool_impl::minimum, &integer_tool_impl::maximum>;
};

struct list_tool_impl : tool_interface<list_tool_impl> {
  static constexpr char name[] = "zu_list_tool_interface_0";
  virtual std::uint32_t count() { return 0; }
  virtual void item_text(std::uint32_t, string_visitor) {}
  virtual std::int32_t current() { return -1; }
  virtual void set_current(std::int32_t) {}
  using operations = tool_order<&list_tool_impl::count, &list_tool_impl::item_text,
                                &list_tool_impl::current, &list_tool_impl::set_current>;
};

/// A button with a list of actions, the first of which it does at once.
struct multiaction_tool_impl : tool_interface<multiaction_tool_impl> {
  static constexpr char name[] = "zu_multiaction_tool_interface_0";
  virtual std::uint32_t count() { return 0; }
  virtual void item_text(std::uint32_t, string_visitor) {}
  virtual void execute(std::uint32_t) {}
  using operations = tool_order<&multiaction_tool_impl::count, &multiaction_tool_impl::item_text,
                                &multiaction_tool_impl::execute>;
};

/// Pictures that a tool draws for itself. A tool that has some answers to this name too; a host
/// shows them in place of the icon that it has for the tool's id.
struct tool_pictures_impl : plain_interface<tool_pictures_impl> {
  static constexpr char name[] = "zu_tool_pictures_interface_0";
  /// The picture of the tool (`item` -1) or of one of its items, in so many pixels; no call if it
  /// has none.
  virtual void visit(std::int32_t /*item*/, std::uint32_t /*width*/, std::uint32_t /*height*/,
                     bitmap_visitor) {}
  using operations = in_order<&tool_pictures_impl::visit>;
};

/// Tools that stand together.
struct tool_set_impl : plain_interface<tool_set_impl> {
  static constexpr char name[] = "zu_tool_set_interface_5";
  virtual void visit(tool_visitor) {}
  using operations = in_order<&tool_set_impl::visit>;
};
using tool_set = of<tool_set_impl>;

struct tool_set_visitor_impl : plain_interface<tool_set_visitor_impl> {
  static constexpr char name[] = "zu_tool_set_visitor_interface_5";
  virtual void visit(tool_set) {}
  using operations = in_order<&tool_set_visitor_impl::visit>;
};
using tool_set_visitor = of<tool_set_visitor_impl>;

/// A row of tool sets, an element of layouts too.
struct toolbar_impl : plain_interface<toolbar_impl> {
  static constexpr char name[] = "zu_toolbar_interface_6";
  virtual void visit(tool_set_visitor) {}
  using operations = in_order<&toolbar_impl::visit>;
};

/// A menu at the pointer. An element that has one answers to this name too.
struct context_menu_impl : plain_interface<context_menu_impl> {
  static constexpr char name[] = "zu_context_menu_interface_3";
  virtual void visit(tool_set_visitor) {}
  using operations = in_order<&context_menu_impl::visit>;
};

/// Tools for the host's menus, for the whole run.
struct tool_service_impl : counted_interface<tool_service_impl> {
  static constexpr char name[] = "zu_tool_service_interface_10";
  virtual void visit(tool_set_visitor) {}
  using operations = in_order<&tool_service_impl::visit>;
};
using tool_service = of<tool_service_impl>;

struct tool_service_visitor_impl : plain_interface<tool_service_visitor_impl> {
  static constexpr char name[] = "zu_tool_service_visitor_interface_10";
  virtual void visit(tool_service) {}
  using operations = in_order<&tool_service_visitor_impl::visit>;
};

}  // namespace zu
