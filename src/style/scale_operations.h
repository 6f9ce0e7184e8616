#pragma once
// What tools do to all rows of a scale at once, or to the marked ones if they are several. All work
// on the primary style alone, and tell `changed` unless there is no scale.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "src/style/classes/builders.h"
#include "src/style/scale_file.h"
#include "src/style/scale_model.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::style {

namespace detail {

/// Rows that a tool works on, rising.
template <class model> std::vector<std::int64_t> rows_of(const model& m, bool only_marked) {
  std::vector<std::int64_t> rows;
  for (std::int64_t row = 0, count = m.row_count(); row < count; ++row)
    if (!only_marked || m.is_marked(row)) rows.push_back(row);
  return rows;
}

/// Their parameters.
template <class model> std::vector<Tzu_stl_prm*> styles_of(const model& m, bool only_marked) {
  std::vector<Tzu_stl_prm*> styles;
  for (std::int64_t row : rows_of(m, only_marked)) styles.push_back(m.get_style_prm(row));
  return styles;
}

/// Gives the parameters, in order, the colours of a numbered array or, if it is not null, of a
/// palette; their transparencies stay.
void spread_colours(const std::vector<Tzu_stl_prm*>& rows, std::int32_t id,
                    const Tzu_clr_palette* palette, std::int32_t flag);

/// What a row is sorted by, and where it stood.
struct sorted_row {
  std::wstring text;
  std::optional<double> number;
  std::int64_t index;
};
/// The old indices in their new order. Texts ignore case; what is no number comes after all
/// numbers; `descending` turns the finished list, ties included.
std::vector<std::int64_t> sorted_order(std::vector<sorted_row> rows, bool as_text, bool descending);

/// Library `index` of the global ones, or null.
Tzu_style_lib* global_library(std::int32_t index);
/// Caption of the item with that number, if there is one.
std::optional<std::wstring> caption_in_library(Tzu_style_lib* library, std::int32_t number);
/// Legend `index` of the current project, or null.
Tzu_mapleg* legend_of_project(std::int32_t index);

}  // namespace detail

/// Colours of a numbered array or, if it is not null, of a palette; `flag` 0 as a ramp, 1 in turn.
template <class model>
void apply_colours(model& m, std::int32_t id, const Tzu_clr_palette* palette, std::int32_t flag) {
  if (m.scale() == nullptr) return;
  detail::spread_colours(detail::styles_of(m, m.several_marked()), id, palette, flag);
  m.changed();
}

/// Between the first and the last entry, or marked one. Tails of a range scale take no part unless
/// they are marked.
template <class model> void gradient(model& m, gradient_kind which) {
  if (m.scale() == nullptr) return;
  model::scale_traits::gradient(m.scale(), which, m.several_marked(), primary);
  m.changed();
}

/// The first and the last row change their styles, the second and the last but one, and so on.
template <class model> void invert_scale(model& m) {
  if (m.scale() == nullptr) return;
  std::vector<std::int64_t> rows = detail::rows_of(m, m.several_marked());
  for (std::size_t i = 0; i < rows.size() / 2; ++i) {
    std::int64_t low = rows[i], high = rows[rows.size() - 1 - i];
    owned<zu_stl_prm_destroy> kept(zu_stl_prm_clone(m.get_style_prm(low)));
    if (kept == nullptr) break;
    model::scale_traits::set_style(m.scale(), low, m.get_style_prm(high), primary);
    model::scale_traits::set_style(m.scale(), high, kept.get(), primary);
  }
  m.changed();
}

/// All entries, whatever is marked; tails stay. Texts are compared ignoring case; `descending`
/// turns the sorted list, which brings what is no number to the front.
template <class model> void sort_scale(model& m, sort_key key, bool as_text, bool descending) {
  using traits = typename model::scale_traits;
  if (m.scale() == nullptr) return;
  std::vector<detail::sorted_row> rows;
  for (std::int64_t i = 0, count = traits::entry_count(m.scale()); i < count; ++i) {
    std::int64_t row = i + traits::first_entry;
    rows.push_back({as_text ? traits::sort_text(m.scale(), row, key) : std::wstring(),
                    as_text ? std::nullopt : traits::sort_number(m.scale(), row, key), i});
  }
  owned<zu_ints_destroy> order(zu_ints_create());
  for (std::int64_t index : detail::sorted_order(std::move(rows), as_text, descending))
    zu_ints_add(order.get(), index);
  traits::set_order(m.scale(), order.get());
  m.changed();
}

/// Replaces the rules of a manager by a rule for each value. False, and nothing changed, if the
/// value scale has no field.
bool import_value_rules(Tzu_stl_mngr* mngr);
/// Replaces the rules by one for each class and tail.
bool import_range_rules(Tzu_stl_mngr* mngr);
template <class model> void import_value_rules(model& m) {
  if (m.scale() != nullptr && import_value_rules(m.mngr)) m.changed();
}
template <class model> void import_range_rules(model& m) {
  if (m.scale() != nullptr && import_range_rules(m.mngr)) m.changed();
}

/// A class in a range scale, bounded and styled between its neighbours; in other scales a row.
template <class model> void insert_class(model& m) { m.append(); }

/// Makes the boundaries of a range scale anew from the data as they are now, where its method can
/// be repeated.
template <class model> void rescale(model& m) {
  if (m.scale() == nullptr) return;
  model::scale_traits::rescale(m.scale(), m.source, m.field());
  m.changed();
}

/// Captions and styles by the numbers that the rows' values are, from one of the global libraries.
template <class model> void apply_library(model& m, std::int32_t index) {
  Tzu_style_lib* library = detail::global_library(index);
  if (m.scale() == nullptr || library == nullptr) return;
  for (std::int64_t row : detail::rows_of(m, m.several_marked())) {
    std::optional<std::int32_t> number = model::scale_traits::library_number(m.scale(), row);
    if (!number) continue;
    std::optional<std::wstring> caption = detail::caption_in_library(library, *number);
    if (!caption) continue;
    m.set_caption(row, *caption);
    model::style_traits::take_from_library(m.get_style_prm(row), library, *number);
  }
  m.changed();
}

/// Captions and styles by the rows' values, from a legend of the current project.
template <class model> void apply_map_legend(model& m, std::int32_t index) {
  Tzu_mapleg* legend = detail::legend_of_project(index);
  if (m.scale() == nullptr || legend == nullptr || !model::scale_traits::has_map_legends) return;
  model::scale_traits::style_by_legend(m.scale(), legend, m.several_marked());
  m.changed();
}

/// A scale of which nothing is known yet: from the file beside the data, else filled from the data
/// and coloured from blue through white to red.
template <class model> void load_default_scale(model& m) {
  using traits = typename model::scale_traits;
  if (m.scale() == nullptr) return;
  std::wstring field = m.field();
  std::wstring path = scale_file_path(m.source.name, field, traits::extension);
  if (load_scale_file(path, m.mngr, model::style_traits::manager_key, &traits::load)) {
    m.set_field(field);  // the file's own may be another
  } else {
    traits::fill(m.scale(), m.source, field);
    detail::spread_colours(detail::styles_of(m, false), default_colors, nullptr, 0);
  }
  m.changed();
}

}  // namespace zu::style
