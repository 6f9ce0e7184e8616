#pragma once
// Grid files ".pgrid": one grid, its properties, its place. The format is in docs/pgrid.md. To read
// or edit samples open the file as a data source (zu/platform/zuk_datasource.h); these functions
// look at what a file holds and make new ones.

#include "zu/platform/zuk_basic.h"

typedef struct Tzu_tos4_file Tzu_tos4_file;

/// What the nodes of a grid are.
enum Tzu_tos4_grid_type {
  zu_tos4_not_placed = 0,
  zu_tos4_profile = 1,     ///< uniform in one dimension
  zu_tos4_one_column = 2,  ///< nodes in a row; one property holds their coordinate
  zu_tos4_plane = 3,       ///< uniform in two dimensions
  zu_tos4_two_columns = 4,
  zu_tos4_volume = 5,  ///< uniform in three dimensions: slices
  zu_tos4_three_columns = 6,
};

/// Opens an existing file; null if it is not there, is broken or was written by a newer version,
/// with the reason kept for the path. A file opened for reading may lie in a folder that cannot be
/// written. Close it.
ZU_API Tzu_tos4_file* zu_tos4_file_open_w(const wchar_t* path, int32_t read_only);
/// A file that was created and not committed leaves nothing. Null is ignored.
ZU_API void zu_tos4_file_close(Tzu_tos4_file* file);
ZU_API int32_t zu_tos4_get_grid_type(const Tzu_tos4_file* file);  ///< Tzu_tos4_grid_type; 0 of null
ZU_API uint32_t zu_tos4_get_prop_count(const Tzu_tos4_file* file);
/// Name of a property; no call if there is none of that index.
ZU_API void zu_tos4_get_prop_name_w(const Tzu_tos4_file* file, uint32_t index,
                                    Tzu_string_adp* adapter);
ZU_API void zu_tos4_get_prop_caption_w(const Tzu_tos4_file* file, uint32_t index,
                                       Tzu_string_adp* adapter);
/// The property that holds the coordinates along an axis, 0 to 2; -1 if the grid has no such
/// column.
ZU_API int32_t zu_tos4_get_coord_prop(const Tzu_tos4_file* file, int32_t axis);

/// A grid to be made.
typedef struct Tzu_tos4_grid {
  int32_t type;                  ///< Tzu_tos4_grid_type
  int32_t size[3];               ///< nodes, each at least 1; [y and] z is 1 where there is none
  double origin[3], spacing[3];  ///< middle of the first cell; spacing finite and not 0
  double azimuth;                ///< of the x axis, degrees, counter-clockwise
  const wchar_t* projection;     ///< WKT or PROJ text; null or empty: none
} Tzu_tos4_grid;
/// A property to be added.
typedef struct Tzu_tos4_prop {
  const wchar_t* name;     ///< not empty, no other of the file
  const wchar_t* caption;  ///< null: none
  int32_t type;            ///< element type, 1 to 10
  int32_t kind;            ///< colour role, 0 to 6
  bool has_nodata;
  double nodata;
} Tzu_tos4_prop;

/// Begins a new file beside its place; `zu_tos4_file_commit` puts it there, over an older one. Null
/// on failure, with the reason kept for the path. Nothing is seen of it before it is committed.
ZU_API Tzu_tos4_file* zu_tos4_file_create_w(const wchar_t* path, const Tzu_tos4_grid* grid);
/// Index of the new property, whose nodes are all NoData; -1 on failure.
ZU_API int32_t zu_tos4_file_add_prop(Tzu_tos4_file* file, const Tzu_tos4_prop* prop);
/// The property that holds the coordinates along an axis of a grid with columns. False on failure.
ZU_API bool zu_tos4_file_set_coord_prop(Tzu_tos4_file* file, int32_t axis, uint32_t prop);
/// Writes `count` nodes from node `start` in row order, x fastest, as elements of the property's
/// type. One edit: all of it or nothing. Stored statistics of the property are dropped.
ZU_API bool zu_tos4_file_write(Tzu_tos4_file* file, uint32_t prop, uint64_t start, uint64_t count,
                               const void* samples);
/// Reads the same. False if it is not in the grid or cannot be read.
ZU_API bool zu_tos4_file_read(const Tzu_tos4_file* file, uint32_t prop, uint64_t start,
                              uint64_t count, void* samples);
/// Puts a created file in its place, whole and flushed. False on failure; close it then.
ZU_API bool zu_tos4_file_commit(Tzu_tos4_file* file);
