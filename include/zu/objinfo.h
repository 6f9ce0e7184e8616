#pragma once
// What lies at a point of a scene: a title, and names with their values.

#include "zu/referent.h"
#include "zu/strings.h"

extern "C" {
typedef struct Izu_layer Izu_layer;
}

namespace zu {

struct objinfo_values_visitor_impl : plain_interface<objinfo_values_visitor_impl> {
  static constexpr char name[] = "zu_objinfo_values_visitor_interface_0";
  virtual void visit(const wchar_t* /*name*/, const wchar_t* /*value*/) {}
  using operations = in_order<&objinfo_values_visitor_impl::visit>;
};
using objinfo_values_visitor = of<objinfo_values_visitor_impl>;

/// The values of one object; lives only during the call that gives it.
struct objinfo_object_impl : plain_interface<objinfo_object_impl> {
  static constexpr char name[] = "zu_objinfo_object_interface_0";
  virtual void get_values(objinfo_values_visitor) {}  ///< one call for each value, in order
  using operations = in_order<&objinfo_object_impl::get_values>;
};
using objinfo_object = of<objinfo_object_impl>;

struct objinfo_visitor_impl : plain_interface<objinfo_visitor_impl> {
  static constexpr char name[] = "zu_objinfo_visitor_interface_6";
  virtual void visit(std::uint64_t /*zero*/, const wchar_t* /*title*/, objinfo_object) {}
  using operations = in_order<&objinfo_visitor_impl::visit>;
};
using objinfo_visitor = of<objinfo_visitor_impl>;

/// Asked by the information tool of a host for one layer at a time.
struct objinfo_service_impl : counted_interface<objinfo_service_impl> {
  static constexpr char name[] = "zu_objinfo_service_interface_6";
  virtual bool unused_2() { return false; }
  /// Visits once for what the layer has at (x, y), in scene coordinates; no call if that is
  /// nothing or the layer is of another kind. `context` is the host's and may be null.
  virtual void get_object_info(Izu_layer*, double /*x*/, double /*y*/, void* /*context*/,
                               objinfo_visitor) {}
  using operations =
      in_order<&objinfo_service_impl::unused_2, &objinfo_service_impl::get_object_info>;
};
using objinfo_service = of<objinfo_service_impl>;

struct objinfo_service_visitor_impl : plain_interface<objinfo_service_visitor_impl> {
  static constexpr char name[] = "zu_objinfo_service_visitor_interface_6";
  virtual void visit(objinfo_service) {}
  using operations = in_order<&objinfo_service_visitor_impl::visit>;
};

}  // namespace zu
