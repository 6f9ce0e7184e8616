#pragma once
// Style managers: a simple style, a value scale, a range scale and a rule scale side by side, one
// of them in use; and the styles of hillshade and isolines.

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_symbols.h"

enum Tzu_style_mode {
  zu_style_simple = 0,
  zu_style_value = 1,
  zu_style_range = 2,
  zu_style_rule = 3,
};

// --- Parameters

/// Styles of the kind of the manager's type: index 0 draws, index 1 draws what is selected. Colours
/// of cells stand here; symbols, lines and polygons behind `more`, which is null until one of them
/// is asked for. Not to be copied as a record, for it owns what is there: C++ refuses.
typedef struct Tzu_stl_prm {
#ifdef __cplusplus
  Tzu_stl_prm() = default;
  Tzu_stl_prm(const Tzu_stl_prm&) = delete;
  Tzu_stl_prm& operator=(const Tzu_stl_prm&) = delete;
#endif
  Tzu_color colors[2];
  struct Tzu_stl_prm_more* more;
} Tzu_stl_prm;

/// What a row of a scale owns.
typedef struct Tzu_scale_prm {
  Tzu_stl_prm style;
  bool visible;
} Tzu_scale_prm;

ZU_API void zu_scale_prm_set_visible(Tzu_scale_prm* prm, bool visible);
/// Sets one colour (index 0 or 1), and that of the main part of the styles made of it.
ZU_API void zu_stl_prm_clr_set_all(Tzu_stl_prm* prm, Tzu_color color, int32_t index);
/// Colour `index` (0 or 1); a line's or a symbol's is that of its main part. Black for null.
ZU_API Tzu_color zu_stl_prm_get_color(const Tzu_stl_prm* prm, int32_t index);
/// Styles `index` (0 or 1), owned by the parameters; null for null.
ZU_API Tzu_pln_style* zu_stl_prm_get_pln_style_ptr(Tzu_stl_prm* prm, int32_t index);
ZU_API Tzu_pnt_style* zu_stl_prm_get_pnt_style_ptr(Tzu_stl_prm* prm, int32_t index);
ZU_API Tzu_pgn_style* zu_stl_prm_get_pgn_style_ptr(Tzu_stl_prm* prm, int32_t index);
/// A copy, owned by the caller; null for null and if out of memory.
ZU_API Tzu_stl_prm* zu_stl_prm_clone(const Tzu_stl_prm* prm);
ZU_API void zu_stl_prm_destroy(Tzu_stl_prm* prm);
/// Both styles and the visibility.
ZU_API void zu_scale_prm_assign(Tzu_scale_prm* prm, const Tzu_scale_prm* from);

#ifdef __cplusplus
ZU_HOT bool zu_scale_prm_get_visible(const Tzu_scale_prm* prm) { return prm->visible; }
/// Style of a row, owned by the row; null for a null row.
ZU_HOT Tzu_stl_prm* zu_scale_prm_get_stl_prm_ptr(Tzu_scale_prm* prm) {
  return prm != nullptr ? &prm->style : nullptr;
}
/// Colour `index` (0 or 1) of a style, owned by it.
ZU_HOT Tzu_color* zu_stl_prm_get_clr_style_ptr(Tzu_stl_prm* prm, int32_t index) {
  return &prm->colors[index != 0];
}
#else
ZU_API bool zu_scale_prm_get_visible(const Tzu_scale_prm* prm);
ZU_API Tzu_stl_prm* zu_scale_prm_get_stl_prm_ptr(Tzu_scale_prm* prm);
ZU_API Tzu_color* zu_stl_prm_get_clr_style_ptr(Tzu_stl_prm* prm, int32_t index);
#endif

// --- Prepared look-ups

