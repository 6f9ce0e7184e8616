#pragma once
// Reprojection between two coordinate systems, both ways. x is always east.

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"

typedef struct Tzu_rpj_fb_d2 Tzu_rpj_fb_d2;

ZU_API Tzu_rpj_fb_d2* zu_rpj_fb_d2_create(void);
ZU_API void zu_rpj_fb_d2_destroy(Tzu_rpj_fb_d2* rpj);
/// Texts are "EPSG:n", PROJ texts or WKT. False, and nothing to reproject, if either is empty or
/// not understood, or no way leads from one to the other.
ZU_API bool zu_rpj_fb_d2_init_w(Tzu_rpj_fb_d2* rpj, const wchar_t* source, const wchar_t* target);
/// True after a successful init between systems that differ.
ZU_API bool zu_rpj_fb_d2_rpj_is_needed(const Tzu_rpj_fb_d2* rpj);
/// An affine step after the projection (before it on the way back).
ZU_API void zu_rpj_fb_d2_set_use_affine_after(Tzu_rpj_fb_d2* rpj, bool use);
ZU_API void zu_rpj_fb_d2_set_affine_after(Tzu_rpj_fb_d2* rpj, const Tzu_matrix3x3* matrix);
// Direction 1 is source to target, 0 the way back.
/// The box that holds the transformed edges: 84 points of them, those without an image left out;
/// also the poles' and date line's effect where PROJ tells it. False if no point has an image.
ZU_API bool zu_rpj_fb_d2_apply_box(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction);
ZU_API bool zu_rpj_fb_d2_apply_box_approx(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction);
/// Transforms a point in place; one without an image becomes infinite, and that gives false.
ZU_API bool zu_rpj_fb_d2_apply_xy(Tzu_rpj_fb_d2* rpj, double* x, double* y, int32_t direction);
/// Transforms in place; a vertex without an image becomes infinite. False if none has one.
ZU_API bool zu_rpj_fb_d2_apply_pv(Tzu_rpj_fb_d2* rpj, Tzu_pv_d2* list, int32_t direction);
ZU_API bool zu_rpj_fb_d2_apply_ov(Tzu_rpj_fb_d2* rpj, Tzu_ov_d2* set, int32_t direction);
/// Whether a text names a coordinate system; if not, why goes to `reason`.
ZU_API bool zu_pj_check_w(const wchar_t* text, Tzu_string_adp* reason);
/// A name for people ("WGS 84 / UTM zone 37N"), or the text itself.
ZU_API void zu_pj_get_name_w(const wchar_t* text, Tzu_string_adp* name);
/// "EPSG:n" if the system is one of the registry, else no text.
ZU_API void zu_pj_get_authority_w(const wchar_t* text, Tzu_string_adp* code);
/// The system as WKT; false if the text is not understood.
ZU_API bool zu_pj_get_wkt_w(const wchar_t* text, Tzu_string_adp* wkt);
/// A unit of the system's first axis in metres, or in radians where the axes are longitude and
/// latitude, which `is_angle` tells (null: not asked for). 0 if the text is not understood.
ZU_API double zu_pj_get_unit_w(const wchar_t* text, bool* is_angle);

/// A system of PROJ's database, geographic or projected, with two axes.
typedef struct Tzu_pj_system {
  const wchar_t* authority;         ///< "EPSG"
  const wchar_t* code;              ///< "32637"
  const wchar_t* name;              ///< "WGS 84 / UTM zone 37N"
  const wchar_t* area;              ///< where it is used, in words; may be empty
  double west, south, east, north;  ///< of that area in degrees, west over east across 180; or NaN
  bool is_geographic, is_deprecated;
} Tzu_pj_system;
/// Lives, with its texts, during the call.
typedef void (*Tzu_pj_system_visit)(const Tzu_pj_system* system, void* user);
/// A call for each system of the database, in its order. False if it cannot be read.
ZU_API bool zu_pj_list_systems(Tzu_pj_system_visit visit, void* user);
