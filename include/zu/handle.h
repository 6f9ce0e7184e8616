#pragma once
// How an interface is written, on both sides of the border: a class of virtual operations, its name
// with the version, and the list of the operations in slot order. Tables and shims follow from the
// list. A published list never changes: a new shape is a new number in the name.

#include <cstring>
#include <type_traits>
#include <utility>

#include "zu/c_handle.h"

namespace zu {

using handle = ::Tzu_handle;

/// A handle whose table is known to be the one of `interface`.
template <class interface> struct of : handle {
  of() = default;
  explicit of(handle h) : handle(h) {}
};

using slot = void (*)();
enum class no_operation { slot };
/// Stands in a list for a slot that nobody in this system calls; it answers zero, false, empty.
inline constexpr no_operation unused = no_operation::slot;
template <auto... operations> struct slots {};  // member pointers, in slot order

namespace detail {

template <class x, auto operation, class base, class result, class... args>
slot shim(result (base::*)(args...)) {
  static_assert((std::is_trivially_copyable_v<args> && ...), "only plain values cross");
  auto entry = +[](const void*, void* instance, args... given) noexcept -> result {
    try {
      return (static_cast<x*>(instance)->*operation)(given...);
    } catch (...) {
      return result();
    }
  };
  return reinterpret_cast<slot>(entry);
}
template <class x, no_operation> slot shim(no_operation) {
  return reinterpret_cast<slot>(+[](const void*, void*) noexcept { return handle(); });
}
template <class x, auto... all> const slot* table_of(slots<all...>) {
  static const slot entries[] = {shim<x, all>(all)...};
  return entries;
}

template <auto value> struct constant {};
template <auto operation, auto... all> constexpr int index_of(slots<all...>) {
  int index = 0, found = -1;
  ((std::is_same_v<constant<operation>, constant<all>>&& found < 0 ? found = index : 0, ++index),
   ...);
  return found;
}
/// The list that a class's operations stand in: its own, or that of the interface that it is a part
/// of.
template <class base> constexpr auto list_of() {
  if constexpr (requires { typename base::listed_in; })
    return typename base::listed_in::operations();
  else
    return typename base::operations();
}
template <auto operation, class base, class result, class... args, class... given>
result call_slot(result (base::*)(args...), handle h, given&&... values) {
  constexpr int index = index_of<operation>(list_of<base>());
  static_assert(index >= 0, "the operation is in no slot of its interface");
  if (!h) return result();
  auto entry = reinterpret_cast<result (*)(const void*, void*, args...)>(
      static_cast<const slot*>(h.table)[index]);
  return entry(h.table, h.instance, static_cast<args>(values)...);
}

}  // namespace detail

/// The handle of `object` on the table of interface `x`. The table is one per interface and module.
template <class x> of<x> handle_of(x& object) {
  handle h;
  h.table = detail::table_of<x>(typename x::operations());
  h.instance = &object;
  return of<x>(h);
}

/// Calls the slot of `operation` on `h`; an empty handle gives zero, false or an empty handle.
/// `h` must be on a table of the interface that declares the operation.
template <auto operation, class... given> auto call(handle h, given&&... values) {
  return detail::call_slot<operation>(operation, h, std::forward<given>(values)...);
}

/// The one-slot table by which every object is asked for its interfaces.
struct queried {
  /// Compares `name` with the names that the object answers to. On equality stores table and
  /// instance and returns 0; otherwise returns non-zero and leaves both alone.
  virtual int query_interface(const char* name, const void** table, void** instance) = 0;
  /// Clears both outputs, then asks.
  void query(const char* name, const void** table, void** instance) {
    *table = nullptr, *instance = nullptr;
    query_interface(name, table, instance);
  }
  using operations = slots<&queried::query>;
};

/// Base of every interface `x` whose objects are not counted: slot 0 leads to the query.
template <class x> struct plain_interface : queried {
  int query_interface(const char* name, const void** table, void** instance) override {
    int difference = std::strcmp(name, x::name);
    if (difference == 0) {
      handle self = handle_of(static_cast<x&>(*this));
      *table = self.table, *instance = self.instance;
    }
    return difference;
  }
  virtual handle polymorphic_handle() { return handle_of<queried>(*this); }
  template <auto... own> using in_order = slots<&plain_interface::polymorphic_handle, own...>;
};

/// Base of every interface `x` whose objects are counted: slot 1 leads to the referent.
template <class x> struct counted_interface : plain_interface<x> {
  virtual handle referent_handle() { return {}; }
  template <auto... own>
  using in_order =
      slots<&plain_interface<x>::polymorphic_handle, &counted_interface::referent_handle, own...>;
};

/// The polymorphic handle of any object, by slot 0 of its table.
inline handle to_polymorphic(handle h) {
  if (!h) return {};
  auto entry =
      reinterpret_cast<handle (*)(const void*, void*)>(static_cast<const slot*>(h.table)[0]);
  return entry(h.table, h.instance);
}

/// The referent handle of a counted object, by slot 1 of its table.
inline handle to_referent(handle h) {
  if (!h) return {};
  auto entry =
      reinterpret_cast<handle (*)(const void*, void*)>(static_cast<const slot*>(h.table)[1]);
  return entry(h.table, h.instance);
}

/// The same object through interface `x`; empty if it does not answer to that exact name.
template <class x> of<x> cast(handle h) {
  handle polymorphic = to_polymorphic(h), found;
  call<&queried::query>(polymorphic, x::name, &found.table, &found.instance);
  return of<x>(found);
}

}  // namespace zu
