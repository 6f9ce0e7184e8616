#pragma once
// The elements by which a person edits one of the two styles of a parameter.

#include "src/style/style_links.h"
#include "src/style/style_traits.h"

namespace zu::style::detail {

template <class style_traits> struct style_elements;
template <> struct style_elements<color_style_traits> {
  using kind = color_kind;
  using input = color_style_input;
  using link = color_style_link;
};
template <> struct style_elements<point_style_traits> {
  using kind = point_kind;
  using input = point_style_input;
  using link = point_style_link;
};
template <> struct style_elements<line_style_traits> {
  using kind = line_kind;
  using input = line_style_input;
  using link = line_style_link;
};

/// Style `which` (primary or selection) of a parameter, on an input or a link. The parameter is not
/// owned.
template <class style_traits, class button> class parameter_button : public button {
  using kind = typename style_elements<style_traits>::kind;

 public:
  /// `text` is that of the button's constructor.
  parameter_button(std::int32_t text, std::int32_t which) : button(text), which_(which) {
    this->on_change = [this](typename kind::argument chosen) {
      typename kind::style* edited = style_traits::get(prm_, which_);
      if (edited == nullptr) return;
      kind::assign(edited, chosen);
      if (on_edited) on_edited();
    };
  }
  /// Null leaves what is shown.
  void show(Tzu_stl_prm* prm) {
    prm_ = prm;
    if (prm != nullptr) this->assign(kind::given(style_traits::get(prm, which_)));
  }

  std::function<void()> on_edited;

 private:
  Tzu_stl_prm* prm_ = nullptr;
  std::int32_t which_;
};

template <class style_traits>
using parameter_input =
    parameter_button<style_traits, typename style_elements<style_traits>::input>;
template <class style_traits>
using parameter_link = parameter_button<style_traits, typename style_elements<style_traits>::link>;

}  // namespace zu::style::detail
