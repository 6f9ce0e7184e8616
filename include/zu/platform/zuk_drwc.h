#pragma once
// Drawing contexts: a page in millimetres, x to the right and y upwards, origin at the lower left.

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_dib.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_styles.h"

typedef struct Tzu_drwc Tzu_drwc;

/// How a DIB is drawn.
typedef struct Tzu_dib_draw_record {
  Tzu_box_d2 box;  ///< millimetres
  uint32_t kind;   ///< 0 the picture of a layer, 1 its selection overlay
  uint8_t alpha;   ///< opacity of the whole, 255 opaque
  uint8_t zero[3];
} Tzu_dib_draw_record;

/// A picture of nx by ny pixels, transparent all over; null if out of memory or a side is 0 or over
/// 32,767. An accurate context asks for full precision: what it shows is drawn in tiles.
ZU_API Tzu_drwc* zu_drwc_create_image(uint64_t nx, uint64_t ny, double dots_per_inch,
                                      bool accurate);
/// A page of a PDF or SVG document, empty; null for a side that is not above 0 or is over 5,080 mm,
/// or dots that are not above 0 or are over 9,600. It is accurate. Bitmaps become images of that
/// many dots an inch, lines stay lines and texts stay texts (in SVG their outlines).
ZU_API Tzu_drwc* zu_drwc_create_pdf(double width_mm, double height_mm, double dots_per_inch);
ZU_API Tzu_drwc* zu_drwc_create_svg(double width_mm, double height_mm, double dots_per_inch);
ZU_API void zu_drwc_destroy(Tzu_drwc* drwc);
/// The whole page, whatever the clip and the region: a picture's is replaced, a document's painted
/// over.
ZU_API void zu_drwc_fill(Tzu_drwc* drwc, Tzu_color color);
ZU_API bool zu_drwc_is_accurate(const Tzu_drwc* drwc);
ZU_API void zu_drwc_get_page(const Tzu_drwc* drwc, Tzu_box_d2* millimetres);
/// Pixels of a picture, or dots of the images of a document, a millimetre; 0 for null.
ZU_API double zu_drwc_get_dots_per_mm(const Tzu_drwc* drwc);
/// Size in pixels of a DIB for a box. The box's sides are rounded to whole pixels of the page, a
/// box with area has at least one pixel; zero in either side means that nothing can be drawn.
ZU_API void zu_drwc_get_dib_size(const Tzu_drwc* drwc, const Tzu_box_d2* box, uint64_t* nx,
                                 uint64_t* ny);
/// Draws over what is there. A DIB of the size that `zu_drwc_get_dib_size` gives is copied pixel by
/// pixel; any other is sampled at the nearest pixel.
ZU_API void zu_drwc_draw_dib(Tzu_drwc* drwc, const Tzu_dib_draw_record* record, const Tzu_dib* dib);
/// Clips what follows to a polygon in millimetres (even-odd); `mode` is 0.
ZU_API void zu_drwc_set_clip_pgn(Tzu_drwc* drwc, int32_t mode, const Tzu_ov_d2* polygon);
ZU_API void zu_drwc_set_clip_none(Tzu_drwc* drwc);

/// Limits all that follows to a box, rounded to whole pixels as a DIB's; null lifts the limit.
/// Unlike a clip it has no soft edges, and `zu_drwc_set_clip_none` leaves it.
ZU_API void zu_drwc_set_region(Tzu_drwc* drwc, const Tzu_box_d2* millimetres);

/// Draws a symbol at each of `count` places given in millimetres, one after the other. The figure
/// or the character stands with its middle at the place, moved by the style's offsets and turned
/// about its own middle. An invisible style, a size that is not above 0 and a wholly transparent
/// colour draw nothing; a place that is not finite is passed over. A complex style in use draws its
/// layers in place of it, each at all places before the next.
ZU_API void zu_drwc_draw_pnt(Tzu_drwc* drwc, uint64_t count, const double* x_mm, const double* y_mm,
                             const Tzu_pnt_style* style);

