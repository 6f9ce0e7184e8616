#pragma once
// Element types: their widths, and the conversion of one to another.

#include <cstddef>
#include <cstdint>

namespace zu::data {

/// Bytes of an element; 0 for a type that is none.
std::size_t element_width(std::int32_t type);

/// Copies `count` elements; steps in bytes. One plain cast per pair of types, without clamping:
/// integers are cut to their low bytes; a floating value goes through a signed 64-bit integer,
/// and one that does not fit there becomes its lowest number, as the machine converts it.
/// Types must have a width.
void convert(const void* from, std::int32_t from_type, std::size_t from_step, void* to,
             std::int32_t to_type, std::size_t to_step, std::size_t count);

}  // namespace zu::data
