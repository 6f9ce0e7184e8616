#pragma once
// Layers of pictures, of the type "rtr_lr2d": what is set on them. A function that is given another
// kind of layer, or null, does nothing and gives what a new layer has, or null.

#include "zu/platform/zuk_lr2d.h"

/// How a picture is drawn.
enum Tzu_rtr_draw_type {
  zu_rtr_draw_image = 0,  ///< by its own bands and palette
  zu_rtr_draw_rgb = 1,    ///< three fields through the channels
  zu_rtr_draw_gray = 2,   ///< one field through the gray channel
};

ZU_API int32_t zu_rtr_lr2d_get_draw_type(const Izu_layer* layer);  ///< a new layer: the image
ZU_API void zu_rtr_lr2d_set_draw_type(Izu_layer* layer, int32_t type);
ZU_API Tzu_rgb_channels* zu_rtr_lr2d_get_rgb_channels_ptr(const Izu_layer* layer);  ///< not owned
/// 0 invisible to 1 opaque; a new layer has 1. A value outside is cut, one that is no number
/// ignored.
ZU_API double zu_rtr_lr2d_get_opacity(const Izu_layer* layer);
ZU_API void zu_rtr_lr2d_set_opacity(Izu_layer* layer, double opacity);
/// Pixels of exactly this colour and transparency are not shown. A new layer has 0, 0, 0, 255,
/// which is what a pixel that shows nothing has.
ZU_API Tzu_color zu_rtr_lr2d_get_transparent_clr(const Izu_layer* layer);
ZU_API void zu_rtr_lr2d_set_transparent_clr(Izu_layer* layer, Tzu_color color);
/// Copies the polygon to which the drawing is clipped, in source coordinates; empty: no clip.
ZU_API void zu_rtr_lr2d_get_clip_pgn(const Izu_layer* layer, Tzu_ov_d2* polygon);
ZU_API void zu_rtr_lr2d_set_clip_pgn(Izu_layer* layer, const Tzu_ov_d2* polygon);  ///< null: none
/// Index of the field of that exact name in the layer's source; -1 if it has none or does not open.
ZU_API int64_t zu_rtr_lr2d_search_prop(const Izu_layer* layer, const wchar_t* name);