/// What both scales prepare between begin and end: the upper ends of the intervals of equal answer,
/// cut into equal buckets, either of the numbers or, where the ends are spread over magnitudes, of
/// the numbers' bits.
typedef struct Tzu_scale_lookup {
  double low, per_unit;        ///< bucket of v: (v - low) * per_unit, cut to the buckets
  double last_bucket;          ///< number of buckets minus 1
  const uint32_t* first_key;   ///< of each bucket: the first key in it or above; and one more
  const double* keys;          ///< rising; closed by +infinity
  Tzu_scale_prm* const* rows;  ///< of each key
  Tzu_scale_prm* other;        ///< for NaN and for what no row holds
  bool by_bits;                ///< v in the first line is `zu_scale_lookup_bits` of the value
} Tzu_scale_lookup;

// --- Range scale

/// Classes between two tails, values in the unit of the field. Lower tail v <= minimum value, class
/// i minimum_i < v <= maximum_i (the first class that holds v), upper tail v > maximum value; what
/// none holds is "other".
typedef struct Tzu_rng_scale {
  Tzu_scale_lookup lookup;
} Tzu_rng_scale;

ZU_API void zu_rng_scale_assign(Tzu_rng_scale* scale, const Tzu_rng_scale* from);
ZU_API uint64_t zu_rng_scale_get_size(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_size(Tzu_rng_scale* scale, uint64_t size);
ZU_API double zu_rng_scale_get_min(const Tzu_rng_scale* scale, uint64_t index);  ///< NaN if none
ZU_API double zu_rng_scale_get_max(const Tzu_rng_scale* scale, uint64_t index);  ///< NaN if none
ZU_API void zu_rng_scale_set_min(Tzu_rng_scale* scale, uint64_t index, double value);
ZU_API void zu_rng_scale_set_max(Tzu_rng_scale* scale, uint64_t index, double value);
ZU_API double zu_rng_scale_get_min_value(const Tzu_rng_scale* scale);
ZU_API double zu_rng_scale_get_max_value(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_min_value(Tzu_rng_scale* scale, double value);
ZU_API void zu_rng_scale_set_max_value(Tzu_rng_scale* scale, double value);
// Rows; not owned; null if there is no such class.
ZU_API Tzu_scale_prm* zu_rng_scale_get_scale_prm_ptr(Tzu_rng_scale* scale, uint64_t index);
ZU_API Tzu_scale_prm* zu_rng_scale_get_min_prm_ptr(Tzu_rng_scale* scale);
ZU_API Tzu_scale_prm* zu_rng_scale_get_max_prm_ptr(Tzu_rng_scale* scale);
ZU_API Tzu_scale_prm* zu_rng_scale_get_other_prm_ptr(Tzu_rng_scale* scale);
// Captions for legends, empty unless set; no call if there is no such class.
ZU_API void zu_rng_scale_get_caption_w(const Tzu_rng_scale* scale, uint64_t index,
                                       Tzu_string_adp* adapter);
ZU_API void zu_rng_scale_set_caption_w(Tzu_rng_scale* scale, uint64_t index, const wchar_t* text);
ZU_API void zu_rng_scale_get_min_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter);
ZU_API void zu_rng_scale_set_min_caption_w(Tzu_rng_scale* scale, const wchar_t* text);
ZU_API void zu_rng_scale_get_max_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter);
ZU_API void zu_rng_scale_set_max_caption_w(Tzu_rng_scale* scale, const wchar_t* text);
ZU_API void zu_rng_scale_get_other_caption_w(const Tzu_rng_scale* scale, Tzu_string_adp* adapter);
ZU_API void zu_rng_scale_set_other_caption_w(Tzu_rng_scale* scale, const wchar_t* text);

