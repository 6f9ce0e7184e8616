#pragma once
// A filter: conditions that are joined from left to right.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zu/platform/zuk_calculator.h"

namespace zu::platform {

/// One comparison of a field with a constant.
struct filter_condition {
  bool with_those_before = true;  ///< else an alternative to them
  bool enabled = true;
  std::wstring field;
  Tzu_calc_operator comparison = zu_calc_equal;
  Tzu_calc_kind kind = zu_calc_text;
  std::wstring text;
};

class calc_filter {
 public:
  void clear() { conditions_.clear(); }
  void add(filter_condition condition) { conditions_.push_back(std::move(condition)); }
  const std::vector<filter_condition>& conditions() const { return conditions_; }

  /// A line such as
  ///   and "z" greater number "10"; and "z" less_equal number "20"; off or "rock" equal text "tuff"
  /// with a condition after each "; ". In quotes a quotation mark and a backslash have a backslash
  /// before them, and a control character is \u and its number in hexadecimal and a semicolon.
  /// Empty without conditions.
  std::wstring stored_text() const;
  /// Nothing for a text that `stored_text` could not have written.
  static std::optional<calc_filter> from_stored_text(std::wstring_view text);

  /// Enabled conditions as an expression, the joins spelled "and" and "or" in every language.
  std::wstring readable_text() const;

 private:
  std::vector<filter_condition> conditions_;
};

}  // namespace zu::platform
