#pragma once
// How points, lines and polygons are drawn. All lengths are millimetres, angles degrees
// counter-clockwise, colours as in `Tzu_color`. A null object: setters do nothing, getters give
// what a new object has. Inner parts belong to the style that gave them and live as long as it.

#include "zu/platform/zuk_basic.h"

// --- Fonts

typedef struct Tzu_fnt_type Tzu_fnt_type;
ZU_API Tzu_fnt_type* zu_fnt_type_create(void);  ///< "DejaVu Sans", upright; null if out of memory
ZU_API void zu_fnt_type_destroy(Tzu_fnt_type* font);
ZU_API void zu_fnt_type_assign(Tzu_fnt_type* font, const Tzu_fnt_type* from);
ZU_API bool zu_fnt_type_equal(const Tzu_fnt_type* a, const Tzu_fnt_type* b);
ZU_API void zu_fnt_type_get_wname(const Tzu_fnt_type* font, Tzu_string_adp* adapter);
ZU_API void zu_fnt_type_set_wname(Tzu_fnt_type* font, const wchar_t* family);

// --- Render levels: whole numbers on the parts of styles, 0 unless set. Where a manager uses them
// (`zu_stl_mngr_set_use_render_levels`) all that its objects draw at a lower level is drawn before
// anything of a higher one; parts of one level keep their order. A part with a complex style in use
// is drawn at the levels of its layers. Copies carry them.

// --- Complex styles: layers of simple ones, drawn in their order.

typedef struct Tzu_cpx_style Tzu_cpx_style;
/// Of the kind "pnt", "pln" or "pgn", without layers; null for another kind.
ZU_API Tzu_cpx_style* zu_cpx_style_create(const char* kind);
ZU_API void zu_cpx_style_destroy(Tzu_cpx_style* style);
ZU_API void zu_cpx_style_assign(Tzu_cpx_style* style, const Tzu_cpx_style* from);  ///< of one kind
/// Size of the largest symbol; setting it scales all. 0 without layers.
ZU_API double zu_cpx_pnt_style_get_point_size(const Tzu_cpx_style* style);
ZU_API void zu_cpx_pnt_style_set_point_size(Tzu_cpx_style* style, double millimetres);
/// Width of the widest line; setting it scales all. 0 without layers.
ZU_API double zu_cpx_pln_style_get_line_width(const Tzu_cpx_style* style);
ZU_API void zu_cpx_pln_style_set_line_width(Tzu_cpx_style* style, double millimetres);
/// Of the lowest fill. False, and the output as it was, if there is none.
ZU_API bool zu_cpx_pgn_style_get_color(const Tzu_cpx_style* style, Tzu_color* color);
ZU_API void zu_cpx_pgn_style_set_color(Tzu_cpx_style* style, Tzu_color color);

/// The layers of a complex style, the lowest first; owned by it.
typedef struct Tzu_style_lrs Tzu_style_lrs;
typedef struct Tzu_style_lr Tzu_style_lr;
ZU_API Tzu_style_lrs* zu_cpx_style_get_style_lrs_ptr(Tzu_cpx_style* style);
ZU_API uint64_t zu_style_lrs_get_size(const Tzu_style_lrs* layers);
/// Null if there is no such layer. It lives until the list gets another one or is assigned.
ZU_API Tzu_style_lr* zu_style_lrs_get_lr_ptr(Tzu_style_lrs* layers, uint64_t index);
/// A new layer on top, of the type "pnt_figr_slr", "pnt_symb_slr", "pln_line_slr" or
/// "pgn_fill_slr"; null for a type that is unknown or of another kind of style.
ZU_API Tzu_style_lr* zu_style_lrs_add_lr(Tzu_style_lrs* layers, const char* type);
ZU_API const char* zu_style_lr_get_type(const Tzu_style_lr* layer);  ///< empty for null
/// Becomes a copy of a layer of the same type; another one changes nothing.
ZU_API void zu_style_lr_assign(Tzu_style_lr* layer, const Tzu_style_lr* from);
ZU_API int32_t zu_style_lr_get_render_level(const Tzu_style_lr* layer);
ZU_API void zu_style_lr_set_render_level(Tzu_style_lr* layer, int32_t level);

