#pragma once
// SEG-Y files: their headers, the parameters that say where the traces lie, which are kept in a
// side file ("section.sgy.prm", or one in the user's data folder where that cannot be written), and
// the reduced copies of a section. The samples are read through zuk_datasource.

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_prg.h"

// --- Parameters

/// Which words of a trace header hold the coordinates.
enum Tzu_segy_coord_type {
  zu_segy_coord_any = -1,
  zu_segy_coord_receiver = 0,  ///< bytes 81 and 85
  zu_segy_coord_source = 1,    ///< bytes 73 and 77
  zu_segy_coord_cdp = 2,       ///< bytes 181 and 185
};
/// What turns them to metres.
enum Tzu_segy_coeff_type {
  zu_segy_coeff_metres = 0,       ///< 1
  zu_segy_coeff_decimetres = 1,   ///< 0.1
  zu_segy_coeff_centimetres = 2,  ///< 0.01
  zu_segy_coeff_header = 3,       ///< the scalar of each trace header, bytes 71 and 72
  zu_segy_coeff_number = 4,       ///< the coefficient
};

/// A new record looks for its coordinates itself, takes units from the headers, has the
/// coefficient 1 and does not simplify the line.
typedef struct Tzu_segy_prms Tzu_segy_prms;
ZU_API Tzu_segy_prms* zu_segy_prms_create(void);
ZU_API void zu_segy_prms_destroy(Tzu_segy_prms* record);
ZU_API int32_t zu_segy_prms_get_coord_type(const Tzu_segy_prms* record);  ///< -1 for null
ZU_API int32_t zu_segy_prms_get_coord_coeff_type(const Tzu_segy_prms* record);
ZU_API double zu_segy_prms_get_coord_coeff(const Tzu_segy_prms* record);
ZU_API bool zu_segy_prms_get_pln_simplify_flag(const Tzu_segy_prms* record);
ZU_API void zu_segy_prms_set_coord_type(Tzu_segy_prms* record, int32_t type);
ZU_API void zu_segy_prms_set_coord_coeff_type(Tzu_segy_prms* record, int32_t type);
ZU_API void zu_segy_prms_set_coord_coeff(Tzu_segy_prms* record, double coefficient);
ZU_API void zu_segy_prms_set_pln_simplify_flag(Tzu_segy_prms* record, bool simplify);

// --- Files

/// An open file. What fails with it is kept as a problem of its path.
typedef struct Tzu_segy_file Tzu_segy_file;
/// Null if it is no whole SEG-Y file. The file itself is never written; `keep` is not used.
ZU_API Tzu_segy_file* zu_segy_file_open(const wchar_t* path, int32_t keep);
ZU_API void zu_segy_file_close(Tzu_segy_file* file);
ZU_API uint64_t zu_segy_file_get_trace_count(const Tzu_segy_file* file);
ZU_API uint64_t zu_segy_file_get_sample_count(const Tzu_segy_file* file);  ///< of a trace
ZU_API int32_t zu_segy_file_get_format(const Tzu_segy_file* file);         ///< code of the standard
/// A number of the binary header by its byte, 3201 and up, or of the header of trace `trace` (from
/// 0) by its byte, 1 and up. False, and `out` unchanged, where no number begins.
ZU_API bool zu_segy_file_get_field(const Tzu_segy_file* file, int32_t byte, int32_t* out);
ZU_API bool zu_segy_file_get_trace_field(const Tzu_segy_file* file, uint64_t trace, int32_t byte,
                                         int32_t* out);

ZU_API bool zu_segy_file_has_params(const wchar_t* path);  ///< parameters that can be read
/// False, and the record unchanged, if there are none.
ZU_API bool zu_segy_file_get_parameters(const Tzu_segy_file* file, Tzu_segy_prms* record);
/// Stored whole or not at all; false if that failed.
ZU_API bool zu_segy_file_set_parameters(Tzu_segy_file* file, const Tzu_segy_prms* record);

// --- The line of a section

typedef struct Tzu_segy_estim_opts Tzu_segy_estim_opts;
/// Duplicates allowed, units from the headers, all three coordinate types.
ZU_API Tzu_segy_estim_opts* zu_segy_estim_opts_create(void);
ZU_API void zu_segy_estim_opts_destroy(Tzu_segy_estim_opts* options);
/// Whether two traces one after the other may lie at one point.
ZU_API void zu_segy_estim_opts_set_allow_duplicate_points(Tzu_segy_estim_opts* options, bool allow);
ZU_API void zu_segy_estim_opts_set_crd_coeff_type(Tzu_segy_estim_opts* options, int32_t type);
ZU_API void zu_segy_estim_opts_set_crd_coeff(Tzu_segy_estim_opts* options, double coefficient);
ZU_API void zu_segy_estim_opts_set_crd_type(Tzu_segy_estim_opts* options, int32_t type);
/// The types that may be taken, the best first.
ZU_API void zu_segy_estim_opts_set_crd_types(Tzu_segy_estim_opts* options, const int32_t* types,
                                             uint64_t count);
/// Sets coordinate type, coefficient type and coefficient of the record by the first type of the
/// options whose coordinates make a line: two points that differ, or the point of the one trace. A
/// file without coordinates of any kind has no line that could be wrong, and takes the first type.
/// `monitor` is a handle on "zu_monitor_interface_0", or null. False, and the record unchanged, if
/// none fits, the file cannot be read or the monitor stopped it.
ZU_API bool zu_segy_file_estimate2d_params(const wchar_t* path, const Tzu_segy_estim_opts* options,
                                           Tzu_segy_prms* record, const Tzu_handle* monitor);
/// The points of the traces, in metres where the units are right. A trace whose coordinates are
/// both 0 has none and is left out. False, and no points, if the file cannot be read.
ZU_API bool zu_segy_reader_get_xy_pln(const wchar_t* path, int32_t coord_type, int32_t coeff_type,
                                      double coefficient, Tzu_pv_d2* line);

// --- Reduced copies

/// Where the reduced copies of a section are, or, if it has none, where they would be written:
/// its name followed by ".ovr", or a file in the user's data folder.
ZU_API void zu_segy_file_get_overviews_w(const wchar_t* path, Tzu_string_adp* adapter);
/// Writes them at the factors of `levels`, 2 or more each, whole or not at all. `monitor` as above.
ZU_API bool zu_segy_file_build_overviews(const wchar_t* path, const uint64_t* levels,
                                         uint64_t count, const Tzu_handle* monitor);
