#pragma once
// The one place where a platform function tests for null and stops exceptions.

namespace zu::platform {

/// The result of `work(*object)`; `otherwise` if the object is null or something is thrown.
template <class object, class result, class work>
result guarded(object* o, result otherwise, work w) noexcept {
  if (o == nullptr) return otherwise;
  try {
    return static_cast<result>(w(*o));
  } catch (...) {
    return otherwise;
  }
}

/// The same without a result.
template <class object, class work> void guarded(object* o, work w) noexcept {
  if (o == nullptr) return;
  try {
    w(*o);
  } catch (...) {
  }
}

}  // namespace zu::platform
