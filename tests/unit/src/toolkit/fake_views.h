#pragma once
// A host's side of elements: views that count what they are told, visitors that keep what they get.

#include <string>
#include <vector>

#include "src/bundle/strings.h"
#include "src/toolkit/element.h"
#include "zu/platform/zuk_os.h"

namespace tests {

using namespace zu;

/// Calls of a view, by slot.
struct told {
  int value = 0, redraw = 0, list = 0;
  bool operator==(const told&) const = default;
};

template <class view_impl> struct fake_view;
template <> struct fake_view<element_view_impl> : element_view_impl {
  void value_changed() override { ++calls.value; }
  void redraw() override { ++calls.redraw; }
  void list_changed() override { ++calls.list; }
  told calls;
};
template <> struct fake_view<integer_view_impl> : integer_view_impl {
  void value_changed(std::int32_t value) override { ++calls.value, last = value; }
  void redraw() override { ++calls.redraw; }
  void range_changed() override { ++calls.list; }
  told calls;
  std::int32_t last = 0;
};
template <> struct fake_view<floating_view_impl> : floating_view_impl {
  void value_changed(double value) override { ++calls.value, last = value; }
  void redraw() override { ++calls.redraw; }
  void range_changed() override { ++calls.list; }
  told calls;
  double last = 0;
};

/// A view of the kind that an element takes, attached while this lives.
template <class T> class viewing {
  template <class view_impl> static fake_view<view_impl> view_of(of<view_impl>);

 public:
  explicit viewing(T& element) : element_(element) {
    using impl = decltype(impl_of(typename T::view_type()));
    element_.attach_view(typename T::view_type(handle_of<impl>(view_)));
  }
  ~viewing() { element_.attach_view({}); }
  const told& calls() const { return view_.calls; }
  auto last() const { return view_.last; }

 private:
  template <class view_impl> static view_impl impl_of(of<view_impl>);
  T& element_;
  decltype(view_of(typename T::view_type())) view_;
};

/// What is given to string visitors.
template <class function> std::vector<std::wstring> texts(function ask) {
  std::vector<std::wstring> all;
  stdwstring_list_visitor visitor(all);
  ask(string_visitor(handle_of<string_visitor_impl>(visitor)));
  return all;
}
template <class function> std::wstring text(function ask) {
  auto all = texts(ask);
  return all.empty() ? L"" : all.front();
}

/// Handles of the elements that are shown to it.
struct element_taker : element_visitor_impl {
  void visit(handle element) override { elements.push_back(element); }
  element_visitor visitor() { return element_visitor(handle_of<element_visitor_impl>(*this)); }
  handle only() const { return elements.size() == 1 ? elements.front() : handle(); }
  std::vector<handle> elements;
};

/// Base texts for the length of a test.
class base_language {
 public:
  base_language() { zu_res_set_lng(0); }
  ~base_language() { zu_res_set_lng(former_); }

 private:
  std::int32_t former_ = zu_res_get_lng();
};

}  // namespace tests
