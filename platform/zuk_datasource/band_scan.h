#pragma once
// All cells of a band, once each, by as many threads as help.

#include <cstddef>
#include <functional>
#include <string>

#include "platform/zuk_datasource/open_dataset.h"

namespace zu::platform {

/// Takes `count` cells of the band's element type that lie in the row of blocks `row`. Two threads
/// may call at a time; `thread` is 0 or 1. The calls of one row follow each other.
using cell_taker = std::function<void(int row, int thread, const void* cells, std::size_t count)>;

/// How many rows of blocks a band has.
int block_rows(GDALRasterBand& band);

/// Reads every block of `band` (from 1) once, past the cache of blocks. A second thread helps with
/// a GeoTIFF. False if `progress`, which may be null, stopped it, if the file is truncated or if no
/// cell could be read; the reason is kept for `name`.
bool scan_band(open_dataset& dataset, int band, const std::wstring& name,
               bool (*progress)(double share, void* user), void* user, const cell_taker& take);

}  // namespace zu::platform
