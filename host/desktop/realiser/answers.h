#pragma once
// What lists and tables of elements answer to visitors, handed to functions.

#include <QString>
#include <QStringList>

#include "zu/strings.h"

namespace zu::desktop {

/// A visitor of interface `x` that hands what it gets to a function.
template <class x, class given, class function> class visit_with final : public x {
 public:
  explicit visit_with(function f) : function_(std::move(f)) {}
  void visit(given value) override { function_(value); }
  of<x> get() { return handle_of<x>(*this); }

 private:
  function function_;
};
template <class x, class given, class function> visit_with<x, given, function> visitor(function f) {
  return visit_with<x, given, function>(std::move(f));
}

/// All texts that an operation of an element gives, in their order.
template <auto operation, class... given> QStringList texts_by(handle h, given... values) {
  QStringList found;
  auto taking = visitor<string_visitor_impl, const wchar_t*>([&](const wchar_t* text) {
    if (text != nullptr) found << QString::fromWCharArray(text);
  });
  call<operation>(h, values..., taking.get());
  return found;
}

}  // namespace zu::desktop
