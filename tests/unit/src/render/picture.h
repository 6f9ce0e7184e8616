#pragma once
// Fills a pair of DIBs from a made source, with the settings that a test chooses.

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "src/bundle/owned.h"
#include "src/render/fill_dibs.h"
#include "tests/unit/src/made_source.h"
#include "zu/platform/zuk_attr_data.h"

namespace tests {

inline std::uint32_t word(std::uint32_t r, std::uint32_t g, std::uint32_t b, std::uint32_t a) {
  return r | g << 8 | b << 16 | a << 24;
}
inline std::uint32_t opaque(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
  return word(r, g, b, 0);
}
inline const std::uint32_t clear = word(0, 0, 0, 255);

inline Tzu_color colour_of(std::uint32_t w) {
  return {static_cast<std::uint8_t>(w), static_cast<std::uint8_t>(w >> 8),
          static_cast<std::uint8_t>(w >> 16), static_cast<std::uint8_t>(w >> 24)};
}

class fill_bench {
 public:
  enum which { main_alone, main_and_selection, selection_alone };

  /// With `mesh` an identity step after the projection puts the mesh form in force.
  explicit fill_bench(bool mesh) : mesh_(mesh) {
    params.stl_mngr = manager_.get();
    params.rgb_channels = channels_.get();
    Tzu_matrix3x3 identity;
    zu_matrix3x3_init_single(&identity);
    zu_rpj_fb_d2_set_use_affine_after(rpj_.get(), mesh);
    zu_rpj_fb_d2_set_affine_after(rpj_.get(), &identity);
  }

  zu::grid_render_params params;

  Tzu_rng_scale* range() { return zu_stl_mngr_get_rng_scale_ptr(manager_.get()); }

  /// Boundaries, and colours from the lower tail to the upper one.
  void range_scale(std::vector<double> bounds, std::vector<std::uint32_t> colours,
                   const wchar_t* field = L"z") {
    zu_stl_mngr_set_mode(manager_.get(), zu_style_range);
    zu_stl_mngr_set_rng_prop_name_w(manager_.get(), field);
    std::uint64_t classes = bounds.size() - 1;
    zu_rng_scale_set_size(range(), classes);
    zu_rng_scale_set_min_value(range(), bounds.front());
    zu_rng_scale_set_max_value(range(), bounds.back());
    paint(zu_rng_scale_get_min_prm_ptr(range()), colours.front());
    paint(zu_rng_scale_get_max_prm_ptr(range()), colours.back());
    for (std::uint64_t i = 0; i < classes; ++i) {
      zu_rng_scale_set_min(range(), i, bounds[i]);
      zu_rng_scale_set_max(range(), i, bounds[i + 1]);
      paint(zu_rng_scale_get_scale_prm_ptr(range(), i), colours[i + 1]);
    }
  }
  void value_scale(const std::vector<std::pair<std::wstring, std::uint32_t>>& rows) {
    zu_stl_mngr_set_mode(manager_.get(), zu_style_value);
    zu_stl_mngr_set_val_prop_name_w(manager_.get(), L"z");
    Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager_.get());
    zu_val_scale_set_size(scale, rows.size());
    for (std::uint64_t i = 0; i < rows.size(); ++i) {
      zu_val_scale_set_text_w(scale, i, rows[i].first.c_str());
      paint(zu_val_scale_get_scale_prm_ptr(scale, i), rows[i].second);
    }
  }
  void simple(Tzu_color colour) {
    zu_stl_mngr_set_mode(manager_.get(), zu_style_simple);
    zu_stl_prm_clr_set_all(zu_stl_mngr_get_simple_sp_ptr(manager_.get()), colour, 0);
  }
  void channel(Tzu_clr_channel* channel, const wchar_t* field, double low, double high) {
    zu_clr_channel_set_prop_name_w(channel, field);
    zu_clr_channel_set_limits(channel, low, high);
  }
  void select(const std::set<std::uint64_t>& ids, Tzu_color colour) {
    params.selected_color = {colour, 1};
    zu_table_data_begin_update(table_.get());
    for (std::uint64_t id : ids) zu_table_data_set_selected_id(table_.get(), id, true);
    zu_table_data_end_update(table_.get());
  }

  bool fill(made_source& source, Tzu_box_d2 box, std::uint64_t nx, std::uint64_t ny,
            which dibs = main_alone) {
    zu::grid_render_context context;
    context.params = params;
    context.reprojection = {rpj_.get(), mesh_};
    context.selection = table_.get();
    zu::data::grid_datasource data;
    if (!data.attach(source.handle()) || !data.bind(L"made", 0)) return false;
    zu_dib_set_nxy(main_.get(), nx, ny);
    zu_dib_set_nxy(selection_.get(), nx, ny);
    return zu::fill_dibs({context, data, dibs != selection_alone ? main_.get() : nullptr,
                          dibs != main_alone ? selection_.get() : nullptr, box, nx, ny});
  }
  /// Pixels from the lower left, row by row.
  std::vector<std::uint32_t> main() { return pixels(main_.get()); }
  std::vector<std::uint32_t> selection() { return pixels(selection_.get()); }

 private:
  static void paint(Tzu_scale_prm* row, std::uint32_t colour) {
    zu_scale_prm_set_visible(row, true);
    zu_stl_prm_clr_set_all(zu_scale_prm_get_stl_prm_ptr(row), colour_of(colour), 0);
  }
  static std::vector<std::uint32_t> pixels(Tzu_dib* dib) {
    const std::uint32_t* words = zu_dib_get_arr(dib);
    return {words, words + zu_dib_get_nx(dib) * zu_dib_get_ny(dib)};
  }

  bool mesh_;
  zu::owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  zu::owned<zu_rgb_channels_destroy> channels_{zu_rgb_channels_create()};
  zu::owned<zu_rpj_fb_d2_destroy> rpj_{zu_rpj_fb_d2_create()};
  zu::owned<zu_table_data_destroy> table_{zu_table_data_create()};
  zu::owned<zu_dib_destroy> main_{zu_dib_create()}, selection_{zu_dib_create()};
};

}  // namespace tests
