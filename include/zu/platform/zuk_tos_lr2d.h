#pragma once
// Layers of TOS4 grids: what is set on them. A function that is given another kind of layer, or
// null, does nothing and gives what a new layer has, or null. Objects behind pointers are the
// layer's.

#include "zu/platform/zuk_lr2d.h"

// --- Grids: uniform ("tos_grid_lr2d") and the slices of a volume ("tos_slice_lr2d")

/// How a grid is drawn.
enum Tzu_tos_draw_type {
  zu_tos_draw_scale = 0,   ///< one field through the style manager
  zu_tos_draw_rgb = 1,     ///< three fields through the channels
  zu_tos_draw_scale2 = 2,  ///< as the first
  zu_tos_draw_gray = 3,    ///< one field through the gray channel
  zu_tos_draw_image = 4,   ///< by the colour roles of its bands
};

ZU_API Tzu_stl_mngr* zu_tos_grid_lr2d_get_clr_stl_mngr_ptr(const Izu_layer* layer);
ZU_API Tzu_rgb_channels* zu_tos_grid_lr2d_get_rgb_channels_ptr(const Izu_layer* layer);
ZU_API Tzu_hillshade_style* zu_tos_grid_lr2d_get_hillshade_style(const Izu_layer* layer);
ZU_API Tzu_isoline_style* zu_tos_grid_lr2d_get_isoline_style(const Izu_layer* layer);
/// Whether values between the nodes are bilinear; a new layer's are not.
ZU_API bool zu_tos_grid_lr2d_get_interpolate(const Izu_layer* layer);
ZU_API void zu_tos_grid_lr2d_set_interpolate(Izu_layer* layer, bool interpolate);
ZU_API int32_t zu_tos_grid_lr2d_get_draw_type(const Izu_layer* layer);  ///< a new layer: by scale
ZU_API void zu_tos_grid_lr2d_set_draw_type(Izu_layer* layer, int32_t type);
/// 0 invisible to 1 opaque; a new layer has 1. A value outside is cut, one that is no number
/// ignored.
ZU_API double zu_tos_grid_lr2d_get_opacity(const Izu_layer* layer);
ZU_API void zu_tos_grid_lr2d_set_opacity(Izu_layer* layer, double opacity);
/// z index of the slice of a volume that shows, from 0.
ZU_API int64_t zu_tos_slice_lr2d_get_zslice(const Izu_layer* layer);
ZU_API void zu_tos_slice_lr2d_set_zslice(Izu_layer* layer, int64_t slice);

// --- Profiles ("tos_grid_lr1d"): bands of a one-dimensional grid, drawn as curves

/// Styles of the lines; a scale of values has a class for each band, its text the band's name.
ZU_API Tzu_stl_mngr* zu_tos_grid_1d_lr2d_get_stl_mngr_ptr(const Izu_layer* layer);
/// The one band that is drawn; empty: those that the styles name.
ZU_API void zu_tos_grid_1d_lr2d_get_height_prp_name_w(const Izu_layer* layer, Tzu_string_adp* adp);
ZU_API void zu_tos_grid_1d_lr2d_set_height_prp_name_w(Izu_layer* layer, const wchar_t* name);
/// From the profile's own plane (x along it, y its values) to the layer's coordinates; null for
/// another kind of layer. A new layer has the identity.
ZU_API const Tzu_affine_2d* zu_tos_grid_lr1d_get_affine_trnsf(const Izu_layer* layer);
ZU_API void zu_tos_grid_lr1d_set_affine_trnsf(Izu_layer* layer, const Tzu_affine_2d* affine);

// --- Grids whose nodes have columns of x and y ("tos_2crd_lr2d"), drawn as points

/// Styles of the symbols; a new layer's simple one is a gray square of 1 mm.
ZU_API Tzu_stl_mngr* zu_tos_2crd_lr2d_get_clr_stl_mngr_ptr(const Izu_layer* layer);
/// Size of the simple symbol. Setting it, 0 to 100 mm, gives it to the symbols of all scales too;
/// what is no number is ignored.
ZU_API double zu_tos_2crd_lr2d_get_point_size(const Izu_layer* layer);
ZU_API void zu_tos_2crd_lr2d_set_point_size(Izu_layer* layer, double millimetres);
