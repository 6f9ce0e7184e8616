#pragma once
// Trees: the project tree's nodes, the groups in them, and JSON objects.

#include "zu/platform/zuk_basic.h"

// --- Project tree. A node handed out is closed by whoever got it; the tree lives with its root.
//
// A key is any text but an empty one; in a file, what is no XML name is written as "_x" and the
// character's number (hexadecimal, capitals) and "_", and so are control characters in values.

typedef struct Tzu_xnode Tzu_xnode;
ZU_API Tzu_xnode* zu_xnode_create_root_w(const wchar_t* name);  ///< a tree in memory
ZU_API void zu_xnode_close(Tzu_xnode* node);                    ///< the root's close ends the tree
ZU_API void zu_xnode_get_name_w(Tzu_xnode* node, Tzu_string_adp* adapter);
/// First child of that name; `set` adds it if it is not there, `get` gives null.
ZU_API Tzu_xnode* zu_xnode_set_node_w(Tzu_xnode* node, const wchar_t* key);
ZU_API Tzu_xnode* zu_xnode_get_node_w(Tzu_xnode* node, const wchar_t* key);
/// A new child behind all others, whether there is one of that name or not.
ZU_API Tzu_xnode* zu_xnode_add_node_w(Tzu_xnode* node, const wchar_t* key);
/// The next node of the same name under the same parent; null behind the last one.
ZU_API Tzu_xnode* zu_xnode_next_node_w(Tzu_xnode* node);
/// Takes away all attributes and children. Other nodes handed out below it end with them.
ZU_API void zu_xnode_clear(Tzu_xnode* node);
/// Takes the node and all below it out of its tree, and closes it. Not for a root.
ZU_API void zu_xnode_remove(Tzu_xnode* node);
/// Clears `node` and gives it the attributes and children of `from`, a node of another tree or
/// branch, as they stand.
ZU_API void zu_xnode_assign(Tzu_xnode* node, const Tzu_xnode* from);
ZU_API void zu_xnode_set_attr_wstr(Tzu_xnode* node, const wchar_t* key, const wchar_t* value);
ZU_API void zu_xnode_set_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool value);
ZU_API void zu_xnode_set_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t value);
/// Written as the shortest text that reads back as the same number; NaN and infinities too.
ZU_API void zu_xnode_set_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double value);
/// The text, or no call if the key is absent.
ZU_API void zu_xnode_get_attr_wstr(Tzu_xnode* node, const wchar_t* key, Tzu_string_adp* adapter);
// The value, or the default if the key is absent or no such value.
ZU_API bool zu_xnode_get_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool otherwise);
ZU_API int64_t zu_xnode_get_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t otherwise);
ZU_API double zu_xnode_get_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double otherwise);
// The same of the text inside a child.
ZU_API void zu_xnode_get_node_wstr(Tzu_xnode* node, const wchar_t* key, Tzu_string_adp* adapter);
ZU_API int64_t zu_xnode_get_node_int(Tzu_xnode* node, const wchar_t* key, int64_t otherwise);

// Trees as UTF-8 text. A text is refused, with the reason to the adapter, if it is no XML or has
// more than one root, holds a NUL, declares a document type (and with it entities), is nested
// deeper than 64 nodes or longer than 256 MiB. Comments stay; a tree written, read and written
// again is the same to the byte.

/// Root of the tree in a text; null if it is refused.
ZU_API Tzu_xnode* zu_xnode_read(const char* text, uint64_t size, Tzu_string_adp* reason);
/// The same of a file; null also if that cannot be read.
ZU_API Tzu_xnode* zu_xnode_load_file_w(const wchar_t* path, Tzu_string_adp* reason);
/// The whole tree of a root as text, to the adapter's narrow sink.
ZU_API void zu_xnode_get_text(Tzu_xnode* root, Tzu_string_adp* adapter);
/// Writes the tree whole or not at all: a kill at any moment leaves the old file or the new one.
/// False with the reason if it cannot be written.
ZU_API bool zu_xnode_save_file_w(Tzu_xnode* root, const wchar_t* path, Tzu_string_adp* reason);
/// The same of `size` bytes of anything.
ZU_API bool zu_io_write_file_w(const wchar_t* path, const char* bytes, uint64_t size,
                               Tzu_string_adp* reason);

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
