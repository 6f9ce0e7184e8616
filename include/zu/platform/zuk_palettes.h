#pragma once
// Numbered arrays of colours, and palettes that a person makes.

#include "zu/platform/zuk_basic.h"

// --- Numbered arrays. `flag` 0 spreads an array as a ramp over `count` colours, 1 takes its
// colours in turn, from the beginning again where they end. Transparencies of `colors` are kept.

/// False, and nothing changed, if there is no such array.
ZU_API bool zu_clr_arrays_generate_ex(int32_t id, uint64_t count, Tzu_color* colors, int32_t flag);
/// Arrays are counted from 0 without gaps.
ZU_API int32_t zu_clr_arrays_get_count(void);
/// Its English name in lower case with underscores ("blue_white_red"), or null; lives for ever.
ZU_API const char* zu_clr_arrays_get_name(int32_t id);
/// True for an array of kinds rather than of amounts, whose colours are to be taken in turn: a ramp
/// between them would say nothing.
ZU_API bool zu_clr_arrays_is_of_kinds(int32_t id);
ZU_API int32_t zu_clr_arrays_find(const char* name);  ///< -1 if there is none

// --- Palettes

typedef struct Tzu_clr_palette Tzu_clr_palette;
typedef struct Tzu_clr_palettes Tzu_clr_palettes;
ZU_API Tzu_clr_palettes* zu_clr_palettes_create(void);  ///< empty; null if out of memory
ZU_API void zu_clr_palettes_destroy(Tzu_clr_palettes* list);
ZU_API void zu_clr_palettes_assign(Tzu_clr_palettes* list, const Tzu_clr_palettes* from);
ZU_API uint64_t zu_clr_palettes_get_size(const Tzu_clr_palettes* list);
ZU_API Tzu_clr_palette* zu_clr_palettes_get_ptr(Tzu_clr_palettes* list,
                                                uint64_t index);  ///< or null
/// An empty one at the end, owned by the list.
ZU_API Tzu_clr_palette* zu_clr_palettes_add(Tzu_clr_palettes* list);
ZU_API void zu_clr_palettes_del(Tzu_clr_palettes* list, uint64_t index);
/// Those of the set go before `index` (at most the size), in their order.
ZU_API void zu_clr_palettes_move_palettes(Tzu_clr_palettes* list, const Tzu_int_set* marked,
                                          uint64_t index);
ZU_API void zu_clr_palette_assign(Tzu_clr_palette* palette, const Tzu_clr_palette* from);
ZU_API void zu_clr_palette_get_wcaption(const Tzu_clr_palette* palette, Tzu_string_adp* adapter);
ZU_API void zu_clr_palette_set_wcaption(Tzu_clr_palette* palette, const wchar_t* caption);
ZU_API uint64_t zu_clr_palette_get_size(const Tzu_clr_palette* palette);
ZU_API Tzu_color zu_clr_palette_get_color(const Tzu_clr_palette* palette, uint64_t index);
ZU_API void zu_clr_palette_set_color(Tzu_clr_palette* palette, uint64_t index, Tzu_color color);
ZU_API void zu_clr_palette_add_color(Tzu_clr_palette* palette, Tzu_color color);
ZU_API void zu_clr_palette_del_color(Tzu_clr_palette* palette, uint64_t index);
ZU_API void zu_clr_palette_move_clrs(Tzu_clr_palette* palette, const Tzu_int_set* marked,
                                     uint64_t index);
ZU_API void zu_clr_palette_invert(Tzu_clr_palette* palette);
/// The colours of a numbered array as they are stored.
ZU_API bool zu_clr_arrays_init_palette(int32_t id, Tzu_clr_palette* palette);
/// As `zu_clr_arrays_generate_ex` of a palette's colours; an empty palette changes nothing.
ZU_API void zu_clr_arrays_generate_palette_ex(const Tzu_clr_palette* palette, uint64_t count,
                                              Tzu_color* colors, int32_t flag);
/// The one list of the person's own, read at the first call from the file "user_palettes.clrs" of
/// the storage folder. Never null.
ZU_API Tzu_clr_palettes* zu_get_user_palettes(void);
