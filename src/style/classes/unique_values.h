#pragma once
// The distinct values of a field as rows of a value scale.

#include <cstdint>
#include <set>
#include <string>

#include "src/data/generic_datasource.h"
#include "src/toolkit/outline.h"
#include "src/toolkit/outline_columns.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

/// Values in the order of their texts.
using unique_texts = std::set<std::wstring>;

inline constexpr std::int64_t unique_limit = 1000;

/// Reads the values of a field: as many as `unique_limit`, and, if there are that many and the
/// person says so, all. `all` says whether the values are all there are; it may be null. False if
/// the source does not open, has no such field, cannot be read or the person stopped it.
bool read_unique_values(const data::open_reference& source, const std::wstring& field,
                        unique_texts& out, bool* all);

/// The same without asking: at most `limit`.
bool read_unique_values(const data::open_reference& source, const std::wstring& field,
                        std::int64_t limit, unique_texts& out);

/// Without white space at its ends.
std::wstring trimmed(const std::wstring& text);

/// A row for each value, with the value as its caption.
void rebuild(Tzu_val_scale* scale, const unique_texts& values);
/// Adds a row for each value that no row has.
void add_new_values(Tzu_val_scale* scale, const unique_texts& values);
/// Removes rows whose value is not among the values.
void remove_missing_values(Tzu_val_scale* scale, const unique_texts& values);
/// Captions from another field: what it holds in the first record that has the row's value. A row
/// whose value no record has keeps its own. False if nothing could be read.
bool change_captions(Tzu_val_scale* scale, const data::open_reference& source,
                     const std::wstring& field, const std::wstring& captions_field);

/// The values as a table of one column.
class value_scale_cache_outline : public toolkit::outline_table {
 public:
  value_scale_cache_outline();

  /// False, and the values as they were, if they cannot be read.
  bool load(const data::open_reference& source, const std::wstring& field);
  const unique_texts& values() const { return values_; }
  bool has_all() const { return has_all_; }

  std::uint32_t row_count() override { return static_cast<std::uint32_t>(values_.size()); }
  std::uint32_t visible_rows() override { return 12; }
  std::int64_t current_row() override { return current_; }
  void set_current_row(std::int64_t row) override { current_ = row; }

 private:
  const std::wstring* value(std::uint32_t row);

  unique_texts values_;
  bool has_all_ = true;
  std::int64_t current_ = -1;
  unique_texts::const_iterator last_;  // shown; the next one asked for is mostly beside it
  std::uint32_t last_row_ = 0;
  toolkit::outline_string_column_view column_;
};

}  // namespace zu::style
