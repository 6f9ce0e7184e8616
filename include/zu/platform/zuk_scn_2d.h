#pragma once
// What a 2D scene knows beyond its layers: the profile that it shows, if it shows a section.

#include "zu/platform/zuk_lr2d.h"

ZU_API uint64_t zu_scn_get_count(const Tzu_scn_2d* scene);  ///< layers; 0 for null

// What changes between these two is told once, at the end. They nest.
ZU_API void zu_scn_begin_update(Tzu_scn_2d* scene);
ZU_API void zu_scn_end_update(Tzu_scn_2d* scene);

/// The profile of a scene: whether it is one, the line of the section on the map, and the limits of
/// its axes. A new scene is no profile, has equal axes scales, an empty line and limits of 0.
typedef struct Tzu_prf_data Tzu_prf_data;
ZU_API Tzu_prf_data* zu_scn_2d_get_prf_data_ptr(Tzu_scn_2d* scene);  ///< owned by the scene
ZU_API void zu_prf_data_set_is_profil(Tzu_prf_data* data, bool is_profile);
ZU_API bool zu_prf_data_get_is_profil(const Tzu_prf_data* data);
/// Of y against x; 0 means that each axis fills the view by itself.
ZU_API void zu_prf_data_set_axes_scale(Tzu_prf_data* data, double scale);
ZU_API double zu_prf_data_get_axes_scale(const Tzu_prf_data* data);
ZU_API void zu_prf_data_set_pv(Tzu_prf_data* data, const Tzu_pv_d2* line);  ///< copied
ZU_API Tzu_pv_d2* zu_prf_data_get_pv(Tzu_prf_data* data);                   ///< owned by the data
ZU_API void zu_prf_data_set_xmin(Tzu_prf_data* data, double value);
ZU_API void zu_prf_data_set_ymin(Tzu_prf_data* data, double value);
ZU_API void zu_prf_data_set_zmin(Tzu_prf_data* data, double value);
ZU_API void zu_prf_data_set_xmax(Tzu_prf_data* data, double value);
ZU_API void zu_prf_data_set_ymax(Tzu_prf_data* data, double value);
ZU_API void zu_prf_data_set_zmax(Tzu_prf_data* data, double value);
ZU_API double zu_prf_data_get_xmin(const Tzu_prf_data* data);
ZU_API double zu_prf_data_get_ymin(const Tzu_prf_data* data);
ZU_API double zu_prf_data_get_zmin(const Tzu_prf_data* data);
ZU_API double zu_prf_data_get_xmax(const Tzu_prf_data* data);
ZU_API double zu_prf_data_get_ymax(const Tzu_prf_data* data);
ZU_API double zu_prf_data_get_zmax(const Tzu_prf_data* data);

/// Room around what `zu_viewer2d_zoom_to_scn` shows, in place of its usual margin. Of no effect
/// until visible; a new scene has 0 on all sides.
typedef struct Tzu_margins Tzu_margins;
ZU_API Tzu_margins* zu_scn_2d_get_margins_ptr(Tzu_scn_2d* scene);  ///< owned by the scene
ZU_API void zu_margins_set_visible(Tzu_margins* margins, bool visible);
ZU_API bool zu_margins_get_visible(const Tzu_margins* margins);
// Millimetres of the window.
ZU_API void zu_margins_set_lft(Tzu_margins* margins, double millimetres);
ZU_API void zu_margins_set_rgt(Tzu_margins* margins, double millimetres);
ZU_API void zu_margins_set_top(Tzu_margins* margins, double millimetres);
ZU_API void zu_margins_set_btm(Tzu_margins* margins, double millimetres);
ZU_API double zu_margins_get_lft(const Tzu_margins* margins);
ZU_API double zu_margins_get_rgt(const Tzu_margins* margins);
ZU_API double zu_margins_get_top(const Tzu_margins* margins);
ZU_API double zu_margins_get_btm(const Tzu_margins* margins);

/// Axes with numbers at the sides of the window. None shows until they and the axis are visible.
enum Tzu_axis_side { zu_axis_bottom = 0, zu_axis_left = 1 };
typedef struct Tzu_axes Tzu_axes;
typedef struct Tzu_axis_type Tzu_axis_type;
ZU_API Tzu_axes* zu_scn_2d_get_axes_ptr(Tzu_scn_2d* scene);  ///< owned by the scene
ZU_API void zu_axes_set_visible(Tzu_axes* axes, bool visible);
ZU_API bool zu_axes_get_visible(const Tzu_axes* axes);
ZU_API Tzu_axis_type* zu_axes_get_axis(Tzu_axes* axes, int32_t side);  ///< null for another side
ZU_API void zu_axis_type_set_visible(Tzu_axis_type* axis, bool visible);
ZU_API bool zu_axis_type_get_visible(const Tzu_axis_type* axis);
