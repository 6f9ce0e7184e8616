#pragma once
// Columns of outlines: the running number, and columns of function objects. A function that is not
// set leaves its operation with the default.

#include <functional>

#include "zu/outline.h"

namespace zu::toolkit {

/// Read only column of running numbers, row + 1.
class outline_index_column : public integer_outline_column_impl {
 public:
  /// `id` must outlive the column; `caption` is a text, of the shared ones if negative.
  outline_index_column(const wchar_t* id, std::int32_t caption) : id_(id), caption_(caption) {}
  void id(string_visitor visitor) override { call<&string_visitor_impl::visit>(visitor, id_); }
  void caption(string_visitor visitor) override;
  std::int32_t value(outline_item item) override;

 private:
  const wchar_t* id_;
  std::int32_t caption_;
};

namespace detail {

/// What the functions of every column of kind `x` begin with.
template <class x> class outline_base_column : public x {
 public:
  std::function<void(string_visitor)> on_id;
  std::function<void(string_visitor)> on_caption;
  std::function<void(string_visitor)> on_hint;
  std::function<bool()> on_is_visible;
  std::function<std::uint32_t()> on_width;
  std::function<std::uint32_t()> on_alignment;
  std::function<bool()> on_is_sortable;
  std::function<void(outline_item, string_visitor)> on_item_hint;
  std::function<std::uint32_t(outline_item)> on_item_background;
  std::function<void(outline_item)> on_click;

  void id(string_visitor visitor) override { on_id ? on_id(visitor) : x::id(visitor); }
  void caption(string_visitor visitor) override {
    on_caption ? on_caption(visitor) : x::caption(visitor);
  }
  void hint(string_visitor visitor) override { on_hint ? on_hint(visitor) : x::hint(visitor); }
  bool is_visible() override { return on_is_visible ? on_is_visible() : x::is_visible(); }
  std::uint32_t width() override { return on_width ? on_width() : x::width(); }
  std::uint32_t alignment() override { return on_alignment ? on_alignment() : x::alignment(); }
  bool is_sortable() override { return on_is_sortable ? on_is_sortable() : x::is_sortable(); }
  void item_hint(outline_item item, string_visitor visitor) override {
    on_item_hint ? on_item_hint(item, visitor) : x::item_hint(item, visitor);
  }
  std::uint32_t item_background(outline_item item) override {
    return on_item_background ? on_item_background(item) : x::item_background(item);
  }
  void click(outline_item item) override { on_click ? on_click(item) : x::click(item); }
};

/// The same for kinds whose cells show a value that may be edited.
template <class x> class outline_value_column : public outline_base_column<x> {
 public:
  std::function<bool(outline_item)> on_is_editable;
  std::function<bool(outline_item)> on_is_enabled;

  bool is_editable(outline_item item) override {
    return on_is_editable ? on_is_editable(item) : x::is_editable(item);
  }
  bool is_enabled(outline_item item) override {
    return on_is_enabled ? on_is_enabled(item) : x::is_enabled(item);
  }
};

}  // namespace detail

class string_outline_column_lambdas
    : public detail::outline_value_column<string_outline_column_impl> {
 public:
  std::function<void(outline_item, string_visitor)> on_text;
  std::function<bool(outline_item, const wchar_t*)> on_set_text;
  std::function<std::uint32_t(outline_item)> on_text_color;
  std::function<void(outline_item, bitmap_visitor)> on_picture;
  std::function<bool(outline_item)> on_has_button;
  std::function<void(outline_item)> on_press_button;
  std::function<bool(outline_item)> on_is_bold;
  std::function<std::uint32_t(outline_item)> on_longest_text;

  void text(outline_item item, string_visitor visitor) override {
    on_text ? on_text(item, visitor) : string_outline_column_impl::text(item, visitor);
  }
  bool set_text(outline_item item, const wchar_t* text) override {
    return on_set_text ? on_set_text(item, text) : string_outline_column_impl::set_text(item, text);
  }
  std::uint32_t text_color(outline_item item) override {
    return on_text_color ? on_text_color(item) : string_outline_column_impl::text_color(item);
  }
  void picture(outline_item item, bitmap_visitor visitor) override {
    on_picture ? on_picture(item, visitor) : string_outline_column_impl::picture(item, visitor);
  }
  bool has_button(outline_item item) override {
    return on_has_button ? on_has_button(item) : string_outline_column_impl::has_button(item);
  }
  void press_button(outline_item item) override {
    on_press_button ? on_press_button(item) : string_outline_column_impl::press_button(item);
  }
  bool is_bold(outline_item item) override {
    return on_is_bold ? on_is_bold(item) : string_outline_column_impl::is_bold(item);
  }
  std::uint32_t longest_text(outline_item item) override {
    return on_longest_text ? on_longest_text(item) : string_outline_column_impl::longest_text(item);
  }
};

class bitmap_outline_column_lambdas
    : public detail::outline_base_column<bitmap_outline_column_impl> {
 public:
  std::function<void(outline_item, bitmap_visitor)> on_picture;

  void picture(outline_item item, bitmap_visitor visitor) override {
    on_picture ? on_picture(item, visitor) : bitmap_outline_column_impl::picture(item, visitor);
  }
};

namespace detail {

/// A column of functions `lambdas` whose name and caption are fixed.
template <class lambdas> class outline_column_view : public lambdas {
 public:
  /// `id` must outlive the column; `caption` is a text, of the shared ones if negative.
  outline_column_view(const wchar_t* id, std::int32_t caption);
};

}  // namespace detail

using outline_string_column_view = detail::outline_column_view<string_outline_column_lambdas>;
using outline_bitmap_column_view = detail::outline_column_view<bitmap_outline_column_lambdas>;

}  // namespace zu::toolkit
