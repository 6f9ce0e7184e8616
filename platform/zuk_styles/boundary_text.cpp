#include <algorithm>
#include <charconv>
#include <string>

#include "zu/platform/zuk_styles.h"

void zu_round_digits_format_number(int32_t digits, double value, Tzu_string_adp* adapter) {
  constexpr int32_t most_decimals = 30;
  char buffer[400];  // the largest number has 309 digits before the point
  char* end = buffer + sizeof buffer;
  if (digits == zu_no_rounding) {
    end = std::to_chars(buffer, end, value, std::chars_format::general, 15).ptr;
  } else {
    int32_t decimals = std::clamp(-std::max(digits, -most_decimals), 0, most_decimals);
    end = std::to_chars(buffer, end, value, std::chars_format::fixed, decimals).ptr;
    bool is_zero =
        std::all_of(buffer, end, [](char c) { return c == '-' || c == '0' || c == '.'; });
    if (is_zero && buffer[0] == '-') end = std::copy(buffer + 1, end, buffer);
  }
  zu_string_adp_feed(adapter, std::wstring(buffer, end).c_str());
}
