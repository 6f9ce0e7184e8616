#pragma once
// The family of fills. Each reads its bands, then paints the main DIB, then the selection; each
// works by matrix and by mesh. False if the DIBs may not be drawn.
//
//   bilinear scale   a field    bilinear   look-up of the value between the samples
//   nearest scale    a field    nearest    look-up of the sample
//   simple           nothing    nearest    one colour, NoData or not
//   gray             a field    nearest    the gray channel's byte
//   channels         3 fields   nearest    a byte of each channel
//   byte gray        a band     nearest    the byte itself
//   palette          a band     nearest    the palette's entry, no NoData
//   rgb              3 bands    nearest    the three bytes
//   rgba             4 bands    nearest    the three bytes, transparency 255 minus the fourth
//
// A new member is a function here, its colour law in fills.cpp, and a case in fill_dibs.cpp.

#include <array>

#include "src/data/grid_datasource.h"
#include "src/render/render_context.h"

namespace zu {

bool fill_range_scale(const grid_draw_job& job, std::int64_t field, Tzu_rng_scale* scale,
                      bool interpolate);
bool fill_value_scale(const grid_draw_job& job, std::int64_t field, Tzu_val_scale* scale);
/// For a style mode that colours no grid: nothing shows but the selection.
bool fill_nothing(const grid_draw_job& job, std::int64_t field);
bool fill_simple(const grid_draw_job& job, Tzu_stl_prm* style);
bool fill_gray(const grid_draw_job& job, std::int64_t field, const Tzu_clr_channel* gray);
bool fill_channels(const grid_draw_job& job, const std::array<std::int64_t, 3>& fields,
                   const std::array<const Tzu_clr_channel*, 3>& channels);
bool fill_byte_gray(const grid_draw_job& job, std::int64_t band);
bool fill_palette(const grid_draw_job& job, std::int64_t band, grid_palette palette);
bool fill_rgb(const grid_draw_job& job, const std::array<std::int64_t, 3>& bands);
bool fill_rgba(const grid_draw_job& job, const std::array<std::int64_t, 4>& bands);

}  // namespace zu
