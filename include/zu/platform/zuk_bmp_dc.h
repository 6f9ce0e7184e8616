#pragma once
// A drawing context that ends as a bitmap, and samples of styles for lists and forms.

#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_symbols.h"

typedef struct Tzu_bmp_dc Tzu_bmp_dc;

/// A picture of so many pixels, transparent all over; null if out of memory, for a side that is 0
/// or over 32,767, or dots that are not above 0.
ZU_API Tzu_bmp_dc* zu_bmp_dc_create(uint64_t width_px, uint64_t height_px, double dots_per_mm);
ZU_API void zu_bmp_dc_destroy(Tzu_bmp_dc* dc);  ///< null is ignored
/// What is drawn on, owned by the picture; null for null.
ZU_API Tzu_drwc* zu_bmp_dc_get_drwc(Tzu_bmp_dc* dc);
/// Copies what has been drawn into a bitmap, which takes the picture's size. Its colours are
/// straight and its `a` a transparency, as in every bitmap. False, and the bitmap has no pixels, if
/// there is no memory.
ZU_API bool zu_bmp_dc_bmp_to_dib(Tzu_bmp_dc* dc, Tzu_dib* dib);

// Samples of styles, so many pixels large. The bitmap comes as `zu_dib_premultiply_alpha` leaves
// it, so that its rows can be handed to a view as they stand: the bottom row first, red, green,
// blue, opacity. False, and the bitmap is left alone, if there is nothing to show: a null style, a
// style whose main part is invisible, a size of 0.

/// The whole area in the colour; a transparent one over a fine checkerboard.
ZU_API bool zu_preview_color(Tzu_color color, uint64_t width_px, uint64_t height_px,
                             double dots_per_mm, Tzu_dib* out);
/// The symbol in the middle, in its size, made smaller if it would not fit.
ZU_API bool zu_preview_pnt(const Tzu_pnt_style* style, uint64_t width_px, uint64_t height_px,
                           double dots_per_mm, Tzu_dib* out);
/// A line from left to right, with a vertex in the middle if vertices bear a symbol.
ZU_API bool zu_preview_pln(const Tzu_pln_style* style, uint64_t width_px, uint64_t height_px,
                           double dots_per_mm, Tzu_dib* out);
/// A box with a margin.
ZU_API bool zu_preview_pgn(const Tzu_pgn_style* style, uint64_t width_px, uint64_t height_px,
                           double dots_per_mm, Tzu_dib* out);