/// "minimum - maximum" as `zu_rng_scale_get_round_digits` writes them, in the language in force.
ZU_API void zu_rng_scale_set_default_caption(Tzu_rng_scale* scale, uint64_t index);
/// A class before `index` (at most the size), styled and bounded as a new one; gives its index.
ZU_API uint64_t zu_rng_scale_ins(Tzu_rng_scale* scale, uint64_t index);
// Marks are what a person has chosen in a list of the rows; they are not saved. False for no row.
ZU_API bool zu_rng_scale_get_marked(const Tzu_rng_scale* scale, uint64_t index);
ZU_API void zu_rng_scale_set_marked(Tzu_rng_scale* scale, uint64_t index, bool marked);
ZU_API bool zu_rng_scale_get_min_marked(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_min_marked(Tzu_rng_scale* scale, bool marked);
ZU_API bool zu_rng_scale_get_max_marked(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_max_marked(Tzu_rng_scale* scale, bool marked);
ZU_API void zu_rng_scale_del_marked(Tzu_rng_scale* scale);  ///< classes only; the tails stay
/// Marked classes go before the class `index` (at most the size), in their order.
ZU_API void zu_rng_scale_move_marked(Tzu_rng_scale* scale, uint64_t index);
/// `order` holds each index of a class once: class i becomes what was class order[i]. Any other
/// list changes nothing.
ZU_API void zu_rng_scale_set_order(Tzu_rng_scale* scale, const Tzu_ints* order);
/// The current row of a list, kept as it is given; -1 unless set.
ZU_API int32_t zu_rng_scale_get_active_idx(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_active_idx(Tzu_rng_scale* scale, int32_t index);
// Assign style `selected` (0 drawn, 1 selected) of a row from that of `prm`.
ZU_API void zu_rng_scale_set_stl_prm(Tzu_rng_scale* scale, uint64_t index, const Tzu_stl_prm* prm,
                                     int32_t selected);
ZU_API void zu_rng_scale_set_min_style_prm(Tzu_rng_scale* scale, const Tzu_stl_prm* prm,
                                           int32_t selected);
ZU_API void zu_rng_scale_set_max_style_prm(Tzu_rng_scale* scale, const Tzu_stl_prm* prm,
                                           int32_t selected);
// Between the classes `first` and `last` (cut to the scale), or between the first and last marked
// row over the marked ones, tails among them, the inner rows get what lies evenly between the two
// ends: the colour with its transparency kept, the hue alone by the shorter way, the transparency
// alone, the size of symbols and the width of lines. Fewer than three rows: nothing.
ZU_API void zu_rng_scale_clr_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                      int32_t selected);
ZU_API void zu_rng_scale_hue_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                      int32_t selected);
ZU_API void zu_rng_scale_transparency_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                               int32_t selected);
ZU_API void zu_rng_scale_size_gradient(Tzu_rng_scale* scale, uint64_t first, uint64_t last,
                                       int32_t selected);
ZU_API void zu_rng_scale_clr_gradient_marked(Tzu_rng_scale* scale, int32_t selected);
ZU_API void zu_rng_scale_transparency_gradient_marked(Tzu_rng_scale* scale, int32_t selected);
ZU_API void zu_rng_scale_size_gradient_marked(Tzu_rng_scale* scale, int32_t selected);
/// Called before a scale is filled from data: rows made from now on are as transparent as the first
/// one is now; without classes, as the lower tail.
ZU_API void zu_rng_scale_init_opacity_pts(Tzu_rng_scale* scale);

