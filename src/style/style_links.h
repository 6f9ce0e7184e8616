#pragma once
// Small elements that show a style on a form and have it edited at a click.

#include <functional>

#include "src/style/page/pixels.h"
#include "src/style/style_kinds.h"
#include "src/toolkit/buttons.h"

namespace zu::style {
namespace detail {

/// Gives a view the sample of a style, so many pixels large; no call if it shows nothing.
template <class kind>
void visit_sample(typename kind::argument style, std::uint32_t width, std::uint32_t height,
                  bitmap_visitor visitor) {
  constexpr double dots_per_mm = 96 / 25.4;  // of an ordinary screen
  owned<zu_dib_destroy> pixels(zu_dib_create());
  if (kind::preview(style, width, height, dots_per_mm, pixels.get()))
    visit_pixels(pixels.get(), visitor);
}

/// A style of its own and its sample.
template <class kind> class style_sample : public toolkit::image {
 public:
  style_sample(std::uint32_t width, std::uint32_t height) : width_(width), height_(height) {}
  void assign(typename kind::argument style) {
    kind::assign(held_.get(), style);
    redraw();
  }
  typename kind::argument value() { return kind::given(held_.get()); }
  /// True if the person accepted.
  bool edit() {
    bool accepted = kind::edit(held_.get());
    if (accepted) redraw();
    return accepted;
  }
  void picture(bitmap_visitor visitor) override {
    visit_sample<kind>(value(), width_, height_, visitor);
  }

 private:
  typename kind::holder held_ = kind::create();
  std::uint32_t width_, height_;  // pixels
};

/// A style of its own, shown and edited. `button` is what a person presses.
template <class kind, class button> class style_button : public button {
 public:
  using argument = typename kind::argument;

  /// Copies the style; no handler runs.
  void assign(argument style) { sample_.assign(style); }
  argument value() { return sample_.value(); }

  std::function<void(argument)> on_change;  ///< the person accepted another style

 protected:
  style_button(std::int32_t caption, std::int32_t hint, std::uint32_t width, std::uint32_t height)
      : button(caption, hint), sample_(width, height) {
    this->on_click = [this] {
      if (sample_.edit() && on_change) on_change(value());
    };
  }
  style_sample<kind> sample_;
};

/// A button with the sample on it.
template <class kind> class style_input : public style_button<kind, toolkit::button> {
 public:
  explicit style_input(std::int32_t hint = edit_hint)
      : style_button<kind, toolkit::button>(0, hint, 56, 20) {
    this->set_image(this->sample_);
  }

 private:
  static constexpr std::int32_t edit_hint = 14556;  // "Click to edit the style"
};

/// A link that says what the style is for and shows the sample.
template <class kind> class style_link : public style_button<kind, toolkit::button_link> {
 public:
  explicit style_link(std::int32_t caption = 0, std::int32_t hint = 0)
      : style_button<kind, toolkit::button_link>(caption, hint, 56, 16) {
    this->set_image(this->sample_);
  }
};

}  // namespace detail

using color_style_input = detail::style_input<detail::color_kind>;
using point_style_input = detail::style_input<detail::point_kind>;
using line_style_input = detail::style_input<detail::line_kind>;
using polygon_style_input = detail::style_input<detail::polygon_kind>;

using color_style_link = detail::style_link<detail::color_kind>;
using point_style_link = detail::style_link<detail::point_kind>;
using line_style_link = detail::style_link<detail::line_kind>;
using polygon_style_link = detail::style_link<detail::polygon_kind>;

}  // namespace zu::style
