#pragma once
// On what the three scales of a manager differ. They have the same static members, so that a model
// never asks which one it edits. A scale is never null here; rows are counted as a person sees
// them, and a row that is not there is left alone unless told otherwise.

#include <cstdint>
#include <optional>
#include <string>

#include "src/data/generic_datasource.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

enum class gradient_kind { color, size, opacity };
/// What rows are sorted by.
enum class sort_key { value = 0, minimum = 1, maximum = 2, caption = 3 };

namespace detail {

/// What value and rule scales share: a row is an entry with a text.
struct text_scale_traits {
  using scale_type = Tzu_val_scale;
  static constexpr bool has_map_legends = true;
  static constexpr bool can_rescale = false;
  static constexpr std::int64_t first_entry = 0;  ///< row of the first entry

  static std::int64_t entry_count(const Tzu_val_scale* scale);
  static std::int64_t row_count(const Tzu_val_scale* scale);
  static Tzu_scale_prm* row(Tzu_val_scale* scale, std::int64_t row);
  static Tzu_scale_prm* other(Tzu_val_scale* scale);
  static void set_style(Tzu_val_scale* scale, std::int64_t row, const Tzu_stl_prm* from,
                        std::int32_t kind);
  static bool is_marked(const Tzu_val_scale* scale, std::int64_t row);
  static void set_marked(Tzu_val_scale* scale, std::int64_t row, bool marked);
  static void remove_marked(Tzu_val_scale* scale);
  static void move_marked(Tzu_val_scale* scale, std::int64_t row);
  static void set_order(Tzu_val_scale* scale, const Tzu_ints* order);
  static std::int64_t active_row(const Tzu_val_scale* scale);
  static void set_active_row(Tzu_val_scale* scale, std::int64_t row);
  /// A row after the active one; at the end if there is none. Gives it.
  static std::int64_t append(Tzu_val_scale* scale);

  static std::wstring value(const Tzu_val_scale* scale, std::int64_t row);
  static void set_value(Tzu_val_scale* scale, std::int64_t row, const std::wstring& text);
  static std::wstring caption(const Tzu_val_scale* scale, std::int64_t row);
  static void set_caption(Tzu_val_scale* scale, std::int64_t row, const std::wstring& text);
  static std::wstring other_caption(const Tzu_val_scale* scale);
  static void set_other_caption(Tzu_val_scale* scale, const std::wstring& text);
  // Rows of texts have no limits.
  static std::wstring minimum(const Tzu_val_scale*, std::int64_t) { return {}; }
  static std::wstring maximum(const Tzu_val_scale*, std::int64_t) { return {}; }
  static void set_minimum(Tzu_val_scale*, std::int64_t, double) {}
  static void set_maximum(Tzu_val_scale*, std::int64_t, double) {}

  static std::wstring sort_text(const Tzu_val_scale* scale, std::int64_t row, sort_key key);
  static std::optional<double> sort_number(const Tzu_val_scale* scale, std::int64_t row,
                                           sort_key key);
  static void gradient(Tzu_val_scale* scale, gradient_kind which, bool only_marked,
                       std::int32_t kind);
  static void style_by_legend(Tzu_val_scale* scale, Tzu_mapleg* legend, bool only_marked);
  /// The number of a library's item that belongs to a row: its value without what is behind the
  /// point. None for a text that is no number.
  static std::optional<std::int32_t> library_number(const Tzu_val_scale* scale, std::int64_t row);
  static bool rescale(Tzu_val_scale*, const data::open_reference&, const std::wstring&) {
    return false;
  }

  /// False with the reason, and the old file as it was.
  static bool save(const std::wstring& path, const Tzu_stl_mngr* manager, const char* key,
                   std::wstring* reason = nullptr);
  static bool load(const std::wstring& path, Tzu_stl_mngr* manager, const char* key);
};

}  // namespace detail

/// A row for each value.
struct value_scale_traits : detail::text_scale_traits {
  static constexpr wchar_t name[] = L"val_scale";
  static constexpr wchar_t extension[] = L"._vl";
  static constexpr std::int32_t file_filter = 10220;
  static Tzu_val_scale* scale(Tzu_stl_mngr* manager) {
    return zu_stl_mngr_get_val_scale_ptr(manager);
  }
  static std::wstring field(const Tzu_stl_mngr* manager);
  static void set_field(Tzu_stl_mngr* manager, const std::wstring& name);
  static std::wstring key_text(const Tzu_val_scale* scale, std::int64_t row) {
    return value(scale, row);
  }
  static std::wstring row_text(const Tzu_val_scale* scale, std::int64_t row);
  static bool fill(Tzu_val_scale* scale, const data::open_reference& source,
                   const std::wstring& field);
};

