#pragma once
// What all elements share: the view, flags and ids of texts, and how a layout keeps a child.

#include <cstdint>
#include <memory>
#include <utility>

#include "zu/toolkit.h"

namespace zu::toolkit {

/// Gives a text of this bundle (id above 0) or a shared one (below 0); no call for 0.
void visit_text(std::int32_t id, string_visitor visitor);

/// A picture of this bundle (id above 0) or a shared one (below 0), for the time of a visit.
class bitmap : public bitmap_impl {
 public:
  explicit bitmap(std::int32_t id, bool masked = true) : id_(id), masked_(masked) {}
  void pixels(bytes_visitor visitor) override;
  std::int32_t id() override { return id_; }

 private:
  std::int32_t id_;
  bool masked_;  // the colour of its low left pixel is cut out
};
/// No call for 0.
void visit_bitmap(std::int32_t id, bitmap_visitor visitor);

/// A composite that is laid by another element, mostly its layout.
class with_element {
 public:
  virtual ~with_element() = default;
  virtual handle element() = 0;
};

namespace detail {

template <class owner, class view> view argument_of(void (owner::*)(view));
template <class interface> interface& interface_of(plain_interface<interface>& object) {
  return static_cast<interface&>(object);
}

}  // namespace detail

/// The handle by which an element shows itself to a host, on the table of its interface. A class of
/// several interfaces names the one in `shown_as`.
template <class T> handle handle_of_element(T& child) {
  if constexpr (std::is_base_of_v<with_element, T>)
    return child.element();
  else if constexpr (requires { typename T::shown_as; })
    return handle_of<typename T::shown_as>(child);
  else
    return handle_of(detail::interface_of(child));
}

namespace detail {

/// Holds a child of any kind; the child is a member of its dialog.
class generic_element {
 public:
  virtual ~generic_element() = default;
  virtual void visit(element_visitor visitor) = 0;
};

template <class T> class generic_element_impl : public generic_element {
 public:
  explicit generic_element_impl(T& child) : child_(&child) {}
  void visit(element_visitor visitor) override {
    call<&element_visitor_impl::visit>(visitor, handle_of_element(*child_));
  }

 private:
  T* child_;
};

}  // namespace detail

/// Interface `impl` with the host's view of it.
template <class impl> class element_base : public impl {
 public:
  using view_type = decltype(detail::argument_of(&impl::attach_view));

  element_base() = default;
  element_base(const element_base&) = delete;
  element_base& operator=(const element_base&) = delete;
  virtual ~element_base() = default;

  void attach_view(view_type view) override { view_ = view; }
  /// Asks the host to show the element anew.
  void redraw() { call<&element_view_impl::redraw>(view_); }

 protected:
  template <class... values> void tell_value(values... now) {
    using view_impl = decltype(interface_of_view(view_));
    call<&view_impl::value_changed>(view_, now...);
  }
  void tell_list() { call<&element_view_impl::list_changed>(view_); }

  /// True if the field was another.
  template <class value> static bool replace(value& field, value given) {
    if (field == given) return false;
    field = std::move(given);
    return true;
  }

 private:
  template <class view_impl> static view_impl interface_of_view(of<view_impl>);

  view_type view_;
};

// What elements are mixed of. Each adds an operation of the interface and the setter to it.

template <class base> class with_enabled : public base {
 public:
  bool enabled() override { return enabled_; }
  virtual void set_enabled(bool enabled) {
    if (this->replace(enabled_, enabled)) this->redraw();
  }

 private:
  bool enabled_ = true;
};

template <class base> class with_visible : public base {
 public:
  bool visible() override { return visible_; }
  virtual void set_visible(bool visible) {
    if (this->replace(visible_, visible)) this->redraw();
  }

 private:
  bool visible_ = true;
};

template <class base> class with_read_only : public base {
 public:
  bool read_only() override { return read_only_; }
  void set_read_only(bool read_only) {
    if (this->replace(read_only_, read_only)) this->redraw();
  }

 private:
  bool read_only_ = false;
};

template <class base> class with_caption : public base {
 public:
  void caption(string_visitor visitor) override { visit_text(caption_, visitor); }
  void set_caption(std::int32_t id) {
    if (this->replace(caption_, id)) this->redraw();
  }

 private:
  std::int32_t caption_ = 0;
};

template <class base> class with_hint : public base {
 public:
  void hint(string_visitor visitor) override { visit_text(hint_, visitor); }
  void set_hint(std::int32_t id) {
    if (this->replace(hint_, id)) this->redraw();
  }

 private:
  std::int32_t hint_ = 0;
};

template <class base> class with_picture : public base {
 public:
  void picture(bitmap_visitor visitor) override { visit_bitmap(picture_, visitor); }
  void set_picture(std::int32_t id) {
    if (this->replace(picture_, id)) this->redraw();
  }

 private:
  std::int32_t picture_ = 0;
};

/// In characters; 0 is by content.
template <class base> class with_width : public base {
 public:
  std::uint32_t width() override { return width_; }
  void set_width(std::uint32_t width) {
    if (this->replace(width_, width)) this->redraw();
  }

 private:
  std::uint32_t width_ = 0;
};

namespace detail {

template <class base, template <class> class... mixins> struct chain { using type = base; };
template <class base, template <class> class first, template <class> class... rest>
struct chain<base, first, rest...> {
  using type = first<typename chain<base, rest...>::type>;
};

}  // namespace detail

/// An element of interface `impl` with what the mixins add.
template <class impl, template <class> class... mixins>
using mixed = typename detail::chain<element_base<impl>, mixins...>::type;

}  // namespace zu::toolkit
