#pragma once
// A platform object that is destroyed with its holder.

#include <memory>

namespace zu {

namespace detail {
template <class object> object* destroyed_object(void (*)(object*));
}

template <auto destroy> struct destroyed_by {
  template <class object> void operator()(object* o) const { destroy(o); }
};

/// Holds what `destroy` ends: owned<zu_dib_destroy>, owned<zu_pv_d2_destroy>, …
template <auto destroy>
using owned = std::unique_ptr<std::remove_pointer_t<decltype(detail::destroyed_object(destroy))>,
                              destroyed_by<destroy>>;

}  // namespace zu
