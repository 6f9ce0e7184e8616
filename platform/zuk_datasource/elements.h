#pragma once
// Element types of cells: widths, and conversion by plain casts.

#include <cstddef>
#include <cstdint>

namespace zu::platform {

/// Bytes of an element of type 1 to 10; 0 for any other number.
std::size_t element_width(std::int32_t type);

/// Converts `count` elements by one plain cast each. Steps are in elements and may be negative.
/// Both types are 1 to 10. The runs must not overlap.
void convert_elements(const void* from, std::int32_t from_type, std::ptrdiff_t from_step, void* to,
                      std::int32_t to_type, std::ptrdiff_t to_step, std::size_t count);

/// Calls `work` with a value of the C++ type of element type 1 to 10; nothing for another number.
template <class work> void with_element_type(std::int32_t type, work w) {
  switch (type) {
    case 1:
      return w(std::uint8_t());
    case 2:
      return w(std::int8_t());
    case 3:
      return w(std::int16_t());
    case 4:
      return w(std::uint16_t());
    case 5:
      return w(std::int32_t());
    case 6:
      return w(std::uint32_t());
    case 7:
      return w(std::int64_t());
    case 8:
      return w(std::uint64_t());
    case 9:
      return w(float());
    case 10:
      return w(double());
    default:
      return;
  }
}

}  // namespace zu::platform
