#pragma once
// What a 2D scene knows beyond its layers: the profile that it shows, if it shows a section.

#include "zu/platform/zuk_lr2d.h"

ZU_API uint64_t zu_scn_get_count(const Tzu_scn_2d* scene);  ///< layers; 0 for null

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