/// How boundaries were made; kept for whoever makes them anew.
enum Tzu_range_type {
  zu_range_equal = 0,
  zu_range_deviation = 1,
  zu_range_logarithmic = 2,
  zu_range_quantile = 3,
  zu_range_natural = 4,
  zu_range_geometrical = 5,
  zu_range_manual = 6,
};
enum { zu_no_rounding = -30 };
ZU_API int32_t zu_rng_scale_get_rng_type(const Tzu_rng_scale* scale);  ///< 0 unless set
ZU_API void zu_rng_scale_set_rng_type(Tzu_rng_scale* scale, int32_t type);
/// Boundaries are multiples of ten to this power; `zu_no_rounding` unless set.
ZU_API int32_t zu_rng_scale_get_round_digits(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_round_digits(Tzu_rng_scale* scale, int32_t digits);
/// A number as boundaries of so many digits are written: -digits decimals, none from 0 on; with
/// `zu_no_rounding` "%.15lg". A point in every locale.
ZU_API void zu_round_digits_format_number(int32_t digits, double value, Tzu_string_adp* adapter);
/// Factor on the deviation in boundaries of that type; 1 unless set.
ZU_API double zu_rng_scale_get_deviation_coeff(const Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_set_deviation_coeff(Tzu_rng_scale* scale, double coefficient);
/// Values can be looked up between these two. Calls nest. A change of the scale ends all look-ups.
ZU_API void zu_rng_scale_beg_find(Tzu_rng_scale* scale);
ZU_API void zu_rng_scale_end_find(Tzu_rng_scale* scale);

// --- Value scale

/// Rows with a text each. A number matches a row whose text is a number within 1e-9 of the larger
/// magnitude, else a row whose text is exactly "%.15lg" of it; the first row wins. Else "other".
typedef struct Tzu_val_scale {
  Tzu_scale_lookup lookup;
} Tzu_val_scale;

ZU_API void zu_val_scale_assign(Tzu_val_scale* scale, const Tzu_val_scale* from);
ZU_API uint64_t zu_val_scale_get_size(const Tzu_val_scale* scale);
ZU_API void zu_val_scale_set_size(Tzu_val_scale* scale, uint64_t size);
ZU_API uint64_t zu_val_scale_add(Tzu_val_scale* scale);  ///< the new size
ZU_API void zu_val_scale_get_text_w(const Tzu_val_scale* scale, uint64_t index,
                                    Tzu_string_adp* adp);
ZU_API void zu_val_scale_set_text_w(Tzu_val_scale* scale, uint64_t index, const wchar_t* text);
/// A row at `index` (at most the size), empty as `zu_val_scale_add` makes it; gives its index.
ZU_API uint64_t zu_val_scale_ins(Tzu_val_scale* scale, uint64_t index);
ZU_API void zu_val_scale_del(Tzu_val_scale* scale, uint64_t index);
// The same operations on rows as on the classes of a range scale.
ZU_API bool zu_val_scale_get_marked(const Tzu_val_scale* scale, uint64_t index);
ZU_API void zu_val_scale_set_marked(Tzu_val_scale* scale, uint64_t index, bool marked);
ZU_API void zu_val_scale_del_marked(Tzu_val_scale* scale);
ZU_API void zu_val_scale_move_marked(Tzu_val_scale* scale, uint64_t index);
ZU_API void zu_val_scale_set_order(Tzu_val_scale* scale, const Tzu_ints* order);
ZU_API int32_t zu_val_scale_get_active_idx(const Tzu_val_scale* scale);
ZU_API void zu_val_scale_set_active_idx(Tzu_val_scale* scale, int32_t index);
ZU_API void zu_val_scale_set_stl_prm(Tzu_val_scale* scale, uint64_t index, const Tzu_stl_prm* prm,
                                     int32_t selected);
ZU_API void zu_val_scale_clr_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                                      int32_t selected);
ZU_API void zu_val_scale_transparency_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                                               int32_t selected);
ZU_API void zu_val_scale_size_gradient(Tzu_val_scale* scale, uint64_t first, uint64_t last,
                                       int32_t selected);
ZU_API void zu_val_scale_clr_gradient_marked(Tzu_val_scale* scale, int32_t selected);
ZU_API void zu_val_scale_transparency_gradient_marked(Tzu_val_scale* scale, int32_t selected);
ZU_API void zu_val_scale_size_gradient_marked(Tzu_val_scale* scale, int32_t selected);
ZU_API void zu_val_scale_init_opacity_pts(Tzu_val_scale* scale);
/// Number of the first row whose text is exactly `text`; false, and the output as it was, if there
/// is none.
ZU_API bool zu_val_scale_find_item_no_w(const Tzu_val_scale* scale, const wchar_t* text,
                                        uint64_t* index);
// Captions for legends, empty unless set; no call if there is no such row.
ZU_API void zu_val_scale_get_caption_w(const Tzu_val_scale* scale, uint64_t index,
                                       Tzu_string_adp* adapter);
