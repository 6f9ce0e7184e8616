#include "src/render/fill_dibs.h"

#include <cstring>

#include "src/bundle/strings.h"
#include "src/render/fills.h"
#include "src/render/hillshade.h"

namespace zu {
namespace {

/// Field of a channel: the one that the record gives, else the one that the channel names.
std::int64_t channel_field(const grid_draw_job& job, std::int64_t given,
                           const Tzu_clr_channel* channel) {
  if (given != -1) return given;
  return job.source.find_field(
      text_of([&](Tzu_string_adp* a) { zu_clr_channel_get_prop_name_w(channel, a); }));
}

bool fill_by_style(const grid_draw_job& job) {
  Tzu_stl_mngr* manager = job.context.params.stl_mngr;
  if (manager == nullptr) return false;
  std::int32_t mode = zu_stl_mngr_get_mode(manager);
  if (mode == zu_style_simple) return fill_simple(job, zu_stl_mngr_get_simple_sp_ptr(manager));
  std::int64_t field = job.source.find_field(
      text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_prop_name_w(manager, a); }));
  if (field == -1) return false;
  if (mode == zu_style_range)
    return fill_range_scale(job, field, zu_stl_mngr_get_rng_scale_ptr(manager),
                            job.context.params.interpolate);
  // Between two classes of a value scale there is no value to interpolate.
  if (mode == zu_style_value)
    return fill_value_scale(job, field, zu_stl_mngr_get_val_scale_ptr(manager));
  return fill_nothing(job, field);
}

bool fill_by_gray_channel(const grid_draw_job& job) {
  const Tzu_clr_channel* gray = zu_rgb_channels_get_gray(job.context.params.rgb_channels);
  std::int64_t field = channel_field(job, job.context.params.gray_field, gray);
  return field != -1 && fill_gray(job, field, gray);
}

bool fill_by_rgb_channels(const grid_draw_job& job) {
  const grid_render_params& params = job.context.params;
  std::array<const Tzu_clr_channel*, 3> channels = {zu_rgb_channels_get_red(params.rgb_channels),
                                                    zu_rgb_channels_get_green(params.rgb_channels),
                                                    zu_rgb_channels_get_blue(params.rgb_channels)};
  std::array<std::int64_t, 3> given = {params.red_field, params.green_field, params.blue_field};
  std::array<std::int64_t, 3> fields;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    fields[i] = channel_field(job, given[i], channels[i]);
    if (fields[i] == -1) return false;
  }
  return fill_channels(job, fields, channels);
}

bool fill_palette_of(const grid_draw_job& job, std::int64_t band, bool gray_without) {
  data::owned_palette palette;
  if (job.source.get_palette(band, palette)) return fill_palette(job, band, palette.get());
  return gray_without && fill_byte_gray(job, band);
}

bool fill_image(const grid_draw_job& job) {
  std::int64_t count = job.source.number_of_fields();
  if (count == 0) return false;
  // The last field of each role; a single field may only be gray or a palette.
  std::array<std::int64_t, role_palette + 1> last;
  last.fill(-1);
  for (std::int64_t field = 0; field < count; ++field) {
    std::int32_t role = job.source.color_role(field);
    if (role >= role_red && role <= role_palette) last[static_cast<std::size_t>(role)] = field;
  }
  if (count > 1 && last[role_red] != -1 && last[role_green] != -1 && last[role_blue] != -1) {
    if (last[role_alpha] != -1)
      return fill_rgba(job, {last[role_red], last[role_green], last[role_blue], last[role_alpha]});
    return fill_rgb(job, {last[role_red], last[role_green], last[role_blue]});
  }
  if (last[role_gray] != -1) return fill_palette_of(job, last[role_gray], true);
  if (last[role_palette] != -1) return fill_palette_of(job, last[role_palette], false);
  return false;
}

bool fill_by_draw_type(const grid_draw_job& job) {
  switch (job.context.params.draw_type) {
    case grid_draw_scale:
      return fill_by_style(job);
    case grid_draw_image:
      return fill_image(job);
    case grid_draw_gray:
      return fill_by_gray_channel(job);
    case grid_draw_rgb:
      return fill_by_rgb_channels(job);
    default:
      return false;
  }
}

void punch_out(Tzu_dib* dib, Tzu_color color) {
  std::uint32_t wanted, transparent;
  Tzu_color nothing{0, 0, 0, 255};
  std::memcpy(&wanted, &color, sizeof wanted);
  std::memcpy(&transparent, &nothing, sizeof transparent);
  std::uint32_t* words = zu_dib_get_arr(dib);
  std::uint64_t count = zu_dib_get_nx(dib) * zu_dib_get_ny(dib);
  for (std::uint64_t i = 0; i < count; ++i)
    if (words[i] == wanted) words[i] = transparent;
}

}  // namespace

bool fill_dibs(const grid_draw_job& job) {
  if (!fill_by_draw_type(job)) return false;
  if (job.main != nullptr) {
    apply_hillshade(job);
    const optional_color& punched = job.context.params.transparent_color;
    if (punched.is_set) punch_out(job.main, punched.color);
  }
  return true;
}

}  // namespace zu
