#pragma once
// The encodings that narrow text can come in.

#include <cstdint>
#include <string>

namespace zu {

struct encoding_row {
  const char* name;
  const char* second_name;
  std::uint32_t code_page;  ///< 0: no conversion of its own, the system's is used
};

inline constexpr int encoding_count = 19;
inline constexpr int system_encoding = 18;

/// Row of an index; null if there is none. Rows 5 and 6 hold their second names crosswise: the
/// names are keys of saved settings.
const encoding_row* encoding_at(int index);

/// Wide text of a narrow one; empty if there is no such row.
std::wstring wide_from(const char* text, int encoding);

}  // namespace zu
