#pragma once
// Layer entities and scenes: what the host knows of a layer, apart from its plug-in object.

#include "zu/platform/zuk_attr_data.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

typedef struct Izu_layer Izu_layer;
typedef struct Tzu_scn_2d Tzu_scn_2d;

// --- Entities. A null entity gives empty texts, false and null.

/// A new entity of a type such as "grid_lr2d"; null if out of memory. Its plug-in object is the
/// host's to end, before the entity. A layer of a picture ("rtr_lr2d") or of a TOS4 file has no
/// plug-in object: what is set on it stands in the entity, and the headers of those libraries reach
/// it.
ZU_API Izu_layer* zu_lr2d_create(const char* type);
ZU_API void zu_lr2d_destroy(Izu_layer* layer);
ZU_API const char* zu_lr2d_get_lr_type(const Izu_layer* layer);  ///< owned by the entity
ZU_API const char* zu_lr_get_lr_type(const Izu_layer* layer);    ///< the same
/// A kind within the type, such as "segy_sub_lr2d"; a new entity has none.
ZU_API void zu_lr_get_lr_subtype(const Izu_layer* layer, Tzu_string_adp* adapter);
ZU_API void zu_lr_set_lr_subtype(Izu_layer* layer, const wchar_t* subtype);
/// Where the plug-in handle of the layer stands; null if there is none.
ZU_API const Tzu_handle* zu_lr2d_get_plugin_interface(const Izu_layer* layer);
ZU_API void zu_lr2d_set_plugin_interface(Izu_layer* layer, Tzu_handle plugin);

/// Name of the data source: a path, or a reference that the drivers understand.
ZU_API void zu_lr2d_get_wsource(const Izu_layer* layer, Tzu_string_adp* adapter);
ZU_API void zu_lr2d_set_wsource(Izu_layer* layer, const wchar_t* source);
ZU_API void zu_lr2d_get_wcaption(const Izu_layer* layer, Tzu_string_adp* adapter);
ZU_API void zu_lr_set_wcaption(Izu_layer* layer, const wchar_t* caption);
/// The file that the source lives in; begins with "*" if it lives in none.
ZU_API void zu_lr2d_get_wfilename(const Izu_layer* layer, Tzu_string_adp* adapter);

/// `missing` true marks the layer's file as missing.
ZU_API void zu_lr2d_set_valid(Izu_layer* layer, bool missing);
ZU_API bool zu_lr2d_is_missing(const Izu_layer* layer);
/// Whether a person wants to see it; a new entity shows.
ZU_API bool zu_lr2d_is_visible(const Izu_layer* layer);
ZU_API void zu_lr2d_set_visible(Izu_layer* layer, bool visible);
ZU_API void zu_lr2d_data_changed(Izu_layer* layer);
/// Tells of the above by `zu_update_data`. The entity's own.
ZU_API Tzu_event_channel* zu_lr_get_update_event_channel(Izu_layer* layer);
ZU_API uint64_t zu_lr2d_get_change_count(const Izu_layer* layer);  ///< calls of the above
/// Box in scene coordinates; `ok` false means that it is not known.
ZU_API void zu_lr2d_set_box(Izu_layer* layer, bool ok, const Tzu_box_d2* box);
ZU_API bool zu_lr2d_get_box(const Izu_layer* layer, Tzu_box_d2* box);

// What a host calls when a source was set or has changed, in this order. A plug-in object is told;
// an entity without one does it itself.

/// Takes the projection of the source, unless the layer has one.
ZU_API void zu_lr2d_source_changed(Izu_layer* layer);
/// Sets the box: the outer edge of the source's cells, in scene coordinates. Not known if the
/// source does not open or does not lead there.
ZU_API void zu_lr2d_update_box(Izu_layer* layer);
/// Marks whether the file of the source is missing.
ZU_API void zu_lr2d_update_validity(Izu_layer* layer);

// Styles of a layer, owned by its plug-in object or its entity; null if its kind has none.
ZU_API Tzu_stl_mngr* zu_lr_get_style_mngr_ptr(const Izu_layer* layer);
ZU_API Tzu_hillshade_style* zu_lr2d_get_hillshade_style(const Izu_layer* layer);
ZU_API Tzu_isoline_style* zu_lr2d_get_isoline_style(const Izu_layer* layer);

// Settings of an entity without a plug-in object, in the project tree under `node`. `context` goes
// to the groups of styles. What is absent keeps its value.
ZU_API void zu_lr2d_save_state(const Izu_layer* layer, Tzu_xnode* node, void* context);
ZU_API void zu_lr2d_load_state(Izu_layer* layer, Tzu_xnode* node, void* context);

/// Projection of the layer's data, which its plug-in object or its source knows; empty if it takes
/// no part in reprojection.
ZU_API void zu_lr2d_get_pj4wstr(const Izu_layer* layer, Tzu_string_adp* adapter);
/// Sets it; null or empty: none. A plug-in object may store it with its file.
ZU_API void zu_lr2d_set_pj4wstr(Izu_layer* layer, const wchar_t* projection);
/// Projection of the layer's scene; empty without one.
ZU_API void zu_lr2d_get_dst_pj4wstr(const Izu_layer* layer, Tzu_string_adp* adapter);

