#pragma once
// Libraries of styles, map legends, and legends of other programs.

#include "zu/platform/zuk_styles.h"

// --- A library: a tree of captions with numbers, and three lists of styles by number. A number
// stands for a code in the data: a row of a scale whose value it is can take the caption and the
// style.

/// The number of an item that is a heading, as the root is; no code.
enum { zu_style_no_index = INT32_MIN };

typedef struct Tzu_style_item Tzu_style_item;
typedef struct Tzu_style_list Tzu_style_list;
typedef struct Tzu_idx_style Tzu_idx_style;
typedef struct Tzu_style_lib Tzu_style_lib;
ZU_API Tzu_style_lib* zu_style_lib_create(void);  ///< empty; null if out of memory
ZU_API void zu_style_lib_destroy(Tzu_style_lib* library);
ZU_API void zu_style_lib_get_caption(const Tzu_style_lib* library, Tzu_string_adp* adapter);
ZU_API void zu_style_lib_set_caption(Tzu_style_lib* library, const wchar_t* caption);
/// Adds what the other has; entries already held stay. An item is held if its number is anywhere in
/// the tree, a heading if its caption is under the same parent, a style if the list has the same
/// one under the same number.
ZU_API void zu_style_lib_merge(Tzu_style_lib* library, const Tzu_style_lib* from);
ZU_API Tzu_style_item* zu_style_lib_get_root_item_ptr(Tzu_style_lib* library);
ZU_API Tzu_style_list* zu_style_lib_get_pnt_list_ptr(Tzu_style_lib* library);
ZU_API Tzu_style_list* zu_style_lib_get_pln_list_ptr(Tzu_style_lib* library);
ZU_API Tzu_style_list* zu_style_lib_get_pgn_list_ptr(Tzu_style_lib* library);

/// An item below `item`, at the end; null if out of memory.
ZU_API Tzu_style_item* zu_style_item_add(Tzu_style_item* item, int32_t index,
                                         const wchar_t* caption);
/// The first in the tree, the item itself included, with that number; null if none. Never a
/// heading.
ZU_API Tzu_style_item* zu_style_item_find_by_index(Tzu_style_item* item, int32_t index);
ZU_API void zu_style_item_get_caption(const Tzu_style_item* item, Tzu_string_adp* adapter);
ZU_API int32_t zu_style_item_get_index(const Tzu_style_item* item);

ZU_API uint64_t zu_style_list_get_size(const Tzu_style_list* list);
/// Place of the style with the number `index`; -1 if there is none.
ZU_API int64_t zu_style_list_find_idx(const Tzu_style_list* list, int32_t index);
ZU_API Tzu_idx_style* zu_style_list_get_idx_style(Tzu_style_list* list,
                                                  uint64_t place);  ///< or null
/// A new style at `place` (at most the size) with the number `index`; null if out of memory.
ZU_API Tzu_idx_style* zu_style_list_insert(Tzu_style_list* list, uint64_t place, int32_t index);
ZU_API void zu_style_list_remove(Tzu_style_list* list, uint64_t place);
ZU_API int32_t zu_idx_style_get_index(const Tzu_idx_style* entry);
/// The version of the form that the style was made for, kept with it; 0 unless set.
ZU_API int32_t zu_idx_style_get_version(const Tzu_idx_style* entry);
ZU_API void zu_idx_style_set_version(Tzu_idx_style* entry, int32_t version);
// The style of an entry, owned by it; null if the list is of another kind.
ZU_API Tzu_pnt_style* zu_idx_pnt_style_get_pnt_style_ptr(Tzu_idx_style* entry);
ZU_API Tzu_pln_style* zu_idx_pln_style_get_pln_style_ptr(Tzu_idx_style* entry);
ZU_API Tzu_pgn_style* zu_idx_pgn_style_get_pgn_style_ptr(Tzu_idx_style* entry);

// --- The libraries of the folder that `zu_options_get_style_libs_path` names: its "._ls" files by
// name; and behind them, unless the host has set a folder, those of
// `zu_options_get_own_style_libs_path` in the language in force, but for files of the same name.
// Read at the first call, and anew when a folder, a file or the language has changed; a library
// that was handed out stays as it was. A file that cannot be read is left out, and its reason is
// kept under its path (`zu_problems_get`).

