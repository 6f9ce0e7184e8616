#pragma once
// A menu at the pointer for elements that have one.

#include <cstring>

#include "zu/tools.h"

namespace zu::toolkit {

/// Adds a menu to an element of interface `base`, which then answers to the menu's name too.
template <class base> class with_context_menu : public base {
 public:
  /// The menu must outlive the element; null takes it away.
  void set_context_menu(context_menu_impl* menu) { menu_ = menu; }

  int query_interface(const char* name, const void** table, void** instance) override {
    if (menu_ != nullptr && std::strcmp(name, context_menu_impl::name) == 0)
      return menu_->query_interface(name, table, instance);
    return base::query_interface(name, table, instance);
  }

 private:
  context_menu_impl* menu_ = nullptr;
};

}  // namespace zu::toolkit