ZU_API void zu_plugin_lr2d_bind_entity(Izu_layer* layer, Tzu_attr_data* data);  ///< data not owned
/// The table that the entity was tied to, else its own; null if it has neither.
ZU_API Tzu_table_data* zu_lr2d_get_data_ptr(const Izu_layer* layer);
ZU_API Tzu_table_data* zu_lr_get_data_ptr(const Izu_layer* layer);  ///< the same
ZU_API bool zu_lr_get_own_selected_style_flag(const Izu_layer* layer);
ZU_API void zu_lr_set_own_selected_style_flag(Izu_layer* layer, bool own);

// --- Scenes. A scene holds its layers in order, the lowest first, and does not own them.

ZU_API Tzu_scn_2d* zu_scn_2d_create(void);
ZU_API void zu_scn_2d_destroy(Tzu_scn_2d* scene);
ZU_API void zu_scn_2d_add_layer(Tzu_scn_2d* scene, Izu_layer* layer);     ///< on top
ZU_API void zu_scn_2d_remove_layer(Tzu_scn_2d* scene, Izu_layer* layer);  ///< the entity lives on
ZU_API uint64_t zu_scn_2d_get_layer_count(const Tzu_scn_2d* scene);
ZU_API Izu_layer* zu_scn_2d_get_layer(const Tzu_scn_2d* scene, uint64_t index);
/// Tells of layers, active layer and projection by `Tzu_update_property`. The scene's own.
ZU_API Tzu_event_channel* zu_scn_get_update_event_channel(Tzu_scn_2d* scene);
/// The layer that a person works on; null if there is none. It is forgotten when it leaves.
ZU_API Izu_layer* zu_scn_2d_get_active_layer(const Tzu_scn_2d* scene);
ZU_API void zu_scn_2d_set_active_layer(Tzu_scn_2d* scene, Izu_layer* layer);  ///< one of its own
/// Calculates the box of the scene from the boxes of its visible layers.
ZU_API void zu_scn_2d_calc_box(Tzu_scn_2d* scene);
/// The box of the scene without what is hidden: the one calculated, which is calculated again after
/// a layer came, went, was shown or hidden, or got another box. False if no visible layer has one.
ZU_API bool zu_scn_2d_get_clipped_box(Tzu_scn_2d* scene, Tzu_box_d2* box);
ZU_API void zu_scn_2d_set_pj4wstr(Tzu_scn_2d* scene, const wchar_t* projection);
ZU_API void zu_scn_2d_get_pj4wstr(const Tzu_scn_2d* scene, Tzu_string_adp* adapter);
/// Colour in which selected cells show; a new scene has none set, and tells a yellow.
ZU_API Tzu_optional_color zu_scn_2d_get_selected_style_clr(const Tzu_scn_2d* scene);
ZU_API void zu_scn_2d_set_selected_style_clr(Tzu_scn_2d* scene, Tzu_optional_color color);
/// Line in which selected pieces of curves show, owned by the scene; null if none is set.
ZU_API const Tzu_pln_style* zu_scn_2d_get_selected_style_pln(const Tzu_scn_2d* scene);
ZU_API void zu_scn_2d_set_selected_style_pln(Tzu_scn_2d* scene, const Tzu_pln_style* style);
ZU_API Tzu_scn_2d* zu_lr_get_scene(const Izu_layer* layer);  ///< null if it stands in none
ZU_API Tzu_scn_2d* zu_lr2d_get_scn_2d(const Izu_layer* layer);

// --- Builders: how whoever opens a file asks the host for layers, and tells it what failed.

typedef struct Tzu_lr_builder Tzu_lr_builder;
/// Makes a layer of a type on a path and gives its entity, which the host owns; null if it cannot.
typedef Izu_layer* (*Tzu_lr_builder_add)(const wchar_t* path, const char* type, void* user);
/// Hears what failed, in words for a person.
typedef void (*Tzu_lr_builder_error)(const wchar_t* path, const wchar_t* text, void* user);

/// A builder that calls the host with `user`. Null functions make no layers and hear nothing. Null
/// if out of memory.
ZU_API Tzu_lr_builder* zu_lr_builder_create(Tzu_lr_builder_add add, Tzu_lr_builder_error error,
                                            void* user);
ZU_API void zu_lr_builder_destroy(Tzu_lr_builder* builder);  ///< null is ignored
/// Adds a layer of a type such as "grid_lr2d"; null if that failed. Null texts count as empty.
ZU_API Izu_layer* zu_lr_builder_add_layer(Tzu_lr_builder* builder, const wchar_t* path,
                                          const char* type);
/// Tells the host that the file failed.
ZU_API void zu_lr_builder_add_error(Tzu_lr_builder* builder, const wchar_t* path,
                                    const wchar_t* text);
