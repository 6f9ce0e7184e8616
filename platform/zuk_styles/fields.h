#pragma once
// Getters and setters of records by their fields.

namespace zu::platform {

/// The object, or a new one where there is none.
template <class object> const object& shown(const object* o) {
  static const object fresh;
  return o != nullptr ? *o : fresh;
}

template <class object, class base, class value> value got(const object* o, value base::*field) {
  return shown(o).*field;
}
template <class object, class base, class value>
void put(object* o, value base::*field, value given) {
  if (o != nullptr) o->*field = given;
}
/// An inner part; null for null.
template <class object, class part> part* inner(object* o, part object::*field) {
  return o != nullptr ? &(o->*field) : nullptr;
}

}  // namespace zu::platform
