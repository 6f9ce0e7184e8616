#include "platform/zuk_datasource/elements.h"

#include <cstring>
#include <type_traits>

namespace zu::platform {

std::size_t element_width(std::int32_t type) {
  static constexpr std::size_t widths[] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8};
  return type >= 0 && type <= 10 ? widths[type] : 0;
}

void convert_elements(const void* from, std::int32_t from_type, std::ptrdiff_t from_step, void* to,
                      std::int32_t to_type, std::ptrdiff_t to_step, std::size_t count) {
  if (from_type == to_type && from_step == 1 && to_step == 1) {
    std::memcpy(to, from, count * element_width(to_type));
    return;
  }
  with_element_type(from_type, [&](auto source) {
    with_element_type(to_type, [&](auto target) {
      using target_type = decltype(target);
      auto* in = static_cast<const decltype(source)*>(from);
      auto* out = static_cast<target_type*>(to);
      if (from_step == 1 && to_step == 1) {
        for (std::size_t i = 0; i < count; ++i) out[i] = static_cast<target_type>(in[i]);
      } else {
        for (std::size_t i = 0; i < count; ++i, in += from_step, out += to_step)
          *out = static_cast<target_type>(*in);
      }
    });
  });
}

}  // namespace zu::platform