/// A row for each rule: the value text of an entry is a filter.
struct rule_scale_traits : detail::text_scale_traits {
  static constexpr wchar_t name[] = L"rule_scale";
  static constexpr wchar_t extension[] = L"._rl";
  static constexpr std::int32_t file_filter = 10222;
  static Tzu_val_scale* scale(Tzu_stl_mngr* manager) {
    return zu_stl_mngr_get_rule_scale_ptr(manager);
  }
  // Rules name fields themselves.
  static std::wstring field(const Tzu_stl_mngr*) { return {}; }
  static void set_field(Tzu_stl_mngr*, const std::wstring&) {}
  /// The rule for people; a text that is no rule as it stands.
  static std::wstring key_text(const Tzu_val_scale* scale, std::int64_t row);
  static std::wstring row_text(const Tzu_val_scale* scale, std::int64_t row);
  static bool fill(Tzu_val_scale*, const data::open_reference&, const std::wstring&) {
    return false;
  }
};

/// A row for each class, one for the tail below and one for the tail above. A row past the last is
/// the tail above.
struct range_scale_traits {
  using scale_type = Tzu_rng_scale;
  static constexpr wchar_t name[] = L"range_scale";
  static constexpr wchar_t extension[] = L"._rg";
  static constexpr std::int32_t file_filter = 10221;
  static constexpr bool has_map_legends = false;
  static constexpr bool can_rescale = true;
  static constexpr std::int64_t first_entry = 1;

  static Tzu_rng_scale* scale(Tzu_stl_mngr* manager) {
    return zu_stl_mngr_get_rng_scale_ptr(manager);
  }
  static std::wstring field(const Tzu_stl_mngr* manager);
  static void set_field(Tzu_stl_mngr* manager, const std::wstring& name);

  static std::int64_t entry_count(const Tzu_rng_scale* scale);
  static std::int64_t row_count(const Tzu_rng_scale* scale);
  static Tzu_scale_prm* row(Tzu_rng_scale* scale, std::int64_t row);
  static Tzu_scale_prm* other(Tzu_rng_scale* scale);
  static void set_style(Tzu_rng_scale* scale, std::int64_t row, const Tzu_stl_prm* from,
                        std::int32_t kind);
  static bool is_marked(const Tzu_rng_scale* scale, std::int64_t row);
  static void set_marked(Tzu_rng_scale* scale, std::int64_t row, bool marked);
  static void remove_marked(Tzu_rng_scale* scale);
  /// The tails do not move, and nothing goes before the lower one.
  static void move_marked(Tzu_rng_scale* scale, std::int64_t row);
  static void set_order(Tzu_rng_scale* scale, const Tzu_ints* order);  ///< of classes, from 0
  static std::int64_t active_row(const Tzu_rng_scale* scale);
  static void set_active_row(Tzu_rng_scale* scale, std::int64_t row);
  /// A class at the active index, bounded and styled between its neighbours. Gives its row.
  static std::int64_t append(Tzu_rng_scale* scale);

  static std::wstring value(const Tzu_rng_scale*, std::int64_t) { return {}; }
  static void set_value(Tzu_rng_scale*, std::int64_t, const std::wstring&) {}
  static std::wstring key_text(const Tzu_rng_scale* scale, std::int64_t row);
  static std::wstring caption(const Tzu_rng_scale* scale, std::int64_t row);
  static void set_caption(Tzu_rng_scale* scale, std::int64_t row, const std::wstring& text);
  static std::wstring other_caption(const Tzu_rng_scale* scale);
  static void set_other_caption(Tzu_rng_scale* scale, const std::wstring& text);
  static std::wstring minimum(const Tzu_rng_scale* scale, std::int64_t row);
  static std::wstring maximum(const Tzu_rng_scale* scale, std::int64_t row);
  /// In either tail's row the upper outer boundary is set. Captions made of limits follow them.
  static void set_minimum(Tzu_rng_scale* scale, std::int64_t row, double value);
  /// In the lower tail's row the lower outer boundary is set, in the upper one's nothing.
  static void set_maximum(Tzu_rng_scale* scale, std::int64_t row, double value);
  static std::wstring row_text(const Tzu_rng_scale* scale, std::int64_t row);

  static std::wstring sort_text(const Tzu_rng_scale* scale, std::int64_t row, sort_key key);
  static std::optional<double> sort_number(const Tzu_rng_scale* scale, std::int64_t row,
                                           sort_key key);
  static void gradient(Tzu_rng_scale* scale, gradient_kind which, bool only_marked,
                       std::int32_t kind);
  static void style_by_legend(Tzu_rng_scale*, Tzu_mapleg*, bool) {}
  /// Libraries are matched by values, which classes have none of.
  static std::optional<std::int32_t> library_number(const Tzu_rng_scale*, std::int64_t) {
    return {};
  }
  /// Boundaries by the same method from the data as they are now. False, and nothing changed, for a
  /// method that is not repeated and if there is no such field.
  static bool rescale(Tzu_rng_scale* scale, const data::open_reference& source,
                      const std::wstring& field);
  static bool fill(Tzu_rng_scale* scale, const data::open_reference& source,
                   const std::wstring& field);

  /// False with the reason, and the old file as it was.
  static bool save(const std::wstring& path, const Tzu_stl_mngr* manager, const char* key,
                   std::wstring* reason = nullptr);
  static bool load(const std::wstring& path, Tzu_stl_mngr* manager, const char* key);
};

}  // namespace zu::style