ZU_API void zu_val_scale_set_caption_w(Tzu_val_scale* scale, uint64_t index, const wchar_t* text);
ZU_API void zu_val_scale_get_other_caption_w(const Tzu_val_scale* scale, Tzu_string_adp* adapter);
ZU_API void zu_val_scale_set_other_caption_w(Tzu_val_scale* scale, const wchar_t* text);
ZU_API Tzu_scale_prm* zu_val_scale_get_scale_prm_ptr(Tzu_val_scale* scale, uint64_t index);
ZU_API Tzu_scale_prm* zu_val_scale_get_other_prm_ptr(Tzu_val_scale* scale);
ZU_API void zu_val_scale_beg_find(Tzu_val_scale* scale);
ZU_API void zu_val_scale_end_find(Tzu_val_scale* scale);

#ifdef __cplusplus
/// The bits of a number as a number that rises with it: equal steps are about equal ratios.
static inline double zu_scale_lookup_bits(double value) {
  int64_t bits;
  __builtin_memcpy(&bits, &value, sizeof bits);
  return static_cast<double>(bits ^ ((bits >> 63) & INT64_MAX));
}
/// The row of the first key that is not below the value. Most buckets hold one key or none, which
/// one comparison without a jump settles; halving keeps the look-up short where keys crowd.
__attribute__((always_inline)) static inline Tzu_scale_prm* zu_scale_lookup_find(
    const Tzu_scale_lookup& lookup, double value) {
  double place = lookup.by_bits ? zu_scale_lookup_bits(value) : value;
  double bucket = (place - lookup.low) * lookup.per_unit;
  if (value != value) return lookup.other;
  bucket = bucket > 0.0 ? bucket : 0.0;
  bucket = bucket < lookup.last_bucket ? bucket : lookup.last_bucket;
  const uint32_t* span = lookup.first_key + static_cast<uint32_t>(bucket);
  const double* key = lookup.keys + span[0];
  uint32_t count = span[1] - span[0];
  while (__builtin_expect(count > 1, 0)) {
    uint32_t half = (count + 1) / 2;
    key += half & -static_cast<uint32_t>(value > key[half - 1]);
    count -= half;
  }
  key += value > *key;  // never past the last one, which is infinite
  return lookup.rows[key - lookup.keys];
}
/// Row of a value in a range scale, between begin and end; outside of them "other".
ZU_HOT Tzu_scale_prm* zu_rng_scale_find_scale_prm_ptr(Tzu_rng_scale* scale, double value) {
  return zu_scale_lookup_find(scale->lookup, value);
}
/// Row of a number in a value scale, between begin and end; outside of them "other".
ZU_HOT Tzu_scale_prm* zu_val_scale_find_scale_prm_ptr_d(Tzu_val_scale* scale, double value) {
  return zu_scale_lookup_find(scale->lookup, value);
}
#else
ZU_API Tzu_scale_prm* zu_rng_scale_find_scale_prm_ptr(Tzu_rng_scale* scale, double value);
ZU_API Tzu_scale_prm* zu_val_scale_find_scale_prm_ptr_d(Tzu_val_scale* scale, double value);
#endif

// --- Managers

