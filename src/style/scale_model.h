#pragma once
// One scale of one style manager as a person edits it: the rows that they see, what is marked in
// them, and the notice that something changed. The scale itself is the platform's; nothing of it is
// kept here. Without manager or scale every operation does nothing and tells nobody.

#include <cstdint>
#include <optional>
#include <string>

#include "src/bundle/owned.h"
#include "src/data/generic_datasource.h"
#include "src/style/number_text.h"
#include "src/style/scale_traits.h"
#include "src/style/style_traits.h"
#include "src/style/type_text.h"
#include "src/toolkit/events.h"

namespace zu::style {

template <class style_traits_type, class scale_traits_type> class scale_model {
 public:
  using style_traits = style_traits_type;
  using scale_traits = scale_traits_type;
  using scale_type = typename scale_traits::scale_type;
  using style_type = typename style_traits::style;

  Tzu_stl_mngr* mngr = nullptr;  ///< not owned
  data::open_reference source;   ///< may be empty: nothing that needs data works then
  std::wstring context;          ///< type of the layer, "grid_layer2d"
  event<void()> changed;

  scale_type* scale() const { return mngr != nullptr ? scale_traits::scale(mngr) : nullptr; }

  // --- Rows. "Marked" are the rows that are chosen together; one alone counts as none.

  std::int64_t row_count() const {
    return on_scale([](scale_type* s) { return scale_traits::row_count(s); });
  }
  /// Null if there is no such row.
  Tzu_stl_prm* get_style_prm(std::int64_t row) const {
    return zu_scale_prm_get_stl_prm_ptr(row_prm(row));
  }
  style_type* get_style(std::int64_t row, std::int32_t kind) const {
    return style_traits::get(get_style_prm(row), kind == selection ? selection : primary);
  }
  bool get_visible(std::int64_t row) const {
    const Tzu_scale_prm* prm = row_prm(row);
    return prm != nullptr && zu_scale_prm_get_visible(prm);
  }
  /// Of that one row, and tells nobody.
  void set_visible(std::int64_t row, bool visible) {
    if (Tzu_scale_prm* prm = row_prm(row)) zu_scale_prm_set_visible(prm, visible);
  }
  /// More than one row.
  bool several_marked() const {
    std::int64_t marked = 0, count = row_count();
    for (std::int64_t row = 0; row < count && marked < 2; ++row) marked += is_marked(row);
    return marked > 1;
  }
  bool is_marked(std::int64_t row) const {
    return has_row(row) && scale_traits::is_marked(scale(), row);
  }
  void set_marked(std::int64_t row, bool marked) {
    if (has_row(row)) scale_traits::set_marked(scale(), row, marked);
  }
  /// Of all marked rows, also if that is one; tells, also if there is none.
  void set_visible_marked(bool visible) {
    change_rows(true, [&](Tzu_scale_prm* prm) { zu_scale_prm_set_visible(prm, visible); });
  }
  /// Of the marked rows if they are several, else of all; tells.
  void show_all(bool visible) {
    change_rows(several_marked(),
                [&](Tzu_scale_prm* prm) { zu_scale_prm_set_visible(prm, visible); });
  }
  /// Turns the visibility of each of these rows; tells.
  void flip_visible() {
    change_rows(several_marked(), [](Tzu_scale_prm* prm) {
      zu_scale_prm_set_visible(prm, !zu_scale_prm_get_visible(prm));
    });
  }

  // --- Styles

  /// Gives all marked rows style `kind` of `prm`; tells nobody.
  void assign_marked_style(const Tzu_stl_prm* prm, std::int32_t kind) {
    for (std::int64_t row = 0, count = row_count(); row < count; ++row)
      if (is_marked(row)) scale_traits::set_style(scale(), row, prm, kind);
  }
  /// Has the person edit a row's style; tells if they accepted.
  void edit_style(std::int64_t row, std::int32_t kind) {
    Tzu_stl_prm* prm = get_style_prm(row);
    if (prm != nullptr && style_traits::edit(prm, kind)) changed();
  }
  /// Has the person edit a copy of a row's style, and gives it to all marked rows if they accepted;
  /// tells then.
  void edit_style_for_marked(std::int64_t row, std::int32_t kind) {
    owned<zu_stl_prm_destroy> copy(zu_stl_prm_clone(get_style_prm(row)));
    if (copy == nullptr || !style_traits::edit(copy.get(), kind)) return;
    assign_marked_style(copy.get(), kind);
    changed();
  }

  // --- Texts of cells. Setters tell nobody: whoever commits a cell does. Texts that are no number
  // do not get into a limit.

  /// What stands in the key cell: the value, or a rule for people; of a class both limits.
  std::wstring get_value(std::int64_t row) const { return text(row, &scale_traits::key_text); }
  std::wstring get_caption(std::int64_t row) const { return text(row, &scale_traits::caption); }
  std::wstring get_row_text(std::int64_t row) const { return text(row, &scale_traits::row_text); }
  std::wstring get_min(std::int64_t row) const { return text(row, &scale_traits::minimum); }
  std::wstring get_max(std::int64_t row) const { return text(row, &scale_traits::maximum); }
  /// The text of an entry as it is stored: a value, or a rule as the platform writes it.
  std::wstring get_stored_value(std::int64_t row) const { return text(row, &scale_traits::value); }
  void set_value(std::int64_t row, const std::wstring& text) {
    if (scale_type* s = scale(); s != nullptr && row >= 0) scale_traits::set_value(s, row, text);
  }
  void set_caption(std::int64_t row, const std::wstring& text) {
    if (scale_type* s = scale(); s != nullptr && row >= 0) scale_traits::set_caption(s, row, text);
  }
  void set_min(std::int64_t row, const std::wstring& text) {
    set_number(row, text, &scale_traits::set_minimum);
  }
  void set_max(std::int64_t row, const std::wstring& text) {
    set_number(row, text, &scale_traits::set_maximum);
  }

  // --- Adding, removing, moving: all tell.

  /// Value and rule: an empty row after the active one, else at the end. Range: a class at the
  /// active index. Gives the new row; -1 without a scale.
  std::int64_t append() {
    scale_type* s = scale();
    if (s == nullptr) return -1;
    std::int64_t row = scale_traits::append(s);
    changed();
    return row;
  }
  void remove_marked() {
    if (scale_type* s = scale()) {
      scale_traits::remove_marked(s);
      changed();
    }
  }
  /// Marked rows go before a row; tells, also if that row is none to move to.
  void move_marked(std::int64_t row) {
    if (scale_type* s = scale()) {
      if (row >= 0) scale_traits::move_marked(s, row);
      changed();
    }
  }

  // --- The current row: a number as it is stored, which may be of no row.

  std::int64_t active_row() const {
    scale_type* s = scale();
    return s != nullptr ? scale_traits::active_row(s) : -1;
  }
  /// A negative row, which is none, is stored as 0.
  void set_active_row(std::int64_t row) {
    if (scale_type* s = scale()) scale_traits::set_active_row(s, row < 0 ? 0 : row);
  }

  // --- What no row holds

  Tzu_scale_prm* other_prm() const {
    return on_scale([](scale_type* s) { return scale_traits::other(s); });
  }
  std::wstring get_other_caption() const {
    return on_scale([](scale_type* s) { return scale_traits::other_caption(s); });
  }
  void set_other_caption(const std::wstring& text) {
    if (scale_type* s = scale()) scale_traits::set_other_caption(s, text);
  }

  // --- The field. A rule scale has none.

  std::wstring field() const {
    return mngr != nullptr ? scale_traits::field(mngr) : std::wstring();
  }
  void set_field(const std::wstring& name) {
    if (mngr != nullptr) scale_traits::set_field(mngr, name);
  }

  /// Begins the names of all tools of this kind of model on this type of layer.
  std::wstring tool_prefix() const { return type_text(typeid(*this)) + L"_" + context; }

 private:
  /// The result of `work(scale)`, or an empty one.
  template <class function> auto on_scale(function&& work) const {
    scale_type* s = scale();
    return s != nullptr ? work(s) : decltype(work(s))();
  }
  bool has_row(std::int64_t row) const { return row >= 0 && row < row_count(); }
  Tzu_scale_prm* row_prm(std::int64_t row) const {
    return has_row(row) ? scale_traits::row(scale(), row) : nullptr;
  }
  std::wstring text(std::int64_t row, std::wstring (*get)(const scale_type*, std::int64_t)) const {
    return on_scale([&](scale_type* s) { return row >= 0 ? get(s, row) : std::wstring(); });
  }
  void set_number(std::int64_t row, const std::wstring& text,
                  void (*set)(scale_type*, std::int64_t, double)) {
    scale_type* s = scale();
    std::optional<double> number = parse_number(text);
    if (s != nullptr && row >= 0 && number) set(s, row, *number);
  }
  template <class function> void change_rows(bool only_marked, function&& work) {
    if (scale() == nullptr) return;
    for (std::int64_t row = 0, count = row_count(); row < count; ++row)
      if (!only_marked || is_marked(row)) work(row_prm(row));
    changed();
  }
};

}  // namespace zu::style
