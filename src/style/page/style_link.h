#pragma once
// The element by which a person edits one of the two styles of a parameter.

#include "src/style/style_links.h"
#include "src/style/style_traits.h"

namespace zu::style::detail {

template <class style_traits> struct link_of;
template <> struct link_of<color_style_traits> { using type = color_style_link; };
template <> struct link_of<point_style_traits> { using type = point_style_link; };
template <> struct link_of<line_style_traits> { using type = line_style_link; };

/// Edits style `kind` of a parameter that is not owned; disabled without one.
template <class style_traits> class parameter_link : public link_of<style_traits>::type {
 public:
  parameter_link(std::int32_t caption, std::int32_t kind)
      : link_of<style_traits>::type(caption), kind_(kind) {}

  void show(Tzu_stl_prm* prm) { this->assign(style_traits::get(prm, kind_)); }

 private:
  std::int32_t kind_;
};

}  // namespace zu::style::detail
