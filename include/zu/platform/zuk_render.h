#pragma once
// A render: one picture of one scene box on a drawing context.

#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_scn_2d.h"

typedef struct Izu_render Izu_render;

/// A render onto a context (not owned), whose page shows `map_box` of render coordinates (cr).
ZU_API Izu_render* zu_render_create(Tzu_drwc* drwc, const Tzu_box_d2* map_box);
ZU_API void zu_render_destroy(Izu_render* render);
ZU_API Tzu_drwc* zu_render_get_drwc(const Izu_render* render);
ZU_API const Tzu_box_d2* zu_render_get_map_box_cr(const Izu_render* render);
/// Limits what is drawn to another box, such as a piece of the page; the matrix stays that of the
/// box with which the render was made.
ZU_API void zu_render_set_map_box_cr(Izu_render* render, const Tzu_box_d2* map_box);
/// Render coordinates to millimetres of the page.
ZU_API const Tzu_matrix3x3* zu_render_get_matrix_cr2mm(const Izu_render* render);
ZU_API void zu_render_get_pj4wstr(const Izu_render* render, Tzu_string_adp* adapter);
ZU_API void zu_render_set_pj4wstr(Izu_render* render, const wchar_t* projection);
/// An affine step applied after the projection; null switches it off.
ZU_API void zu_render_set_affine_matrix(Izu_render* render, const Tzu_matrix3x3* matrix);
ZU_API bool zu_render_has_affine_transform(const Izu_render* render);
ZU_API const Tzu_matrix3x3* zu_render_get_affine_matrix(const Izu_render* render);
/// The plane that what follows is drawn on; 0, that of a new render, is the picture. Contexts have
/// one plane, on which all numbers draw.
ZU_API void zu_render_set_plane(Izu_render* render, int32_t plane);
ZU_API int32_t zu_render_get_plane(const Izu_render* render);
/// Draws polylines given in render coordinates, as `zu_drwc_draw_pln` draws millimetres.
ZU_API void zu_render_cr_pln(Izu_render* render, const Tzu_ov_d2* lines,
                             const Tzu_pln_style* style);
/// Draws a symbol at each vertex of the lists, given in render coordinates, as `zu_drwc_draw_pnt`
/// does.
ZU_API void zu_render_cr_pnt(Izu_render* render, const Tzu_ov_d2* points,
                             const Tzu_pnt_style* style);
/// Draws a polygon given in render coordinates, as `zu_drwc_draw_pgn` draws millimetres.
ZU_API void zu_render_cr_pgn(Izu_render* render, const Tzu_ov_d2* rings,
                             const Tzu_pgn_style* style);
/// Draws the nodes of a layer of the type "tos_2crd_lr2d" with the symbols of its style manager:
/// the simple one, or by the value of a scale's field, or the first whose rule holds. Nodes of a
/// hidden row are not drawn. Selected nodes come last, in the scene's colour of the selection, or
/// with the symbol for what is selected. A layer of another type is left alone, and what cannot be
/// read is not drawn.
ZU_API void zu_tos_2crd_lr2d_draw(Izu_render* render, Izu_layer* layer);
/// Draws a layer of the types of zuk_plot_lr2d.h; false, and nothing drawn, for another.
ZU_API bool zu_plot_lr2d_draw(Izu_render* render, Izu_layer* layer);
/// Draws the visible axes of a scene along the sides of the page, numbers at steps of 1, 2 or 5
/// times a power of ten.
ZU_API void zu_scn_2d_draw_axes(Izu_render* render, Tzu_scn_2d* scene);