typedef struct Tzu_stl_mngr Tzu_stl_mngr;
ZU_API Tzu_stl_mngr* zu_clr_stl_mngr_create(void);  ///< colours: simple mode, one gray
/// A manager of the type named "clr_mngr_style" (colours of cells), "pnt_mngr_style" (symbols),
/// "pln_mngr_style" (lines) or "pgn_mngr_style" (polygons); null for another name.
ZU_API Tzu_stl_mngr* zu_stl_mngr_create(const char* type);
ZU_API const char* zu_stl_mngr_get_style_type(const Tzu_stl_mngr* manager);  ///< empty for null
ZU_API void zu_stl_mngr_destroy(Tzu_stl_mngr* manager);
ZU_API void zu_stl_mngr_assign(Tzu_stl_mngr* manager, const Tzu_stl_mngr* from);
ZU_API int32_t zu_stl_mngr_get_mode(const Tzu_stl_mngr* manager);
ZU_API void zu_stl_mngr_set_mode(Tzu_stl_mngr* manager, int32_t mode);
/// Field of the scale in use; empty in simple mode.
ZU_API void zu_stl_mngr_get_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter);
ZU_API void zu_stl_mngr_get_val_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter);
ZU_API void zu_stl_mngr_set_val_prop_name_w(Tzu_stl_mngr* manager, const wchar_t* name);
ZU_API void zu_stl_mngr_get_rng_prop_name_w(const Tzu_stl_mngr* manager, Tzu_string_adp* adapter);
ZU_API void zu_stl_mngr_set_rng_prop_name_w(Tzu_stl_mngr* manager, const wchar_t* name);
// Parts of a manager, owned by it.
ZU_API Tzu_stl_prm* zu_stl_mngr_get_simple_sp_ptr(Tzu_stl_mngr* manager);
ZU_API Tzu_val_scale* zu_stl_mngr_get_val_scale_ptr(Tzu_stl_mngr* manager);
ZU_API Tzu_rng_scale* zu_stl_mngr_get_rng_scale_ptr(Tzu_stl_mngr* manager);
/// A value scale whose texts are rules, as `zu_calc_filter_to_str` writes them.
ZU_API Tzu_val_scale* zu_stl_mngr_get_rule_scale_ptr(Tzu_stl_mngr* manager);
ZU_API Tzu_stl_mngr* zu_pgn_stl_mngr_create(void);
/// Set by who filled the manager from a file, taken back by who has shown it.
ZU_API bool zu_stl_mngr_get_just_loaded(const Tzu_stl_mngr* manager);
ZU_API void zu_stl_mngr_set_just_loaded(Tzu_stl_mngr* manager, bool loaded);

/// Whether objects are drawn by the render levels of the parts of their styles; false unless set.
ZU_API bool zu_stl_mngr_get_use_render_levels(const Tzu_stl_mngr* manager);
ZU_API void zu_stl_mngr_set_use_render_levels(Tzu_stl_mngr* manager, bool use);
/// Adds the levels to draw one after the other, rising: those that the parts of the styles in use
/// have, and 0, the level of whatever else the layer draws. None if the manager uses no levels.
ZU_API void zu_stl_mngr_get_render_levels(const Tzu_stl_mngr* manager, Tzu_ints* levels);

/// How markers turn with a field; of no effect on a raster.
typedef struct Tzu_rotate_params Tzu_rotate_params;
ZU_API bool zu_stl_mngr_get_rotate_flag(const Tzu_stl_mngr* manager);
ZU_API bool zu_stl_mngr_get_rotate_hatch_flag(const Tzu_stl_mngr* manager);
ZU_API bool zu_stl_mngr_get_rotate_spot_flag(const Tzu_stl_mngr* manager);
ZU_API const Tzu_rotate_params* zu_stl_mngr_get_rotate_params(const Tzu_stl_mngr* manager);

// --- Hillshade and isolines. A null style gives the value of a new one.

