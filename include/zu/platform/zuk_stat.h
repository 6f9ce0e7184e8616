#pragma once
// Statistics and histograms as objects.

#include "zu/platform/zuk_api.h"

/// Counts of equal classes between two limits.
typedef struct Tzu_histogramm_data Tzu_histogramm_data;
ZU_API Tzu_histogramm_data* zu_histogramm_create(void);
ZU_API void zu_histogramm_destroy(Tzu_histogramm_data* histogram);
ZU_API void zu_histogramm_assign(Tzu_histogramm_data* histogram, const Tzu_histogramm_data* from);
ZU_API void zu_histogramm_clear(Tzu_histogramm_data* histogram);
/// So many empty classes between the limits that were set last (0 and 1 at first).
ZU_API void zu_histogramm_set_params(Tzu_histogramm_data* histogram, uint64_t classes);
/// Between which values its classes lie.
ZU_API void zu_histogramm_set_limits(Tzu_histogramm_data* histogram, double minimum,
                                     double maximum);
/// Number of classes and limits; outputs may be null. Without classes only the count is written.
ZU_API void zu_histogramm_get_params(const Tzu_histogramm_data* histogram, uint64_t* count,
                                     double* minimum, double* maximum);
// Bounds of a class; NaN if there is none.
ZU_API double zu_histogramm_get_bnd_min(const Tzu_histogramm_data* histogram, uint64_t index);
ZU_API double zu_histogramm_get_bnd_max(const Tzu_histogramm_data* histogram, uint64_t index);
ZU_API double zu_histogramm_get_max_val(const Tzu_histogramm_data* histogram);  ///< largest count
ZU_API uint64_t zu_histogramm_get_size(const Tzu_histogramm_data* histogram);
ZU_API void zu_histogramm_set(Tzu_histogramm_data* histogram, uint64_t index, double count);
ZU_API double zu_histogramm_get(const Tzu_histogramm_data* histogram,
                                uint64_t index);  ///< 0 if none

typedef struct Tzu_stat Tzu_stat;
ZU_API Tzu_stat* zu_stat_create(void);
ZU_API void zu_stat_destroy(Tzu_stat* stat);
ZU_API void zu_stat_set_minimum(Tzu_stat* stat, double value);
ZU_API void zu_stat_set_maximum(Tzu_stat* stat, double value);
ZU_API void zu_stat_set_average(Tzu_stat* stat, double value);
ZU_API void zu_stat_set_stddev(Tzu_stat* stat, double value);
// `valid` says whether the value was ever set.
ZU_API double zu_stat_get_minimum(const Tzu_stat* stat, bool* valid);
ZU_API double zu_stat_get_maximum(const Tzu_stat* stat, bool* valid);
ZU_API double zu_stat_get_average(const Tzu_stat* stat, bool* valid);
ZU_API double zu_stat_get_stddev(const Tzu_stat* stat, bool* valid);
ZU_API bool zu_stat_has_statistic(const Tzu_stat* stat);  ///< all four were set
ZU_API bool zu_stat_has_histogramm(const Tzu_stat* stat);
/// The object's own histogram, to be filled or read; `valid`, which may be null, says whether it
/// is.
ZU_API Tzu_histogramm_data* zu_stat_get_histogramm(Tzu_stat* stat, bool* valid);
/// Says whether the histogram is valid now.
ZU_API void zu_stat_set_histogramm(Tzu_stat* stat, bool valid);
