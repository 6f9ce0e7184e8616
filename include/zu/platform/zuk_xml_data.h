#pragma once
// Styles in trees; scales, styles and libraries in files of their own.

#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_palettes.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_styles.h"

// --- Groups: one named child of `node` each, whose old content is replaced. `context` is the
// host's and may be null. What is read replaces the whole object; a value that is absent or broken
// is that of a new object. Reading leaves the object alone and gives false if the group is absent,
// was written under another type name, or has more than a million rows in a scale.

/// A style manager: mode, fields, simple style, and its three scales with rows, tails, "other",
/// captions and how the boundaries were made. `type` is the manager's own type name; under another
/// one nothing is written.
ZU_API void zu_xml_save_style_save_mngr_style(void* context, Tzu_xnode* node, const wchar_t* key,
                                              const char* type, const Tzu_stl_mngr* manager);
ZU_API bool zu_xml_save_style_load_mngr_style(void* context, Tzu_xnode* node, const wchar_t* key,
                                              const char* type, Tzu_stl_mngr* manager);
ZU_API void zu_xml_save_style_save_hillshade_style(void* context, Tzu_xnode* node,
                                                   const wchar_t* key,
                                                   const Tzu_hillshade_style* style);
ZU_API bool zu_xml_save_style_load_hillshade_style(void* context, Tzu_xnode* node,
                                                   const wchar_t* key, Tzu_hillshade_style* style);
ZU_API void zu_xml_save_style_save_isoline_style(void* context, Tzu_xnode* node, const wchar_t* key,
                                                 const Tzu_isoline_style* style);
ZU_API bool zu_xml_save_style_load_isoline_style(void* context, Tzu_xnode* node, const wchar_t* key,
                                                 Tzu_isoline_style* style);

// --- Scale files: one scale of a manager, with its field, as an XML file. `key` is the manager's
// type name, and a file is read under the one that it was written under. The form does not tell a
// rule scale from a value scale: the functions of value scales work on the manager's rule scale
// where the path ends in "._rl", in small or capital letters.

/// What the operations on files of scales and libraries work through; it says why the last one
/// failed. They take null for it where nobody asks.
typedef struct Tzu_xml_save_2d Tzu_xml_save_2d;
ZU_API Tzu_xml_save_2d* zu_xml_save_2d_create(void);  ///< null if out of memory
ZU_API void zu_xml_save_2d_destroy(Tzu_xml_save_2d* xml);
ZU_API void zu_xml_save_2d_get_reason_w(const Tzu_xml_save_2d* xml, Tzu_string_adp* adapter);
/// False, and the old file as it was, if the file cannot be written or `key` is not the manager's.
ZU_API bool zu_xml_data_save_val_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                         const Tzu_stl_mngr* manager, const char* key);
ZU_API bool zu_xml_data_save_rng_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                         const Tzu_stl_mngr* manager, const char* key);
/// False, and the scale as it was, if the file cannot be read or holds no such scale under `key`.
/// The mode of the manager stays.
ZU_API bool zu_xml_data_load_val_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                         Tzu_stl_mngr* manager, const char* key);
ZU_API bool zu_xml_data_load_rng_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                         Tzu_stl_mngr* manager, const char* key);

/// What the operations below work through, or null; it says why the last one failed.
typedef struct Tzu_xml_save_style Tzu_xml_save_style;
ZU_API Tzu_xml_save_style* zu_xml_save_style_create(void);  ///< null if out of memory
ZU_API void zu_xml_save_style_destroy(Tzu_xml_save_style* xml);
ZU_API void zu_xml_save_style_get_reason_w(const Tzu_xml_save_style* xml, Tzu_string_adp* adapter);

// The same scale files under the manager's own type name.
ZU_API bool zu_xml_save_style_save_val_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                             const Tzu_stl_mngr* manager);
ZU_API bool zu_xml_save_style_save_rng_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                             const Tzu_stl_mngr* manager);
ZU_API bool zu_xml_save_style_load_val_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                             Tzu_stl_mngr* manager);
ZU_API bool zu_xml_save_style_load_rng_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                             Tzu_stl_mngr* manager);

// --- Single styles, as files and as texts for the clipboard. Both have one form, which says of
// which kind the style is. False, and the file or the style as it was, if it cannot be written, or
// if what is read is broken or of another kind.

ZU_API bool zu_xml_save_style_save_style_pnt_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  const Tzu_pnt_style* style);
ZU_API bool zu_xml_save_style_save_style_pln_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  const Tzu_pln_style* style);
ZU_API bool zu_xml_save_style_save_style_pgn_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  const Tzu_pgn_style* style);
ZU_API bool zu_xml_save_style_load_style_pnt_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  Tzu_pnt_style* style);
ZU_API bool zu_xml_save_style_load_style_pln_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  Tzu_pln_style* style);
ZU_API bool zu_xml_save_style_load_style_pgn_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                                  Tzu_pgn_style* style);
// The text goes to the adapter; false, and no call, if out of memory.
ZU_API bool zu_xml_save_style_save_style_pnt_str(Tzu_xml_save_style* xml,
                                                 const Tzu_pnt_style* style,
                                                 Tzu_string_adp* adapter);
ZU_API bool zu_xml_save_style_save_style_pln_str(Tzu_xml_save_style* xml,
                                                 const Tzu_pln_style* style,
                                                 Tzu_string_adp* adapter);
ZU_API bool zu_xml_save_style_save_style_pgn_str(Tzu_xml_save_style* xml,
                                                 const Tzu_pgn_style* style,
                                                 Tzu_string_adp* adapter);
ZU_API bool zu_xml_save_style_load_style_pnt_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                                 Tzu_pnt_style* style);
ZU_API bool zu_xml_save_style_load_style_pln_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                                 Tzu_pln_style* style);
ZU_API bool zu_xml_save_style_load_style_pgn_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                                 Tzu_pgn_style* style);

// --- Libraries of styles ("._ls")

/// False, and the old file as it was, if it cannot be written.
ZU_API bool zu_xml_data_save_style_lib(Tzu_xml_save_2d* xml, const wchar_t* path,
                                       const Tzu_style_lib* library);
/// Replaces what the library holds. False, and the library as it was, if the file cannot be read,
/// is no library, or has more than 100,000 items or styles, or a tree deeper than 60.
ZU_API bool zu_xml_data_load_style_lib(Tzu_xml_save_2d* xml, const wchar_t* path,
                                       Tzu_style_lib* library);
// The same for who does not ask why.
ZU_API bool zu_xml_data_save_style_lib_file(const wchar_t* path, const Tzu_style_lib* library);
ZU_API bool zu_xml_data_load_style_lib_file(const wchar_t* path, Tzu_style_lib* library);

// --- Palette files (".clrs")

/// The whole list. False, and the old file as it was, if the file cannot be written.
ZU_API bool zu_xml_data_save_clr_palettes(Tzu_xml_save_2d* xml, const wchar_t* path,
                                          const Tzu_clr_palettes* list);
/// The list becomes what the file holds. False, and the list as it was, if the file cannot be read
/// or is no palette file, a colour in it is broken, or there are more than a million of them.
ZU_API bool zu_xml_data_load_clr_palettes(Tzu_xml_save_2d* xml, const wchar_t* path,
                                          Tzu_clr_palettes* list);
