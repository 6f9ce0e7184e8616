#include "src/data/element.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

namespace zu::data {
namespace {

// By code, from 1.
using types = std::tuple<std::uint8_t, std::int8_t, std::int16_t, std::uint16_t, std::int32_t,
                         std::uint32_t, std::int64_t, std::uint64_t, float, double>;
constexpr std::size_t type_count = std::tuple_size_v<types>;

/// The whole part of `value`; the lowest number of the type if it does not fit, NaN too.
template <class whole, class from> whole truncate(from value) {
  constexpr double limit = -static_cast<double>(std::numeric_limits<whole>::min());
  double wide = value, part = std::trunc(wide);
  return part >= -limit && part < limit ? static_cast<whole>(wide)
                                        : std::numeric_limits<whole>::min();
}

// The machine converts to signed 32 and 64 bits only; other integers are cut from those.
template <class to, class from> to cast_element(from value) {
  if constexpr (!std::is_floating_point_v<from> || std::is_floating_point_v<to>) {
    return static_cast<to>(value);
  } else if constexpr (std::is_same_v<to, std::uint64_t>) {
    constexpr double half = 9223372036854775808.0;  // 2^63
    if (!(value >= half)) return static_cast<to>(truncate<std::int64_t>(value));
    return static_cast<to>(truncate<std::int64_t>(value - half)) ^ (std::uint64_t{1} << 63);
  } else if constexpr (sizeof(to) > 4 || std::is_same_v<to, std::uint32_t>) {
    return static_cast<to>(truncate<std::int64_t>(value));
  } else {
    return static_cast<to>(truncate<std::int32_t>(value));
  }
}

using converter = void (*)(const char*, std::size_t, char*, std::size_t, std::size_t);

template <class from, class to>
void convert_pair(const char* source, std::size_t source_step, char* target,
                  std::size_t target_step, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i, source += source_step, target += target_step) {
    from value;
    std::memcpy(&value, source, sizeof value);
    if constexpr (std::is_same_v<from, to>) {
      std::memcpy(target, &value, sizeof value);
    } else {
      to cast = cast_element<to>(value);
      std::memcpy(target, &cast, sizeof cast);
    }
  }
}

template <std::size_t... pair>
constexpr std::array<converter, type_count * type_count> all_pairs(std::index_sequence<pair...>) {
  return {&convert_pair<std::tuple_element_t<pair / type_count, types>,
                        std::tuple_element_t<pair % type_count, types>>...};
}
constexpr auto converters = all_pairs(std::make_index_sequence<type_count * type_count>());

}  // namespace

std::size_t element_width(std::int32_t type) {
  static constexpr std::size_t widths[] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8};
  return type >= 1 && type <= 10 ? widths[type] : 0;
}

void convert(const void* from, std::int32_t from_type, std::size_t from_step, void* to,
             std::int32_t to_type, std::size_t to_step, std::size_t count) {
  auto index =
      static_cast<std::size_t>(from_type - 1) * type_count + static_cast<std::size_t>(to_type - 1);
  converters[index](static_cast<const char*>(from), from_step, static_cast<char*>(to), to_step,
                    count);
}

}  // namespace zu::data
