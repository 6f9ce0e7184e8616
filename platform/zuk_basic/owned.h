#pragma once
// An object of the plain functions that ends with its holder.

#include <memory>
#include <type_traits>

namespace zu::platform {

namespace detail {
template <class object> object* destroyed_object(void (*)(object*));
}

template <auto destroy> struct destroyed_by {
  template <class object> void operator()(object* o) const { destroy(o); }
};

/// Holds what `destroy` ends: owned<zu_ov_d2_destroy>, owned<zu_stl_mngr_destroy>, …
template <auto destroy>
using owned = std::unique_ptr<std::remove_pointer_t<decltype(detail::destroyed_object(destroy))>,
                              destroyed_by<destroy>>;

}  // namespace zu::platform
