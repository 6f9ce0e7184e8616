#pragma once
// What the system is asked for: comparison, case, code pages, files, language.

#include "zu/platform/zuk_basic.h"

/// Negative, 0, positive: ICU's root collation, secondary strength (case ignored). Null counts as
/// empty.
ZU_API int32_t zu_os_compare_ignoring_case(const wchar_t* a, const wchar_t* b);
ZU_API void zu_os_lower(const wchar_t* text, Tzu_string_adp* adapter);
ZU_API void zu_os_upper(const wchar_t* text, Tzu_string_adp* adapter);
/// Converts `bytes` bytes (-1: up to the NUL) of a code page: 65001, 1250 to 1258, 866, 20127, or 0
/// for the system's. A byte without a meaning becomes U+FFFD. False, and no call, for another page.
ZU_API bool zu_os_multibyte_to_wide(uint32_t code_page, const char* text, int64_t bytes,
                                    Tzu_string_adp* adapter);
/// Whether attributes of that path can be had: there is such a file or folder, /vsi paths too.
ZU_API bool zu_os_file_exists(const wchar_t* path);
/// When a file was last changed, in nanoseconds since 1970; 0 if that cannot be read.
ZU_API int64_t zu_os_get_file_time(const wchar_t* path);
/// Where a file of this program goes that cannot be written beside the data: the same path under
/// the user's data folder ("~/.local/share/zugrid/beside/data/a.z._rg" for "/data/a.z._rg"). `make`
/// makes its folder. False, and no call, if the user has no such folder or it cannot be made.
ZU_API bool zu_os_get_user_place_w(const wchar_t* path, bool make, Tzu_string_adp* adapter);
/// Offset of the texts in the language in force: 0 Russian, 50000 English.
ZU_API int32_t zu_res_get_lng(void);
ZU_API void zu_res_set_lng(int32_t offset);

// --- The clipboard, which is the host's. Texts lie there under the names of private formats.

/// What a host offers. A null member: there is no clipboard. `user` is handed back.
typedef struct Tzu_clipboard_hooks {
  /// Puts a text there; what else lies there goes if `empty_first`, and stays if not.
  bool (*set)(const wchar_t* format, const wchar_t* text, bool empty_first, void* user);
  bool (*get)(const wchar_t* format, Tzu_string_adp* adapter, void* user);
  void* user;
} Tzu_clipboard_hooks;
/// Whose clipboard it is from now on; null is nobody's. They are copied.
ZU_API void zu_os_set_clipboard_hooks(const Tzu_clipboard_hooks* hooks);
/// False if the text could not be put there.
ZU_API bool zu_os_set_clipboard_w(const wchar_t* format, const wchar_t* text, bool empty_first);
/// The text that lies there under a format. False, and no call, if there is none.
ZU_API bool zu_os_get_clipboard_w(const wchar_t* format, Tzu_string_adp* adapter);

// --- Texts and pictures that all parts of the system share

/// Text `id` of `zuk_basic` in the language in force; null if there is none. Lives as long as the
/// library.
ZU_API const wchar_t* zu_res_get_wstr(int32_t id);
/// Picture `id` of `zuk_basic`: one letter a pixel, width * height of them, the top row first; null
/// if there is none. Lives as long as the library.
ZU_API const char* zu_res_get_bitmap(int32_t id, uint32_t* width, uint32_t* height);
/// Turns letters into width * height pixels of four bytes (r, g, b, 0), the bottom row first, as in
/// a DIB. False if their number is another or a letter stands for no colour; the pixels are then
/// undefined. The letters: . background, w white, k black, g grey, l light grey, r red, o orange,
/// y yellow, e green, t turquoise, b blue, s light blue, d dark blue, n brown, v violet.
ZU_API bool zu_res_paint_bitmap(const char* letters, uint32_t width, uint32_t height,
                                uint8_t* pixels);
