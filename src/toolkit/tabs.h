#pragma once
// Tabs, each a docker of its own.

#include <array>
#include <functional>
#include <string>

#include "src/toolkit/element.h"

namespace zu::toolkit {
namespace detail {

class docker_internal;

/// A tab: the docker lives from the host's first look at it until the host lets go of it.
struct tab {
  std::wstring id;
  std::int32_t caption = 0;
  std::unique_ptr<generic_element> child;
  docker_internal* shown = nullptr;
};

/// The docker of a tab. It deletes itself when the host detaches it, the last time if it was shown
/// in several windows at once.
class docker_internal : public docker_impl {
 public:
  explicit docker_internal(tab& tab) : tab_(tab) { tab_.shown = this; }
  docker_internal(const docker_internal&) = delete;
  docker_internal& operator=(const docker_internal&) = delete;
  virtual ~docker_internal() { tab_.shown = nullptr; }

  void visit_caption(string_visitor visitor) override { visit_text(tab_.caption, visitor); }
  void visit_image(bitmap_visitor visitor) override { visit_bitmap(tab_.caption, visitor); }
  void visit_element(element_visitor visitor) override { tab_.child->visit(visitor); }
  void attach_view(element_view view) override {
    if (view)
      ++views_;
    else if (--views_ <= 0)
      delete this;
  }

 private:
  tab& tab_;
  int views_ = 0;
};

}  // namespace detail

template <int N> class tab_layout : public element_base<tab_layout_impl> {
 public:
  ~tab_layout() override {
    for (detail::tab& t : tabs_) delete t.shown;
  }
  /// Into the next free tab; the id is the host's key to it.
  template <class T> tab_layout& place(const wchar_t* id, std::int32_t caption, T& element) {
    if (next_ == N) return *this;
    detail::tab& t = tabs_[next_++];
    t.id = id, t.caption = caption;
    t.child = std::make_unique<detail::generic_element_impl<T>>(element);
    return *this;
  }
  void assign(std::int32_t tab) {
    if (replace(current_, tab)) tell_value();
  }

  std::uint32_t count() override { return next_; }
  void visit_tab(std::uint32_t index, docker_visitor visitor) override {
    if (index >= next_) return;
    detail::tab& t = tabs_[index];
    auto* shown = t.shown != nullptr ? t.shown : new detail::docker_internal(t);
    call<&docker_visitor_impl::visit>(visitor, t.id.c_str(),
                                      zu::docker(handle_of<docker_impl>(*shown)));
  }
  std::int32_t current() override { return current_; }
  void set_current(std::int32_t tab) override {
    current_ = tab;
    if (on_tab_changed) on_tab_changed(tab);
  }

  std::function<void(std::int32_t)> on_tab_changed;

 private:
  std::array<detail::tab, N> tabs_;
  std::uint32_t next_ = 0;
  std::int32_t current_ = 0;
};

}  // namespace zu::toolkit
