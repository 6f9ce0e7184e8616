#pragma once
// Element types: their widths, and the conversion of one to another.

#include <cstddef>
#include <cstdint>

namespace zu::data {

/// Bytes of an element; 0 for a type that is none.
std::size_t element_width(std::int32_t type);

/// Copies `count` elements; steps in bytes. One plain cast per pair of types, without clamping:
/// integers are cut to their low bytes. A floating value becomes an integer as x86-64 converts it,
/// where the language leaves the result open: through a signed 64-bit integer for the types of 64
/// bits and unsigned 32, through a signed 32-bit one for the others. What does not fit there, NaN
/// too, becomes its lowest number; from 2^64 on an unsigned 64-bit integer becomes 0.
/// Types must have a width.
void convert(const void* from, std::int32_t from_type, std::size_t from_step, void* to,
             std::int32_t to_type, std::size_t to_step, std::size_t count);

}  // namespace zu::data
