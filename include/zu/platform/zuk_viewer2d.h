#pragma once
// Viewers: which box of a scene a window shows, at what scale, and how it came there. The window
// itself is the host's, which hears through hooks what to draw.
//
// Three systems of coordinates: cr, those of the scene; px, pixels of the window from its upper
// left corner, y downwards; mm, millimetres of the window counted from the scene's origin, y
// upwards, so that a length converts as a position does. Everything answers 0 or nothing for a null
// viewer.

#include "zu/platform/zuk_lr2d.h"

typedef struct Tzu_viewer Tzu_viewer;      ///< a viewer of any kind
typedef struct Tzu_viewer2d Tzu_viewer2d;  ///< one of 2D scenes

/// A box of pixels; a side includes its last pixel.
typedef struct Tzu_box_i2 {
  int32_t xmin, ymin, xmax, ymax;
} Tzu_box_i2;
ZU_API void zu_box_i2_make_xy(Tzu_box_i2* out, int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/// What a window does for its viewer. A null member is skipped; `user` is handed back.
typedef struct Tzu_viewer2d_hooks {
  /// The scene is to be drawn anew, with the box in force. A window may gather such requests.
  void (*redraw)(void* user);
  /// The picture on show stands moved by so many pixels from where it was drawn; not by what it was
  /// moved before.
  void (*move_picture)(int32_t dx, int32_t dy, void* user);
  /// A rubber box in place of the former one; null takes it away.
  void (*draw_box)(const Tzu_box_i2* box, void* user);
  /// The visible box is another.
  void (*box_changed)(void* user);
  void* user;
} Tzu_viewer2d_hooks;

/// A viewer of a window of no size, without a scene; null if out of memory.
ZU_API Tzu_viewer2d* zu_viewer2d_create(const Tzu_viewer2d_hooks* hooks);
ZU_API void zu_viewer2d_destroy(Tzu_viewer2d* viewer);  ///< null is ignored
ZU_API Tzu_viewer* zu_viewer2d_safe_upcast(Tzu_viewer2d* viewer);
ZU_API Tzu_viewer2d* zu_viewer2d_safe_downcast(Tzu_viewer* viewer);  ///< null if it is none

ZU_API void zu_viewer2d_set_scn_2d(Tzu_viewer2d* viewer, Tzu_scn_2d* scene);  ///< not owned
ZU_API Tzu_scn_2d* zu_viewer2d_get_scn_2d(const Tzu_viewer2d* viewer);
ZU_API Tzu_scn_2d* zu_viewer_get_scn(Tzu_viewer* viewer);  ///< null if it shows none
/// The window's size in pixels of the screen. The middle and the scale stay.
ZU_API void zu_viewer2d_set_size(Tzu_viewer2d* viewer, int32_t nx, int32_t ny,
                                 double dots_per_inch);

// --- The visible box

/// The box to be shown, widened about its middle to the window's shape unless each axis has a scale
/// of its own. Records a step of the history. A box that is not finite or has no area is ignored.
ZU_API void zu_viewer2d_set_zoom_box(Tzu_viewer2d* viewer, const Tzu_box_d2* box);
/// The box that the window shows; false, and (0, 0, 1, 1), before it has a size.
ZU_API bool zu_viewer2d_get_box_cr_sml(const Tzu_viewer2d* viewer, Tzu_box_d2* box);
/// To the box of the scene (`zu_scn_2d_get_clipped_box`) and a margin of a fiftieth; stays where it
/// is if the scene has none. A side without length gets 10 mm to either hand.
ZU_API void zu_viewer2d_zoom_to_scn(Tzu_viewer2d* viewer);
/// Whether each axis has a scale of its own, as sections need it. Off at first.
ZU_API void zu_viewer2d_set_anisotropic(Tzu_viewer2d* viewer, bool anisotropic);
ZU_API bool zu_viewer2d_is_anisotropic(const Tzu_viewer2d* viewer);
/// Denominators of the map's scale along the axes: units of the scene, taken for metres, a metre of
/// the window.
ZU_API void zu_viewer2d_get_scale(const Tzu_viewer2d* viewer, double* sx, double* sy);
ZU_API void zu_viewer2d_set_scale(Tzu_viewer2d* viewer, double sx,
                                  double sy);  ///< about the middle
// A step back or forth in the history of boxes, of which the last 100 are kept; nothing at its
// ends. A box that is set forgets the steps ahead; the box in force set again is no step.
ZU_API void zu_viewer2d_zoomhist_do_prev(Tzu_viewer2d* viewer);
ZU_API void zu_viewer2d_zoomhist_do_next(Tzu_viewer2d* viewer);
ZU_API bool zu_viewer2d_zoomhist_has_prev(const Tzu_viewer2d* viewer);
ZU_API bool zu_viewer2d_zoomhist_has_next(const Tzu_viewer2d* viewer);

/// What the wheel does.
enum Tzu_wheel_mode {
  zu_wheel_zoom = 0,  ///< zooms about the pointer
  zu_wheel_none = 1,  ///< nothing
  // Both axes all the same while they have one scale.
  zu_wheel_zoom_y = 2,  ///< zooms the vertical axis about the pointer
  zu_wheel_zoom_x = 3,  ///< zooms the horizontal axis about the pointer
};
ZU_API void zu_viewer2d_set_wheel_mode(Tzu_viewer2d* viewer, int32_t mode);
ZU_API int32_t zu_viewer2d_get_wheel_mode(const Tzu_viewer2d* viewer);
/// The wheel was turned by so many notches (away from the person above 0), with the pointer at a
/// point of the scene: each notch zooms by the square root of 2. A run of the wheel is one step of
/// the history as long as nothing else comes between. Asks the window to draw.
ZU_API void zu_viewer2d_wheel(Tzu_viewer2d* viewer, double notches, double x, double y);

// --- Conversions

ZU_API double zu_viewer2d_cr2px_x(const Tzu_viewer2d* viewer, double x);
ZU_API double zu_viewer2d_cr2px_y(const Tzu_viewer2d* viewer, double y);
ZU_API double zu_viewer2d_px2cr_x(const Tzu_viewer2d* viewer, double x);
ZU_API double zu_viewer2d_px2cr_y(const Tzu_viewer2d* viewer, double y);
/// A length of pixels along x in scene units.
ZU_API double zu_viewer2d_size_px2cr(const Tzu_viewer2d* viewer, double pixels);
ZU_API double zu_viewer2d_cr2mm_x(const Tzu_viewer2d* viewer, double x);
ZU_API double zu_viewer2d_cr2mm_y(const Tzu_viewer2d* viewer, double y);
ZU_API double zu_viewer2d_mm2cr_x(const Tzu_viewer2d* viewer, double x);
ZU_API double zu_viewer2d_mm2cr_y(const Tzu_viewer2d* viewer, double y);
ZU_API double zu_viewer2d_size_mm2cr_x(const Tzu_viewer2d* viewer, double millimetres);
ZU_API double zu_viewer2d_size_mm2cr_y(const Tzu_viewer2d* viewer, double millimetres);

// --- What is seen while a person drags

ZU_API void zu_viewer2d_move_pxl_map(Tzu_viewer2d* viewer, int32_t dx, int32_t dy);
ZU_API void zu_viewer2d_draw_xor_box(Tzu_viewer2d* viewer, const Tzu_box_i2* box);
/// Asks the window to draw the scene anew; takes the rubber box away.
ZU_API void zu_viewer2d_redraw_slow(Tzu_viewer2d* viewer);
