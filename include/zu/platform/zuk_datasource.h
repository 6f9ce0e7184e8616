#pragma once
// Opening of data sources, and statistics of their fields. The interfaces of a source are in
// zu/data_source.h.

#include "zu/platform/zuk_basic.h"

/// Opens a source by name: a path (also /vsi…), or a connection text of a driver. Fills `out` with
/// a handle on "zu_data_source_interface_23", which answers to the stat and grid sources too; the
/// caller releases it. `out` stays empty on failure, with the reason kept for the name.
/// Nothing is written beside the file. `argument` is not used by this opener.
ZU_API void zu_datasource_open(const wchar_t* name, int32_t read_only, void* argument,
                               Tzu_handle* out);
typedef void (*Tzu_datasource_opener)(const wchar_t* name, int32_t read_only, void* argument,
                                      Tzu_handle* out);
/// How many files the pool keeps open for the next call; 0 closes them all.
ZU_API void zu_datasource_set_pool_size(uint32_t files);

/// What the driver says of an open source beyond its interfaces.
typedef struct Tzu_field_info {
  int32_t type;  ///< element type, 1 to 10
  bool has_nodata;
  double nodata;
  bool has_stat;  ///< the file stores exact statistics
  double minimum, maximum, mean, stddev;
} Tzu_field_info;
ZU_API bool zu_datasource_get_field_info(Tzu_handle source, int64_t field, Tzu_field_info* out);
/// Short name of the driver ("GTiff"), and whether the file's rows run south (they are presented
/// from the south all the same).
ZU_API void zu_datasource_get_driver_w(Tzu_handle source, Tzu_string_adp* adapter);
ZU_API bool zu_datasource_rows_run_south(Tzu_handle source);
/// Where the georeference comes from: "geotransform", "ground control points" or "none".
ZU_API void zu_datasource_get_georeference_w(Tzu_handle source, Tzu_string_adp* adapter);
/// The file that gave it: the source's own, or one beside it; no text if there is no georeference.
ZU_API void zu_datasource_get_georeference_file_w(Tzu_handle source, Tzu_string_adp* adapter);
/// Names of what is inside a container (subdatasets), to open by name; and a word on each.
ZU_API uint32_t zu_datasource_get_part_count(Tzu_handle source);
ZU_API void zu_datasource_get_part_w(Tzu_handle source, uint32_t index, Tzu_string_adp* name,
                                     Tzu_string_adp* description);

/// Statistics of the valid cells of a field.
typedef struct Tzu_field_stat {
  double minimum, maximum, mean, stddev;  ///< 0 if there are none; stddev with n - 1
  uint64_t count;                         ///< valid cells read
  bool estimate;                          ///< from a decimated read
} Tzu_field_stat;
/// Reads the field, all of it, or, if it has more than `most` cells (0: no limit), a nearest sample
/// of at most that many. `progress` may be null; returning false from it stops. False if stopped or
/// nothing could be read.
ZU_API bool zu_datasource_compute_stat(Tzu_handle source, int64_t field, uint64_t most,
                                       bool (*progress)(double share, void* user), void* user,
                                       Tzu_field_stat* out);

/// Counts the valid cells of a field in so many equal classes between the limits, both inclusive: a
/// cell on a boundary belongs to the class above, on the last one to the class below. Equal limits
/// put what lies on them into the first class. Reads all of the field; `progress` as above. False,
/// and all counts 0, if stopped or nothing could be read, for limits that fall and for no classes
/// or more than 16,777,216.
ZU_API bool zu_datasource_compute_histogram(Tzu_handle source, int64_t field, uint64_t classes,
                                            double minimum, double maximum,
                                            bool (*progress)(double share, void* user), void* user,
                                            int64_t* counts);
/// How many classes between the limits show a field best: 256, or, for whole numbers, one a number
/// or one for so many numbers each, at most 256, so that no class is empty or full by its place
/// alone. 256 if there is no such field, and for limits that fall.
ZU_API uint64_t zu_datasource_get_histogram_classes(Tzu_handle source, int64_t field,
                                                    double minimum, double maximum);

/// What of a source goes into a grid file.
typedef struct Tzu_pgrid_options {
  const int64_t* fields;  ///< in the order wanted; null: all
  uint64_t field_count;
  bool volume;                 ///< the fields, of one type and NoData, become slices from z 0 up
  const wchar_t* volume_name;  ///< of the property that they make then; null or empty: Value
  bool profile;                ///< a grid of one row becomes a profile
} Tzu_pgrid_options;
/// Writes a ".pgrid" file with exact statistics and overviews; see zu/platform/zuk_file_tos4.h. It
/// replaces an older file when it is whole, and leaves nothing when it fails or `progress` (may be
/// null) gives false. Reasons are kept for `path`; those of reading for the source's name.
ZU_API bool zu_datasource_write_pgrid_w(Tzu_handle source, const wchar_t* path,
                                        const Tzu_pgrid_options* options,
                                        bool (*progress)(double share, void* user), void* user);
