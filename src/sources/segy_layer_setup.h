#pragma once
// What a new layer of a SEG-Y section gets after it was made.

#include <cstdint>
#include <string>
#include <vector>

#include "src/data/grid_datasource.h"
#include "zu/handle.h"
#include "zu/platform/zuk_file_segy.h"
#include "zu/platform/zuk_lr2d.h"

namespace zu {

/// Profile data of the scene if the layer is the first of it, a scale of its own, and reduced
/// copies if the person wants them. What fails leaves the rest as it is.
void set_up_segy_layer(Izu_layer* layer, Tzu_segy_prms* record);

// Its parts.
void set_up_profile(Izu_layer* layer, const Tzu_segy_prms* record);
void set_default_scale(Izu_layer* layer);
void make_overviews(Izu_layer* layer);

/// Writes reduced copies of the open source at the factors of `levels` that leave more than one
/// sample of its longer side; nothing if there is none. The fields are named for sources of
/// several; a section has one. False if stopped, if a field is missing or the copies cannot be
/// written.
bool build_overviews(const std::vector<std::uint64_t>& levels,
                     const std::vector<std::wstring>& fields, handle monitor,
                     const data::grid_datasource& source, const std::wstring& name,
                     const std::int32_t* sizes);

}  // namespace zu
