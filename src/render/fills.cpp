#include "src/render/fills.h"

#include "src/render/sample_block.h"
#include "src/render/samplers.h"
#include "zu/platform/zuk_attr_data.h"

namespace zu {
namespace {

pixel colour_of(Tzu_stl_prm* style) { return *zu_stl_prm_get_clr_style_ptr(style, 0); }

/// Colour of a scale's row, which may be null.
inline pixel colour_of_row(Tzu_scale_prm* row) {
  if (row == nullptr || !zu_scale_prm_get_visible(row)) return transparent_pixel;
  Tzu_stl_prm* style = zu_scale_prm_get_stl_prm_ptr(row);
  return style != nullptr ? *zu_stl_prm_get_clr_style_ptr(style, 0) : transparent_pixel;
}

void paint_selection(const grid_draw_job& job, const pixel_walk& walk,
                     const sample_block<std::uint64_t>& ids) {
  const Tzu_table_data* table = job.context.selection;
  pixel colour = job.context.params.selected_color.color;
  walk.paint(job.selection, nearest(ids.nx(), ids.ny(), [&](std::uint64_t index) {
               return zu_table_data_is_selected_id(table, ids.at(index)) ? colour
                                                                         : transparent_pixel;
             }));
}

/// What all members do: prepare, read, paint. `paint(walk, blocks)` stores the main DIB.
template <class element, std::size_t count, class painter>
bool fill(const grid_draw_job& job, const std::array<std::int64_t, count>& fields,
          const painter& paint) {
  sample_space space;
  if (!prepare(job, space)) return false;
  std::array<sample_block<element>, count> blocks;
  sample_block<std::uint64_t> ids;
  if (job.main != nullptr)
    for (std::size_t i = 0; i < count; ++i)
      if (!blocks[i].read_field(job, fields[i], space.window)) return false;
  if (job.selection != nullptr && !ids.read_ids(job, space.window)) return false;

  pixel_walk walk(job, space);
  if (!walk.ready()) return false;
  if (job.main != nullptr) paint(walk, blocks, space.window);
  if (job.selection != nullptr) paint_selection(job, walk, ids);
  return true;
}

/// A member with the nearest sampler: `colour(blocks, index)` of a sample.
template <class element, std::size_t count, class color>
bool fill_nearest(const grid_draw_job& job, const std::array<std::int64_t, count>& fields,
                  const color& colour) {
  return fill<element>(
      job, fields, [&](const pixel_walk& walk, const auto& blocks, const sample_window& window) {
        walk.paint(job.main, nearest(window.samples[0], window.samples[1],
                                     [&](std::uint64_t index) { return colour(blocks, index); }));
      });
}

using one_field = std::array<std::int64_t, 1>;

}  // namespace

bool fill_range_scale(const grid_draw_job& job, std::int64_t field, Tzu_rng_scale* scale,
                      bool interpolate) {
  auto colour = [scale](double value) {
    return colour_of_row(zu_rng_scale_find_scale_prm_ptr(scale, value));
  };
  return fill<double>(
      job, one_field{field},
      [&](const pixel_walk& walk, const auto& blocks, const sample_window& window) {
        const auto& samples = blocks[0];
        zu_rng_scale_beg_find(scale);
        if (interpolate)
          walk.paint(job.main, bilinear(samples, colour));
        else
          walk.paint(job.main,
                     nearest(window.samples[0], window.samples[1], [&](std::uint64_t index) {
                       double value = samples.at(index);
                       return samples.valid(value) ? colour(value) : transparent_pixel;
                     }));
        zu_rng_scale_end_find(scale);
      });
}

bool fill_value_scale(const grid_draw_job& job, std::int64_t field, Tzu_val_scale* scale) {
  zu_val_scale_beg_find(scale);
  bool filled =
      fill_nearest<double>(job, one_field{field}, [scale](const auto& blocks, std::uint64_t index) {
        double value = blocks[0].at(index);
        return blocks[0].valid(value)
                   ? colour_of_row(zu_val_scale_find_scale_prm_ptr_d(scale, value))
                   : transparent_pixel;
      });
  zu_val_scale_end_find(scale);
  return filled;
}

bool fill_nothing(const grid_draw_job& job, std::int64_t field) {
  return fill_nearest<double>(job, one_field{field},
                              [](const auto&, std::uint64_t) { return transparent_pixel; });
}

bool fill_simple(const grid_draw_job& job, Tzu_stl_prm* style) {
  pixel colour = colour_of(style);
  return fill_nearest<double>(job, std::array<std::int64_t, 0>{},
                              [colour](const auto&, std::uint64_t) { return colour; });
}

bool fill_gray(const grid_draw_job& job, std::int64_t field, const Tzu_clr_channel* gray) {
  return fill_nearest<double>(job, one_field{field},
                              [gray](const auto& blocks, std::uint64_t index) {
                                double value = blocks[0].at(index);
                                if (!blocks[0].valid(value)) return transparent_pixel;
                                std::uint8_t byte = zu_clr_channel_get255value(gray, value);
                                return pixel{byte, byte, byte, 0};
                              });
}

bool fill_channels(const grid_draw_job& job, const std::array<std::int64_t, 3>& fields,
                   const std::array<const Tzu_clr_channel*, 3>& channels) {
  return fill_nearest<double>(job, fields, [&](const auto& blocks, std::uint64_t index) {
    double red = blocks[0].at(index), green = blocks[1].at(index), blue = blocks[2].at(index);
    if (!blocks[0].valid(red) || !blocks[1].valid(green) || !blocks[2].valid(blue))
      return transparent_pixel;
    return pixel{zu_clr_channel_get255value(channels[0], red),
                 zu_clr_channel_get255value(channels[1], green),
                 zu_clr_channel_get255value(channels[2], blue), 0};
  });
}

bool fill_byte_gray(const grid_draw_job& job, std::int64_t band) {
  return fill_nearest<std::uint8_t>(
      job, one_field{band}, [](const auto& blocks, std::uint64_t index) {
        std::uint8_t byte = blocks[0].at(index);
        return blocks[0].valid(byte) ? pixel{byte, byte, byte, 0} : transparent_pixel;
      });
}

bool fill_palette(const grid_draw_job& job, std::int64_t band, grid_palette palette) {
  return fill_nearest<std::uint8_t>(
      job, one_field{band}, [palette](const auto& blocks, std::uint64_t index) {
        std::uint8_t rgba[4] = {0, 0, 0, 255};  // an index without an entry shows nothing
        call<&grid_palette_impl::color>(palette, std::int64_t{blocks[0].at(index)}, rgba);
        return pixel{rgba[0], rgba[1], rgba[2], rgba[3]};
      });
}

bool fill_rgb(const grid_draw_job& job, const std::array<std::int64_t, 3>& bands) {
  return fill_nearest<std::uint8_t>(job, bands, [](const auto& blocks, std::uint64_t index) {
    std::uint8_t red = blocks[0].at(index), green = blocks[1].at(index), blue = blocks[2].at(index);
    bool valid = blocks[0].valid(red) && blocks[1].valid(green) && blocks[2].valid(blue);
    return valid ? pixel{red, green, blue, 0} : transparent_pixel;
  });
}

bool fill_rgba(const grid_draw_job& job, const std::array<std::int64_t, 4>& bands) {
  return fill_nearest<std::uint8_t>(job, bands, [](const auto& blocks, std::uint64_t index) {
    std::uint8_t red = blocks[0].at(index), green = blocks[1].at(index), blue = blocks[2].at(index),
                 alpha = blocks[3].at(index);
    bool valid = blocks[0].valid(red) && blocks[1].valid(green) && blocks[2].valid(blue) &&
                 blocks[3].valid(alpha);
    return valid ? pixel{red, green, blue, static_cast<std::uint8_t>(255 - alpha)}
                 : transparent_pixel;
  });
}

}  // namespace zu
