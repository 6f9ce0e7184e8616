#pragma once
// Layers of a 2D scene and the three services that the host looks for under each layer type.

#include "zu/referent.h"
#include "zu/strings.h"

extern "C" {
typedef struct Izu_layer Izu_layer;
typedef struct Izu_render Izu_render;
typedef struct Tzu_table_data Tzu_table_data;
typedef struct Tzu_stl_mngr Tzu_stl_mngr;
typedef struct Tzu_hillshade_style Tzu_hillshade_style;
typedef struct Tzu_isoline_style Tzu_isoline_style;
typedef struct Tzu_json_obj Tzu_json_obj;
typedef struct Tzu_xnode Tzu_xnode;
}

namespace zu {

/// The plug-in object behind a host layer. Not counted: the host ends it by binding it to null.
struct layer_2d_impl : plain_interface<layer_2d_impl> {
  static constexpr char name[] = "zu_layer_2d_interface_10";
  /// Ties the object to its host entity, once; null ends the object.
  virtual void bind_entity(Izu_layer*) {}
  virtual void source_changed() {}   ///< the entity's source was set or reloaded
  virtual void update_box() {}       ///< hands the box to the entity, in scene coordinates
  virtual void update_validity() {}  ///< tells the entity whether its file is missing
  virtual void copy_from(of<layer_2d_impl>) {}
  virtual bool has_projection() { return false; }
  virtual void get_proj4(string_visitor) {}
  virtual void set_proj4(const wchar_t*) {}
  /// The table of selection and table view; owned by the layer object.
  virtual Tzu_table_data* get_table_data() { return nullptr; }
  virtual Tzu_stl_mngr* get_style_manager() { return nullptr; }           ///< not owned
  virtual Tzu_hillshade_style* get_hillshade_style() { return nullptr; }  ///< not owned
  virtual Tzu_isoline_style* get_isoline_style() { return nullptr; }      ///< not owned
  virtual void write_info(Tzu_json_obj*) {}
  // Slots of other kinds of layers.
  virtual bool unused_9() { return false; }
  virtual bool unused_10() { return false; }
  virtual void unused_11() {}
  virtual void* unused_13() { return nullptr; }
  virtual void* unused_15() { return nullptr; }
  virtual void* unused_16() { return nullptr; }
  virtual void* unused_19() { return nullptr; }
  using operations = in_order<
      &layer_2d_impl::bind_entity, &layer_2d_impl::source_changed, &layer_2d_impl::update_box,
      &layer_2d_impl::update_validity, &layer_2d_impl::copy_from, &layer_2d_impl::has_projection,
      &layer_2d_impl::get_proj4, &layer_2d_impl::set_proj4, &layer_2d_impl::unused_9,
      &layer_2d_impl::unused_10, &layer_2d_impl::unused_11, &layer_2d_impl::get_table_data,
      &layer_2d_impl::unused_13, &layer_2d_impl::get_style_manager, &layer_2d_impl::unused_15,
      &layer_2d_impl::unused_16, &layer_2d_impl::get_hillshade_style,
      &layer_2d_impl::get_isoline_style, &layer_2d_impl::unused_19, &layer_2d_impl::write_info>;
};
using layer_2d = of<layer_2d_impl>;

struct layer_2d_visitor_impl : plain_interface<layer_2d_visitor_impl> {
  static constexpr char name[] = "zu_layer_2d_visitor_interface_10";
  virtual void visit(layer_2d) {}
  using operations = in_order<&layer_2d_visitor_impl::visit>;
};
using layer_2d_visitor = of<layer_2d_visitor_impl>;

/// Creates the layer objects of one type.
struct layer_2d_service_impl : counted_interface<layer_2d_service_impl> {
  static constexpr char name[] = "zu_layer_2d_service_interface_12";
  virtual void get_type(string_visitor) {}
  /// Makes a new object and hands it over; the receiver owns it from then on.
  virtual void create_layer(layer_2d_visitor) {}
  using operations =
      in_order<&layer_2d_service_impl::get_type, &layer_2d_service_impl::create_layer>;
};
using layer_2d_service = of<layer_2d_service_impl>;

struct layer_2d_service_visitor_impl : plain_interface<layer_2d_service_visitor_impl> {
  static constexpr char name[] = "zu_layer_2d_service_visitor_interface_12";
  virtual void visit(layer_2d_service) {}
  using operations = in_order<&layer_2d_service_visitor_impl::visit>;
};

/// Writes and reads the layer objects of one type. `context` goes on to the style operations.
struct layer_2d_externalization_service_impl
    : counted_interface<layer_2d_externalization_service_impl> {
  static constexpr char name[] = "zu_layer_2d_externalization_service_interface_13";
  virtual void get_type(string_visitor) {}
  virtual void get_type2(string_visitor) {}
  virtual void save(layer_2d, Tzu_xnode*, void* /*context*/) {}
  virtual void load(layer_2d, Tzu_xnode*, void* /*context*/) {}
  using operations = in_order<&layer_2d_externalization_service_impl::get_type,
                              &layer_2d_externalization_service_impl::get_type2,
                              &layer_2d_externalization_service_impl::save,
                              &layer_2d_externalization_service_impl::load>;
};
using layer_2d_externalization_service = of<layer_2d_externalization_service_impl>;

struct layer_2d_externalization_service_visitor_impl
    : plain_interface<layer_2d_externalization_service_visitor_impl> {
  static constexpr char name[] = "zu_layer_2d_externalization_service_visitor_interface_13";
  virtual void visit(layer_2d_externalization_service) {}
  using operations = in_order<&layer_2d_externalization_service_visitor_impl::visit>;
};

/// Draws the layers of one type. Silent on a layer of another type.
struct layer_2d_renderer_extension_service_impl
    : counted_interface<layer_2d_renderer_extension_service_impl> {
  static constexpr char name[] = "zu_layer_2d_renderer_extension_service_interface_3";
  virtual void get_type(string_visitor) {}
  virtual void render(Izu_render*, Izu_layer*) {}
  virtual void render_selection(Izu_render*, Izu_layer*) {}
  virtual bool is_dynamic() { return false; }
  using operations = in_order<&layer_2d_renderer_extension_service_impl::get_type,
                              &layer_2d_renderer_extension_service_impl::render,
                              &layer_2d_renderer_extension_service_impl::render_selection,
                              &layer_2d_renderer_extension_service_impl::is_dynamic>;
};
using layer_2d_renderer_extension_service = of<layer_2d_renderer_extension_service_impl>;

struct layer_2d_renderer_extension_service_visitor_impl
    : plain_interface<layer_2d_renderer_extension_service_visitor_impl> {
  static constexpr char name[] = "zu_layer_2d_renderer_extension_service_visitor_interface_3";
  virtual void visit(layer_2d_renderer_extension_service) {}
  using operations = in_order<&layer_2d_renderer_extension_service_visitor_impl::visit>;
};

}  // namespace zu