typedef struct Tzu_style_libs Tzu_style_libs;
ZU_API Tzu_style_libs* zu_global_lib_styles_get_libs(void);  ///< null if there are no such folders
ZU_API uint64_t zu_style_libs_get_size(const Tzu_style_libs* libraries);
ZU_API Tzu_style_lib* zu_style_libs_get_lib_ptr(Tzu_style_libs* libraries, uint64_t index);
/// Captions of the libraries in order, owned by the caller; never null but for lack of memory.
ZU_API Tzu_wstrings* zu_global_lib_styles_create_name_list(void);

// --- Legends of the current project: value scales of its layers, by a title each.

typedef struct Tzu_prj Tzu_prj;
typedef struct Tzu_maplegs Tzu_maplegs;
typedef struct Tzu_mapleg Tzu_mapleg;
ZU_API Tzu_prj* zu_prj_get_instance(void);  ///< null until a host has set one
ZU_API void zu_prj_set_instance(Tzu_prj* project);
ZU_API Tzu_prj* zu_prj_create(void);
ZU_API void zu_prj_destroy(Tzu_prj* project);  ///< it is the current one no longer
/// Asked for by whoever shows or applies them; `refresh` fills them each time before they are
/// given, so what was given before ends.
ZU_API Tzu_maplegs* zu_prj_get_maplegs_ptr(Tzu_prj* project);
typedef void (*Tzu_prj_refresh)(Tzu_maplegs* legends, void* user);
ZU_API void zu_prj_set_refresh(Tzu_prj* project, Tzu_prj_refresh refresh, void* user);
ZU_API uint64_t zu_maplegs_get_size(const Tzu_maplegs* legends);
ZU_API Tzu_mapleg* zu_maplegs_get_ptr(Tzu_maplegs* legends, uint64_t index);
ZU_API Tzu_mapleg* zu_maplegs_add(Tzu_maplegs* legends, const wchar_t* title);
ZU_API void zu_maplegs_clear(Tzu_maplegs* legends);
ZU_API void zu_mapleg_get_title(const Tzu_mapleg* legend, Tzu_string_adp* adapter);
/// The scale of a legend, owned by it: rows by value text.
ZU_API Tzu_val_scale* zu_mapleg_get_val_scale_ptr(Tzu_mapleg* legend);
/// Rows of `scale` (all or marked ones) whose text is that of a row of the legend get its caption
/// and its style `selected`.
ZU_API void zu_val_scale_style_by_mapleg(Tzu_val_scale* scale, Tzu_mapleg* legend, bool only_marked,
                                         int32_t selected);

// --- ArcView legends

typedef struct Tgp_env Tgp_env;
typedef struct Tgp_env_out Tgp_env_out;
typedef struct Tgp_avl_to_stlmgr_params Tgp_avl_to_stlmgr_params;
/// What conversions report to; messages go to `sink`, which may be null.
ZU_API Tgp_env* gp_env_create(void);
ZU_API void gp_env_destroy(Tgp_env* environment);
ZU_API Tgp_env_out* gp_env_out_create(void (*sink)(const wchar_t* text, void* user), void* user);
/// The environment owns it from now on.
ZU_API void gp_env_out_set(Tgp_env* environment, Tgp_env_out* out);
ZU_API Tgp_env* gp_env_main_get_env(void);  ///< null unless set
ZU_API void gp_env_main_set_env(Tgp_env* environment);
ZU_API Tgp_avl_to_stlmgr_params* gp_avl_to_stlmgr_params_create(void);
ZU_API void gp_avl_to_stlmgr_params_destroy(Tgp_avl_to_stlmgr_params* params);
ZU_API void gp_avl_to_stlmgr_params_set_filename_w(Tgp_avl_to_stlmgr_params* params,
                                                   const wchar_t* path);
ZU_API void gp_avl_to_stlmgr_params_set_stl_mngr(Tgp_avl_to_stlmgr_params* params,
                                                 Tzu_stl_mngr* manager);
/// 0 on success: the mode, and the field (if the legend names one) and the scale of that mode or
/// the simple style are those of the legend; what else the manager has stays. Classes of ranges get
/// their lower ends so that they hold what ArcView's did, tails are hidden, "other" looks as "all
/// other values" or "no data" did. Markers become circles of their size, widths and dashes are kept
/// in millimetres, the first part stands for a composite symbol, and the background for a pattern.
/// Else the manager is as it was, and the environment's sink has the reason.
ZU_API int32_t gp_avl_to_stlmngr_execute(Tgp_avl_to_stlmgr_params* params);
