#pragma once
// Numbers as text, with a point in every locale.

#include <array>
#include <charconv>
#include <string>

namespace zu::host {

/// The shortest text that reads back as the same number.
inline std::string text_of_number(double value) {
  std::array<char, 32> text{};
  auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end.ptr};
}

}  // namespace zu::host
