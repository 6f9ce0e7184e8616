#pragma once
// Models over managers of their own, with rows that a test can tell apart.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "src/bundle/owned.h"
#include "src/style/scale_model.h"

namespace tests {

using namespace zu::style;

using color_values = scale_model<color_style_traits, value_scale_traits>;
using color_ranges = scale_model<color_style_traits, range_scale_traits>;
using color_rules = scale_model<color_style_traits, rule_scale_traits>;
using point_values = scale_model<point_style_traits, value_scale_traits>;
using point_ranges = scale_model<point_style_traits, range_scale_traits>;
using point_rules = scale_model<point_style_traits, rule_scale_traits>;
using line_values = scale_model<line_style_traits, value_scale_traits>;
using line_ranges = scale_model<line_style_traits, range_scale_traits>;
using line_rules = scale_model<line_style_traits, rule_scale_traits>;
using all_models = testing::Types<color_values, color_ranges, color_rules, point_values,
                                  point_ranges, point_rules, line_values, line_ranges, line_rules>;

inline void set_entries(Tzu_val_scale* scale, std::uint64_t count) {
  zu_val_scale_set_size(scale, count);
}
inline void set_entries(Tzu_rng_scale* scale, std::uint64_t count) {
  zu_rng_scale_set_size(scale, count);
}

/// A model, and how often it has told that something changed. Tails of a range scale are rows too,
/// so that a scale of three classes has five.
template <class model_type> struct made_scale : testing::Test {
  using traits = typename model_type::scale_traits;

  made_scale() {
    m.mngr = manager.get();
    m.context = L"grid_layer2d";
  }
  void set_size(std::uint64_t entries) { set_entries(m.scale(), entries); }
  /// Row `row` gets red 10 * row, another transparency each, and the caption "row <row>".
  void paint() {
    for (std::int64_t row = 0; row < m.row_count(); ++row) {
      zu_stl_prm_clr_set_all(m.get_style_prm(row), painted(row), 0);
      m.set_caption(row, L"row " + std::to_wstring(row));
    }
  }
  static Tzu_color painted(std::int64_t row) {
    auto step = static_cast<std::uint8_t>(row);
    return {static_cast<std::uint8_t>(10 * step), 0, 0, step};
  }
  using rgba = std::array<int, 4>;
  static rgba numbers(Tzu_color c) { return {c.r, c.g, c.b, c.a}; }
  rgba color(std::int64_t row) const {
    return numbers(zu_stl_prm_get_color(m.get_style_prm(row), 0));
  }
  std::vector<int> reds() const {
    std::vector<int> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(color(row)[0]);
    return all;
  }
  std::vector<std::wstring> captions() const {
    std::vector<std::wstring> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(m.get_caption(row));
    return all;
  }
  std::vector<bool> visible() const {
    std::vector<bool> all;
    for (std::int64_t row = 0; row < m.row_count(); ++row) all.push_back(m.get_visible(row));
    return all;
  }
  void mark(const std::vector<std::int64_t>& rows) {
    for (std::int64_t row = 0; row < m.row_count(); ++row) m.set_marked(row, false);
    for (std::int64_t row : rows) m.set_marked(row, true);
  }

  zu::owned<zu_stl_mngr_destroy> manager{zu_stl_mngr_create(model_type::style_traits::manager_key)};
  model_type m;
  int told = 0;
  zu::events::connection heard = m.changed.connect([this] { ++told; });
};

}  // namespace tests
