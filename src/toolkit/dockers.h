#pragma once
// Panels and the insides of dialogs: a title and an element tree.

#include "src/toolkit/element.h"
#include "zu/editors.h"

namespace zu::toolkit {

/// Title and picture of one id.
class docker_base : public element_base<docker_impl> {
 public:
  explicit docker_base(std::int32_t id, std::uint32_t mode = 1)
      : caption_(id), picture_(id), mode_(mode) {}

  void visit_image(bitmap_visitor visitor) override { visit_bitmap(picture_, visitor); }
  void visit_caption(string_visitor visitor) override { visit_text(caption_, visitor); }
  std::uint32_t mode() override { return mode_; }
  void set_caption(std::int32_t id) {
    if (replace(caption_, id)) redraw();
  }

 private:
  std::int32_t caption_, picture_;
  std::uint32_t mode_;
};

/// Holds its content.
template <class T> class docker : public docker_base {
 public:
  template <class... args>
  explicit docker(std::int32_t id, args&&... given)
      : docker_base(id), content_(std::forward<args>(given)...) {}

  void visit_element(element_visitor visitor) override {
    call<&element_visitor_impl::visit>(visitor, handle_of_element(content_));
  }
  T& content() { return content_; }

 private:
  T content_;
};

/// A panel of a layer editor: the host hides it while it is not enabled.
template <class T> class panel_docker : public docker<T>, public panel_impl {
 public:
  using shown_as = docker_impl;

  template <class... args>
  panel_docker(std::int32_t id, std::uint32_t width, std::uint32_t height, args&&... given)
      : docker<T>(id, std::forward<args>(given)...), width_(width), height_(height) {}

  int query_interface(const char* name, const void** table, void** instance) override {
    int difference = plain_interface<docker_impl>::query_interface(name, table, instance);
    return difference == 0 ? 0
                           : plain_interface<panel_impl>::query_interface(name, table, instance);
  }
  handle polymorphic_handle() override {
    return plain_interface<docker_impl>::polymorphic_handle();
  }

  std::uint32_t width() override { return width_; }
  std::uint32_t height() override { return height_; }
  bool enabled() override { return enabled_; }
  void attach_observer(panel_observer observer) override { observer_ = observer; }
  void set_enabled(bool enabled) {
    if (this->replace(enabled_, enabled)) call<&panel_observer_impl::enabled_changed>(observer_);
  }

 private:
  std::uint32_t width_, height_;
  bool enabled_ = true;
  panel_observer observer_;
};

namespace detail {

/// The frame of a modal dialog around content that lives elsewhere; `T::caption` is its title.
template <class T> class dialog_docker : public element_base<docker_impl> {
 public:
  explicit dialog_docker(T& content) : content_(&content) {}
  void visit_caption(string_visitor visitor) override { visit_text(T::caption, visitor); }
  void visit_element(element_visitor visitor) override {
    call<&element_visitor_impl::visit>(visitor, handle_of_element(*content_));
  }

 private:
  T* content_;
};

}  // namespace detail
}  // namespace zu::toolkit
