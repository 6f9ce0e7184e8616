#pragma once
// A panel as a host sees it: its controls by the kind and the number among their kind, and views
// that count what they are told.

#include <functional>
#include <list>
#include <utility>

#include "tests/unit/src/toolkit/element_tree.h"

namespace tests {

/// The elements of a panel in their order, those of pages and tabs too.
class panel_elements {
 public:
  explicit panel_elements(handle root) { take(root); }

  template <class impl> of<impl> at(int n = 0) const { return find<impl>(all_, n); }
  const std::vector<handle>& all() const { return all_; }
  std::vector<std::wstring> captions() const {
    std::vector<std::wstring> found;
    for (handle element : all_)
      if (auto label = cast<label_impl>(element))
        found.push_back(text([&](string_visitor v) { call<&label_impl::text>(label, v); }));
      else if (auto link = cast<button_impl>(element))
        found.push_back(text([&](string_visitor v) { call<&button_impl::caption>(link, v); }));
      else if (auto box = cast<checkbox_impl>(element))
        found.push_back(text([&](string_visitor v) { call<&checkbox_impl::caption>(box, v); }));
    return found;
  }

 private:
  void take(handle element) {
    std::vector<handle> here;
    gather(element, here);
    for (handle each : here) {
      element_taker inside;
      if (auto stack = cast<stack_layout_impl>(each)) {
        for (std::uint32_t i = 0, n = call<&stack_layout_impl::count>(stack); i < n; ++i)
          call<&stack_layout_impl::visit_page>(stack, i, inside.visitor());
      }
      all_.push_back(each);
      for (handle page : inside.elements) take(page);
    }
  }
  std::vector<handle> all_;
};

/// Views on all controls of a panel that a person changes; `calls` is what they were told together.
class panel_views {
 public:
  explicit panel_views(const panel_elements& panel) {
    for (handle element : panel.all()) {
      attach<checkbox_impl>(element, values_);
      attach<dropdown_impl>(element, values_);
      attach<floating_input_impl>(element, floating_);
      attach<integer_input_impl>(element, integers_);
      attach<slider_impl>(element, integers_);
    }
  }
  ~panel_views() {
    for (auto& leave : leave_) leave();
  }
  int calls() const {
    int sum = 0;
    auto count = [&](const told& t) { sum += t.value + t.redraw + t.list; };
    for (const auto& view : values_) count(view.calls);
    for (const auto& view : floating_) count(view.calls);
    for (const auto& view : integers_) count(view.calls);
    return sum;
  }

 private:
  template <class view_impl> static view_impl impl_of(const fake_view<view_impl>&);
  template <class impl, class view> void attach(handle element, std::list<view>& views) {
    auto found = cast<impl>(element);
    if (!found) return;
    using view_impl = decltype(impl_of(std::declval<view>()));
    call<&impl::attach_view>(found, of<view_impl>(handle_of<view_impl>(views.emplace_back())));
    leave_.push_back([found] { call<&impl::attach_view>(found, of<view_impl>()); });
  }

  std::list<fake_view<element_view_impl>> values_;
  std::list<fake_view<floating_view_impl>> floating_;
  std::list<fake_view<integer_view_impl>> integers_;
  std::vector<std::function<void()>> leave_;
};

// What a person does.

inline void tick(of<checkbox_impl> box, bool on) { call<&checkbox_impl::set_checked>(box, on); }
inline void enter(of<floating_input_impl> input, double value) {
  EXPECT_TRUE(call<&floating_input_impl::set_value>(input, value));
  call<&floating_input_impl::apply>(input);
}
inline void enter(of<integer_input_impl> input, std::int32_t value) {
  EXPECT_TRUE(call<&integer_input_impl::set_value>(input, value));
  call<&integer_input_impl::apply>(input);
}
inline void choose(of<dropdown_impl> list, std::int32_t index) {
  call<&dropdown_impl::set_current>(list, index);
}
inline std::vector<std::wstring> items(of<dropdown_impl> list) {
  std::vector<std::wstring> all;
  for (std::uint32_t i = 0, n = call<&dropdown_impl::count>(list); i < n; ++i)
    all.push_back(text([&](string_visitor v) { call<&dropdown_impl::item_text>(list, i, v); }));
  return all;
}

}  // namespace tests
