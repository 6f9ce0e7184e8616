#pragma once
// What a host's scene editor can show and open: the kinds of layer, the filters that take files,
// and the services that list both.

#include "zu/referent.h"
#include "zu/strings.h"

extern "C" {
typedef struct Tzu_lr_builder Tzu_lr_builder;
}

namespace zu {

/// Takes files of some kind and makes layers of them. A plain member of its service: the handle
/// lives as long as the service is held.
struct scene_editor_filter_impl : plain_interface<scene_editor_filter_impl> {
  static constexpr char name[] = "zu_scene_editor_filter_interface_0";
  virtual void unused_1(std::uint8_t) {}
  virtual void get_description(string_visitor) {}  ///< for a person, in the language in force
  virtual void get_mask(string_visitor) {}         ///< "*.ext" items with ";" between them
  /// Whether `add` is worth a try; the file itself is looked at only where its name says nothing.
  virtual bool accepts(const wchar_t* /*path*/) { return false; }
  /// Makes layers through the builder, and reports to it what did not work.
  virtual void add(Tzu_lr_builder*, const wchar_t* /*path*/) {}
  using operations =
      in_order<&scene_editor_filter_impl::unused_1, &scene_editor_filter_impl::get_description,
               &scene_editor_filter_impl::get_mask, &scene_editor_filter_impl::accepts,
               &scene_editor_filter_impl::add>;
};
using scene_editor_filter = of<scene_editor_filter_impl>;

struct scene_editor_filter_visitor_impl : plain_interface<scene_editor_filter_visitor_impl> {
  static constexpr char name[] = "zu_scene_editor_filter_visitor_interface_0";
  virtual void visit(scene_editor_filter) {}
  using operations = in_order<&scene_editor_filter_visitor_impl::visit>;
};
using scene_editor_filter_visitor = of<scene_editor_filter_visitor_impl>;

/// A kind of layer that a 2D scene can hold. A plain member of its service, as a filter is.
struct scene_2d_editor_extension_impl : plain_interface<scene_2d_editor_extension_impl> {
  static constexpr char name[] = "zu_scene_2d_editor_extension_interface_1";
  virtual void unused_1() {}
  virtual void get_layer_type(string_visitor) {}  ///< a name such as "grid_lr2d"
  virtual void get_bitmap(bytes_visitor) {}  ///< the small picture of that kind; no call if none
  virtual bool unused_4() { return false; }
  virtual void unused_5() {}
  virtual bool unused_6() { return false; }
  virtual void unused_7() {}
  using operations = in_order<
      &scene_2d_editor_extension_impl::unused_1, &scene_2d_editor_extension_impl::get_layer_type,
      &scene_2d_editor_extension_impl::get_bitmap, &scene_2d_editor_extension_impl::unused_4,
      &scene_2d_editor_extension_impl::unused_5, &scene_2d_editor_extension_impl::unused_6,
      &scene_2d_editor_extension_impl::unused_7>;
};
using scene_2d_editor_extension = of<scene_2d_editor_extension_impl>;

struct scene_2d_editor_extension_visitor_impl
    : plain_interface<scene_2d_editor_extension_visitor_impl> {
  static constexpr char name[] = "zu_scene_2d_editor_extension_visitor_interface_1";
  virtual void visit(scene_2d_editor_extension) {}
  using operations = in_order<&scene_2d_editor_extension_visitor_impl::visit>;
};
using scene_2d_editor_extension_visitor = of<scene_2d_editor_extension_visitor_impl>;

/// Lists extensions and filters, each in an order of its own.
struct scene_2d_editor_extension_service_impl
    : counted_interface<scene_2d_editor_extension_service_impl> {
  static constexpr char name[] = "zu_scene_2d_editor_extension_service_interface_94";
  virtual void get_extensions(scene_2d_editor_extension_visitor) {}
  virtual void unused_3() {}
  virtual void get_filters(scene_editor_filter_visitor) {}
  virtual void unused_5() {}
  virtual void unused_6() {}
  virtual void unused_7() {}
  virtual std::int32_t get_order() { return 1; }  ///< among the services of a host; its use is free
  using operations = in_order<&scene_2d_editor_extension_service_impl::get_extensions,
                              &scene_2d_editor_extension_service_impl::unused_3,
                              &scene_2d_editor_extension_service_impl::get_filters,
                              &scene_2d_editor_extension_service_impl::unused_5,
                              &scene_2d_editor_extension_service_impl::unused_6,
                              &scene_2d_editor_extension_service_impl::unused_7,
                              &scene_2d_editor_extension_service_impl::get_order>;
};
using scene_2d_editor_extension_service = of<scene_2d_editor_extension_service_impl>;

struct scene_2d_editor_extension_service_visitor_impl
    : plain_interface<scene_2d_editor_extension_service_visitor_impl> {
  static constexpr char name[] = "zu_scene_2d_editor_extension_service_visitor_interface_94";
  virtual void visit(scene_2d_editor_extension_service) {}
  using operations = in_order<&scene_2d_editor_extension_service_visitor_impl::visit>;
};

}  // namespace zu
