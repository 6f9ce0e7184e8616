#pragma once
// For a class that answers to more than one interface: derive from polymorphic<X_impl> for each.

#include "zu/handle.h"

namespace zu {

/// One link of the chain of interfaces of an object.
struct polymorphic_next {
  virtual int ask(const char* name, const void** table, void** instance) = 0;
  polymorphic_next* next = nullptr;

 protected:
  ~polymorphic_next() = default;
};

/// Head of the chain; a virtual base, so that an object has one.
struct polymorphic_base {
  /// Asks every link, from the one constructed last; goes to the end even after a match.
  /// 0 if any answered.
  virtual int query_chain(const char* name, const void** table, void** instance) {
    int result = 1;
    for (polymorphic_next* link = head; link != nullptr; link = link->next)
      if (link->ask(name, table, instance) == 0) result = 0;
    return result;
  }
  polymorphic_next* head = nullptr;

 protected:
  ~polymorphic_base() = default;
};

template <class interface>
struct polymorphic_impl : interface, polymorphic_next, virtual polymorphic_base {
  polymorphic_impl() {
    next = head;
    head = this;
  }
  polymorphic_impl(const polymorphic_impl&) = delete;
  polymorphic_impl& operator=(const polymorphic_impl&) = delete;
  int ask(const char* name, const void** table, void** instance) override {
    return interface::query_interface(name, table, instance);
  }
  int query_interface(const char* name, const void** table, void** instance) override {
    return query_chain(name, table, instance);
  }
};

template <class interface> struct polymorphic : polymorphic_impl<interface> {};

}  // namespace zu
