#pragma once
// Trees: the project tree's nodes, the groups in them, and JSON objects.

#include "zu/platform/zuk_basic.h"

// --- Project tree. A node handed out is closed by whoever got it; the tree lives with its root.

typedef struct Tzu_xnode Tzu_xnode;
ZU_API Tzu_xnode* zu_xnode_create_root_w(const wchar_t* name);  ///< a tree in memory
ZU_API void zu_xnode_close(Tzu_xnode* node);                    ///< the root's close ends the tree
/// Child of that name; `set` adds it if it is not there, `get` gives null.
ZU_API Tzu_xnode* zu_xnode_set_node_w(Tzu_xnode* node, const wchar_t* key);
ZU_API Tzu_xnode* zu_xnode_get_node_w(Tzu_xnode* node, const wchar_t* key);
ZU_API void zu_xnode_set_attr_wstr(Tzu_xnode* node, const wchar_t* key, const wchar_t* value);
ZU_API void zu_xnode_set_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool value);
ZU_API void zu_xnode_set_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t value);
ZU_API void zu_xnode_set_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double value);
/// The text, or no call if the key is absent.
ZU_API void zu_xnode_get_attr_wstr(Tzu_xnode* node, const wchar_t* key, Tzu_string_adp* adapter);
// The value, or the default if the key is absent or no such value.
ZU_API bool zu_xnode_get_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool otherwise);
ZU_API int64_t zu_xnode_get_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t otherwise);
ZU_API double zu_xnode_get_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double otherwise);

// --- Groups: one named child of `node` each. `context` is the host's and may be null.

/// Leave the object alone and give false if the group is absent or not readable.
ZU_API void zu_xml_save_style_save_rgb_channels(void* context, Tzu_xnode* node, const wchar_t* key,
                                                const Tzu_rgb_channels* channels);
ZU_API bool zu_xml_save_style_load_rgb_channels(void* context, Tzu_xnode* node, const wchar_t* key,
                                                Tzu_rgb_channels* channels);
ZU_API void zu_xml_data_save_color(void* context, Tzu_xnode* node, const wchar_t* key,
                                   Tzu_color color);
ZU_API bool zu_xml_data_load_color(void* context, Tzu_xnode* node, const wchar_t* key,
                                   Tzu_color* color);

// --- JSON objects

typedef struct Tzu_json_obj Tzu_json_obj;
ZU_API Tzu_json_obj* zu_json_obj_create(void);
ZU_API void zu_json_obj_destroy(Tzu_json_obj* object);  ///< of a root only
ZU_API Tzu_json_obj* zu_json_obj_add_obj(Tzu_json_obj* object, const wchar_t* key);  ///< not owned
ZU_API void zu_json_obj_add_str(Tzu_json_obj* object, const wchar_t* key, const wchar_t* value);
ZU_API void zu_json_obj_add_int(Tzu_json_obj* object, const wchar_t* key, int64_t value);
ZU_API void zu_json_obj_add_dbl(Tzu_json_obj* object, const wchar_t* key, double value);
/// The whole as text, indented by two; keys in the order in which they were added.
ZU_API void zu_json_obj_get_text_w(const Tzu_json_obj* object, Tzu_string_adp* adapter);