typedef struct Tzu_hillshade_style Tzu_hillshade_style;
/// Not in use; z factor 1, sun at 45 degrees above the horizon and azimuth 315, half of the colour.
ZU_API Tzu_hillshade_style* zu_hillshade_style_create(void);
ZU_API void zu_hillshade_style_destroy(Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_assign(Tzu_hillshade_style* style, const Tzu_hillshade_style* from);
ZU_API bool zu_hillshade_style_get_use(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_use(Tzu_hillshade_style* style, bool use);
/// The field shaded; empty: the field of the layer's style manager.
ZU_API void zu_hillshade_style_get_propname(const Tzu_hillshade_style* style, Tzu_string_adp* adp);
ZU_API void zu_hillshade_style_set_propname(Tzu_hillshade_style* style, const wchar_t* name);
/// Factor on heights, so that they have the unit of x and y.
ZU_API double zu_hillshade_style_get_z_coeff(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_z_coeff(Tzu_hillshade_style* style, double factor);
/// Height of the sun above the horizon, degrees.
ZU_API double zu_hillshade_style_get_sun_slope_degree(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_sun_slope_degree(Tzu_hillshade_style* style, double degrees);
/// Azimuth of the sun, degrees clockwise from the north of the map.
ZU_API double zu_hillshade_style_get_sun_aspect_degree(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_sun_aspect_degree(Tzu_hillshade_style* style, double degrees);
ZU_API bool zu_hillshade_style_get_multidir(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_multidir(Tzu_hillshade_style* style, bool multidirectional);
/// Share of the shade in the final colour, 0 to 1.
ZU_API double zu_hillshade_style_get_part(const Tzu_hillshade_style* style);
ZU_API void zu_hillshade_style_set_part(Tzu_hillshade_style* style, double part);
/// The light of a style: z factor, sun and the multidirectional mode.
ZU_API void zu_hillshade_style_get_params(const Tzu_hillshade_style* style,
                                          Tzu_hillshade_params* params);

typedef struct Tzu_isoline_style Tzu_isoline_style;
/// Not in use; thin lines of 0.15 mm each 100, bold ones of 0.35 mm each 500, no numbers.
ZU_API Tzu_isoline_style* zu_isoline_style_create(void);
ZU_API void zu_isoline_style_destroy(Tzu_isoline_style* style);
ZU_API void zu_isoline_style_assign(Tzu_isoline_style* style, const Tzu_isoline_style* from);
ZU_API bool zu_isoline_style_get_use(const Tzu_isoline_style* style);
ZU_API void zu_isoline_style_set_use(Tzu_isoline_style* style, bool use);
/// The field traced; empty: the field of the layer's style manager.
ZU_API void zu_isoline_style_get_propname(const Tzu_isoline_style* style, Tzu_string_adp* adapter);
ZU_API void zu_isoline_style_set_propname(Tzu_isoline_style* style, const wchar_t* name);
/// Steps in the unit of the field.
ZU_API double zu_isoline_style_get_thin_step(const Tzu_isoline_style* style);
ZU_API void zu_isoline_style_set_thin_step(Tzu_isoline_style* style, double step);
ZU_API double zu_isoline_style_get_bold_step(const Tzu_isoline_style* style);
ZU_API void zu_isoline_style_set_bold_step(Tzu_isoline_style* style, double step);
/// Fill the caller's line style; the bold one carries the flag of the numbers.
ZU_API void zu_isoline_style_get_thin_style(const Tzu_isoline_style* style, Tzu_pln_style* out);
ZU_API void zu_isoline_style_set_thin_style(Tzu_isoline_style* style, const Tzu_pln_style* line);
ZU_API void zu_isoline_style_get_bold_style(const Tzu_isoline_style* style, Tzu_pln_style* out);
ZU_API void zu_isoline_style_set_bold_style(Tzu_isoline_style* style, const Tzu_pln_style* line);
/// Whether bold lines bear their number.
ZU_API bool zu_isoline_style_get_label(const Tzu_isoline_style* style);
ZU_API void zu_isoline_style_set_label(Tzu_isoline_style* style, bool label);
/// Levels of a field whose values lie between `minimum` and `maximum`, rising: the multiples of the
/// thin step strictly between them. `bold` says of each whether it is a multiple of the bold step
/// too, within 1e-9 of that step. A thin step that is 0, negative or not finite gives no levels; a
/// bold step like that gives no bold ones. False, and both lists empty, if there are no levels,
/// more than 10,000, or so far from zero that steps cannot be told apart.
ZU_API bool zu_isoline_style_get_levels(const Tzu_isoline_style* style, double minimum,
                                        double maximum, Tzu_dbls* levels, Tzu_bits* bold);