/// Draws polylines given in millimetres, then the symbols at their vertices, beginnings and ends. A
/// part that is invisible, a width or size that is not above 0 and a wholly transparent colour draw
/// nothing; a vertex that is not finite breaks its line. A closed line has neither beginning nor
/// end. If the set carries a level and the style asks for it, lines longer than three times its
/// number bear it where they are straight enough, upright, in a gap of the line, about once in 100
/// mm; no number leaves the page or the region or covers another one.
ZU_API void zu_drwc_draw_pln(Tzu_drwc* drwc, const Tzu_ov_d2* lines, const Tzu_pln_style* style);

/// Fills a polygon given in millimetres (even-odd, rings closed or not), then draws its contour and
/// the symbols at its vertices.
ZU_API void zu_drwc_draw_pgn(Tzu_drwc* drwc, const Tzu_ov_d2* rings, const Tzu_pgn_style* style);

/// Which point of a text lies at the given place: low is the base line, high the top of its
/// capitals.
enum Tzu_text_anchor {
  zu_anchor_low_left = 0,
  zu_anchor_low_center = 1,
  zu_anchor_low_right = 2,
  zu_anchor_middle_left = 3,
  zu_anchor_middle_center = 4,
  zu_anchor_middle_right = 5,
  zu_anchor_high_left = 6,
  zu_anchor_high_center = 7,
  zu_anchor_high_right = 8,
};
/// Draws a text in one line, in DejaVu Sans. The height, in millimetres, is that of the font; its
/// capitals are 0.73 of it. Nothing is drawn for a height that is not above 0, an unknown anchor
/// and a place that is not finite.
ZU_API void zu_drwc_draw_text_w(Tzu_drwc* drwc, double x_mm, double y_mm, double height_mm,
                                int32_t anchor, Tzu_color color, const wchar_t* text);
/// Width of such a text in millimetres, the same in every context; 0 if it cannot be drawn.
ZU_API double zu_drwc_text_size_w(const Tzu_drwc* drwc, double height_mm, const wchar_t* text);
/// Fills a box over what is there; its sides are not rounded to pixels.
ZU_API void zu_drwc_fill_box(Tzu_drwc* drwc, const Tzu_box_d2* millimetres, Tzu_color color);
/// Names of the font families of this system, in the order of the alphabet, are added to the list.
ZU_API void zu_fnt_type_list(Tzu_wstrings* names);
/// Adds the characters that a font has itself, rising, without blanks and control characters. The
/// font that stands in for one that is not installed gives its own.
ZU_API void zu_fnt_type_list_characters(const Tzu_fnt_type* font, Tzu_ints* characters);

/// Brackets what is drawn between them as a named object; objects nest, and an end with another
/// name than that of the innermost open one has no effect. A PDF lists its objects in its outline,
/// each name once inside its outer object; other contexts make nothing of them.
ZU_API void zu_drwc_beg_object_w(Tzu_drwc* drwc, const wchar_t* name);
ZU_API void zu_drwc_end_object_w(Tzu_drwc* drwc, const wchar_t* name);

/// Pixels of the picture, top row first, four bytes red, green, blue, opacity, not premultiplied,
/// into nx * ny * 4 bytes. A document has no pixels: nothing is written.
ZU_API void zu_drwc_get_pixels(Tzu_drwc* drwc, uint8_t* rgba);
/// The same pixels where they stand: rows of words, the top one first, each `row_bytes` after the
/// one above, with the opacity in the high byte and red, green, blue below it, premultiplied. Owned
/// by the picture; what is drawn later changes them. Null for a document.
ZU_API const uint32_t* zu_drwc_get_argb(const Tzu_drwc* drwc, uint64_t* row_bytes);
/// Whether any pixel is not wholly transparent; of a document, whether anything was drawn.
ZU_API bool zu_drwc_has_ink(Tzu_drwc* drwc);
/// Writes a picture as PNG or TIFF by the name's ending, a document under a name with its own
/// ending
/// (".pdf", ".svg"), whole or not at all: an older file stays until the new one is complete. A
/// saved document takes no more drawing. `georeference` may be null: the box of the page in
/// coordinates of `projection` (EPSG:n, PROJ text or WKT; may be null), stored where the format
/// can. False, with the reason.
ZU_API bool zu_drwc_save_w(Tzu_drwc* drwc, const wchar_t* path, const Tzu_box_d2* georeference,
                           const wchar_t* projection, Tzu_string_adp* reason);
