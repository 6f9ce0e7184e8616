#pragma once
// The parts of the realiser's table, each from the file of its kinds.

#include <span>

#include "host/desktop/realiser/realiser.h"

namespace zu::desktop {

std::span<const builder> layout_builders();
std::span<const builder> docker_builders();
std::span<const builder> button_builders();
std::span<const builder> button_box_builders();
std::span<const builder> text_builders();
std::span<const builder> line_builders();
std::span<const builder> multiline_builders();
std::span<const builder> number_builders();
std::span<const builder> dropdown_builders();
std::span<const builder> canvas_builders();
std::span<const builder> histogram_builders();
std::span<const builder> toolbar_builders();
std::span<const builder> outline_builders();
std::span<const builder> viewer_builders();

/// The row of an interface whose control is made from the handle and the parent.
template <class element, class control> constexpr builder builder_of() {
  return {element::name,
          [](handle h, QWidget* parent) -> QWidget* { return new control(h, parent); }};
}

}  // namespace zu::desktop