// --- Points: a figure or a character.

/// Figures by number; outlines are filled with the colour.
enum Tzu_figure {
  zu_figure_circle = 0,
  zu_figure_square = 1,
  zu_figure_diamond = 2,
  zu_figure_triangle_up = 3,
  zu_figure_triangle_down = 4,
  zu_figure_pentagon = 5,
  zu_figure_hexagon = 6,
  zu_figure_star = 7,
  zu_figure_plus = 8,
  zu_figure_cross = 9,
  zu_figure_ring = 10,
  zu_figure_square_frame = 11,
  zu_figure_diamond_frame = 12,
  zu_figure_triangle_frame = 13,
  zu_figure_arrow = 14,
  zu_figure_half_circle = 15,
  zu_figure_count = 16,
};
typedef struct Tzu_bpnt_style Tzu_bpnt_style;
ZU_API void zu_bpnt_style_assign(Tzu_bpnt_style* style, const Tzu_bpnt_style* from);
ZU_API bool zu_bpnt_style_get_use_figure(const Tzu_bpnt_style* style);  ///< else the symbol
ZU_API void zu_bpnt_style_set_use_figure(Tzu_bpnt_style* style, bool figure);
ZU_API int32_t zu_bpnt_style_get_figure(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_figure(Tzu_bpnt_style* style, int32_t figure);
ZU_API uint32_t zu_bpnt_style_get_symbol(const Tzu_bpnt_style* style);  ///< a Unicode character
ZU_API void zu_bpnt_style_set_symbol(Tzu_bpnt_style* style, uint32_t character);
ZU_API const Tzu_fnt_type* zu_bpnt_style_get_fnt_type(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_fnt_type(Tzu_bpnt_style* style, const Tzu_fnt_type* font);
ZU_API Tzu_color zu_bpnt_style_get_color(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_color(Tzu_bpnt_style* style, Tzu_color color);
/// Side of the square around a figure, height of a character.
ZU_API double zu_bpnt_style_get_size(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_size(Tzu_bpnt_style* style, double millimetres);
/// Shift of the middle to the right and upwards.
ZU_API double zu_bpnt_style_get_dx(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_dx(Tzu_bpnt_style* style, double millimetres);
ZU_API double zu_bpnt_style_get_dy(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_dy(Tzu_bpnt_style* style, double millimetres);
ZU_API double zu_bpnt_style_get_angle(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_angle(Tzu_bpnt_style* style, double degrees);
/// The complex style is drawn in place of the fields above, if it has layers.
ZU_API bool zu_bpnt_style_get_use_complex(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_use_complex(Tzu_bpnt_style* style, bool complex);
ZU_API Tzu_cpx_style* zu_bpnt_style_get_complex_style(Tzu_bpnt_style* style);
ZU_API int32_t zu_bpnt_style_get_render_level(const Tzu_bpnt_style* style);
ZU_API void zu_bpnt_style_set_render_level(Tzu_bpnt_style* style, int32_t level);

typedef struct Tzu_pnt_style Tzu_pnt_style;
ZU_API Tzu_pnt_style* zu_pnt_style_create(void);  ///< a gray circle of 2 mm; null: no memory
ZU_API void zu_pnt_style_destroy(Tzu_pnt_style* style);
ZU_API void zu_pnt_style_assign(Tzu_pnt_style* style, const Tzu_pnt_style* from);
ZU_API Tzu_bpnt_style* zu_pnt_style_get_bpnt_style_ptr(Tzu_pnt_style* style);
ZU_API bool zu_pnt_style_get_pnt_visible(const Tzu_pnt_style* style);
ZU_API void zu_pnt_style_set_pnt_visible(Tzu_pnt_style* style, bool visible);

// --- Lines

enum Tzu_line_cap { zu_cap_butt = 0, zu_cap_round = 1, zu_cap_square = 2 };
enum Tzu_line_join { zu_join_miter = 0, zu_join_round = 1, zu_join_bevel = 2 };
enum { zu_line_dashes = 8 };
typedef struct Tzu_bpln_style Tzu_bpln_style;
ZU_API void zu_bpln_style_assign(Tzu_bpln_style* style, const Tzu_bpln_style* from);
ZU_API Tzu_color zu_bpln_style_get_color(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_color(Tzu_bpln_style* style, Tzu_color color);
ZU_API double zu_bpln_style_get_width(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_width(Tzu_bpln_style* style, double millimetres);
ZU_API int32_t zu_bpln_style_get_cap_style(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_cap_style(Tzu_bpln_style* style, int32_t cap);
ZU_API int32_t zu_bpln_style_get_join_style(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_join_style(Tzu_bpln_style* style, int32_t join);
/// Lengths on, off, … ; at most `zu_line_dashes`, none is a solid line.
ZU_API int32_t zu_bpln_style_get_dashes(const Tzu_bpln_style* style, double* lengths);
ZU_API void zu_bpln_style_set_dashes(Tzu_bpln_style* style, int32_t count, const double* lengths);
ZU_API bool zu_bpln_style_get_use_complex(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_use_complex(Tzu_bpln_style* style, bool complex);
ZU_API Tzu_cpx_style* zu_bpln_style_get_complex_style(Tzu_bpln_style* style);
ZU_API int32_t zu_bpln_style_get_render_level(const Tzu_bpln_style* style);
ZU_API void zu_bpln_style_set_render_level(Tzu_bpln_style* style, int32_t level);

/// Text of numbers along a line or in a polygon.
typedef struct Tzu_bnum_style Tzu_bnum_style;
ZU_API Tzu_color zu_bnum_style_get_color(const Tzu_bnum_style* style);
ZU_API void zu_bnum_style_set_color(Tzu_bnum_style* style, Tzu_color color);
ZU_API double zu_bnum_style_get_size(const Tzu_bnum_style* style);
ZU_API void zu_bnum_style_set_size(Tzu_bnum_style* style, double millimetres);
/// Numbers interrupt their line and are drawn with it, whatever their level.
ZU_API int32_t zu_bnum_style_get_render_level(const Tzu_bnum_style* style);
ZU_API void zu_bnum_style_set_render_level(Tzu_bnum_style* style, int32_t level);

typedef struct Tzu_pln_style Tzu_pln_style;
/// A visible black line of 0.2 mm, round caps and joins, without marks and numbers; null if out of
/// memory.
ZU_API Tzu_pln_style* zu_pln_style_create(void);
ZU_API void zu_pln_style_destroy(Tzu_pln_style* style);
ZU_API void zu_pln_style_assign(Tzu_pln_style* style, const Tzu_pln_style* from);
ZU_API Tzu_bpln_style* zu_pln_style_get_bpln_style_ptr(Tzu_pln_style* style);
ZU_API Tzu_bpnt_style* zu_pln_style_get_bpnt_style_ptr(Tzu_pln_style* style);  ///< at vertices
ZU_API Tzu_bpnt_style* zu_pln_style_get_bbeg_style_ptr(Tzu_pln_style* style);  ///< at the beginning
ZU_API Tzu_bpnt_style* zu_pln_style_get_bend_style_ptr(Tzu_pln_style* style);  ///< at the end
ZU_API Tzu_bnum_style* zu_pln_style_get_bnum_style_ptr(Tzu_pln_style* style);
ZU_API bool zu_pln_style_get_pln_visible(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_pln_visible(Tzu_pln_style* style, bool visible);
ZU_API bool zu_pln_style_get_pnt_visible(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_pnt_visible(Tzu_pln_style* style, bool visible);
ZU_API bool zu_pln_style_get_beg_visible(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_beg_visible(Tzu_pln_style* style, bool visible);
ZU_API bool zu_pln_style_get_end_visible(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_end_visible(Tzu_pln_style* style, bool visible);
/// A set of lines that carries a level bears its number.
ZU_API bool zu_pln_style_get_num_visible(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_num_visible(Tzu_pln_style* style, bool visible);
/// The mark turns with the line; its angle is then counted from it.
ZU_API bool zu_pln_style_get_beg_use_line_dir(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_beg_use_line_dir(Tzu_pln_style* style, bool turn);
ZU_API bool zu_pln_style_get_end_use_line_dir(const Tzu_pln_style* style);
ZU_API void zu_pln_style_set_end_use_line_dir(Tzu_pln_style* style, bool turn);

// --- Polygons

typedef struct Tzu_bpgn_style Tzu_bpgn_style;
ZU_API void zu_bpgn_style_assign(Tzu_bpgn_style* style, const Tzu_bpgn_style* from);
ZU_API Tzu_color zu_bpgn_style_get_color(const Tzu_bpgn_style* style);
ZU_API void zu_bpgn_style_set_color(Tzu_bpgn_style* style, Tzu_color color);
ZU_API bool zu_bpgn_style_get_use_complex(const Tzu_bpgn_style* style);
ZU_API void zu_bpgn_style_set_use_complex(Tzu_bpgn_style* style, bool complex);
ZU_API Tzu_cpx_style* zu_bpgn_style_get_complex_style(Tzu_bpgn_style* style);
ZU_API int32_t zu_bpgn_style_get_render_level(const Tzu_bpgn_style* style);
ZU_API void zu_bpgn_style_set_render_level(Tzu_bpgn_style* style, int32_t level);

typedef struct Tzu_pgn_style Tzu_pgn_style;
/// A black half transparent fill with the line of `zu_pln_style_create` around it; null if out of
/// memory.
ZU_API Tzu_pgn_style* zu_pgn_style_create(void);
ZU_API void zu_pgn_style_destroy(Tzu_pgn_style* style);
ZU_API void zu_pgn_style_assign(Tzu_pgn_style* style, const Tzu_pgn_style* from);
ZU_API Tzu_bpgn_style* zu_pgn_style_get_bpgn_style_ptr(Tzu_pgn_style* style);
ZU_API Tzu_bpln_style* zu_pgn_style_get_bpln_style_ptr(Tzu_pgn_style* style);  ///< the contour
ZU_API Tzu_bpnt_style* zu_pgn_style_get_bpnt_style_ptr(Tzu_pgn_style* style);  ///< at vertices
ZU_API Tzu_bnum_style* zu_pgn_style_get_bnum_style_ptr(Tzu_pgn_style* style);
ZU_API bool zu_pgn_style_get_pgn_visible(const Tzu_pgn_style* style);
ZU_API void zu_pgn_style_set_pgn_visible(Tzu_pgn_style* style, bool visible);
ZU_API bool zu_pgn_style_get_pln_visible(const Tzu_pgn_style* style);
ZU_API void zu_pgn_style_set_pln_visible(Tzu_pgn_style* style, bool visible);
ZU_API bool zu_pgn_style_get_pnt_visible(const Tzu_pgn_style* style);
ZU_API void zu_pgn_style_set_pnt_visible(Tzu_pgn_style* style, bool visible);
ZU_API bool zu_pgn_style_get_num_visible(const Tzu_pgn_style* style);
ZU_API void zu_pgn_style_set_num_visible(Tzu_pgn_style* style, bool visible);

// --- Parts by level

// Becomes a copy of `from` in which only what is drawn at a level shows. False, and the style as it
// was, if nothing is.
ZU_API bool zu_pnt_style_assign_level(Tzu_pnt_style* style, const Tzu_pnt_style* from,
                                      int32_t level);
ZU_API bool zu_pln_style_assign_level(Tzu_pln_style* style, const Tzu_pln_style* from,
                                      int32_t level);
ZU_API bool zu_pgn_style_assign_level(Tzu_pgn_style* style, const Tzu_pgn_style* from,
                                      int32_t level);
