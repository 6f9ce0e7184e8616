#pragma once
// What lists and tables of elements answer, as Qt's values, and numbers as texts.

#include <QImage>
#include <QString>
#include <QStringList>

#include "host/desktop/realiser/number_text.h"
#include "zu/toolkit.h"

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

/// A picture's pixels, upright; null for a form that is not known.
QImage pixels_of(bitmap picture);

/// The picture that an operation of an element gives; null for none.
template <auto operation, class... given> QImage picture_by(handle h, given... values) {
  QImage found;
  auto taking = visitor<bitmap_visitor_impl, bitmap>([&](bitmap b) { found = pixels_of(b); });
  call<operation>(h, values..., taking.get());
  return found;
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

/// The number that a whole text says, a comma taken for a point; false if it says none.
bool read_number(QString text, double& value);
bool read_number(const QString& text, std::int32_t& value);

}  // namespace zu::desktop
